#pragma once

#include <QString>

namespace ridelog {

// Why nothing, or not everything, came from a port, in words for people.

/// For the number of the error with which a port could not be opened or set up.
QString whyPortFailed(const QString& path, int error);

/// For a line that ended by itself after so many of the bytes of a whole dump.
QString whyTransferBrokeOff(qsizetype received, qsizetype whole);

/// For a transfer that its user has ended.
QString whyTransferWasStopped(qsizetype received, qsizetype whole);

/// For a device that has sent nothing for so many seconds.
QString whyTransferFellSilent(qsizetype received, qsizetype whole, double seconds);

} // namespace ridelog
