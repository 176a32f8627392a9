#pragma once

#include "model/PaymentData.h"

#include <QStringList>

#include <random>

// Makes the ledger of an imaginary household: fixed monthly bills, daily
// spending of many sizes, a salary, and the occasional refund with cents.
// The same seed always gives the same records.
class LedgerGenerator
{
public:
    explicit LedgerGenerator(unsigned seed = 2006);

    static QStringList categoryNames();
    static QStringList paywayNames();

    // `count` records dated within the month, in no particular order.
    PaymentArray monthRecords(int year, int month, int count);

    // Writes a whole data folder: `years` years from `firstYear`, `perMonth`
    // records a month, a memo on some months, and a list file with this
    // household's categories and payways. False when a file could not be
    // written.
    bool writeDataFolder(const QString &folder, int firstYear, int years, int perMonth);

private:
    std::mt19937 m_random;
};
