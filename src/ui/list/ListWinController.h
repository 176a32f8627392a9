#pragma once

#include "model/PaymentData.h"

#include <QMainWindow>

#include <memory>
#include <optional>

class BudgetPane;
class DataList;
class DataListTableModel;
class EntryTableView;
class KController;
class ListSearchPanel;
class MonthMemo;
class MonthTotalsPane;
class QAction;
class QLabel;
class QPagedPaintDevice;
class QPrinter;
class QSpinBox;
class SavableSplitView;

// The list window: one month's entries as a table with the month's totals,
// the balance carried from the month before (the totals' tool tip), a memo,
// and a search panel whose keys follow the user from month to month. In edit
// mode cells change in place; a changed year or month moves the entry to
// that month. It reads and changes data only through the controller and the
// list it is given, and redraws when the lists announce a change.
class ListWinController : public QMainWindow
{
    Q_OBJECT

public:
    explicit ListWinController(KController *controller, QWidget *parent = nullptr);
    ~ListWinController() override;

    // The month shown.
    int year() const;
    int month() const;
    DataList *currentDataList() const { return m_currentDataList.get(); }

    // Shows that month; the search keys stay.
    void showListOfYear(int year, int month);
    // Steps by whole months, across years.
    void moveMonth(int months);

    // Empties the search panel without searching again.
    void clearExtractKey();
    // Shows only the entries of one category (or payway); an index out of
    // range shows them all.
    void showDataOfCategory(int index);
    void showDataOfPayway(int index);

    // Hands the memo being typed to its month, before the months are saved.
    void saveData();

    PaymentDataPtr dataForSelectedRow() const;
    // Selects the entry's row; false when the month shown has no such row.
    bool selectData(const PaymentDataPtr &record);
    PaymentDataPtr dataAtIndex(int row) const;

    bool isListEditable() const;
    void setListEditable(bool editable);

    // Renders the month as printed into a PDF file; false when it could not
    // be written.
    bool exportPdf(const QString &path);
    // What File > Export as CSV writes.
    enum class CsvScope { Month, Year, SearchResult, All };
    // The entries of the scope as CSV, with the reason when a month of it
    // cannot be read.
    std::optional<QByteArray> csvText(CsvScope scope, QString *error = nullptr) const;
    // Asks for a file name, then writes the scope's entries as CSV.
    void exportAsCsv(CsvScope scope);

public slots:
    // Builds the search keys from the panel, applies them and redraws.
    void extractData();
    // Asks for a printer, then prints the month.
    void printPenwick();
    // Asks for a file name, then exports the month as a PDF.
    void exportAsPdf();
    // Asks to open the input window on the shown month and the selected
    // entry's day (day 1 without a selection).
    void makeNewData();
    // Asks, then deletes the entries of the selected rows.
    void deleteData();

signals:
    // The user wants to book new entries dated so.
    void inputWindowRequested(int year, int month, int date);
    // The user wants to edit the budgets of the month shown.
    void budgetsRequested();
    // The user wants the entry to come back as a schedule.
    void makeRecurringRequested(const PaymentDataPtr &record);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // The months that could not be written, in the status bar until they are.
    void showUnsavedMonths();

    void buildWindow();
    QWidget *buildMonthBar();
    QWidget *buildSearchBar();
    void buildMenus();

    // The month of the fields against the list shown: reload on a change.
    void changeDataList();
    void reloadDataList();
    void readListPreference();
    // Redraws the totals, the rate, the balances and last month's balance.
    void reloadData();
    void showBudgets();
    // Stores the panel's keys in the shown list and filters it.
    void applyPanelKeys();
    void monthFieldChanged(int month);
    void setFields(int year, int month);
    void updateHeading();
    QString heading() const;

    void printList(QPagedPaintDevice *device) const;
    void saveWindowState();

    KController *m_controller;
    std::shared_ptr<DataList> m_currentDataList;
    QStringList m_categoryList;
    QStringList m_paywayList;

    QSpinBox *m_yearTF = nullptr;
    QSpinBox *m_monthTF = nullptr;
    QLabel *m_headingLabel = nullptr;
    EntryTableView *m_listTable = nullptr;
    DataListTableModel *m_model = nullptr;
    ListSearchPanel *m_searchPanel = nullptr;
    MonthTotalsPane *m_totalsPane = nullptr;
    BudgetPane *m_budgetPane = nullptr;
    MonthMemo *m_memo = nullptr;
    SavableSplitView *m_splitView = nullptr;
    QAction *m_editAction = nullptr;
    QAction *m_newAction = nullptr;
    QAction *m_deleteAction = nullptr;
    QAction *m_makeRecurringAction = nullptr;
    QAction *m_previousAction = nullptr;
    QAction *m_nextAction = nullptr;
    QAction *m_printAction = nullptr;
    QAction *m_exportAction = nullptr;
    QAction *m_clearSearchAction = nullptr;

    // The print settings, kept from one print to the next.
    std::unique_ptr<QPrinter> m_printer;
    QLabel *m_unsavedLabel = nullptr;
};
