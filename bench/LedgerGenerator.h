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

private:
    std::mt19937 m_random;
};
