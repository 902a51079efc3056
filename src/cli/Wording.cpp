#include "cli/Wording.h"

namespace ridelog {

QString printable(const QString& text)
{
    QString line;
    for (const auto character : text) {
        const auto category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
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
