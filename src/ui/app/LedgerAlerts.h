#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>

#include <functional>

class KController;
class QMessageBox;

// What the program tells the user about the data folder itself: a month or
// the list file that cannot be read, a month that cannot be saved (each path
// once, so that a folder of broken files or a disk that stays full is told
// once rather than at every save), the months that hold up a quit, the
// months kept from an earlier run, and what another computer sharing the
// folder changed that needs a look. Sheets go on the window in front.
class LedgerAlerts : public QObject
{
    Q_OBJECT

public:
    explicit LedgerAlerts(KController *ledger, QObject *parent = nullptr);

    enum class QuitAnswer { TryAgain, CopySaved, QuitWithoutSaving, Stay };
    // Months that could not be written stop the quit: the user decides. A
    // second question while one is open is not asked.
    void askAboutUnsavedMonths(std::function<void(QuitAnswer)> answer);
    // Rescue folders of an earlier run, offered back one by one.
    void offerRescuedMonths();
    // A report while another is still open joins it, so that what is found
    // at once (several unreadable months at start) is one dialog, not a
    // stack of them.
    void report(const QString &text, const QString &details);

private:
    void reportMonthFileUnreadable(const QString &path, const QString &reason);
    void reportMonthFileNotWritten(const QString &path, const QString &reason);
    void reportListFileUnreadable(const QString &path, const QString &reason);
    bool saveRescueCopy();

    KController *m_ledger;
    QSet<QString> m_reportedUnreadable;
    QSet<QString> m_reportedNotWritten;
    QPointer<QMessageBox> m_unsavedSheet;
    QPointer<QMessageBox> m_reportBox;
    // What the open report holds: each text with its details.
    QList<std::pair<QString, QString>> m_reports;
};
