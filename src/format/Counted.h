#pragma once

#include <QLocale>
#include <QString>

namespace ridelog {

/// The text for one, or that for any other number, which takes the place of its "%1".
inline QString counted(qsizetype count, const QString& one, const QString& many)
{
    return count == 1 ? one : many.arg(QLocale().toString(count));
}

} // namespace ridelog
