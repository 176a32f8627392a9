#include "list/ListWinController.h"

#include "budget/BudgetBook.h"
#include "budget/BudgetPane.h"
#include "exchange/CsvExport.h"
#include "ledger/KController.h"
#include "list/DataListTableModel.h"
#include "list/EntryTableView.h"
#include "list/ListPrintout.h"
#include "list/ListSearchPanel.h"
#include "list/MonthMemo.h"
#include "list/MonthTotalsPane.h"
#include "model/EntryLimits.h"
#include "model/ModifMonthList.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "widgets/SavableSplitView.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDate>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSaveFile>
#include <QSpinBox>
#include <QStatusBar>
#include <QStandardPaths>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>


ListWinController::ListWinController(KController *controller, QWidget *parent)
    : QMainWindow(parent)
    , m_controller(controller)
{
    setObjectName(QStringLiteral("ListWindow"));
    buildWindow();
    buildMenus();

    m_unsavedLabel = new QLabel(this);
    m_unsavedLabel->setObjectName(QStringLiteral("unsavedLabel"));
    m_unsavedLabel->setWordWrap(true);
    statusBar()->addPermanentWidget(m_unsavedLabel, 1);
    connect(m_controller, &KController::unsavedMonthsChanged, this,
            &ListWinController::showUnsavedMonths);
    showUnsavedMonths();

    Notifications *notifications = Notifications::instance();
    // Any month may change this one's totals or last month's balance; the
    // model follows its own list by itself.
    connect(notifications, &Notifications::dataListHasChanged, this,
            &ListWinController::reloadData);
    connect(notifications, &Notifications::listPreferenceHasUpDated, this,
            &ListWinController::readListPreference);
    connect(notifications, &Notifications::lastDateHasChanged, this,
            &ListWinController::reloadDataList);
    connect(m_controller->budgets(), &BudgetBook::budgetsChanged, this,
            &ListWinController::showBudgets);

    // Today's month; past the closing day, today already counts to the next.
    const Settings settings;
    QDate opening = QDate::currentDate();
    if (settings.changeMonthLastDate())
        opening = ModifMonthList::closingMonthOf(opening, settings.monthLastDate());
    setFields(opening.year(), opening.month());

    setListEditable(false);
    readListPreference();

    if (!restoreGeometry(settings.savedLayout(SettingsKeys::ListWindow)))
        resize(980, 680);
    m_listTable->restoreColumns();
    m_splitView->setAutosaveName(SettingsKeys::ListWindowSplitView);
}

void ListWinController::showUnsavedMonths()
{
    const auto months = m_controller->unsavedMonths();
    m_unsavedLabel->setVisible(!months.isEmpty());
    if (months.isEmpty()) {
        m_unsavedLabel->clear();
        return;
    }
    QStringList names;
    for (const auto &month : months)
        names.append(QStringLiteral("%1/%2").arg(month.month).arg(month.year));
    m_unsavedLabel->setText(
        tr("Not saved: %1. Penwick tries again every 30 seconds and at every change.")
            .arg(names.join(QStringLiteral(", "))));
    m_unsavedLabel->setToolTip(months.constLast().reason);
}

ListWinController::~ListWinController()
{
    saveWindowState();
    // A cell being edited commits as the window hides: let that happen while
    // the window is still whole, then stop listening.
    hide();
    m_memo->commit();
    Notifications::instance()->disconnect(this);
    m_controller->disconnect(this);
}

void ListWinController::buildWindow()
{
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(buildMonthBar());
    layout->addWidget(buildSearchBar());

    m_model = new DataListTableModel(m_controller, this);
    m_listTable = new EntryTableView(m_model, central);
    connect(m_listTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        m_deleteAction->setEnabled(isListEditable() && !m_listTable->selectedRecords().isEmpty());
        m_makeRecurringAction->setEnabled(m_listTable->selectedRecords().size() == 1);
    });
    m_listTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_listTable->addAction(m_makeRecurringAction);

    // Stacked panes: the table above, totals and memo below.
    m_splitView = new SavableSplitView(Qt::Vertical, central);
    m_splitView->setObjectName(QStringLiteral("splitView"));
    m_splitView->addWidget(m_listTable);
    auto *lowerPane = new QWidget(central);
    auto *lowerLayout = new QHBoxLayout(lowerPane);
    lowerLayout->setContentsMargins(0, 0, 0, 0);
    m_totalsPane = new MonthTotalsPane(lowerPane);
    m_memo = new MonthMemo(m_controller, lowerPane);
    m_budgetPane = new BudgetPane(lowerPane);
    connect(m_budgetPane, &BudgetPane::editRequested, this, &ListWinController::budgetsRequested);
    lowerLayout->addWidget(m_totalsPane, 0, Qt::AlignTop);
    lowerLayout->addWidget(m_budgetPane, 1);
    lowerLayout->addWidget(m_memo, 1);
    m_splitView->addWidget(lowerPane);
    m_splitView->setCollapsible(0, false);
    // Room goes to the table, before any layout was saved and on resizing.
    m_splitView->setStretchFactor(0, 1);
    m_splitView->setStretchFactor(1, 0);
    m_splitView->setSizes({600, 150});
    layout->addWidget(m_splitView, 1);
    setCentralWidget(central);

    // Tab walks the controls in the order they are seen.
    QWidget *previous = nullptr;
    for (const char *name : {"previousButton", "yearTF", "monthTF", "nextButton", "editButton",
                             "addButton", "deleteButton", "dateSearchTF", "detailsSearchTF",
                             "amountMinSearchTF", "amountMaxSearchTF", "categorySearchPp",
                             "paywaySearchPp", "clearSearchButton", "listTable", "summaryText"}) {
        QWidget *widget = central->findChild<QWidget *>(QLatin1StringView(name));
        if (previous)
            setTabOrder(previous, widget);
        previous = widget;
    }
}

QWidget *ListWinController::buildMonthBar()
{
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);

    m_previousAction = new QAction(tr("&Previous Month"), this);
    m_previousAction->setIcon(style()->standardIcon(QStyle::SP_ArrowLeft));
    m_previousAction->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    connect(m_previousAction, &QAction::triggered, this, [this] { moveMonth(-1); });
    m_nextAction = new QAction(tr("&Next Month"), this);
    m_nextAction->setIcon(style()->standardIcon(QStyle::SP_ArrowRight));
    m_nextAction->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    connect(m_nextAction, &QAction::triggered, this, [this] { moveMonth(1); });

    const auto toolButton = [bar](QAction *action, const QString &objectName,
                                  Qt::ToolButtonStyle style) {
        auto *button = new QToolButton(bar);
        button->setObjectName(objectName);
        button->setDefaultAction(action);
        button->setToolButtonStyle(style);
        button->setAutoRaise(true);
        return button;
    };

    m_yearTF = new QSpinBox(bar);
    m_yearTF->setObjectName(QStringLiteral("yearTF"));
    m_yearTF->setRange(EntryLimits::FirstYear, EntryLimits::LastYear);
    m_yearTF->setKeyboardTracking(false);
    m_yearTF->setAccessibleName(tr("Year"));
    connect(m_yearTF, &QSpinBox::valueChanged, this, &ListWinController::changeDataList);
    // One past each end, so that stepping past December or January carries
    // into the next or previous year.
    m_monthTF = new QSpinBox(bar);
    m_monthTF->setObjectName(QStringLiteral("monthTF"));
    m_monthTF->setRange(0, 13);
    m_monthTF->setKeyboardTracking(false);
    m_monthTF->setAccessibleName(tr("Month"));
    connect(m_monthTF, &QSpinBox::valueChanged, this, &ListWinController::monthFieldChanged);

    m_headingLabel = new QLabel(bar);
    m_headingLabel->setObjectName(QStringLiteral("headingLabel"));
    QFont headingFont = m_headingLabel->font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.4);
    headingFont.setBold(true);
    m_headingLabel->setFont(headingFont);

    m_editAction = new QAction(tr("&Edit Entries"), this);
    m_editAction->setCheckable(true);
    m_editAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    m_editAction->setToolTip(tr("Change entries in place; a changed month moves the entry"));
    connect(m_editAction, &QAction::toggled, this, &ListWinController::setListEditable);
    m_newAction = new QAction(tr("&New Entry…"), this);
    m_newAction->setShortcut(QKeySequence::New);
    connect(m_newAction, &QAction::triggered, this, &ListWinController::makeNewData);
    m_deleteAction = new QAction(tr("&Delete Entries…"), this);
    m_deleteAction->setShortcut(QKeySequence::Delete);
    connect(m_deleteAction, &QAction::triggered, this, &ListWinController::deleteData);
    // A schedule made from the one entry selected.
    m_makeRecurringAction = new QAction(tr("Make &Recurring…"), this);
    m_makeRecurringAction->setEnabled(false);
    connect(m_makeRecurringAction, &QAction::triggered, this, [this] {
        if (const PaymentArray records = m_listTable->selectedRecords(); records.size() == 1)
            emit makeRecurringRequested(records.constFirst());
    });

    layout->addWidget(toolButton(m_previousAction, QStringLiteral("previousButton"),
                                 Qt::ToolButtonIconOnly));
    layout->addWidget(m_yearTF);
    layout->addWidget(m_monthTF);
    layout->addWidget(toolButton(m_nextAction, QStringLiteral("nextButton"), Qt::ToolButtonIconOnly));
    layout->addSpacing(12);
    layout->addWidget(m_headingLabel);
    layout->addStretch(1);
    auto *editButton = new QPushButton(tr("Edit"), bar);
    editButton->setObjectName(QStringLiteral("editButton"));
    editButton->setCheckable(true);
    editButton->setToolTip(m_editAction->toolTip());
    connect(editButton, &QPushButton::toggled, m_editAction, &QAction::setChecked);
    connect(m_editAction, &QAction::toggled, editButton, &QPushButton::setChecked);
    layout->addWidget(editButton);
    auto *addButton = new QPushButton(tr("New Entry…"), bar);
    addButton->setObjectName(QStringLiteral("addButton"));
    connect(addButton, &QPushButton::clicked, m_newAction, &QAction::trigger);
    layout->addWidget(addButton);
    auto *deleteButton = new QPushButton(tr("Delete…"), bar);
    deleteButton->setObjectName(QStringLiteral("deleteButton"));
    connect(deleteButton, &QPushButton::clicked, m_deleteAction, &QAction::trigger);
    deleteButton->setEnabled(false);
    connect(m_deleteAction, &QAction::enabledChanged, deleteButton, &QPushButton::setEnabled);
    layout->addWidget(deleteButton);
    return bar;
}

QWidget *ListWinController::buildSearchBar()
{
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    m_searchPanel = new ListSearchPanel(bar);
    connect(m_searchPanel, &ListSearchPanel::keysChanged, this, &ListWinController::extractData);
    layout->addWidget(m_searchPanel, 1);

    m_clearSearchAction = new QAction(tr("Clear &Search"), this);
    m_clearSearchAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_K));
    connect(m_clearSearchAction, &QAction::triggered, this, [this] {
        clearExtractKey();
        extractData();
    });
    auto *clearButton = new QPushButton(tr("Clear"), bar);
    clearButton->setObjectName(QStringLiteral("clearSearchButton"));
    clearButton->setToolTip(tr("Show every entry of the month"));
    connect(clearButton, &QPushButton::clicked, m_clearSearchAction, &QAction::trigger);
    layout->addWidget(clearButton);
    return bar;
}

void ListWinController::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(m_newAction);
    file->addSeparator();
    m_printAction = file->addAction(tr("&Print…"), this, &ListWinController::printPenwick);
    m_printAction->setShortcut(QKeySequence::Print);
    m_exportAction = file->addAction(tr("&Export as PDF…"), this, &ListWinController::exportAsPdf);
    QMenu *csv = file->addMenu(tr("Export as &CSV"));
    for (const auto &[text, scope] : {std::pair{tr("The &Month Shown…"), CsvScope::Month},
                                      std::pair{tr("The &Year…"), CsvScope::Year},
                                      std::pair{tr("The &Search Result…"), CsvScope::SearchResult},
                                      std::pair{tr("&Everything…"), CsvScope::All}})
        csv->addAction(text, this, [this, scope = scope] { exportAsCsv(scope); });
    file->addSeparator();
    QAction *close = file->addAction(tr("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence::Close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    edit->setObjectName(QStringLiteral("editMenu"));
    edit->addAction(m_editAction);
    edit->addAction(m_deleteAction);
    edit->addSeparator();
    edit->addAction(m_makeRecurringAction);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->addAction(m_previousAction);
    view->addAction(m_nextAction);
    view->addSeparator();
    view->addAction(m_clearSearchAction);
    view->addSeparator();
    view->addMenu(m_listTable->columnMenu());
}

int ListWinController::year() const
{
    return m_yearTF->value();
}

int ListWinController::month() const
{
    return m_monthTF->value();
}

void ListWinController::setFields(int year, int month)
{
    const QSignalBlocker yearBlocker(m_yearTF);
    const QSignalBlocker monthBlocker(m_monthTF);
    m_yearTF->setValue(year);
    m_monthTF->setValue(month);
}

void ListWinController::showListOfYear(int year, int month)
{
    const bool shown = m_currentDataList && m_currentDataList->year() == year
        && m_currentDataList->month() == month;
    setFields(year, month);
    changeDataList();
    // The month shown is not read again, but the panel may have been
    // cleared since its rows were picked.
    if (shown)
        extractData();
}

void ListWinController::moveMonth(int months)
{
    const QDate target = QDate(year(), month(), 1).addMonths(months);
    if (!EntryLimits::isYearInRange(target.year()))
        return;
    showListOfYear(target.year(), target.month());
}

void ListWinController::monthFieldChanged(int month)
{
    // Stepping past either end carries into the next or previous year (but
    // not past the years the fields hold).
    if (month == 13 || month == 0) {
        setFields(year(), month == 13 ? 12 : 1);
        moveMonth(month == 13 ? 1 : -1);
        return;
    }
    changeDataList();
}

void ListWinController::changeDataList()
{
    const bool editable = isListEditable();
    setListEditable(false);
    if (!m_currentDataList || m_currentDataList->year() != year()
        || m_currentDataList->month() != month()) {
        reloadDataList();
        emit Notifications::instance()->listWinChangedDate();
    }
    setListEditable(editable);
}

void ListWinController::reloadDataList()
{
    std::shared_ptr<DataList> list = m_controller->listForYear(year(), month(), true);
    if (!list)
        return;
    m_currentDataList = std::move(list);
    m_memo->showMonth(year(), month());
    updateHeading();
    // The panel's keys go with the user into the month shown.
    applyPanelKeys();
    m_model->setDataList(m_currentDataList);
    reloadData();
}

void ListWinController::readListPreference()
{
    m_categoryList = m_controller->categoryList();
    m_paywayList = m_controller->paywayList();
    m_model->setNames(m_categoryList, m_paywayList);
    m_searchPanel->setNames(m_categoryList, m_paywayList);
    if (m_currentDataList && m_currentDataList->year() == year()
        && m_currentDataList->month() == month())
        reloadDataList();
    else
        changeDataList();
}

void ListWinController::clearExtractKey()
{
    m_searchPanel->clear();
}

void ListWinController::showDataOfCategory(int index)
{
    m_searchPanel->checkOnly(ListSearchPanel::Kind::Category, index);
    extractData();
}

void ListWinController::showDataOfPayway(int index)
{
    m_searchPanel->checkOnly(ListSearchPanel::Kind::Payway, index);
    extractData();
}

void ListWinController::extractData()
{
    if (!m_currentDataList)
        return;
    applyPanelKeys();
    m_model->reload();
    reloadData();
}

void ListWinController::applyPanelKeys()
{
    m_currentDataList->setextractKeyDict(m_searchPanel->keys(int(m_categoryList.size()) - 1));
    m_currentDataList->extractList();
}

void ListWinController::reloadData()
{
    const DataList *list = m_currentDataList.get();
    if (!list)
        return;
    const QDate previous = QDate(year(), month(), 1).addMonths(-1);
    const auto last = m_controller->listForYear(previous.year(), previous.month(), true);
    m_totalsPane->showTotals(*list, last ? std::optional<double>(last->incomeTotal()
                                                                 - last->expendTotal())
                                         : std::nullopt);
    showBudgets();
}

void ListWinController::showBudgets()
{
    if (!m_currentDataList)
        return;
    const BudgetBook *book = m_controller->budgets();
    // Earlier months as this one is shown, for what rolls over.
    const auto listOf = [this](int year, int month) {
        return m_controller->listForYear(year, month, true);
    };
    m_budgetPane->showReport(
        book->report(*m_currentDataList, int(m_categoryList.size()) - 1, listOf), m_categoryList,
        book->problem());
}

QString ListWinController::heading() const
{
    const QString monthName = QLocale().standaloneMonthName(month());
    const auto *closing = dynamic_cast<const ModifMonthList *>(m_currentDataList.get());
    if (closing)
        return tr("%1 %2, closing on day %3").arg(monthName).arg(year()).arg(closing->lastDate());
    return tr("%1 %2").arg(monthName).arg(year());
}

void ListWinController::updateHeading()
{
    m_headingLabel->setText(heading());
    setWindowTitle(tr("%1 – Entries").arg(heading()));
}

void ListWinController::saveData()
{
    m_memo->edit();
}

bool ListWinController::isListEditable() const
{
    return m_model->isEditable();
}

void ListWinController::setListEditable(bool editable)
{
    // Checking the action comes back here with nothing left to change.
    m_editAction->setChecked(editable);
    m_deleteAction->setEnabled(editable && !m_listTable->selectedRecords().isEmpty());
    if (editable == isListEditable())
        return;
    m_model->setEditable(editable);
    m_listTable->setEditable(editable);
    if (editable)
        statusBar()->showMessage(
            tr("Double-click a cell to change it. A changed month or year moves the entry there."));
    else
        statusBar()->clearMessage();
    m_model->reload();
}

PaymentDataPtr ListWinController::dataForSelectedRow() const
{
    return m_listTable->currentRecord();
}

bool ListWinController::selectData(const PaymentDataPtr &record)
{
    return m_listTable->selectRecord(record);
}

PaymentDataPtr ListWinController::dataAtIndex(int row) const
{
    return m_model->dataAtIndex(row);
}

void ListWinController::makeNewData()
{
    // The selected entry's own date: in a closing-day month it may lie in
    // the calendar month before.
    if (const PaymentDataPtr selected = dataForSelectedRow())
        emit inputWindowRequested(selected->year(), selected->month(), selected->date());
    else if (m_currentDataList)
        emit inputWindowRequested(m_currentDataList->year(), m_currentDataList->month(), 1);
}

void ListWinController::deleteData()
{
    const PaymentArray records = m_listTable->selectedRecords();
    if (!isListEditable() || records.isEmpty())
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Delete Entries"),
                                tr("Delete %n selected entries?", nullptr, int(records.size())),
                                QMessageBox::Cancel, this);
    box->setObjectName(QStringLiteral("deleteConfirmation"));
    box->setInformativeText(tr("Edit > Undo brings them back."));
    QPushButton *remove = box->addButton(tr("Delete"), QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(remove, &QPushButton::clicked, this,
            [this, records] {
                const KController::ChangeScope change(
                    m_controller, records.size() == 1
                                      ? tr("Deletion of an Entry")
                                      : tr("Deletion of %1 Entries").arg(records.size()));
                m_controller->deleteData(records);
            });
    box->open();
}

void ListWinController::printList(QPagedPaintDevice *device) const
{
    const bool searched = m_searchPanel->hasKeys();
    const QString note =
        searched ? tr("Entries found by: %1").arg(m_searchPanel->description()) : QString();
    ListPrintout(*m_model, m_listTable->visibleColumns(), heading(), note, m_totalsPane->printedTotals(searched))
        .print(device);
}

void ListWinController::printPenwick()
{
    if (!m_printer)
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_printer->setDocName(heading());
    auto *dialog = new QPrintDialog(m_printer.get(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this] { printList(m_printer.get()); });
    dialog->open();
}

bool ListWinController::exportPdf(const QString &path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setDocName(heading());
    printer.setCreator(QCoreApplication::applicationName());
    printList(&printer);
    return QFileInfo(path).size() > 0;
}

void ListWinController::exportAsPdf()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = QDate(year(), month(), 1).toString(QStringLiteral("yyyy-MM")) + QStringLiteral(".pdf");
    auto *dialog = new QFileDialog(this, tr("Export as PDF"), QDir(folder).filePath(name),
                                   tr("PDF documents (*.pdf)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        if (!exportPdf(path))
            QMessageBox::warning(this, tr("Export as PDF"),
                                 tr("The PDF could not be written to %1.").arg(path));
    });
    dialog->open();
}

std::optional<QByteArray> ListWinController::csvText(CsvScope scope, QString *error) const
{
    switch (scope) {
    case CsvScope::Month:
        return CsvExport::ledgerText(*m_controller, {year(), month()}, error);
    case CsvScope::Year:
        return CsvExport::ledgerText(*m_controller, {year(), 0}, error);
    case CsvScope::SearchResult:
        return CsvExport::text(m_currentDataList ? m_currentDataList->extractedArray() : PaymentArray(),
                               m_categoryList, m_paywayList);
    case CsvScope::All:
        break;
    }
    return CsvExport::ledgerText(*m_controller, {}, error);
}

void ListWinController::exportAsCsv(CsvScope scope)
{
    QString error;
    const std::optional<QByteArray> text = csvText(scope, &error);
    if (!text) {
        QMessageBox::warning(this, tr("Export as CSV"), tr("Nothing was exported: %1").arg(error));
        return;
    }
    const QDate shown(year(), month(), 1);
    const QString name = scope == CsvScope::Year ? shown.toString(u"yyyy")
        : scope == CsvScope::All                 ? tr("penwick-all")
        : scope == CsvScope::SearchResult        ? shown.toString(u"yyyy-MM") + tr("-search")
                                                 : shown.toString(u"yyyy-MM");
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto *dialog = new QFileDialog(this, tr("Export as CSV"), QDir(folder).filePath(name + QStringLiteral(".csv")),
                                   tr("CSV files (*.csv)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, [this, text = *text](const QString &path) {
        // Whole or not at all: a failed export leaves an older file as it was.
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            QMessageBox::warning(this, tr("Export as CSV"),
                                 tr("The CSV file could not be written to %1: %2").arg(path, file.errorString()));
    });
    dialog->open();
}

void ListWinController::saveWindowState()
{
    Settings settings;
    settings.setSavedLayout(SettingsKeys::ListWindow, saveGeometry());
    settings.sync();
    m_listTable->saveColumns();
}

void ListWinController::closeEvent(QCloseEvent *event)
{
    m_memo->commit();
    saveWindowState();
    QMainWindow::closeEvent(event);
}
