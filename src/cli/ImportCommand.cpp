#include "cli/ImportCommand.h"

#include "cli/DocumentChange.h"
#include "cli/Wording.h"
#include "library/MyDocument.h"
#include "platform/JsonWriter.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace ridelog {
namespace {

const QString intoName = QStringLiteral("into");
const QString jsonName = QStringLiteral("json");

/// What came of one dump, or of all.
struct Count {
    std::size_t added = 0;
    std::size_t alreadyThere = 0;

    void operator+=(const Count& other)
    {
        added += other.added;
        alreadyThere += other.alreadyThere;
    }
    QString text() const
    {
        return QStringLiteral("%1 added, %2 already there")
            .arg(counted(static_cast<qsizetype>(added), QStringLiteral("tour")))
            .arg(alreadyThere);
    }
    void write(JsonWriter& json) const
    {
        json.entry(u"added", static_cast<qint64>(added));
        json.entry(u"alreadyThere", static_cast<qint64>(alreadyThere));
    }
};

struct Merged {
    QString dump;
    Count count;
};

/// Imports all dumps, or says which is none and answers how the command has to end.
std::optional<ExitStatus> importAll(MyDocument& document, const QStringList& dumps, const QDateTime& now,
                                    std::vector<Merged>& merged)
{
    for (const auto& dump : dumps) {
        if (MyDocument::isDocumentFile(dump))
            return refuse(dump, QStringLiteral("a document, not a raw dump"));
        const auto import = document.importFile(dump, now);
        if (!import.refusal.isEmpty())
            return refuse(dump, import.refusal);
        merged.push_back({dump, {import.added, import.alreadyThere}});
    }
    return std::nullopt;
}

Count total(const std::vector<Merged>& merged)
{
    Count sum;
    for (const auto& [dump, count] : merged)
        sum += count;
    return sum;
}

ExitStatus printForPeople(const std::vector<Merged>& merged)
{
    QString text;
    for (const auto& [dump, count] : merged)
        text += QStringLiteral("%1: %2\n").arg(printable(dump), count.text());
    if (merged.size() > 1)
        text += QStringLiteral("%1 dumps: %2\n").arg(QString::number(merged.size()), total(merged).text());
    return print(text);
}

ExitStatus printAsJson(const MyDocument& document, const std::vector<Merged>& merged)
{
    return printJson([&](JsonWriter& json) {
        json.beginObject();
        json.entry(u"document", document.path());
        total(merged).write(json);
        json.entry(u"tours", static_cast<qint64>(document.toursArray().size()));
        json.key(u"dumps");
        json.beginArray();
        for (const auto& [dump, count] : merged) {
            json.beginObject();
            json.entry(u"dump", dump);
            count.write(json);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    });
}

} // namespace

QString ImportCommand::name() const
{
    return QStringLiteral("import");
}

QString ImportCommand::description() const
{
    return QStringLiteral("Merges raw dumps into a document and saves it.");
}

QList<Command::Argument> ImportCommand::arguments() const
{
    return {{.name = QStringLiteral("DUMP"),
             .description = QStringLiteral("A raw dump, as the device sends it. There may be several."),
             .repeats = true}};
}

QString ImportCommand::synopsis() const
{
    return QStringLiteral("DUMP... --into DOCUMENT [--json]");
}

QList<QCommandLineOption> ImportCommand::options() const
{
    return {{intoName, QStringLiteral("The document; made if there is none."), QStringLiteral("DOCUMENT")},
            {jsonName, QStringLiteral("Prints JSON.")}};
}

ExitStatus ImportCommand::execute(const CommandContext& context) const
{
    const auto path = context.options.value(intoName);
    if (path.isEmpty())
        return wrongWords(*this, QStringLiteral("--into is missing: the document to merge into"));

    const bool isNew = !QFileInfo::exists(path);
    MyDocument document;
    if (const auto status = openToChange(document, path, MyDocument::Missing::startEmpty, context.now))
        return *status;
    const auto generalDataBefore = document.generalData();
    std::vector<Merged> merged;
    if (const auto status = importAll(document, context.arguments, context.now, merged))
        return *status;

    // General data that each dump replaces may end as they began: then the file and its backup stay.
    if (isNew || total(merged).added > 0 || document.generalData() != generalDataBefore) {
        if (const auto status = save(document))
            return *status;
    }
    return context.options.isSet(jsonName) ? printAsJson(document, merged) : printForPeople(merged);
}

} // namespace ridelog
