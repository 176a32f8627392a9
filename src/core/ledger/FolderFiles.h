#pragma once

#include "ledger/ListConversion.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// A file of the data folder, by its name there, as a change found it and
// left it.
struct FolderFileChange
{
    QString name;
    QByteArray before;
    QByteArray after;
};

// The files of the data folder, besides the months, that hold category or
// payway numbers (the schedules' entries), each with the pure function that
// renumbers its content. The ledger rewrites them together with the months
// whenever the lists are renumbered.
class FolderFiles
{
    Q_DECLARE_TR_FUNCTIONS(FolderFiles)

public:
    // The new content for the old one under the conversion; nothing, with
    // the reason, when the old content cannot be read.
    using Renumber = std::function<std::optional<QByteArray>(
        const QByteArray &before, const ListConversion &conversion, QString *error)>;

    // A name registered again takes the new function.
    void add(const QString &name, const Renumber &renumber);
    QStringList names() const;
    bool contains(const QString &name) const;

    // Every registered file of the folder whose content the conversion
    // changes, with both contents; a file the folder does not have is left
    // out. Nothing, with the reason, when one cannot be read.
    std::optional<QList<FolderFileChange>> renumbered(const QString &folder,
                                                      const ListConversion &conversion,
                                                      QString *error) const;

    // The file's content; nothing when there is no file.
    static std::optional<QByteArray> read(const QString &folder, const QString &name,
                                          QString *error = nullptr);

private:
    struct Entry
    {
        QString name;
        Renumber renumber;
    };
    QList<Entry> m_files;
};
