#include "app/KAppController.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/Notifications.h"
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

KAppController::KAppController(QObject *parent)
    : QObject(parent)
    , m_ledger(std::make_unique<KController>())
{
    createActions();
    connect(m_ledger.get(), &KController::monthFileUnreadable, this,
            &KAppController::reportMonthFileUnreadable);
    connect(m_ledger.get(), &KController::monthFileNotWritten, this,
            &KAppController::reportMonthFileNotWritten);
}

KAppController::~KAppController() = default;

void KAppController::createActions()
{
    m_quitAction = new QAction(tr("&Quit"), this);
    m_quitAction->setShortcut(QKeySequence::Quit);
    m_quitAction->setMenuRole(QAction::QuitRole);
    connect(m_quitAction, &QAction::triggered, this, &KAppController::quit);

    m_aboutAction = new QAction(tr("&About Penwick"), this);
    m_aboutAction->setMenuRole(QAction::AboutRole);
    connect(m_aboutAction, &QAction::triggered, this, &KAppController::showAbout);

    updateMenuItems();
}

bool KAppController::validateMenuItem(const QAction *item) const
{
    switch (item->data().toInt()) {
    case InputWindowTag:
    case ListWindowTag:
    case GraphWindowTag:
    case BalanceWindowTag:
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
    auto *bar = new QMenuBar(window);
    QMenu *file = bar->addMenu(tr("&File"));
    file->addAction(m_quitAction);
    if (!m_windowActions.isEmpty()) {
        QMenu *windows = bar->addMenu(tr("&Window"));
        windows->addActions(m_windowActions);
    }
    QMenu *help = bar->addMenu(tr("&Help"));
    help->addAction(m_aboutAction);

    if (auto *mainWindow = qobject_cast<QMainWindow *>(window))
        mainWindow->setMenuBar(bar);
    else if (window->layout())
        window->layout()->setMenuBar(bar);
    return bar;
}

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

    const bool firstStart = m_ledger->setUpFirstStart();
    registerMyNotifications();
    m_ledger->readListPreference();
    if (!firstStart || Settings().version() != 0)
        openStartWindows();

    const QStringList waiting = std::exchange(m_filesWaitingForStart, {});
    for (const QString &path : waiting)
        openFile(path);
}

void KAppController::registerMyNotifications()
{
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, m_ledger.get(),
            &KController::readListPreference, Qt::UniqueConnection);
}

void KAppController::openStartWindows()
{
    // Graph, list, input, balance: the order the windows are stacked in.
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
    }
}

bool KAppController::applicationShouldTerminate()
{
    return true;
}

void KAppController::applicationWillTerminate()
{
    if (m_running)
        m_ledger->saveAllEditedData();
}

void KAppController::quit()
{
    if (applicationShouldTerminate())
        QCoreApplication::quit();
}

namespace {
// "May 2006" for a month file's path, or the file's name when it names no month.
QString monthOfPath(const QString &path)
{
    const auto yearMonth = DataFolder::yearMonthFromPath(path);
    if (!yearMonth)
        return QFileInfo(path).fileName();
    return QLocale().toString(QDate(yearMonth->year, yearMonth->month, 1), QStringLiteral("MMMM yyyy"));
}
} // namespace

void KAppController::reportMonthFileUnreadable(const QString &path, const QString &reason)
{
    if (m_reportedUnreadable.contains(path))
        return;
    m_reportedUnreadable.insert(path);
    report(tr("The entries of %1 could not be read.").arg(monthOfPath(path)),
           tr("%1\n\nThe month is shown empty and cannot be changed, and its file \"%2\" is left "
              "exactly as it is. The other months work as usual.")
               .arg(reason, QDir::toNativeSeparators(path)));
}

void KAppController::reportMonthFileNotWritten(const QString &path, const QString &reason)
{
    if (m_reportedNotWritten.contains(path))
        return;
    m_reportedNotWritten.insert(path);
    report(tr("The entries of %1 could not be saved.").arg(monthOfPath(path)),
           tr("%1\n\nThe changes are kept in memory and Penwick tries again at the next save. "
              "Free some disk space or check the permissions of \"%2\", and keep Penwick open "
              "until it has saved.")
               .arg(reason, QDir::toNativeSeparators(path)));
}

void KAppController::report(const QString &text, const QString &details)
{
    // Window-modal on the window in front, so that the user sees it where
    // they are working and the other windows stay usable.
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Penwick"), text, QMessageBox::Ok,
                                QApplication::activeWindow());
    box->setInformativeText(details);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(box->parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    box->open();
}

void KAppController::showAbout()
{
    QMessageBox::about(QApplication::activeWindow(), tr("About Penwick"),
                       tr("<h3>Penwick %1</h3><p>A household account book.</p>"
                          "<p>Your entries are kept month by month in the data folder:<br>%2</p>")
                           .arg(QCoreApplication::applicationVersion(),
                                QDir::toNativeSeparators(m_ledger->dataFolderPath()).toHtmlEscaped()));
}
