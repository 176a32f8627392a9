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

} // namespace

qint64 roundUpMax(qint64 n)
{
    qint64 multiplier = 1;
    while (n > 100) {
        n /= 10;
        multiplier *= 10;
    }
    return (n + 1) * multiplier;
}

qint64 roundUp(qint64 n, int digits)
{
    const qint64 limit = powerOfTen(digits);
    qint64 multiplier = 1;
    while (n > limit) {
        n /= 10;
        multiplier *= 10;
    }
    return (n + 1) * multiplier;
}

qint64 roundK(qint64 n, int digits)
{
    const qint64 limit = powerOfTen(digits);
    qint64 multiplier = 1;
    while (n > limit) {
        n /= 10;
        multiplier *= 10;
    }
    // Looks at the last digit kept, not the first one dropped.
    if (n % 10 >= 5)
        n += 1;
    return n * multiplier;
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
