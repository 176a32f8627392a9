#include "storage/ColorArchive.h"

#include "model/CategoryPalette.h"
#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"
#include "storage/TypedStreamWriter.h"

#include <algorithm>
#include <array>

namespace ColorArchive {

namespace {

// Colour-space kinds of an archived colour.
enum Kind : char {
    CalibratedRgb = 1,
    DeviceRgb = 2,
    CalibratedWhite = 3,
    DeviceWhite = 4,
    DeviceCmyk = 5,
    Named = 6,
};

const TypedStreamClassChain &colorClassChain()
{
    static const TypedStreamClassChain chain{{"NSColor", 0}, {"NSObject", 0}};
    return chain;
}

QByteArray archive(char kind, std::initializer_list<float> components)
{
    int identity = 0; // any address: the colour is the archive's only object
    return TypedStreamWriter::archiveRootObject(&identity, colorClassChain(),
                                                [&](TypedStreamWriter &writer) {
                                                    writer.encodeChar(kind);
                                                    writer.encodeFloats(components);
                                                });
}

std::optional<double> realAt(const TypedStreamObject &object, std::size_t index)
{
    if (index >= object.values.size())
        return std::nullopt;
    const TypedStreamValue &value = object.values[index];
    if (const double *real = std::get_if<double>(&value.data))
        return *real;
    if (const qint64 *integer = std::get_if<qint64>(&value.data))
        return double(*integer);
    return std::nullopt;
}

float unit(double component)
{
    return float(std::clamp(component, 0.0, 1.0));
}

// Named colours nest: a named colour carries its value as another colour.
constexpr int kMaxNesting = 4;

std::optional<RgbaColor> colorOf(const TypedStreamObject &object, int nesting, QString *error)
{
    const auto fail = [error](const QString &reason) -> std::optional<RgbaColor> {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    if (object.className() != "NSColor")
        return fail(QStringLiteral("the archive holds a %1, not a colour")
                        .arg(QString::fromLatin1(object.className())));
    if (object.values.empty())
        return fail(QStringLiteral("the colour has no colour space"));
    const qint64 *kind = std::get_if<qint64>(&object.values.front().data);
    if (!kind)
        return fail(QStringLiteral("the colour space is not a number"));

    const auto components = [&](std::size_t count) -> std::optional<std::array<float, 5>> {
        std::array<float, 5> c{};
        for (std::size_t i = 0; i < count; ++i) {
            const auto real = realAt(object, 1 + i);
            if (!real)
                return std::nullopt;
            c[i] = unit(*real);
        }
        return c;
    };

    switch (*kind) {
    case CalibratedRgb:
    case DeviceRgb:
        if (const auto c = components(4))
            return RgbaColor{(*c)[0], (*c)[1], (*c)[2], (*c)[3]};
        break;
    case CalibratedWhite:
    case DeviceWhite:
        if (const auto c = components(2))
            return RgbaColor{(*c)[0], (*c)[0], (*c)[0], (*c)[1]};
        break;
    case DeviceCmyk:
        if (const auto c = components(5)) {
            const float k = 1 - (*c)[3];
            return RgbaColor{(1 - (*c)[0]) * k, (1 - (*c)[1]) * k, (1 - (*c)[2]) * k, (*c)[4]};
        }
        break;
    case Named:
        if (nesting < kMaxNesting && object.values.size() >= 4) {
            const auto *value = std::get_if<const TypedStreamObject *>(&object.values[3].data);
            if (value)
                return colorOf(**value, nesting + 1, error);
        }
        return fail(QStringLiteral("the named colour carries no value"));
    default:
        return fail(QStringLiteral("unknown colour space %1").arg(*kind));
    }
    return fail(QStringLiteral("the colour's components are missing"));
}

} // namespace

QByteArray encode(const RgbaColor &color)
{
    return archive(CalibratedRgb, {color.red, color.green, color.blue, color.alpha});
}

QByteArray encodeWhite(float white, float alpha)
{
    return archive(CalibratedWhite, {white, alpha});
}

std::optional<RgbaColor> decode(const QByteArray &archive, QString *error)
{
    const TypedStreamReader reader(archive);
    if (!reader.isValid()) {
        if (error)
            *error = reader.errorString();
        return std::nullopt;
    }
    const TypedStreamObject *root = reader.rootObject();
    if (!root) {
        if (error)
            *error = QStringLiteral("the archive holds no object");
        return std::nullopt;
    }
    return colorOf(*root, 0, error);
}

QList<QByteArray> initialColors(int count)
{
    QList<QByteArray> colors;
    for (int i = 0; i + 1 < count; ++i)
        colors.append(encode(CategoryPalette::colorAt(i)));
    if (count > 0)
        colors.append(encodeWhite(0.5f)); // income starts gray
    return colors;
}

} // namespace ColorArchive
