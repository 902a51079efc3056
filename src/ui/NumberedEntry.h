#pragma once

#include <QMenu>
#include <QString>

namespace ridelog {

/// Adds an entry to a list of things by name, which its number chooses as far as the digits go. An ampersand
/// in a name is none of the menu's.
inline QAction* addNumberedEntry(QMenu& menu, QString name)
{
    name.replace(u'&', QStringLiteral("&&"));
    const auto index = menu.actions().size();
    return menu.addAction(index < 9 ? QStringLiteral("&%1  %2").arg(QString::number(index + 1), name) : name);
}

} // namespace ridelog
