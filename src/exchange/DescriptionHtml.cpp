#include "exchange/DescriptionHtml.h"

#include "exchange/HtmlPage.h"
#include "platform/StyledText.h"

#include <QUrl>

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

bool endsLine(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

/// Empty for what a page must not lead to.
QByteArray safeAddress(const QString& link)
{
    const QUrl url(link.trimmed());
    const auto scheme = url.scheme();
    const bool isPage = (scheme == u"http" || scheme == u"https") && !url.host().isEmpty();
    const bool isMail = scheme == u"mailto" && !url.path().isEmpty();
    return url.isValid() && (isPage || isMail) ? escaped(QString::fromLatin1(url.toEncoded())) : QByteArray();
}

/// Text in one style, without ends of lines.
QByteArray styled(const QString& text, const StyledText::Style& style)
{
    auto html = escaped(text);
    const auto wrap = [&html](bool wanted, const QByteArray& element, const QByteArray& attributes = {}) {
        if (wanted)
            html = '<' + element + attributes + '>' + html + "</" + element + '>';
    };
    wrap(style.bold, "b");
    wrap(style.italic, "i");
    wrap(style.underline, "u");
    const auto address = safeAddress(style.link);
    wrap(!address.isEmpty(), "a", " href=\"" + address + "\" rel=\"noopener noreferrer\"");
    return html;
}

/// Puts lines together to paragraphs.
class Paragraphs {
public:
    void addText(const QByteArray& html)
    {
        if (!_isOpen)
            _html += "<p>";
        else if (_lineEnds > 0)
            _html += "<br/>\n";
        _isOpen = true;
        _lineEnds = 0;
        _html += html;
    }
    void endLine()
    {
        if (++_lineEnds > 1)
            close();
    }
    QByteArray take()
    {
        close();
        return std::move(_html);
    }

private:
    void close()
    {
        if (_isOpen)
            _html += "</p>\n";
        _isOpen = false;
    }

    QByteArray _html;
    bool _isOpen = false;
    int _lineEnds = 0;
};

} // namespace

QByteArray descriptionHtml(const StyledText& text)
{
    Paragraphs paragraphs;
    const auto& all = text.text();
    qsizetype at = 0;
    for (const auto& run : text.runs()) {
        const auto style = StyledText::styleOf(run.attributes);
        const auto end = std::min(at + run.length, all.size());
        while (at < end) {
            const auto* const lineEnd = std::find_if(all.begin() + at, all.begin() + end, endsLine);
            const auto length = lineEnd - (all.begin() + at);
            if (length > 0)
                paragraphs.addText(styled(all.mid(at, length), style));
            at += length;
            if (at == end)
                break;
            // Two characters may end one line.
            const bool isPair = all[at] == u'\r' && at + 1 < all.size() && all[at + 1] == u'\n';
            if (!isPair)
                paragraphs.endLine();
            ++at;
        }
    }
    return paragraphs.take();
}

} // namespace ridelog
