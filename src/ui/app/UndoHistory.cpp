#include "app/UndoHistory.h"

#include <QAction>
#include <QCursor>
#include <QGuiApplication>
#include <QUndoCommand>
#include <QUndoStack>

namespace {

// Enough for an evening's work; each step holds its months twice.
constexpr int kUndoLimit = 200;
constexpr int kTypingId = 1;

class LedgerStep : public QUndoCommand
{
public:
    LedgerStep(UndoHistory *history, KController *ledger, KController::Change change)
        : m_history(history)
        , m_ledger(ledger)
        , m_change(std::move(change))
    {
        setText(m_change.label.isEmpty() ? UndoHistory::tr("Change") : m_change.label);
    }

    // Pushed once the change is made: the first redo has nothing to do.
    void redo() override
    {
        if (std::exchange(m_made, true))
            restore(false);
    }
    void undo() override { restore(true); }

    int id() const override { return m_change.typing ? kTypingId : -1; }
    bool mergeWith(const QUndoCommand *other) override
    {
        const auto &next = static_cast<const LedgerStep *>(other)->m_change;
        if (next.months.size() != m_change.months.size())
            return false;
        for (qsizetype i = 0; i < next.months.size(); ++i) {
            if (next.months.at(i).year != m_change.months.at(i).year
                || next.months.at(i).month != m_change.months.at(i).month)
                return false;
        }
        for (qsizetype i = 0; i < next.months.size(); ++i)
            m_change.months[i].after = next.months.at(i).after;
        return true;
    }

private:
    void restore(bool before)
    {
        // Rewriting the folder for the lists takes up to a second on decades
        // of entries.
        if (m_change.changesLists())
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        QString reason;
        const bool restored = m_ledger->restoreChange(m_change, before, &reason);
        if (m_change.changesLists())
            QGuiApplication::restoreOverrideCursor();
        // A step that cannot be restored goes, rather than stand in the way
        // of the others.
        if (!restored) {
            setObsolete(true);
            emit m_history->stepFailed(before ? UndoHistory::tr("“%1” could not be undone.").arg(text())
                                              : UndoHistory::tr("“%1” could not be redone.").arg(text()),
                                       reason);
        }
    }

    UndoHistory *m_history;
    KController *m_ledger;
    KController::Change m_change;
    bool m_made = false;
};

} // namespace

UndoHistory::UndoHistory(KController *ledger, QObject *parent)
    : QObject(parent)
    , m_ledger(ledger)
    , m_stack(new QUndoStack(this))
    , m_undo(new QAction(this))
    , m_redo(new QAction(this))
{
    m_stack->setUndoLimit(kUndoLimit);
    m_undo->setObjectName(QStringLiteral("undoAction"));
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo->setObjectName(QStringLiteral("redoAction"));
    m_redo->setShortcut(QKeySequence::Redo);
    connect(m_undo, &QAction::triggered, m_stack, &QUndoStack::undo);
    connect(m_redo, &QAction::triggered, m_stack, &QUndoStack::redo);
    connect(m_stack, &QUndoStack::indexChanged, this, &UndoHistory::updateActions);
    connect(ledger, &KController::changeRecorded, this, &UndoHistory::record);
    connect(ledger, &KController::changesExpired, m_stack, &QUndoStack::clear);
    updateActions();
}

void UndoHistory::record(const KController::Change &change)
{
    m_stack->push(new LedgerStep(this, m_ledger, change));
}

void UndoHistory::updateActions()
{
    m_undo->setEnabled(m_stack->canUndo());
    m_undo->setText(m_stack->canUndo() ? tr("&Undo %1").arg(m_stack->undoText()) : tr("&Undo"));
    m_redo->setEnabled(m_stack->canRedo());
    m_redo->setText(m_stack->canRedo() ? tr("&Redo %1").arg(m_stack->redoText()) : tr("&Redo"));
}
