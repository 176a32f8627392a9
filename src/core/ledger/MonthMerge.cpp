#include "ledger/MonthMerge.h"

#include <algorithm>
#include <tuple>

namespace MonthMerge {

namespace {

// Of date, category, details, amount and payway: a cell edit leaves four
// alike, so three still say "the same entry, changed".
constexpr int kAlikeFields = 3;

int likeness(const PaymentData &a, const PaymentData &b)
{
    return int(a.date() == b.date()) + int(a.category() == b.category())
           + int(a.details() == b.details()) + int(a.amount() == b.amount())
           + int(a.payway() == b.payway());
}

// What one side did to each base entry.
struct SideChanges
{
    // Per base entry: the side's entry it became (the same fields when kept),
    // null when removed.
    PaymentArray becameOf;
    QList<bool> kept;
    PaymentArray added;
};

SideChanges changesOf(const PaymentArray &base, const PaymentArray &side)
{
    SideChanges changes;
    changes.becameOf.resize(base.size());
    changes.kept.fill(false, base.size());
    QList<bool> taken(side.size(), false);
    for (qsizetype i = 0; i < base.size(); ++i) {
        for (qsizetype j = 0; j < side.size(); ++j) {
            if (!taken.at(j) && sameEntry(*base.at(i), *side.at(j))) {
                taken[j] = true;
                changes.kept[i] = true;
                changes.becameOf[i] = side.at(j);
                break;
            }
        }
    }
    // The leftovers, most alike first: (likeness, base index, side index).
    QList<std::tuple<int, qsizetype, qsizetype>> pairs;
    for (qsizetype i = 0; i < base.size(); ++i) {
        if (changes.kept.at(i))
            continue;
        for (qsizetype j = 0; j < side.size(); ++j) {
            if (taken.at(j))
                continue;
            if (const int alike = likeness(*base.at(i), *side.at(j)); alike >= kAlikeFields)
                pairs.append({alike, i, j});
        }
    }
    std::stable_sort(pairs.begin(), pairs.end(), [](const auto &a, const auto &b) {
        return std::get<0>(a) > std::get<0>(b);
    });
    for (const auto &[alike, i, j] : std::as_const(pairs)) {
        if (changes.becameOf.at(i) || taken.at(j))
            continue;
        taken[j] = true;
        changes.becameOf[i] = side.at(j);
    }
    for (qsizetype j = 0; j < side.size(); ++j) {
        if (!taken.at(j))
            changes.added.append(side.at(j));
    }
    return changes;
}

QString mergedSummary(const QString &base, const QString &ours, const QString &theirs,
                      bool *conflict)
{
    *conflict = false;
    if (ours == theirs || theirs == base)
        return ours;
    if (ours == base)
        return theirs;
    *conflict = true;
    if (ours.isEmpty() || theirs.isEmpty())
        return ours + theirs;
    return ours + u'\n' + theirs;
}

} // namespace

bool sameEntry(const PaymentData &a, const PaymentData &b)
{
    return a.year() == b.year() && a.month() == b.month() && likeness(a, b) == 5;
}

Result merge(const Content &base, const Content &ours, const Content &theirs)
{
    const SideChanges here = changesOf(base.records, ours.records);
    const SideChanges there = changesOf(base.records, theirs.records);
    Result result;
    for (qsizetype i = 0; i < base.records.size(); ++i) {
        const PaymentDataPtr &mine = here.becameOf.at(i);
        const PaymentDataPtr &other = there.becameOf.at(i);
        if (here.kept.at(i)) {
            if (other)
                result.records.append(there.kept.at(i) ? mine : other);
            continue;
        }
        if (there.kept.at(i)) {
            if (mine)
                result.records.append(mine);
            continue;
        }
        // Changed or removed on both sides.
        if (!mine && !other)
            continue;
        if (mine && other && sameEntry(*mine, *other)) {
            result.records.append(mine);
            continue;
        }
        if (mine)
            result.records.append(mine);
        if (other)
            result.records.append(other);
        result.conflicts.append({base.records.at(i), mine, other});
    }
    result.records.append(here.added);
    result.records.append(there.added);
    result.summary =
        mergedSummary(base.summary, ours.summary, theirs.summary, &result.summaryConflict);
    return result;
}

} // namespace MonthMerge
