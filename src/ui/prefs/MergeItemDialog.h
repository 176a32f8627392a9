#pragma once

#include <QDialog>

class QComboBox;

// Asked before a category or payway is deleted: entries store the item's
// position, so they must go to another item; the dialog offers every other
// item of the list, in list order.
class MergeItemDialog : public QDialog
{
    Q_OBJECT

public:
    MergeItemDialog(const QStringList &names, int row, QWidget *parent);

    // The item being deleted.
    int row() const { return m_row; }
    // The item chosen to take its entries, as a row of the list.
    int targetRow() const;

private:
    QComboBox *m_targets;
    int m_row;
};
