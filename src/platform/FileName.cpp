#include "platform/FileName.h"

#include <QList>

namespace ridelog {
namespace {

bool isSafe(char32_t character)
{
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        // What stands for the half of a pair is none either.
        return character != QChar::ReplacementCharacter &&
               !refused.contains(QStringView(QChar::fromUcs4(character)));
    }
}

} // namespace

QString safeFileName(const QString& text, QChar instead)
{
    // With what else a name is made of it stays below the 255 bytes that file systems take.
    constexpr qsizetype mostBytes = 160;
    QString name;
    qsizetype bytes = 0;
    for (const auto character : text.toUcs4()) {
        const auto next =
            isSafe(character) ? QStringView(QChar::fromUcs4(character)).toString() : QString(instead);
        bytes += next.toUtf8().size();
        if (bytes > mostBytes)
            break;
        if (isSafe(character) || !name.endsWith(instead))
            name += next;
    }
    const auto isEdge = [instead](QChar character) {
        return character.isSpace() || character == u'.' || character == instead;
    };
    while (!name.isEmpty() && isEdge(name.back()))
        name.chop(1);
    while (!name.isEmpty() && isEdge(name.front()))
        name.remove(0, 1);
    return name;
}

} // namespace ridelog
