#pragma once

#include "model/PaymentData.h"

#include <QTableView>

class DataList;
class DataListTableModel;
class QMenu;

// The list window's table of entries: columns a menu hides and shows (kept in
// the settings), a click on a title sorts by it, and the rows selected stay
// selected when the month's rows are shown afresh.
class EntryTableView : public QTableView
{
    Q_OBJECT

public:
    EntryTableView(DataListTableModel *model, QWidget *parent = nullptr);

    // The menu of columns, for the window's View menu and the titles'
    // context menu.
    QMenu *columnMenu() const { return m_columnMenu; }
    // The column widths, order and shown columns as last saved.
    void restoreColumns();
    void saveColumns() const;
    // The columns shown, in the order shown.
    QList<int> visibleColumns() const;

    void setEditable(bool editable);
    // The entries of the selected rows, top to bottom.
    PaymentArray selectedRecords() const;
    // The entry of the current row when it is selected.
    PaymentDataPtr currentRecord() const;
    // Makes the entry's row the one current and selected row, scrolled into
    // view; false when no row shows it.
    bool selectRecord(const PaymentDataPtr &record);

private:
    void applyColumnMenu();
    void sortByColumn(int column);
    void rememberSelection();
    void restoreSelection();

    DataListTableModel *m_model;
    QMenu *m_columnMenu;
    // The rows selected before the rows are shown afresh, and of which list.
    PaymentArray m_selectionToRestore;
    const DataList *m_selectionList = nullptr;
    bool m_sorting = false;
};
