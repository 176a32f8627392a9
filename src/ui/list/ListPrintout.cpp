#include "list/ListPrintout.h"

#include <QAbstractItemModel>
#include <QBrush>
#include <QFont>
#include <QPagedPaintDevice>
#include <QPalette>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

ListPrintout::ListPrintout(const QAbstractItemModel &model, const QList<int> &columns,
                           const QString &heading, const QString &note, const Totals &totals)
    : m_model(model)
    , m_columns(columns)
    , m_heading(heading)
    , m_note(note)
    , m_totals(totals)
{
}

namespace {

// Writes a cell's text with the alignment the table shows it with.
void fillCell(QTextTable *table, int row, int column, const QString &text, Qt::Alignment alignment,
              const QTextCharFormat &format)
{
    QTextCursor cursor = table->cellAt(row, column).firstCursorPosition();
    QTextBlockFormat block = cursor.blockFormat();
    block.setAlignment(alignment & Qt::AlignHorizontal_Mask);
    cursor.setBlockFormat(block);
    cursor.insertText(text, format);
}

} // namespace

std::unique_ptr<QTextDocument> ListPrintout::document() const
{
    auto document = std::make_unique<QTextDocument>();
    QFont font = document->defaultFont();
    font.setPointSizeF(9);
    document->setDefaultFont(font);
    QTextCursor cursor(document.get());

    QTextCharFormat headingFormat;
    headingFormat.setFontPointSize(15);
    headingFormat.setFontWeight(QFont::Bold);
    cursor.insertText(m_heading, headingFormat);

    QTextCharFormat plain;
    if (!m_note.isEmpty()) {
        cursor.insertBlock();
        cursor.insertText(m_note, plain);
    }
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);

    // The totals: a borderless table of labels and values.
    if (!m_totals.isEmpty()) {
        QTextTableFormat totalsFormat;
        totalsFormat.setBorderStyle(QTextFrameFormat::BorderStyle_None);
        totalsFormat.setCellPadding(2);
        totalsFormat.setTopMargin(6);
        QTextTable *totals = cursor.insertTable(int(m_totals.size()), 2, totalsFormat);
        for (int i = 0; i < m_totals.size(); ++i) {
            fillCell(totals, i, 0, m_totals.at(i).first, Qt::AlignLeft, plain);
            fillCell(totals, i, 1, m_totals.at(i).second, Qt::AlignRight, bold);
        }
        cursor.movePosition(QTextCursor::End);
    }

    const int rows = m_model.rowCount();
    QTextTableFormat tableFormat;
    tableFormat.setHeaderRowCount(1);
    tableFormat.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    tableFormat.setBorderCollapse(true);
    tableFormat.setBorder(0.5);
    tableFormat.setBorderBrush(QBrush(Qt::gray));
    tableFormat.setCellPadding(4);
    tableFormat.setTopMargin(10);
    QTextTable *table = cursor.insertTable(rows + 1, int(m_columns.size()), tableFormat);

    QTextCharFormat headerFormat = bold;
    headerFormat.setBackground(QColor(230, 230, 230));
    for (int c = 0; c < m_columns.size(); ++c) {
        const int column = m_columns.at(c);
        const auto alignment = Qt::Alignment(
            m_model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt());
        table->cellAt(0, c).setFormat(headerFormat);
        fillCell(table, 0, c, m_model.headerData(column, Qt::Horizontal).toString(),
                 alignment ? alignment : Qt::AlignLeft, bold);
    }
    for (int row = 0; row < rows; ++row) {
        for (int c = 0; c < m_columns.size(); ++c) {
            const QModelIndex index = m_model.index(row, m_columns.at(c));
            const auto alignment = Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt());
            fillCell(table, row + 1, c, index.data().toString(), alignment, plain);
        }
    }
    return document;
}

void ListPrintout::print(QPagedPaintDevice *device) const
{
    // Unpaginated, the document is broken into the device's pages, with a
    // margin and the page number at the foot of each.
    document()->print(device);
}
