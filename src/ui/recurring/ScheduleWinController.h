#pragma once

#include <QWidget>

class KController;
class QLabel;
class QPushButton;
class QTableView;
class ScheduleBook;
class ScheduleListModel;
struct Schedule;

// The Schedules window: every schedule with its next date, and Add, Edit and
// Remove. Changes go to the book, which writes them at once; what the book
// refuses is told with its reason.
class ScheduleWinController : public QWidget
{
    Q_OBJECT

public:
    ScheduleWinController(ScheduleBook *book, KController *ledger, QWidget *parent = nullptr);
    ~ScheduleWinController() override;

    // Opens the dialog on the schedule, a new one (added on OK) or one of
    // the book's (changed on OK).
    void editSchedule(const Schedule &schedule, bool isNew);

public slots:
    void addSchedule();
    void editSelected();
    void removeSelected();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void updateState();
    int selectedRow() const;

    ScheduleBook *m_book;
    KController *m_ledger;
    ScheduleListModel *m_model;
    QTableView *m_table;
    QLabel *m_problem;
    QPushButton *m_addButton;
    QPushButton *m_editButton;
    QPushButton *m_removeButton;
};
