#include "cli/Wording.h"

#include <algorithm>

namespace ridelog {

namespace {

/// Whether the character ends a line, moves a terminal's cursor, or turns the direction of what follows.
bool isControl(QChar character)
{
    const auto category = character.category();
    const bool turns = (character >= QChar(0x202A) && character <= QChar(0x202E)) ||
                       (character >= QChar(0x2066) && character <= QChar(0x2069));
    return turns || category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

} // namespace

bool isOneLine(const QString& text)
{
    return std::ranges::none_of(text, isControl);
}

QString printable(const QString& text)
{
    QString line;
    for (const auto character : text) {
        if (character.unicode() > 0xFF && isControl(character))
            line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        else if (isControl(character))
            line += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line;
}

QString elided(const QString& text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    if (length < 2)
        return text.left(length);
    auto start = text.left(length - 1);
    if (start.back().isHighSurrogate())
        start.chop(1);
    return start.trimmed() + u'…';
}

QString counted(qsizetype count, const QString& what)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(what, count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace ridelog
