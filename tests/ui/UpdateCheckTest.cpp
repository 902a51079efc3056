#include "tests/support/HttpServer.h"
#include "tests/ui/Application.h"
#include "tests/ui/Desktop.h"
#include "update/ApplicationInfo.h"

namespace ridelog {
namespace {

QByteArray description(const QByteArray& version, const QByteArray& name = "ridelog",
                       const QByteArray& url = "https://example.org/new?for=hills&amp;x=a%20b",
                       const QByteArray& text = "Faster hills")
{
    return "<r><application><name>" + name + "</name><version>" + version + "</version><url>" + url +
           "</url><description language=\"en\">" + text + "</description></application></r>";
}

class UpdateCheck : public Application {
protected:
    void SetUp() override
    {
        start();
        server.serve("newer", description("99.0"));
        server.serve("same", description(runningApplication().version.toUtf8()));
        server.serve("broken", "<r>");
    }
    /// Asks by the menu and presses a button. What is said then.
    std::string check(const QString& url, const char* button = "Ok")
    {
        defaults->remove(DefaultsKeys::checkedForUpdateOn);
        windows->setUpdateUrl(url);
        answer(button);
        trigger("Check for Updates…");
        EXPECT_TRUE(isAsked());
        EXPECT_TRUE(defaults->dateForKey(DefaultsKeys::checkedForUpdateOn).has_value());
        return question.toStdString();
    }
    std::string check(const QByteArray& xml, const char* button = "Ok")
    {
        server.serve("description", xml);
        return check(server.url("description"), button);
    }
    /// Whether the questions that are expected were asked.
    bool isAsked()
    {
        return eventually([this] { return answers.children().isEmpty(); });
    }
    bool hasRequests(int count)
    {
        return eventually([&] { return server.requests() == count; });
    }
    std::string message() { return window().message().toStdString(); }

    HttpServer server;
    Desktop desktop;
    const std::string foundNone = "No new version found\nNo new version available.";
    const std::string found = "New version found\nFaster hills";
};

TEST_F(UpdateCheck, TellsWhoAsksWhatItFoundOrWhyNot)
{
    const QByteArray large(5'242'880, ' ');
    server.serve("other", description("99.0", "walklog"));
    server.serve("malformed", "<r>\n</s>");
    server.serve("bomb", "<!DOCTYPE r [<!ENTITY a 'ha'><!ENTITY b '&a;&a;'>]><r>&b;</r>");
    server.serve("large", large, "200 OK", "Content-Length: 5242880\r\n");
    server.serve("wordy", "<r>&" + QByteArray(4000, 'x') + ";</r>");
    server.serve("missing", {}, "404 Not Found");
    server.redirect("moved", server.url("newer"));
    server.redirect("loop", server.url("loop"));
    server.redirect("to-file", QUrl::fromLocalFile(write("new.xml", description("99.0"))).toString());
    EXPECT_EQ(check(server.url("newer")), found);
    EXPECT_EQ(check(server.url("moved")), found);
    EXPECT_EQ(check(QUrl::fromLocalFile(path("new.xml")).toString()), found);
    for (const char* path : {"same", "other"}) {
        EXPECT_EQ(check(server.url(path)), foundNone) << path;
        EXPECT_EQ(message(), "");
    }
    const std::pair<QString, const char*> failures[]{
        {server.url("malformed"), "not well-formed XML, line 2: Opening and ending tag mismatch"},
        {server.url("bomb"), "it declares entities or attributes of its own"},
        {server.url("large"), "larger than 1 MiB"},
        {server.url("missing"), "the server answers 404 Not Found"},
        {server.url("loop"), "Too many redirects"},
        {QString(), "this build of ridelog has no address to look for updates at"},
    };
    for (const auto& [url, reason] : failures) {
        EXPECT_EQ(check(url), foundNone);
        EXPECT_EQ(message(), std::string("Newer versions could not be looked for: ") + reason);
    }
    for (const char* path : {"to-file", "wordy"}) {
        EXPECT_EQ(check(server.url(path)), foundNone);
        EXPECT_TRUE(
            window().message().startsWith(QStringLiteral("Newer versions could not be looked for: ")));
        EXPECT_LT(message().size(), 300U) << "one line of a window";
    }
}

TEST_F(UpdateCheck, DownloadsFromTheWebOnlyAndOnlyIfTheUserWants)
{
    check(server.url("newer"));
    EXPECT_EQ(desktop.opened, QByteArrayList());
    check(server.url("newer"), "Download");
    EXPECT_EQ(desktop.opened, QByteArrayList{"https://example.org/new?for=hills&x=a%20b"});
    EXPECT_EQ(message(), "");
    check(description("99.0", "ridelog", "file:///bin/sh"), "Download");
    EXPECT_EQ(message(), "The download address “file:///bin/sh” could not be opened in a browser.");
    desktop.uninstallAll();
    check(server.url("newer"), "Download");
    EXPECT_TRUE(
        window().message().startsWith(QStringLiteral("The download address “https://example.org/new?")));
    EXPECT_EQ(desktop.opened.size(), 1);
}

TEST_F(UpdateCheck, ADescriptionIsPlainTextOfBearableSize)
{
    const QByteArray link = "<![CDATA[<a href=\"file:///bin/sh\">Faster</a>]]>";
    const QByteArray lines[]{link, QByteArray("line\n").repeated(200'000),
                             QByteArray("word ").repeated(200'000),
                             QByteArray("\xe2\x80\xa8").repeated(300'000)};
    for (const auto& text : lines) {
        server.serve("description", description("99.0", "ridelog", {}, text));
        windows->setUpdateUrl(server.url("description"));
        whenAsked([](QMessageBox& box) {
            for (const auto* label : box.findChildren<QLabel*>())
                EXPECT_EQ(label->textFormat(), Qt::PlainText);
            EXPECT_LT(box.height(), 700);
            QTest::keyClick(&box, Qt::Key_Escape);
            EXPECT_FALSE(box.isVisible());
            box.reject();
        });
        trigger("Check for Updates…");
        ASSERT_TRUE(isAsked());
        EXPECT_TRUE(question.startsWith(QStringLiteral("New version found\n")));
    }
    EXPECT_EQ(desktop.opened, QByteArrayList());
}

TEST_F(UpdateCheck, TheWindowLivesOnWhileItWaitsAndMayGo)
{
    windows->setUpdateUrl(server.url("silent"));
    trigger("Check for Updates…");
    ASSERT_TRUE(hasRequests(1));
    EXPECT_EQ(message(), "Looking for newer versions…");
    window().importDump(dump());
    EXPECT_EQ(rows(), 5);
    trigger("Check for Updates…");
    trigger("Undo adding 5 tours");
    EXPECT_EQ(server.requests(), 1);
    window().close();
    EXPECT_TRUE(eventually([this] { return windows->mainWindows().empty(); }));
    // The application ends while it waits.
    end();
    EXPECT_EQ(server.requests(), 1);
}

TEST_F(UpdateCheck, AWindowMayGoBeforeItsAnswerAndUnderIt)
{
    windows->setUpdateUrl(server.url("newer"));
    controller->newDocument();
    trigger("Check for Updates…");
    window().close();
    whenAsked([this](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window()) << "the one that is left";
        window().close();
    });
    ASSERT_TRUE(isAsked());
    EXPECT_TRUE(eventually([this] { return windows->mainWindows().empty(); }));
}

TEST_F(UpdateCheck, LooksByItselfOnlyIfDueAndTellsOnlyOfANewVersion)
{
    const auto openWindow = [this](const char* path, int daysAgo) {
        const auto last = QDateTime::currentDateTime().addDays(-daysAgo);
        defaults->setValue(DefaultsKeys::checkedForUpdateOn, last);
        windows->setUpdateUrl(server.url(path));
        controller->newDocument();
    };
    const auto isChecked = [this] {
        return eventually([this] {
            return *defaults->dateForKey(DefaultsKeys::checkedForUpdateOn) >
                   QDateTime::currentDateTime().addDays(-1);
        });
    };
    openWindow("newer", 8);
    EXPECT_EQ(server.requests(), 0) << "nobody wants that";
    defaults->setValue(DefaultsKeys::automaticCheck, true);
    openWindow("newer", 6);
    whenAsked([](QMessageBox& box) {
        ADD_FAILURE() << "there is nothing to tell";
        box.reject();
    });
    for (const char* path : {"same", "broken"}) {
        openWindow(path, 8);
        ASSERT_TRUE(isChecked());
        QCoreApplication::processEvents();
    }
    qDeleteAll(answers.children());
    EXPECT_EQ(message(), "");
    EXPECT_EQ(server.requests(), 2);

    answer("Download");
    openWindow("newer", 8);
    openWindow("newer", 8);
    ASSERT_TRUE(isAsked());
    EXPECT_EQ(question.toStdString(), found);
    EXPECT_EQ(desktop.opened.size(), 1);

    // Who asks while it looks is told by the same check.
    answer("Ok");
    openWindow("same", 8);
    trigger("Check for Updates…");
    ASSERT_TRUE(isAsked());
    EXPECT_EQ(question.toStdString(), foundNone);
    EXPECT_EQ(message(), "");
    EXPECT_TRUE(hasRequests(4)) << server.requests();
}

TEST_F(UpdateCheck, FeedbackStartsAMail)
{
    trigger("Send Feedback…");
    EXPECT_EQ(desktop.opened,
              QByteArrayList{"mailto:" RIDELOG_FEEDBACK_ADDRESS "?subject=[ridelog]%20Feedback"});
    EXPECT_EQ(message(), "");
    desktop.uninstallAll();
    trigger("Send Feedback…");
    EXPECT_EQ(message(), "No mail program could be started. Write to " RIDELOG_FEEDBACK_ADDRESS ".");
}

} // namespace
} // namespace ridelog
