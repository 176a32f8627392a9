#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

// The questions and reports of the input window, each a window-modal sheet
// that deletes itself once answered. An answer arrives through the callback;
// Escape gives the cautious one.
namespace InputSheets {

// A row holds data but no category: book the rest without it, or go back and
// select one.
void askToBookWithoutCategory(QWidget *window, std::function<void(bool book)> answer);

// An amount cannot be booked; done once the user has read why.
void tellAmountCannotBeBooked(QWidget *window, int row, const QString &reason,
                              std::function<void()> done);

// Rows fall into years far from today: book anyway, or change the year.
void askToBookIntoYears(QWidget *window, QList<int> years, std::function<void(bool book)> answer);

enum class QuitChoice { BookAndQuit, QuitWithoutBooking, Cancel };
// Rows are typed and the program is asked to quit.
void askBeforeQuit(QWidget *window, std::function<void(QuitChoice)> answer);

// Some entries stayed in the window; why, month by month.
void tellNotBooked(QWidget *window, const QStringList &reasons);

} // namespace InputSheets
