#pragma once

#include "platform/WholeFile.h"

#include <QIODevice>

namespace ridelog {

/// Passes what is written to it on to a sink: for writers that know devices only. Open from the start; what
/// goes wrong is told by whoever has the sink's other end.
class SinkDevice : public QIODevice {
public:
    /// `sink` has to outlive it.
    explicit SinkDevice(const ByteSink& sink) : _sink(sink) { open(WriteOnly | Unbuffered); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 size) override
    {
        _sink(QByteArrayView(bytes, size));
        return size;
    }

private:
    const ByteSink& _sink;
};

} // namespace ridelog
