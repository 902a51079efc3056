#pragma once

#include <QByteArray>
#include <QString>

namespace ridelog {

class Defaults;

// The frame of a report for the browser. A report is one file that asks nothing of any other: styles and
// scripts are in it. It is well-formed XML as well, but for its first line.

/// The text as content of an element or of a quoted attribute, in UTF-8.
QByteArray escaped(const QString& text);

/// A name and its value: a line of a list <dl>.
QByteArray namedValue(const QString& name, const QString& value);

/// Whether charts tell the values under the mouse, for which the page has a script.
enum class Readouts { none, some };

/// Up to the place of the heading.
QByteArray pageBegin(const QString& title, const Defaults& defaults);
QByteArray pageEnd(Readouts readouts);

} // namespace ridelog
