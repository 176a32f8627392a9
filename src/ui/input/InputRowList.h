#pragma once

#include <QList>
#include <QWidget>

class InputRow;
class KeyButton;
class QAbstractItemModel;
class QLabel;
class QScrollArea;
class QVBoxLayout;

// The rows of the input window under their column titles, scrolling when
// they outgrow the window, with the spending total under the amounts and the
// button that adds a row. Rows are chained in the Tab order as they come:
// from the control given as the start, through every row, to the button.
class InputRowList : public QWidget
{
    Q_OBJECT

public:
    // Every row's description box shares the one list of descriptions.
    InputRowList(QAbstractItemModel *descriptions, QWidget *parent = nullptr);

    const QList<InputRow *> &rows() const { return m_rows; }
    // The row of a control's tag; null for none.
    InputRow *rowOfTag(int tag) const;
    void setTabStart(QWidget *start) { m_tabStart = start; }
    KeyButton *addRowButton() const { return m_addRowButton; }

    // A new row at the bottom, chained into the Tab order.
    InputRow *addRow();
    // Removes the rows past the first `keep`.
    void removeRowsAfter(int keep);
    // Scrolls to the control once the layout has placed it.
    void ensureVisible(QWidget *control);
    void scrollToTop();

    // The pop-ups' widths, for every row and the titles over them.
    void setPopUpWidths(int category, int payway);
    void setTotalText(const QString &text);
    // The height one more row takes.
    int rowHeight() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractItemModel *m_descriptions;
    QList<InputRow *> m_rows;
    QWidget *m_tabStart = nullptr;
    QWidget *m_header;
    QLabel *m_categoryTitle;
    QLabel *m_paywayTitle;
    QScrollArea *m_scrollArea;
    QWidget *m_inputView;
    QVBoxLayout *m_rowsLayout;
    QWidget *m_sumRow;
    QWidget *m_sumTrailer;
    QLabel *m_sumTF;
    KeyButton *m_addRowButton;
    int m_categoryWidth = 0;
    int m_paywayWidth = 0;
};
