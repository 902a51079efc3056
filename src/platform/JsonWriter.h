#pragma once

#include <QByteArray>
#include <QStringView>

#include <concepts>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QIODevice)
QT_FORWARD_DECLARE_CLASS(QDateTime)

namespace ridelog {

/// Writes JSON to a device as it comes. Unlike the toolkit's documents, which sort keys, know only doubles
/// and are built whole: keys stay in the order they are given, memory does not grow with the document. A
/// number is the shortest text that reads back to the same value, a 32-bit float as one; infinities and NaN,
/// which JSON does not have, become null.
///
/// Calls have to nest as JSON does; `key` comes before each value of an object. The device's own errors are
/// remembered: ask `finish` at the end.
class JsonWriter {
public:
    /// Writes to `device`, which has to be open and to outlive the writer.
    explicit JsonWriter(QIODevice& device) : _device(device) {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    void key(QStringView name);

    void value(QStringView text);
    void value(const char16_t* text) = delete; // would be taken for a bool
    void value(bool yes);
    void value(std::signed_integral auto number) { integer(number); }
    void value(float number);
    void value(double number);
    void value(std::nullopt_t);
    void value(const QDateTime& date);
    template <typename Value>
    void value(const std::optional<Value>& maybe)
    {
        if (maybe)
            value(*maybe);
        else
            value(std::nullopt);
    }

    /// `key` and `value` in one.
    template <typename Value>
    void entry(QStringView name, const Value& content)
    {
        key(name);
        value(content);
    }

    /// Writes what is left and a line end. False if the device did not take everything.
    bool finish();

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void string(QStringView text);
    void integer(qint64 number);
    void flushIfLarge();

    QIODevice& _device;
    QByteArray _pending;
    bool _needsComma = false;
    bool _failed = false;
};

} // namespace ridelog
