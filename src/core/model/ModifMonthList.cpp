#include "model/ModifMonthList.h"

#include "model/LedgerController.h"
#include "model/Notifications.h"

#include <QtDebug>

namespace {
struct CalendarMonths
{
    std::shared_ptr<DataList> previous;
    std::shared_ptr<DataList> current;
};

CalendarMonths calendarMonths(int year, int month)
{
    LedgerController *controller = LedgerController::installed();
    if (!controller)
        return {};
    const bool january = month == 1;
    return {controller->listForYear(january ? year - 1 : year, january ? 12 : month - 1),
            controller->listForYear(year, month)};
}
} // namespace

ModifMonthList::ModifMonthList(int year, int month, int date)
    : MonthDataList(year, month)
    , m_lastDate(date)
{
    initData();
    const CalendarMonths months = calendarMonths(year, month);
    m_previous = months.previous;
    m_current = months.current;
    m_observer = QObject::connect(Notifications::instance(), &Notifications::dataListHasChanged,
                                  [this](DataList *list) {
                                      if (isUnderlying(list))
                                          notifyChange();
                                  });
}

ModifMonthList::~ModifMonthList()
{
    QObject::disconnect(m_observer);
}

bool ModifMonthList::isUnderlying(const DataList *list) const
{
    return list && (list == m_previous.lock().get() || list == m_current.lock().get());
}

void ModifMonthList::initData()
{
    const CalendarMonths months = calendarMonths(m_year, m_month);
    m_dataListArray.clear();
    // The tail of the month before, then the head of this month: each is
    // already in day order, so the whole is too.
    if (months.previous) {
        for (const PaymentDataPtr &record : months.previous->dataListArray()) {
            if (record->date() > m_lastDate)
                m_dataListArray.append(record);
        }
    }
    if (months.current) {
        for (const PaymentDataPtr &record : months.current->dataListArray()) {
            if (record->date() <= m_lastDate)
                m_dataListArray.append(record);
        }
    }
    calcSumOfData();
    // Keeps the search a window stored in this list across rebuilds; a fresh
    // list has none and so selects everything.
    extractList();
}

QDate ModifMonthList::closingMonthOf(const QDate &day, int lastDate)
{
    const QDate first(day.year(), day.month(), 1);
    return lastDate < day.day() ? first.addMonths(1) : first;
}

void ModifMonthList::notifyChange()
{
    initData();
    MonthDataList::notifyChange();
}

void ModifMonthList::addData(const PaymentArray &)
{
    qWarning("Invalid Access to ModifMonthList!! addData:");
}

void ModifMonthList::deleteData(const PaymentArray &)
{
    qWarning("Invalid Access to ModifMonthList!! deleteData:");
}

void ModifMonthList::checkDateOfDataArray(PaymentArray)
{
    qWarning("Invalid Access to ModifMonthList!! checkDateOfDataArray:");
}

void ModifMonthList::MakeNewData()
{
    qWarning("Invalid Access to ModifMonthList!! MakeNewData");
}
