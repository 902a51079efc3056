#include "ui/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>

namespace ridelog {
namespace {

/// Draws what an icon is, into as many pixels as are asked for.
class DrawnIcon : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }
};

class ActionIcon final : public DrawnIcon {
public:
    explicit ActionIcon(const QString& name) : _name(name) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        // Only the shape of the drawing counts.
        const auto scale = painter->device()->devicePixelRatio();
        QImage shape(rect.size() * scale, QImage::Format_ARGB32_Premultiplied);
        shape.fill(Qt::transparent);
        QPainter drawing(&shape);
        QSvgRenderer(QStringLiteral(":/icons/actions/%1.svg").arg(_name)).render(&drawing);
        drawing.setCompositionMode(QPainter::CompositionMode_SourceIn);
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        drawing.fillRect(shape.rect(), QGuiApplication::palette().color(group, role));
        drawing.end();
        painter->drawImage(rect, shape);
    }
    QIconEngine* clone() const override { return new ActionIcon(*this); }

private:
    QString _name;
};

class ApplicationIcon final : public DrawnIcon {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        // The small drawing leaves out what would run together.
        constexpr int largestSmall = 24;
        const auto folder = std::min(rect.width(), rect.height()) <= largestSmall ? QStringLiteral("small")
                                                                                  : QStringLiteral("apps");
        QSvgRenderer(QStringLiteral(":/icons/%1/ridelog.svg").arg(folder)).render(painter, rect);
    }
    QIconEngine* clone() const override { return new ApplicationIcon(*this); }
};

} // namespace

QIcon actionIcon(const QString& name)
{
    return QIcon(new ActionIcon(name));
}

QIcon applicationIcon()
{
    return QIcon::fromTheme(QStringLiteral("ridelog"), QIcon(new ApplicationIcon));
}

} // namespace ridelog
