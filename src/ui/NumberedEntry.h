#pragma once

#include <QMenu>
#include <QString>

namespace ridelog {

/// Adds an entry to a list of things by name, which its number, from 1, chooses as far as the digits go. An
/// ampersand in a name is none of the menu's.
inline QAction* addNumberedEntry(QMenu& menu, int number, QString name)
{
    name.replace(u'&', QStringLiteral("&&"));
    return menu.addAction(number < 10 ? QStringLiteral("&%1  %2").arg(QString::number(number), name) : name);
}

} // namespace ridelog
