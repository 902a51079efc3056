#include "platform/Defaults.h"

#include "tests/support/Archives.h"
#include "tests/support/Dates.h"
#include "tests/support/LogCapture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace ridelog {
namespace {

const QString key = QStringLiteral("key");

class DefaultsTest : public testing::Test {
protected:
    void write(const QByteArray& bytes) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    static QByteArray bytesOf(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
    }

    /// The lines that a person finds in the file under [General].
    void writeLine(const QByteArray& line) const { write("[General]\n" + line + "\n"); }

    QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("ridelog.ini"));
};

TEST_F(DefaultsTest, WithoutValuesThereAreTheEmptyOnes)
{
    Defaults defaults(path);
    EXPECT_FALSE(defaults.contains(key));
    EXPECT_FALSE(defaults.boolForKey(key));
    EXPECT_EQ(defaults.integerForKey(key), 0);
    EXPECT_EQ(defaults.floatForKey(key), 0);
    EXPECT_EQ(defaults.doubleForKey(key), 0);
    EXPECT_FALSE(defaults.textForKey(key));
    EXPECT_FALSE(defaults.textListForKey(key));
    EXPECT_FALSE(defaults.integerListForKey(key));
    EXPECT_FALSE(defaults.dateForKey(key));
    EXPECT_FALSE(defaults.colourForKey(key));
    EXPECT_FALSE(defaults.valueForKey(key).isValid());
}

TEST_F(DefaultsTest, RegisteringMergesAndWritesNothing)
{
    {
        Defaults defaults(path);
        defaults.registerDefaults({{key, 7}, {QStringLiteral("text"), QStringLiteral("a")}});
        defaults.registerDefaults({{QStringLiteral("text"), QStringLiteral("b")}});
        EXPECT_EQ(defaults.integerForKey(key), 7);
        EXPECT_EQ(defaults.textForKey(QStringLiteral("text")), QStringLiteral("b"));
        EXPECT_TRUE(defaults.contains(key));
        EXPECT_FALSE(defaults.isStored(key));
        EXPECT_TRUE(defaults.synchronize());
    }
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(DefaultsTest, EveryTypeComesBackInTheNextRun)
{
    const auto name = [](int number) { return QString::number(number); };
    const auto date = berlin(2007, 3, 10, 8).addMSecs(250);
    const ColourComponents colour{201.0 / 255, 1.0 / 3, 0, 1};
    const QString text = QStringLiteral(" @Invalid() \"=;,\\\n\tÄ 🚴 ");
    const QStringList texts{QString(), QStringLiteral("@a, b"), QString()};
    const QByteArray bytes("\0\xFF,\"", 4);
    for (const bool again : {false, true}) {
        Defaults defaults(path);
        if (!again) {
            defaults.setValue(name(1), true);
            defaults.setValue(name(2), std::numeric_limits<int>::min());
            defaults.setValue(name(3), 0.1F);
            defaults.setValue(name(4), 1.0 / 3);
            defaults.setValue(name(5), text);
            defaults.setValue(name(6), texts);
            defaults.setValue(name(7), QList<int>{2, 0, -1});
            defaults.setValue(name(8), date);
            defaults.setValue(name(9), colour);
            defaults.setValue(name(10), bytes);
            defaults.setValue(name(11), QString());
            defaults.setValue(name(12), QList<int>());
            defaults.setValue(name(13), QList<int>{5});
            defaults.setValue(name(14), QVariantList{1, true, 0.5});
            EXPECT_TRUE(defaults.synchronize());
        }
        EXPECT_TRUE(defaults.boolForKey(name(1)));
        EXPECT_EQ(defaults.integerForKey(name(2)), std::numeric_limits<int>::min());
        EXPECT_EQ(defaults.floatForKey(name(3)), 0.1F);
        EXPECT_EQ(defaults.textForKey(name(3)), QStringLiteral("0.1"));
        EXPECT_EQ(defaults.doubleForKey(name(4)), 1.0 / 3);
        EXPECT_EQ(defaults.textForKey(name(5)), text);
        EXPECT_EQ(defaults.textListForKey(name(6)), texts);
        EXPECT_EQ(defaults.integerListForKey(name(7)), (QList<int>{2, 0, -1}));
        EXPECT_EQ(defaults.dateForKey(name(8)), date);
        EXPECT_EQ(defaults.dateForKey(name(8))->offsetFromUtc(), 3600);
        EXPECT_EQ(defaults.dateForKey(name(8))->timeSpec(), Qt::TimeZone);
        EXPECT_EQ(defaults.colourForKey(name(9)), colour);
        EXPECT_EQ(defaults.valueForKey(name(10)).toByteArray(), bytes);
        EXPECT_EQ(defaults.textForKey(name(11)), QString());
        EXPECT_EQ(defaults.integerListForKey(name(12)), QList<int>());
        EXPECT_EQ(defaults.integerListForKey(name(13)), QList<int>{5});
        EXPECT_EQ(defaults.textListForKey(name(14))->join(u'|'), QStringLiteral("1|true|0.5"));
    }
}

TEST_F(DefaultsTest, PeopleCanReadTheFile)
{
    Defaults defaults(path);
    defaults.setValue(QStringLiteral("useMiles"), true);
    defaults.setValue(QStringLiteral("color_pulse"), ColourComponents{0.5, 0.5, 0.5, 1});
    defaults.setValue(QStringLiteral("odoStatDate"), berlin(2007, 7, 1, 8));
    defaults.setValue(QStringLiteral("pictureWidth"), 640.5F);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(bytesOf(path).toStdString(), "[General]\ncolor_pulse=\"0.5,0.5,0.5,1\"\n"
                                           "odoStatDate=2007-07-01T08:00:00+02:00\npictureWidth=640.5\n"
                                           "useMiles=true\n");
}

struct LineCase {
    const char* value;
    bool yes;
    int integer;
    const char* colour;
};

class DefaultsLine : public DefaultsTest, public testing::WithParamInterface<LineCase> {};

TEST_P(DefaultsLine, ReadsAsTheTypeOrFallsBackToTheRegisteredValue)
{
    const auto& [value, yes, integer, colour] = GetParam();
    writeLine(QByteArray("key=") + value);
    Defaults defaults(path);
    const ColourComponents grey{0.5, 0.5, 0.5, 1};
    defaults.registerDefaults({{key, true}});
    EXPECT_EQ(defaults.boolForKey(key), yes);
    defaults.registerDefaults({{key, 130}});
    EXPECT_EQ(defaults.integerForKey(key), integer);
    defaults.registerDefaults({{key, grey}});
    EXPECT_EQ(defaults.colourForKey(key)->text().toStdString(), colour);
    EXPECT_EQ(files().size(), 1) << "a value out of place does not make the file a damaged one";
}

INSTANTIATE_TEST_SUITE_P(
    , DefaultsLine,
    testing::Values(
        LineCase{"false", false, 130, "0.5,0.5,0.5,1"}, LineCase{"No", false, 130, "0.5,0.5,0.5,1"},
        LineCase{"YES", true, 130, "0.5,0.5,0.5,1"}, LineCase{"0", false, 0, "0.5,0.5,0.5,1"},
        LineCase{"2", true, 2, "0.5,0.5,0.5,1"}, LineCase{"-7.9", true, -7, "0.5,0.5,0.5,1"},
        LineCase{"2147483647.5", true, 2147483647, "0.5,0.5,0.5,1"},
        LineCase{"2147483648", true, 130, "0.5,0.5,0.5,1"}, LineCase{"1e400", true, 130, "0.5,0.5,0.5,1"},
        LineCase{"nan", true, 130, "0.5,0.5,0.5,1"}, LineCase{"", true, 130, "0.5,0.5,0.5,1"},
        LineCase{"maybe", true, 130, "0.5,0.5,0.5,1"}, LineCase{"@ByteArray(x)", true, 130, "0.5,0.5,0.5,1"},
        LineCase{"\"0,1,0,0.25\"", true, 130, "0,1,0,0.25"},
        LineCase{"0, 1, 0, .25", true, 130, "0,1,0,0.25"}, LineCase{"\"0,1,0\"", true, 130, "0.5,0.5,0.5,1"},
        LineCase{"\"0,1,0,1.5\"", true, 130, "0.5,0.5,0.5,1"},
        LineCase{"\"0,nan,0,1\"", true, 130, "0.5,0.5,0.5,1"},
        LineCase{"\"0,1,0,\"", true, 130, "0.5,0.5,0.5,1"}));

TEST_F(DefaultsTest, UnreadableListsAndDatesFallBack)
{
    write("[General]\nnumbers=\"1\", two\ndate=2007-02-30T08:00:00+01:00\nlocal=2007-03-10T08:00:00\n"
          "zone=2007-03-10T08:00:00+23:59\nfloat=1e39\ntext=a, b\n");
    Defaults defaults(path);
    const auto date = berlin(2007, 3, 10);
    defaults.registerDefaults({{QStringLiteral("numbers"), QVariant::fromValue(QList<int>{0})},
                               {QStringLiteral("date"), date},
                               {QStringLiteral("zone"), date},
                               {QStringLiteral("float"), 1.5F},
                               {QStringLiteral("text"), QStringLiteral("c")}});
    EXPECT_EQ(defaults.integerListForKey(QStringLiteral("numbers")), QList<int>{0});
    EXPECT_EQ(defaults.dateForKey(QStringLiteral("date")), date);
    EXPECT_EQ(defaults.dateForKey(QStringLiteral("zone")), date);
    EXPECT_EQ(defaults.dateForKey(QStringLiteral("local")),
              CalendarDate::fromFields(2007, 3, 10, 8, 0, 0, CalendarDate::localTimeZone()));
    EXPECT_EQ(defaults.floatForKey(QStringLiteral("float")), 1.5F);
    EXPECT_EQ(defaults.doubleForKey(QStringLiteral("float")), 1e39);
    EXPECT_EQ(defaults.textForKey(QStringLiteral("text")), QStringLiteral("c"));
    EXPECT_EQ(defaults.textListForKey(QStringLiteral("text"))->size(), 2);
}

TEST_F(DefaultsTest, ColoursOfTheOlderApplicationAreRead)
{
    const auto archived = written([](TypedStreamWriter& out) {
        out.beginObject(ArchiveClasses::colour);
        out.group("c");
        out.putByte(1); // calibrated red, green, blue
        out.group("ffff");
        for (const float part : {0.25F, 1.0F, 0.0F, 0.5F})
            out.putFloat(part);
        out.endObject();
    });
    Defaults defaults(path);
    defaults.setValue(key, archived);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(Defaults(path).colourForKey(key), (ColourComponents{0.25, 1, 0, 0.5}));
    defaults.registerDefaults({{key, ColourComponents{1, 0, 0, 1}}});
    defaults.setValue(key, archived.first(40));
    EXPECT_EQ(defaults.colourForKey(key), (ColourComponents{1, 0, 0, 1}));
}

TEST_F(DefaultsTest, OddKeysComeBack)
{
    QStringList keys{QStringLiteral("2007-03-10 08:00:00 +0100 selectedXAxisValue"),
                     QString(),
                     QStringLiteral("%"),
                     QStringLiteral("/"),
                     QStringLiteral("\\"),
                     QStringLiteral("a/b"),
                     QStringLiteral("a\\b"),
                     QStringLiteral("a//b/"),
                     QStringLiteral("a%2Fb"),
                     QStringLiteral("a%252Fb"),
                     QStringLiteral("General"),
                     QStringLiteral("General/a"),
                     QStringLiteral("%General"),
                     QStringLiteral("[x]"),
                     QStringLiteral(";a=b"),
                     QStringLiteral("#\n\t\"@'"),
                     QStringLiteral("Ümläut"),
                     QStringLiteral("ümläut"),
                     QStringLiteral("Ο γύρος 🚴"),
                     QString(QChar(0xD800))};
    for (char16_t code = 0; code < 0x120; ++code)
        keys.append(QStringLiteral("x%1y").arg(QChar(code)));
    {
        Defaults defaults(path);
        for (qsizetype i = 0; i < keys.size(); ++i)
            defaults.setValue(keys.at(i), i);
        ASSERT_TRUE(defaults.synchronize());
    }
    Defaults defaults(path);
    for (qsizetype i = 0; i < keys.size(); ++i)
        EXPECT_EQ(defaults.textForKey(keys.at(i)), QString::number(i)) << qPrintable(keys.at(i));
}

TEST_F(DefaultsTest, WhatIsNotOursStaysInTheFile)
{
    write("[General]\nkey=1\n[chart/style]\nwidth=2\n");
    Defaults defaults(path);
    EXPECT_FALSE(defaults.contains(QStringLiteral("chart/style/width")));
    defaults.setValue(key, 3);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(bytesOf(path).contains("width=2"));
}

TEST_F(DefaultsTest, ChangesAreToldOnceAndOnlyIfTheValueChanged)
{
    Defaults defaults(path);
    QStringList told;
    QObject::connect(&defaults, &Defaults::changed, [&](const QString& name) { told.append(name); });
    defaults.registerDefaults({{key, true}});
    EXPECT_EQ(told, QStringList{key});
    told.clear();

    defaults.registerDefaults({{key, true}});
    defaults.setValue(key, true);
    EXPECT_TRUE(defaults.isStored(key));
    defaults.synchronize();
    defaults.remove(key);
    defaults.remove(key);
    EXPECT_FALSE(defaults.isStored(key));
    defaults.setValue(key, QVariant());
    EXPECT_TRUE(told.isEmpty());

    defaults.setValue(key, false);
    defaults.setValue(key, false);
    EXPECT_EQ(told, QStringList{key});
    defaults.setValue(QStringLiteral("other"), QDateTime());
    defaults.setValue(key, QVariant());
    EXPECT_EQ(told, (QStringList{key, key}));
    EXPECT_TRUE(defaults.boolForKey(key));
}

TEST_F(DefaultsTest, ObserversHearOfTheirKeyWhileTheyLive)
{
    Defaults defaults(path);
    int heard = 0;
    {
        const QObject window;
        defaults.observe(key, &window, [&] { heard = defaults.integerForKey(key); });
        defaults.setValue(QStringLiteral("other"), 5);
        EXPECT_EQ(heard, 0);
        defaults.setValue(key, 7);
        EXPECT_EQ(heard, 7);
    }
    defaults.setValue(key, 8);
    EXPECT_EQ(heard, 7);
}

TEST_F(DefaultsTest, TwoStoresOverOneFile)
{
    const QString other = QStringLiteral("other");
    Defaults one(path);
    Defaults two(path);
    two.registerDefaults({{key, 1}});
    QStringList told;
    QObject::connect(&two, &Defaults::changed, [&](const QString& name) { told.append(name); });
    one.setValue(key, 2);
    two.setValue(other, 3);
    EXPECT_TRUE(one.synchronize());
    EXPECT_EQ(two.integerForKey(key), 1) << "a value does not change without the signal";
    told.clear();
    EXPECT_TRUE(two.synchronize());
    EXPECT_EQ(two.integerForKey(key), 2);
    EXPECT_EQ(told, QStringList{key});
    EXPECT_TRUE(one.synchronize());
    EXPECT_EQ(one.integerForKey(other), 3) << "neither overwrote the other's value";

    one.remove(key);
    EXPECT_TRUE(one.synchronize());
    EXPECT_TRUE(two.synchronize());
    EXPECT_EQ(two.integerForKey(key), 1);
    EXPECT_EQ(told, (QStringList{key, key}));

    QFile::remove(path);
    EXPECT_TRUE(two.synchronize());
    EXPECT_FALSE(two.contains(other));
}

TEST_F(DefaultsTest, ValuesReachTheFileWithoutBeingTold)
{
    {
        Defaults defaults(path);
        defaults.setValue(key, 1);
        EXPECT_TRUE(files().isEmpty());
        const QDeadlineTimer limit(10'000);
        while (!QFile::exists(path) && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_EQ(Defaults(path).integerForKey(key), 1);
        defaults.setValue(key, 2);
    }
    EXPECT_EQ(Defaults(path).integerForKey(key), 2);
    EXPECT_EQ(files().size(), 1) << "no lock or copy is left behind";
}

class DamagedDefaults : public DefaultsTest, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedDefaults, AreSetAsideUnderAnotherName)
{
    const LogCapture log;
    const auto damaged = QByteArray::fromPercentEncoding(GetParam());
    const QByteArray older("kept from an earlier time");
    for (const char* suffix : {".damaged", ".damaged-2"}) {
        write(damaged);
        Defaults defaults(path);
        defaults.registerDefaults({{key, 130}});
        EXPECT_EQ(defaults.integerForKey(key), 130);
        EXPECT_EQ(bytesOf(path + QString::fromLatin1(suffix)), damaged);
        EXPECT_FALSE(QFile::exists(path));
        defaults.setValue(key, 5);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(Defaults(path).integerForKey(key), 5);
    }
    ASSERT_EQ(log.errors().size(), 2);
    EXPECT_TRUE(log.errors().first().contains(QStringLiteral("ridelog.ini.damaged")));
}

INSTANTIATE_TEST_SUITE_P(, DamagedDefaults,
                         testing::Values("not a settings file", "[General]%0Akey=3%0AuseMi",
                                         "[General%0Akey=3", "[General]%0Akey=3%0A%00%00%00",
                                         "[General]%0Akey=%FF%FE", "%89PNG%0D%0A%1A%0A%00%00%00%0DIHDR"));

TEST_F(DefaultsTest, AFileDamagedMeanwhileIsWrittenAnew)
{
    const LogCapture log;
    Defaults defaults(path);
    defaults.setValue(key, 1);
    defaults.setValue(QStringLiteral("gone"), 1);
    EXPECT_TRUE(defaults.synchronize());
    write("#!/bin/sh");
    defaults.remove(QStringLiteral("gone"));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(bytesOf(path + QStringLiteral(".damaged")), "#!/bin/sh");
    EXPECT_EQ(bytesOf(path), "[General]\nkey=1\n");
    EXPECT_EQ(log.errors().size(), 1);
}

TEST_F(DefaultsTest, AFolderThatCannotBeMadeLeavesTheValuesInMemory)
{
    const LogCapture log;
    write("a file where the folder should be");
    Defaults defaults(path + QStringLiteral("/ridelog.ini"));
    defaults.setValue(key, 1);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(key), 1);
    EXPECT_EQ(log.errors().size(), 1) << "said once, not at every attempt";

    QFile::remove(path);
    EXPECT_TRUE(defaults.synchronize()) << "now the folder can be made";
    EXPECT_EQ(Defaults(defaults.path()).integerForKey(key), 1);
}

TEST_F(DefaultsTest, WithoutAFileTheValuesLastAsLongAsTheStore)
{
    const LogCapture log;
    const auto before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    {
        Defaults defaults{QString()};
        defaults.setValue(key, 1);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(defaults.integerForKey(key), 1);
    }
    QDir::setCurrent(before);
    EXPECT_EQ(log.errors(), QStringList());
    EXPECT_EQ(files(), QStringList());
}

TEST_F(DefaultsTest, WhatIsNoRegularFileIsLeftAlone)
{
    const LogCapture log;
    const auto pipe = folder.filePath(QStringLiteral("pipe"));
    const auto link = folder.filePath(QStringLiteral("link"));
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    QFile::link(folder.filePath(QStringLiteral("nowhere")), link);
    for (const auto& name : {folder.path(), pipe, link}) {
        Defaults defaults(name);
        defaults.setValue(key, 1);
        EXPECT_FALSE(defaults.synchronize()) << qPrintable(name);
        EXPECT_EQ(defaults.integerForKey(key), 1);
        EXPECT_FALSE(QFile::exists(name + QStringLiteral(".damaged")));
    }
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST_F(DefaultsTest, AReadOnlyFolderKeepsItsFileAndTheRunItsValues)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    const LogCapture log;
    writeLine("key=1");
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    Defaults defaults(path);
    EXPECT_TRUE(defaults.synchronize()) << "nothing to write";
    defaults.setValue(key, 2);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(key), 2);
    EXPECT_EQ(Defaults(path).integerForKey(key), 1);
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(Defaults(path).integerForKey(key), 2);
}

TEST(DefaultsPath, LiesInTheUsersConfigurationFolder)
{
    EXPECT_TRUE(Defaults::userPath().endsWith(QStringLiteral("/ridelog/ridelog.ini")));
}

} // namespace
} // namespace ridelog
