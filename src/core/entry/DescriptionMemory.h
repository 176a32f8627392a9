#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QVariantMap>

class PaymentData;

// The descriptions booked through the input window, each with the category
// and amount it was last booked with, so that choosing one again fills a row.
// Two short lists are offered: the most often booked descriptions ("common",
// highest count first) and the most recently booked ones that are not common
// ("recent", newest first). A database behind them counts every description
// ever booked. Descriptions compare as exact text.
class DescriptionMemory
{
public:
    struct Record
    {
        QString details;
        int category = -1; // -1: booked without a category
        float amount = 0;
        int count = 0; // bookings of this description so far

        QVariantMap toVariantMap() const;
        static Record fromVariant(const QVariant &value);
        bool operator==(const Record &other) const = default;
    };

    static constexpr int maxOfRecentDescriptions = 5;
    static constexpr int maxOfCommonDescriptions = 8;

    // Replaces the memory by what the settings hold; missing keys read as
    // empty, and what was stored is taken as it is, untrimmed.
    void readRecentItemsFromDefault();
    // Stores all three parts in the settings.
    void writeToDefault() const;

    // Remembers one booked record; one with empty details is ignored.
    void addNewDescription(const PaymentData &record);
    void addNewDescriptionToCommon(Record &record);
    void addNewDescriptionToRecent(const Record &record);
    bool isCommonDescriptionContainsData(const Record &record) const;

    // What a description list offers: the common records, then the recent
    // ones.
    int numberOfItems() const;
    Record itemAt(int index) const;

    const QList<Record> &commonDescriptions() const { return m_common; }
    const QList<Record> &recentDescriptions() const { return m_recent; }
    const QHash<QString, Record> &commonDescriptionsDB() const { return m_database; }

private:
    QList<Record> m_recent;
    QList<Record> m_common;
    QHash<QString, Record> m_database;
};
