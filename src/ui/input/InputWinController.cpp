#include "input/InputWinController.h"

#include "entry/EntryCheck.h"
#include "entry/NumberUtility.h"
#include "input/DescriptionListModel.h"
#include "input/InputDateBar.h"
#include "input/InputRow.h"
#include "input/InputRowList.h"
#include "input/InputSheets.h"
#include "ledger/KController.h"
#include "model/EntryLimits.h"
#include "model/MonthKey.h"
#include "model/Notifications.h"
#include "model/NumberValue.h"
#include "model/PaymentData.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "widgets/KeyButton.h"
#include "widgets/LastPopUpButton.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace {

// Whether no other window of the program is on the screen.
bool isOnlyWindow(const QWidget *window)
{
    const QWidgetList tops = QApplication::topLevelWidgets();
    return std::none_of(tops.cbegin(), tops.cend(), [window](const QWidget *top) {
        const Qt::WindowType type = top->windowType();
        return top != window && top->isVisible() && type != Qt::Popup && type != Qt::ToolTip
               && type != Qt::Desktop;
    });
}

} // namespace

namespace {

constexpr int FixedRows = 3;

// A value written back into an amount field: the amount as it will be
// stored, in a form that evaluates to itself again when the next total
// evaluates every field (plain decimals, no exponent, no grouping).
QString amountFieldText(double value)
{
    return editingText(float(value));
}

// The first item of every category pop-up, which stands for "no category".
QString categoryPlaceholder()
{
    return QCoreApplication::translate("Localizable", "Category");
}

} // namespace

template <typename T>
T *InputWinController::control(const InputRow *row, int role) const
{
    return qobject_cast<T *>(row->controlWithTag(InputRow::tagFor(row->row(), InputRow::Role(role))));
}

InputWinController::InputWinController(KController *controller, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_controller(controller)
    , m_descriptionModel(new DescriptionListModel(&m_descriptions, this))
{
    setObjectName(QStringLiteral("InputWindow"));
    setWindowTitle(tr("Book Entries"));
    m_descriptions.readRecentItemsFromDefault();

    const InputRow::ColumnWidths widths = InputRow::columnWidths(this);

    // The date on top, with buttons that step it a day at a time.
    m_dateBar = new InputDateBar(widths.month, widths.day, this);
    connect(m_dateBar, &InputDateBar::dateEdited, this, &InputWinController::setInputDate);
    connect(m_dateBar, &InputDateBar::stepped, this, &InputWinController::moveDate);

    m_rowList = new InputRowList(m_descriptionModel, this);
    m_rowList->setTabStart(m_dateBar->dayField());
    m_addRowButton = m_rowList->addRowButton();
    m_cancelButton = new KeyButton(tr("Cancel"), this);
    m_inputButton = new KeyButton(tr("Book and Show &List"), this);
    m_OKButton = new KeyButton(tr("&Book"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    m_inputButton->setObjectName(QStringLiteral("inputButton"));
    m_OKButton->setObjectName(QStringLiteral("OKButton"));
    connect(m_addRowButton, &QPushButton::clicked, this,
            &InputWinController::makeNewInputViewFromAction);
    connect(m_cancelButton, &QPushButton::clicked, this, &InputWinController::cancelInput);
    connect(m_inputButton, &QPushButton::clicked, this, &InputWinController::inputDataAndShowList);
    connect(m_OKButton, &QPushButton::clicked, this, &InputWinController::inputData);

    auto *buttonRow = new QHBoxLayout;
    buttonRow->addStretch(1);
    buttonRow->addWidget(m_cancelButton);
    buttonRow->addWidget(m_inputButton);
    buttonRow->addWidget(m_OKButton);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_dateBar);
    layout->addSpacing(InputRow::Spacing);
    layout->addWidget(m_rowList, 1);
    layout->addLayout(buttonRow);

    // Tab order: the date, the rows (linked as they are added), the buttons.
    setTabOrder(m_addRowButton, m_cancelButton);
    setTabOrder(m_cancelButton, m_inputButton);
    setTabOrder(m_inputButton, m_OKButton);
    updateColumnWidths();
    for (int i = 0; i < FixedRows; ++i)
        addRow();

    // Queued, so that the application controller has reloaded the lists by
    // the time the pop-ups read them.
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, this,
            &InputWinController::setPopupButtonTitle, Qt::QueuedConnection);

    setInputDate(QDate::currentDate());
    setPopupButtonTitle();
    // Room for eight rows at first; the window remembers what the user makes
    // of it.
    if (!restoreGeometry(Settings().savedLayout(SettingsKeys::InputWindow))) {
        const int rowHeight = m_rowList->rowHeight();
        // Measured on Latin letters: a CJK font's average character is a
        // full-width one, twice as wide, and 130 of them overflow the screen.
        const QString letters = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
        const int letterWidth = fontMetrics().horizontalAdvance(letters) / int(letters.size());
        resize(std::max(sizeHint().width(), letterWidth * 130), sizeHint().height() + 5 * rowHeight);
    }
    m_dateBar->dayField()->setFocus();
}

InputWinController::~InputWinController()
{
    if (isVisible())
        saveWindowGeometry();
    // The controls outlive this part of the object, and the one with the
    // focus still reports the end of its editing as the window goes: none of
    // that may reach a window half destroyed.
    const auto controls = findChildren<QObject *>();
    for (QObject *control : controls)
        control->disconnect(this);
}

void InputWinController::setYear(int year, int month, int date)
{
    QDate day = QDate(year, 1, 1);
    if (!day.isValid())
        day = QDate(QDate::currentDate().year(), 1, 1);
    setInputDate(day.addMonths(month - 1).addDays(date - 1));
    m_dateBar->dayField()->setFocus();
}

bool InputWinController::canTerminateApp() const
{
    return std::all_of(m_rowList->rows().cbegin(), m_rowList->rows().cend(),
                       [this](const InputRow *row) { return isRowEmpty(row); });
}

void InputWinController::confirmInputDataBeforeTerminate()
{
    show();
    raise();
    activateWindow();
    InputSheets::askBeforeQuit(this, [this](InputSheets::QuitChoice choice) {
        if (choice == InputSheets::QuitChoice::BookAndQuit) {
            inputDataAndQuit();
        } else if (choice == InputSheets::QuitChoice::QuitWithoutBooking) {
            // Closing discards the rows, so the quit meets nothing pending.
            close();
            emit quitRequested();
        }
    });
}

int InputWinController::numberOfRows() const
{
    return int(m_rowList->rows().size());
}

QWidget *InputWinController::getControlWithTag(int tag) const
{
    const InputRow *row = m_rowList->rowOfTag(tag);
    return row ? row->controlWithTag(tag) : nullptr;
}

void InputWinController::inputData()
{
    submit(0);
}

void InputWinController::inputDataAndShowList()
{
    submit(1);
}

void InputWinController::inputDataAndQuit()
{
    submit(2);
}

void InputWinController::submit(int afterInputWork)
{
    m_afterInputWork = afterInputWork;
    // Statements still being typed are booked by their value.
    calcurateSum();
    for (InputRow *row : std::as_const(m_rowList->rows())) {
        if (row->amountProblem()) {
            showAmountSheet(row);
            return;
        }
    }
    for (InputRow *row : std::as_const(m_rowList->rows())) {
        const bool noCategory = control<QComboBox>(row, InputRow::Category)->currentIndex() <= 0;
        const bool hasData = !control<QLineEdit>(row, InputRow::Amount)->text().isEmpty()
            || !control<QComboBox>(row, InputRow::Description)->currentText().isEmpty();
        if (noCategory && hasData) {
            showCategorySheet(row);
            return;
        }
    }
    confirmYearsAndBook();
}

void InputWinController::showAmountSheet(InputRow *faultyRow)
{
    const QPointer<QLineEdit> amount = control<QLineEdit>(faultyRow, InputRow::Amount);
    InputSheets::tellAmountCannotBeBooked(this, faultyRow->row(),
                                          faultyRow->amountProblem().value_or(QString()), [amount] {
                                              if (amount) {
                                                  amount->setFocus(Qt::OtherFocusReason);
                                                  amount->selectAll();
                                              }
                                          });
}

void InputWinController::confirmYearsAndBook()
{
    const int thisYear = QDate::currentDate().year();
    QList<int> farYears;
    for (const InputRow *row : std::as_const(m_rowList->rows())) {
        const int year = rowDate(row).year();
        const bool booked = control<QComboBox>(row, InputRow::Category)->currentIndex() > 0;
        if (booked && std::abs(year - thisYear) > 1 && !farYears.contains(year))
            farYears.append(year);
    }
    if (farYears.isEmpty()) {
        bookInputData();
        return;
    }
    InputSheets::askToBookIntoYears(this, farYears, [this](bool book) {
        if (book) {
            bookInputData();
            return;
        }
        m_dateBar->yearField()->setFocus(Qt::OtherFocusReason);
        m_dateBar->yearField()->selectAll();
    });
}

void InputWinController::showCategorySheet(InputRow *faultyRow)
{
    const QPointer<InputRow> row = faultyRow;
    InputSheets::askToBookWithoutCategory(this, [this, row](bool book) {
        if (book)
            confirmYearsAndBook();
        else if (row)
            control<QComboBox>(row, InputRow::Category)->setFocus(Qt::OtherFocusReason);
    });
}

void InputWinController::bookInputData()
{
    struct Entry
    {
        InputRow *row;
        PaymentDataPtr record;
    };
    QList<Entry> entries;
    PaymentArray kept;
    for (InputRow *row : std::as_const(m_rowList->rows())) {
        auto record = std::make_shared<PaymentData>();
        const QDate date = rowDate(row);
        record->setYear(date.year());
        record->setMonth(date.month());
        record->setDate(date.day());
        record->setCategory(control<QComboBox>(row, InputRow::Category)->currentIndex() - 1);
        record->setDetails(control<QComboBox>(row, InputRow::Description)->currentText());
        record->setAmount(floatValueOf(QStringView(control<QLineEdit>(row, InputRow::Amount)->text())));
        record->setPayway(std::max(0, control<QComboBox>(row, InputRow::Payway)->currentIndex()));
        record->setInitializing(false);
        entries.append({row, record});
        if (record->category() != -1)
            kept.append(record);
    }

    // Month by month, so that a month that cannot take its entries (its file
    // could not be read or written) keeps them here instead of losing them.
    QSet<int> refusedMonths;
    QStringList reasons;
    const auto months = KController::assortDataArray(kept);
    const KController::ChangeScope change(m_controller,
                                          kept.size() == 1
                                              ? tr("Booking of an Entry")
                                              : tr("Booking of %1 Entries").arg(kept.size()));
    for (auto it = months.cbegin(); it != months.cend(); ++it) {
        const PaymentDataPtr &first = it->constFirst();
        if (QString reason; !m_controller->addData(*it, first->year(), first->month(), &reason)) {
            refusedMonths.insert(it.key());
            reasons.append(reason);
        }
    }

    for (const Entry &entry : std::as_const(entries)) {
        const PaymentData &record = *entry.record;
        if (record.category() != -1
            && refusedMonths.contains(MonthKey::of(record.year(), record.month())))
            continue;
        m_descriptions.addNewDescription(record);
        clearDataOfView(entry.row);
    }
    m_descriptions.writeToDefault();
    reloadDescriptions();
    calcurateSum();

    const int afterInputWork = m_afterInputWork;
    m_afterInputWork = 0;
    if (!refusedMonths.isEmpty()) {
        InputSheets::tellNotBooked(this, reasons);
        return;
    }
    // Closing the only window would end the program: it stays, emptied, for
    // the next entries (Ctrl+Q quits).
    if (afterInputWork == 0 && isOnlyWindow(this)) {
        m_dateBar->dayField()->setFocus(Qt::OtherFocusReason);
        return;
    }
    close();
    if (afterInputWork == 1)
        emit listWindowRequested();
    else if (afterInputWork == 2)
        emit quitRequested();
}

void InputWinController::cancelInput()
{
    close();
    emit listWindowRequested();
}

void InputWinController::incrementDate()
{
    moveDate(1);
}

void InputWinController::decrementDate()
{
    moveDate(-1);
}

void InputWinController::moveDate(int days)
{
    for (InputRow *row : std::as_const(m_rowList->rows())) {
        if (isRowEmpty(row))
            setRowDate(row, rowDate(row).addDays(days));
    }
    m_dateBar->setDate(m_dateBar->date().addDays(days));
}

void InputWinController::checkDate()
{
    m_dateBar->checkDate();
}

QDate InputWinController::inputDate() const
{
    return m_dateBar->date();
}

void InputWinController::setInputDate(const QDate &date)
{
    m_dateBar->setDate(date);
    for (InputRow *row : std::as_const(m_rowList->rows()))
        setRowDate(row, date);
}

void InputWinController::setRowDate(InputRow *row, const QDate &date)
{
    row->setYear(date.year());
    control<QLineEdit>(row, InputRow::Month)->setText(QString::number(date.month()));
    control<QLineEdit>(row, InputRow::Day)->setText(QString::number(date.day()));
}

QDate InputWinController::rowDate(const InputRow *row) const
{
    int month = integerValueOf(QStringView(control<QLineEdit>(row, InputRow::Month)->text()));
    int day = integerValueOf(QStringView(control<QLineEdit>(row, InputRow::Day)->text()));
    if (month < 1 || month > 12)
        month = m_dateBar->date().month();
    const QDate first(row->year(), month, 1);
    if (day < 1)
        day = m_dateBar->date().day();
    // 31 April is the last day of April, not the first of May.
    return QDate(first.year(), month, std::min(day, first.daysInMonth()));
}

bool InputWinController::isRowEmpty(const InputRow *row) const
{
    return control<QComboBox>(row, InputRow::Category)->currentIndex() <= 0
        && control<QComboBox>(row, InputRow::Description)->currentText().isEmpty()
        && control<QLineEdit>(row, InputRow::Amount)->text().isEmpty();
}

void InputWinController::makeNewInputViewFromAction()
{
    if (m_rowList->rows().isEmpty())
        return;
    makeNewInputView(control<LastPopUpButton>(m_rowList->rows().constLast(), InputRow::Payway));
}

void InputWinController::makeNewInputView(LastPopUpButton *sender)
{
    const InputRow *senderRow = m_rowList->rowOfTag(InputRow::tagOf(sender));
    const QDate date = senderRow ? rowDate(senderRow) : m_dateBar->date();
    InputRow *row = addRow();
    setRowDate(row, date);
    auto *month = control<QLineEdit>(row, InputRow::Month);
    month->setFocus(Qt::TabFocusReason);
    m_rowList->ensureVisible(month);
}

InputRow *InputWinController::addRow()
{
    InputRow *row = m_rowList->addRow();
    auto *category = control<QComboBox>(row, InputRow::Category);
    auto *description = control<QComboBox>(row, InputRow::Description);
    auto *amount = control<QLineEdit>(row, InputRow::Amount);
    auto *payway = control<LastPopUpButton>(row, InputRow::Payway);

    connect(category, &QComboBox::currentIndexChanged, this, &InputWinController::calcurateSum);
    connect(category, &QComboBox::activated, row, [row] { row->categoryFromMemory = false; });
    connect(description, &QComboBox::activated, this,
            [this, row](int index) { selectDescription(row, index); });
    connect(description->lineEdit(), &QLineEdit::editingFinished, this,
            [this, row] { descriptionEditingEnded(row); });
    connect(amount, &QLineEdit::editingFinished, this, &InputWinController::calcurateSum);
    connect(amount, &QLineEdit::textEdited, row, [row] { row->amountFromMemory = false; });
    connect(payway, &LastPopUpButton::nextKeyViewNeeded, this,
            &InputWinController::makeNewInputView);

    fillPopUps(row);
    clearDataOfView(row);
    return row;
}

void InputWinController::removeInputViews()
{
    m_rowList->removeRowsAfter(FixedRows);
}

void InputWinController::clearDataOfView(InputRow *row)
{
    control<QComboBox>(row, InputRow::Category)->setCurrentIndex(0);
    control<QComboBox>(row, InputRow::Payway)->setCurrentIndex(0);
    auto *description = control<QComboBox>(row, InputRow::Description);
    description->setCurrentIndex(-1);
    description->clearEditText();
    control<QLineEdit>(row, InputRow::Amount)->clear();
    // A cleared row is ready for the window's date rather than left without
    // one.
    setRowDate(row, m_dateBar->date());
    row->categoryFromMemory = false;
    row->amountFromMemory = false;
}

void InputWinController::calcurateSum()
{
    for (InputRow *row : std::as_const(m_rowList->rows())) {
        auto *amount = control<QLineEdit>(row, InputRow::Amount);
        if (amount->text().isEmpty()) {
            row->setAmountProblem(std::nullopt);
            continue;
        }
        const double value = NumberUtility::numberWithCalcurationStatement(amount->text());
        // What cannot be booked stays as typed, to be mended.
        row->setAmountProblem(EntryCheck::amountProblem(value));
        if (row->amountProblem())
            continue;
        const QString text = amountFieldText(value);
        if (text != amount->text())
            amount->setText(text);
    }
    m_rowList->setTotalText(amountText(spendingTotal()));
}

double InputWinController::spendingTotal() const
{
    // Each amount as it will be booked (a float), summed as the lists sum.
    double total = 0;
    for (const InputRow *row : m_rowList->rows()) {
        const QString text = control<QLineEdit>(row, InputRow::Amount)->text();
        if (text.isEmpty())
            continue;
        // Neither a row without category nor one of income (the last
        // category) is spending.
        const auto *category = control<QComboBox>(row, InputRow::Category);
        const double value = NumberUtility::numberWithCalcurationStatement(text);
        if (category->currentIndex() != 0 && category->currentIndex() < category->count() - 1
            && EntryLimits::isAmountStorable(value))
            total += float(value);
    }
    return total;
}

void InputWinController::setPopupButtonTitle()
{
    updateColumnWidths();
    for (InputRow *row : std::as_const(m_rowList->rows()))
        fillPopUps(row);
    changeDefaultButton();
    calcurateSum();
}

void InputWinController::updateColumnWidths()
{
    QStringList categories = m_controller->categoryList();
    categories.append(categoryPlaceholder());
    m_rowList->setPopUpWidths(InputRow::popUpWidth(this, categories),
                              InputRow::popUpWidth(this, m_controller->paywayList()));
}

void InputWinController::fillPopUps(InputRow *row)
{
    // A choice survives a change of the lists when its name is still there.
    const auto refill = [](QComboBox *box, const QStringList &items, int firstItem) {
        const QString chosen = box->currentIndex() >= firstItem ? box->currentText() : QString();
        const QSignalBlocker blocker(box);
        while (box->count() > firstItem)
            box->removeItem(box->count() - 1);
        box->addItems(items);
        int index = 0;
        for (int i = firstItem; i < box->count() && !chosen.isEmpty(); ++i) {
            if (box->itemText(i) == chosen) {
                index = i;
                break;
            }
        }
        box->setCurrentIndex(index);
    };
    auto *category = control<QComboBox>(row, InputRow::Category);
    if (category->count() == 0)
        category->addItem(categoryPlaceholder());
    category->setItemText(0, categoryPlaceholder());
    refill(category, m_controller->categoryList(), 1);
    refill(control<QComboBox>(row, InputRow::Payway), m_controller->paywayList(), 0);
}

void InputWinController::changeDefaultButton()
{
    m_OKButton->setDefault(false);
    m_inputButton->setDefault(false);
    const int which = Settings().returnInputDefault();
    if (which <= 1)
        m_OKButton->setDefault(true);
    else if (which == 2)
        m_inputButton->setDefault(true);
}

void InputWinController::selectDescription(InputRow *row, int index)
{
    const auto *description = control<QComboBox>(row, InputRow::Description);
    if (index < 0 || description->currentText().isEmpty())
        return;
    fillFromDescription(row, m_descriptions.itemAt(index));
}

void InputWinController::descriptionEditingEnded(InputRow *row)
{
    // A description typed out in full counts as chosen.
    const auto *description = control<QComboBox>(row, InputRow::Description);
    const int index = description->findText(description->currentText(),
                                            Qt::MatchExactly | Qt::MatchCaseSensitive);
    selectDescription(row, index);
}

void InputWinController::fillFromDescription(InputRow *row, const DescriptionMemory::Record &record)
{
    // What the user chose or typed in this row stays; only what a remembered
    // description put there may be replaced by another.
    auto *category = control<QComboBox>(row, InputRow::Category);
    if (category->currentIndex() <= 0 || row->categoryFromMemory) {
        const int index = record.category + 1;
        category->setCurrentIndex(index >= 0 && index < category->count() ? index : 0);
        row->categoryFromMemory = true;
    }
    auto *amount = control<QLineEdit>(row, InputRow::Amount);
    if (amount->text().isEmpty() || row->amountFromMemory) {
        amount->setText(amountFieldText(record.amount));
        row->amountFromMemory = true;
    }
    calcurateSum();
}

void InputWinController::reloadDescriptions()
{
    // A description box whose list is replaced forgets its text and shows
    // the first item instead: keep what each row holds.
    QStringList texts;
    for (const InputRow *row : std::as_const(m_rowList->rows()))
        texts.append(control<QComboBox>(row, InputRow::Description)->currentText());
    m_descriptionModel->reload();
    for (qsizetype i = 0; i < m_rowList->rows().size(); ++i) {
        auto *description = control<QComboBox>(m_rowList->rows().at(i), InputRow::Description);
        description->setCurrentIndex(-1);
        description->setEditText(texts.at(i));
    }
}

void InputWinController::saveWindowGeometry()
{
    Settings().setSavedLayout(SettingsKeys::InputWindow, saveGeometry());
}

void InputWinController::closeEvent(QCloseEvent *event)
{
    saveWindowGeometry();
    removeInputViews();
    for (InputRow *row : std::as_const(m_rowList->rows()))
        clearDataOfView(row);
    calcurateSum();
    m_rowList->scrollToTop();
    m_dateBar->dayField()->setFocus();
    QWidget::closeEvent(event);
}

void InputWinController::keyPressEvent(QKeyEvent *event)
{
    // What a dialog does for its default button, for a window that is not a
    // dialog: Return (or Enter on the keypad) that no field took.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        for (KeyButton *button : {m_OKButton, m_inputButton}) {
            if (button->isDefault() && button->isEnabled()) {
                button->click();
                return;
            }
        }
    }
    QWidget::keyPressEvent(event);
}
