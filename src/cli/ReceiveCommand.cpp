#include "cli/ReceiveCommand.h"

#include "cli/DocumentChange.h"
#include "cli/Reception.h"
#include "cli/Wording.h"
#include "decode/OdoData.h"
#include "library/RawDump.h"
#include "platform/WholeFile.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>

namespace ridelog {
namespace {

const QString portName = QStringLiteral("port");
const QString outputName = QStringLiteral("output");
const QString intoName = QStringLiteral("into");
const QString twoStopBitsName = QStringLiteral("two-stop-bits");
const QString timeoutName = QStringLiteral("timeout");

/// Whether the file could be written in an hour as well as now: a transfer takes its time.
std::optional<QString> whyNotToBeWritten(const QString& path)
{
    if (auto reason = whyNoFile(path))
        return reason;
    const QFileInfo folder(QFileInfo(targetOfPath(path)).path());
    if (!folder.isDir())
        return QStringLiteral("there is no folder of this name");
    if (!folder.isWritable())
        return QStringLiteral("its folder is not to be written");
    return std::nullopt;
}

/// Keeps what is no whole dump, so that nothing that was sent is lost, and ends the command.
ExitStatus failWithPart(const QString& port, const QString& reason, const QByteArray& bytes)
{
    const auto kept = keepStoppedDump(bytes);
    if (!kept)
        return fail(port, reason);
    if (!kept->error.isEmpty())
        return fail(port, QStringLiteral("%1; what arrived could not be kept in %2: %3")
                              .arg(reason, kept->path, kept->error));
    return fail(port, QStringLiteral("%1; what arrived is in %2").arg(reason, kept->path));
}

/// Keeps a whole dump under the name that was wished, else where the application keeps them. Answers the
/// path, none where it cannot be written there.
std::optional<QString> keep(const QByteArray& dump, const QString& wish)
{
    if (wish.isEmpty()) {
        const auto kept = keepFinishedDump(dump);
        if (kept.error.isEmpty())
            return kept.path;
        fail(kept.path, kept.error);
        return std::nullopt;
    }
    const auto error = writeWholeFile(wish, dump);
    if (!error)
        return wish;
    failWithPart(wish, *error, dump);
    return std::nullopt;
}

/// Merges the dump and saves the document. Adds what there is to say of it, or ends the command.
std::optional<ExitStatus> merge(MyDocument& document, const QByteArray& dump, const QDateTime& now,
                                QString& said)
{
    const bool isNew = !QFileInfo::exists(document.path());
    const auto merged = document.handleTransferFinished(dump, now);
    if (isNew || merged.added > 0) {
        if (const auto status = save(document))
            return status;
    }
    said += QStringLiteral("%1: %2 added, %3 already there\n")
                .arg(printable(document.path()),
                     counted(static_cast<qsizetype>(merged.added), QStringLiteral("tour")))
                .arg(merged.alreadyThere);
    return std::nullopt;
}

} // namespace

QString ReceiveCommand::name() const
{
    return QStringLiteral("receive");
}

QString ReceiveCommand::description() const
{
    return QStringLiteral("Waits for the device and takes one raw dump from it.");
}

QString ReceiveCommand::synopsis() const
{
    return QStringLiteral("--port PATH [-o DUMP] [--into DOCUMENT] [--two-stop-bits] [--timeout SECONDS]");
}

QList<QCommandLineOption> ReceiveCommand::options() const
{
    return {{portName, QStringLiteral("The serial port that the device is on (see the command ports)."),
             QStringLiteral("PATH")},
            {{QStringLiteral("o"), outputName},
             QStringLiteral("The file for the raw dump; \"odoData.odo\" in the home folder if not told."),
             QStringLiteral("DUMP")},
            {intoName, QStringLiteral("Merges the dump into this document; made if there is none."),
             QStringLiteral("DOCUMENT")},
            {twoStopBitsName, QStringLiteral("Sets the line to two stop bits.")},
            {timeoutName,
             QStringLiteral("Gives up when nothing has arrived for so long; else it waits for ever."),
             QStringLiteral("SECONDS")}};
}

ExitStatus ReceiveCommand::execute(const CommandContext& context) const
{
    const auto& options = context.options;
    const auto output = options.value(outputName);
    const auto into = options.value(intoName);
    Reception::Wish wish;
    wish.port = options.value(portName);
    if (wish.port.isEmpty())
        return wrongWords(*this, QStringLiteral("--port is missing: the port that the device is on"));
    if (output.isEmpty() && into.isEmpty())
        return wrongWords(*this, QStringLiteral("-o or --into is missing: where the dump is to go"));
    if (options.isSet(twoStopBitsName))
        wish.stopBits = OdoCom::StopBits::two;
    if (options.isSet(timeoutName)) {
        constexpr double longest = 1'000'000;
        bool isNumber = false;
        wish.patience = options.value(timeoutName).toDouble(&isNumber);
        if (!isNumber || !(*wish.patience > 0 && *wish.patience <= longest))
            return wrongWords(*this, QStringLiteral("--timeout takes a number of seconds above 0"));
    }

    // Whatever would keep the dump from its place is said before anybody waits for it.
    if (!output.isEmpty()) {
        if (const auto reason = whyNotToBeWritten(output))
            return fail(output, *reason);
    }
    MyDocument document;
    if (!into.isEmpty()) {
        if (const auto status = openToChange(document, into, MyDocument::Missing::startEmpty, context.now))
            return *status;
    }

    Reception reception(wish);
    if (const auto failure = reception.run(); !failure.isEmpty())
        return failWithPart(wish.port, failure, reception.dump());
    const auto& dump = reception.dump();
    // What is no dump at all takes the place of no file that was there.
    if (!dump.startsWith(DumpLayout::signature))
        return failWithPart(wish.port,
                            QStringLiteral("complete, but not a raw dump of this device: it does not begin "
                                           "with \"%1\"")
                                .arg(QLatin1StringView(DumpLayout::signature)),
                            dump);
    const auto path = keep(dump, output);
    if (const auto refusal = OdoData::initWithData(dump, context.now).refusal(); !refusal.isEmpty())
        return fail(path.value_or(wish.port), refusal);
    QString said;
    if (path)
        said = QStringLiteral("%1: %2 bytes received\n")
                   .arg(printable(*path), QLocale(QLocale::English).toString(dump.size()));
    if (!into.isEmpty()) {
        if (const auto status = merge(document, dump, context.now, said))
            return *status;
    }
    const auto status = print(said);
    return path ? status : ExitStatus::failed;
}

} // namespace ridelog
