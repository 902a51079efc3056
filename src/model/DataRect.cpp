#include "model/DataRect.h"

#include <QtEndian>

namespace ridelog {

QByteArray DataRect::toHex() const
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(this), sizeof *this).toHex();
}

void convertFromBigEndian(std::span<DataRect> records)
{
    for (auto& record : records) {
        record.temperature = qFromBigEndian(record.temperature);
        record.endMarker = qFromBigEndian(record.endMarker);
        record.cadence = qFromBigEndian(record.cadence);
        record.pulseChange = qFromBigEndian(record.pulseChange);
        record.altitudeChange = qFromBigEndian(record.altitudeChange);
        record.distance = qFromBigEndian(record.distance);
        record.flag = record.flag != 0;
        record.lastData = record.lastData != 0;
    }
}

} // namespace ridelog
