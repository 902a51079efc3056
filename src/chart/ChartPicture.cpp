#include "chart/ChartPicture.h"

#include "chart/ChartDrawing.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <new>

namespace ridelog {
namespace {

/// Of 100: details of lines and labels stay clear.
constexpr int jpegQuality = 90;
constexpr int usualQuality = -1;
/// Of an SVG picture, as browsers have it.
constexpr int unitsPerInch = 96;
/// Points of a PDF page in an inch: one for a view unit.
constexpr int pointsPerInch = 72;

QString drawPoints(QBuffer& out, const PictureContent& content, const char* format, int quality)
{
    auto tooLarge =
        QCoreApplication::translate("ChartPicture", "there is not enough memory for a picture of this size");
    QImage image(content.size, QImage::Format_RGB32);
    if (image.isNull())
        return tooLarge;
    try {
        {
            QPainter painter(&image);
            content.draw(painter);
        }
        return image.save(&out, format, quality)
                   ? QString()
                   : QCoreApplication::translate("ChartPicture", "the picture cannot be encoded");
    } catch (const std::bad_alloc&) {
        return tooLarge;
    }
}

QString drawSvg(QBuffer& out, const PictureContent& content)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    generator.setSize(content.size);
    generator.setViewBox(QRect(QPoint(), content.size));
    generator.setResolution(unitsPerInch);
    generator.setTitle(QStringLiteral("ridelog"));
    generator.setDescription(content.description);
    QPainter painter(&generator);
    content.draw(painter);
    return {};
}

QString drawPdf(QBuffer& out, const PictureContent& content)
{
    QPdfWriter writer(&out);
    writer.setResolution(pointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(content.size), QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    content.draw(painter);
    return {};
}

} // namespace

QStringList chartPictureEndings()
{
    return {QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("png"), QStringLiteral("svg"),
            QStringLiteral("pdf")};
}

PictureContent chartContent(const ChartScaling::Chart& chart, std::optional<float> indicator)
{
    return {
        .size = {static_cast<int>(chart.width), static_cast<int>(chart.height)},
        .description = chart.showNames.join(QStringLiteral(", ")),
        .draw = [chart, indicator](QPainter& painter) { ChartDrawing(painter, chart, indicator).draw(); }};
}

ChartPicture chartPicture(const PictureContent& content, const QString& fileName)
{
    if (content.size.isEmpty())
        return {{},
                QCoreApplication::translate("ChartPicture", "a picture is at least one unit wide and high")};
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    const auto ending = QFileInfo(fileName).suffix().toLower();
    QString error;
    if (ending == u"jpg" || ending == u"jpeg")
        error = drawPoints(out, content, "JPEG", jpegQuality);
    else if (ending == u"png")
        error = drawPoints(out, content, "PNG", usualQuality);
    else if (ending == u"svg")
        error = drawSvg(out, content);
    else if (ending == u"pdf")
        error = drawPdf(out, content);
    else
        error = QCoreApplication::translate("ChartPicture", "pictures end with .%1")
                    .arg(chartPictureEndings().join(QStringLiteral(", .")));
    return {out.data(), error};
}

} // namespace ridelog
