#include "cli/ReceiveCommand.h"

#include "cli/DocumentChange.h"
#include "cli/DumpTarget.h"
#include "cli/Reception.h"
#include "cli/Wording.h"
#include "decode/OdoData.h"
#include "library/MyDocument.h"
#include "library/RawDump.h"
#include "platform/StopSignals.h"
#include "platform/WholeFile.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace ridelog {
namespace {

const QString portName = QStringLiteral("port");
const QString outputName = QStringLiteral("output");
const QString intoName = QStringLiteral("into");
const QString twoStopBitsName = QStringLiteral("two-stop-bits");
const QString timeoutName = QStringLiteral("timeout");

/// Whatever would keep the dump from its place, so that it is said before anybody waits for it.
std::optional<ExitStatus> refuseBeforehand(const QString& output, const QString& into)
{
    if (!output.isEmpty()) {
        if (MyDocument::isDocumentFile(output))
            return refuse(output, *whyNoDumpTarget(output));
        if (const auto reason = whyNotWritable(output))
            return fail(output, *reason);
        if (!into.isEmpty() && targetOfPath(output) == targetOfPath(into))
            return refuse(output, QStringLiteral("the dump and the document cannot be one file"));
    }
    if (!into.isEmpty()) {
        if (const auto reason = whyNotWritable(into))
            return fail(into, *reason);
    }
    // Where whatever is no whole dump is kept, and a dump without another place.
    if (const QFileInfo home(QDir::homePath()); !home.isDir() || !home.isWritable())
        return fail(home.filePath(),
                    QStringLiteral("the home folder is not to be written, where dumps are kept"));
    return std::nullopt;
}

/// Keeps what is no whole dump, so that nothing that was sent is lost, and ends the command.
ExitStatus failWithPart(const QString& port, const QString& reason, const QByteArray& bytes)
{
    auto kept = keepStoppedDump(bytes);
    if (!kept)
        return fail(port, reason);
    if (!kept->error.isEmpty()) {
        // The home folder's disk is full, or has gone. There may be another one.
        const auto elsewhere = QDir::temp().filePath(QFileInfo(kept->path).fileName());
        if (!writeWholeFile(elsewhere, bytes))
            kept = KeptDump{elsewhere, {}};
    }
    if (!kept->error.isEmpty())
        return fail(port, QStringLiteral("%1; what arrived could not be kept in %2: %3")
                              .arg(reason, kept->path, kept->error));
    return fail(port, QStringLiteral("%1; what arrived is in %2").arg(reason, kept->path));
}

/// Keeps a whole dump under the name that was asked for, else where the application keeps them.
KeptDump keep(const QByteArray& dump, const QString& output)
{
    if (output.isEmpty())
        return keepFinishedDump(dump);
    return {output, writeWholeFile(output, dump).value_or(QString())};
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

/// Keeps a whole dump and merges it, if there is a document for it.
ExitStatus take(const QByteArray& dump, const QString& output, MyDocument* document, const QDateTime& now)
{
    const auto kept = keep(dump, output);
    auto status = ExitStatus::done;
    QString said;
    if (kept.error.isEmpty())
        said = QStringLiteral("%1: %2 bytes received\n")
                   .arg(printable(kept.path), QLocale(QLocale::English).toString(dump.size()));
    else
        status = failWithPart(kept.path, kept.error, dump);
    if (document)
        status = merge(*document, dump, now, said).value_or(status);
    const auto printed = print(said);
    return status == ExitStatus::done ? printed : status;
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
    Reception::Request request;
    request.port = options.value(portName);
    if (request.port.isEmpty())
        return wrongWords(*this, QStringLiteral("--port is missing: the port that the device is on"));
    if ((options.isSet(outputName) && output.isEmpty()) || (options.isSet(intoName) && into.isEmpty()))
        return wrongWords(*this, QStringLiteral("-o and --into take the name of a file"));
    if (options.isSet(twoStopBitsName))
        request.stopBits = OdoCom::StopBits::two;
    if (options.isSet(timeoutName)) {
        constexpr double longest = 1'000'000;
        bool isNumber = false;
        request.patience = options.value(timeoutName).toDouble(&isNumber);
        if (!isNumber || !(*request.patience > 0 && *request.patience <= longest))
            return wrongWords(*this, QStringLiteral("--timeout takes seconds, above 0 and up to 1000000"));
    }

    Reception reception(request);
    // From here on until everything is saved: a dump that somebody has waited for is not to be lost.
    const StopSignals stopSignals([&reception] { reception.stop(); });
    if (const auto status = refuseBeforehand(output, into))
        return *status;
    MyDocument document;
    if (!into.isEmpty()) {
        if (const auto status = openToChange(document, into, MyDocument::Missing::startEmpty, context.now))
            return *status;
    }
    if (const auto failure = reception.run(); !failure.isEmpty())
        return failWithPart(request.port, failure, reception.dump());
    // What is no dump takes the place of no file that was there.
    if (const auto refusal = OdoData::initWithData(reception.dump(), context.now).refusal();
        !refusal.isEmpty())
        return failWithPart(request.port, QStringLiteral("complete, but ") + refusal, reception.dump());
    return take(reception.dump(), output, into.isEmpty() ? nullptr : &document, context.now);
}

} // namespace ridelog
