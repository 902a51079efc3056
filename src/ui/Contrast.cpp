#include "ui/Contrast.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace ridelog {
namespace {

double luminance(const QColor& colour)
{
    const auto linear = [](float component) {
        const auto value = static_cast<double>(component);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto between = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(between(one.redF(), other.redF()), between(one.greenF(), other.greenF()),
                            between(one.blueF(), other.blueF()));
}

/// As much nearer to `goal` as it has to be.
QColor apartFrom(const QColor& ground, const QColor& colour, const QColor& goal)
{
    constexpr int steps = 20;
    for (int step = 0; step < steps; ++step) {
        const auto nearer = mixed(colour, goal, static_cast<float>(step) / steps);
        if (contrast(nearer, ground) >= readableContrast)
            return nearer;
    }
    return goal;
}

void makeReadable()
{
    // What the theme says, without what was made of the last one.
    QApplication::setPalette(QPalette());
    const auto theme = QApplication::palette();
    const auto better = readable(theme);
    QPalette ours;
    for (const auto role :
         {QPalette::PlaceholderText, QPalette::Highlight, QPalette::Link, QPalette::LinkVisited}) {
        if (better.color(role) != theme.color(role))
            ours.setColor(role, better.color(role));
    }
    QApplication::setPalette(ours);
}

/// Does it again when the desktop's colours change.
class ThemeWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp && !_isOurs) {
            _isOurs = true;
            makeReadable();
            _isOurs = false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool _isOurs = false; ///< this change
};

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor subduedTextColour(const QPalette& palette)
{
    const auto text = palette.color(QPalette::Active, QPalette::Text);
    const auto base = palette.color(QPalette::Active, QPalette::Base);
    // Rows of tables are striped.
    const auto stripe = palette.color(QPalette::Active, QPalette::AlternateBase);
    constexpr int steps = 20;
    for (int step = steps / 2; step > 0; --step) {
        const auto colour = mixed(text, base, static_cast<float>(step) / steps);
        if (std::min(contrast(colour, base), contrast(colour, stripe)) >= readableContrast)
            return colour;
    }
    return text;
}

QPalette readable(QPalette palette)
{
    palette.setColor(QPalette::PlaceholderText, subduedTextColour(palette));
    const auto selected = palette.color(QPalette::Active, QPalette::HighlightedText);
    const bool isLight = contrast(selected, Qt::black) > contrast(selected, Qt::white);
    const auto highlight = palette.color(QPalette::Active, QPalette::Highlight);
    palette.setColor(QPalette::Highlight, apartFrom(selected, highlight, isLight ? Qt::black : Qt::white));
    for (const auto role : {QPalette::Link, QPalette::LinkVisited}) {
        const auto base = palette.color(QPalette::Active, QPalette::Base);
        const auto text = palette.color(QPalette::Active, QPalette::Text);
        palette.setColor(role, apartFrom(base, palette.color(QPalette::Active, role), text));
    }
    return palette;
}

void keepColoursReadable()
{
    makeReadable();
    qApp->installEventFilter(new ThemeWatch(qApp));
}

} // namespace ridelog
