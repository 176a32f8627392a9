#include "recurring/ScheduleWinController.h"

#include "ledger/KController.h"
#include "recurring/ScheduleBook.h"
#include "recurring/ScheduleDialog.h"
#include "recurring/ScheduleListModel.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

ScheduleWinController::ScheduleWinController(ScheduleBook *book, KController *ledger,
                                             QWidget *parent)
    : QWidget(parent)
    , m_book(book)
    , m_ledger(ledger)
    , m_model(new ScheduleListModel(book, ledger, this))
{
    setWindowTitle(tr("Schedules"));
    m_problem = new QLabel(this);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);

    m_table = new QTableView(this);
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setWordWrap(false);
    connect(m_table, &QTableView::activated, this, &ScheduleWinController::editSelected);

    m_addButton = new QPushButton(tr("&Add…"), this);
    m_editButton = new QPushButton(tr("&Edit…"), this);
    m_removeButton = new QPushButton(tr("&Remove…"), this);
    connect(m_addButton, &QPushButton::clicked, this, &ScheduleWinController::addSchedule);
    connect(m_editButton, &QPushButton::clicked, this, &ScheduleWinController::editSelected);
    connect(m_removeButton, &QPushButton::clicked, this, &ScheduleWinController::removeSelected);
    auto *remove = new QAction(this);
    remove->setShortcuts({QKeySequence::Delete, QKeySequence(Qt::Key_Backspace)});
    remove->setShortcutContext(Qt::WidgetShortcut);
    connect(remove, &QAction::triggered, this, &ScheduleWinController::removeSelected);
    m_table->addAction(remove);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_addButton);
    buttons->addWidget(m_editButton);
    buttons->addWidget(m_removeButton);
    buttons->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_problem);
    layout->addWidget(m_table, 1);
    layout->addLayout(buttons);

    connect(m_book, &ScheduleBook::changed, this, &ScheduleWinController::updateState);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        m_table->resizeColumnsToContents();
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ScheduleWinController::updateState);
    // Focus entering the table makes a row current without selecting it; the
    // row the keyboard is on is the one Edit and Remove act on.
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid() && !m_table->selectionModel()->isRowSelected(current.row()))
                    m_table->selectRow(current.row());
            });
    m_table->resizeColumnsToContents();
    updateState();
    resize(760, 320);
    restoreGeometry(Settings().savedLayout(SettingsKeys::ScheduleWindow));
}

ScheduleWinController::~ScheduleWinController() = default;

void ScheduleWinController::hideEvent(QHideEvent *event)
{
    Settings().setSavedLayout(SettingsKeys::ScheduleWindow, saveGeometry());
    QWidget::hideEvent(event);
}

int ScheduleWinController::selectedRow() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void ScheduleWinController::updateState()
{
    const bool readable = m_book->problem().isEmpty();
    m_problem->setText(m_book->problem());
    m_problem->setVisible(!readable);
    m_addButton->setEnabled(readable);
    m_editButton->setEnabled(readable && selectedRow() >= 0);
    m_removeButton->setEnabled(readable && selectedRow() >= 0);
}

void ScheduleWinController::addSchedule()
{
    Schedule s;
    s.start = QDate::currentDate();
    s.day = s.start.day();
    s.month = s.start.month();
    editSchedule(s, true);
}

void ScheduleWinController::editSelected()
{
    const int row = selectedRow();
    if (row >= 0 && m_book->problem().isEmpty())
        editSchedule(m_book->schedules().at(row), false);
}

void ScheduleWinController::editSchedule(const Schedule &schedule, bool isNew)
{
    auto *dialog = new ScheduleDialog(schedule, m_ledger->categoryList(), m_ledger->paywayList(),
                                      this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, isNew] {
        QString error;
        const Schedule edited = dialog->schedule();
        if (!(isNew ? m_book->add(edited, &error) : m_book->replace(edited, &error)))
            QMessageBox::warning(this, tr("The schedule could not be saved."), error);
    });
    dialog->open();
}

void ScheduleWinController::removeSelected()
{
    const int row = selectedRow();
    if (row < 0 || !m_book->problem().isEmpty())
        return;
    const Schedule s = m_book->schedules().at(row);
    auto *ask = new QMessageBox(QMessageBox::Question, tr("Remove Schedule"),
                                tr("Remove the schedule \"%1\"? Entries booked from it stay.")
                                    .arg(s.details),
                                QMessageBox::Cancel, this);
    ask->addButton(tr("&Remove"), QMessageBox::DestructiveRole);
    ask->setAttribute(Qt::WA_DeleteOnClose);
    connect(ask, &QMessageBox::buttonClicked, this, [this, ask, id = s.id](QAbstractButton *button) {
        if (ask->buttonRole(button) != QMessageBox::DestructiveRole)
            return;
        if (QString error; !m_book->remove(id, &error))
            QMessageBox::warning(this, tr("The schedule could not be removed."), error);
    });
    ask->open();
}
