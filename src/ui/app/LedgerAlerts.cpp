#include "app/LedgerAlerts.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "ledger/RescueFolder.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

// "May 2006" for a month file's path, or the file's name when it names no month.
QString monthOfPath(const QString &path)
{
    const auto yearMonth = DataFolder::yearMonthFromPath(path);
    if (!yearMonth)
        return QFileInfo(path).fileName();
    return QLocale().toString(QDate(yearMonth->year, yearMonth->month, 1), QStringLiteral("MMMM yyyy"));
}

} // namespace

LedgerAlerts::LedgerAlerts(KController *ledger, QObject *parent)
    : QObject(parent)
    , m_ledger(ledger)
{
    connect(m_ledger, &KController::monthFileUnreadable, this,
            &LedgerAlerts::reportMonthFileUnreadable);
    connect(m_ledger, &KController::monthFileNotWritten, this,
            &LedgerAlerts::reportMonthFileNotWritten);
    connect(m_ledger, &KController::listFileUnreadable, this,
            &LedgerAlerts::reportListFileUnreadable);
    connect(m_ledger, &KController::sharedFolderNotice, this, &LedgerAlerts::report);
}

void LedgerAlerts::askAboutUnsavedMonths(std::function<void(QuitAnswer)> answer)
{
    if (m_unsavedSheet)
        return;
    QStringList lines;
    for (const auto &month : m_ledger->unsavedMonths())
        lines.append(QStringLiteral("%1: %2").arg(monthOfPath(m_ledger->filePathForYear(month.year, month.month)),
                                      month.reason));
    QWidget *parent = QApplication::activeWindow();
    m_unsavedSheet = new QMessageBox(QMessageBox::Warning, tr("Penwick"),
                                     tr("Some months could not be saved."), QMessageBox::NoButton,
                                     parent);
    m_unsavedSheet->setObjectName(QStringLiteral("unsavedSheet"));
    m_unsavedSheet->setInformativeText(
        tr("%1\n\nFree some disk space or check the folder's permissions and try again, or save "
           "a copy of these months elsewhere and bring it back later.")
            .arg(lines.join(u'\n')));
    QPushButton *retry = m_unsavedSheet->addButton(tr("Try Again"), QMessageBox::AcceptRole);
    QPushButton *copy = m_unsavedSheet->addButton(tr("Save a Copy…"), QMessageBox::ActionRole);
    QPushButton *drop =
        m_unsavedSheet->addButton(tr("Quit Without Saving"), QMessageBox::DestructiveRole);
    QPushButton *cancel = m_unsavedSheet->addButton(QMessageBox::Cancel);
    m_unsavedSheet->setDefaultButton(retry);
    m_unsavedSheet->setEscapeButton(cancel);
    m_unsavedSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_unsavedSheet->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    QMessageBox *sheet = m_unsavedSheet;
    connect(sheet, &QMessageBox::finished, this, [this, sheet, retry, copy, drop, answer] {
        QAbstractButton *clicked = sheet->clickedButton();
        if (clicked == retry)
            answer(QuitAnswer::TryAgain);
        else if (clicked == copy)
            answer(saveRescueCopy() ? QuitAnswer::CopySaved : QuitAnswer::Stay);
        else if (clicked == drop)
            answer(QuitAnswer::QuitWithoutSaving);
        else
            answer(QuitAnswer::Stay);
    });
    m_unsavedSheet->open();
}

bool LedgerAlerts::saveRescueCopy()
{
    QString error;
    const auto folder = RescueFolder::save(*m_ledger, &error);
    if (!folder) {
        report(tr("The copy could not be saved either."), error);
        return false;
    }
    // Said on the way out, so said where it outlives the windows too.
    qInfo("Penwick: a copy of the unsaved months is in %s", qPrintable(*folder));
    return true;
}

void LedgerAlerts::offerRescuedMonths()
{
    const auto rescues = RescueFolder::pending(m_ledger->dataFolderPath());
    if (rescues.isEmpty())
        return;
    const RescueFolder::Pending &rescue = rescues.constFirst();
    auto *box = new QMessageBox(QMessageBox::Question, tr("Penwick"),
                                tr("Months that could not be saved on %1 were kept.")
                                    .arg(QLocale().toString(rescue.made, QLocale::LongFormat)),
                                QMessageBox::NoButton, QApplication::activeWindow());
    box->setObjectName(QStringLiteral("rescueSheet"));
    box->setInformativeText(tr("%1\n\nThey are in %2. Bring them back into the data folder now?")
                                .arg(rescue.months.join(u'\n'),
                                     QDir::toNativeSeparators(rescue.folder)));
    QPushButton *merge = box->addButton(tr("Bring Back"), QMessageBox::AcceptRole);
    QPushButton *later = box->addButton(tr("Not Now"), QMessageBox::RejectRole);
    QPushButton *discard = box->addButton(tr("Discard…"), QMessageBox::DestructiveRole);
    box->setDefaultButton(merge);
    box->setEscapeButton(later);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(box->parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    const QString folder = rescue.folder;
    connect(box, &QMessageBox::finished, this, [this, box, merge, discard, folder] {
        if (box->clickedButton() == merge) {
            QString result;
            if (!RescueFolder::mergeBack(*m_ledger, folder, &result))
                report(tr("Not every kept month could be brought back; the copy stays."), result);
        } else if (box->clickedButton() == discard) {
            auto *confirm = new QMessageBox(QMessageBox::Warning, tr("Penwick"),
                                            tr("Throw the kept months away for good?"),
                                            QMessageBox::Cancel, QApplication::activeWindow());
            confirm->setObjectName(QStringLiteral("discardRescueSheet"));
            QPushButton *throwAway =
                confirm->addButton(tr("Throw Away"), QMessageBox::DestructiveRole);
            confirm->setDefaultButton(QMessageBox::Cancel);
            confirm->setAttribute(Qt::WA_DeleteOnClose);
            connect(confirm, &QMessageBox::finished, this, [confirm, throwAway, folder] {
                if (confirm->clickedButton() == throwAway)
                    RescueFolder::discard(folder);
            });
            confirm->open();
        }
    });
    box->open();
}


void LedgerAlerts::reportMonthFileUnreadable(const QString &path, const QString &reason)
{
    if (m_reportedUnreadable.contains(path))
        return;
    m_reportedUnreadable.insert(path);
    report(tr("The entries of %1 could not be read.").arg(monthOfPath(path)),
           tr("%1\n\nThe month is shown empty and cannot be changed, and its file \"%2\" is left "
              "exactly as it is. The other months work as usual.")
               .arg(reason, QDir::toNativeSeparators(path)));
}

void LedgerAlerts::reportListFileUnreadable(const QString &path, const QString &reason)
{
    if (reason.isEmpty())
        return;
    report(tr("The category and payway lists could not be read."),
           tr("%1\n\nThe file \"%2\" is left exactly as it is, and nothing can be booked until it "
              "is mended or replaced.")
               .arg(reason, QDir::toNativeSeparators(path)));
}

void LedgerAlerts::reportMonthFileNotWritten(const QString &path, const QString &reason)
{
    if (m_reportedNotWritten.contains(path))
        return;
    m_reportedNotWritten.insert(path);
    report(tr("The entries of %1 could not be saved.").arg(monthOfPath(path)),
           tr("%1\n\nThe changes are kept in memory, and Penwick tries again every 30 seconds "
              "and at every change. Free some disk space or check the folder's permissions.")
               .arg(reason));
}

void LedgerAlerts::report(const QString &text, const QString &details)
{
    m_reports.append({text, details});
    if (m_reportBox) {
        QStringList texts;
        QStringList everything;
        for (const auto &[reported, reason] : std::as_const(m_reports)) {
            texts.append(reported);
            everything.append(reported + u'\n' + reason);
        }
        m_reportBox->setText(tr("Penwick found %1 problems.").arg(m_reports.size()));
        m_reportBox->setInformativeText(texts.join(u'\n')
                                        + tr("\n\nShow Details… tells more of each."));
        m_reportBox->setDetailedText(everything.join(u"\n\n"_s));
        return;
    }
    // Window-modal on the window in front, so that the user sees it where
    // they are working and the other windows stay usable.
    m_reportBox = new QMessageBox(QMessageBox::Warning, tr("Penwick"), text, QMessageBox::Ok,
                                  QApplication::activeWindow());
    m_reportBox->setInformativeText(details);
    m_reportBox->setAttribute(Qt::WA_DeleteOnClose);
    m_reportBox->setWindowModality(m_reportBox->parentWidget() ? Qt::WindowModal
                                                               : Qt::ApplicationModal);
    connect(m_reportBox, &QMessageBox::finished, this, [this] { m_reports.clear(); });
    m_reportBox->open();
}
