#include "platform/FileName.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

TEST(FileName, KeepsWhatEveryFileSystemTakes)
{
    const std::pair<QString, QString> cases[]{
        {QStringLiteral("Über den Paß, 2. Teil"), QStringLiteral("Über den Paß, 2. Teil")},
        {QStringLiteral("東京 🚲"), QStringLiteral("東京 🚲")},
        {QStringLiteral("a/b\\c:d*e?f\"g<h>i|j"), QStringLiteral("a-b-c-d-e-f-g-h-i-j")},
        {QStringLiteral("../../etc/passwd"), QStringLiteral("etc-passwd")},
        {QStringLiteral("tab\tand\r\n\n line"), QStringLiteral("tab-and- line")},
        {QStringLiteral(" .hidden. "), QStringLiteral("hidden")},
        {QStringLiteral("."), QString()},
        {QStringLiteral(".."), QString()},
        {QStringLiteral("- / -"), QString()},
        {QStringLiteral("gpj\u202Exct.exe\u2028"), QStringLiteral("gpj-xct.exe")},
        {QString(QChar(0xD800)) + QStringLiteral("half"), QStringLiteral("half")},
        {QString(), QString()},
    };
    for (const auto& [text, name] : cases)
        EXPECT_EQ(safeFileName(text, u'-'), name) << qPrintable(text);
}

TEST(FileName, LongTextsAreCutBetweenCharacters)
{
    for (const auto& character : {QStringLiteral("x"), QStringLiteral("ü"), QStringLiteral("🚲")}) {
        const auto name = safeFileName(character.repeated(1000));
        EXPECT_LE(name.toUtf8().size(), 160);
        EXPECT_GT(name.toUtf8().size(), 156);
        EXPECT_EQ(name, character.repeated(name.size() / character.size()));
    }
}

} // namespace
} // namespace ridelog
