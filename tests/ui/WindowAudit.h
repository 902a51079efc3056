#pragma once

#include <QStringList>
#include <QTranslator>

class QWidget;

namespace ridelog {

/// Speaks a language whose texts are 40 % longer than the English ones and stand in brackets.
class LongTexts : public QTranslator {
public:
    LongTexts();
    ~LongTexts() override;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* comment, int count) const override;
};

// What is wrong with what a window shows now, a line for each finding.

/// Texts that do not have the room they need.
QStringList clippedTexts(const QWidget& window);

/// Texts of controls, of menus and for screen readers that LongTexts has not made. `isData` knows those of
/// the rider and of the device, which are no words of the program.
QStringList untranslatedTexts(const QWidget& window, bool (*isData)(const QString& text));

/// Controls without a name or a role for screen readers, that Tab does not reach, or only in another order
/// than they are read in. The window has to be in front.
QStringList inaccessibleControls(QWidget& window);

/// Menus and panels in which two entries share a letter, and keys that two actions have.
QStringList ambiguousKeys(const QWidget& window);

/// Texts that are too like what is behind them (WCAG 2.1, level AA).
QStringList faintTexts(const QWidget& window);

} // namespace ridelog
