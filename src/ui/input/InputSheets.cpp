#include "input/InputSheets.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace InputSheets {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("InputSheets", text);
}

QMessageBox *sheet(QWidget *window, const QString &name, QMessageBox::Icon icon, const QString &text)
{
    auto *box = new QMessageBox(window);
    box->setObjectName(name);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->setWindowTitle(window->windowTitle());
    box->setIcon(icon);
    box->setText(text);
    return box;
}

} // namespace

void askToBookWithoutCategory(QWidget *window, std::function<void(bool book)> answer)
{
    QMessageBox *box = sheet(window, QStringLiteral("categorySheet"), QMessageBox::Warning,
                             QCoreApplication::translate("Localizable", "Data Category is not selected"));
    box->setInformativeText(QCoreApplication::translate("Localizable", "Ignore unselected data"));
    QPushButton *select = box->addButton(QCoreApplication::translate("Localizable", "Select"), QMessageBox::RejectRole);
    QPushButton *input = box->addButton(QCoreApplication::translate("Localizable", "Input"), QMessageBox::AcceptRole);
    box->setDefaultButton(select);
    box->setEscapeButton(select);
    QObject::connect(box, &QMessageBox::finished, window, [box, input, answer] {
        answer(box->clickedButton() == input);
    });
    box->open();
}

void tellAmountCannotBeBooked(QWidget *window, int row, const QString &reason,
                              std::function<void()> done)
{
    QMessageBox *box = sheet(window, QStringLiteral("amountSheet"), QMessageBox::Warning,
                             tr("The amount in row %1 cannot be booked.").arg(row));
    box->setInformativeText(reason);
    box->setStandardButtons(QMessageBox::Ok);
    QObject::connect(box, &QMessageBox::finished, window, [done] { done(); });
    box->open();
}

void askToBookIntoYears(QWidget *window, QList<int> years, std::function<void(bool book)> answer)
{
    std::sort(years.begin(), years.end());
    QStringList names;
    for (int year : std::as_const(years))
        names.append(QString::number(year));
    const QString text = years.size() == 1 ? tr("Book into the year %1?") : tr("Book into the years %1?");
    QMessageBox *box = sheet(window, QStringLiteral("yearSheet"), QMessageBox::Question,
                             text.arg(QLocale().createSeparatedList(names)));
    box->setInformativeText(tr("That is more than a year away from today."));
    QPushButton *book = box->addButton(tr("Book"), QMessageBox::AcceptRole);
    QPushButton *change = box->addButton(tr("Change the Year"), QMessageBox::RejectRole);
    box->setDefaultButton(change);
    box->setEscapeButton(change);
    QObject::connect(box, &QMessageBox::finished, window, [box, book, answer] {
        answer(box->clickedButton() == book);
    });
    box->open();
}

void askBeforeQuit(QWidget *window, std::function<void(QuitChoice)> answer)
{
    // One question at a time.
    if (window->findChild<QMessageBox *>(QStringLiteral("quitSheet")))
        return;
    QMessageBox *box = sheet(window, QStringLiteral("quitSheet"), QMessageBox::Question,
                             QCoreApplication::translate("Localizable", "Input Data before Quit"));
    box->setInformativeText(QCoreApplication::translate("Localizable", "Quit Input Alert"));
    QPushButton *inputAndQuit = box->addButton(QCoreApplication::translate("Localizable", "Input and Quit"), QMessageBox::AcceptRole);
    QPushButton *quitWithout =
        box->addButton(QCoreApplication::translate("Localizable", "Quit without Quit"), QMessageBox::DestructiveRole);
    QPushButton *cancel = box->addButton(QCoreApplication::translate("Localizable", "Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(inputAndQuit);
    box->setEscapeButton(cancel);
    QObject::connect(box, &QMessageBox::finished, window, [box, inputAndQuit, quitWithout, answer] {
        if (box->clickedButton() == inputAndQuit)
            answer(QuitChoice::BookAndQuit);
        else if (box->clickedButton() == quitWithout)
            answer(QuitChoice::QuitWithoutBooking);
        else
            answer(QuitChoice::Cancel);
    });
    box->open();
}

void tellNotBooked(QWidget *window, const QStringList &reasons)
{
    QMessageBox *box = sheet(window, QStringLiteral("notBookedSheet"), QMessageBox::Warning,
                             tr("Some entries were not booked and are still here."));
    box->setInformativeText(reasons.join(u"\n\n"));
    box->setStandardButtons(QMessageBox::Ok);
    box->open();
}

} // namespace InputSheets
