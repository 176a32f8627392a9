#pragma once

#include "model/PaymentData.h"
#include "model/RgbaColor.h"

#include <QList>
#include <QString>
#include <QStringList>

// One of the user's lists (the spending categories with their colours, or the
// payways) while the preferences edit it. Entries store an item's position, so
// the editor remembers, for every item the list had when editing began, which
// item its entries now belong to; confirming turns that into the conversion
// map that renumbers the stored entries.
//
// Items are followed by identity, not by name: two items of one name, or an
// item renamed after another was merged into it, still convert to their own
// position.
class ListEditor
{
public:
    // The names, and for categories one colour per name (black where
    // none is given).
    explicit ListEditor(const QStringList &names = {}, const QList<RgbaColor> &colors = {});

    int count() const { return int(m_items.size()); }
    QString name(int row) const { return m_items.at(row).name; }
    RgbaColor color(int row) const { return m_items.at(row).color; }
    QStringList names() const;
    QList<RgbaColor> colors() const;
    // Also true for a reserved name.
    bool contains(const QString &name) const;
    // Names no item may take, such as the income category's, which follows
    // the spending categories without being edited here.
    void setReservedNames(const QStringList &names);

    void addItem(const QString &name, const RgbaColor &color = {});
    // Refused (false) for an empty name and for a name the list already
    // holds, the item's own included.
    bool renameItem(int row, const QString &name);
    void setColor(int row, const RgbaColor &color);
    // Removes the item at row; its entries go to the item at target (a row of
    // the list before the removal). Refused when the two are the same row.
    bool mergeItem(int row, int target);
    // A drag of the item at from, dropped in the gap above row dropRow
    // (count() for below the last item). False when nothing moves.
    bool moveItem(int from, int dropRow);
    // Where the dragged item lands: the gap above dropRow, counted in the
    // list without the dragged item.
    static int moveDestination(int from, int dropRow);

    // Old position to new position of every original item whose entries
    // must be renumbered.
    ConversionMap conversionMap() const;
    // The same for the spending categories, which the income category
    // follows: it was at the original count and is now at count().
    ConversionMap conversionMapWithIncomeLast() const;
    // Whether the names, colours or order differ from the original list.
    bool isModified() const;

private:
    struct Item
    {
        int id;
        QString name;
        RgbaColor color;
    };

    int rowOfId(int id) const;

    QList<Item> m_items;
    // Original position to the id of the item its entries belong to now.
    QList<int> m_converter;
    QStringList m_originalNames;
    QList<RgbaColor> m_originalColors;
    QStringList m_reservedNames;
    int m_nextId = 0;
};
