// Any bytes as a typed stream: they are read in every way or refused, what is kept can be looked into,
// compared and written, and what was written reads as the same.

#include "platform/StyledText.h"
#include "platform/TypedStreamReader.h"
#include "platform/TypedStreamWriter.h"

#include <array>
#include <cstdlib>

using namespace ridelog;

namespace {

using Record = std::array<char, 20>;

void pull(TypedStreamReader& in)
{
    const auto* objectClass = in.nextClass();
    if (!objectClass)
        return in.skip();
    if (objectClass->isKindOf("NSArray"))
        in.readArray([&](qsizetype) { pull(in); });
    else if (objectClass->isKindOf("NSDictionary"))
        in.readDictionary([&](const QString& key) {
            if (key == u"tourData")
                in.readRecords<Record>();
            else
                pull(in);
        });
    else if (objectClass->isKindOf("NSString"))
        in.readString();
    else if (objectClass->isKindOf("NSNumber"))
        in.readNumber();
    else if (objectClass->isKindOf("NSData"))
        in.readData();
    else if (objectClass->name.startsWith("NS"))
        in.readObject();
    else if (in.openObject()) {
        while (!in.atEnd())
            pull(in);
        in.closeObject();
    }
}

void lookInto(const ArchiveObject& object)
{
    object.toUrl();
    object.toDate();
    object.toColour();
    object.toNumber();
    object.toItems();
    if (auto text = StyledText::fromArchive(object)) {
        text->styleAt(0);
        text->replace(1, 1, u"new");
        text->setUnderline(0, 2, true);
        TypedStreamWriter out;
        text->write(out);
        if (StyledText::fromArchive(TypedStreamReader(out.bytes()).readObject()) != text)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArrayView input(bytes, static_cast<qsizetype>(size));
    TypedStreamReader pulled(input);
    while (!pulled.atEnd())
        pull(pulled);

    TypedStreamReader in(input);
    const auto archive = in.readArchive();
    if (in.failed())
        return 0;
    for (const auto& value : archive.values()) {
        if (const auto* object = std::get_if<ArchiveObject>(&value))
            lookInto(*object);
    }
    TypedStreamWriter out(in.isBigEndian() ? std::endian::big : std::endian::little);
    out.writeArchive(archive);
    if (!(TypedStreamReader(out.bytes()).readArchive() == archive))
        std::abort();
    return 0;
}
