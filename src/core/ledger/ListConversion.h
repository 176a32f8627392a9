#pragma once

#include "model/PaymentData.h"
#include "model/RgbaColor.h"

#include <QStringList>
#include <QVariantMap>

// The lists the preferences edit, as the list file holds them: the category
// names with the income category last, one colour per category (a list file
// from elsewhere may have fewer), and the payway names.
struct StoredLists
{
    QStringList categories;
    QList<RgbaColor> colors;
    QStringList payways;

    friend bool operator==(const StoredLists &, const StoredLists &) = default;
};

// A change of the category and payway lists as it reaches the data folder:
// how stored entries are renumbered, and what the list file holds afterwards.
struct ListConversion
{
    ConversionMap categoryMap;
    ConversionMap paywayMap;
    // New lists by list file key ("CategoryList", "ColorList", "PaywayList");
    // a key left out keeps its list.
    QVariantMap lists;

    // All three lists to be written into the list file of the folder. A
    // colour the file holds already keeps its archive as it is, so that
    // only what changed is rewritten; the income category, last, is always
    // painted gray, whatever colour it is given.
    void setLists(const StoredLists &stored, const QString &folder);

    bool renumbers() const { return !categoryMap.isEmpty() || !paywayMap.isEmpty(); }
};
