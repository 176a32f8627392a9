#include "storage/PropertyList.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimeZone>

#include <plist/plist.h>

#include <limits>
#include <memory>

namespace PropertyList {

namespace {

struct PlistFree
{
    void operator()(plist_t node) const { plist_free(node); }
};
using PlistPtr = std::unique_ptr<std::remove_pointer_t<plist_t>, PlistFree>;

// Property-list dates count seconds from the first moment of 2001, UTC.
const QDateTime &referenceDate()
{
    static const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    return reference;
}

// Nesting deeper than any list of ours is refused rather than followed.
constexpr int kMaxDepth = 64;

QVariant toVariant(plist_t node, int depth)
{
    if (!node || depth > kMaxDepth)
        return {};
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return bool(value);
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        // Negative integers are stored as their two's complement.
        return qint64(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        char *text = nullptr;
        plist_get_string_val(node, &text);
        const QString value = QString::fromUtf8(text);
        free(text);
        return value;
    }
    case PLIST_DATA: {
        char *bytes = nullptr;
        uint64_t length = 0;
        plist_get_data_val(node, &bytes, &length);
        const QByteArray value(bytes, qsizetype(length));
        free(bytes);
        return value;
    }
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t micros = 0;
        plist_get_date_val(node, &seconds, &micros);
        return referenceDate().addMSecs(qint64(seconds) * 1000 + micros / 1000);
    }
    case PLIST_ARRAY: {
        QVariantList list;
        const uint32_t count = plist_array_get_size(node);
        for (uint32_t i = 0; i < count; ++i)
            list.append(toVariant(plist_array_get_item(node, i), depth + 1));
        return list;
    }
    case PLIST_DICT: {
        QVariantMap map;
        plist_dict_iter it = nullptr;
        plist_dict_new_iter(node, &it);
        for (;;) {
            char *key = nullptr;
            plist_t value = nullptr;
            plist_dict_next_item(node, it, &key, &value);
            if (!key)
                break;
            map.insert(QString::fromUtf8(key), toVariant(value, depth + 1));
            free(key);
        }
        free(it);
        return map;
    }
    default:
        return {};
    }
}

plist_t toNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return plist_new_uint(uint64_t(value.toLongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), uint64_t(bytes.size()));
    }
    case QMetaType::QDateTime: {
        const qint64 ms = referenceDate().msecsTo(value.toDateTime());
        return plist_new_date(int32_t(ms / 1000), int32_t(ms % 1000) * 1000);
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        plist_t array = plist_new_array();
        const QVariantList list = value.toList();
        for (const QVariant &item : list)
            plist_array_append_item(array, toNode(item));
        return array;
    }
    case QMetaType::QVariantMap: {
        plist_t dict = plist_new_dict();
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            plist_dict_set_item(dict, it.key().toUtf8().constData(), toNode(it.value()));
        return dict;
    }
    default:
        return plist_new_string(value.toString().toUtf8().constData());
    }
}

} // namespace

QVariant fromData(const QByteArray &data, QString *error)
{
    const auto fail = [error](const QString &reason) {
        if (error)
            *error = reason;
        return QVariant();
    };
    if (data.isEmpty())
        return fail(QCoreApplication::translate("PropertyList", "The file is empty."));
    if (data.size() > qsizetype(std::numeric_limits<uint32_t>::max()))
        return fail(QCoreApplication::translate("PropertyList", "The file is too large."));
    plist_t root = nullptr;
    plist_from_memory(data.constData(), uint32_t(data.size()), &root);
    const PlistPtr owner(root);
    if (!root)
        return fail(QCoreApplication::translate("PropertyList", "It is not a property list."));
    QVariant value = toVariant(root, 0);
    if (!value.isValid())
        return fail(QCoreApplication::translate("PropertyList",
                                                "It holds a kind of value Penwick does not keep."));
    return value;
}

QByteArray toXml(const QVariant &value)
{
    const PlistPtr root(toNode(value));
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &xml, &length);
    const QByteArray result(xml, qsizetype(length));
    plist_to_xml_free(xml);
    return result;
}

} // namespace PropertyList
