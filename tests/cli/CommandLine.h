#pragma once

#include "tests/support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

namespace ridelog {

/// What a shell sees of a run of the program.
struct Outcome {
    int status = -1;
    QByteArray out;
    QByteArray err;

    QJsonObject json() const
    {
        QJsonParseError error;
        const auto document = QJsonDocument::fromJson(out, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
        return document.object();
    }
};

class CommandLine : public testing::Test, protected TemporaryFolder {
protected:
    /// `command` is taken apart at its blanks, `more` is not.
    static Outcome run(const QString& command, const QStringList& more = {})
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(RIDELOG_CLI), command.split(u' ', Qt::SkipEmptyParts) + more);
        EXPECT_TRUE(process.waitForFinished(30'000) && process.exitStatus() == QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
};

} // namespace ridelog
