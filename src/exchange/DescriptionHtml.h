#pragma once

#include <QByteArray>

namespace ridelog {

class StyledText;

/// What a rider has written as paragraphs of a page: a blank line parts two, bold, italic and underlined
/// stay. Of links those to pages and mail addresses; others, which might run something, are plain text.
QByteArray descriptionHtml(const StyledText& text);

} // namespace ridelog
