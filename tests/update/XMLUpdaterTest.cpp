#include "update/XMLUpdater.h"

#include "platform/Defaults.h"
#include "platform/UpdateKeys.h"
#include "tests/support/Dates.h"
#include "tests/support/Events.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TemporaryFolder.h"
#include "update/UpdateAlerts.h"

#include <QElapsedTimer>
#include <QLocale>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

QByteArray description(const QByteArray& version, const QByteArray& name = "ridelog")
{
    return "<updates>\n<application>\n\t<name>\t" + name + "\t</name>\n\t<version>" + version +
           "</version>\n\t<url>https://example.org/ridelog</url>\n"
           "\t<description language=\"en\">Faster\n\tcharts &amp; more</description>\n"
           "\t<description language=\"de\">Schnellere Diagramme</description>\n</application>\n</updates>\n";
}

/// Shows nothing, keeps what it was asked, and presses one of the buttons.
class Alerts : public UpdateAlerts {
public:
    bool runModal(const UpdateAlert& alert) override
    {
        asked << alert.title << alert.message << alert.defaultButton << alert.otherButton;
        return pressesOther;
    }
    QStringList asked;
    bool pressesOther = true;
};

class XMLUpdaterTest : public testing::Test, protected TemporaryFolder {
protected:
    void start(const QByteArray& xml)
    {
        const auto url = QUrl::fromLocalFile(write("description.xml", xml)).toString();
        updater = XMLUpdater::initWithUrlString(url,
                                                {.identifier = QStringLiteral("ridelog"),
                                                 .version = QStringLiteral("1.0"),
                                                 .urlForUpdateCheck = {}},
                                                defaults);
    }
    /// What a check of the document finds.
    bool check(const QByteArray& xml)
    {
        start(xml);
        return outcome([this] { updater->checkForUpdate(now); });
    }
    /// What the updater tells, which it does once.
    template <typename Start>
    bool outcome(Start&& startCheck)
    {
        bool found = false;
        int told = 0;
        QObject::connect(updater.get(), &XMLUpdater::checked, [&](bool result) {
            found = result;
            ++told;
        });
        startCheck();
        EXPECT_EQ(told, 0) << "before the call has returned";
        EXPECT_TRUE(eventually([&] { return told > 0; }));
        QCoreApplication::processEvents();
        EXPECT_EQ(told, 1);
        updater->disconnect();
        return found;
    }
    std::string reason() const
    {
        return updater->failure() ? updater->failure()->reason.toStdString() : "none";
    }
    std::optional<QDateTime> checkedOn() const { return defaults.dateForKey(UpdateKeys::checkedForUpdateOn); }

    const QDateTime now = berlin(2007, 3, 10);
    Defaults defaults{QString()};
    std::unique_ptr<XMLUpdater> updater;
};

TEST_F(XMLUpdaterTest, EveryOtherVersionOfThisApplicationIsAnUpdate)
{
    for (const char* version : {"1.1", "1.0.0", "0.9", " 1.0", "1.0\n"}) {
        EXPECT_TRUE(check(description(version))) << version;
        EXPECT_EQ(updater->applicationVersion(), QLatin1String(version));
        EXPECT_EQ(reason(), "none");
    }
    EXPECT_EQ(updater->applicationIdentifier(), QStringLiteral("ridelog"));
    EXPECT_EQ(updater->urlString(), QStringLiteral("https://example.org/ridelog"));
    EXPECT_FALSE(check(description("1.0")));
    EXPECT_FALSE(check(description("\t1.0\t")));
    for (const char* name : {"other", "Ridelog", "\nridelog\n", " ridelog"}) {
        EXPECT_FALSE(check(description("1.1", name))) << name;
        EXPECT_EQ(reason(), "none");
    }
}

TEST_F(XMLUpdaterTest, TextIsCollectedAsItStands)
{
    const auto textOf = [this](const QByteArray& elements) {
        check("<x><application>" + elements + "</application></x>");
        const auto text = updater->descriptionTextForLanguage(QStringLiteral("fr"));
        return text.isNull() ? "null" : text.toStdString();
    };
    EXPECT_EQ(textOf("<description language='fr'> a\n\tb\t </description>"), " a\nb ");
    EXPECT_EQ(textOf("<description language='fr'>a&#9;<![CDATA[<b>]]><!-- c -->&lt;&#xe9;</description>"),
              "a<b><é");
    // A nested element has its text collected, and its end stops that for the rest.
    EXPECT_EQ(textOf("<description language='fr'>a<b>c</b>d<e>f</e></description>"), "ac");
    EXPECT_EQ(textOf("<description language='fr'>a<version>b</version>c</description>"), "null");
    EXPECT_EQ(updater->applicationVersion(), QStringLiteral("ab"));
    EXPECT_EQ(textOf("<description>a</description>"), "null");
    EXPECT_EQ(textOf("<description language='fr'></description>"), "null");
    EXPECT_EQ(textOf("<description language='fr'>a</description><description>b</description>"), "a");
    EXPECT_EQ(textOf("a<other>b</other><x:description language='fr'>c</x:description>"), "null");
    // The last application counts, with nothing of those before it.
    EXPECT_EQ(textOf("<description language='fr'>a</description></application><application>"), "null");
    EXPECT_EQ(textOf("</application><application><description language='fr'>a</description>"), "a");
}

TEST_F(XMLUpdaterTest, DescriptionsAreChosenByLanguage)
{
    check(description("1.1"));
    const auto text = [this](const char* language) {
        return updater->descriptionTextForLanguage(QString::fromLatin1(language)).toStdString();
    };
    for (const char* language : {"de", "de-DE", "de-Latn-AT"})
        EXPECT_EQ(text(language), "Schnellere Diagramme") << language;
    for (const char* language : {"en", "en-GB", "fr-FR", "C", ""})
        EXPECT_EQ(text(language), "Faster\ncharts & more") << language;
    check("<application><description language='de'>d</description><description language='de-CH'>c"
          "</description><description language='sr-Latn'>s</description></application>");
    EXPECT_EQ(text("de-Latn-CH"), "c");
    EXPECT_EQ(text("sr-Latn-RS"), "s");
    EXPECT_TRUE(updater->descriptionTextForLanguage(QStringLiteral("fr")).isNull());
}

TEST_F(XMLUpdaterTest, WhatIsNoDescriptionSaysWhy)
{
    const std::pair<QByteArray, const char*> cases[]{
        {"", "not well-formed XML, line 1: Premature end of document"},
        {"hello", "not well-formed XML, line 1: Start tag expected"},
        {"<a>\n<b>\n</a>", "not well-formed XML, line 3: Opening and ending tag mismatch"},
        {description("1.1") + "<a/>", "not well-formed XML, line 11: Extra content at end of document"},
        {"<a>\xff</a>", "not well-formed XML, line 1: Encountered incorrectly encoded content"},
        {"<a>&x;</a>", "not well-formed XML, line 1: Entity 'x' not declared"},
        {"<!DOCTYPE a SYSTEM 'file:///etc/passwd'><a>&x;</a>", "the entity x is not declared"},
        {"<html/>", "it names no application"},
        {"<application><name>ridelog</name></application>", "it names no version"},
    };
    for (const auto& [xml, why] : cases) {
        EXPECT_FALSE(check(xml));
        EXPECT_EQ(reason(), why) << xml.toStdString();
        EXPECT_EQ(updater->failure()->kind, UpdateFailure::Kind::notADescription);
    }
    EXPECT_TRUE(check("<!DOCTYPE updates SYSTEM 'file:///etc/passwd'>" + description("1.1")));
    EXPECT_TRUE(check("<?xml version='1.0' encoding='ISO-8859-1'?>" + description("1.1")));
}

TEST_F(XMLUpdaterTest, WhatWouldGrowIsRefusedAtOnce)
{
    const auto utf16 = [](const char* text) {
        const auto wide = QString::fromLatin1(text);
        return QByteArray(reinterpret_cast<const char*>(wide.utf16()), wide.size() * 2);
    };
    const auto repeat = [](const QByteArray& start, const QByteArray& again, const QByteArray& end) {
        return start + again.repeated((1 << 20) / again.size() - 20) + end;
    };
    QByteArray attributes = "<a";
    for (int i = 0; attributes.size() < 1'048'000; ++i)
        attributes += " a" + QByteArray::number(i, 36) + "=''";
    const QByteArray declares = "it declares entities or attributes of its own";
    const std::pair<QByteArray, QByteArray> cases[]{
        {"<!DOCTYPE a [<!ENTITY b 'bb'><!ENTITY c '&b;&b;'>]><a>&c;</a>", declares},
        {"<!DOCTYPE a [<!ENTITY b SYSTEM 'file:///etc/passwd'>]><a>&b;</a>", declares},
        {repeat("<!DOCTYPE a [<!ENTITY % b '" + QByteArray(4000, ' ') + "'>", "%b;", "]><a/>")
             .left(1'048'576),
         declares},
        {utf16("<!DOCTYPE a [<!ENTITY b 'bb'>]><a>&b;</a>"), declares},
        {repeat("<!DOCTYPE a [<!ATTLIST a b CDATA 'c'>]><a>", "<a/>", "</a>"), declares},
        {"<?xml version='1.0' encoding='UTF-7'?>+ADwAIQ-DOCTYPE a []><a/>",
         "its encoding is not UTF-8 or UTF-16"},
        {attributes + "/>", "it has too many attributes"},
    };
    QElapsedTimer passed;
    passed.start();
    for (const auto& [xml, why] : cases) {
        EXPECT_FALSE(check(xml));
        EXPECT_EQ(reason(), why.toStdString());
    }
    // What is allowed may be deep, or in many pieces.
    EXPECT_FALSE(check(repeat("<a>", "<a>", "")));
    EXPECT_FALSE(check(repeat("<name>", "<![CDATA[x]]>", "</name>")));
    EXPECT_LT(passed.elapsed(), 10'000);
}

TEST_F(XMLUpdaterTest, AChecksDateIsStoredWhateverItFinds)
{
    for (const auto& xml : {description("1.1"), description("1.0"), QByteArray("<a>")}) {
        defaults.remove(UpdateKeys::checkedForUpdateOn);
        check(xml);
        EXPECT_EQ(checkedOn(), now);
    }
    defaults.remove(UpdateKeys::checkedForUpdateOn);
    start({});
    updater = std::make_unique<XMLUpdater>(ApplicationInfo(), defaults);
    EXPECT_FALSE(outcome([this] { updater->checkForUpdate(now); }));
    EXPECT_EQ(reason(), "this build of ridelog has no address to look for updates at");
    EXPECT_EQ(updater->failure()->kind, UpdateFailure::Kind::notLoaded);
    EXPECT_EQ(checkedOn(), now);
}

TEST_F(XMLUpdaterTest, OneCheckAtATime)
{
    start(description("1.1"));
    EXPECT_TRUE(outcome([this] {
        updater->checkForUpdate(now);
        updater->checkForUpdate(now.addDays(1));
        EXPECT_TRUE(updater->checkForUpdateAfterTimePeriod(now.addDays(2)));
    }));
    EXPECT_EQ(checkedOn(), now);
}

TEST_F(XMLUpdaterTest, ChecksByItselfAfterSomeDays)
{
    constexpr double missing = -1000;
    struct Case {
        std::optional<int> days;
        double daysAgo;
        bool isDue;
    };
    const Case cases[]{{7, 7.0, true},
                       {7, 6.9, false},
                       {7, 400, true},
                       {7, -1, false},
                       {7, -400, false},
                       {0, 0, false},
                       {0, 0.00001, true},
                       {-3, -1, false},
                       {7, missing, true},
                       {std::nullopt, 400, false},
                       {std::nullopt, missing, true}};
    for (const auto& [days, daysAgo, isDue] : cases) {
        const auto last = daysAgo == missing ? QDateTime() : now.addMSecs(-qRound64(daysAgo * 86'400'000));
        defaults.setValue(UpdateKeys::checkForUpdateAfterDays, days ? QVariant(*days) : QVariant());
        defaults.setValue(UpdateKeys::checkedForUpdateOn, last);
        start(description("1.1"));
        bool isStarted = false;
        const auto startIfDue = [&] { isStarted = updater->checkForUpdateAfterTimePeriod(now); };
        if (isDue)
            EXPECT_TRUE(outcome(startIfDue));
        else
            startIfDue();
        EXPECT_EQ(isStarted, isDue) << days.value_or(-1) << ' ' << daysAgo;
        EXPECT_EQ(checkedOn().value_or(QDateTime()), isDue ? now : last);
    }
}

TEST_F(XMLUpdaterTest, TheUserIsAskedOnlyForANewVersion)
{
    check(description("1.1"));
    QLocale::setDefault(QLocale(QLocale::German));
    Alerts alerts;
    EXPECT_TRUE(updater->shouldDownloadNewVersionDependingOn(true, alerts));
    EXPECT_EQ(alerts.asked.join(u'|').toStdString(), "New version found|Schnellere Diagramme|Ok|Download");
    alerts.pressesOther = false;
    EXPECT_FALSE(updater->shouldDownloadNewVersionDependingOn(true, alerts));
    alerts = {};
    EXPECT_FALSE(updater->shouldDownloadNewVersionDependingOn(false, alerts));
    EXPECT_EQ(alerts.asked.join(u'|').toStdString(), "No new version found|No new version available.|Ok|");
    QLocale::setDefault(QLocale::c());
}

TEST_F(XMLUpdaterTest, OnlyAnAddressOfTheWebIsOpened)
{
    const auto opened = [this](const QByteArray& url, bool works = true) {
        check("<url>" + url + "</url>");
        QString address = QStringLiteral("none");
        const bool done = updater->startDownloadingNewVersion([&](const QUrl& handed) {
            address = handed.toString();
            return works;
        });
        EXPECT_EQ(done, works && address != u"none");
        return address.toStdString();
    };
    EXPECT_EQ(opened("https://example.org/a?b&amp;c"), "https://example.org/a?b&c");
    EXPECT_EQ(opened("\n  HTTP://example.org/a\n"), "http://example.org/a");
    EXPECT_EQ(opened("http://example.org/", false), "http://example.org/");
    for (const char* url : {"", "file:///bin/sh", "javascript:x()", "/bin/sh", "http:", "ftp://example.org/"})
        EXPECT_EQ(opened(url), "none") << url;
}

TEST_F(XMLUpdaterTest, LogTellsEachStep)
{
    const LogCapture log;
    check("<application><name>ridelog</name><description language='de'>Neu</description><version>2</version>"
          "</application>");
    EXPECT_EQ(log.lines().mid(1).join(u'\n').toStdString(),
              "[parserDidStartDocument]\n"
              "elementName: application\nattributeDict: {\n}\n"
              "elementName: name\nattributeDict: {\n}\n[parser foundCharacters] ridelog\nelementName: name\n"
              "elementName: description\nattributeDict: {\n    language = de;\n}\n"
              "[parser foundCharacters] Neu\nelementName: description\n"
              "elementName: version\nattributeDict: {\n}\n[parser foundCharacters] 2\nelementName: version\n"
              "elementName: application\n_applicationDict:\n"
              "{\n    de = Neu;\n    name = ridelog;\n    version = 2;\n}\n"
              "[parserDidEndDocument]\nfound ridelog\nfound update 2");
    EXPECT_TRUE(log.lines().first().startsWith(QStringLiteral("Trying to access: file:///")));
    EXPECT_EQ(log.errors(), QStringList());
    check("<a>\n</b>");
    EXPECT_EQ(log.errors().join(u'\n').toStdString(),
              "[parseErrorOccurred] Opening and ending tag mismatch.\n"
              "Error 3, Description: Opening and ending tag mismatch., Line: 2, Column: 4\nERROR in XML");
}

TEST_F(XMLUpdaterTest, LogDoesNotMultiplyTheDocument)
{
    const LogCapture log;
    constexpr int depth = 100;
    check(QByteArray("<application>").repeated(depth) + "<url>" + QByteArray(100'000, 'x') + "</url>" +
          QByteArray("</application>").repeated(depth));
    EXPECT_LT(log.lines().join(u'\n').size(), 100'000 + depth * 5'000);
}

} // namespace
} // namespace ridelog
