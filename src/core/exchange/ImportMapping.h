#pragma once

#include "ImportResult.h"

#include "model/PaymentData.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <optional>

// A candidate entry as it would be booked: in our category and payway
// lists, with the amount positive.
struct MappedEntry
{
    CandidateEntry source;
    int category = 0;
    int payway = 0;
    float amount = 0;
    // Its category came by name (or by a choice for that name), not as the
    // catch-all for the unmatched.
    bool matched = false;
    // The same date, amount and details are already in the month: unticked
    // by default.
    bool duplicate = false;
};

// Puts a file's categories and payment modes onto the user's lists: by
// name, without regard to case or character width ("ｆｏｏｄ" is "Food"),
// trying "Parent:Child" whole, then each part from the child up. Entries in
// an income category of the source, and positive amounts where the source
// has signs, go to income (the last category). The rest go to a category
// chosen for them, or to a new one that is added just before income.
class ImportMapping
{
public:
    ImportMapping(const QStringList &categories, const QStringList &payways);

    // Where a source name goes, whatever our lists call things.
    void setCategoryFor(const QString &sourceName, int category);
    // The category of the unmatched (by default the first).
    void setUnmatchedCategory(int category);
    // Or a new category of this name for them.
    void setNewCategory(const QString &name);
    // The payway of entries whose payment mode matches none (by default the first).
    void setUnmatchedPayway(int payway);

    struct Result
    {
        QList<MappedEntry> entries;
        // Our category list as it will be: with the new category before
        // income when any entry goes there. The indices above refer to it.
        QStringList categories;
    };
    Result map(const ImportResult &imported) const;

    // The records already in a month, for duplicate flagging.
    using MonthRecords = std::function<PaymentArray(int year, int month)>;
    // Flags each entry matched by a record of its month with the same day,
    // amount and details; a record matches one entry at most, so that two
    // equal rows of a file against one booked entry flag only one of them.
    static void flagDuplicates(QList<MappedEntry> &entries, const MonthRecords &monthRecords);

    // The form names are compared in.
    static QString nameKey(QStringView name);

private:
    std::optional<int> categoryByName(const QString &sourceName) const;

    QStringList m_categories;
    QHash<QString, int> m_categoryKeys;
    QHash<QString, int> m_paywayKeys;
    QHash<QString, int> m_chosen;
    int m_unmatchedCategory = 0;
    QString m_newCategory;
    int m_unmatchedPayway = 0;
};
