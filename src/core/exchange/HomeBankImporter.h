#pragma once

#include "Importer.h"

// HomeBank's XML files (.xhb): categories (<cat>, with parents and the
// income flag), payees (<pay>) and operations (<ope>) dated by day number
// from 1 January of the year 1; a split operation gives one entry per split.
class HomeBankImporter : public Importer
{
public:
    ImportResult parse(const QByteArray &bytes) const override;
};
