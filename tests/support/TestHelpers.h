#pragma once

#include "model/PaymentData.h"

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
