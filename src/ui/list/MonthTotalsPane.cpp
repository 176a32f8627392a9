#include "list/MonthTotalsPane.h"

#include "model/DataList.h"
#include "model/NumberValue.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

#include <cmath>

namespace {

// Amounts as the fields show them, to cents.
double shownAmount(double amount)
{
    return std::round(amount * 100.0) / 100.0;
}

QLabel *amountLabel(const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("-000,000,000")));
    return label;
}

} // namespace

MonthTotalsPane::MonthTotalsPane(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    m_monthBox = new QGroupBox(tr("This Month"), this);
    m_monthBox->setObjectName(QStringLiteral("totalsBox"));
    auto *month = new QFormLayout(m_monthBox);
    month->setLabelAlignment(Qt::AlignLeft);
    m_expendTotal = amountLabel(QStringLiteral("expendTotalTF"), m_monthBox);
    m_incomeTotal = amountLabel(QStringLiteral("incomeTotalTF"), m_monthBox);
    m_balance = amountLabel(QStringLiteral("balanceTF"), m_monthBox);
    month->addRow(tr("Spending:"), m_expendTotal);
    month->addRow(tr("Income:"), m_incomeTotal);
    month->addRow(tr("Balance:"), m_balance);

    auto *foundBox = new QGroupBox(tr("Shown Entries"), this);
    auto *found = new QFormLayout(foundBox);
    m_extractedTotal = amountLabel(QStringLiteral("extractedTotalTF"), foundBox);
    m_extractedRate = amountLabel(QStringLiteral("extractedRateTF"), foundBox);
    m_extractedBalance = amountLabel(QStringLiteral("extractedBalanceTF"), foundBox);
    found->addRow(tr("Spending:"), m_extractedTotal);
    found->addRow(tr("Share of the month:"), m_extractedRate);
    found->addRow(tr("Balance:"), m_extractedBalance);

    layout->addWidget(m_monthBox, 0, Qt::AlignTop);
    layout->addWidget(foundBox, 0, Qt::AlignTop);
}

void MonthTotalsPane::showTotals(const DataList &list, std::optional<double> lastMonthsBalance)
{
    const double expend = list.expendTotal();
    const double income = list.incomeTotal();
    m_expendTotal->setText(amountText(expend));
    m_incomeTotal->setText(amountText(income));
    m_balance->setText(amountText(income - expend));
    m_extractedTotal->setText(amountText(list.extractedTotal()));
    // The share is taken of the amounts as shown.
    const double shownExpend = shownAmount(expend);
    const double rate =
        shownExpend != 0 ? shownAmount(list.extractedTotal()) / shownExpend * 100.0 : 0.0;
    m_extractedRate->setText(tr("%1 %").arg(QLocale().toString(rate, 'f', 1)));
    m_extractedBalance->setText(amountText(list.extractedIncomeTotal() - list.extractedTotal()));

    const QString balance = lastMonthsBalance ? amountText(*lastMonthsBalance) : QString();
    // The translation may place the value itself; otherwise it follows.
    const QString label = QCoreApplication::translate("Localizable", "Balance of last month");
    m_monthBox->setToolTip(label.contains(u"%1") ? label.arg(balance)
                                                   : label + QStringLiteral(": ") + balance);
}

ListPrintout::Totals MonthTotalsPane::printedTotals(bool searched) const
{
    ListPrintout::Totals totals{{tr("Spending"), m_expendTotal->text()},
                                {tr("Income"), m_incomeTotal->text()},
                                {tr("Balance"), m_balance->text()}};
    if (searched) {
        totals.append({tr("Spending of the entries shown"), m_extractedTotal->text()});
        totals.append({tr("Share of the month"), m_extractedRate->text()});
        totals.append({tr("Balance of the entries shown"), m_extractedBalance->text()});
    }
    return totals;
}
