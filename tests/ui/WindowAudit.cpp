#include "tests/ui/WindowAudit.h"

#include "ui/Contrast.h"
#include "ui/ElidedLabel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSet>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include <algorithm>
#include <cmath>

namespace ridelog {
namespace {

/// Those that are seen now, the window's parts and not those of windows over it.
QList<QWidget*> visibleIn(const QWidget& window)
{
    QList<QWidget*> found;
    for (auto* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == &window && !widget->visibleRegion().isEmpty())
            found << widget;
    }
    return found;
}

/// How a finding names a widget.
QString placeOf(const QWidget& widget)
{
    QStringList names;
    for (const auto* one = &widget; one; one = one->parentWidget()) {
        const auto name = one->objectName().isEmpty() ? QString() : u'(' + one->objectName() + u')';
        names.prepend(
            QString::fromLatin1(one->metaObject()->className()).remove(QStringLiteral("ridelog::")) + name);
        if (one->isWindow())
            break;
    }
    return names.join(u'/');
}

bool hasWords(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}{2}"));
    return word.match(text).hasMatch();
}

/// A pixel may be lost to rounding.
bool isTooNarrow(int width, int wanted)
{
    return width + 1 < wanted;
}

bool isClipped(const QLabel& label)
{
    if (label.text().isEmpty())
        return false;
    if (qobject_cast<const ElidedLabel*>(&label))
        return false; // it shows the rest under the mouse
    if (label.wordWrap())
        return isTooNarrow(label.height(), label.heightForWidth(label.width()));
    return isTooNarrow(label.width(), label.sizeHint().width()) ||
           isTooNarrow(label.height(), label.sizeHint().height());
}

bool isClipped(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const auto room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    const auto text = box.currentIndex() < 0 ? box.placeholderText() : box.currentText();
    if (box.toolTip() == text)
        return false;
    return isTooNarrow(room.width(), box.fontMetrics().horizontalAdvance(text));
}

bool isClipped(const QLineEdit& field)
{
    const auto text = field.text().isEmpty() ? field.placeholderText() : field.text();
    // Its own margins: 2 on each side.
    return isTooNarrow(field.contentsRect().width() - 4, field.fontMetrics().horizontalAdvance(text));
}

QString clippedSections(const QHeaderView& header)
{
    QStringList found;
    for (int section = 0; section < header.count(); ++section) {
        if (!header.isSectionHidden(section) &&
            isTooNarrow(header.sectionSize(section), header.sectionSizeHint(section)))
            found << header.model()->headerData(section, header.orientation()).toString();
    }
    return found.join(QStringLiteral(", "));
}

/// The text that has too little room in the widget; empty if all is well.
QString clippedIn(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return isClipped(*label) ? label->text() : QString();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty() && isTooNarrow(button->width(), button->minimumSizeHint().width())
                   ? button->text()
                   : QString();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return isClipped(*box) ? box->currentText() + box->placeholderText() : QString();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return isClipped(*field) ? field->text() + u'|' + field->placeholderText() : QString();
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        return isTooNarrow(tabs->width(), tabs->sizeHint().width()) ? QStringLiteral("tabs") : QString();
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return header->orientation() == Qt::Horizontal ? clippedSections(*header) : QString();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return isTooNarrow(group->width(), group->minimumSizeHint().width()) ? group->title() : QString();
    if (const auto* dock = qobject_cast<const QDockWidget*>(&widget))
        return isTooNarrow(dock->width(), dock->fontMetrics().horizontalAdvance(dock->windowTitle()))
                   ? dock->windowTitle()
                   : QString();
    return {};
}

void collectMenuTexts(const QList<QAction*>& actions, QStringList& texts)
{
    for (auto* action : actions) {
        texts << action->text() << action->toolTip();
        if (action->menu()) {
            Q_EMIT action->menu()->aboutToShow();
            collectMenuTexts(action->menu()->actions(), texts);
        }
    }
}

/// Everything that the widget says, to eyes or to a screen reader.
QStringList textsOf(const QWidget& widget)
{
    QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(),
                      widget.windowTitle()};
    collectMenuTexts(widget.actions(), texts);
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts << label->text();
    else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts << button->text();
    else if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        texts << field->placeholderText();
    else if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        texts << group->title();
    else if (const auto* spin = qobject_cast<const QSpinBox*>(&widget))
        texts << spin->suffix() << spin->prefix() << spin->specialValueText();
    else if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        texts << box->placeholderText();
        for (int item = 0; item < box->count(); ++item)
            texts << box->itemText(item);
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            texts << tabs->tabText(tab) << tabs->tabToolTip(tab);
    } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget); header && header->model()) {
        for (int section = 0; section < header->count(); ++section)
            texts << header->model()->headerData(section, header->orientation()).toString();
    }
    return texts;
}

bool takesTab(const QWidget& widget)
{
    if (!widget.isEnabled() || !(widget.focusPolicy() & Qt::TabFocus) || widget.focusProxy())
        return false;
    // Of those that exclude each other Tab reaches the chosen one, arrows the others.
    const auto* radio = qobject_cast<const QAbstractButton*>(&widget);
    return !radio || !radio->autoExclusive() || radio->isChecked() || !radio->isCheckable();
}

/// What Tab comes by, from the first control on and once around.
QList<QWidget*> reachedByTab(QWidget& window)
{
    QList<QWidget*> reached;
    for (int presses = 0; presses < 200; ++presses) {
        auto* focus = QApplication::focusWidget();
        if (!focus)
            focus = &window;
        // A date's parts come one after the other.
        const bool isSame = !reached.empty() && reached.back() == focus;
        if (reached.contains(focus) && !isSame)
            break;
        if (focus != &window && !isSame)
            reached << focus;
        // In a text Tab may be a character.
        const bool isText =
            qobject_cast<QTextEdit*>(focus) && !qobject_cast<QTextEdit*>(focus)->tabChangesFocus();
        QTest::keyClick(focus, Qt::Key_Tab, isText ? Qt::ControlModifier : Qt::NoModifier);
    }
    return reached;
}

QRect onWindow(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

QStringList inOtherOrder(const QList<QWidget*>& reached)
{
    QStringList found;
    for (qsizetype i = 1; i < reached.size(); ++i) {
        const auto& before = *reached[i - 1];
        const auto& after = *reached[i];
        // Around again, or from one part of the window to another.
        if (before.parentWidget() != after.parentWidget())
            continue;
        const auto first = onWindow(before);
        const auto second = onWindow(after);
        const bool isNextColumn = second.left() > first.right();
        const bool isAbove = second.bottom() < first.top() && !isNextColumn;
        const bool isLeftBeside = second.right() < first.left() && second.top() <= first.center().y() &&
                                  second.bottom() >= first.center().y();
        if (isAbove || isLeftBeside)
            found << placeOf(after) + QStringLiteral(" comes after ") + placeOf(before);
    }
    return found;
}

void collectLetters(const QString& text, const QString& place, QMap<QChar, QString>& letters,
                    QStringList& found)
{
    auto ampersand = text.indexOf(u'&');
    while (ampersand >= 0 && text.mid(ampersand, 2) == u"&&")
        ampersand = text.indexOf(u'&', ampersand + 2);
    if (ampersand < 0 || ampersand + 1 >= text.size())
        return;
    const auto letter = text.at(ampersand + 1).toLower();
    if (letters.contains(letter))
        found << place + QStringLiteral(": “%1” and “%2”").arg(letters[letter], text);
    letters.insert(letter, text);
}

void collectMenuLetters(const QList<QAction*>& actions, const QString& place, QStringList& found)
{
    QMap<QChar, QString> letters;
    for (auto* action : actions) {
        if (action->isSeparator())
            continue;
        collectLetters(action->text(), place, letters, found);
        if (action->menu()) {
            Q_EMIT action->menu()->aboutToShow();
            collectMenuLetters(action->menu()->actions(), place + u'/' + action->text(), found);
        }
    }
}

} // namespace

LongTexts::LongTexts()
{
    QCoreApplication::installTranslator(this);
}

LongTexts::~LongTexts()
{
    QCoreApplication::removeTranslator(this);
}

QString LongTexts::translate(const char* context, const char* source, const char* /*comment*/,
                             int count) const
{
    const auto text = QString::fromUtf8(source);
    // The toolkit's own, patterns of dates, and what is put together of data alone.
    static const QSet<QString> kept{QStringLiteral("en"), QStringLiteral("yyyy/MM/dd - HH:mm"),
                                    QStringLiteral("%1 %2")};
    if (context[0] == 'Q' || text.isEmpty() || kept.contains(text))
        return {};
    static const auto filler = QStringLiteral("nolera").repeated(50);
    const auto length = (text.size() * 2 + 4) / 5;
    // It may break where the words of a real language could.
    auto more = filler.left(length);
    for (qsizetype at = 8; at < more.size(); at += 9)
        more[at] = u' ';
    Q_UNUSED(count);
    return u'[' + text + more + u']';
}

QStringList clippedTexts(const QWidget& window)
{
    QStringList found;
    for (const auto* widget : visibleIn(window)) {
        if (const auto text = clippedIn(*widget); !text.isEmpty())
            found << placeOf(*widget) + QStringLiteral(": ") + text;
    }
    return found;
}

QStringList untranslatedTexts(const QWidget& window, bool (*isData)(const QString& text))
{
    QStringList found;
    auto widgets = visibleIn(window);
    widgets << const_cast<QWidget*>(&window);
    for (const auto* widget : widgets) {
        if (widget->objectName().startsWith(u"qt_dockwidget"))
            continue; // the toolkit's
        for (const auto& text : textsOf(*widget)) {
            if (hasWords(text) && !text.contains(u'[') && !isData(text))
                found << placeOf(*widget) + QStringLiteral(": ") + text;
        }
    }
    found.removeDuplicates();
    return found;
}

QStringList inaccessibleControls(QWidget& window)
{
    QStringList found;
    const auto reached = reachedByTab(window);
    for (auto* widget : visibleIn(window)) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy())
            continue;
        // The field inside a control, the place where a table is drawn: the control speaks for them.
        const auto* parent = widget->parentWidget();
        if (qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent) ||
            qobject_cast<const QAbstractScrollArea*>(parent))
            continue;
        // Words that a mouse may copy are no control.
        if (qobject_cast<const QLabel*>(widget) && !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const auto* face = QAccessible::queryAccessibleInterface(widget);
        if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
            found << placeOf(*widget) + QStringLiteral(" has no name");
        // What scrolls is no more than its place.
        const bool isRoleless =
            !face || face->role() == QAccessible::NoRole || face->role() == QAccessible::Client;
        if (isRoleless && !qobject_cast<const QScrollArea*>(widget))
            found << placeOf(*widget) + QStringLiteral(" has no role");
        if (takesTab(*widget) && !reached.contains(widget))
            found << placeOf(*widget) + QStringLiteral(" is not reached by Tab");
    }
    return found + inOtherOrder(reached);
}

QStringList ambiguousKeys(const QWidget& window)
{
    QStringList found;
    for (const auto* bar : window.findChildren<QMenuBar*>())
        collectMenuLetters(bar->actions(), placeOf(*bar), found);
    // On a panel, and beside a menu bar as well.
    QMap<QChar, QString> letters;
    for (const auto* bar : window.findChildren<QMenuBar*>()) {
        for (const auto* action : bar->actions())
            collectLetters(action->text(), placeOf(window), letters, found);
    }
    for (const auto* widget : visibleIn(window)) {
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            collectLetters(button->text(), placeOf(window), letters, found);
        else if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->buddy())
            collectLetters(label->text(), placeOf(window), letters, found);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                collectLetters(tabs->tabText(tab), placeOf(window), letters, found);
        }
    }
    QMap<QString, QString> keys;
    for (const auto* action : window.findChildren<QAction*>()) {
        for (const auto& key : action->shortcuts()) {
            const auto name = key.toString();
            if (keys.contains(name) && keys[name] != action->text())
                found << placeOf(window) + QStringLiteral(": %1 is the key of “%2” and “%3”")
                                               .arg(name, keys[name], action->text());
            keys.insert(name, action->text());
        }
    }
    return found;
}

QStringList faintTexts(const QWidget& window)
{
    QStringList found;
    const auto check = [&](const QWidget& widget, QPalette::ColorRole text, QPalette::ColorRole ground) {
        const auto& palette = widget.palette();
        const auto ratio =
            contrast(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground));
        if (ratio < readableContrast)
            found << placeOf(widget) + QStringLiteral(": %1 : 1").arg(ratio, 0, 'f', 2);
    };
    for (const auto* widget : visibleIn(window)) {
        if (!widget->isEnabled())
            continue;
        if (qobject_cast<const QLabel*>(widget) || qobject_cast<const QCheckBox*>(widget) ||
            qobject_cast<const QRadioButton*>(widget))
            check(*widget, widget->foregroundRole(), widget->backgroundRole());
        else if (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget))
            check(*widget, QPalette::ButtonText, QPalette::Button);
        else if (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QAbstractScrollArea*>(widget)) {
            check(*widget, QPalette::Text, QPalette::Base);
            check(*widget, QPalette::PlaceholderText, QPalette::Base);
            check(*widget, QPalette::HighlightedText, QPalette::Highlight);
        }
    }
    return found;
}

} // namespace ridelog
