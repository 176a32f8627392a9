#pragma once

#include "ledger/KController.h"

#include <QObject>

class QAction;
class QUndoStack;

// The program's one history of changes, for Edit > Undo and Redo in every
// window. Each change the ledger records is a step; taking it back puts the
// months it touched back as they were, wherever they are shown, and a change
// of the lists takes its renumbering back with it. The history lasts for the
// session and ends when the data folder changes, since its steps hold the
// old folder's months.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    explicit UndoHistory(KController *ledger, QObject *parent = nullptr);

    QAction *undoAction() const { return m_undo; }
    QAction *redoAction() const { return m_redo; }
    QUndoStack *stack() const { return m_stack; }

signals:
    // A step could not be taken back or made again; it leaves the history.
    void stepFailed(const QString &text, const QString &reason);

private:
    void record(const KController::Change &change);
    void updateActions();

    KController *m_ledger;
    QUndoStack *m_stack;
    QAction *m_undo;
    QAction *m_redo;
};
