#pragma once

#include <QString>
#include <QTimeZone>

namespace ridelog {

/// The time zone of which an archive gives the name: one of the zone database, an abbreviation such as "PST",
/// or "GMT" with an offset such as "GMT+0100". Not valid if nobody knows the name.
QTimeZone archivedTimeZone(const QString& name);

} // namespace ridelog
