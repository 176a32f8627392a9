#include "list/MonthMemo.h"

#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"

#include <QLocale>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

// A pause in typing this long makes what was typed durable.
constexpr int kDelayMs = 300;

} // namespace

MonthMemo::MonthMemo(KController *controller, QWidget *parent)
    : QGroupBox(tr("Memo"), parent)
    , m_controller(controller)
{
    auto *layout = new QVBoxLayout(this);
    m_text = new QPlainTextEdit(this);
    m_text->setObjectName(QStringLiteral("summaryText"));
    m_text->setTabChangesFocus(true);
    m_text->setMinimumHeight(m_text->fontMetrics().height() * 3);
    layout->addWidget(m_text);

    m_timer.setSingleShot(true);
    m_timer.setInterval(kDelayMs);
    connect(m_text, &QPlainTextEdit::textChanged, &m_timer, qOverload<>(&QTimer::start));
    connect(&m_timer, &QTimer::timeout, this, &MonthMemo::commit);
    connect(m_controller, &KController::aboutToSaveAllEditedData, this, &MonthMemo::edit);
    // An undo or redo may change the memo shown; what is being typed wins.
    connect(Notifications::instance(), &Notifications::dataListHasChanged, this,
            [this](DataList *list) {
                if (list != m_list.get() || m_timer.isActive()
                    || m_text->toPlainText() == m_list->summary())
                    return;
                const QSignalBlocker blocker(m_text);
                m_text->setPlainText(m_list->summary());
            });
}

void MonthMemo::showMonth(int year, int month)
{
    commit();
    m_list = m_controller->monthListForYear(year, month);
    const QSignalBlocker blocker(m_text);
    if (!m_list) {
        m_text->clear();
        m_text->setReadOnly(true);
        return;
    }
    m_text->setPlainText(m_list->summary());
    m_text->setReadOnly(m_list->isReadOnly());
    m_text->setPlaceholderText(m_list->isReadOnly()
                                   ? tr("This month's file could not be read.")
                                   : tr("Notes on %1 %2")
                                         .arg(QLocale().standaloneMonthName(month))
                                         .arg(year));
}

void MonthMemo::edit()
{
    m_timer.stop();
    if (!m_list || m_list->isReadOnly())
        return;
    const QString text = m_text->toPlainText();
    if (text == m_list->summary())
        return;
    m_list->setSummary(text);
    m_list->setIsEdited(true);
}

void MonthMemo::commit()
{
    edit();
    if (m_list && m_list->isEdited()) {
        const KController::ChangeScope change(m_controller, tr("Memo Edit"), true);
        m_controller->keepChange(m_list.get());
    }
}
