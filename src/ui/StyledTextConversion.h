#pragma once

#include "platform/StyledText.h"

QT_BEGIN_NAMESPACE
class QTextCursor;
class QTextDocument;
QT_END_NAMESPACE

namespace ridelog {

// A styled text and the document of a text editor: bold, italic, underline and links go both ways. What else
// a text's runs say an editor does not show; it stays with the characters that it belongs to.

/// Fills the document, which forgets what it held.
void showStyledText(const StyledText& text, QTextDocument& document);
/// Puts the text in the place of what the cursor has selected.
void insertStyledText(const StyledText& text, QTextCursor& cursor);

/// The text that was shown in the document, changed to what the document holds now. Equal to it if nothing
/// was edited.
StyledText editedText(const StyledText& shown, const QTextDocument& document);

/// What of a document from elsewhere a styled text has room for: not its pictures, nor how it looks.
StyledText pastedText(const QTextDocument& document);

} // namespace ridelog
