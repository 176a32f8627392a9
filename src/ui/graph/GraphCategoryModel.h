#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>

#include <memory>

class DataList;

// The category table of the graph window: a check box, a colour swatch and
// the name of each category, its sum in the month on show and its share of
// the month's spending. The check boxes say which categories the charts
// include; all but the last (income) start checked.
class GraphCategoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { CategoryColumn, AmountColumn, RatioColumn, ColumnCount };

    explicit GraphCategoryModel(QObject *parent = nullptr);
    ~GraphCategoryModel() override;

    // New lists: every check box is set afresh.
    void setCategories(const QStringList &names, const QList<QColor> &colors);
    // The month whose sums are shown; the model reads it as it changes.
    void setDataList(std::shared_ptr<DataList> list);
    // The month's sums changed.
    void refresh();

    const QList<bool> &checks() const { return m_checks; }
    // Turns a check box over; with `all`, every box takes that box's new state.
    void toggleCheck(int row, bool all);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    void checksChanged(const QList<bool> &checks);

private:
    int amountOf(int row) const;

    QStringList m_names;
    QList<QColor> m_colors;
    QList<bool> m_checks;
    std::shared_ptr<DataList> m_list;
};
