#pragma once

#include "platform/TypedStreamReader.h"
#include "platform/TypedStreamWriter.h"

#include <QByteArray>

#include <bit>
#include <string>

namespace ridelog {

/// Bytes from hex digits; spaces do not matter.
inline QByteArray bytesOf(const char* hex)
{
    return QByteArray::fromHex(hex);
}

/// A little-endian archive of these bytes behind the header.
inline QByteArray archiveOf(const QByteArray& contents)
{
    return TypedStreamWriter().bytes() + contents;
}

template <typename Write>
QByteArray written(Write&& write, std::endian byteOrder = std::endian::little)
{
    TypedStreamWriter out(byteOrder);
    write(out);
    return out.bytes();
}

/// Keeps everything that the archive holds and writes it again; the error's text where it is refused.
inline QByteArray rewritten(const QByteArray& archive)
{
    TypedStreamReader in(archive);
    const auto kept = in.readArchive();
    if (in.failed())
        return in.error()->text().toUtf8();
    return written([&](TypedStreamWriter& out) { out.writeArchive(kept); },
                   in.isBigEndian() ? std::endian::big : std::endian::little);
}

/// Why the archive is refused, or nothing.
inline std::string refusalOf(const QByteArray& archive)
{
    TypedStreamReader in(archive);
    in.readArchive();
    return in.failed() ? in.error()->text().toStdString() : std::string();
}

} // namespace ridelog
