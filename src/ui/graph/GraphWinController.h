#pragma once

#include <QMainWindow>

#include <array>
#include <memory>

class BarGraphView;
class CircleGraphView;
class DataList;
class GraphCategoryModel;
class KController;
class LedgerChartSource;
class LineGraphView;
class PWKGraphView;
class QCheckBox;
class QComboBox;
class QPrinter;
class QScrollArea;
class QSpinBox;
class QTableView;
class QToolButton;

// The graph window: a pie, bar or line chart of the month on show beside the
// category table, whose check boxes choose what the charts include and whose
// selection highlights a category. The month is stepped, typed, or set by the
// application; with a closing day in force the months are closing-day months.
// A double click on a category asks, by signal, for its list of entries.
class GraphWinController : public QMainWindow
{
    Q_OBJECT

public:
    enum Chart { PieChart = 1, BarChart = 2, LineChart = 3 };

    // The window takes its months from the controller, which must outlive it.
    explicit GraphWinController(KController *controller, QWidget *parent = nullptr);
    ~GraphWinController() override;

    int year() const;
    int month() const;
    PWKGraphView *currentGraphView() const { return m_currentGraphView; }

    // Shows that month (the application's way to follow the list window).
    void setTargetYear(int year, int month);
    // Reads the category names and colours again and checks every category
    // but the last (income).
    void readListPreference();
    // Fetches the month on show again (the closing day may have changed).
    void reloadDataList();
    // Redraws table and chart from the month lists as they are now.
    void reloadData();

    // Shows 1 the pie, 2 the bars, 3 the lines, and remembers the choice.
    void changeGraph(int chart);
    // Steps one month forward (+1) or back (-1).
    void moveMonth(int step);

    // Highlights the category (a click on it in a chart).
    void selectItem(int category);
    // Highlights the category and asks for its entries of the month on show.
    void doubleClickItem(int category);

    // Prints table and chart through the print dialog.
    void printPenwick();
    // Asks for a file name, then writes table and chart as a PDF file.
    void exportAsPdf();
    // Writes table and chart as a PDF file; false when it could not be made.
    bool exportPdf(const QString &path);

signals:
    // The entries of a category (-1: all of them) of a month are wanted.
    void categoryListRequested(int category, int year, int month);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildMenus();
    QWidget *buildToolRow();
    std::array<PWKGraphView *, 3> graphViews() const;
    // Shows the chart without remembering the choice.
    void showChart(int chart);
    void setCurrentGraphView(PWKGraphView *view);
    void changeDataList();
    void showMonthInFields(int value);
    void scheduleReload();
    void handleTableClick();
    void handleTableDoubleClick();
    int selectedRow() const;
    bool printTo(QPrinter &printer);
    void saveGeometrySetting();
    // The budgets of the year on show for the line chart, when asked for.
    void showBudgetLines();

    KController *m_controller;
    std::unique_ptr<LedgerChartSource> m_source;
    std::unique_ptr<QPrinter> m_printer;
    std::shared_ptr<DataList> m_currentDataList;
    GraphCategoryModel *m_model;

    QTableView *m_listTable;
    QSpinBox *m_yearTF;
    QSpinBox *m_monthTF;
    QComboBox *m_graphPpButton;
    QToolButton *m_addBarButton;
    QToolButton *m_deleteBarButton;
    QCheckBox *m_budgetCheck;
    QScrollArea *m_graphScrollView;
    CircleGraphView *m_circleGraphView;
    BarGraphView *m_barGraphView;
    LineGraphView *m_lineGraphView;
    PWKGraphView *m_currentGraphView = nullptr;

    // year * 100 + month of the month on show.
    int m_stepperValue = 0;
    bool m_reloadPending = false;
};
