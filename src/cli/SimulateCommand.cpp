#include "cli/SimulateCommand.h"

#include "cli/StandardError.h"
#include "decode/OdoData.h"
#include "platform/StopSignals.h"
#include "platform/WholeFile.h"
#include "simulator/DeviceSimulator.h"
#include "simulator/RideGenerator.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QFile>
#include <QLocale>

#include <cmath>
#include <cstdio>

namespace ridelog {
namespace {

const QString dumpName = QStringLiteral("dump");
const QString speedName = QStringLiteral("speed");
const QString linkName = QStringLiteral("link");
const QString faultName = QStringLiteral("fault");

QString namesOfFaults()
{
    QStringList names;
    for (const auto& fault : faultNames)
        names << fault.name.toString();
    const auto last = names.takeLast();
    return names.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

QString meaningsOfFaults()
{
    QStringList meanings;
    for (const auto& fault : faultNames)
        meanings << QStringLiteral("%1 (%2)").arg(fault.name, fault.meaning);
    return meanings.join(QStringLiteral(", "));
}

/// Any bytes may be tried out on a program that receives them, dump or not. Answers why there are none.
std::optional<QString> readBytes(const QString& path, QByteArray& bytes)
{
    if (auto reason = whyNoFile(path))
        return reason;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    bytes = file.read(OdoData::largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return file.errorString();
    if (bytes.isEmpty())
        return QStringLiteral("it is empty");
    if (bytes.size() > OdoData::largestFile)
        return QStringLiteral("it is too large, a dump has no more than 1 MiB");
    return std::nullopt;
}

/// What happens, for people who watch. Nobody has to.
void tell(const QString& event)
{
    tellIfRead((event + u'\n').toUtf8());
}

QString bytesText(qint64 bytes)
{
    return QStringLiteral("%1 bytes").arg(QLocale(QLocale::English).toString(bytes));
}

/// Is the device until somebody stops the program, or it cannot go on.
ExitStatus run(const DeviceSimulator::Settings& settings)
{
    const auto cannot = [](const QString& reason) {
        return fail(QStringLiteral("there is no device"), reason);
    };
    QEventLoop loop;
    const auto end = [&loop](ExitStatus status) { loop.exit(static_cast<int>(status)); };
    const StopSignals stopSignals([&end] { end(ExitStatus::done); });
    DeviceSimulator device(settings);
    const auto printPort = [&] {
        return print((settings.link.isEmpty() ? device.path() : settings.link) + u'\n');
    };

    QObject::connect(&device, &DeviceSimulator::opened, &loop, [] { tell(QStringLiteral("opened")); });
    QObject::connect(&device, &DeviceSimulator::finished, &loop,
                     [](qint64 bytes) { tell(QStringLiteral("sent ") + bytesText(bytes)); });
    QObject::connect(&device, &DeviceSimulator::closed, &loop,
                     [](qint64 bytes) { tell(QStringLiteral("closed after ") + bytesText(bytes)); });
    QObject::connect(&device, &DeviceSimulator::pathChanged, &loop, [&](const QString& path) {
        tell(QStringLiteral("back on ") + path);
        if (settings.link.isEmpty() && printPort() != ExitStatus::done)
            end(ExitStatus::failed);
    });
    QObject::connect(&device, &DeviceSimulator::failed, &loop,
                     [&](const QString& reason) { end(cannot(reason)); });

    if (const auto error = device.start())
        return cannot(*error);
    if (const auto status = printPort(); status != ExitStatus::done)
        return status;
    return static_cast<ExitStatus>(loop.exec());
}

} // namespace

QString SimulateCommand::name() const
{
    return QStringLiteral("simulate");
}

QString SimulateCommand::description() const
{
    return QStringLiteral("Is a cycle computer on a port of its own, for trying things out.");
}

QString SimulateCommand::synopsis() const
{
    return QStringLiteral("[--dump FILE] [--speed N] [--link PATH] [--fault KIND]");
}

QList<QCommandLineOption> SimulateCommand::options() const
{
    return {
        {dumpName, QStringLiteral("What to send; made-up rides if not told."), QStringLiteral("FILE")},
        {speedName,
         QStringLiteral("Times as fast as the device, 0 as fast as it is read; 1 if not told: 85 seconds."),
         QStringLiteral("N"), QStringLiteral("1")},
        {linkName, QStringLiteral("A name for the port that stays the same, made as a symbolic link."),
         QStringLiteral("PATH")},
        {faultName, QStringLiteral("What is wrong with it: %1.").arg(meaningsOfFaults()),
         QStringLiteral("KIND")}};
}

ExitStatus SimulateCommand::execute(const CommandContext& context) const
{
    const auto& options = context.options;
    DeviceSimulator::Settings settings{.link = options.value(linkName),
                                       .fault = faultNamed(options.value(faultName))};
    bool speedOk = false;
    settings.speed = options.value(speedName).toDouble(&speedOk);
    if (!speedOk || !std::isfinite(settings.speed) || settings.speed < 0)
        return wrongWords(*this, QStringLiteral("--speed takes a number from 0"));
    if (options.isSet(faultName) && !settings.fault)
        return wrongWords(*this, QStringLiteral("--fault takes %1").arg(namesOfFaults()));
    if (options.isSet(linkName) && settings.link.isEmpty())
        return wrongWords(*this, QStringLiteral("--link takes the name of a link"));

    if (options.isSet(dumpName)) {
        const auto path = options.value(dumpName);
        if (const auto reason = readBytes(path, settings.dump))
            return refuse(path, *reason);
    } else {
        settings.dump = RideGenerator().dump();
    }
    return run(settings);
}

} // namespace ridelog
