#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ridelog {

/// What has become of a raw dump that was to be kept.
struct KeptDump {
    QString path;
    QString error; ///< why it could not be written there; empty if it was
};

// Both go to the home folder, in the place of what was kept there before, and can be imported.

/// Keeps a whole dump as "odoData.odo".
KeptDump keepFinishedDump(const QByteArray& dump);
/// Keeps what arrived of a dump as "odoData.odo.tmp"; none if nothing did.
std::optional<KeptDump> keepStoppedDump(const QByteArray& dump);

} // namespace ridelog
