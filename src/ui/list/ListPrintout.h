#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <memory>

class QAbstractItemModel;
class QPagedPaintDevice;
class QTextDocument;

// The printed form of the list window: a heading, the month's totals, and
// every row of the table in the columns shown, repeated column titles on each
// page. Printing and the PDF export both go through it.
class ListPrintout
{
public:
    // The labelled totals are printed as given, in order.
    using Totals = QList<QPair<QString, QString>>;

    // The note, when there is one, goes under the heading.
    ListPrintout(const QAbstractItemModel &model, const QList<int> &columns, const QString &heading,
                 const QString &note, const Totals &totals);

    void print(QPagedPaintDevice *device) const;
    // The document printed, laid out for no page in particular.
    std::unique_ptr<QTextDocument> document() const;

private:
    const QAbstractItemModel &m_model;
    QList<int> m_columns;
    QString m_heading;
    QString m_note;
    Totals m_totals;
};
