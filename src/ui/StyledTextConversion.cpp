#include "ui/StyledTextConversion.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace ridelog {
namespace {

/// Of a text that nobody has chosen a font for, when part of it is made bold or italic.
const QString usualFont = QStringLiteral("Helvetica");
constexpr float usualSize = 12;

constexpr QChar beginOfCell(0xfdd0);
constexpr QChar endOfTable(0xfdd1);

/// Editors end lines there, also at what stands for the parts of a table in them.
bool endsLine(QChar character)
{
    return character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator || character == beginOfCell || character == endOfTable;
}

/// Editors end every line in one way.
QString withPlainLineEnds(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (auto& character : text) {
        if (endsLine(character))
            character = u'\n';
    }
    return text;
}

/// The same for a text, without touching its styles.
void endLinesPlainly(StyledText& text)
{
    for (auto at = text.text().size() - 1; at >= 0; --at) {
        const auto character = text.text()[at];
        const bool isPair = character == u'\n' && at > 0 && text.text()[at - 1] == u'\r';
        if (isPair)
            text.replace(--at, 2, u"\n");
        else if (endsLine(character))
            text.replace(at, 1, u"\n");
    }
}

QTextCharFormat formatOf(const StyledText::Style& style)
{
    QTextCharFormat format;
    if (style.bold)
        format.setFontWeight(QFont::Bold);
    format.setFontItalic(style.italic);
    format.setFontUnderline(style.underline || !style.link.isEmpty());
    if (!style.link.isEmpty()) {
        format.setAnchor(true);
        format.setAnchorHref(style.link);
        format.setForeground(QGuiApplication::palette().link());
    }
    return format;
}

/// Changes the characters between what both texts begin and end with.
void takeCharacters(StyledText& text, const QString& edited)
{
    const auto& old = text.text();
    const auto least = std::min(old.size(), edited.size());
    qsizetype begin = 0;
    while (begin < least && old[begin] == edited[begin])
        ++begin;
    qsizetype end = 0;
    while (end < least - begin && old[old.size() - 1 - end] == edited[edited.size() - 1 - end])
        ++end;
    text.replace(begin, old.size() - begin - end,
                 QStringView(edited).mid(begin, edited.size() - begin - end));
}

/// Name of the face of a font's family, as stored texts spell them: "Helvetica-BoldOblique".
QString faceNamed(const QString& fontName, bool bold, bool italic)
{
    const auto family = fontName.section(u'-', 0, 0);
    const bool isOblique = family == u"Helvetica" || family == u"Courier" || fontName.contains(u"Oblique");
    const auto slant = isOblique ? QStringLiteral("Oblique") : QStringLiteral("Italic");
    const auto face = (bold ? QStringLiteral("Bold") : QString()) + (italic ? slant : QString());
    return face.isEmpty() ? family : family + u'-' + face;
}

void takeStyle(StyledText& text, qsizetype from, qsizetype length, const StyledText::Style& style,
               const QTextCharFormat& format)
{
    const bool bold = format.fontWeight() >= QFont::DemiBold;
    const bool italic = format.fontItalic();
    const auto link = format.isAnchor() ? format.anchorHref() : QString();
    if (style.bold != bold || style.italic != italic) {
        const auto& name = style.fontName.isEmpty() ? usualFont : style.fontName;
        text.setFont(from, length, faceNamed(name, bold, italic),
                     style.fontSize > 0 ? style.fontSize : usualSize);
    }
    // A link is shown underlined, which says nothing of the text.
    if (link.isEmpty() && style.link.isEmpty() && style.underline != format.fontUnderline())
        text.setUnderline(from, length, format.fontUnderline());
    if (style.link != link)
        text.setLink(from, length, link);
}

/// Takes the styles over where they differ, walking along the runs of both sides.
void takeStyles(StyledText& text, const QTextDocument& document)
{
    const auto runs = text.runs();
    auto run = runs.begin();
    qsizetype runEnd = runs.empty() ? 0 : run->length;
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const auto fragment = part.fragment();
            qsizetype from = fragment.position();
            const qsizetype end = from + fragment.length();
            while (from < end) {
                while (runEnd <= from)
                    runEnd += (++run)->length;
                const auto to = std::min(end, runEnd);
                takeStyle(text, from, to - from, StyledText::styleOf(run->attributes), fragment.charFormat());
                from = to;
            }
        }
    }
}

/// Takes out what stands for pictures. The cells of tables become lines.
void takeOutObjects(StyledText& text)
{
    for (auto at = text.text().size() - 1; at >= 0; --at) {
        const auto character = text.text()[at];
        if (character == QChar::ObjectReplacementCharacter)
            text.replace(at, 1, u"");
    }
}

} // namespace

void showStyledText(const StyledText& text, QTextDocument& document)
{
    document.clear();
    QTextCursor cursor(&document);
    insertStyledText(text, cursor);
}

void insertStyledText(const StyledText& text, QTextCursor& cursor)
{
    // Laid out once, not after every run.
    cursor.beginEditBlock();
    // In the whole text: a line may end with two characters of different runs.
    auto plain = text;
    endLinesPlainly(plain);
    qsizetype from = 0;
    for (const auto& run : plain.runs()) {
        cursor.insertText(plain.text().mid(from, run.length), formatOf(StyledText::styleOf(run.attributes)));
        from += run.length;
    }
    cursor.endEditBlock();
}

StyledText editedText(const StyledText& shown, const QTextDocument& document)
{
    auto before = shown;
    endLinesPlainly(before);
    auto edited = before;
    takeCharacters(edited, withPlainLineEnds(document.toRawText()));
    takeStyles(edited, document);
    return edited == before ? shown : edited;
}

StyledText pastedText(const QTextDocument& document)
{
    auto text = editedText({}, document);
    takeOutObjects(text);
    return text;
}

} // namespace ridelog
