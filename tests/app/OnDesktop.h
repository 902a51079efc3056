#pragma once

#include "simulator/RideGenerator.h"
#include "tests/support/Desktop.h"
#include "tests/support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <memory>

namespace ridelog {

/// The program with the demo document, settings and a home folder of its own.
class OnDesktop : public testing::Test, protected TemporaryFolder {
protected:
    void SetUp() override
    {
        if (const auto missing = Desktop::missing(); !missing.isEmpty())
            GTEST_SKIP() << qPrintable(missing.join(u' ')) << " not found";
        ASSERT_TRUE(desktop.start());
        cli({QStringLiteral("import"), QStringLiteral("--now"), QStringLiteral("2007-12-31T12:00:00"),
             QStringLiteral(RIDELOG_SOURCE "/resources/demo.odo"), QStringLiteral("--into"), demo});
    }
    void TearDown() override { end(); }

    /// Waits until a window with this title is in front.
    testing::AssertionResult isInFront(const char* title)
    {
        QString found;
        if (eventually([&] { return (found = desktop.title()) == QString::fromUtf8(title); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "in front is " << qPrintable(found);
    }
    void start(const QStringList& words, const QStringList& variables = {})
    {
        auto environment = desktop.environment();
        for (const auto& variable : variables)
            environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
        program = std::make_unique<QProcess>();
        endWithTest(*program);
        program->setProcessEnvironment(environment);
        program->start(QStringLiteral(RIDELOG_APP),
                       QStringList{QStringLiteral("-style"), QStringLiteral("fusion")} + words);
    }
    /// As a crash does.
    void end()
    {
        if (program) {
            program->kill();
            program->waitForFinished();
        }
    }
    QByteArray cli(const QStringList& words)
    {
        QProcess command;
        command.setProcessEnvironment(desktop.environment());
        command.start(QStringLiteral(RIDELOG_CLI), words);
        EXPECT_TRUE(command.waitForFinished() && command.exitCode() == 0)
            << command.readAllStandardError().constData();
        return command.readAllStandardOutput();
    }
    /// The titles of the tours in the document's file, the newest first.
    QStringList saved()
    {
        const auto list = cli({QStringLiteral("list"), demo, QStringLiteral("--json")});
        QStringList titles;
        const auto tours = QJsonDocument::fromJson(list)[u"tours"].toArray();
        for (const auto& tour : tours)
            titles << tour[u"title"].toString();
        return titles;
    }
    QString dump() { return write("ride.odo", RideGenerator{.seed = 1, .tours = 5}.dump()); }

    const QString demo = path("Demo.ridelog");
    Desktop desktop{path()};
    std::unique_ptr<QProcess> program;
};

} // namespace ridelog
