#include "platform/StyledText.h"

#include "tests/support/Archives.h"
#include "tests/support/Samples.h"

#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

StyledText stored(const StyledText& text)
{
    const auto bytes = written([&](TypedStreamWriter& out) { text.write(out); });
    return StyledText::fromArchive(TypedStreamReader(bytes).readObject()).value_or(StyledText());
}

/// "Climb to the pass" with "Climb" underlined and a link on "pass".
StyledText styled()
{
    StyledText text(QStringLiteral("Climb to the pass"));
    text.setUnderline(0, 5, true);
    text.setLink(13, 4, QStringLiteral("https://example.org/pass"));
    return text;
}

std::vector<qsizetype> lengths(const StyledText& text)
{
    std::vector<qsizetype> all;
    for (const auto& run : text.runs())
        all.push_back(run.length);
    return all;
}

TEST(StyledText, PlainTextIsStoredAsTheOtherProgramsDo)
{
    const auto bytes = written([](TypedStreamWriter& out) { StyledText(QStringLiteral("n/a")).write(out); });
    const auto expected =
        bytesOf("84 01 40 84 84 84 12 4E 53 41 74 74 72 69 62 75 74 65 64 53 74 72 69 6E 67 00 84 84 08 4E "
                "53 4F 62 6A"
                "65 63 74 00 85 92 84 84 84 08 4E 53 53 74 72 69 6E 67 01 94 84 01 2B 03 6E 2F 61 86 84 02 "
                "69 49 01 03"
                "92 84 84 84 0C 4E 53 44 69 63 74 69 6F 6E 61 72 79 00 94 84 01 69 00 86 86");
    EXPECT_EQ(bytes.toHex(' ').toStdString(), archiveOf(expected).toHex(' ').toStdString());
    const auto empty = written([](TypedStreamWriter& out) { StyledText().write(out); });
    EXPECT_TRUE(empty.endsWith(bytesOf("84 01 2B 00 86 86"))) << "an empty text has no runs";
    EXPECT_EQ(stored(StyledText()), StyledText());
}

TEST(StyledText, AttributesComeBack)
{
    auto text = styled();
    text.setFont(3, 4, QStringLiteral("Example-BoldOblique"), 12.5F);
    const auto again = stored(text);
    EXPECT_EQ(again, text);
    EXPECT_EQ(lengths(again), (std::vector<qsizetype>{3, 2, 2, 6, 4}));
    StyledText::Style both;
    both.bold = both.italic = both.underline = true;
    both.fontName = QStringLiteral("Example-BoldOblique");
    both.fontSize = 12.5F;
    EXPECT_EQ(again.styleAt(4), both);
    EXPECT_EQ(again.styleAt(8), StyledText::Style());
    EXPECT_EQ(again.styleAt(16).link.toStdString(), "https://example.org/pass");
    EXPECT_EQ(again.styleAt(17), StyledText::Style()) << "beyond the text";
}

TEST(StyledText, EqualityIsByContent)
{
    EXPECT_EQ(styled(), styled());
    EXPECT_FALSE(styled() == StyledText(styled().text()));
    auto other = styled();
    other.setUnderline(4, 1, false);
    EXPECT_FALSE(other == styled());
    other.setUnderline(4, 1, true);
    EXPECT_EQ(other, styled()) << "one dictionary or two alike, the text looks the same";
    other.setLink(0, 100, QString());
    other.setUnderline(-5, 100, false);
    EXPECT_EQ(other, StyledText(styled().text()));
}

TEST(StyledText, ReplacedTextTakesTheStyleOfItsPlace)
{
    auto text = styled();
    text.replace(0, 5, u"Descent");
    EXPECT_EQ(text.text().toStdString(), "Descent to the pass");
    EXPECT_EQ(lengths(text), (std::vector<qsizetype>{7, 8, 4}));
    text.replace(7, 0, u"s");
    EXPECT_TRUE(text.styleAt(7).underline) << "typed behind an underlined character";
    text.replace(0, 0, u"> ");
    EXPECT_TRUE(text.styleAt(0).underline);
    text.replace(5, 100, u"");
    EXPECT_EQ(text.text().toStdString(), "> Des");
    EXPECT_EQ(lengths(text), std::vector<qsizetype>{5});
    text.replace(0, 5, u"");
    EXPECT_EQ(text, StyledText());
    text.replace(0, 0, u"again");
    EXPECT_EQ(text, StyledText(QStringLiteral("again")));
}

TEST(StyledText, RunsThatDoNotFitTheText)
{
    const auto withRuns = [](std::initializer_list<std::pair<int, int>> runs) {
        const auto bytes = written([&](TypedStreamWriter& out) {
            out.beginObject(ArchiveClasses::attributedString);
            out.writeString(u"text");
            int known = 0;
            for (const auto& [number, length] : runs) {
                out.group("iI");
                out.putInteger(number);
                out.putInteger(length);
                if (number <= known)
                    continue;
                known = number;
                out.beginDictionary(1, ArchiveClasses::dictionary);
                out.writeString(u"key");
                out.writeNumber(ArchiveNumber(number));
                out.endObject();
            }
            out.endObject();
        });
        return StyledText::fromArchive(TypedStreamReader(bytes).readObject());
    };
    EXPECT_EQ(lengths(*withRuns({{1, 2}})), (std::vector<qsizetype>{2, 2}));
    EXPECT_EQ(lengths(*withRuns({{1, 2}, {2, 900}})), (std::vector<qsizetype>{2, 2}));
    EXPECT_EQ(lengths(*withRuns({{1, 1}, {2, 1}, {1, 2}})), (std::vector<qsizetype>{1, 1, 2}));
    EXPECT_FALSE(withRuns({{2, 4}})) << "there is no first one";
    EXPECT_FALSE(withRuns({{1, -4}}));
}

TEST(StyledText, StringsAndNilAreTexts)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.writeString(u"plain");
        out.writeNumber(ArchiveNumber(1));
    });
    TypedStreamReader in(bytes);
    EXPECT_EQ(StyledText::fromArchive(in.readObject()), StyledText(QStringLiteral("plain")));
    EXPECT_EQ(StyledText::fromArchive(in.readObject()), std::nullopt);
    EXPECT_EQ(StyledText::fromArchive(ArchiveObject()), StyledText());
}

TEST(StyledText, UntouchedTextsAreStoredByteForByte)
{
    SKIP_WITHOUT_SAMPLES();
    int compared = 0;
    QDirIterator files(samplePath(QStringLiteral("typed-stream/more/styled")), {QStringLiteral("*.bin")});
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const auto bytes = file.readAll();
        auto text = StyledText::fromArchive(TypedStreamReader(bytes).readObject());
        ASSERT_TRUE(text) << qPrintable(file.fileName());
        EXPECT_EQ(written([&](TypedStreamWriter& out) { text->write(out); }), bytes)
            << qPrintable(file.fileName());
        // Changed and changed back, the runs that nobody understands are still the same.
        const auto original = *text;
        text->replace(text->text().size(), 0, u"!");
        EXPECT_FALSE(*text == original);
        text->replace(text->text().size() - 1, 1, u"");
        EXPECT_EQ(stored(*text), original) << qPrintable(file.fileName());
        ++compared;
    }
    EXPECT_GT(compared, 10);
}

} // namespace
} // namespace ridelog
