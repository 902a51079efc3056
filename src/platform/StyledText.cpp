#include "platform/StyledText.h"

#include "platform/ArchiveGraph.h"
#include "platform/TypedStreamReader.h"
#include "platform/TypedStreamWriter.h"

#include <QStringDecoder>
#include <QtEndian>

#include <algorithm>
#include <map>

namespace ridelog {
namespace {

const QString fontKey = QStringLiteral("NSFont");
const QString underlineKey = QStringLiteral("NSUnderline");
const QString linkKey = QStringLiteral("NSLink");

constexpr int singleUnderline = 1;

const ArchiveClass fontClass{"NSFont", 30, &ArchiveClasses::object};
/// A font's name block: this, the length of what follows, the name in UTF-16 with a byte order mark.
constexpr std::uint32_t fontNameMark = 6;
constexpr qsizetype fontNameHead = 8;

QByteArray fontNameBlock(const QString& name)
{
    const auto length = static_cast<std::uint32_t>(2 + 2 * name.size());
    QByteArray block((fontNameHead + length + 3) / 4 * 4, '\0');
    qToLittleEndian(fontNameMark, block.data());
    qToLittleEndian(length, block.data() + 4);
    qToLittleEndian(std::uint16_t{0xFEFF}, block.data() + fontNameHead);
    qToLittleEndian<char16_t>(name.utf16(), name.size(), block.data() + fontNameHead + 2);
    return block;
}

QString fontNameIn(const QByteArray& block)
{
    if (block.size() < fontNameHead)
        return {};
    const auto length = qFromLittleEndian<std::uint32_t>(block.constData() + 4);
    const auto name = QByteArrayView(block).sliced(fontNameHead);
    return QStringDecoder(QStringDecoder::Utf16)(name.first(std::min<qsizetype>(length, name.size())));
}

/// Adds a run, to the last one if that is alike.
template <typename IsAlike>
void add(std::vector<StyledText::Run>& runs, StyledText::Run run, IsAlike&& isAlike)
{
    if (run.length == 0)
        return;
    if (!runs.empty() && isAlike(runs.back().attributes, run.attributes))
        runs.back().length += run.length;
    else
        runs.push_back(std::move(run));
}

/// No runs at all stand for a text without attributes.
std::vector<StyledText::Run> unlessPlain(std::vector<StyledText::Run> runs)
{
    if (runs.size() == 1 && runs.front().attributes.isNil())
        runs.clear();
    return runs;
}

/// Goes through the runs of a stored styled text and calls `visit(number, length, attributes)`; runs with
/// attributes that were there before have no more than their number. False for damaged runs.
template <typename Visit>
bool forEachStoredRun(const ArchiveObject& stored, Visit&& visit)
{
    ArchiveValues values(stored);
    values.next(); // the text
    qint64 known = 0;
    while (!values.atEnd()) {
        const auto number = values.nextInteger().value_or(0);
        const auto length = values.nextInteger().value_or(-1);
        if (number < 1 || number > known + 1 || length < 0)
            return false;
        ArchiveObject attributes;
        if (number > known) {
            attributes = values.nextObject();
            if (!attributes.entryCount())
                return false;
            known = number;
        }
        visit(number, length, attributes);
    }
    return true;
}

/// The dictionary with one entry replaced, or taken away where no value is written; nil if none is left.
ArchiveObject withEntry(const ArchiveObject& attributes, const QString& name,
                        const std::function<void(TypedStreamWriter&)>& writeValue)
{
    auto entries = attributes.toEntries().value_or(std::vector<ArchiveObject::Entry>());
    std::erase_if(entries, [&](const auto& entry) { return entry.first.toText() == name; });
    const auto count = static_cast<qsizetype>(entries.size()) + (writeValue ? 1 : 0);
    if (count == 0)
        return {};
    TypedStreamWriter out;
    out.beginDictionary(count, ArchiveClasses::dictionary);
    for (const auto& [key, value] : entries) {
        out.writeObject(key);
        out.writeObject(value);
    }
    if (writeValue) {
        out.writeString(name);
        writeValue(out);
    }
    out.endObject();
    return TypedStreamReader(out.bytes()).readObject();
}

} // namespace

std::optional<StyledText> StyledText::fromArchive(const ArchiveObject& stored)
{
    if (stored.isNil())
        return StyledText();
    if (const auto text = stored.toText())
        return StyledText(*text);
    if (!stored.isKindOf("NSAttributedString"))
        return std::nullopt;
    const auto text = ArchiveValues(stored).nextObject().toText();
    auto& sound = stored.graph()->soundStyledTexts;
    const auto leave = [](qint64, qint64, const ArchiveObject&) {};
    if (!text || !(sound.contains(stored.index()) || forEachStoredRun(stored, leave)))
        return std::nullopt;
    sound.insert(stored.index());
    StyledText result(*text);
    result._stored = stored;
    return result;
}

/// There may be millions, which nobody asks for before the text is shown.
std::vector<StyledText::Run> StyledText::storedRuns() const
{
    std::vector<Run> runs;
    std::vector<ArchiveObject> dictionaries;
    auto left = _text.size();
    // Whole contents are not compared here: a damaged file may have any number of large dictionaries.
    const auto isAlike = [](const auto& one, const auto& two) { return one.isSameObject(two); };
    forEachStoredRun(_stored, [&](qint64 number, qint64 length, const ArchiveObject& attributes) {
        if (number > static_cast<qint64>(dictionaries.size()))
            dictionaries.push_back(attributes.entryCount() == 0 ? ArchiveObject() : attributes);
        const auto inText = std::min(left, static_cast<qsizetype>(length));
        add(runs, {inText, dictionaries[static_cast<std::size_t>(number) - 1]}, isAlike);
        left -= inText;
    });
    add(runs, {left, ArchiveObject()}, isAlike);
    return unlessPlain(std::move(runs));
}

void StyledText::write(TypedStreamWriter& out) const
{
    if (!_stored.isNil())
        return out.writeObject(_stored);
    out.beginObject(ArchiveClasses::attributedString);
    out.writeString(_text);
    std::map<std::pair<std::shared_ptr<const ArchiveGraph>, std::uint32_t>, std::size_t> numbers;
    for (const auto& run : runs()) {
        const auto [known, isNew] =
            numbers.try_emplace({run.attributes.graph(), run.attributes.index()}, numbers.size() + 1);
        out.group("iI");
        out.putInteger(static_cast<qint64>(known->second));
        out.putInteger(run.length);
        if (!isNew)
            continue;
        if (run.attributes.isNil()) {
            out.beginDictionary(0, ArchiveClasses::dictionary);
            out.endObject();
        } else {
            out.writeObject(run.attributes);
        }
    }
    out.endObject();
}

std::vector<StyledText::Run> StyledText::runs() const
{
    auto all = _stored.isNil() ? _runs : storedRuns();
    if (all.empty() && !_text.isEmpty())
        all.push_back({_text.size(), ArchiveObject()});
    return all;
}

void StyledText::setRuns(std::vector<Run> runs)
{
    _runs.clear();
    for (auto& run : runs)
        add(_runs, std::move(run), [](const auto& one, const auto& two) { return one == two; });
    _runs = unlessPlain(std::move(_runs));
    _stored = ArchiveObject();
}

bool StyledText::operator==(const StyledText& other) const
{
    if (_text != other._text)
        return false;
    // Runs may be cut differently: attributes are compared for every stretch that has no cut in either text.
    std::vector<std::pair<ArchiveObject, ArchiveObject>> stretches;
    const auto left = runs();
    const auto right = other.runs();
    qsizetype leftEnd = 0;
    qsizetype rightEnd = 0;
    for (auto one = left.begin(), two = right.begin(); one != left.end() && two != right.end();) {
        stretches.emplace_back(one->attributes, two->attributes);
        const auto end = std::min(leftEnd + one->length, rightEnd + two->length);
        if (end == leftEnd + one->length)
            leftEnd += (one++)->length;
        if (end == rightEnd + two->length)
            rightEnd += (two++)->length;
    }
    return ArchiveObject::areEqual(std::move(stretches));
}

StyledText::Style StyledText::styleAt(qsizetype position) const
{
    for (const auto& run : runs()) {
        if (position < run.length)
            return styleOf(run.attributes);
        position -= run.length;
    }
    return {};
}

StyledText::Style StyledText::styleOf(const ArchiveObject& attributes)
{
    Style style;
    const auto underline = attributes.valueForKey(underlineKey).toNumber();
    style.underline = underline && underline->toBool();
    const auto link = attributes.valueForKey(linkKey);
    style.link = link.toUrl().value_or(link.toText().value_or(QString()));
    // A font: length of the name block, the block, the size, four more numbers.
    ArchiveValues font(attributes.valueForKey(fontKey));
    font.next();
    style.fontName = fontNameIn(font.nextBytes().value_or(QByteArray()));
    const auto size = font.next().value_or(ArchiveValue());
    if (const auto* whole = std::get_if<qint64>(&size))
        style.fontSize = static_cast<float>(*whole);
    else if (const auto* real = std::get_if<double>(&size))
        style.fontSize = static_cast<float>(*real);
    const auto face = style.fontName.section(u'-', 1);
    style.bold = face.contains(u"Bold");
    style.italic = face.contains(u"Italic") || face.contains(u"Oblique");
    return style;
}

/// Makes a run begin at the position, within the text, and answers its index.
std::size_t StyledText::splitAt(qsizetype position)
{
    std::size_t index = 0;
    while (index < _runs.size() && position >= _runs[index].length)
        position -= _runs[index++].length;
    if (position == 0 || index == _runs.size())
        return index;
    auto rest = _runs[index];
    rest.length -= position;
    _runs[index].length = position;
    _runs.insert(_runs.begin() + static_cast<std::ptrdiff_t>(index) + 1, rest);
    return index + 1;
}

void StyledText::replace(qsizetype from, qsizetype length, QStringView by)
{
    from = std::clamp<qsizetype>(from, 0, _text.size());
    length = std::clamp<qsizetype>(length, 0, _text.size() - from);
    _runs = runs();
    const auto first = splitAt(from);
    const auto last = splitAt(from + length);
    Run inserted{by.size(), ArchiveObject()};
    if (length > 0)
        inserted.attributes = _runs[first].attributes;
    else if (!_runs.empty())
        inserted.attributes = _runs[first > 0 ? first - 1 : 0].attributes;
    const auto begin = _runs.begin() + static_cast<std::ptrdiff_t>(first);
    _runs.insert(_runs.erase(begin, _runs.begin() + static_cast<std::ptrdiff_t>(last)), inserted);
    _text.replace(from, length, by.constData(), by.size());
    setRuns(std::move(_runs));
}

void StyledText::setAttribute(qsizetype from, qsizetype length, const QString& name, const WriteValue& value)
{
    from = std::clamp<qsizetype>(from, 0, _text.size());
    length = std::clamp<qsizetype>(length, 0, _text.size() - from);
    if (length == 0)
        return;
    _runs = runs();
    const auto first = splitAt(from);
    const auto last = splitAt(from + length);
    for (auto index = first; index < last; ++index)
        _runs[index].attributes = withEntry(_runs[index].attributes, name, value);
    joinRuns(first, last);
}

/// Joins what has become equal between these runs and at their ends: comparing all of a long text for each
/// word of it would take its time.
void StyledText::joinRuns(std::size_t first, std::size_t last)
{
    const auto at = [this](std::size_t index) { return _runs.begin() + static_cast<std::ptrdiff_t>(index); };
    for (auto index = std::min(last, _runs.size() - 1); index > 0 && index >= first; --index) {
        if (!(_runs[index].attributes == _runs[index - 1].attributes))
            continue;
        _runs[index - 1].length += _runs[index].length;
        _runs.erase(at(index));
    }
    _runs = unlessPlain(std::move(_runs));
    _stored = ArchiveObject();
}

void StyledText::setUnderline(qsizetype from, qsizetype length, bool underline)
{
    const auto write = [](TypedStreamWriter& out) { out.writeNumber(ArchiveNumber(singleUnderline)); };
    setAttribute(from, length, underlineKey, underline ? WriteValue(write) : WriteValue());
}

void StyledText::setLink(qsizetype from, qsizetype length, const QString& address)
{
    const auto write = [&](TypedStreamWriter& out) {
        out.beginObject(ArchiveClasses::url);
        out.group("c");
        out.putByte(0); // no base
        out.writeString(address);
        out.endObject();
    };
    setAttribute(from, length, linkKey, address.isEmpty() ? WriteValue() : WriteValue(write));
}

void StyledText::setFont(qsizetype from, qsizetype length, const QString& postScriptName, float size)
{
    setAttribute(from, length, fontKey, [&](TypedStreamWriter& out) {
        const auto block = fontNameBlock(postScriptName);
        out.beginObject(fontClass);
        out.group("i");
        out.putInteger(block.size());
        out.group('[' + QByteArray::number(block.size()) + "c]");
        out.putBytes(block);
        out.group("f");
        out.putFloat(size);
        for (const char flag : {'\0', '\1', '\0', '\0'}) {
            out.group("c");
            out.putByte(flag);
        }
        out.endObject();
    });
}

} // namespace ridelog
