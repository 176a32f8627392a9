#include "prefs/ListEditor.h"

#include <algorithm>

ListEditor::ListEditor(const QStringList &names, const QList<RgbaColor> &colors)
    : m_originalNames(names)
{
    m_items.reserve(names.size());
    m_converter.reserve(names.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        const RgbaColor color = colors.value(i);
        m_items.append({m_nextId, names.at(i), color});
        m_originalColors.append(color);
        m_converter.append(m_nextId);
        ++m_nextId;
    }
}

QStringList ListEditor::names() const
{
    QStringList names;
    names.reserve(m_items.size());
    for (const Item &item : m_items)
        names.append(item.name);
    return names;
}

QList<RgbaColor> ListEditor::colors() const
{
    QList<RgbaColor> colors;
    colors.reserve(m_items.size());
    for (const Item &item : m_items)
        colors.append(item.color);
    return colors;
}

void ListEditor::setReservedNames(const QStringList &names)
{
    m_reservedNames = names;
}

bool ListEditor::contains(const QString &name) const
{
    return m_reservedNames.contains(name)
        || std::any_of(m_items.cbegin(), m_items.cend(),
                       [&name](const Item &item) { return item.name == name; });
}

void ListEditor::addItem(const QString &name, const RgbaColor &color)
{
    m_items.append({m_nextId++, name, color});
}

bool ListEditor::renameItem(int row, const QString &name)
{
    if (row < 0 || row >= count() || name.trimmed().isEmpty() || contains(name))
        return false;
    m_items[row].name = name;
    return true;
}

void ListEditor::setColor(int row, const RgbaColor &color)
{
    if (row >= 0 && row < count())
        m_items[row].color = color;
}

bool ListEditor::mergeItem(int row, int target)
{
    if (row < 0 || row >= count() || target < 0 || target >= count() || row == target)
        return false;
    const int gone = m_items.at(row).id;
    const int kept = m_items.at(target).id;
    std::replace(m_converter.begin(), m_converter.end(), gone, kept);
    m_items.removeAt(row);
    return true;
}

int ListEditor::moveDestination(int from, int dropRow)
{
    return from >= dropRow ? dropRow : dropRow - 1;
}

bool ListEditor::moveItem(int from, int dropRow)
{
    if (from < 0 || from >= count() || dropRow < 0 || dropRow > count())
        return false;
    const int to = moveDestination(from, dropRow);
    if (to == from)
        return false;
    m_items.move(from, to);
    return true;
}

int ListEditor::rowOfId(int id) const
{
    for (int row = 0; row < count(); ++row) {
        if (m_items.at(row).id == id)
            return row;
    }
    // Merging always names a kept item, so every original item is somewhere.
    Q_UNREACHABLE();
    return -1;
}

ConversionMap ListEditor::conversionMap() const
{
    ConversionMap map;
    for (int old = 0; old < m_converter.size(); ++old) {
        const int now = rowOfId(m_converter.at(old));
        if (now != old)
            map.insert(old, now);
    }
    return map;
}

ConversionMap ListEditor::conversionMapWithIncomeLast() const
{
    ConversionMap map = conversionMap();
    const int oldIncome = int(m_converter.size());
    if (oldIncome != count())
        map.insert(oldIncome, count());
    return map;
}

bool ListEditor::isModified() const
{
    return names() != m_originalNames || colors() != m_originalColors;
}
