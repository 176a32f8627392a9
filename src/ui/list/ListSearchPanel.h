#pragma once

#include "model/ExtractKeyDict.h"

#include <QWidget>

class CheckPopUpButton;
class QLineEdit;

// The list window's search bar: days, words, an amount range, categories and
// payways. Its keys follow the user from month to month; it says when they
// change and hands them over as the keys a month list filters by.
class ListSearchPanel : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { Category, Payway };

    explicit ListSearchPanel(QWidget *parent = nullptr);

    void setNames(const QStringList &categories, const QStringList &payways);

    // Empties every field without announcing it.
    void clear();
    // Leaves only the one category (or payway) checked; an index out of range
    // checks none. Announces nothing.
    void checkOnly(Kind kind, int index);

    bool hasKeys() const;
    ExtractKeyDict keys(int incomeNumber) const;
    // The keys in words, for a printout.
    QString description() const;

signals:
    void keysChanged();

private:
    QLineEdit *m_dateField;
    QLineEdit *m_detailsField;
    QLineEdit *m_amountMinField;
    QLineEdit *m_amountMaxField;
    CheckPopUpButton *m_categoryButton;
    CheckPopUpButton *m_paywayButton;
    qsizetype m_categoryCount = 0;
    qsizetype m_paywayCount = 0;
};
