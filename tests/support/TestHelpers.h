#pragma once

#include "ledger/DataFolder.h"
#include "model/MonthDataList.h"
#include "model/PaymentData.h"
#include "storage/MonthFile.h"

#include <QFile>
#include <QStringList>
#include <QTest>

// Small helpers the tests of several areas share.

inline QByteArray readBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// The details texts of the records, in order: what a test compares lists by.
inline QStringList detailsOf(const PaymentArray &records)
{
    QStringList texts;
    for (const PaymentDataPtr &r : records)
        texts.append(r->details());
    return texts;
}

// "a b c" as {"a", "b", "c"}: lists of details in data tables, written short.
inline QStringList words(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

inline PaymentDataPtr entry(int year, int month, int date, const QString &details,
                            float amount = 100, int category = 0, int payway = 0)
{
    return std::make_shared<PaymentData>(year, month, date, category, details, amount, payway);
}

// A month file as another program (or an older run of this one) left it.
inline void writeMonthFile(const QString &folder, int year, int month, const PaymentArray &records,
                           const QString &summary = {})
{
    MonthDataList list(year, month);
    list.setDataListArray(records);
    list.setSummary(summary);
    writeBytes(DataFolder::filePathForYear(folder, year, month), MonthFile::encode(list));
}

// The records of a month file as it is on the disk; empty when unreadable.
inline QStringList detailsOnDisk(const QString &folder, int year, int month)
{
    const auto list = MonthFile::decode(
        readBytes(DataFolder::filePathForYear(folder, year, month)), nullptr);
    return list ? detailsOf(list->dataListArray()) : QStringList();
}

// A child a test cannot go on without.
template<typename T>
T *child(const QObject *parent, const QString &name = {})
{
    auto *found = parent->findChild<T *>(name);
    if (!found)
        qFatal("no %s named %s", T::staticMetaObject.className(), qPrintable(name));
    return found;
}
