#include "recurring/ScheduleDialog.h"

#include "entry/EntryCheck.h"
#include "model/NumberValue.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace {
enum Ends { Never, OnDate, AfterCount };

QDateEdit *dateEdit(const QDate &date, QWidget *parent)
{
    auto *edit = new QDateEdit(date, parent);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
    return edit;
}

// A row of fields with their label pointing at the first.
QWidget *row(QWidget *parent, const QList<QWidget *> &fields)
{
    auto *box = new QWidget(parent);
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *field : fields)
        layout->addWidget(field);
    layout->addStretch(1);
    box->setFocusProxy(fields.constFirst());
    return box;
}
} // namespace

ScheduleDialog::ScheduleDialog(const Schedule &schedule, const QStringList &categories,
                               const QStringList &payways, QWidget *parent)
    : QDialog(parent)
    , m_original(schedule)
{
    setWindowTitle(schedule.details.isEmpty() ? tr("New Schedule") : tr("Schedule"));
    auto *form = new QFormLayout;

    m_details = new QLineEdit(schedule.details, this);
    m_details->setObjectName(QStringLiteral("details"));
    m_category = new QComboBox(this);
    m_category->addItems(categories);
    m_category->setCurrentIndex(schedule.category);
    m_amount = new QLineEdit(schedule.amount, this);
    m_amount->setObjectName(QStringLiteral("amount"));
    m_payway = new QComboBox(this);
    m_payway->addItems(payways);
    m_payway->setCurrentIndex(schedule.payway);
    form->addRow(tr("&Details:"), m_details);
    form->addRow(tr("&Category:"), m_category);
    form->addRow(tr("&Amount:"), m_amount);
    form->addRow(tr("&Payway:"), m_payway);

    m_interval = new QSpinBox(this);
    m_interval->setObjectName(QStringLiteral("interval"));
    m_interval->setRange(1, 99);
    m_interval->setValue(std::max(1, schedule.interval));
    m_every = new QComboBox(this);
    m_every->addItems({tr("months"), tr("weeks"), tr("years")});
    m_every->setCurrentIndex(int(schedule.every));
    form->addRow(tr("&Every:"), row(this, {m_interval, m_every}));

    m_month = new QComboBox(this);
    for (int month = 1; month <= 12; ++month)
        m_month->addItem(QLocale().standaloneMonthName(month));
    m_month->setCurrentIndex(std::clamp(schedule.month, 1, 12) - 1);
    m_day = new QSpinBox(this);
    m_day->setObjectName(QStringLiteral("day"));
    m_day->setRange(1, 31);
    m_day->setValue(schedule.every == Schedule::Every::Weeks ? 1 : std::clamp(schedule.day, 1, 31));
    m_weekday = new QComboBox(this);
    for (int day = 1; day <= 7; ++day)
        m_weekday->addItem(QLocale().dayName(day));
    m_weekday->setCurrentIndex(schedule.every == Schedule::Every::Weeks
                                   ? std::clamp(schedule.day, 1, 7) - 1
                                   : 0);
    auto *onRow = row(this, {m_month, m_day, m_weekday});
    form->addRow(tr("&On:"), onRow);

    m_start = dateEdit(schedule.start, this);
    m_start->setObjectName(QStringLiteral("start"));
    form->addRow(tr("&Starts:"), m_start);
    m_ends = new QComboBox(this);
    m_ends->setObjectName(QStringLiteral("ends"));
    m_ends->addItems({tr("Never"), tr("On"), tr("After")});
    m_end = dateEdit(schedule.end.isValid() ? schedule.end : schedule.start.addYears(1), this);
    m_end->setObjectName(QStringLiteral("end"));
    m_count = new QSpinBox(this);
    m_count->setRange(1, 9999);
    m_count->setSuffix(tr(" times"));
    m_count->setValue(schedule.count.value_or(12));
    m_ends->setCurrentIndex(schedule.end.isValid() ? OnDate : schedule.count ? AfterCount : Never);
    form->addRow(tr("E&nds:"), row(this, {m_ends, m_end, m_count}));

    m_automatic = new QRadioButton(tr("Book &automatically"), this);
    m_askFirst = new QRadioButton(tr("Ask &first"), this);
    (schedule.mode == Schedule::Mode::AskFirst ? m_askFirst : m_automatic)->setChecked(true);
    auto *modes = new QVBoxLayout;
    modes->addWidget(m_automatic);
    modes->addWidget(m_askFirst);
    form->addRow(tr("Booking:"), modes);

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setWordWrap(true);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] {
        if (!problem())
            accept();
    });
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_status);
    layout->addStretch(1);
    layout->addWidget(m_buttons);
    // Room for the next date in words on one or two lines.
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);

    for (QComboBox *box : {m_every, m_ends})
        connect(box, &QComboBox::currentIndexChanged, this, &ScheduleDialog::showRuleFields);
    for (QComboBox *box : {m_month, m_weekday, m_category, m_payway})
        connect(box, &QComboBox::currentIndexChanged, this, &ScheduleDialog::check);
    for (QSpinBox *box : {m_interval, m_day, m_count})
        connect(box, &QSpinBox::valueChanged, this, &ScheduleDialog::check);
    for (QDateEdit *edit : {m_start, m_end})
        connect(edit, &QDateEdit::dateChanged, this, &ScheduleDialog::check);
    connect(m_amount, &QLineEdit::textChanged, this, &ScheduleDialog::check);
    connect(m_automatic, &QRadioButton::toggled, this, &ScheduleDialog::check);
    showRuleFields();
}

void ScheduleDialog::showRuleFields()
{
    const auto every = Schedule::Every(m_every->currentIndex());
    m_month->setVisible(every == Schedule::Every::Years);
    m_day->setVisible(every != Schedule::Every::Weeks);
    m_weekday->setVisible(every == Schedule::Every::Weeks);
    m_end->setVisible(m_ends->currentIndex() == OnDate);
    m_count->setVisible(m_ends->currentIndex() == AfterCount);
    check();
}

Schedule ScheduleDialog::schedule() const
{
    Schedule s = m_original;
    s.details = m_details->text();
    s.category = m_category->currentIndex();
    s.amount = m_amount->text().trimmed();
    s.payway = m_payway->currentIndex();
    s.every = Schedule::Every(m_every->currentIndex());
    s.interval = m_interval->value();
    s.day = s.every == Schedule::Every::Weeks ? m_weekday->currentIndex() + 1 : m_day->value();
    s.month = m_month->currentIndex() + 1;
    s.start = m_start->date();
    s.end = m_ends->currentIndex() == OnDate ? m_end->date() : QDate();
    s.count = m_ends->currentIndex() == AfterCount ? std::optional<int>(m_count->value())
                                                   : std::nullopt;
    s.mode = m_askFirst->isChecked() ? Schedule::Mode::AskFirst : Schedule::Mode::Automatic;
    return s;
}

std::optional<QString> ScheduleDialog::problem() const
{
    const Schedule s = schedule();
    if (const auto problem = s.problem())
        return problem;
    if (s.amount.isEmpty())
        return tr("Give the amount to book.");
    return EntryCheck::amountProblem(s.amountValue());
}

void ScheduleDialog::check()
{
    const std::optional<QString> reason = problem();
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(!reason);
    if (reason) {
        m_status->setText(*reason);
        return;
    }
    const Schedule s = schedule();
    const QDate next = s.nextDate();
    m_status->setText(next.isValid()
                          ? tr("%1; next on %2, at %3.")
                                .arg(s.ruleText(), QLocale().toString(next, QLocale::LongFormat),
                                     amountText(s.amountValue()))
                          : tr("%1; every date of it has been booked.").arg(s.ruleText()));
}
