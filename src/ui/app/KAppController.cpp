#include "app/KAppController.h"
#include "app/LedgerAlerts.h"

#include "balance/BalanceWinController.h"
#include "budget/BudgetsDialog.h"
#include "exchange/ImportOffer.h"
#include "graph/GraphWinController.h"
#include "input/InputWinController.h"
#include "list/ListWinController.h"
#include "prefs/PrefWinController.h"
#include "recurring/DueDialog.h"
#include "recurring/ScheduleWinController.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "ledger/RescueFolder.h"
#include "model/ModifMonthList.h"
#include "model/Notifications.h"
#include "app/UndoHistory.h"
#include "password/ConfirmPassPanelController.h"
#include "security/PasswordLock.h"
#include "settings/Settings.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLayout>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

KAppController::KAppController(QObject *parent)
    : QObject(parent)
    , m_ledger(std::make_unique<KController>())
    , m_alerts(new LedgerAlerts(m_ledger.get(), this))
    , m_history(new UndoHistory(m_ledger.get(), this))
{
    createActions();
    connect(m_history, &UndoHistory::stepFailed, m_alerts, &LedgerAlerts::report);
    ScheduleBook *schedules = m_ledger->schedules();
    connect(schedules, &ScheduleBook::unreadable, this, [this](const QString &, const QString &reason) {
        m_alerts->report(tr("The schedules cannot be read."), reason);
    });
    connect(schedules, &ScheduleBook::postingFailed, this, [this](const QString &reason) {
        m_alerts->report(tr("The scheduled entries due could not be booked."), reason);
    });
    connect(schedules, &ScheduleBook::offered, this, &KAppController::offerDueOccurrences);
}

KAppController::~KAppController()
{
    // Top-level windows have no parent to delete them.
    delete m_passwordPanel;
    delete myInputWinController;
    delete myListWinController;
    delete myGraphWinController;
    delete myPrefWinController;
    delete myBalanceWinController;
    delete myScheduleWinController;
    delete m_dueDialog;
}

void KAppController::createActions()
{
    m_quitAction = new QAction(tr("&Quit"), this);
    m_quitAction->setShortcut(QKeySequence::Quit);
    m_quitAction->setMenuRole(QAction::QuitRole);
    connect(m_quitAction, &QAction::triggered, this, &KAppController::quit);

    addWindowAction(tr("&Input Window"), InputWindowTag, QKeySequence(Qt::CTRL | Qt::Key_1),
                    &KAppController::showInputWindow);
    addWindowAction(tr("&List Window"), ListWindowTag, QKeySequence(Qt::CTRL | Qt::Key_2),
                    &KAppController::showListWindow);
    addWindowAction(tr("&Graph Window"), GraphWindowTag, QKeySequence(Qt::CTRL | Qt::Key_3),
                    &KAppController::showGraphWindow);
    addWindowAction(tr("&Balance Window"), BalanceWindowTag, QKeySequence(Qt::CTRL | Qt::Key_4),
                    &KAppController::showBalanceListWindow);
    addWindowAction(tr("B&udgets…"), BudgetsTag, QKeySequence(Qt::CTRL | Qt::Key_6),
                    &KAppController::showBudgets);
    addWindowAction(tr("&Schedules"), ScheduleWindowTag, QKeySequence(Qt::CTRL | Qt::Key_5),
                    &KAppController::showScheduleWindow);

    m_preferencesAction = new QAction(tr("&Preferences…"), this);
    m_preferencesAction->setShortcut(QKeySequence::Preferences);
    m_preferencesAction->setMenuRole(QAction::PreferencesRole);
    connect(m_preferencesAction, &QAction::triggered, this, &KAppController::showPrefWindow);

    m_importAction = new QAction(tr("&Import…"), this);
    m_importAction->setData(ImportTag);
    m_imports = new ImportOffer(m_ledger.get(), m_importAction, this);

    m_aboutAction = new QAction(tr("&About Penwick"), this);
    m_aboutAction->setMenuRole(QAction::AboutRole);
    connect(m_aboutAction, &QAction::triggered, this, &KAppController::showAbout);

    updateMenuItems();
}

QAction *KAppController::addWindowAction(const QString &text, int tag, const QKeySequence &shortcut,
                                         void (KAppController::*show)())
{
    auto *action = new QAction(text, this);
    action->setData(tag);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, show);
    m_windowActions.append(action);
    return action;
}

bool KAppController::validateMenuItem(const QAction *item) const
{
    switch (item->data().toInt()) {
    case InputWindowTag:
    case ListWindowTag:
    case GraphWindowTag:
    case BalanceWindowTag:
    case BudgetsTag:
    case ImportTag:
    case ScheduleWindowTag:
        return m_running;
    default:
        return true;
    }
}

void KAppController::updateMenuItems()
{
    for (QAction *action : findChildren<QAction *>(Qt::FindDirectChildrenOnly))
        action->setEnabled(validateMenuItem(action));
}

QMenuBar *KAppController::installMenuBar(QWidget *window)
{
    QMenuBar *bar = nullptr;
    if (auto *mainWindow = qobject_cast<QMainWindow *>(window)) {
        bar = mainWindow->menuBar();
    } else {
        bar = new QMenuBar(window);
        if (window->layout())
            window->layout()->setMenuBar(bar);
    }
    // A window's own menus come first, File leading; the application's
    // items join them: Quit at the end of File, then Window and Help.
    const QList<QAction *> own = bar->actions();
    QMenu *file = own.isEmpty() ? nullptr : own.constFirst()->menu();
    if (file) {
        file->addSeparator();
    } else {
        file = new QMenu(tr("&File"), bar);
        bar->insertMenu(own.isEmpty() ? nullptr : own.constFirst(), file);
    }
    file->addAction(m_quitAction);
    // Undo and Redo lead the window's own Edit menu, or one of their own
    // right after File.
    const QList<QAction *> undoRedo{m_history->undoAction(), m_history->redoAction()};
    QMenu *edit = bar->findChild<QMenu *>(QStringLiteral("editMenu"));
    if (edit) {
        QAction *first = edit->actions().value(0);
        edit->insertActions(first, undoRedo);
        edit->insertSeparator(first);
    } else {
        edit = new QMenu(tr("&Edit"), bar);
        edit->setObjectName(QStringLiteral("editMenu"));
        edit->addActions(undoRedo);
        const QList<QAction *> menus = bar->actions();
        bar->insertMenu(menus.value(menus.indexOf(file->menuAction()) + 1), edit);
    }
    QMenu *windows = bar->addMenu(tr("&Window"));
    windows->addActions(m_windowActions);
    windows->addSeparator();
    windows->addAction(m_preferencesAction);
    QMenu *help = bar->addMenu(tr("&Help"));
    help->addAction(m_aboutAction);
    // A narrow window (the balance) would fold its menus away behind a
    // chevron: it is at least as wide as its menus, measured in the style and
    // font they are drawn with, and a character to spare, since a fallback
    // font for Japanese draws a little wider than it measures. A minimum set
    // on the window overrides its layout's, so that one counts here too.
    bar->ensurePolished();
    window->setMinimumWidth(std::max({window->minimumWidth(), window->minimumSizeHint().width(),
                                      bar->sizeHint().width()
                                          + bar->fontMetrics().averageCharWidth()}));
    return bar;
}

namespace {
void bringToFront(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}
} // namespace

void KAppController::confirmPassword()
{
    m_running = false;
    if (PasswordLock::passwordFromDefault().isEmpty()) {
        startUp();
        return;
    }
    m_passwordPanel = new ConfirmPassPanelController;
    m_passwordPanel->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_passwordPanel, &ConfirmPassPanelController::confirmed, this,
            &KAppController::startUp);
    // Nothing has been read or written yet, so there is nothing to save.
    connect(m_passwordPanel, &ConfirmPassPanelController::canceled, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
    m_passwordPanel->runAsWindow();
}

void KAppController::startUp()
{
    if (m_running)
        return;
    m_running = true;
    updateMenuItems();
    // Written once at start, so that a settings file from before it held a
    // password hash becomes the user's alone.
    Settings().sync();

    // A change of the lists cut short by a crash is finished before any
    // month is read; if it cannot be, the controller keeps the folder safe
    // and the user is told why.
    if (QString problem; !m_ledger->finishInterruptedConversion(&problem))
        m_alerts->report(tr("A change of the category and payway lists could not be finished."),
                         problem);
    if (QString problem; !m_ledger->replayChangeJournal(&problem))
        m_alerts->report(tr("Not every change made before Penwick stopped could be brought back."),
                         problem);

    const bool firstStart = m_ledger->setUpFirstStart();
    if (firstStart) {
        showPrefWindow();
        myPrefWinController->setFirstSetting(true);
    }
    registerMyNotifications();
    m_ledger->readListPreference();
    // The folder may be shared with another computer through a sync service.
    m_ledger->watchSharedFolder();
    // Once the journal is replayed: what fell due while Penwick was not
    // running is booked now, and again at every midnight; what is to be
    // asked about waits for the windows.
    m_ledger->schedules()->load();
    if (m_inBackground) {
        m_ledger->schedules()->postDaily();
        return;
    }
    openStartWindows();
    // A new user sets up the lists first: the preferences stay in front.
    if (firstStart)
        bringToFront(myPrefWinController);

    const QStringList waiting = std::exchange(m_filesWaitingForStart, {});
    for (const QString &path : waiting)
        openFile(path);
    m_alerts->offerRescuedMonths();
    m_ledger->schedules()->postDaily();
}

void KAppController::startInBackground()
{
    if (!PasswordLock::passwordFromDefault().isEmpty() || Settings().version() == 0
        || !RescueFolder::pending(m_ledger->dataFolderPath()).isEmpty())
        return;
    m_inBackground = true;
    startUp();
}

void KAppController::registerMyNotifications()
{
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, m_ledger.get(),
            &KController::readListPreference, Qt::UniqueConnection);
    connect(Notifications::instance(), &Notifications::listWinChangedDate, this,
            &KAppController::listWinChangedDate, Qt::UniqueConnection);
}

void KAppController::openStartWindows()
{
    const Settings settings;
    using Window = Settings::StartWindow;
    if (settings.openWindow(Window::Graph))
        showGraphWindow();
    if (settings.openWindow(Window::List))
        showListWindow();
    if (settings.openWindow(Window::Input))
        showInputWindow();
    if (settings.openWindow(Window::Balance))
        showBalanceListWindow();
}

void KAppController::showInputWindow()
{
    if (!m_running)
        return;
    const bool wasVisible = myInputWinController && myInputWinController->isVisible();
    if (!myInputWinController) {
        myInputWinController = new InputWinController(m_ledger.get());
        m_imports->offerIn(myInputWinController, installMenuBar(myInputWinController));
        connect(myInputWinController, &InputWinController::listWindowRequested, this,
                &KAppController::showListWindow);
        connect(myInputWinController, &InputWinController::quitRequested, this,
                &KAppController::quit);
    }
    bringToFront(myInputWinController);
    if (!wasVisible) {
        const QDate today = QDate::currentDate();
        myInputWinController->setYear(today.year(), today.month(), today.day());
    }
}

void KAppController::showInputWindowWithYear(int year, int month, int date)
{
    if (!m_running)
        return;
    const bool wasVisible = myInputWinController && myInputWinController->isVisible();
    showInputWindow();
    if (!wasVisible)
        myInputWinController->setYear(year, month, date);
}

void KAppController::showListWindow()
{
    if (!m_running)
        return;
    if (!myListWinController) {
        myListWinController = new ListWinController(m_ledger.get());
        m_imports->offerIn(myListWinController, installMenuBar(myListWinController));
        connect(myListWinController, &ListWinController::inputWindowRequested, this,
                &KAppController::showInputWindowWithYear);
        connect(myListWinController, &ListWinController::budgetsRequested, this,
                &KAppController::showBudgets);
        connect(myListWinController, &ListWinController::makeRecurringRequested, this,
                &KAppController::makeRecurring);
    }
    if (myBalanceWinController)
        myBalanceWinController->showDataOfYear(myListWinController->year(),
                                               myListWinController->month());
    bringToFront(myListWinController);
}

void KAppController::showGraphWindow()
{
    if (!m_running)
        return;
    if (!myGraphWinController) {
        myGraphWinController = new GraphWinController(m_ledger.get());
        installMenuBar(myGraphWinController);
        connect(myGraphWinController, &GraphWinController::categoryListRequested, this,
                &KAppController::showCategoryList);
    }
    bringToFront(myGraphWinController);
    if (myListWinController)
        myGraphWinController->setTargetYear(myListWinController->year(),
                                            myListWinController->month());
}

void KAppController::showBalanceListWindow()
{
    if (!m_running)
        return;
    if (!myBalanceWinController) {
        myBalanceWinController = new BalanceWinController(m_ledger.get());
        installMenuBar(myBalanceWinController);
    }
    bringToFront(myBalanceWinController);
    if (myListWinController) {
        myBalanceWinController->showDataOfYear(myListWinController->year(),
                                               myListWinController->month());
    } else {
        // In December this asks for month 13, which the window takes as
        // January of the next year.
        const QDate today = QDate::currentDate();
        myBalanceWinController->showDataOfYear(today.year(), today.month() + 1);
    }
}

void KAppController::showPrefWindow()
{
    if (!m_running)
        return;
    if (!myPrefWinController) {
        // A dialog: it carries no menu bar of its own.
        myPrefWinController = new PrefWinController(m_ledger.get());
        connect(myPrefWinController, &PrefWinController::dataFolderChanged, this,
                &KAppController::dataFolderChanged);
        connect(myPrefWinController, &PrefWinController::showInputWindowRequested, this,
                &KAppController::showInputWindow);
    }
    bringToFront(myPrefWinController);
}

void KAppController::showBudgets()
{
    if (!m_running)
        return;
    auto *dialog = new BudgetsDialog(m_ledger->budgets(), m_ledger->categoryList(),
                                     QApplication::activeWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (myListWinController)
        dialog->setMonth(myListWinController->year(), myListWinController->month());
    dialog->open();
}

void KAppController::showWindow(Window window)
{
    switch (window) {
    case Window::Input:
        showInputWindow();
        break;
    case Window::List:
        showListWindow();
        break;
    case Window::Graph:
        showGraphWindow();
        break;
    case Window::Balance:
        showBalanceListWindow();
        break;
    }
}

void KAppController::listWinChangedDate()
{
    if (myListWinController && myBalanceWinController)
        myBalanceWinController->showDataOfYear(myListWinController->year(),
                                               myListWinController->month());
}

void KAppController::showListOfYear(int year, int month)
{
    if (!m_running)
        return;
    if (!myListWinController)
        showListWindow();
    else if (!myListWinController->isVisible())
        bringToFront(myListWinController);
    myListWinController->clearExtractKey();
    myListWinController->showListOfYear(year, month);
    bringToFront(myListWinController);
}

void KAppController::showCategoryList(int category, int year, int month)
{
    showListOfYear(year, month);
    if (myListWinController)
        myListWinController->showDataOfCategory(category);
}

void KAppController::showPaywayList(int payway, int year, int month)
{
    showListOfYear(year, month);
    if (myListWinController)
        myListWinController->showDataOfPayway(payway);
}

void KAppController::showEntry(const PaymentDataPtr &record)
{
    const Settings settings;
    const QDate day(record->year(), record->month(), record->date());
    const QDate month = settings.changeMonthLastDate()
        ? ModifMonthList::closingMonthOf(day, settings.monthLastDate())
        : day;
    showListOfYear(month.year(), month.month());
    if (myListWinController)
        myListWinController->selectData(record);
}

bool KAppController::openFile(const QString &path)
{
    if (QFileInfo(path).suffix() != QLatin1StringView("Penwick"))
        return false;
    if (!m_running) {
        m_filesWaitingForStart.append(path);
        return true;
    }
    m_ledger->readDataFromPath(path);
    // A name that gives no month still selects the list window, at month 0.
    const auto yearMonth = DataFolder::yearMonthFromPath(path);
    showListOfYear(yearMonth ? yearMonth->year : 0, yearMonth ? yearMonth->month : 0);
    return true;
}

void KAppController::activate()
{
    QWidget *front = m_passwordPanel ? m_passwordPanel.data() : QApplication::activeWindow();
    if (!front) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->isVisible() && window->isWindow()) {
                front = window;
                break;
            }
        }
    }
    if (front) {
        front->raise();
        front->activateWindow();
        return;
    }
    if (!m_running) {
        confirmPassword();
        return;
    }
    if (std::exchange(m_inBackground, false)) {
        openStartWindows();
        m_ledger->schedules()->postDaily();
    }
    keepAWindowOpen();
}

bool KAppController::applicationShouldTerminate()
{
    if (myInputWinController && !myInputWinController->canTerminateApp()) {
        myInputWinController->confirmInputDataBeforeTerminate();
        return false;
    }
    return true;
}

void KAppController::applicationWillTerminate()
{
    if (!m_running)
        return;
    // A memo being typed in the list window is part of its month.
    if (myListWinController)
        myListWinController->saveData();
    if (m_ledger->saveAllEditedData() || m_quitWithoutSaving)
        return;
    if (m_ledger->unsavedMonthsAreJournaled()) {
        qWarning("Penwick: the months that could not be saved are kept in %s and saved at the "
                 "next start",
                 qPrintable(m_ledger->changeJournalPath()));
        return;
    }
    // Told to stop (a signal, the session ending) with months the disk did not
    // take: keep them where the next start finds them.
    QString error;
    if (const auto folder = RescueFolder::save(*m_ledger, &error))
        qWarning("Penwick: the months that could not be saved are in %s", qPrintable(*folder));
    else
        qCritical("Penwick: the months that could not be saved are lost: %s", qPrintable(error));
}

void KAppController::quit()
{
    if (!applicationShouldTerminate())
        return;
    if (m_running) {
        if (myListWinController)
            myListWinController->saveData();
        if (!m_ledger->saveAllEditedData()) {
            m_alerts->askAboutUnsavedMonths([this](LedgerAlerts::QuitAnswer answer) {
                switch (answer) {
                case LedgerAlerts::QuitAnswer::TryAgain:
                    QMetaObject::invokeMethod(this, &KAppController::quit, Qt::QueuedConnection);
                    break;
                case LedgerAlerts::QuitAnswer::CopySaved:
                case LedgerAlerts::QuitAnswer::QuitWithoutSaving:
                    // Not brought back at the next start either.
                    m_ledger->discardUnsavedChanges();
                    m_quitWithoutSaving = true;
                    terminate();
                    break;
                case LedgerAlerts::QuitAnswer::Stay:
                    keepAWindowOpen();
                    break;
                }
            });
            return;
        }
    }
    m_quitting = true;
    QCoreApplication::quit();
}

void KAppController::lastWindowClosed()
{
    // Quitting closes every window on its way out: that is no request.
    if (m_quitting)
        return;
    quit();
    keepAWindowOpen();
}

void KAppController::terminate()
{
    m_quitting = true;
    QCoreApplication::quit();
}

void KAppController::keepAWindowOpen()
{
    // Staying on, the program must not be left without a window.
    if (!m_running || QApplication::activeModalWidget())
        return;
    const QWidgetList windows = QApplication::topLevelWidgets();
    if (std::none_of(windows.cbegin(), windows.cend(), [](const QWidget *w) { return w->isVisible(); }))
        showListWindow();
}

void KAppController::showAbout()
{
    QMessageBox::about(QApplication::activeWindow(), tr("About Penwick"),
                       tr("<h3>Penwick %1</h3><p>A household account book.</p>"
                          "<p>Your entries are kept month by month in the data folder:<br>%2</p>")
                           .arg(QCoreApplication::applicationVersion(),
                                QDir::toNativeSeparators(m_ledger->dataFolderPath()).toHtmlEscaped()));
}

// Recurring entries ---------------------------------------------------------

void KAppController::showScheduleWindow()
{
    if (!m_running)
        return;
    if (!myScheduleWinController) {
        myScheduleWinController = new ScheduleWinController(m_ledger->schedules(), m_ledger.get());
        installMenuBar(myScheduleWinController);
    }
    bringToFront(myScheduleWinController);
}

void KAppController::makeRecurring(const PaymentDataPtr &record)
{
    showScheduleWindow();
    if (myScheduleWinController)
        myScheduleWinController->editSchedule(Schedule::fromEntry(*record), true);
}

void KAppController::offerDueOccurrences(const QList<ScheduleBook::Occurrence> &occurrences)
{
    // Those still open are offered again at the next posting.
    if (m_dueDialog || m_inBackground)
        return;
    m_dueDialog = new DueDialog(occurrences, m_ledger->categoryList(), m_ledger->paywayList(),
                                QApplication::activeWindow());
    m_dueDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dueDialog, &DueDialog::answered, this,
            [this](const QList<ScheduleBook::Occurrence> &answers) {
                QString error;
                if (m_ledger->schedules()->settle(answers, &error))
                    m_dueDialog->accept();
                else
                    m_dueDialog->refuse(error);
            });
    m_dueDialog->open();
}
