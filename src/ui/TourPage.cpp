#include "ui/TourPage.h"

#include "chart/ChartArrayView.h"
#include "chart/ChartDrawing.h"
#include "exchange/TourSummary.h"
#include "exchange/TourTexts.h"
#include "library/FileOfTours.h"
#include "model/OdoTour.h"
#include "platform/WholeFile.h"
#include "ui/ElidedLabel.h"
#include "ui/StyledTextConversion.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QFont>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <memory>
#include <optional>

namespace ridelog {
namespace {

// Points
constexpr int titleSize = 18;
constexpr int textSize = 10;
constexpr int valueSize = 9;
constexpr double gap = 12;
constexpr double valueLine = 12;
constexpr double largestChartShare = 0.4; ///< of the page's height

constexpr std::size_t summaryColumns = 3;
/// Of a description that is made to fit: what is smaller nobody reads.
constexpr double smallestScale = 0.5;
constexpr double pointsPerInch = 72;
constexpr double margin = 15; ///< millimetres, until the user wants another

QFont fontOf(int points, bool bold = false)
{
    QFont font;
    font.setPixelSize(points); // the painter's units are points
    font.setBold(bold);
    return font;
}

/// One line over the whole width. Answers where it ends.
double drawLine(QPainter& painter, QRectF page, double top, const QFont& font, const QString& text)
{
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.drawText(QPointF(page.left(), top + metrics.ascent()),
                     metrics.elidedText(text.left(ElidedLabel::longest), Qt::ElideRight, page.width()));
    return top + metrics.height();
}

double drawChart(QPainter& painter, QRectF page, double top, const ChartArrayView& chart)
{
    const QSizeF size(page.width(), std::min(page.width() / 2, page.height() * largestChartShare));
    painter.save();
    painter.translate(page.left(), top);
    ChartDrawing(painter, chart.chart(size), std::nullopt).draw();
    painter.restore();
    return top + size.height();
}

/// Lines that a group takes, with its heading and the room below.
std::size_t linesOf(const SummaryGroup& group)
{
    return group.values.size() + 2;
}

/// The first group of each column: all stand in their order, and the longest column is as short as it can be.
std::vector<std::size_t> firstGroups(const std::vector<SummaryGroup>& groups)
{
    for (std::size_t most = 1;; ++most) {
        std::vector<std::size_t> first{0};
        std::size_t lines = 0;
        for (std::size_t index = 0; index < groups.size(); ++index) {
            if (lines > 0 && lines + linesOf(groups[index]) > most) {
                first.push_back(index);
                lines = 0;
            }
            lines += linesOf(groups[index]);
        }
        const bool fits =
            std::ranges::all_of(groups, [most](const auto& group) { return linesOf(group) <= most; });
        if (fits && first.size() <= summaryColumns)
            return first;
    }
}

double drawSummary(QPainter& painter, QRectF page, double top, const std::vector<SummaryGroup>& groups)
{
    const auto first = firstGroups(groups);
    const auto width = (page.width() - gap * (summaryColumns - 1)) / summaryColumns;
    const QFontMetricsF metrics(fontOf(valueSize));
    QRectF line(page.left(), top, width, valueLine);
    auto bottom = top;
    for (std::size_t index = 0; index < groups.size(); ++index) {
        if (index > 0 && std::ranges::count(first, index))
            line.moveTo(line.left() + width + gap, top);
        painter.setFont(fontOf(valueSize, true));
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, groups[index].name);
        painter.setFont(fontOf(valueSize));
        for (const auto& value : groups[index].values) {
            line.translate(0, valueLine);
            const auto room = width - metrics.horizontalAdvance(value.text) - valueSize;
            painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                             metrics.elidedText(value.name, Qt::ElideRight, room));
            painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, value.text);
        }
        bottom = std::max(bottom, line.bottom());
        line.translate(0, 2 * valueLine);
    }
    return bottom;
}

/// How far down the lines reach that end above `room`.
double heightOfWholeLines(const QTextDocument& text, double room)
{
    double height = 0;
    for (auto block = text.begin(); block.isValid(); block = block.next()) {
        const auto top = text.documentLayout()->blockBoundingRect(block).top();
        for (int index = 0; index < block.layout()->lineCount(); ++index) {
            const auto line = block.layout()->lineAt(index);
            const auto bottom = top + line.y() + line.height();
            if (bottom > room)
                return height;
            height = bottom;
        }
    }
    return height;
}

void drawDescription(QPainter& painter, QRectF page, double top, const OdoTour& tour)
{
    const auto room = page.bottom() - top;
    if (tour.shownDescription().isEmpty() || room <= 0)
        return;
    QTextDocument text;
    text.setDefaultFont(fontOf(textSize));
    text.setDocumentMargin(0);
    showStyledText(tour.tourDescription(), text);
    double scale = 1;
    const auto height = [&] {
        text.setTextWidth(page.width() / scale);
        return text.size().height();
    };
    while (height() * scale > room && scale > smallestScale)
        scale = std::max(scale - 0.05, smallestScale);
    auto shown = height();
    painter.save();
    painter.translate(page.left(), top);
    painter.scale(scale, scale);
    if (shown * scale > room) {
        const QFontMetricsF metrics(text.defaultFont());
        shown = heightOfWholeLines(text, room / scale - metrics.lineSpacing());
        painter.setFont(text.defaultFont());
        painter.drawText(QPointF(0, shown + metrics.ascent()), QStringLiteral("…"));
    }
    painter.setClipRect(QRectF(0, 0, page.width() / scale, shown));
    QAbstractTextDocumentLayout::PaintContext context;
    // Paper is white in a dark theme as well.
    context.palette.setColor(QPalette::Text, Qt::black);
    text.documentLayout()->draw(&painter, context);
    painter.restore();
}

/// False if the device does not take the page.
bool drawOn(QPaintDevice& device, const QPageLayout& layout, int resolution, const PageDrawing& draw)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.scale(resolution / pointsPerInch, resolution / pointsPerInch);
    draw(painter, QRectF(QPointF(), layout.paintRect(QPageLayout::Point).size()));
    return painter.end();
}

/// None, or why there is no file.
std::optional<QString> printToFile(const QPrinter& printer, const PageDrawing& draw)
{
    if (holdsTours(printer.outputFileName()))
        return QCoreApplication::translate("TourPage", "it holds tours, which a page would replace");
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&out);
        pdf.setTitle(printer.docName());
        pdf.setPageLayout(printer.pageLayout());
        pdf.setResolution(printer.resolution());
        if (!drawOn(pdf, pdf.pageLayout(), pdf.resolution(), draw))
            return QCoreApplication::translate("TourPage", "the page cannot be drawn");
    }
    return writeWholeFile(printer.outputFileName(), out.data());
}

/// Empty, or a sentence about what went wrong.
QString print(QPrinter& printer, const PageDrawing& draw)
{
    if (!printer.outputFileName().isEmpty()) {
        const auto error = printToFile(printer, draw);
        return error ? QCoreApplication::translate("TourPage", "%1 was not printed: %2.")
                           .arg(QFileInfo(printer.outputFileName()).fileName(), *error)
                     : QString();
    }
    const bool isDrawn = drawOn(printer, printer.pageLayout(), printer.resolution(), draw);
    return !isDrawn || printer.printerState() == QPrinter::Error
               ? QCoreApplication::translate("TourPage", "The printer %1 does not take the page.")
                     .arg(printer.printerName())
               : QString();
}

} // namespace

void drawTourPage(QPainter& painter, QRectF page, const OdoTour& tour, const ChartArrayView& chart,
                  const Defaults& defaults)
{
    painter.setPen(Qt::black);
    auto top = page.top();
    if (const auto title = tour.shownTitle(); !title.isEmpty())
        top = drawLine(painter, page, top, fontOf(titleSize, true), title);
    top = drawLine(painter, page, top, fontOf(textSize), startAndType(tour));
    top = drawChart(painter, page, top + gap, chart);
    painter.setPen(Qt::black);
    top = drawSummary(painter, page, top + gap, tourSummary(tour, defaults));
    drawDescription(painter, page, top + gap, tour);
}

void askToPrint(QWidget& over, const QString& name, PageDrawing draw,
                std::function<void(const QString&)> tell)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(name);
    printer->setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    auto* panel = new QPrintDialog(printer.get(), &over);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setOption(QAbstractPrintDialog::PrintPageRange, false);
    QObject::connect(panel, qOverload<>(&QDialog::accepted), &over,
                     [printer, draw = std::move(draw), tell = std::move(tell)] {
                         if (const auto error = print(*printer, draw); !error.isEmpty())
                             tell(error);
                     });
    // The panel has to go before its printer.
    QObject::connect(panel, &QObject::destroyed, &over, [printer] {});
    panel->open();
}

} // namespace ridelog
