#pragma once

#include <QDate>
#include <QWidget>

class QLineEdit;
class QToolButton;

// The date on top of the input window: year, month and day fields and two
// buttons that step it a day at a time. A typed date rolls over as a
// calendar does (day 32 is the next month's first) and stays within the
// years an entry can have.
class InputDateBar : public QWidget
{
    Q_OBJECT

public:
    explicit InputDateBar(int monthWidth, int dayWidth, QWidget *parent = nullptr);

    QDate date() const { return m_date; }
    // Shows the date without announcing it.
    void setDate(const QDate &date);

    // Takes the date typed into the fields (they check it themselves when
    // left).
    void checkDate();

    QLineEdit *yearField() const { return m_yearField; }
    // The last field, behind which the rows follow in the Tab order.
    QLineEdit *dayField() const { return m_dayField; }

signals:
    // The user typed another date.
    void dateEdited(const QDate &date);
    // The user stepped the date by a number of days.
    void stepped(int days);

private:
    void showDate();

    QDate m_date;
    QLineEdit *m_yearField;
    QLineEdit *m_monthField;
    QLineEdit *m_dayField;
};
