#include "model/LedgerController.h"

namespace {
LedgerController *s_installed = nullptr;
}

LedgerController *LedgerController::installed()
{
    return s_installed;
}

void LedgerController::install(LedgerController *controller)
{
    s_installed = controller;
}

int LedgerController::incomeCategoryIndex()
{
    return s_installed ? int(s_installed->categoryList().size()) - 1 : -1;
}
