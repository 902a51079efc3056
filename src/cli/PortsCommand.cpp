#include "cli/PortsCommand.h"

#include "cli/TextTable.h"
#include "device/KSSerialPortList.h"
#include "platform/JsonWriter.h"

#include <QCommandLineParser>

#include <optional>

namespace ridelog {
namespace {

const QString jsonName = QStringLiteral("json");

ExitStatus printAsJson(const KSSerialPortList& list)
{
    return printJson([&](JsonWriter& json) {
        json.beginObject();
        json.key(u"ports");
        json.beginArray();
        for (const auto& port : list.getPortList()) {
            const auto product = list.productAtPath(port->bsdPath());
            json.beginObject();
            json.entry(u"name", port->name());
            json.entry(u"path", port->bsdPath());
            json.entry(u"product", product.isEmpty() ? std::nullopt : std::optional(product));
            json.endObject();
        }
        json.endArray();
        json.endObject();
    });
}

ExitStatus printForPeople(const KSSerialPortList& list)
{
    if (list.count() == 0)
        return print(QStringLiteral("no serial ports (RIDELOG_PORTS adds paths)\n"));
    using Align = TextTable::Align;
    TextTable table({{.title = QStringLiteral("Port"), .align = Align::left, .gap = 0},
                     {.title = QStringLiteral("Device"), .align = Align::left}});
    for (const auto& port : list.getPortList())
        table.addRow({port->bsdPath(), list.productAtPath(port->bsdPath())});
    return print(table.text());
}

} // namespace

QString PortsCommand::name() const
{
    return QStringLiteral("ports");
}

QString PortsCommand::description() const
{
    return QStringLiteral("Lists the serial ports of the machine.");
}

QString PortsCommand::synopsis() const
{
    return QStringLiteral("[--json]");
}

QList<QCommandLineOption> PortsCommand::options() const
{
    return {{jsonName, QStringLiteral("Prints JSON.")}};
}

ExitStatus PortsCommand::execute(const CommandContext& context) const
{
    const auto list = KSSerialPortList::sharedPortList();
    return context.options.isSet(jsonName) ? printAsJson(*list) : printForPeople(*list);
}

} // namespace ridelog
