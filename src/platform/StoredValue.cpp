#include "platform/StoredValue.h"

#include "platform/CalendarDate.h"
#include "platform/TypedStreamReader.h"

#include <QLocale>

#include <charconv>
#include <cmath>
#include <limits>

namespace ridelog::StoredValue {
namespace {

/// The shortest text that reads back to the same single-precision number.
QString shortest(float number)
{
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    return QString::fromLatin1(text, end - text);
}

QVariant textOfDate(const QDateTime& date)
{
    if (!date.isValid())
        return {};
    // The text has no room for the seconds that the offsets of earlier centuries have.
    const auto offset = date.offsetFromUtc() / 60 * 60;
    return date.toOffsetFromUtc(offset).toString(date.time().msec() == 0 ? Qt::ISODate : Qt::ISODateWithMs);
}

QVariant ofList(const QVariantList& entries)
{
    QStringList texts;
    for (const auto& entry : entries) {
        const auto form = of(entry);
        if (form.metaType().id() != QMetaType::QString)
            return entries;
        texts.append(form.toString());
    }
    return texts.size() == 1 ? QVariant(texts.first()) : QVariant(texts);
}

/// A colour or a date that somebody wrote into the file without quotes is read as a list there.
QString joined(const QVariant& stored)
{
    return stored.metaType().id() == QMetaType::QStringList ? stored.toStringList().join(u',')
                                                            : stored.toString();
}

/// The older application kept a colour as an archive of one object.
std::optional<ColourComponents> archivedColour(const QByteArray& archive)
{
    TypedStreamReader reader(archive);
    const auto colour = reader.readObject().toColour();
    if (!colour || reader.failed())
        return {};
    return ColourComponents{colour->red, colour->green, colour->blue, colour->alpha};
}

} // namespace

QVariant of(const QVariant& value)
{
    if (value.metaType() == QMetaType::fromType<ColourComponents>())
        return value.value<ColourComponents>().text();
    if (value.metaType() == QMetaType::fromType<QList<int>>())
        return ofList(value.toList());
    switch (value.metaType().id()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toString();
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::Float:
        return shortest(value.toFloat());
    case QMetaType::QString:
        // Replaces unpaired surrogates, which the file cannot hold.
        return QString::fromUtf8(value.toString().toUtf8());
    case QMetaType::QDateTime:
        return textOfDate(value.toDateTime());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return ofList(value.toList());
    default:
        return value;
    }
}

std::optional<bool> toBool(const QVariant& stored)
{
    const auto word = stored.toString().trimmed();
    const auto is = [&](QStringView other) { return word.compare(other, Qt::CaseInsensitive) == 0; };
    if (is(u"true") || is(u"yes"))
        return true;
    if (is(u"false") || is(u"no"))
        return false;
    const auto number = toDouble(stored);
    return number ? std::optional(*number != 0) : std::nullopt;
}

std::optional<int> toInteger(const QVariant& stored)
{
    const auto number = toDouble(stored);
    if (!number || !(*number > std::numeric_limits<int>::min() - 1.0) ||
        !(*number < std::numeric_limits<int>::max() + 1.0))
        return {};
    return static_cast<int>(*number);
}

std::optional<double> toDouble(const QVariant& stored)
{
    bool isNumber = false;
    const double number = stored.toString().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<float> toFloat(const QVariant& stored)
{
    bool isNumber = false;
    const float number = stored.toString().toFloat(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<QString> toText(const QVariant& stored)
{
    return stored.metaType().id() == QMetaType::QString ? std::optional(stored.toString()) : std::nullopt;
}

std::optional<QStringList> toTextList(const QVariant& stored)
{
    const auto type = stored.metaType().id();
    const bool isList = type == QMetaType::QStringList || type == QMetaType::QString;
    return isList ? std::optional(stored.toStringList()) : std::nullopt;
}

std::optional<QList<int>> toIntegerList(const QVariant& stored)
{
    const auto texts = toTextList(stored);
    if (!texts)
        return {};
    QList<int> numbers;
    for (const auto& text : *texts) {
        const auto number = toInteger(text);
        if (!number)
            return {};
        numbers.append(*number);
    }
    return numbers;
}

std::optional<QDateTime> toDate(const QVariant& stored)
{
    const auto date = QDateTime::fromString(joined(stored).trimmed(), Qt::ISODateWithMs);
    if (!date.isValid())
        return {};
    if (date.timeSpec() == Qt::LocalTime) {
        const auto day = date.date();
        const auto time = date.time();
        return CalendarDate::fromFields(day.year(), day.month(), day.day(), time.hour(), time.minute(),
                                        time.second(), CalendarDate::localTimeZone());
    }
    const QTimeZone zone(date.offsetFromUtc());
    return zone.isValid() ? std::optional(date.toTimeZone(zone)) : std::nullopt;
}

std::optional<ColourComponents> toColour(const QVariant& stored)
{
    if (stored.metaType().id() == QMetaType::QByteArray)
        return archivedColour(stored.toByteArray());
    return ColourComponents::fromText(joined(stored));
}

} // namespace ridelog::StoredValue
