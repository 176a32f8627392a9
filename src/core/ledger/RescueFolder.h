#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

class KController;

// Months that could not be written when the program had to stop (the disk
// full, the folder read-only, the session ending) are not dropped: they are
// written, whole, into a folder of their own under the user's data location,
// "unsaved/<date-time>/", beside a note of the data folder they belong to and
// of what each month file held on the disk then. The next start offers to
// bring them back.
namespace RescueFolder {

// "unsaved" in the user's data location.
QString root();

// Writes every unsaved month of the ledger into a new rescue folder and
// answers it; nothing, with the reason, when it could not be written.
std::optional<QString> save(KController &ledger, QString *error = nullptr);

struct Pending
{
    QString folder;
    QDateTime made;
    // The month files it holds, "Data_2006_5.Penwick".
    QStringList months;
};
// The rescue folders kept for the data folder, oldest first.
QList<Pending> pending(const QString &dataFolder);

// Brings the months of a rescue folder back into the ledger and writes them.
// A month file unchanged since the rescue takes the rescued month whole; one
// changed since keeps what it has and gains the rescued entries it lacks.
// The rescue folder is removed once every month is written; otherwise it is
// kept, and false is answered with the reasons. `report` says what was done.
bool mergeBack(KController &ledger, const QString &rescueFolder, QString *report);

// Removes a rescue folder the user no longer wants.
bool discard(const QString &rescueFolder);

} // namespace RescueFolder
