#include "model/PaymentData.h"

#include "model/DataList.h"
#include "model/ExtractKeyDict.h"
#include "model/LedgerController.h"
#include "model/NumberValue.h"
#include "search/StringUtility.h"

#include <QDate>

#include <algorithm>

PaymentData::Key PaymentData::keyFromName(QStringView name)
{
    // Compared in the order of the keys' table; exact case.
    if (name == u"Date")
        return Key::Date;
    if (name == u"Month")
        return Key::Month;
    if (name == u"Year")
        return Key::Year;
    if (name == u"Category")
        return Key::Category;
    if (name == u"Details")
        return Key::Details;
    if (name == u"Amount")
        return Key::Amount;
    if (name == u"Payway")
        return Key::Payway;
    return Key::Unknown;
}

PaymentData::PaymentData()
{
    const QDate today = QDate::currentDate();
    m_year = today.year();
    m_month = today.month();
    m_date = today.day();
}

PaymentData::PaymentData(int year, int month, int date, int category, const QString &details,
                         float amount, int payway)
    : m_year(year)
    , m_month(month)
    , m_date(date)
    , m_category(category)
    , m_details(details)
    , m_amount(amount)
    , m_payway(payway)
    , m_initializing(false)
{
}

void PaymentData::setYear(int year)
{
    m_year = year;
    edited();
}

void PaymentData::setMonth(int month)
{
    m_month = std::clamp(month, 1, 12);
    edited();
}

void PaymentData::setDate(int date)
{
    // Month and day are counted from the first of the year so that a month a
    // file holds out of range still lands on a real calendar day.
    const QDate normalised = QDate(m_year, 1, 1).addMonths(m_month - 1).addDays(qint64(date) - 1);
    m_date = normalised.isValid() ? normalised.day() : date;
    edited();
}

void PaymentData::setCategory(int category)
{
    m_category = category;
    edited();
}

void PaymentData::setDetails(const QString &details)
{
    m_details = details;
    edited();
}

void PaymentData::setAmount(float amount)
{
    m_amount = amount;
    edited();
}

void PaymentData::setPayway(int payway)
{
    m_payway = payway;
    edited();
}

void PaymentData::setInitializing(bool initializing)
{
    m_initializing = initializing;
}

void PaymentData::edited()
{
    if (m_initializing)
        return;
    LedgerController *controller = LedgerController::installed();
    if (!controller)
        return;
    // Only a record that lives in a list (and so in a shared pointer) can be
    // reported; the controller finds its list by the record's month.
    if (PaymentDataPtr self = weak_from_this().lock())
        controller->editData({self});
}

std::shared_ptr<DataList> PaymentData::dataList() const
{
    LedgerController *controller = LedgerController::installed();
    return controller ? controller->listForYear(m_year, m_month) : nullptr;
}

QVariant PaymentData::dataForKey(QStringView key) const
{
    return dataForKey(keyFromName(key));
}

QVariant PaymentData::dataForKey(Key key) const
{
    switch (key) {
    case Key::Date:
        return m_date;
    case Key::Month:
        return m_month;
    case Key::Year:
        return m_year;
    case Key::Category:
        return m_category;
    case Key::Details:
        return m_details;
    case Key::Amount:
        return m_amount;
    case Key::Payway:
        return m_payway;
    case Key::Unknown:
        break;
    }
    return QStringLiteral("Err!!");
}

void PaymentData::setData(const QVariant &value, QStringView key)
{
    const auto inRange = [](int v, int low, int high) { return v >= low && v <= high; };
    switch (keyFromName(key)) {
    case Key::Date:
        if (const int v = integerValueOf(value); inRange(v, 1, 31))
            setDate(v);
        break;
    case Key::Month:
        if (const int v = integerValueOf(value); inRange(v, 1, 12))
            setMonth(v);
        break;
    case Key::Year:
        if (const int v = integerValueOf(value); inRange(v, 1970, 2100))
            setYear(v);
        break;
    case Key::Category:
        setCategory(integerValueOf(value));
        break;
    case Key::Details:
        setDetails(value.toString());
        break;
    case Key::Amount:
        setAmount(floatValueOf(value));
        break;
    case Key::Payway:
        setPayway(integerValueOf(value));
        break;
    case Key::Unknown:
        break;
    }
}

QVariant PaymentData::propertyForKey(QStringView key) const
{
    if (key == u"amount")
        return m_amount;
    if (key == u"category")
        return m_category;
    if (key == u"date")
        return m_date;
    if (key == u"details")
        return m_details;
    if (key == u"month")
        return m_month;
    if (key == u"payway")
        return m_payway;
    if (key == u"year")
        return m_year;
    return {};
}

namespace {
QString nameAt(const QStringList &names, int index)
{
    return index >= 0 && index < names.size() ? names.at(index) : QString();
}
} // namespace

QString PaymentData::categoryAsName() const
{
    LedgerController *controller = LedgerController::installed();
    return controller ? nameAt(controller->categoryList(), m_category) : QString();
}

QString PaymentData::paywayAsName() const
{
    LedgerController *controller = LedgerController::installed();
    return controller ? nameAt(controller->paywayList(), m_payway) : QString();
}

void PaymentData::convertCategory(const ConversionMap &map)
{
    if (const auto it = map.constFind(m_category); it != map.cend())
        setCategory(it.value());
}

void PaymentData::convertPayway(const ConversionMap &map)
{
    if (const auto it = map.constFind(m_payway); it != map.cend())
        setPayway(it.value());
}

bool PaymentData::isRequestedData(const ExtractKeyDict &keys) const
{
    // The order of the tests is fixed; "Month" and "Year" compare the day on
    // purpose.
    if (keys.date && !keys.date->contains(m_date))
        return false;
    if (keys.month && !keys.month->contains(m_date))
        return false;
    if (keys.year && !keys.year->contains(m_date))
        return false;
    if (keys.category && !keys.category->contains(m_category))
        return false;
    if (keys.details && !stringHasAnyKey(m_details, *keys.details))
        return false;
    if (keys.amountMax && m_amount > *keys.amountMax)
        return false;
    if (keys.amountMin && *keys.amountMin > m_amount)
        return false;
    if (keys.payway && !keys.payway->contains(m_payway))
        return false;
    return true;
}

QString PaymentData::description() const
{
    return QString::asprintf("Day:%d/%d/%d Category:%d Details:%s Amount:%f Payway:%d", m_year,
                             m_month, m_date, m_category, qUtf8Printable(m_details),
                             double(m_amount), m_payway);
}

QString PaymentData::descriptionForScript() const
{
    // Joined piece by piece: a details text may itself contain "%1".
    const QChar tab = u'\t';
    return QString::number(m_year) + u'/' + QString::number(m_month) + u'/'
        + QString::number(m_date) + tab + categoryAsName() + tab + m_details + tab
        + QString::number(truncateToInt(m_amount)) + tab + paywayAsName();
}
