#include "chart/ChartPicture.h"

#include "chart/ChartDrawing.h"

#include <QBuffer>
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

QSize sizeOf(const ChartScaling::Chart& chart)
{
    return {static_cast<int>(chart.width), static_cast<int>(chart.height)};
}

QString drawPoints(QBuffer& out, const ChartScaling::Chart& chart, std::optional<float> indicator,
                   const char* format, int quality)
{
    auto tooLarge = QStringLiteral("there is not enough memory for a picture of this size");
    QImage image(sizeOf(chart), QImage::Format_RGB32);
    if (image.isNull())
        return tooLarge;
    try {
        {
            QPainter painter(&image);
            ChartDrawing(painter, chart, indicator).draw();
        }
        return image.save(&out, format, quality) ? QString()
                                                 : QStringLiteral("the picture cannot be encoded");
    } catch (const std::bad_alloc&) {
        return tooLarge;
    }
}

QString drawSvg(QBuffer& out, const ChartScaling::Chart& chart, std::optional<float> indicator)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    generator.setSize(sizeOf(chart));
    generator.setViewBox(QRect(QPoint(), sizeOf(chart)));
    generator.setResolution(unitsPerInch);
    generator.setTitle(QStringLiteral("ridelog"));
    generator.setDescription(chart.showNames.join(QStringLiteral(", ")));
    QPainter painter(&generator);
    ChartDrawing(painter, chart, indicator).draw();
    return {};
}

QString drawPdf(QBuffer& out, const ChartScaling::Chart& chart, std::optional<float> indicator)
{
    QPdfWriter writer(&out);
    writer.setResolution(pointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(sizeOf(chart)), QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    ChartDrawing(painter, chart, indicator).draw();
    return {};
}

} // namespace

QStringList chartPictureEndings()
{
    return {QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("png"), QStringLiteral("svg"),
            QStringLiteral("pdf")};
}

ChartPicture chartPicture(const ChartScaling::Chart& chart, std::optional<float> indicator,
                          const QString& fileName)
{
    if (sizeOf(chart).isEmpty())
        return {{}, QStringLiteral("a picture is at least one unit wide and high")};
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    const auto ending = QFileInfo(fileName).suffix().toLower();
    QString error;
    if (ending == u"jpg" || ending == u"jpeg")
        error = drawPoints(out, chart, indicator, "JPEG", jpegQuality);
    else if (ending == u"png")
        error = drawPoints(out, chart, indicator, "PNG", usualQuality);
    else if (ending == u"svg")
        error = drawSvg(out, chart, indicator);
    else if (ending == u"pdf")
        error = drawPdf(out, chart, indicator);
    else
        error =
            QStringLiteral("pictures end with .%1").arg(chartPictureEndings().join(QStringLiteral(", .")));
    return {out.data(), error};
}

} // namespace ridelog
