#include "graph/ScaleRounding.h"

namespace {

// The limit is made as a 32-bit number, as it always was; large digit counts
// overflow it just the same.
qint64 powerOfTen(int digits)
{
    qint32 limit = 1;
    for (int i = 0; i < digits; ++i)
        limit = qint32(quint32(limit) * 10u);
    return limit;
}

// n with its last digits dropped until it is no more than limit, and the
// power of ten that was dropped.
struct Shortened
{
    qint64 kept;
    qint64 multiplier;
};

Shortened shortenTo(qint64 n, qint64 limit)
{
    qint64 multiplier = 1;
    while (n > limit) {
        n /= 10;
        multiplier *= 10;
    }
    return {n, multiplier};
}

} // namespace

qint64 roundUpMax(qint64 n)
{
    return roundUp(n, 2);
}

qint64 roundUp(qint64 n, int digits)
{
    const Shortened shortened = shortenTo(n, powerOfTen(digits));
    return (shortened.kept + 1) * shortened.multiplier;
}

qint64 roundK(qint64 n, int digits)
{
    Shortened shortened = shortenTo(n, powerOfTen(digits));
    // Looks at the last digit kept, not the first one dropped.
    if (shortened.kept % 10 >= 5)
        shortened.kept += 1;
    return shortened.kept * shortened.multiplier;
}

QList<qint64> amountAxisValues(qint64 max, int count)
{
    QList<qint64> values;
    if (count <= 0)
        return values;
    const qint64 step = max / count;
    for (int s = 1; s < count; ++s)
        values.append(roundK(step * s, 2));
    values.append(max);
    return values;
}
