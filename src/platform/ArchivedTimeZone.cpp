#include "platform/ArchivedTimeZone.h"

#include <QCache>
#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace ridelog {
namespace {

/// Whether the zone is one of the database. What is not, Qt may take for a rule without its offset, and that
/// for Greenwich.
bool isInDatabase(const QString& name)
{
    static const QDir zones(QStringLiteral("/usr/share/zoneinfo"));
    return !name.contains(QStringLiteral("..")) && !QDir::isAbsolutePath(name) &&
           QFileInfo(zones.filePath(name)).isFile();
}

/// What the older application's platform took abbreviations for; those that the database has as well are left
/// to it.
QString zoneOfAbbreviation(const QString& name)
{
    static const QHash<QString, QString> zones{
        {QStringLiteral("ADT"), QStringLiteral("America/Halifax")},
        {QStringLiteral("AKDT"), QStringLiteral("America/Juneau")},
        {QStringLiteral("AKST"), QStringLiteral("America/Juneau")},
        {QStringLiteral("AST"), QStringLiteral("America/Halifax")},
        {QStringLiteral("BST"), QStringLiteral("Europe/London")},
        {QStringLiteral("CDT"), QStringLiteral("America/Chicago")},
        {QStringLiteral("CEST"), QStringLiteral("Europe/Paris")},
        {QStringLiteral("CST"), QStringLiteral("America/Chicago")},
        {QStringLiteral("EDT"), QStringLiteral("America/New_York")},
        {QStringLiteral("EEST"), QStringLiteral("Europe/Athens")},
        {QStringLiteral("HKT"), QStringLiteral("Asia/Hong_Kong")},
        {QStringLiteral("IST"), QStringLiteral("Asia/Kolkata")},
        {QStringLiteral("JST"), QStringLiteral("Asia/Tokyo")},
        {QStringLiteral("KST"), QStringLiteral("Asia/Seoul")},
        {QStringLiteral("MDT"), QStringLiteral("America/Denver")},
        {QStringLiteral("MSD"), QStringLiteral("Europe/Moscow")},
        {QStringLiteral("MSK"), QStringLiteral("Europe/Moscow")},
        {QStringLiteral("NST"), QStringLiteral("America/St_Johns")},
        {QStringLiteral("NZDT"), QStringLiteral("Pacific/Auckland")},
        {QStringLiteral("NZST"), QStringLiteral("Pacific/Auckland")},
        {QStringLiteral("PDT"), QStringLiteral("America/Los_Angeles")},
        {QStringLiteral("PST"), QStringLiteral("America/Los_Angeles")},
        {QStringLiteral("SGT"), QStringLiteral("Asia/Singapore")},
        {QStringLiteral("WEST"), QStringLiteral("Europe/Lisbon")},
    };
    return zones.value(name);
}

QTimeZone findZone(const QString& name)
{
    if (isInDatabase(name))
        return QTimeZone(name.toUtf8());
    if (const auto zone = zoneOfAbbreviation(name); !zone.isEmpty())
        return QTimeZone(zone.toUtf8());
    const auto id = name.toUtf8();
    // "GMT+0100": sign, hours and minutes, two digits each.
    bool areDigits = false;
    const int hoursAndMinutes = id.sliced(std::min<qsizetype>(4, id.size())).toInt(&areDigits);
    if (id.size() != 8 || !id.startsWith("GMT") || (id[3] != '+' && id[3] != '-') || !areDigits)
        return {};
    const int seconds = hoursAndMinutes / 100 * 3600 + hoursAndMinutes % 100 * 60;
    return QTimeZone(id[3] == '-' ? -seconds : seconds);
}

} // namespace

QTimeZone archivedTimeZone(const QString& name)
{
    // Thousands of tours are in the same few zones.
    static QCache<QString, QTimeZone> known(64);
    if (const auto* zone = known.object(name))
        return *zone;
    auto zone = findZone(name);
    known.insert(name, new QTimeZone(zone));
    return zone;
}

} // namespace ridelog
