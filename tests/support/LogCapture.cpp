#include "tests/support/LogCapture.h"

#include "platform/Log.h"

#include <QtGlobal>

namespace ridelog {
namespace {

struct Caught {
    QStringList lines;
    QStringList errors;
};

Caught& caught()
{
    static Caught all;
    return all;
}

void keep(QtMsgType type, const QMessageLogContext&, const QString& line)
{
    caught().lines.append(line);
    if (type != QtDebugMsg)
        caught().errors.append(line);
}

} // namespace

LogCapture::LogCapture()
{
    caught() = {};
    setLogLevel(LogLevel::trace);
    qInstallMessageHandler(keep);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(nullptr);
    setLogLevel(LogLevel::none);
}

const QStringList& LogCapture::lines() const
{
    return caught().lines;
}

const QStringList& LogCapture::errors() const
{
    return caught().errors;
}

} // namespace ridelog
