#pragma once

#include <QAbstractListModel>

class DescriptionMemory;

// The remembered descriptions as the description boxes of the input rows
// offer them: the common ones, then the recent ones. All rows share it.
class DescriptionListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    DescriptionListModel(const DescriptionMemory *memory, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    // Call after the memory changed.
    void reload();

private:
    const DescriptionMemory *m_memory;
};
