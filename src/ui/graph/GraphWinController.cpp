#include "graph/GraphWinController.h"

#include "budget/BudgetBook.h"
#include "graph/BarGraphView.h"
#include "graph/CircleGraphView.h"
#include "graph/GraphCategoryModel.h"
#include "graph/LedgerChartSource.h"
#include "graph/LineGraphView.h"
#include "graph/MonthStepping.h"
#include "model/MonthKey.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/EntryLimits.h"
#include "model/Notifications.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "widgets/RgbaQColor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QPainter>
#include <QPicture>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>
#include <QSpinBox>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

GraphWinController::GraphWinController(KController *controller, QWidget *parent)
    : QMainWindow(parent)
    , m_controller(controller)
    , m_source(std::make_unique<LedgerChartSource>(controller))
    , m_model(new GraphCategoryModel(this))
{
    setWindowTitle(tr("Charts"));
    setObjectName(QStringLiteral("GraphWindow"));
    buildMenus();

    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(buildToolRow());

    m_listTable = new QTableView;
    m_listTable->setObjectName(QStringLiteral("listTable"));
    m_listTable->setModel(m_model);
    m_listTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_listTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_listTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_listTable->verticalHeader()->hide();
    m_listTable->horizontalHeader()->setSectionResizeMode(GraphCategoryModel::CategoryColumn,
                                                          QHeaderView::Stretch);
    m_listTable->horizontalHeader()->setSectionResizeMode(GraphCategoryModel::AmountColumn,
                                                          QHeaderView::ResizeToContents);
    m_listTable->horizontalHeader()->setSectionResizeMode(GraphCategoryModel::RatioColumn,
                                                          QHeaderView::ResizeToContents);
    connect(m_listTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &GraphWinController::handleTableClick);
    // New lists drop the selection without a word; the chart must not keep
    // highlighting a row that is gone, or is now another category.
    connect(m_model, &QAbstractItemModel::modelReset, this, &GraphWinController::handleTableClick);
    connect(m_listTable, &QTableView::doubleClicked, this,
            &GraphWinController::handleTableDoubleClick);

    m_graphScrollView = new QScrollArea;
    m_graphScrollView->setObjectName(QStringLiteral("graphScrollView"));
    m_graphScrollView->viewport()->installEventFilter(this);

    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->setObjectName(QStringLiteral("graphSplitter"));
    splitter->addWidget(m_listTable);
    splitter->addWidget(m_graphScrollView);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({280, 520});
    layout->addWidget(splitter, 1);
    setCentralWidget(central);

    // The charts that are not on show wait hidden, owned by the window.
    m_circleGraphView = new CircleGraphView(this);
    m_barGraphView = new BarGraphView(this);
    m_lineGraphView = new LineGraphView(this);
    for (PWKGraphView *view : graphViews()) {
        view->hide();
        view->setDataSource(m_source.get());
        connect(view, &PWKGraphView::itemSelected, this, &GraphWinController::selectItem);
        connect(view, &PWKGraphView::itemDoubleClicked, this,
                &GraphWinController::doubleClickItem);
        connect(view, &PWKGraphView::categoryListRequested, this,
                &GraphWinController::categoryListRequested);
    }
    connect(m_model, &GraphCategoryModel::checksChanged, this, [this](const QList<bool> &checks) {
        for (PWKGraphView *view : graphViews())
            view->setSelectedItems(checks);
    });

    auto *notifications = Notifications::instance();
    connect(notifications, &Notifications::dataListHasChanged, this,
            &GraphWinController::scheduleReload);
    connect(notifications, &Notifications::listPreferenceHasUpDated, this,
            &GraphWinController::readListPreference);
    connect(notifications, &Notifications::lastDateHasChanged, this,
            &GraphWinController::reloadDataList);
    connect(m_controller->budgets(), &BudgetBook::budgetsChanged, this,
            &GraphWinController::showBudgetLines);

    const Settings settings;
    const QDate start = MonthStepping::bookingMonth(
        QDate::currentDate(), settings.changeMonthLastDate(), settings.monthLastDate());
    m_stepperValue = MonthKey::of(start.year(), start.month());
    showMonthInFields(m_stepperValue);
    readListPreference();
    showChart(settings.chartSelection());

    resize(820, 520);
    restoreGeometry(settings.savedLayout(SettingsKeys::GraphWindow));
}

GraphWinController::~GraphWinController()
{
    if (isVisible())
        saveGeometrySetting();
}

void GraphWinController::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    QAction *print = file->addAction(tr("&Print…"), this, &GraphWinController::printPenwick);
    print->setShortcut(QKeySequence::Print);
    file->addAction(tr("Export as P&DF…"), this, &GraphWinController::exportAsPdf);
    file->addSeparator();
    QAction *close = file->addAction(tr("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence::Close);
}

QWidget *GraphWinController::buildToolRow()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);

    m_graphPpButton = new QComboBox;
    m_graphPpButton->setObjectName(QStringLiteral("graphPpButton"));
    m_graphPpButton->addItems({tr("Pie chart"), tr("Bar chart"), tr("Line chart")});
    connect(m_graphPpButton, &QComboBox::activated, this,
            [this](int index) { changeGraph(index + 1); });
    layout->addWidget(m_graphPpButton);

    const auto toolButton = [row](const QString &name, const QString &text, const QString &tip) {
        auto *button = new QToolButton(row);
        button->setObjectName(name);
        button->setText(text);
        button->setToolTip(tip);
        button->setAutoRaise(true);
        return button;
    };
    m_deleteBarButton = toolButton(QStringLiteral("deleteBarButton"), QStringLiteral("−"),
                                   tr("Show one month fewer"));
    m_addBarButton = toolButton(QStringLiteral("addBarButton"), QStringLiteral("+"),
                                tr("Show one month more"));
    connect(m_deleteBarButton, &QToolButton::clicked, this,
            [this] { m_barGraphView->deleteBar(); });
    connect(m_addBarButton, &QToolButton::clicked, this, [this] { m_barGraphView->addBar(); });
    layout->addWidget(m_deleteBarButton);
    layout->addWidget(m_addBarButton);
    m_budgetCheck = new QCheckBox(tr("B&udget"), row);
    m_budgetCheck->setObjectName(QStringLiteral("budgetCheck"));
    m_budgetCheck->setToolTip(tr("Draw each category's budget as a dashed line"));
    m_budgetCheck->setChecked(Settings().lineChartShowsBudgets());
    connect(m_budgetCheck, &QCheckBox::toggled, this, [this](bool checked) {
        Settings().setLineChartShowsBudgets(checked);
        showBudgetLines();
    });
    layout->addWidget(m_budgetCheck);
    layout->addStretch(1);

    const auto field = [row](const QString &name, int minimum, int maximum) {
        auto *spin = new QSpinBox(row);
        spin->setObjectName(name);
        spin->setRange(minimum, maximum);
        spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
        spin->setAlignment(Qt::AlignRight);
        return spin;
    };
    m_yearTF = field(QStringLiteral("yearTF"), EntryLimits::FirstYear, EntryLimits::LastYear);
    m_monthTF = field(QStringLiteral("monthTF"), 1, 12);
    // Arrow keys and the wheel step at once; a typed number counts on Return
    // or when the field is left, not at every digit.
    for (QSpinBox *spin : {m_yearTF, m_monthTF}) {
        spin->setKeyboardTracking(false);
        connect(spin, &QSpinBox::valueChanged, this, &GraphWinController::changeDataList);
    }
    auto *yearLabel = new QLabel(tr("&Year"), row);
    yearLabel->setBuddy(m_yearTF);
    auto *monthLabel = new QLabel(tr("&Month"), row);
    monthLabel->setBuddy(m_monthTF);

    auto *previous = toolButton(QStringLiteral("previousMonthButton"), QString(),
                                tr("Previous month"));
    previous->setArrowType(Qt::LeftArrow);
    auto *next = toolButton(QStringLiteral("nextMonthButton"), QString(), tr("Next month"));
    next->setArrowType(Qt::RightArrow);
    connect(previous, &QToolButton::clicked, this, [this] { moveMonth(-1); });
    connect(next, &QToolButton::clicked, this, [this] { moveMonth(1); });

    layout->addWidget(yearLabel);
    layout->addWidget(m_yearTF);
    layout->addWidget(monthLabel);
    layout->addWidget(m_monthTF);
    layout->addWidget(previous);
    layout->addWidget(next);
    return row;
}

int GraphWinController::year() const
{
    return m_stepperValue / 100;
}

int GraphWinController::month() const
{
    return m_stepperValue % 100;
}

void GraphWinController::setTargetYear(int year, int month)
{
    showMonthInFields(MonthKey::of(year, month));
    changeDataList();
}

void GraphWinController::changeDataList()
{
    const int value = MonthKey::of(m_yearTF->value(), m_monthTF->value());
    if (value == m_stepperValue)
        return;
    m_stepperValue = value;
    reloadDataList();
}

void GraphWinController::moveMonth(int step)
{
    const int value = MonthStepping::normalized(m_stepperValue + step);
    if (!EntryLimits::isYearInRange(value / 100))
        return;
    m_stepperValue = value;
    showMonthInFields(m_stepperValue);
    reloadDataList();
}

void GraphWinController::showMonthInFields(int value)
{
    // Both fields at once: the year alone would name another month.
    const QSignalBlocker yearBlocker(m_yearTF);
    const QSignalBlocker monthBlocker(m_monthTF);
    m_yearTF->setValue(value / 100);
    m_monthTF->setValue(value % 100);
}

void GraphWinController::readListPreference()
{
    const StoredLists lists = m_controller->storedLists();
    const QStringList &names = lists.categories;
    QList<QColor> colors;
    for (const RgbaColor &color : lists.colors)
        colors.append(toQColor(color));
    // Every category is drawn, even one the colour list lacks.
    colors.resize(names.size(), QColor(Qt::gray));

    for (PWKGraphView *view : graphViews()) {
        view->setCategoryNames(names);
        view->setColorList(colors);
    }
    m_model->setCategories(names, colors);
    reloadDataList();
}

void GraphWinController::reloadDataList()
{
    m_currentDataList = m_controller->listForYear(year(), month(), true);
    m_model->setDataList(m_currentDataList);
    if (m_currentGraphView)
        m_currentGraphView->setTargetYear(year(), month());
    showBudgetLines();
}

void GraphWinController::scheduleReload()
{
    // A change of many months (a conversion, a month moving its records on
    // load) comes as many notifications: redraw once, after them.
    if (m_reloadPending)
        return;
    m_reloadPending = true;
    QMetaObject::invokeMethod(this, &GraphWinController::reloadData, Qt::QueuedConnection);
}

void GraphWinController::reloadData()
{
    m_reloadPending = false;
    m_model->refresh();
    if (m_currentGraphView)
        m_currentGraphView->updateDataList();
    showBudgetLines();
}

void GraphWinController::showBudgetLines()
{
    QMap<int, QList<double>> lines;
    if (m_budgetCheck->isChecked()) {
        const BudgetBook *book = m_controller->budgets();
        const int income = int(m_controller->categoryList().size()) - 1;
        const auto listOf = [this](int year, int month) {
            return m_controller->listForYear(year, month, true);
        };
        for (int month = 1; month <= 12; ++month) {
            const auto list = m_controller->listForYear(year(), month, true);
            if (!list)
                continue;
            for (const auto &line : book->report(*list, income, listOf).categories) {
                QList<double> &amounts = lines[line.category];
                amounts.resize(12);
                amounts[month - 1] = line.available();
            }
        }
    }
    m_lineGraphView->setBudgetLines(lines);
}

std::array<PWKGraphView *, 3> GraphWinController::graphViews() const
{
    return {m_circleGraphView, m_barGraphView, m_lineGraphView};
}

void GraphWinController::changeGraph(int chart)
{
    if (chart >= PieChart && chart <= LineChart)
        showChart(chart);
    Settings().setChartSelection(chart);
}

void GraphWinController::showChart(int chart)
{
    // Anything but the bars or the lines is the pie.
    if (chart != BarChart && chart != LineChart)
        chart = PieChart;
    setCurrentGraphView(graphViews().at(std::size_t(chart - PieChart)));
    const QSignalBlocker blocker(m_graphPpButton);
    m_graphPpButton->setCurrentIndex(chart - PieChart);
}

void GraphWinController::setCurrentGraphView(PWKGraphView *view)
{
    if (m_currentGraphView != view) {
        if (QWidget *previous = m_graphScrollView->takeWidget()) {
            previous->hide();
            previous->setParent(this);
        }
        m_currentGraphView = view;
        m_graphScrollView->setWidget(view);
        view->show();
    }
    view->setSelectedNumber(selectedRow());
    view->fitToPreferredSize();
    const bool bars = view == m_barGraphView;
    m_addBarButton->setVisible(bars);
    m_deleteBarButton->setVisible(bars);
    m_budgetCheck->setVisible(view == m_lineGraphView);
    reloadDataList();
}

bool GraphWinController::eventFilter(QObject *watched, QEvent *event)
{
    // The charts follow the size of the area they are shown in.
    if (event->type() == QEvent::Resize && m_currentGraphView
        && watched == m_graphScrollView->viewport())
        m_currentGraphView->fitToPreferredSize();
    return QMainWindow::eventFilter(watched, event);
}

int GraphWinController::selectedRow() const
{
    const QModelIndexList rows = m_listTable->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void GraphWinController::handleTableClick()
{
    if (m_currentGraphView)
        m_currentGraphView->setSelectedNumber(selectedRow());
}

void GraphWinController::handleTableDoubleClick()
{
    emit categoryListRequested(selectedRow(), year(), month());
}

void GraphWinController::selectItem(int category)
{
    if (category < 0 || category >= m_model->rowCount())
        return;
    m_listTable->selectRow(category);
    handleTableClick();
}

void GraphWinController::doubleClickItem(int category)
{
    if (category < 0 || category >= m_model->rowCount())
        return;
    m_listTable->selectRow(category);
    handleTableDoubleClick();
}

void GraphWinController::printPenwick()
{
    if (!m_printer)
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    auto *dialog = new QPrintDialog(m_printer.get(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, qOverload<QPrinter *>(&QPrintDialog::accepted), this,
            [this](QPrinter *printer) { printTo(*printer); });
    dialog->open();
}

void GraphWinController::exportAsPdf()
{
    const QString name =
        tr("Chart %1-%2.pdf").arg(year()).arg(month(), 2, 10, QLatin1Char('0'));
    auto *dialog = new QFileDialog(this, tr("Export as PDF"), name, tr("PDF files (*.pdf)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &path) { exportPdf(path); });
    dialog->open();
}

bool GraphWinController::exportPdf(const QString &path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageOrientation(QPageLayout::Landscape);
    return printTo(printer);
}

bool GraphWinController::printTo(QPrinter &printer)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    // A heading naming the month, then table and chart as the window shows
    // them, scaled to fit the page.
    QWidget *content = m_listTable->parentWidget();
    const QString shownMonth = QLocale().toString(
        QDate(year(), month(), 1), tr("MMMM yyyy", "date format of the printed heading"));
    const QString heading = tr("%1 — %2", "printed heading: month, chart")
                                .arg(shownMonth, m_graphPpButton->currentText());
    QFont headingFont = font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.4);
    headingFont.setBold(true);
    painter.setFont(headingFont);
    const QRectF page(0, 0, printer.width(), printer.height());
    QRectF headingRect;
    painter.drawText(page, Qt::AlignLeft | Qt::AlignTop, heading, &headingRect);

    const double top = headingRect.height() * 1.5;
    const double scale = std::min(page.width() / content->width(),
                                  (page.height() - top) / content->height());
    // Widgets rendered straight onto a printer become one large bitmap;
    // recorded as a picture first, they stay lines and text.
    QPicture picture;
    QPainter recorder(&picture);
    content->render(&recorder, QPoint(), QRegion(), QWidget::DrawChildren);
    recorder.end();
    // A picture plays back scaled by the printer's resolution over its own.
    const double playback = double(printer.logicalDpiX()) / picture.logicalDpiX();
    painter.translate(0, top);
    painter.scale(scale / playback, scale / playback);
    painter.drawPicture(0, 0, picture);
    return painter.end();
}

void GraphWinController::hideEvent(QHideEvent *event)
{
    saveGeometrySetting();
    QMainWindow::hideEvent(event);
}

void GraphWinController::saveGeometrySetting()
{
    Settings().setSavedLayout(SettingsKeys::GraphWindow, saveGeometry());
}
