#pragma once

#include "Importer.h"

// OFX and QFX bank and card statements, read by libofx: each transaction's
// posting date, amount, name and memo; its type names the payment mode.
class OfxImporter : public Importer
{
public:
    ImportResult parse(const QByteArray &bytes) const override;
};
