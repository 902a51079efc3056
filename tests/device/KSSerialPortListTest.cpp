#include "device/KSSerialPortList.h"

#include "tests/support/TemporaryFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

class OwnTree : public SerialDeviceRegistry {
public:
    std::vector<SerialDevice> devices() const override { return found; }
    std::vector<SerialDevice> found;
};

SerialDevice device(const char* name)
{
    const auto text = QString::fromLatin1(name);
    return {text, QStringLiteral("/dev/") + text, QStringLiteral("adapter ") + text};
}

TEST(KSSerialPortList, ARescanKeepsThePortsThatAreStillThere)
{
    const auto tree = std::make_shared<OwnTree>();
    tree->found = {device("a"), device("b")};
    KSSerialPortList list(tree);
    ASSERT_EQ(list.count(), 2U);
    const auto a = list.objectAtIndex(0);
    const auto b = list.objectWithName(QStringLiteral("b"));
    EXPECT_EQ(b->bsdPath(), QStringLiteral("/dev/b"));
    EXPECT_FALSE(b->isOpen());
    EXPECT_EQ(list.productAtPath(QStringLiteral("/dev/b")), QStringLiteral("adapter b"));

    tree->found = {device("c"), device("b")};
    list.init();
    EXPECT_EQ(list.oldPortList(), (KSSerialPortList::Ports{a, b}));
    ASSERT_EQ(list.count(), 2U);
    EXPECT_EQ(list.objectAtIndex(1), b);
    EXPECT_EQ(list.objectAtIndex(0)->name(), QStringLiteral("c"));
    EXPECT_FALSE(list.objectWithName(QStringLiteral("a")));

    auto half = device("d");
    half.path.clear();
    tree->found = {device("b"), half, device("e")};
    list.init();
    EXPECT_EQ(list.getPortList(), KSSerialPortList::Ports{b}) << "half a device ends the scan";
    tree->found.clear();
    list.init();
    EXPECT_EQ(list.count(), 0U);
}

TEST(KSStandardEnumerator, WalksWhatIsAddedMeanwhile)
{
    const auto tree = std::make_shared<OwnTree>();
    tree->found = {device("a")};
    const auto list = std::make_shared<KSSerialPortList>(tree);
    KSStandardEnumerator<KSSerialPortList::Port> ports(list, &KSSerialPortList::count,
                                                       &KSSerialPortList::objectAtIndex);
    EXPECT_EQ(ports.nextObject(), list->objectAtIndex(0));
    EXPECT_FALSE(ports.nextObject());
    tree->found = {device("a"), device("b"), device("c")};
    list->init();
    EXPECT_EQ(ports.allObjects().size(), 2U);
    EXPECT_FALSE(ports.nextObject());
}

TEST(LinuxSerialDevices, AreThoseWithHardwareAndThoseThatTheUserAdds)
{
    const TemporaryFolder tree;
    const QDir root(tree.path());
    const auto make = [&](const QString& terminal, const QString& hardware) {
        ASSERT_TRUE(root.mkpath(QStringLiteral("tty/") + terminal));
        if (!hardware.isEmpty()) {
            ASSERT_TRUE(root.mkpath(hardware));
            ASSERT_TRUE(QFile::link(root.filePath(hardware),
                                    root.filePath(QStringLiteral("tty/%1/device").arg(terminal))));
        }
    };
    make(QStringLiteral("ttyUSB10"), QStringLiteral("usb/1-2/1-2:1.0/ttyUSB10"));
    make(QStringLiteral("ttyUSB9"), QStringLiteral("usb/1-1/1-1:1.0/ttyUSB9"));
    make(QStringLiteral("ttyACM0"), QStringLiteral("usb/1-3/1-3:1.1"));
    make(QStringLiteral("ttyS0"), QStringLiteral("pnp/00:04"));
    make(QStringLiteral("ttyS1"), QStringLiteral("pnp/00:05"));
    make(QStringLiteral("tty7"), QString());
    tree.write("usb/1-1/product", "USB-Serial Controller\n");
    tree.write("usb/1-3/product", "Cycle computer\n");
    tree.write("tty/ttyS0/type", "4\n");
    tree.write("tty/ttyS1/type", "0\n"); // nothing in the slot

    const LinuxSerialDevices devices({QStringLiteral("/somewhere/simulated"), QStringLiteral("/dev/ttyS0")},
                                     root.filePath(QStringLiteral("tty")));
    QStringList found;
    for (const auto& [name, path, product] : devices.devices())
        found += name + u' ' + path + u' ' + product;
    EXPECT_EQ(found, (QStringList{QStringLiteral("ttyACM0 /dev/ttyACM0 Cycle computer"),
                                  QStringLiteral("ttyS0 /dev/ttyS0 "),
                                  QStringLiteral("ttyUSB9 /dev/ttyUSB9 USB-Serial Controller"),
                                  QStringLiteral("ttyUSB10 /dev/ttyUSB10 "),
                                  QStringLiteral("simulated /somewhere/simulated ")}));

    const LinuxSerialDevices none({}, root.filePath(QStringLiteral("no such folder")));
    EXPECT_TRUE(none.devices().empty());
}

} // namespace
} // namespace ridelog
