#pragma once

#include "recurring/ScheduleBook.h"
#include "script/ScriptHost.h"

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class BalanceWinController;
class ConfirmPassPanelController;
class DueDialog;
class GraphWinController;
class ImportOffer;
class InputWinController;
class KController;
class LedgerAlerts;
class UndoHistory;
class ListWinController;
class PrefWinController;
class ScheduleWinController;
class QAction;
class QMenuBar;
class QWidget;

// The application controller's window half: it starts the program (password,
// first start, the windows the settings name), owns the windows, builds the
// menu every window carries, tells the user what the store could not do,
// and decides whether the application may quit. The data half, KController,
// is owned here and shared with every window.
class KAppController : public QObject, public ScriptHost
{
    Q_OBJECT

public:
    // Menu items whose tag is one of these act on the account book and stay
    // disabled until start-up has passed the password.
    enum MenuTag { InputWindowTag = 102, ListWindowTag = 404, GraphWindowTag = 405,
                   BalanceWindowTag = 406, ImportTag = 407, ScheduleWindowTag = 408,
                   BudgetsTag = 420 };

    explicit KAppController(QObject *parent = nullptr);
    ~KAppController() override;

    KController *ledger() const override { return m_ledger.get(); }
    bool running() const override { return m_running; }
    void showWindow(Window window) override;
    // With a closing day in force, the list window shows an entry past it
    // under the next month.
    void showEntry(const PaymentDataPtr &record) override;

    // Asks for the password when one is stored and starts up once it is
    // given; without one, starts at once. Cancelling quits.
    void confirmPassword();
    // Opens the account book: first-start set-up, the lists, the windows.
    void startUp();
    // Started by the desktop to answer its search: opens the account book
    // without a window when nothing needs the user. With a password, before
    // the first start's set-up, or with rescued months to offer, it stays
    // locked until the user comes to the program (activate()).
    void startInBackground();

    // Whether the menu item may be chosen now (by its tag).
    bool validateMenuItem(const QAction *item) const;
    // Gives the window the application's menu bar.
    QMenuBar *installMenuBar(QWidget *window);

    // A month file handed over from the desktop or a second launch: answers
    // whether it was taken (its extension is "Penwick"). Before start-up it
    // waits for the password.
    bool openFile(const QString &path);
    // A second launch asked for the application: bring it to the front. In
    // the background it opens its windows now, or asks for the password.
    void activate();

    // False when a window holds work that must be settled first; the window
    // then asks the user, and quits itself if told to.
    bool applicationShouldTerminate();
    // Writes every edited month; connected to the application's last moments.
    // Months that still cannot be written go to a rescue folder, unless the
    // user chose to quit without them.
    void applicationWillTerminate();
    // The last window was closed: quit as from the menu, or, when the user
    // stays, show the list window again so that the program is not left
    // without one.
    void lastWindowClosed();

    // The windows, each made on first use and kept to the end. Nothing
    // opens before start-up has passed the password.
    void showInputWindow();
    // Opens the input window; a window that was hidden starts at that day.
    void showInputWindowWithYear(int year, int month, int date);
    void showListWindow();
    void showGraphWindow();
    void showBalanceListWindow();
    void showPrefWindow();
    // The budgets of the list window's month (this month without one).
    void showBudgets();
    // Shows the month in the list window, opening it if need be, with the
    // search cleared; the variants then select one category or payway.
    void showListOfYear(int year, int month);
    void showCategoryList(int category, int year, int month);
    void showPaywayList(int payway, int year, int month);

    // Recurring entries ---------------------------------------------------
    void showScheduleWindow();
    // The schedules window with a new schedule made from the entry.
    void makeRecurring(const PaymentDataPtr &record);
    // The occurrences of ask-first schedules that are due, in one dialog; a
    // dialog open already is left to be answered first.
    void offerDueOccurrences(const QList<ScheduleBook::Occurrence> &occurrences);

public slots:
    // Quit, as chosen from the menu: asks applicationShouldTerminate first,
    // then about months that cannot be saved.
    void quit();
    // Told to stop from outside (a signal, the session ending): no questions;
    // what cannot be saved goes to a rescue folder on the way out.
    void terminate();

signals:
    // The preferences moved the data folder: the single-instance lock follows.
    void dataFolderChanged(const QString &folder);

private:
    void createActions();
    QAction *addWindowAction(const QString &text, int tag, const QKeySequence &shortcut,
                             void (KAppController::*show)());
    void listWinChangedDate();
    void updateMenuItems();
    void registerMyNotifications();
    void openStartWindows();
    void keepAWindowOpen();
    void showAbout();

    std::unique_ptr<KController> m_ledger;
    QPointer<ScheduleWinController> myScheduleWinController;
    QPointer<DueDialog> m_dueDialog;
    LedgerAlerts *m_alerts;
    UndoHistory *m_history;
    bool m_running = false;
    // Started in the background: the start's windows wait for the user.
    bool m_inBackground = false;
    QPointer<ConfirmPassPanelController> m_passwordPanel;
    QPointer<InputWinController> myInputWinController;
    QPointer<ListWinController> myListWinController;
    QPointer<GraphWinController> myGraphWinController;
    QPointer<PrefWinController> myPrefWinController;
    QPointer<BalanceWinController> myBalanceWinController;
    QStringList m_filesWaitingForStart;
    // The user chose to quit without the months that could not be saved.
    bool m_quitWithoutSaving = false;
    bool m_quitting = false;

    QAction *m_quitAction = nullptr;
    QAction *m_importAction = nullptr;
    ImportOffer *m_imports = nullptr;
    QAction *m_aboutAction = nullptr;
    QAction *m_preferencesAction = nullptr;
    QList<QAction *> m_windowActions;
};
