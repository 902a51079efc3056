#include "exchange/HtmlFormat.h"

#include "exchange/SampleTexts.h"
#include "exchange/StatValues.h"
#include "exchange/TourSummary.h"
#include "exchange/TourTexts.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "tests/exchange/Formats.h"
#include "tests/support/TemporaryFolder.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

/// What a page says, read as XML.
struct Page {
    struct Element {
        QString name;
        QXmlStreamAttributes attributes;
        QString text; ///< without that of the elements in it
    };

    explicit Page(const QByteArray& html)
    {
        const QByteArray doctype("<!DOCTYPE html>\n");
        EXPECT_TRUE(html.startsWith(doctype));
        QXmlStreamReader xml(html.mid(doctype.size()));
        std::vector<std::size_t> open;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement()) {
                open.push_back(elements.size());
                elements.push_back({xml.name().toString(), xml.attributes(), {}});
            } else if (xml.isEndElement()) {
                open.pop_back();
            } else if (xml.isCharacters() && !open.empty()) {
                elements[open.back()].text += xml.text();
            }
        }
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString()) << " in line " << xml.lineNumber();
    }

    std::vector<Element> named(const char* name, const char* cssClass = nullptr) const
    {
        std::vector<Element> found;
        for (const auto& element : elements) {
            const auto classes = element.attributes.value(QLatin1StringView("class")).toString().split(u' ');
            if (element.name == QLatin1StringView(name) &&
                (!cssClass || classes.contains(QLatin1StringView(cssClass))))
                found.push_back(element);
        }
        return found;
    }
    QString textOf(const char* name) const
    {
        const auto found = named(name);
        return found.empty() ? QString() : found.front().text;
    }
    bool says(const QString& text) const
    {
        return std::ranges::any_of(elements, [&](const Element& element) { return element.text == text; });
    }

    std::vector<Element> elements;
};

QString attribute(const Page::Element& element, const char* name)
{
    return element.attributes.value(QLatin1StringView(name)).toString();
}

/// The points of a line, and the dots beside it.
qsizetype pointsOf(const Page& page, const char* series)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9]+"));
    qsizetype numbers = 0;
    for (const auto& line : page.named("path", series)) {
        auto matches = number.globalMatch(attribute(line, "d"));
        for (; matches.hasNext(); matches.next())
            ++numbers;
    }
    EXPECT_EQ(numbers % 2, 0);
    return numbers / 2 + static_cast<qsizetype>(page.named("circle", series).size());
}

/// Makes a locale the default one for as long as it lives.
class LocaleForNow {
public:
    explicit LocaleForNow(const QLocale& locale) { QLocale::setDefault(locale); }
    ~LocaleForNow() { QLocale::setDefault(_before); }
    LocaleForNow(const LocaleForNow&) = delete;
    LocaleForNow& operator=(const LocaleForNow&) = delete;

private:
    QLocale _before;
};

class HtmlFormatTest : public testing::Test {
protected:
    HtmlFormatTest() { DefaultsKeys::registerApplicationDefaults(_defaults); }

    QByteArray html(const Tours& tours, const ExportSource& source = {}) const
    {
        return exported(HtmlFormat(_defaults), tours, source);
    }

    Defaults _defaults{QString()};
};

TEST_F(HtmlFormatTest, ReportsAllThatATourHas)
{
    SKIP_WITHOUT_SAMPLES();
    for (const bool miles : {false, true}) {
        _defaults.setValue(DefaultsKeys::useMiles, miles);
        for (const char* dump : {"spring.odo", "summer.odo", "autumn.odo", "winter.odo", "wrapped.odo"}) {
            for (const auto& tour : realTours(QString::fromLatin1(dump))) {
                const Page page(html({tour}));
                EXPECT_EQ(page.textOf("title"), startAndType(*tour));
                for (const auto& group : tourSummary(*tour, _defaults)) {
                    for (const auto& value : group.values)
                        EXPECT_TRUE(value.text.isEmpty() || page.says(value.text)) << qPrintable(value.name);
                }
                const auto& data = tour->data();
                const auto entries = static_cast<qsizetype>(data.size());
                EXPECT_EQ(pointsOf(page, "altitude"), entries);
                EXPECT_EQ(pointsOf(page, "speed"), entries);
                EXPECT_EQ(pointsOf(page, "pulse"),
                          std::ranges::count_if(data, [](const auto& entry) { return entry.pulse != 0; }));
            }
        }
    }
}

TEST_F(HtmlFormatTest, HasTheValuesOfEverySampleForItsScript)
{
    SKIP_WITHOUT_SAMPLES();
    const auto tour = realTours(QStringLiteral("summer.odo")).front();
    const auto json = QJsonDocument::fromJson(Page(html({tour})).textOf("script").toUtf8()).array();
    const SampleTexts texts(_defaults);
    const std::array columns{SampleColumn::time,  SampleColumn::distance,   SampleColumn::altitude,
                             SampleColumn::speed, SampleColumn::pulse,      SampleColumn::grade,
                             SampleColumn::power, SampleColumn::temperature};
    ASSERT_GE(json.size(), static_cast<qsizetype>(columns.size()));
    qsizetype column = 0;
    for (const auto name : columns) {
        const auto values = json[column++].toArray();
        ASSERT_EQ(values.size(), static_cast<qsizetype>(tour->data().size()));
        qsizetype index = 0;
        for (const auto& entry : tour->data()) {
            const bool isGap = name == SampleColumn::pulse && entry.pulse == 0;
            ASSERT_EQ(values[index++].toString(), isGap ? QStringLiteral("–") : texts.text(name, entry));
        }
    }
}

TEST_F(HtmlFormatTest, LeavesGapsWhereNoPulseWasRecorded)
{
    auto dictionary = startValues(500, 0);
    // 0, 100, 0, 110, 120, 0
    for (const auto change : std::initializer_list<std::int16_t>{100, -100, 110, 10, -120})
        dictionary.tourData.push_back({.pulseChange = change, .distance = 100});
    const Page page(html({OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31))}));
    EXPECT_EQ(page.named("circle", "pulse").size(), 1);
    EXPECT_EQ(pointsOf(page, "pulse"), 3);
    EXPECT_EQ(pointsOf(page, "altitude"), 6);
}

TEST_F(HtmlFormatTest, TakesNothingThatRidersWriteForMarkup)
{
    auto dictionary = startValues();
    dictionary.type = QStringLiteral("</title><script>alert(1)</script>");
    dictionary.tourData.push_back({.distance = 100});
    const auto tour = OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
    const auto other = tourThrough({500, 510});
    const QString title =
        QStringLiteral("<script>\"&amp;'") + QChar(1) + QChar(0xD800) + QStringLiteral("]]>");
    tour->setTitle(title);
    StyledText text(QStringLiteral("one two\r\nthree\n\nfour <b>five</b>"));
    text.setLink(0, 3, QStringLiteral("javascript:alert(1)"));
    text.setLink(4, 3, QStringLiteral("https://example.org/?a=1&b=\"2\""));
    text.setLink(9, 5, QStringLiteral(" data:text/html,x"));
    text.setFont(16, 4, QStringLiteral("Helvetica-BoldOblique"), 12);
    tour->setTourDescription(text);

    for (const auto& bytes : {html({tour}), html({tour, other}, {.name = title})}) {
        const Page page(bytes);
        EXPECT_EQ(page.textOf("h1"), QStringLiteral("<script>\"&amp;']]>"));
        for (const auto& script : page.named("script"))
            EXPECT_FALSE(script.text.contains(QStringLiteral("alert")));
        std::vector<QString> outside;
        for (const auto& link : page.named("a")) {
            if (!attribute(link, "href").startsWith(u'#'))
                outside.push_back(attribute(link, "href"));
        }
        EXPECT_EQ(outside, std::vector{QStringLiteral("https://example.org/?a=1&b=%222%22")});
        EXPECT_FALSE(bytes.contains("javascript:"));
        EXPECT_TRUE(bytes.contains("<p>one <a "));
        EXPECT_TRUE(bytes.contains("<br/>\nthree</p>\n<p><i><b>four</b></i> &lt;b&gt;five&lt;/b&gt;</p>"));
    }
}

TEST_F(HtmlFormatTest, ReportsAPeriodWithItsTours)
{
    SKIP_WITHOUT_SAMPLES();
    const auto tours = realTours(QStringLiteral("whole-year.odo"));
    tours.front()->setRemoved(true);
    const QDate day(2007, 6, 1);
    const Page page(
        html(tours, {.name = QStringLiteral("mine"), .period = ChosenPeriod{Period::year, day, {}}}));
    EXPECT_EQ(page.textOf("h1"), QStringLiteral("2007"));
    EXPECT_TRUE(page.says(QStringLiteral("Removed tours are not counted.")));
    OdoStat stat({}, berlin(2007, 6, 1));
    stat.setToursArray(tours);
    for (const auto& value : statValues(stat, Period::year, _defaults))
        EXPECT_TRUE(page.says(value.text)) << qPrintable(value.name);
    EXPECT_EQ(page.named("rect").size(), 2 * 12);
    EXPECT_EQ(page.named("tr").size(), tours.size() + 1);

    // Each link leads to a section with a chart.
    QStringList anchors;
    for (const auto& section : page.named("section"))
        anchors << u'#' + attribute(section, "id");
    EXPECT_EQ(anchors.size(), static_cast<qsizetype>(tours.size()));
    qsizetype links = 0;
    for (const auto& link : page.named("a"))
        links += anchors.contains(attribute(link, "href"));
    EXPECT_EQ(links, anchors.size());
    EXPECT_EQ(page.named("figure").size(), tours.size());

    const Page one(
        html({tours.back()},
             {.name = {}, .period = ChosenPeriod{Period::month, tours.back()->date().date(), {}}}));
    EXPECT_EQ(one.named("section").size(), 1);
    const Page all(html(tours, {.name = QStringLiteral("mine")}));
    EXPECT_EQ(all.textOf("h1"), QStringLiteral("mine"));
    EXPECT_EQ(all.named("rect").size(), 2 * 12) << "months, as there is one year only";
}

TEST_F(HtmlFormatTest, WritesLongReportsTourByTour)
{
    const Tours tours(150, tourThrough({500, 520, 510}));
    qsizetype most = 0;
    qsizetype pending = 0;
    int done = 0;
    QByteArray bytes;
    const auto take = [&](QByteArrayView piece) {
        bytes += piece;
        pending += piece.size();
    };
    const auto tourDone = [&] {
        if (++done > 1)
            most = std::max(most, pending);
        pending = 0;
        return done < 120;
    };
    HtmlFormat(_defaults).write(tours, {}, ExportSink(take, tourDone));
    EXPECT_EQ(done, 120) << "and none after it was told to stop";
    EXPECT_LT(most, 20'000);
    EXPECT_FALSE(bytes.contains("<script")) << "without the values under the mouse";
    EXPECT_TRUE(bytes.contains("tour-150")) << "in the table";
    EXPECT_FALSE(bytes.contains("id=\"tour-121\""));
}

TEST_F(HtmlFormatTest, DrawsWhateverNumbersThereAre)
{
    auto dictionary = startValues(500);
    const Page none(html({OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31))}));
    EXPECT_TRUE(none.named("svg").empty());
    EXPECT_TRUE(none.says(QStringLiteral("The tour has no samples.")));

    for (int i = 0; i < 5; ++i)
        dictionary.tourData.push_back({});
    const Page still(html({OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31))}));
    EXPECT_TRUE(still.says(QStringLiteral("Time"))) << "over which it is drawn";

    dictionary.altitudeAtStart = std::numeric_limits<std::int32_t>::min();
    constexpr auto far = std::numeric_limits<std::int32_t>::max();
    for (const auto distance : {far, -far, far, far, far})
        dictionary.tourData.push_back({.pulseChange = 32767, .altitudeChange = 32767, .distance = distance});
    const auto bytes = html({OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31))});
    EXPECT_EQ(pointsOf(Page(bytes), "altitude"), 11);
    static const QRegularExpression noNumber(QStringLiteral("\"[^\"]*\\b(nan|inf)\\b[^\"]*\""));
    EXPECT_FALSE(noNumber.match(QString::fromUtf8(bytes)).hasMatch());
    EXPECT_LT(Page(bytes).named("text").size(), 60);
}

TEST_F(HtmlFormatTest, WritesNumbersAndDatesOfTheLocaleAndTellsTheLanguageOfItsWords)
{
    const LocaleForNow german(QLocale(QLocale::German, QLocale::Germany));
    const auto tour = tourOver(500, {{10, 123}, {-5, 2000}});
    const Page page(html({tour}));
    EXPECT_EQ(attribute(page.elements.front(), "lang"), QStringLiteral("en"));
    EXPECT_TRUE(page.says(QStringLiteral("2,12km")));
    EXPECT_TRUE(page.says(QStringLiteral("Samstag, 10. März 2007, 08:00, Bike")));
}

/// The page as a browser has it after its scripts have run; none where there is no browser.
std::optional<QString> inBrowser(const QByteArray& html)
{
    auto browser = QStandardPaths::findExecutable(QStringLiteral("chromium-headless-shell"));
    if (browser.isEmpty())
        browser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    if (browser.isEmpty())
        return std::nullopt;
    const TemporaryFolder folder;
    const auto path = folder.write("report.html", html);
    QStringList words;
    for (const char* word :
         {"--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
          "--disable-background-networking", "--disable-component-update", "--disable-sync", "--dump-dom",
          "--virtual-time-budget=2000"})
        words << QLatin1StringView(word);
    words << QStringLiteral("--user-data-dir=") + folder.path("profile") << QStringLiteral("file://") + path;
    QProcess process;
    process.start(browser, words);
    EXPECT_TRUE(process.waitForFinished(60'000) && process.exitCode() == 0)
        << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

TEST_F(HtmlFormatTest, TellsTheValuesUnderTheMouseInABrowser)
{
    const auto tour = tourOver(500, {{10, 100}, {20, 200}, {-5, 300}});
    auto bytes = html({tour});
    bytes.replace("</body>", R"(<script>
        var svg = document.querySelector("svg"), box = svg.getBoundingClientRect();
        var texts = function () {
            return Array.from(document.querySelectorAll(".readout dd")).map(function (cell) {
                return cell.textContent;
            }).join("|");
        };
        var x = box.left + box.width * (56 + (704 - 56) / 2 + 2) / 720;
        svg.dispatchEvent(new PointerEvent("pointermove", { clientX: x, clientY: box.top + 50 }));
        document.body.dataset.mouse = texts();
        svg.dispatchEvent(new KeyboardEvent("keydown", { key: "ArrowRight" }));
        document.body.dataset.key = texts();
        document.body.dataset.lines = Array.from(document.querySelectorAll(".line")).map(function (line) {
            return line.getBBox().width > 1000 ? "drawn" : "missing";
        }).join("|");
        </script></body>)");
    const auto page = inBrowser(bytes);
    if (!page)
        GTEST_SKIP() << "there is no Chromium";
    const auto& dom = *page;
    const SampleTexts texts(_defaults);
    const auto rowOf = [&](std::size_t index) {
        QStringList row;
        for (const auto column :
             {SampleColumn::time, SampleColumn::distance, SampleColumn::altitude, SampleColumn::speed,
              SampleColumn::pulse, SampleColumn::grade, SampleColumn::power, SampleColumn::temperature})
            row << texts.text(column, tour->data()[index]);
        return row.join(u'|');
    };
    EXPECT_TRUE(dom.contains(QStringLiteral("data-mouse=\"%1\"").arg(rowOf(2))))
        << qPrintable(dom.right(2000));
    EXPECT_TRUE(dom.contains(QStringLiteral("data-key=\"%1\"").arg(rowOf(3))));
    EXPECT_TRUE(dom.contains(QStringLiteral("data-lines=\"drawn|drawn|drawn\"")));
    EXPECT_TRUE(dom.contains(QStringLiteral("<title>%1</title>").arg(startAndType(*tour))));
}

} // namespace
} // namespace ridelog
