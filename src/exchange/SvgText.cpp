#include "exchange/SvgText.h"

#include "exchange/HtmlPage.h"
#include "platform/NumberText.h"

#include <initializer_list>

namespace ridelog {
namespace {

QByteArray lengths(std::initializer_list<double> lengths, const char* between)
{
    QByteArray text;
    for (const auto length : lengths) {
        if (!text.isEmpty())
            text += between;
        appendLength(text, length);
    }
    return text;
}

} // namespace

void appendLength(QByteArray& svg, double length)
{
    appendFixed(svg, length, 1);
    if (svg.endsWith(".0"))
        svg.chop(2);
}

QByteArray svgText(const char* place, double x, double y, const QString& text)
{
    return QByteArray("<text class=\"") + place + "\" x=\"" + lengths({x}, "") + "\" y=\"" +
           lengths({y}, "") + "\">" + escaped(text) + "</text>\n";
}

QByteArray svgBegin(double width, double height, const QString& label, const char* attributes)
{
    return "<svg viewBox=\"" + lengths({0, 0, width, height}, " ") + "\" role=\"img\" aria-label=\"" +
           escaped(label) + "\"" + attributes + ">\n";
}

QByteArray svgBox(double x, double y, double width, double height)
{
    return "x=\"" + lengths({x}, "") + "\" y=\"" + lengths({y}, "") + "\" width=\"" + lengths({width}, "") +
           "\" height=\"" + lengths({height}, "") + "\"";
}

QByteArray horizontalLine(double x, double y, double width)
{
    return "M" + lengths({x, y}, " ") + "h" + lengths({width}, "");
}

QByteArray verticalLine(double x, double y, double height)
{
    return "M" + lengths({x, y}, " ") + "v" + lengths({height}, "");
}

} // namespace ridelog
