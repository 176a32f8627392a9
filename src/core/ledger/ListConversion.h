#pragma once

#include "model/PaymentData.h"

#include <QVariantMap>

// A change of the category and payway lists as it reaches the data folder:
// how stored entries are renumbered, and what the list file holds afterwards.
struct ListConversion
{
    ConversionMap categoryMap;
    ConversionMap paywayMap;
    // New lists by list file key ("CategoryList", "ColorList", "PaywayList");
    // a key left out keeps its list.
    QVariantMap lists;

    bool renumbers() const { return !categoryMap.isEmpty() || !paywayMap.isEmpty(); }
};
