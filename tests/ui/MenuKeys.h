#pragma once

#include <QAction>
#include <QMenu>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace ridelog {

/// The keys of all these actions and of those below. No two of a menu share the letter after the ampersand,
/// and no two of all a key.
inline void collectKeys(const QList<QAction*>& actions, QStringList& keys)
{
    QSet<QChar> letters;
    for (const auto* one : actions) {
        if (one->isSeparator())
            continue;
        if (const auto ampersand = one->text().indexOf(u'&'); ampersand >= 0) {
            const auto letter = one->text().at(ampersand + 1).toLower();
            EXPECT_FALSE(letters.contains(letter)) << qPrintable(one->text());
            letters.insert(letter);
        }
        if (one->menu()) {
            Q_EMIT one->menu()->aboutToShow();
            collectKeys(one->menu()->actions(), keys);
        } else if (!one->shortcut().isEmpty()) {
            EXPECT_FALSE(keys.contains(one->shortcut().toString())) << qPrintable(one->text());
            keys << one->shortcut().toString();
        }
    }
}

} // namespace ridelog
