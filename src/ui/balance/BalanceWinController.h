#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class DataList;
class KController;
class QColor;
class QFormLayout;
class QGroupBox;
class QLabel;
class QScrollArea;

// A narrow column of boxes, one per month, each with the month's spending,
// income and balance: the twelve months before a reference month, the latest
// on top. The application passes the list window's month, or next month when
// there is no list window, and passes it again whenever the list window
// moves, so the column ends just before the month the user looks at.
class BalanceWinController : public QWidget
{
    Q_OBJECT

public:
    explicit BalanceWinController(KController *controller, QWidget *parent = nullptr);
    ~BalanceWinController() override;

    // Fills the boxes with the months before month of year. Month 13 stands
    // for January of the next year, so that "next month" needs no care in
    // December.
    void showDataOfYear(int year, int month);

    struct YearMonth
    {
        int year;
        int month;
        friend bool operator==(const YearMonth &, const YearMonth &) = default;
    };
    // The month offset months before month of year. The year is stepped back
    // once at most, which every offset from 1 to 12 needs.
    static YearMonth monthBefore(int year, int month, int offset);

protected:
    void hideEvent(QHideEvent *event) override;
    // A new theme gives deficits a red that reads on it.
    void changeEvent(QEvent *event) override;

private:
    struct Box
    {
        int offset;
        QGroupBox *box;
        QLabel *expense;
        QLabel *income;
        QLabel *balance;
        // What all spending may take, and what is left of it; shown when
        // there are budgets.
        QFormLayout *form;
        QLabel *budget;
        QLabel *left;
        std::shared_ptr<DataList> list;
    };

    void setDataToBox(Box &box);
    void showBudget(Box &box, const QColor &red);
    void dataListHasChanged(DataList *list);

    KController *m_controller;
    QScrollArea *m_scrollView;
    QList<Box> m_boxes;
    int m_year = 0;
    int m_month = 0;
};
