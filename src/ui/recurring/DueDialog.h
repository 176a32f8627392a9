#pragma once

#include "recurring/ScheduleBook.h"

#include <QDialog>

class QLabel;
class QTableWidget;

// The occurrences of ask-first schedules that are due, in one list: each
// ticked one is booked as its row stands (every field can be changed
// first), each one unticked is skipped. Later leaves them all due, to be
// asked about again.
class DueDialog : public QDialog
{
    Q_OBJECT

public:
    enum Column { Book, Date, Details, Category, Amount, Payway, ColumnCount };

    DueDialog(const QList<ScheduleBook::Occurrence> &occurrences, const QStringList &categories,
              const QStringList &payways, QWidget *parent = nullptr);

    // Every occurrence with the entry to book, or none when skipped.
    QList<ScheduleBook::Occurrence> answers() const;

signals:
    // The user decided; the dialog closes once the answers are booked.
    void answered(const QList<ScheduleBook::Occurrence> &answers);

public slots:
    // Shows why the answers could not be booked; the dialog stays.
    void refuse(const QString &reason);

private:
    void book();

    QList<ScheduleBook::Occurrence> m_occurrences;
    QTableWidget *m_table;
    QLabel *m_status;
};
