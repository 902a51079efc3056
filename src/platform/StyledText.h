#pragma once

#include "platform/ArchiveObject.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace ridelog {

class TypedStreamWriter;

/// A text that a rider may style. Attributes belong to runs of characters; those that this program does not
/// understand are kept, and a text that was not changed is stored again as it was, byte for byte. Positions
/// and lengths count UTF-16 units, as QString's do; those beyond the text are clipped.
class StyledText {
public:
    /// So many characters with the same attributes: a dictionary by attribute name, nil without attributes.
    struct Run {
        qsizetype length = 0;
        ArchiveObject attributes;
    };

    /// What the attributes known here say of a character.
    struct Style {
        bool bold = false;
        bool italic = false;
        bool underline = false;
        QString link;     ///< empty for none
        QString fontName; ///< PostScript name; empty for none
        float fontSize = 0;
        bool operator==(const Style&) const = default;
    };

    StyledText() = default;
    /// A text without attributes.
    explicit StyledText(QString text) : _text(std::move(text)) {}

    /// From a stored styled text or string; nil gives the empty text. None for anything else, or damaged
    /// runs.
    static std::optional<StyledText> fromArchive(const ArchiveObject& stored);
    /// Writes a group of one object.
    void write(TypedStreamWriter& out) const;

    const QString& text() const { return _text; }
    /// The runs that make up the text; none for the empty text.
    std::vector<Run> runs() const;
    Style styleAt(qsizetype position) const;
    static Style styleOf(const ArchiveObject& attributes);

    /// Puts `by` in the place of `length` characters, with the attributes of the first of them; of an
    /// insertion, with those of the character before it.
    void replace(qsizetype from, qsizetype length, QStringView by);
    void setUnderline(qsizetype from, qsizetype length, bool underline);
    /// An empty address takes the link away.
    void setLink(qsizetype from, qsizetype length, const QString& address);
    /// Bold and italic are faces of a font, and told by its name.
    void setFont(qsizetype from, qsizetype length, const QString& postScriptName, float size);

    /// Same text with equal attributes, whatever archives they come from.
    bool operator==(const StyledText& other) const;

private:
    using WriteValue = std::function<void(TypedStreamWriter&)>;
    void setAttribute(qsizetype from, qsizetype length, const QString& name, const WriteValue& value);
    std::size_t splitAt(qsizetype position);
    void joinRuns(std::size_t first, std::size_t last);
    std::vector<Run> storedRuns() const;
    void setRuns(std::vector<Run> runs);

    QString _text;
    std::vector<Run> _runs; ///< of a text that was changed or made; empty if no character has an attribute
    ArchiveObject _stored;  ///< as it was read; nil once the text has been changed
};

} // namespace ridelog
