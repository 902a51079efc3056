// Archives that the platform wrote, and documents of older versions, against their descriptions in JSON.

#include "tests/support/Archives.h"
#include "tests/support/Samples.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QJsonObject descriptionOf(const QString& path)
{
    const auto stem = path.left(path.lastIndexOf(u'.'));
    return QJsonDocument::fromJson(contentsOf(stem + QStringLiteral(".json"))).object();
}

QString named(const char* name)
{
    return QString::fromLatin1(name);
}

/// Fields of structures one by one, as ArchiveObject gives them.
QJsonArray withoutStructures(const QJsonArray& values)
{
    QJsonArray all;
    for (const auto& value : values) {
        if (value.toObject().value(u"#").toString() != u"struct") {
            all.append(value);
            continue;
        }
        for (const auto& field : withoutStructures(value.toObject().value(u"fields").toArray()))
            all.append(field);
    }
    return all;
}

QJsonValue describe(const ArchiveValue& value);

QJsonArray describe(const std::vector<ArchiveValue>& values, std::size_t from = 0)
{
    QJsonArray all;
    for (auto index = from; index < values.size(); ++index)
        all.append(describe(values[index]));
    return all;
}

QJsonArray describeRuns(const std::vector<ArchiveValue>& values)
{
    QJsonArray runs;
    std::vector<QJsonValue> dictionaries;
    for (std::size_t at = 1; at + 1 < values.size();) {
        const auto number = static_cast<std::size_t>(std::get<qint64>(values[at]));
        const auto length = std::get<qint64>(values[at + 1]);
        at += 2;
        if (number > dictionaries.size())
            dictionaries.push_back(describe(values.at(at++)));
        runs.append(QJsonArray{length, dictionaries.at(number - 1)});
    }
    return runs;
}

QJsonValue describe(const ArchiveObject& object)
{
    if (object.isNil())
        return QJsonValue();
    if (const auto text = object.toText())
        return *text;
    const auto values = object.values();
    QJsonObject all{{named("#"), QString::fromUtf8(object.objectClass()->name)}};
    if (const auto number = object.toNumber()) {
        all[named("type")] = QString(QLatin1Char(number->type()));
        all[named("value")] = number->toDouble();
    } else if (const auto data = object.toData()) {
        all[named("hex")] = QString::fromLatin1(data->toHex());
    } else if (const auto items = object.toItems()) {
        QJsonArray list;
        for (const auto& item : *items)
            list.append(describe(item));
        all[named("items")] = list;
    } else if (const auto entries = object.toEntries()) {
        QJsonArray list;
        for (const auto& [key, value] : *entries)
            list.append(QJsonArray{describe(key), describe(value)});
        all[named("entries")] = list;
    } else if (object.isKindOf("NSDate")) {
        all[named("seconds since 2001")] = describe(values.at(0));
    } else if (object.isKindOf("NSURL")) {
        all[named("base")] = std::get<qint64>(values.at(0)) ? describe(values.at(1)) : QJsonValue();
        all[named("text")] = describe(values.back());
    } else if (object.isKindOf("NSAttributedString")) {
        all[named("text")] = describe(values.at(0));
        all[named("runs")] = describeRuns(values);
    } else if (object.isKindOf("NSColor")) {
        all[named("components")] = describe(values, 1);
    } else if (object.isKindOf("NSValue")) {
        all[named("type")] = QString::fromUtf8(object.typeStrings().at(1));
        all[named("value")] = describe(values, 1);
    } else if (!object.isKindOf("NSNull")) {
        QJsonArray classes;
        for (const auto* each = object.objectClass(); each; each = each->superclass)
            classes.append(QJsonArray{QString::fromUtf8(each->name), each->version});
        all[named("classes")] = classes;
        all[named("values")] = describe(values);
    }
    return all;
}

QJsonValue describe(const ArchiveValue& value)
{
    if (const auto* object = std::get_if<ArchiveObject>(&value))
        return describe(*object);
    if (const auto* whole = std::get_if<qint64>(&value))
        return *whole;
    if (const auto* real = std::get_if<double>(&value))
        return *real;
    if (const auto* bytes = std::get_if<QByteArray>(&value))
        return QJsonObject{{named("#"), named("bytes")}, {named("hex"), QString::fromLatin1(bytes->toHex())}};
    return QJsonValue();
}

/// The expected description in the form in which `describe` gives it.
QJsonValue prepared(const QJsonValue& value)
{
    if (value.isArray()) {
        QJsonArray all;
        for (const auto& element : withoutStructures(value.toArray()))
            all.append(prepared(element));
        return all;
    }
    auto object = value.toObject();
    if (!value.isObject())
        return value;
    object.remove(u"space");
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const bool isStructure = entry->toObject().value(u"#").toString() == u"struct";
        *entry = prepared(isStructure ? QJsonValue(QJsonArray{*entry}) : QJsonValue(*entry));
    }
    return object;
}

std::string textOf(const QJsonArray& values)
{
    return QJsonDocument(values).toJson().toStdString();
}

TEST(TypedStreamSamples, AreReadAndWrittenAgain)
{
    SKIP_WITHOUT_SAMPLES();
    int compared = 0;
    QDirIterator files(samplePath(named("typed-stream")), {named("*.bin"), named("*.clr")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const auto path = files.next();
        SCOPED_TRACE(path.toStdString());
        const auto bytes = contentsOf(path);
        const auto expected = descriptionOf(path);
        TypedStreamReader in(bytes);
        const auto archive = in.readArchive();
        if (!expected.value(u"readable").toBool()) {
            ASSERT_TRUE(in.failed());
            EXPECT_EQ(in.error()->offset, expected.value(u"fails at byte").toInt());
            continue;
        }
        ASSERT_FALSE(in.failed()) << qPrintable(in.error()->text());
        EXPECT_EQ(in.isBigEndian(), expected.value(u"byte order").toString() == u"big");
        EXPECT_EQ(rewritten(bytes), bytes);
        EXPECT_EQ(static_cast<int>(archive.typeStrings().size()),
                  expected.value(u"top-level groups").toInt());
        if (!expected.contains(u"values"))
            continue;
        QJsonArray values;
        for (const auto& group : expected.value(u"values").toArray()) {
            for (const auto& value : group.toObject().value(u"values").toArray())
                values.append(value);
        }
        EXPECT_EQ(textOf(describe(archive.values())), textOf(prepared(values).toArray()));
        ++compared;
    }
    EXPECT_GT(compared, 60);
}

TEST(TypedStreamSamples, ColourListGivesItsColours)
{
    SKIP_WITHOUT_SAMPLES();
    const auto path = samplePath(named("typed-stream/colour-list.clr"));
    const auto bytes = contentsOf(path);
    const auto expected =
        descriptionOf(path).value(u"colours (name, red, green, blue, alpha; all calibrated RGB)").toArray();
    TypedStreamReader in(bytes);
    EXPECT_EQ(in.readInteger(), 1);
    EXPECT_TRUE(in.readObject().isNil());
    ASSERT_EQ(in.readInteger(), expected.size());
    for (const auto& entry : expected) {
        const auto colour = in.readObject().toColour();
        ASSERT_TRUE(colour);
        const QJsonArray found{in.readString().value_or(QString()), static_cast<double>(colour->red),
                               static_cast<double>(colour->green), static_cast<double>(colour->blue),
                               static_cast<double>(colour->alpha)};
        EXPECT_EQ(textOf(found), textOf(entry.toArray()));
    }
    EXPECT_TRUE(in.atEnd());
    EXPECT_FALSE(in.failed());
}

// Documents, read the way that a tour reads itself

using Sample = std::array<char, 20>;

/// The sample as a little-endian machine keeps it, in hex.
QString sampleText(Sample sample, bool bigEndian)
{
    constexpr std::array<int, 10> fields = {2, 2, 2, 2, 2, 2, 4, 1, 1, 2};
    auto* field = sample.data();
    for (const int size : fields) {
        if (bigEndian)
            std::reverse(field, field + size);
        field += size;
    }
    return QString::fromLatin1(QByteArray(sample.data(), sample.size()).toHex());
}

QJsonObject readNumbers(TypedStreamReader& in, std::vector<Sample>& samples)
{
    QJsonObject all;
    in.readDictionary([&](const QString& key) {
        if (key == u"tourData")
            samples = in.readRecords<Sample>().value_or(std::vector<Sample>());
        else if (key == u"type")
            all[key] = in.readString().value_or(QString());
        else if (const auto number = in.readNumber())
            all[key] = number->toDouble();
    });
    return all;
}

QJsonObject describeDate(const ArchiveObject& date)
{
    const auto values = date.values();
    const auto zone = std::get<ArchiveObject>(values.at(1)).values();
    return {{named("seconds"), describe(values.at(0))},
            {named("zone"), describe(zone.at(0))},
            {named("format"), describe(values.at(2))}};
}

QJsonObject readTour(TypedStreamReader& in)
{
    const auto* tourClass = in.openObject();
    if (!tourClass)
        return {};
    const int version = tourClass->versionOf("OdoTour").value_or(-1);
    QJsonObject tour;
    std::vector<Sample> samples;
    bool bigEndian = true;
    tour[named("tourDataDict")] = readNumbers(in, samples);
    if (version >= 2) {
        tour[named("title")] = in.readString().value_or(QString());
        tour[named("description")] = describe(in.readObject().values().at(0));
    }
    if (version >= 3)
        tour[named("removed")] = in.readData().value_or(QByteArrayView()).startsWith('\1');
    if (version >= 4)
        tour[named("date")] = describeDate(in.readObject());
    if (version >= 6) {
        bigEndian = in.readNumber().value_or(ArchiveNumber()).toBool();
        tour[named("bigEndian")] = bigEndian;
    }
    in.closeObject();
    tour[named("samples")] = static_cast<int>(samples.size());
    tour[named("first record")] = samples.empty() ? QString() : sampleText(samples.front(), bigEndian);
    tour[named("last record")] = samples.empty() ? QString() : sampleText(samples.back(), bigEndian);
    return tour;
}

TEST(TypedStreamSamples, DocumentsOfAllVersions)
{
    SKIP_WITHOUT_SAMPLES();
    int compared = 0;
    QDirIterator files(samplePath(named("documents")), {named("*.ridelog")}, QDir::Files);
    while (files.hasNext()) {
        const auto path = files.next();
        SCOPED_TRACE(path.toStdString());
        const auto bytes = contentsOf(path);
        EXPECT_EQ(rewritten(bytes), bytes);
        const auto expected = descriptionOf(path);
        TypedStreamReader in(bytes);
        QJsonArray tours;
        QJsonObject generalData;
        EXPECT_TRUE(in.readDictionary([&](const QString& key) {
            std::vector<Sample> none;
            if (key == u"generalData")
                generalData = readNumbers(in, none);
            else if (key == u"toursArray")
                in.readArray([&](qsizetype) { tours.append(readTour(in)); });
        })) << qPrintable(in.error()->text());
        EXPECT_EQ(textOf({generalData}), textOf({expected.value(u"generalData")}));
        EXPECT_EQ(textOf(tours), textOf(expected.value(u"tours").toArray()));
        ++compared;
    }
    EXPECT_GE(compared, 8);
}

} // namespace
} // namespace ridelog
