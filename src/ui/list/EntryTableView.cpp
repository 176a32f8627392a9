#include "list/EntryTableView.h"

#include "list/DataListTableModel.h"
#include "list/ListItemDelegate.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

#include <QHeaderView>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace {

// The table pane never gets lower than this.
constexpr int kMinimumHeight = 130;

} // namespace

EntryTableView::EntryTableView(DataListTableModel *model, QWidget *parent)
    : QTableView(parent)
    , m_model(model)
    , m_columnMenu(new QMenu(tr("&Columns"), this))
{
    setObjectName(QStringLiteral("listTable"));
    setModel(m_model);
    setItemDelegate(new ListItemDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setMinimumHeight(kMinimumHeight);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);

    QHeaderView *header = horizontalHeader();
    header->setSectionsMovable(true);
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(DataListTableModel::DetailsColumn, QHeaderView::Stretch);
    const int digit = fontMetrics().horizontalAdvance(u'0');
    header->resizeSection(DataListTableModel::YearColumn, digit * 8);
    header->resizeSection(DataListTableModel::MonthColumn, digit * 8);
    header->resizeSection(DataListTableModel::DateColumn, digit * 7);
    header->resizeSection(DataListTableModel::CategoryColumn, digit * 18);
    header->resizeSection(DataListTableModel::AmountColumn, digit * 14);
    header->resizeSection(DataListTableModel::PaywayColumn, digit * 18);
    connect(header, &QHeaderView::sectionClicked, this, &EntryTableView::sortByColumn);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &pos) { m_columnMenu->popup(header->mapToGlobal(pos)); });

    m_columnMenu->setObjectName(QStringLiteral("tableColumnMenu"));
    // Every column can be hidden; year and month are, at first, since the
    // heading names them.
    for (int column = 0; column < DataListTableModel::ColumnCount; ++column) {
        QAction *item = m_columnMenu->addAction(m_model->headerData(column, Qt::Horizontal).toString());
        item->setCheckable(true);
        item->setChecked(column != DataListTableModel::YearColumn
                         && column != DataListTableModel::MonthColumn);
        item->setData(column);
        connect(item, &QAction::triggered, this, [this] {
            applyColumnMenu();
            saveColumns();
        });
    }

    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this,
            &EntryTableView::rememberSelection);
    connect(m_model, &QAbstractItemModel::modelReset, this, &EntryTableView::restoreSelection);
}

void EntryTableView::restoreColumns()
{
    const Settings settings;
    horizontalHeader()->restoreState(settings.savedLayout(SettingsKeys::DataListTable));
    const QList<int> states = settings.columnMenuStates();
    const QList<QAction *> items = m_columnMenu->actions();
    for (qsizetype i = 0; i < states.size() && i < items.size(); ++i)
        items.at(i)->setChecked(states.at(i) != 0);
    applyColumnMenu();
}

void EntryTableView::saveColumns() const
{
    QList<int> states;
    const QList<QAction *> items = m_columnMenu->actions();
    for (const QAction *item : items)
        states.append(item->isChecked() ? 1 : 0);
    Settings settings;
    settings.setColumnMenuStates(states);
    settings.setSavedLayout(SettingsKeys::DataListTable, horizontalHeader()->saveState());
    settings.sync();
}

void EntryTableView::applyColumnMenu()
{
    QHeaderView *header = horizontalHeader();
    const QList<QAction *> items = m_columnMenu->actions();
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

QList<int> EntryTableView::visibleColumns() const
{
    QList<int> columns;
    const QHeaderView *header = horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int column = header->logicalIndex(visual);
        if (!header->isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

void EntryTableView::setEditable(bool editable)
{
    setEditTriggers(editable ? QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                                   | QAbstractItemView::SelectedClicked
                             : QAbstractItemView::NoEditTriggers);
}

PaymentArray EntryTableView::selectedRecords() const
{
    PaymentArray records;
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex &row : std::as_const(rows)) {
        if (PaymentDataPtr record = m_model->dataAtIndex(row.row()))
            records.append(record);
    }
    return records;
}

PaymentDataPtr EntryTableView::currentRecord() const
{
    const QModelIndex current = selectionModel()->currentIndex();
    if (!current.isValid() || !selectionModel()->isRowSelected(current.row()))
        return nullptr;
    return m_model->dataAtIndex(current.row());
}

bool EntryTableView::selectRecord(const PaymentDataPtr &record)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->dataAtIndex(row) == record) {
            selectionModel()->setCurrentIndex(m_model->index(row, 0),
                                              QItemSelectionModel::ClearAndSelect
                                                  | QItemSelectionModel::Rows);
            scrollTo(m_model->index(row, 0));
            return true;
        }
    }
    return false;
}

void EntryTableView::sortByColumn(int column)
{
    m_sorting = true;
    const Qt::SortOrder order = m_model->sortByColumn(column);
    m_sorting = false;
    horizontalHeader()->setSortIndicator(column, order);
    horizontalHeader()->setSortIndicatorShown(m_model->rowCount() > 0);
}

void EntryTableView::rememberSelection()
{
    m_selectionToRestore = selectedRecords();
    m_selectionList = m_model->dataList();
}

void EntryTableView::restoreSelection()
{
    if (!m_sorting)
        horizontalHeader()->setSortIndicatorShown(false);
    // Another month came in: nothing to keep.
    const PaymentArray kept = std::exchange(m_selectionToRestore, {});
    if (kept.isEmpty() || m_model->dataList() != m_selectionList)
        return;
    QItemSelection selection;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (kept.contains(m_model->dataAtIndex(row)))
            selection.select(m_model->index(row, 0),
                             m_model->index(row, DataListTableModel::ColumnCount - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}
