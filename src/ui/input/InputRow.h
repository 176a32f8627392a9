#pragma once

#include <QWidget>

#include <optional>

class QAbstractItemModel;

// One row of the input window: the month and day of an entry, its category,
// description, amount and payway. Each control carries the tag
// 10 * row + role (rows count from 1), by which the window finds it; the
// controls are never looked up by their position.
class InputRow : public QWidget
{
    Q_OBJECT

public:
    enum Role { Category = 1, Description, Amount, Payway, Month, Day, Slash };

    // Widths of the fixed columns, shared with the window's column titles so
    // that they line up; the description takes the rest. The pop-ups are as
    // wide as their lists need (setPopUpWidths).
    struct ColumnWidths
    {
        int month;
        int slash;
        int day;
        int amount;
    };
    static ColumnWidths columnWidths(const QWidget *reference);
    // The width of a pop-up button that shows the longest of the items,
    // within sensible bounds.
    static int popUpWidth(const QWidget *reference, const QStringList &items);
    static constexpr int Spacing = 6;

    // The description box of every row shares the one list of remembered
    // descriptions.
    InputRow(int row, QAbstractItemModel *descriptions, QWidget *parent);

    int row() const { return m_row; }
    static int tagFor(int row, Role role) { return 10 * row + role; }
    // The tag of a control of a row; 0 for anything else.
    static int tagOf(const QObject *control);
    QWidget *controlWithTag(int tag) const;
    void setPopUpWidths(int category, int payway);
    // Marks the amount field as one that cannot be booked, saying why in its
    // tool tip; no problem clears the mark.
    void setAmountProblem(const std::optional<QString> &problem);
    const std::optional<QString> &amountProblem() const { return m_amountProblem; }

    // The year of the row's date (its fields show only month and day), so
    // that rows keep their own year when the window's date moves on.
    int year() const { return m_year; }
    void setYear(int year) { m_year = year; }

    // Whether the category and amount were filled in from a remembered
    // description rather than by the user; only those may be replaced when
    // another description is chosen.
    bool categoryFromMemory = false;
    bool amountFromMemory = false;

private:
    int m_row;
    int m_year = 0;
    std::optional<QString> m_amountProblem;
};
