#pragma once

#include "Importer.h"

// QIF files of bank, cash and credit-card accounts: D date, T or U amount,
// P payee, M memo, L category ("Parent:Child"; "[Account]" for a transfer),
// N number (a cheque number, or a word such as "ATM"), S/E/$ splits, each
// record closed by ^. A category list (!Type:Cat) marks income categories.
// Other sections (investments, memorised entries) are passed over.
class QifImporter : public Importer
{
public:
    ImportResult parse(const QByteArray &bytes) const override;
};
