#include "ui/ManualPage.h"

#include <QEvent>
#include <QFile>
#include <QLocale>
#include <QScrollBar>
#include <QTextDocument>

#include <algorithm>
#include <cstdlib>

namespace ridelog {
namespace {

constexpr int margin = 16; ///< around the text, in pixels

/// Where the pages of this language are; those in English, where it has none.
QString folderFor(const QLocale& locale)
{
    const auto code = locale.name();
    for (const auto& language : {code, code.section(u'_', 0, 0)}) {
        if (QFile::exists(QStringLiteral(":/manual/%1/index.html").arg(language)))
            return QStringLiteral("qrc:/manual/%1/").arg(language);
    }
    return QStringLiteral("qrc:/manual/");
}

/// Not every dark desktop says how to write links on it.
QColor readableOn(const QColor& ground, const QColor& link)
{
    constexpr int leastDifference = 110;
    constexpr int bright = 190;
    if (std::abs(link.lightness() - ground.lightness()) >= leastDifference)
        return link;
    return ground.lightness() < bright / 2 ? QColor::fromHsl(link.hslHue(), link.hslSaturation(), bright)
                                           : link;
}

} // namespace

ManualPage::ManualPage(QWidget* parent) : QTextBrowser(parent)
{
    setAccessibleName(tr("Page of the manual"));
    setOpenExternalLinks(true);
    setFrameShape(QFrame::NoFrame);
    // Text that grows over the height gets no narrower, and pictures need not be fitted twice.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(margin);
    takeColours();
}

void ManualPage::showSection(const QString& section)
{
    setSource(QUrl(folderFor(QLocale()) + (section.isEmpty() ? QStringLiteral("index.html") : section)));
}

QVariant ManualPage::loadResource(int type, const QUrl& name)
{
    // That is for browsers.
    if (type == QTextDocument::StyleSheetResource)
        return QString();
    if (type != QTextDocument::ImageResource) {
        _pictures.clear();
        return QTextBrowser::loadResource(type, name);
    }
    const QImage picture(u':' + source().resolved(name).path());
    _pictures.insert(name, picture);
    return fitted(picture);
}

void ManualPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::StyleChange)
        return;
    takeColours();
    if (source().isEmpty())
        return;
    // Colours are given to a page when it is read.
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

void ManualPage::resizeEvent(QResizeEvent* event)
{
    fitPictures();
    QTextBrowser::resizeEvent(event);
}

void ManualPage::takeColours()
{
    const auto text = palette().color(QPalette::Text);
    const auto base = palette().color(QPalette::Base);
    const auto between = [&](int share) {
        const auto mix = [share](int one, int other) { return (one * (100 - share) + other * share) / 100; };
        return QColor(mix(base.red(), text.red()), mix(base.green(), text.green()),
                      mix(base.blue(), text.blue()))
            .name();
    };
    document()->setDefaultStyleSheet(
        QStringLiteral(
            "a { color: %1 } "
            "p, li { -qt-line-height-type: line-distance; line-height: 4px } li { margin-bottom: 2px } "
            "h2 { margin-top: 24px } h3 { margin-top: 16px } "
            "table { border-collapse: collapse; margin-top: 8px; margin-bottom: 8px } "
            "td, th { border: 1px solid %2; padding: 4px 8px } th { text-align: left } "
            "code, pre { font-family: monospace; background-color: %3 } "
            "pre { margin-top: 8px; margin-bottom: 8px } "
            ".steps { margin-top: 32px } ")
            .arg(readableOn(base, palette().color(QPalette::Link)).name(), between(30), between(8)));
}

void ManualPage::fitPictures()
{
    for (auto [name, picture] : _pictures.asKeyValueRange())
        document()->addResource(QTextDocument::ImageResource, name, fitted(picture));
    if (!_pictures.isEmpty())
        document()->markContentsDirty(0, document()->characterCount());
}

QImage ManualPage::fitted(const QImage& picture) const
{
    if (picture.isNull())
        return picture;
    const auto room = std::max(1, viewport()->width() - 2 * margin);
    const auto width = std::min(room, picture.width());
    // In the screen's own pixels: where it has two for one, none that the picture has is lost.
    auto image = picture.scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

} // namespace ridelog
