#include "platform/JsonWriter.h"

#include "platform/CalendarDate.h"
#include "platform/NumberText.h"

#include <QIODevice>

#include <cmath>

namespace ridelog {
namespace {

constexpr qsizetype chunkSize = 64 * 1024;

/// The shortest text that reads back to `number`, or null.
template <typename Number>
QByteArray shortest(Number number)
{
    if constexpr (std::is_floating_point_v<Number>) {
        if (!std::isfinite(number))
            return QByteArrayLiteral("null");
    }
    QByteArray text;
    appendShortest(text, number);
    return text;
}

} // namespace

void JsonWriter::open(char bracket)
{
    separate();
    _pending += bracket;
    _needsComma = false;
}

void JsonWriter::close(char bracket)
{
    _pending += bracket;
    _needsComma = true;
    flushIfLarge();
}

void JsonWriter::separate()
{
    if (_needsComma)
        _pending += ',';
    _needsComma = true;
}

void JsonWriter::key(QStringView name)
{
    separate();
    string(name);
    _pending += ':';
    _needsComma = false;
}

void JsonWriter::value(QStringView text)
{
    separate();
    string(text);
}

void JsonWriter::value(bool yes)
{
    separate();
    _pending += yes ? "true" : "false";
}

void JsonWriter::value(float number)
{
    separate();
    _pending += shortest(number);
}

void JsonWriter::value(double number)
{
    separate();
    _pending += shortest(number);
}

void JsonWriter::value(std::nullopt_t)
{
    separate();
    _pending += "null";
}

void JsonWriter::value(const QDateTime& date)
{
    value(QStringView(CalendarDate::text(date)));
}

void JsonWriter::integer(qint64 number)
{
    separate();
    _pending += shortest(number);
}

void JsonWriter::string(QStringView text)
{
    _pending += '"';
    // QString::toUtf8 replaces unpaired surrogates, so that what is written is UTF-8 whatever came in.
    for (const char byte : text.toUtf8()) {
        if (byte == '"' || byte == '\\') {
            _pending += '\\';
            _pending += byte;
        } else if (static_cast<unsigned char>(byte) < 0x20) {
            _pending += QByteArray("\\u00") + QByteArray(1, byte).toHex();
        } else {
            _pending += byte;
        }
    }
    _pending += '"';
}

void JsonWriter::flushIfLarge()
{
    if (_pending.size() < chunkSize)
        return;
    _failed = _failed || _device.write(_pending) != _pending.size();
    _pending.resize(0);
}

bool JsonWriter::finish()
{
    _pending += '\n';
    _failed = _failed || _device.write(_pending) != _pending.size();
    _pending.clear();
    return !_failed;
}

} // namespace ridelog
