// Every text that the sources have translated stands in every language's file, whole and fit to take its
// place.

#include "platform/Languages.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace ridelog;

struct Message {
    QString source;
    QStringList translations; ///< one, or as many as the language has plural forms
    bool isFinished = true;
};

/// By context, source and comment.
using Messages = QMap<QStringList, Message>;

void readTranslation(QXmlStreamReader& xml, Message& message)
{
    message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
    QString text;
    while (xml.readNext() != QXmlStreamReader::EndElement && !xml.hasError()) {
        if (xml.isStartElement())
            message.translations << xml.readElementText();
        else
            text += xml.text();
    }
    if (message.translations.empty())
        message.translations << text;
}

Messages messagesIn(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    Messages messages;
    QString context;
    QString comment;
    Message message;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == u"message")
            messages.insert({context, message.source, comment}, message);
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            message = {};
            comment.clear();
        } else if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            readTranslation(xml, message);
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path) << ": " << qPrintable(xml.errorString());
    return messages;
}

QString pathOf(const QString& code)
{
    return QStringLiteral(RIDELOG_SOURCE "/resources/translations/ridelog_%1.ts").arg(code);
}

/// What the file would be if it were brought up to date with the sources.
Messages broughtUpToDate(const QString& code)
{
    const QTemporaryDir folder;
    const auto copy = folder.filePath(QStringLiteral("ridelog_%1.ts").arg(code));
    EXPECT_TRUE(QFile::copy(pathOf(code), copy));
    QStringList words{QStringLiteral("-silent"), QStringLiteral("-no-obsolete"), QStringLiteral("-I"),
                      QStringLiteral(RIDELOG_SOURCE "/src"), QStringLiteral(RIDELOG_SOURCE "/src")};
    if (code == u"en")
        words << QStringLiteral("-pluralonly");
    QProcess lupdate;
    lupdate.start(QStringLiteral(RIDELOG_LUPDATE), words << QStringLiteral("-ts") << copy);
    EXPECT_TRUE(lupdate.waitForFinished(60000));
    EXPECT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().constData();
    return messagesIn(copy);
}

QStringList placesIn(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%(?:\\d|L?n)"));
    QStringList places;
    auto matches = place.globalMatch(text);
    while (matches.hasNext())
        places << matches.next().captured();
    places.removeDuplicates();
    places.sort();
    return places;
}

bool hasMnemonic(const QString& text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&\\w"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    return mnemonic.match(text).hasMatch();
}

/// How a text begins and ends that others are put beside.
QString edgesOf(const QString& text)
{
    const auto isSign = [](QChar c) { return QStringLiteral(" .…:?").contains(c); };
    return (text.front() == u' ' ? QStringLiteral(" |") : QStringLiteral("|")) +
           (isSign(text.back()) ? QString(text.back()) : QString());
}

TEST(Translations, AreCompleteAndFit)
{
    for (const auto& language : languages) {
        SCOPED_TRACE(qPrintable(language.code));
        const auto stored = messagesIn(pathOf(language.code));
        const auto needed = broughtUpToDate(language.code);
        ASSERT_FALSE(needed.empty());
        for (const auto& key : stored.keys())
            EXPECT_TRUE(needed.contains(key)) << "nothing has this text: " << qPrintable(key.join(u'|'));
        for (auto one = needed.begin(); one != needed.end(); ++one) {
            SCOPED_TRACE(qPrintable(one.key().join(u'|')));
            EXPECT_TRUE(stored.contains(one.key()))
                << "not in the file: build the target update-translations";
            const auto& message = one.value();
            EXPECT_TRUE(message.isFinished && !message.translations.contains(QString())) << "not translated";
            if (!message.isFinished || message.translations.contains(QString()))
                continue;
            for (const auto& text : message.translations) {
                SCOPED_TRACE(qPrintable(text));
                EXPECT_EQ(placesIn(text), placesIn(message.source));
                EXPECT_EQ(hasMnemonic(text), hasMnemonic(message.source));
                // Date patterns and the language's code are no sentences; whatever ends with a sign does so
                // in all.
                EXPECT_EQ(edgesOf(text), edgesOf(message.source));
            }
        }
    }
}

/// As the program finds them, with the toolkit's own, and English where a language has none.
TEST(Translations, AreSpokenAsTheLocaleAsks)
{
    const auto added = [](int count) {
        return QCoreApplication::translate("ridelog::MainWindowController", "%Ln tour(s)", nullptr, count);
    };
    const auto failure = [] { return QCoreApplication::translate("WholeFile", "it is a folder"); };
    const auto ofToolkit = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    const auto english = ofToolkit();

    speakLanguageOf(QLocale(QStringLiteral("de_AT")));
    EXPECT_EQ(added(1) + u'|' + added(2), QStringLiteral("1 Tour|2 Touren"));
    EXPECT_NE(failure(), QStringLiteral("it is a folder"));
    EXPECT_EQ(ofToolkit(), QStringLiteral("Abbrechen"));

    speakLanguageOf(QLocale(QStringLiteral("fr_CA")));
    EXPECT_EQ(added(0) + u'|' + added(2), QStringLiteral("0 sortie|2 sorties"));
    EXPECT_EQ(ofToolkit(), QStringLiteral("Annuler"));

    for (const auto* other : {"es_ES", "C", "en_GB"}) {
        speakLanguageOf(QLocale(QString::fromLatin1(other)));
        EXPECT_EQ(added(1) + u'|' + added(2), QStringLiteral("1 tour|2 tours")) << other;
        EXPECT_EQ(failure(), QStringLiteral("it is a folder")) << other;
        EXPECT_EQ(ofToolkit(), english) << other;
    }
    speakLanguageOf(QLocale::c());
}

} // namespace
