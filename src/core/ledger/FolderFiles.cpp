#include "ledger/FolderFiles.h"

#include <QDir>
#include <QFile>

#include <algorithm>

void FolderFiles::add(const QString &name, const Renumber &renumber)
{
    m_files.removeIf([&name](const Entry &entry) { return entry.name == name; });
    m_files.append({name, renumber});
}

QStringList FolderFiles::names() const
{
    QStringList names;
    for (const Entry &entry : m_files)
        names.append(entry.name);
    return names;
}

bool FolderFiles::contains(const QString &name) const
{
    return std::any_of(m_files.cbegin(), m_files.cend(),
                       [&name](const Entry &entry) { return entry.name == name; });
}

std::optional<QByteArray> FolderFiles::read(const QString &folder, const QString &name,
                                            QString *error)
{
    QFile file(QDir(folder).filePath(name));
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    if (file.exists() && error)
        *error = file.errorString();
    return std::nullopt;
}

std::optional<QList<FolderFileChange>>
FolderFiles::renumbered(const QString &folder, const ListConversion &conversion,
                        QString *error) const
{
    QList<FolderFileChange> changes;
    for (const Entry &entry : m_files) {
        QString reason;
        const std::optional<QByteArray> before = read(folder, entry.name, &reason);
        std::optional<QByteArray> after =
            before ? entry.renumber(*before, conversion, &reason) : std::nullopt;
        if (!reason.isEmpty() || (before && !after)) {
            if (error)
                *error = tr("%1 cannot be read (%2), so none of the stored entries has been "
                            "renumbered and the lists are unchanged. Mend or remove it first.")
                             .arg(QDir::toNativeSeparators(QDir(folder).filePath(entry.name)),
                                  reason);
            return std::nullopt;
        }
        if (before && *after != *before)
            changes.append({entry.name, *before, std::move(*after)});
    }
    return changes;
}
