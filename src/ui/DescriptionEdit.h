#pragma once

#include "platform/StyledText.h"

#include <QTextEdit>
#include <QTimer>

namespace ridelog {

/// The editor of a tour's description: rich text. What was typed is told of after each pause, so that it
/// becomes one step of undo, which is not the editor's own.
class DescriptionEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit DescriptionEdit(QWidget* parent = nullptr);

    /// Shows this text, the cursor where it was as far as there is such a place.
    void setStyledText(const StyledText& text);
    /// What it shows now.
    StyledText styledText() const;
    /// What it showed when it was last told of, without what is still being typed.
    const StyledText& shownText() const { return _shown; }
    bool isBeingEdited() const { return styledText() != _shown; }
    /// Tells of what was typed since the last pause at once.
    void finishEditing();

    // The selected characters, or those to be typed next

    void setBold(bool bold);
    void setItalic(bool italic);
    void setUnderlined(bool underlined);
    /// Of the link that the cursor is in, as a whole, if nothing is selected; outside of links the address is
    /// inserted. An empty address takes the link away.
    void setLink(const QString& address);
    QString linkAtCursor() const;
    /// Opens a web page, or a letter, in its program. False for other addresses, which could start anything.
    bool openLink(const QString& address);
    /// Puts a bullet before each of the selected lines, or takes the bullets away.
    void toggleList();

Q_SIGNALS:
    /// After a pause, or when the editor is left: styledText() is another than it was.
    void edited();

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void changeFormat(const QTextCharFormat& format);
    bool goOnWithList();
    void selectLink();
    void leaveLink();

    StyledText _shown;
    QTimer _pause;
};

} // namespace ridelog
