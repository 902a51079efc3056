#include "ui/DescriptionEdit.h"

#include "ui/StyledTextConversion.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <chrono>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

constexpr auto pause = 1s;
/// A page that reads nothing from elsewhere: its style sheets could be any file of this machine.
class PastedPage : public QTextDocument {
protected:
    QVariant loadResource(int, const QUrl&) override { return QByteArray(""); }
};

const QString bullet = QStringLiteral("\u2022 ");

} // namespace

DescriptionEdit::DescriptionEdit(QWidget* parent) : QTextEdit(parent)
{
    setAccessibleName(tr("Description"));
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setAutoFormatting(AutoNone);
    _pause.setSingleShot(true);
    _pause.setInterval(pause);
    _pause.callOnTimeout(this, &DescriptionEdit::finishEditing);
    connect(this, &QTextEdit::textChanged, &_pause, qOverload<>(&QTimer::start));
    connect(this, &QTextEdit::cursorPositionChanged, this, &DescriptionEdit::leaveLink);
}

void DescriptionEdit::setStyledText(const StyledText& text)
{
    _pause.stop();
    _shown = text;
    const auto place = textCursor().position();
    {
        const QSignalBlocker quiet(this);
        showStyledText(text, *document());
        auto cursor = textCursor();
        cursor.setPosition(std::min(place, document()->characterCount() - 1));
        setTextCursor(cursor);
    }
    Q_EMIT currentCharFormatChanged(currentCharFormat());
}

StyledText DescriptionEdit::styledText() const
{
    return editedText(_shown, *document());
}

void DescriptionEdit::finishEditing()
{
    _pause.stop();
    auto text = styledText();
    if (text == _shown)
        return;
    _shown = std::move(text);
    Q_EMIT edited();
}

// Keys and mouse

bool DescriptionEdit::event(QEvent* event)
{
    // Undo and redo are the document's, what was typed just now included.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            finishEditing();
            return false;
        }
    }
    return QTextEdit::event(event);
}

void DescriptionEdit::focusOutEvent(QFocusEvent* event)
{
    finishEditing();
    QTextEdit::focusOutEvent(event);
}

void DescriptionEdit::keyPressEvent(QKeyEvent* event)
{
    const bool endsLine = event->matches(QKeySequence::InsertParagraphSeparator);
    if (!endsLine || !goOnWithList())
        QTextEdit::keyPressEvent(event);
}

/// The line after one of a list is another of it, but an empty one ends the list. False outside of lists.
bool DescriptionEdit::goOnWithList()
{
    auto cursor = textCursor();
    const auto line = cursor.block();
    if (!line.text().startsWith(bullet) || cursor.hasSelection() || cursor.positionInBlock() < bullet.size())
        return false;
    if (line.text() == bullet) {
        cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    } else {
        cursor.insertText(u'\n' + bullet);
    }
    ensureCursorVisible();
    return true;
}

void DescriptionEdit::mouseReleaseEvent(QMouseEvent* event)
{
    QTextEdit::mouseReleaseEvent(event);
    // In a text that is edited a click alone moves the cursor.
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier)
        openLink(anchorAt(event->position().toPoint()));
}

bool DescriptionEdit::openLink(const QString& address)
{
    const auto url = QUrl::fromUserInput(address);
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"),
                                     QStringLiteral("mailto")};
    const bool leadsSomewhere = schemes.contains(url.scheme()) && !(url.host() + url.path()).isEmpty();
    return leadsSomewhere && QDesktopServices::openUrl(url);
}

bool DescriptionEdit::canInsertFromMimeData(const QMimeData* source) const
{
    // Files are for the window.
    const bool areFiles = std::ranges::any_of(source->urls(), &QUrl::isLocalFile);
    return !areFiles && (source->hasHtml() || source->hasText());
}

void DescriptionEdit::insertFromMimeData(const QMimeData* source)
{
    auto cursor = textCursor();
    if (source->hasHtml()) {
        PastedPage pasted;
        pasted.setHtml(source->html());
        insertStyledText(pastedText(pasted), cursor);
    } else {
        cursor.insertText(source->text());
    }
    ensureCursorVisible();
}

// Styles

void DescriptionEdit::changeFormat(const QTextCharFormat& format)
{
    mergeCurrentCharFormat(format);
    finishEditing();
}

void DescriptionEdit::setBold(bool bold)
{
    QTextCharFormat format;
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    changeFormat(format);
}

void DescriptionEdit::setItalic(bool italic)
{
    QTextCharFormat format;
    format.setFontItalic(italic);
    changeFormat(format);
}

void DescriptionEdit::setUnderlined(bool underlined)
{
    QTextCharFormat format;
    format.setFontUnderline(underlined);
    changeFormat(format);
}

/// All of the link that the cursor is in.
void DescriptionEdit::selectLink()
{
    auto cursor = textCursor();
    const auto address = linkAtCursor();
    const auto block = cursor.block();
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const auto fragment = part.fragment();
        const auto end = fragment.position() + fragment.length();
        if (fragment.charFormat().anchorHref() != address || cursor.position() <= fragment.position() ||
            cursor.position() > end)
            continue;
        cursor.setPosition(fragment.position());
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        return;
    }
}

/// What is typed behind a link is none of it.
void DescriptionEdit::leaveLink()
{
    auto next = textCursor();
    if (next.hasSelection() || !next.charFormat().isAnchor())
        return;
    const bool isAtEnd = next.atBlockEnd() || !next.movePosition(QTextCursor::NextCharacter) ||
                         next.charFormat().anchorHref() != linkAtCursor();
    if (!isAtEnd)
        return;
    auto format = currentCharFormat();
    format.setAnchor(false);
    format.clearProperty(QTextFormat::AnchorHref);
    format.clearForeground();
    format.setFontUnderline(false);
    setCurrentCharFormat(format);
}

void DescriptionEdit::setLink(const QString& address)
{
    if (!textCursor().hasSelection() && !linkAtCursor().isEmpty())
        selectLink();
    if (!textCursor().hasSelection()) {
        const auto from = textCursor().position();
        textCursor().insertText(address);
        auto inserted = textCursor();
        inserted.setPosition(from, QTextCursor::KeepAnchor);
        setTextCursor(inserted);
    }
    QTextCharFormat format;
    format.setAnchor(!address.isEmpty());
    format.setAnchorHref(address);
    format.setFontUnderline(!address.isEmpty());
    changeFormat(format);
    // As every link, or no link, is shown.
    setStyledText(styledText());
}

QString DescriptionEdit::linkAtCursor() const
{
    return textCursor().charFormat().anchorHref();
}

void DescriptionEdit::toggleList()
{
    auto cursor = textCursor();
    const auto first = document()->findBlock(cursor.selectionStart());
    const auto end = document()->findBlock(cursor.selectionEnd()).next();
    bool areAll = true;
    for (auto line = first; line != end; line = line.next())
        areAll = areAll && line.text().startsWith(bullet);
    // Laid out once, not after every line.
    cursor.beginEditBlock();
    for (auto line = first; line != end; line = line.next()) {
        cursor.setPosition(line.position());
        if (areAll) {
            cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(bullet.size()));
            cursor.removeSelectedText();
        } else if (!line.text().startsWith(bullet)) {
            cursor.insertText(bullet);
        }
    }
    cursor.endEditBlock();
    finishEditing();
}

} // namespace ridelog
