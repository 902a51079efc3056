// The reader's part that knows how objects of well-known classes lay out their values.

#include "platform/TypedStreamMarks.h"
#include "platform/TypedStreamReader.h"

#include <cstring>

namespace ridelog {

std::optional<QString> TypedStreamReader::readString()
{
    // One text may be referred to any number of times: it is decoded once, and its copies share it.
    const auto item = next();
    const auto value = _at;
    std::optional<std::uint32_t> referredTo;
    if (item.kind == Kind::object) {
        const auto found = takeObject();
        if (found.head == Head::reference)
            referredTo = found.number;
        if (const auto known = referredTo ? _texts.constFind(*referredTo) : _texts.constEnd();
            known != _texts.constEnd()) {
            consume(item);
            return *known;
        }
        _at = value;
    }
    if (!openKindOf("NSString"))
        return std::nullopt;
    const auto text = QString::fromUtf8(readBytes());
    closeObject();
    charge(costOfBlock + qint64{sizeof(QChar)} * text.size());
    if (referredTo && !failed()) {
        charge(costOfGrowth * qint64{sizeof *referredTo + sizeof text});
        _texts.insert(*referredTo, text);
    }
    return failed() ? std::nullopt : std::optional(text);
}

std::optional<ArchiveNumber> TypedStreamReader::readNumber()
{
    if (!openKindOf("NSNumber"))
        return std::nullopt;
    readCString(); // the type, which the value's own group tells as well
    const auto type = next();
    const auto number = type.kind == Kind::real ? ArchiveNumber(type.code, readReal())
                                                : ArchiveNumber(type.code, readInteger());
    closeObject();
    return failed() ? std::nullopt : std::optional(number);
}

std::optional<QByteArrayView> TypedStreamReader::readData()
{
    if (!openKindOf("NSData"))
        return std::nullopt;
    const auto count = readInteger();
    const auto bytes = atEnd() ? QByteArrayView() : readBytes();
    if (bytes.size() != count)
        fail(tr("a data block of %1 bytes that says %2").arg(bytes.size()).arg(count));
    closeObject();
    return failed() ? std::nullopt : std::optional(bytes);
}

/// Opens a list or dictionary and answers how many elements or entries are to follow.
std::optional<qsizetype> TypedStreamReader::openCounted(QByteArrayView className)
{
    if (!openKindOf(className))
        return std::nullopt;
    const auto count = readInteger();
    if (count < 0 || count > bytesLeft())
        fail(tr("%1 elements do not fit into %2 bytes").arg(count).arg(bytesLeft()));
    return failed() ? 0 : count;
}

bool TypedStreamReader::hasElement(qsizetype index, qsizetype count)
{
    if (atEnd())
        fail(tr("the list ends after %1 of %2 elements").arg(index).arg(count));
    return !failed();
}

void TypedStreamReader::readBlocks(char* out, qsizetype blockSize, qsizetype count)
{
    for (qsizetype done = 0; done < count;) {
        const auto first = _at;
        if (!hasElement(done, count))
            return;
        const auto block = readData();
        if (!block || block->size() != blockSize)
            return fail(tr("a data block of %1 bytes expected").arg(blockSize));
        std::memcpy(out + done * blockSize, block->data(), static_cast<std::size_t>(blockSize));
        ++done;
        if (block->end() + 1 == _bytes.begin() + _at.position)
            done += copyBlocksLike(first, out + done * blockSize, blockSize, count - done);
    }
}

/// A list's blocks nearly always differ in their contents alone. When the block just read, which began at
/// `first` and ended with its contents, is nothing but references to the tables around them, then the same
/// bytes around the next contents mean the same again. Copies as many such blocks as follow, and answers how
/// many.
qsizetype TypedStreamReader::copyBlocksLike(const Cursor& first, char* out, qsizetype blockSize,
                                            qsizetype count)
{
    const auto length = qsizetype{_at.position} - qsizetype{first.position};
    const auto before = length - blockSize - 1;
    const bool isPlain = first.types < 0 && _at.types < 0 && _at.objects == first.objects + 1 &&
                         _at.strings == first.strings && before > 0;
    if (!isPlain)
        return 0;
    const auto* pattern = _bytes.data() + first.position;
    const auto classAfter = startOf(first.objects) - first.position;
    qsizetype copied = 0;
    while (copied < count && bytesLeft() >= length) {
        const auto* block = _bytes.data() + _at.position;
        if (std::memcmp(block, pattern, static_cast<std::size_t>(before)) != 0 ||
            static_cast<std::uint8_t>(block[length - 1]) != TypedStream::endOfObject)
            break;
        std::memcpy(out + copied * blockSize, block + before, static_cast<std::size_t>(blockSize));
        addEntry({_at.position + classAfter, Entry::object});
        _at.position += static_cast<std::uint32_t>(length);
        ++copied;
    }
    return copied;
}

} // namespace ridelog
