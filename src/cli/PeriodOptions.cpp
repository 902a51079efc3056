#include "cli/PeriodOptions.h"

#include <QCommandLineParser>

#include <optional>

namespace ridelog {
namespace {

const QString dateName = QStringLiteral("date");
const QString weekStartName = QStringLiteral("week-start");

const QString dateForm = QStringLiteral("yyyy-MM-dd");

/// None for something that is no day.
std::optional<QDateTime> dateOf(const QString& text)
{
    const auto day = QDate::fromString(text, dateForm);
    // In a time zone that skips no day; only the day counts.
    return day.isValid() && day.year() >= 1 ? std::optional(day.startOfDay(Qt::UTC)) : std::nullopt;
}

std::optional<WeekRule> weekRuleOf(const QString& text)
{
    if (text == QStringLiteral("sunday"))
        return WeekRule{Qt::Sunday};
    if (text == QStringLiteral("monday"))
        return WeekRule{Qt::Monday};
    return std::nullopt;
}

} // namespace

QList<QCommandLineOption> PeriodOptions::options()
{
    return {
        {dateName, QStringLiteral("The day whose year, month and week are meant; today if not told."),
         QStringLiteral("YYYY-MM-DD")},
        {weekStartName,
         QStringLiteral("First day of a week: sunday (1 January is in week 1) or monday (week 1 has at least "
                        "four days); as the locale has it if not told."),
         QStringLiteral("DAY")}};
}

bool PeriodOptions::areSet(const QCommandLineParser& options)
{
    return options.isSet(dateName) || options.isSet(weekStartName);
}

PeriodOptions::PeriodOptions(const QCommandLineParser& options, const QDateTime& now)
    : _date(now), _weekRule(WeekRule::ofLocale(QLocale()))
{
    if (options.isSet(dateName)) {
        if (const auto date = dateOf(options.value(dateName)))
            _date = *date;
        else
            _fault = QStringLiteral("--date takes a day like 2007-03-15");
    }
    if (options.isSet(weekStartName)) {
        if (const auto rule = weekRuleOf(options.value(weekStartName)))
            _weekRule = *rule;
        else if (_fault.isEmpty())
            _fault = QStringLiteral("--week-start takes sunday or monday");
    }
}

QString PeriodOptions::text(QDate day)
{
    return day.toString(dateForm);
}

} // namespace ridelog
