#include "DumpCommand.h"

#include "CommandLine.h"

#include "model/MonthDataList.h"
#include "model/NumberValue.h"
#include "model/PaymentData.h"
#include "storage/MonthFile.h"
#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"

#include <QCommandLineParser>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringDecoder>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonValue realToJson(char type, double value)
{
    // JSON has no NaN or infinities.
    if (std::isnan(value))
        return u"nan"_s;
    if (std::isinf(value))
        return value > 0 ? u"inf"_s : u"-inf"_s;
    // A float's double carries digits that were never written: 0.1 would show
    // as 0.10000000149011612.
    if (type == 'f')
        return shortestDouble(float(value));
    return value;
}

QJsonArray classChainToJson(TypedStreamClassChainView chain)
{
    QJsonArray classes;
    for (const TypedStreamClass &cls : chain)
        classes.append(QJsonObject{{u"name"_s, QString::fromUtf8(cls.name)},
                                   {u"version"_s, cls.version}});
    return classes;
}

// Numbers the objects as it meets them, to show those met again as references.
class JsonBuilder
{
public:
    QJsonArray values(std::span<const TypedStreamValue> values)
    {
        QJsonArray array;
        for (const TypedStreamValue &value : values)
            array.append(this->value(value));
        return array;
    }

    QJsonObject value(const TypedStreamValue &value)
    {
        QJsonObject json{{u"type"_s, QString(QLatin1Char(value.type))}};
        std::visit([&](const auto &data) { add(json, value.type, data); }, value.data);
        return json;
    }

private:
    void add(QJsonObject &json, char, std::monostate) { json[u"value"_s] = QJsonValue::Null; }

    void add(QJsonObject &json, char type, qint64 number)
    {
        // "Q" holds the bits of an unsigned 64-bit number.
        if (type == 'Q' && number < 0)
            json[u"value"_s] = QString::number(quint64(number));
        else
            json[u"value"_s] = number;
    }

    void add(QJsonObject &json, char type, double number)
    {
        json[u"value"_s] = realToJson(type, number);
    }

    void add(QJsonObject &json, char, QByteArrayView bytes)
    {
        // Stateless: a sequence cut off at the end is an error, not left pending.
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless
                                                         | QStringDecoder::Flag::ConvertInitialBom);
        const QString text = decoder.decode(bytes);
        if (decoder.hasError())
            json[u"hex"_s] = QString::fromLatin1(bytes.toByteArray().toHex());
        else
            json[u"text"_s] = text;
    }

    void add(QJsonObject &json, char, TypedStreamClassChainView chain)
    {
        json[u"classes"_s] = classChainToJson(chain);
    }

    void add(QJsonObject &json, char, const TypedStreamObject *object)
    {
        if (const auto seen = m_numbers.constFind(object); seen != m_numbers.cend()) {
            json[u"ref"_s] = *seen;
            return;
        }
        const int number = int(m_numbers.size()) + 1;
        m_numbers.insert(object, number);
        json[u"object"_s] = number;
        json[u"classes"_s] = classChainToJson(object->classChain);
        json[u"values"_s] = values(object->values);
    }

    void add(QJsonObject &json, char, TypedStreamValue::Members members)
    {
        json[u"members"_s] = values(members);
    }

    QHash<const TypedStreamObject *, int> m_numbers;
};

int unreadable(const QString &path, const QString &reason)
{
    CommandLine::printError(path + u": "_s + reason);
    return CommandLine::Failure;
}

} // namespace

QString DumpCommand::name()
{
    return u"dump"_s;
}

QString DumpCommand::summary()
{
    return tr("Print an archive as JSON, or the entries of a month file.");
}

int DumpCommand::run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Prints any typed-stream archive as JSON: its byte order, system version and\n"
           "top-level values, each with its type code. Objects show their classes with\n"
           "their versions, and their values; an object met again shows as {\"ref\": N},\n"
           "N being the \"object\" number it was given first. Byte strings show as\n"
           "\"text\" when they are UTF-8 and as \"hex\" otherwise."));
    const QCommandLineOption entriesOption(
        u"entries"_s,
        tr("Read FILE as a month file and print its entries instead, one a line and "
           "tab-separated: year/month/day, category index, details, amount, payway index. "
           "The month's memo, if any, comes first, after \"# \". Tabs, newlines and "
           "backslashes in texts are written as \\t, \\n and \\\\."));
    parser.addOption(entriesOption);
    parser.addPositionalArgument(u"FILE"_s, tr("The file to read."));
    if (const auto status = CommandLine::parse(parser, name(), arguments))
        return *status;
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1)
        return CommandLine::usageError(name(), tr("give exactly one FILE"));

    const QString &path = files.constFirst();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(path, file.errorString());
    const QByteArray data = file.readAll();

    if (parser.isSet(entriesOption)) {
        QString error;
        const std::shared_ptr<MonthDataList> month = MonthFile::decode(data, &error);
        if (!month)
            return unreadable(path, error);
        CommandLine::printOut(entriesToText(*month).toUtf8());
    } else {
        // Shown as references, like objects met again: the walk numbers an
        // object before its values.
        const TypedStreamReader reader(data, TypedStreamReader::OpenReferences::Allow);
        if (!reader.isValid())
            return unreadable(path, reader.errorString());
        CommandLine::printOut(QJsonDocument(streamToJson(reader)).toJson(QJsonDocument::Indented));
    }
    return CommandLine::Success;
}

QJsonObject DumpCommand::streamToJson(const TypedStreamReader &reader)
{
    return {
        {u"byteOrder"_s, reader.isBigEndian() ? u"big-endian"_s : u"little-endian"_s},
        {u"systemVersion"_s, reader.systemVersion()},
        {u"values"_s, JsonBuilder().values(reader.topLevelValues())},
    };
}

QString DumpCommand::entriesToText(const MonthDataList &month)
{
    using CommandLine::escaped;
    QString text;
    if (!month.summary().isEmpty())
        text += u"# "_s + escaped(month.summary()) + u'\n';
    for (const PaymentDataPtr &entry : month.dataListArray()) {
        // One arg() call for all fields: a "%1" in the details stays as it is.
        text += u"%1/%2/%3\t%4\t%5\t%6\t%7\n"_s.arg(
            QString::number(entry->year()), QString::number(entry->month()),
            QString::number(entry->date()), QString::number(entry->category()),
            escaped(entry->details()), shortestText(entry->amount()),
            QString::number(entry->payway()));
    }
    return text;
}
