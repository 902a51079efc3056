#include "ui/TourTexts.h"

#include "model/OdoTour.h"

#include <QLocale>
#include <QRegularExpression>

namespace ridelog {

QString pulseText(float beatsPerMinute)
{
    return beatsPerMinute == 0 ? QString() : QLocale().toString(static_cast<double>(beatsPerMinute), 'f', 0);
}

QString gradeText(float perCent)
{
    return QLocale().toString(static_cast<double>(perCent), 'f', 1);
}

QString powerText(double watts)
{
    return QLocale().toString(watts, 'f', 0);
}

QString countText(std::int64_t count)
{
    auto locale = QLocale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(static_cast<qlonglong>(count));
}

QString temperatureText(std::optional<float> celsius, int decimals)
{
    return celsius ? QLocale().toString(static_cast<double>(*celsius), 'f', decimals) : QString();
}

QString shortDateFormat()
{
    auto format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy")))
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return format;
}

QString startAndType(const OdoTour& tour)
{
    const QLocale locale;
    const auto start = locale.toString(tour.date().date(), QLocale::LongFormat) + QStringLiteral(", ") +
                       locale.toString(tour.date().time(), QLocale::ShortFormat);
    const auto type = tour.type();
    return type ? start + QStringLiteral(", ") + *type : start;
}

QString fileNameOf(const OdoTour& tour)
{
    constexpr qsizetype longest = 60;
    static const QRegularExpression unusual(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]+"));
    auto title = tour.shownTitle().left(longest).replace(unusual, QStringLiteral(" "));
    if (!title.isEmpty() && title.back().isHighSurrogate())
        title.chop(1);
    return (tour.date().toString(QStringLiteral("yyyy-MM-dd ")) + title).trimmed();
}

} // namespace ridelog
