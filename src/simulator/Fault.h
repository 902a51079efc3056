#pragma once

#include <QByteArray>
#include <QStringView>

#include <array>
#include <optional>

namespace ridelog {

/// What can be wrong with a device or its line.
enum class Fault { silence, cut, shortDump, longDump, garbage, noise, trickle, twice, late };

/// A fault as people call it.
struct FaultName {
    Fault fault;
    QStringView name;
    QStringView meaning;
};

inline constexpr std::array<FaultName, 9> faultNames{{
    {Fault::silence, u"silence", u"stops half way and leaves the line open"},
    {Fault::cut, u"cut", u"hangs up half way and comes back as another port"},
    {Fault::shortDump, u"short", u"sends a byte less than a dump has"},
    {Fault::longDump, u"long", u"goes on with erased memory, 90,000 bytes in all"},
    {Fault::garbage, u"garbage", u"sends noise before the dump"},
    {Fault::noise, u"noise", u"flips bits inside the dump"},
    {Fault::trickle, u"trickle", u"sends one byte at a time"},
    {Fault::twice, u"twice", u"starts again at once after the end"},
    {Fault::late, u"late", u"waits ten seconds before it sends"},
}};

/// None for a name of no fault.
std::optional<Fault> faultNamed(QStringView name);

/// The bytes that a device with this fault sends, or without any, instead of the dump. The same each time.
QByteArray faultyDump(const QByteArray& dump, std::optional<Fault> fault);

} // namespace ridelog
