#pragma once

#include "recurring/Schedule.h"

#include <QDialog>

#include <optional>

class QComboBox;
class QDateEdit;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

// Adding or changing a schedule: the entry, the rule, its start and end,
// and whether it books by itself. A rule that can give no date, or an amount
// that cannot be booked, is refused with the reason under the fields, and OK
// stays off until it is mended.
class ScheduleDialog : public QDialog
{
    Q_OBJECT

public:
    ScheduleDialog(const Schedule &schedule, const QStringList &categories,
                   const QStringList &payways, QWidget *parent = nullptr);

    // The schedule as the fields have it; the id and the progress are those
    // it was opened with.
    Schedule schedule() const;
    // Why the fields cannot be taken; nothing when they can.
    std::optional<QString> problem() const;

private:
    void showRuleFields();
    void check();

    Schedule m_original;
    QLineEdit *m_details;
    QComboBox *m_category;
    QLineEdit *m_amount;
    QComboBox *m_payway;
    QSpinBox *m_interval;
    QComboBox *m_every;
    QComboBox *m_month;
    QSpinBox *m_day;
    QComboBox *m_weekday;
    QDateEdit *m_start;
    QComboBox *m_ends;
    QDateEdit *m_end;
    QSpinBox *m_count;
    QRadioButton *m_automatic;
    QRadioButton *m_askFirst;
    QLabel *m_status;
    QDialogButtonBox *m_buttons;
};
