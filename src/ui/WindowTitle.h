#pragma once

#include <QString>
#include <QWidget>

namespace ridelog {

// A window's title has a place for the mark of changes, which is written as "[*]". What is written so in a
// name is to be seen as it is.

inline const QString placeOfMark = QStringLiteral("[*]");

inline QString titleWithName(QString name)
{
    return name.replace(placeOfMark, placeOfMark + placeOfMark);
}

/// The title as people see it, without the mark.
inline QString shownTitle(const QWidget& window)
{
    // A pair stands for one that is seen.
    const QChar seen = QChar::ObjectReplacementCharacter;
    auto title = window.windowTitle();
    title.replace(placeOfMark + placeOfMark, seen);
    title.remove(placeOfMark);
    return title.replace(seen, placeOfMark);
}

} // namespace ridelog
