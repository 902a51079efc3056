#include "exchange/HtmlPage.h"

#include "exchange/RecordedValues.h"
#include "exchange/ReportScript.h"
#include "exchange/ReportStyle.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace ridelog {
namespace {

/// "#0000ff", with the opacity behind it if it is not whole.
QByteArray cssColour(const ColourComponents& colour)
{
    QByteArray text("#");
    const auto append = [&text](double component) {
        const auto part = std::lround(std::clamp(component, 0.0, 1.0) * 255);
        text += QByteArray::number(qlonglong{part}, 16).rightJustified(2, '0');
    };
    append(colour.red);
    append(colour.green);
    append(colour.blue);
    if (colour.alpha < 1)
        append(colour.alpha);
    return text;
}

/// The colours of the lines, as the rider has chosen them.
QByteArray seriesColours(const Defaults& defaults)
{
    const auto variable = [&defaults](const char* name, const QString& key) {
        const auto colour = defaults.colourForKey(key).value_or(ColourComponents());
        return QByteArray("--") + name + ": " + cssColour(colour) + "; ";
    };
    return ":root { " + variable("altitude", DefaultsKeys::colorAltitude) +
           variable("speed", DefaultsKeys::colorSpeed) + variable("pulse", DefaultsKeys::colorPulse) + "}\n";
}

} // namespace

QByteArray escaped(const QString& text)
{
    return exchangeText(text).toHtmlEscaped().toUtf8();
}

QByteArray namedValue(const QString& name, const QString& value)
{
    return "<div><dt>" + escaped(name) + "</dt><dd>" + escaped(value) + "</dd></div>\n";
}

QByteArray pageBegin(const QString& title, const Defaults& defaults)
{
    // Dates and numbers are the locale's; the words, which speech has to know, are the translation's.
    const auto language =
        QCoreApplication::translate("HtmlPage", "en", "code of the language that all this is translated to");
    return "<!DOCTYPE html>\n<html lang=\"" + escaped(language) +
           "\">\n<head>\n"
           "<meta charset=\"utf-8\"/>\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
           "'unsafe-inline'; script-src 'unsafe-inline'\"/>\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
           "<meta name=\"generator\" content=\"ridelog\"/>\n"
           "<title>" +
           escaped(title) + "</title>\n<style>\n" + seriesColours(defaults) + reportStyle +
           "</style>\n</head>\n<body>\n<main>\n";
}

QByteArray pageEnd(Readouts readouts)
{
    QByteArray end("</main>\n");
    if (readouts == Readouts::some)
        end += QByteArray("<script>\n") + reportScript + "</script>\n";
    return end + "</body>\n</html>\n";
}

} // namespace ridelog
