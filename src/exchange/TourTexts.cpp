#include "exchange/TourTexts.h"

#include "model/OdoTour.h"
#include "platform/FileName.h"

#include <QLocale>

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
    return safeFileName(tour.date().toString(QStringLiteral("yyyy-MM-dd ")) + tour.shownTitle()).simplified();
}

} // namespace ridelog
