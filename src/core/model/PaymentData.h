#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

#include <memory>

class DataList;
class PaymentData;
struct ExtractKeyDict;

// Records are shared: the month list of a record's own year and month is its
// home, and year lists, closing-day lists and search results hold further
// pointers to the same objects, so an edit made through any of them changes
// the one record. Every list therefore holds shared pointers, and a record is
// always created through std::make_shared.
using PaymentDataPtr = std::shared_ptr<PaymentData>;
using PaymentArray = QList<PaymentDataPtr>;

// Old index to new index of the list items whose position changed; indices
// missing from it are kept.
using ConversionMap = QHash<int, int>;

// One booked payment or income: a day, a category, a text, an amount and the
// means of payment. Category and payway are positions in the user's lists;
// income is the last category, not a sign of the amount.
class PaymentData : public std::enable_shared_from_this<PaymentData>
{
public:
    // The fields by name, for sorting, searching, table edits and scripts.
    enum class Key { Date, Month, Year, Category, Details, Amount, Payway, Unknown };
    static Key keyFromName(QStringView name);

    // A new record dated today, category and payway 0, empty details, amount 0.
    // It is initializing: filling it in reports nothing until the creator calls
    // setInitializing(false).
    PaymentData();
    // A record with the given fields, stored unchecked as a file holds them;
    // it reports every later change.
    PaymentData(int year, int month, int date, int category, const QString &details, float amount,
                int payway);

    int year() const { return m_year; }
    int month() const { return m_month; }
    int date() const { return m_date; }
    int category() const { return m_category; }
    const QString &details() const { return m_details; }
    float amount() const { return m_amount; }
    int payway() const { return m_payway; }
    bool initializing() const { return m_initializing; }

    void setYear(int year);
    // Clamped to 1..12.
    void setMonth(int month);
    // Normalised through the calendar of the record's year and month: a day
    // past the month's end wraps into the next month's numbering (31 April is
    // stored as 1) while the year and month stay as they are.
    void setDate(int date);
    void setCategory(int category);
    void setDetails(const QString &details);
    void setAmount(float amount);
    void setPayway(int payway);
    void setInitializing(bool initializing);

    // Reports this record to the controller unless it is still initializing.
    void edited();
    // The month list of the record's own year and month.
    std::shared_ptr<DataList> dataList() const;

    // "Date", "Month", "Year", "Category", "Details", "Amount", "Payway"
    // (exact case); any other key answers the text "Err!!".
    QVariant dataForKey(QStringView key) const;
    QVariant dataForKey(Key key) const;
    // Range-checked setting by the same keys: days 1..31, months 1..12, years
    // 1970..2100. A value out of range or an unknown key changes nothing.
    void setData(const QVariant &value, QStringView key);
    // The lower-case keys of scripts; an unknown key answers an invalid value.
    QVariant propertyForKey(QStringView key) const;

    // Names in the controller's current lists; empty when out of range.
    QString categoryAsName() const;
    QString paywayAsName() const;

    void convertCategory(const ConversionMap &map);
    void convertPayway(const ConversionMap &map);

    // Does this record meet every key present?
    bool isRequestedData(const ExtractKeyDict &keys) const;

    QString description() const;
    // One tab-separated line: date, category name, details, whole amount
    // (truncated), payway name.
    QString descriptionForScript() const;

private:
    int m_year = 0;
    int m_month = 0;
    int m_date = 0;
    int m_category = 0;
    QString m_details;
    float m_amount = 0;
    int m_payway = 0;
    bool m_initializing = true;
};
