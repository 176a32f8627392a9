#pragma once

#include "ImportResult.h"

#include "model/PaymentData.h"

#include <QCoreApplication>
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
// has signs, go to income (the last category). A name that matches none of
// ours goes where it is chosen to go, else with the rest of the unmatched:
// to a category chosen for them, or to a new one that is added just before
// income; payment modes to the first payway.
class ImportMapping
{
    Q_DECLARE_TR_FUNCTIONS(ImportMapping)

public:
    ImportMapping(const QStringList &categories, const QStringList &payways);

    struct Unmatched
    {
        QStringList categories;
        QStringList payways;
    };

    // Where a source name goes, whatever our lists call things; a negative
    // index takes the choice back.
    void setCategoryFor(const QString &sourceName, int category);
    void setPaywayFor(const QString &sourceName, int payway);
    std::optional<int> categoryChosenFor(const QString &sourceName) const;
    std::optional<int> paywayChosenFor(const QString &sourceName) const;
    // Choices written "SOURCE=OURS", ours by name (as names are compared).
    // False, with the reason, when one is malformed or names no category of
    // ours; the choices before it are taken.
    bool chooseCategories(const QStringList &choices, QString *error);
    // The choices of earlier imports (the user's settings), where what they
    // name is still on our lists; and this mapping's choices for these names
    // kept for later (those without one forgotten).
    void recallChoices();
    void rememberChoices(const Unmatched &names) const;

    // The category of the unmatched (by default the first).
    void setUnmatchedCategory(int category);
    // Or a new category of this name for them.
    void setNewCategory(const QString &name);

    // The file's category and payment mode names that match none of ours by
    // name, whatever is chosen for them, in the file's order; categories
    // only where some entry of theirs is not income.
    Unmatched unmatched(const ImportResult &imported) const;

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
    // Ours by name, or with the choices first.
    std::optional<int> categoryByName(const QString &sourceName, bool withChoices) const;
    std::optional<int> paywayByName(const QString &sourceName, bool withChoices) const;

    QStringList m_categories;
    QStringList m_payways;
    QHash<QString, int> m_categoryKeys;
    QHash<QString, int> m_paywayKeys;
    QHash<QString, int> m_chosen;
    QHash<QString, int> m_chosenPayways;
    int m_unmatchedCategory = 0;
    QString m_newCategory;
};
