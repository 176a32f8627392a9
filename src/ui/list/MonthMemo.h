#pragma once

#include <QGroupBox>
#include <QTimer>

#include <memory>

class KController;
class MonthDataList;
class QPlainTextEdit;

// The memo of the month a list window shows. What is typed goes to its month
// shortly after typing pauses, and is written when the month changes, the
// window closes, or the program saves.
class MonthMemo : public QGroupBox
{
    Q_OBJECT

public:
    MonthMemo(KController *controller, QWidget *parent = nullptr);

    // Writes the memo shown, then shows that of the calendar month given
    // (a closing-day month shows the memo of the month of its name).
    void showMonth(int year, int month);
    // Hands the text typed to its month.
    void edit();
    // edit, then makes the month's change durable at once.
    void commit();

private:
    KController *m_controller;
    std::shared_ptr<MonthDataList> m_list;
    QPlainTextEdit *m_text;
    QTimer m_timer;
};
