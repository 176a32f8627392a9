#include "list/ListWinController.h"

#include "ledger/KController.h"
#include "list/DataListTableModel.h"
#include "list/ListItemDelegate.h"
#include "list/ListPrintout.h"
#include "model/EntryLimits.h"
#include "model/ModifMonthList.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "model/NumberValue.h"
#include "search/StringUtility.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "widgets/CheckPopUpButton.h"
#include "widgets/SavableSplitView.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDate>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QStandardPaths>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

// The table pane never gets lower than this.
constexpr int kMinimumTableHeight = 130;
constexpr int kSummaryDelayMs = 1000;

// Amounts as the fields show them, to cents.
double shownAmount(double amount)
{
    return std::round(amount * 100.0) / 100.0;
}

QLabel *amountLabel(const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("-000,000,000")));
    return label;
}

QLineEdit *searchField(const QString &objectName, const QString &placeholder, int characters,
                       QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(objectName);
    field->setPlaceholderText(placeholder);
    field->setClearButtonEnabled(true);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * characters);
    return field;
}

// "1,000" is a thousand in the amount fields too.
int amountBound(const QLineEdit *field)
{
    return integerValueOf(QStringView(QString(field->text()).remove(u',')));
}

} // namespace

ListWinController::ListWinController(KController *controller, QWidget *parent)
    : QMainWindow(parent)
    , m_controller(controller)
{
    setObjectName(QStringLiteral("ListWindow"));
    buildWindow();
    buildMenus();

    m_summaryTimer.setSingleShot(true);
    m_summaryTimer.setInterval(kSummaryDelayMs);
    connect(&m_summaryTimer, &QTimer::timeout, this, &ListWinController::commitSummary);
    connect(m_controller, &KController::aboutToSaveAllEditedData, this,
            &ListWinController::editSummary);
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
    m_listTable->horizontalHeader()->restoreState(settings.savedLayout(SettingsKeys::DataListTable));
    readColumnMenuStates();
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
    commitSummary();
    Notifications::instance()->disconnect(this);
    m_controller->disconnect(this);
}

void ListWinController::buildWindow()
{
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(buildMonthBar());
    layout->addWidget(buildSearchPanel());

    m_model = new DataListTableModel(m_controller, this);
    m_listTable = new QTableView(central);
    m_listTable->setObjectName(QStringLiteral("listTable"));
    m_listTable->setModel(m_model);
    m_listTable->setItemDelegate(new ListItemDelegate(m_listTable));
    m_listTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_listTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_listTable->setAlternatingRowColors(true);
    m_listTable->setWordWrap(false);
    m_listTable->setMinimumHeight(kMinimumTableHeight);
    m_listTable->verticalHeader()->hide();
    m_listTable->verticalHeader()->setDefaultSectionSize(
        m_listTable->fontMetrics().height() + 8);
    QHeaderView *header = m_listTable->horizontalHeader();
    header->setSectionsMovable(true);
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(DataListTableModel::DetailsColumn, QHeaderView::Stretch);
    const int digit = m_listTable->fontMetrics().horizontalAdvance(u'0');
    header->resizeSection(DataListTableModel::YearColumn, digit * 8);
    header->resizeSection(DataListTableModel::MonthColumn, digit * 8);
    header->resizeSection(DataListTableModel::DateColumn, digit * 7);
    header->resizeSection(DataListTableModel::CategoryColumn, digit * 18);
    header->resizeSection(DataListTableModel::AmountColumn, digit * 14);
    header->resizeSection(DataListTableModel::PaywayColumn, digit * 18);
    connect(header, &QHeaderView::sectionClicked, this, &ListWinController::sortByColumn);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &pos) { m_tableColumnMenu->popup(header->mapToGlobal(pos)); });

    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this,
            &ListWinController::rememberSelection);
    connect(m_model, &QAbstractItemModel::modelReset, this, &ListWinController::restoreSelection);
    connect(m_listTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_deleteAction->setEnabled(isListEditable() && !selectedRecords().isEmpty()); });

    // Stacked panes: the table above, totals and memo below.
    m_splitView = new SavableSplitView(Qt::Vertical, central);
    m_splitView->setObjectName(QStringLiteral("splitView"));
    m_splitView->addWidget(m_listTable);
    m_splitView->addWidget(buildLowerPane());
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

QWidget *ListWinController::buildSearchPanel()
{
    auto *panel = new QWidget(this);
    auto *layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);

    m_dateSearchTF = searchField(QStringLiteral("dateSearchTF"), tr("e.g. 1,5,10-12"), 18, panel);
    m_categorySearchPp = new CheckPopUpButton(tr("Category"), panel);
    m_categorySearchPp->setObjectName(QStringLiteral("categorySearchPp"));
    m_detailsSearchTF = searchField(QStringLiteral("detailsSearchTF"), tr("Any of these words"),
                                    22, panel);
    m_amountMinSearchTF = searchField(QStringLiteral("amountMinSearchTF"), tr("From"), 10, panel);
    m_amountMaxSearchTF = searchField(QStringLiteral("amountMaxSearchTF"), tr("To"), 10, panel);
    for (QLineEdit *field : {m_dateSearchTF, m_amountMinSearchTF, m_amountMaxSearchTF})
        field->setFixedWidth(field->minimumWidth());
    m_paywaySearchPp = new CheckPopUpButton(tr("Payment method"), panel);
    m_paywaySearchPp->setObjectName(QStringLiteral("paywaySearchPp"));

    const auto labelFor = [panel](const QString &text, QWidget *buddy) {
        auto *label = new QLabel(text, panel);
        label->setBuddy(buddy);
        return label;
    };
    layout->addWidget(labelFor(tr("&Days:"), m_dateSearchTF));
    layout->addWidget(m_dateSearchTF);
    layout->addWidget(labelFor(tr("&Words:"), m_detailsSearchTF));
    layout->addWidget(m_detailsSearchTF, 1);
    layout->addWidget(labelFor(tr("&Amount:"), m_amountMinSearchTF));
    layout->addWidget(m_amountMinSearchTF);
    layout->addWidget(new QLabel(QStringLiteral("–"), panel));
    layout->addWidget(m_amountMaxSearchTF);
    layout->addWidget(m_categorySearchPp);
    layout->addWidget(m_paywaySearchPp);

    m_clearSearchAction = new QAction(tr("Clear &Search"), this);
    m_clearSearchAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_K));
    connect(m_clearSearchAction, &QAction::triggered, this, [this] {
        clearExtractKey();
        extractData();
    });
    auto *clearButton = new QPushButton(tr("Clear"), panel);
    clearButton->setObjectName(QStringLiteral("clearSearchButton"));
    clearButton->setToolTip(tr("Show every entry of the month"));
    connect(clearButton, &QPushButton::clicked, m_clearSearchAction, &QAction::trigger);
    layout->addWidget(clearButton);

    // The search follows the typing.
    for (QLineEdit *field : {m_dateSearchTF, m_detailsSearchTF, m_amountMinSearchTF,
                             m_amountMaxSearchTF})
        connect(field, &QLineEdit::textChanged, this, &ListWinController::extractData);
    for (CheckPopUpButton *button : {m_categorySearchPp, m_paywaySearchPp})
        connect(button, &CheckPopUpButton::checksChanged, this, &ListWinController::extractData);
    return panel;
}

QWidget *ListWinController::buildLowerPane()
{
    auto *pane = new QWidget(this);
    auto *layout = new QHBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);

    m_totalsBox = new QGroupBox(tr("This Month"), pane);
    m_totalsBox->setObjectName(QStringLiteral("totalsBox"));
    auto *totals = new QFormLayout(m_totalsBox);
    totals->setLabelAlignment(Qt::AlignLeft);
    m_expendTotalTF = amountLabel(QStringLiteral("expendTotalTF"), m_totalsBox);
    m_incomeTotalTF = amountLabel(QStringLiteral("incomeTotalTF"), m_totalsBox);
    m_balanceTF = amountLabel(QStringLiteral("balanceTF"), m_totalsBox);
    totals->addRow(tr("Spending:"), m_expendTotalTF);
    totals->addRow(tr("Income:"), m_incomeTotalTF);
    totals->addRow(tr("Balance:"), m_balanceTF);

    auto *foundBox = new QGroupBox(tr("Shown Entries"), pane);
    auto *found = new QFormLayout(foundBox);
    m_extractedTotalTF = amountLabel(QStringLiteral("extractedTotalTF"), foundBox);
    m_extractedRateTF = amountLabel(QStringLiteral("extractedRateTF"), foundBox);
    m_extractedBalanceTF = amountLabel(QStringLiteral("extractedBalanceTF"), foundBox);
    found->addRow(tr("Spending:"), m_extractedTotalTF);
    found->addRow(tr("Share of the month:"), m_extractedRateTF);
    found->addRow(tr("Balance:"), m_extractedBalanceTF);

    auto *memoBox = new QGroupBox(tr("Memo"), pane);
    auto *memo = new QVBoxLayout(memoBox);
    m_summaryText = new QPlainTextEdit(memoBox);
    m_summaryText->setObjectName(QStringLiteral("summaryText"));
    m_summaryText->setTabChangesFocus(true);
    m_summaryText->setMinimumHeight(m_summaryText->fontMetrics().height() * 3);
    memo->addWidget(m_summaryText);
    connect(m_summaryText, &QPlainTextEdit::textChanged, &m_summaryTimer,
            qOverload<>(&QTimer::start));

    layout->addWidget(m_totalsBox, 0, Qt::AlignTop);
    layout->addWidget(foundBox, 0, Qt::AlignTop);
    layout->addWidget(memoBox, 1);
    return pane;
}

void ListWinController::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(m_newAction);
    file->addSeparator();
    m_printAction = file->addAction(tr("&Print…"), this, &ListWinController::printPenwick);
    m_printAction->setShortcut(QKeySequence::Print);
    m_exportAction = file->addAction(tr("&Export as PDF…"), this, &ListWinController::exportAsPdf);
    file->addSeparator();
    QAction *close = file->addAction(tr("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence::Close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(m_editAction);
    edit->addAction(m_deleteAction);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->addAction(m_previousAction);
    view->addAction(m_nextAction);
    view->addSeparator();
    view->addAction(m_clearSearchAction);
    view->addSeparator();
    m_tableColumnMenu = view->addMenu(tr("&Columns"));
    m_tableColumnMenu->setObjectName(QStringLiteral("tableColumnMenu"));
    // Every column can be hidden; year and month are, at first, since the
    // heading names them.
    for (int column = 0; column < DataListTableModel::ColumnCount; ++column) {
        QAction *item = m_tableColumnMenu->addAction(
            m_model->headerData(column, Qt::Horizontal).toString());
        item->setCheckable(true);
        item->setChecked(column != DataListTableModel::YearColumn
                         && column != DataListTableModel::MonthColumn);
        item->setData(column);
        connect(item, &QAction::triggered, this, &ListWinController::toggleColumnMenuCheck);
    }
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
    commitSummary();
    std::shared_ptr<DataList> list = m_controller->listForYear(year(), month(), true);
    if (!list)
        return;
    m_currentDataList = std::move(list);
    showSummary();
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
    m_categorySearchPp->replaceItems(m_categoryList);
    m_paywaySearchPp->replaceItems(m_paywayList);
    if (m_currentDataList && m_currentDataList->year() == year()
        && m_currentDataList->month() == month())
        reloadDataList();
    else
        changeDataList();
}

void ListWinController::clearExtractKey()
{
    for (QLineEdit *field : {m_dateSearchTF, m_detailsSearchTF, m_amountMaxSearchTF,
                             m_amountMinSearchTF}) {
        const QSignalBlocker blocker(field);
        field->clear();
    }
    m_categorySearchPp->setStateToAllItem(false);
    m_paywaySearchPp->setStateToAllItem(false);
}

void ListWinController::showDataOfCategory(int index)
{
    clearExtractKey();
    if (index >= 0 && index < m_categoryList.size())
        m_categorySearchPp->setStateWithTagArray({index});
    extractData();
}

void ListWinController::showDataOfPayway(int index)
{
    clearExtractKey();
    if (index >= 0 && index < m_paywayList.size())
        m_paywaySearchPp->setStateWithTagArray({index});
    extractData();
}

bool ListWinController::panelHasKeys() const
{
    return !m_dateSearchTF->text().isEmpty() || !m_detailsSearchTF->text().isEmpty()
        || amountBound(m_amountMaxSearchTF) != 0 || amountBound(m_amountMinSearchTF) != 0
        || m_categorySearchPp->menuIsChecked() || m_paywaySearchPp->menuIsChecked();
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
    ExtractKeyDict keys;
    keys.incomeNumber = int(m_categoryList.size()) - 1;
    if (!m_dateSearchTF->text().isEmpty())
        keys.date = separateDateKeyToArray(m_dateSearchTF->text());
    if (const QList<int> tags = m_categorySearchPp->checkedItemTagArray(); !tags.isEmpty())
        keys.category = tags;
    if (!m_detailsSearchTF->text().isEmpty())
        keys.details = separateStringKeyToArray(m_detailsSearchTF->text());
    if (const int bound = amountBound(m_amountMaxSearchTF); bound != 0)
        keys.amountMax = float(bound);
    if (const int bound = amountBound(m_amountMinSearchTF); bound != 0)
        keys.amountMin = float(bound);
    if (const QList<int> tags = m_paywaySearchPp->checkedItemTagArray(); !tags.isEmpty())
        keys.payway = tags;
    m_currentDataList->setextractKeyDict(keys);
    m_currentDataList->extractList();
}

void ListWinController::reloadData()
{
    const DataList *list = m_currentDataList.get();
    if (!list)
        return;
    const double expend = list->expendTotal();
    const double income = list->incomeTotal();
    m_expendTotalTF->setText(amountText(expend));
    m_incomeTotalTF->setText(amountText(income));
    m_balanceTF->setText(amountText(income - expend));
    m_extractedTotalTF->setText(amountText(list->extractedTotal()));
    // The share is taken of the amounts as shown.
    const double shownExpend = shownAmount(expend);
    const double rate =
        shownExpend != 0 ? shownAmount(list->extractedTotal()) / shownExpend * 100.0 : 0.0;
    m_extractedRateTF->setText(tr("%1 %").arg(QLocale().toString(rate, 'f', 1)));
    m_extractedBalanceTF->setText(amountText(
        list->extractedIncomeTotal() - list->extractedTotal()));

    const QDate previous = QDate(year(), month(), 1).addMonths(-1);
    const auto last = m_controller->listForYear(previous.year(), previous.month(), true);
    const QString balance =
        last ? amountText(last->incomeTotal() - last->expendTotal()) : QString();
    // The translation may place the value itself; otherwise it follows.
    const QString label = QCoreApplication::translate("Localizable", "Balance of last month");
    m_totalsBox->setToolTip(label.contains(u"%1") ? label.arg(balance)
                                                    : label + QStringLiteral(": ") + balance);
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

void ListWinController::showSummary()
{
    m_summaryTimer.stop();
    // A closing-day month shows the memo of the calendar month of its name.
    m_summaryList = m_controller->monthListForYear(year(), month());
    const QSignalBlocker blocker(m_summaryText);
    if (!m_summaryList) {
        m_summaryText->clear();
        m_summaryText->setReadOnly(true);
        return;
    }
    m_summaryText->setPlainText(m_summaryList->summary());
    m_summaryText->setReadOnly(m_summaryList->isReadOnly());
    m_summaryText->setPlaceholderText(
        m_summaryList->isReadOnly() ? tr("This month's file could not be read.")
                                    : tr("Notes on %1 %2")
                                          .arg(QLocale().standaloneMonthName(month()))
                                          .arg(year()));
}

void ListWinController::editSummary()
{
    m_summaryTimer.stop();
    if (!m_summaryList || m_summaryList->isReadOnly())
        return;
    const QString text = m_summaryText->toPlainText();
    if (text == m_summaryList->summary())
        return;
    m_summaryList->setSummary(text);
    m_summaryList->setIsEdited(true);
}

void ListWinController::commitSummary()
{
    editSummary();
    if (m_summaryList && m_summaryList->isEdited())
        m_controller->writeDataListToFile(m_summaryList.get());
}

void ListWinController::saveData()
{
    editSummary();
}

bool ListWinController::isListEditable() const
{
    return m_model->isEditable();
}

void ListWinController::setListEditable(bool editable)
{
    // Checking the action comes back here with nothing left to change.
    m_editAction->setChecked(editable);
    m_deleteAction->setEnabled(editable && !selectedRecords().isEmpty());
    if (editable == isListEditable())
        return;
    m_model->setEditable(editable);
    m_listTable->setEditTriggers(editable ? QAbstractItemView::DoubleClicked
                                                | QAbstractItemView::EditKeyPressed
                                                | QAbstractItemView::SelectedClicked
                                          : QAbstractItemView::NoEditTriggers);
    if (editable)
        statusBar()->showMessage(
            tr("Double-click a cell to change it. A changed month or year moves the entry there."));
    else
        statusBar()->clearMessage();
    m_model->reload();
}

PaymentArray ListWinController::selectedRecords() const
{
    PaymentArray records;
    QModelIndexList rows = m_listTable->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex &row : std::as_const(rows)) {
        if (PaymentDataPtr record = m_model->dataAtIndex(row.row()))
            records.append(record);
    }
    return records;
}

void ListWinController::rememberSelection()
{
    // Another month coming in: nothing to keep.
    if (m_model->dataList() == m_currentDataList.get())
        m_selectionToRestore = selectedRecords();
}

void ListWinController::restoreSelection()
{
    if (!m_sorting)
        m_listTable->horizontalHeader()->setSortIndicatorShown(false);
    if (m_selectionToRestore.isEmpty())
        return;
    QItemSelection selection;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_selectionToRestore.contains(m_model->dataAtIndex(row)))
            selection.select(m_model->index(row, 0),
                             m_model->index(row, DataListTableModel::ColumnCount - 1));
    }
    m_selectionToRestore.clear();
    m_listTable->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

PaymentDataPtr ListWinController::dataForSelectedRow() const
{
    const QModelIndex current = m_listTable->selectionModel()->currentIndex();
    if (!current.isValid() || !m_listTable->selectionModel()->isRowSelected(current.row()))
        return nullptr;
    return m_model->dataAtIndex(current.row());
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
    const PaymentArray records = selectedRecords();
    if (!isListEditable() || records.isEmpty())
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Delete Entries"),
                                tr("Delete %n selected entries?", nullptr, int(records.size())),
                                QMessageBox::Cancel, this);
    box->setObjectName(QStringLiteral("deleteConfirmation"));
    box->setInformativeText(tr("Deleted entries cannot be brought back."));
    QPushButton *remove = box->addButton(tr("Delete"), QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(remove, &QPushButton::clicked, this,
            [this, records] { m_controller->deleteData(records); });
    box->open();
}

void ListWinController::sortByColumn(int column)
{
    m_sorting = true;
    const Qt::SortOrder order = m_model->sortByColumn(column);
    m_sorting = false;
    QHeaderView *header = m_listTable->horizontalHeader();
    header->setSortIndicator(column, order);
    header->setSortIndicatorShown(m_model->rowCount() > 0);
}

void ListWinController::toggleColumnMenuCheck()
{
    resetTableColumn();
    saveColumnMenuStates();
}

void ListWinController::resetTableColumn()
{
    QHeaderView *header = m_listTable->horizontalHeader();
    const QList<QAction *> items = m_tableColumnMenu->actions();
    for (const QAction *item : items) {
        const int column = item->data().toInt();
        const bool hidden = header->isSectionHidden(column);
        if (!hidden && !item->isChecked()) {
            header->hideSection(column);
        } else if (hidden && item->isChecked()) {
            // A column shown again joins at the right end.
            header->showSection(column);
            header->moveSection(header->visualIndex(column), header->count() - 1);
        }
    }
}

void ListWinController::saveColumnMenuStates()
{
    QList<int> states;
    const QList<QAction *> items = m_tableColumnMenu->actions();
    for (const QAction *item : items)
        states.append(item->isChecked() ? 1 : 0);
    Settings settings;
    settings.setColumnMenuStates(states);
    settings.sync();
}

void ListWinController::readColumnMenuStates()
{
    const QList<int> states = Settings().columnMenuStates();
    const QList<QAction *> items = m_tableColumnMenu->actions();
    for (qsizetype i = 0; i < states.size() && i < items.size(); ++i)
        items.at(i)->setChecked(states.at(i) != 0);
    resetTableColumn();
}

QList<int> ListWinController::visibleColumns() const
{
    QList<int> columns;
    const QHeaderView *header = m_listTable->horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int column = header->logicalIndex(visual);
        if (!header->isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

QString ListWinController::searchDescription() const
{
    QStringList parts;
    if (!m_dateSearchTF->text().isEmpty())
        parts.append(tr("days %1").arg(m_dateSearchTF->text()));
    if (!m_detailsSearchTF->text().isEmpty())
        parts.append(tr("words %1").arg(m_detailsSearchTF->text()));
    if (amountBound(m_amountMinSearchTF) != 0)
        parts.append(tr("from %1").arg(m_amountMinSearchTF->text()));
    if (amountBound(m_amountMaxSearchTF) != 0)
        parts.append(tr("up to %1").arg(m_amountMaxSearchTF->text()));
    for (const CheckPopUpButton *button : {m_categorySearchPp, m_paywaySearchPp}) {
        if (button->menuIsChecked())
            parts.append(button->checkedItemTitles().join(QStringLiteral(", ")));
    }
    return parts.join(QStringLiteral("; "));
}

void ListWinController::printList(QPagedPaintDevice *device) const
{
    ListPrintout::Totals totals{{tr("Spending"), m_expendTotalTF->text()},
                                {tr("Income"), m_incomeTotalTF->text()},
                                {tr("Balance"), m_balanceTF->text()}};
    QString note;
    if (panelHasKeys()) {
        note = tr("Entries found by: %1").arg(searchDescription());
        totals.append({tr("Spending of the entries shown"), m_extractedTotalTF->text()});
        totals.append({tr("Share of the month"), m_extractedRateTF->text()});
        totals.append({tr("Balance of the entries shown"), m_extractedBalanceTF->text()});
    }
    ListPrintout(*m_model, visibleColumns(), heading(), note, totals).print(device);
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

void ListWinController::saveWindowState()
{
    Settings settings;
    settings.setSavedLayout(SettingsKeys::ListWindow, saveGeometry());
    settings.setSavedLayout(SettingsKeys::DataListTable, m_listTable->horizontalHeader()->saveState());
    settings.sync();
}

void ListWinController::closeEvent(QCloseEvent *event)
{
    commitSummary();
    saveWindowState();
    QMainWindow::closeEvent(event);
}
