#include "format/PreferenceAwareFormatter.h"

#include "tests/format/FormatterTest.h"

namespace ridelog {
namespace {

const QString key = QStringLiteral("alternative");

class PreferenceAwareFormatterTest : public FormatterTest {
protected:
    std::string text(const QVariant& object) { return formatter.stringForObjectValue(object).toStdString(); }

    double read(const char* string) const
    {
        QVariant object;
        EXPECT_TRUE(formatter.getObjectValue(&object, QString::fromUtf8(string), nullptr)) << string;
        return object.toDouble();
    }

    PreferenceAwareFormatter formatter = PreferenceAwareFormatter::initWithPreferencesPath(defaults, key);
};

TEST_F(PreferenceAwareFormatterTest, FollowsTheChoiceAtTheNextConversionToText)
{
    EXPECT_EQ(text(800) + text(0), "8000");
    defaults.setValue(key, true);
    EXPECT_EQ(read("800"), 800) << "reading does not ask for the choice";
    EXPECT_EQ(text(800), "1600") << "twice, unless told otherwise";
    EXPECT_EQ(text(0), "0 mi");
    EXPECT_EQ(read("800"), 400);
    EXPECT_EQ(PreferenceAwareFormatter(defaults).stringForObjectValue(0), QStringLiteral("0"))
        << "without a key";

    formatter.setAlternativeMultiplicator(4);
    formatter.setAlternativeFormatString(QStringLiteral("#ft"));
    formatter.setMultiplicator(5);
    formatter.setPath(key);
    EXPECT_EQ(read("800"), 400) << "the same key again changes nothing";
    EXPECT_EQ(text(800), "3200ft");
    formatter.setPath(QString());
    EXPECT_EQ(read("800"), 200) << "no key, nothing to ask for";
    formatter.setPath(QStringLiteral("other"));
    EXPECT_EQ(read("800"), 160);
    EXPECT_TRUE(formatter.stringForObjectValue(QStringLiteral("800")).isNull());
}

TEST_F(PreferenceAwareFormatterTest, ReadsOneNumberAndRefusesTheRest)
{
    EXPECT_EQ(read("2624.7"), 2624.7);
    EXPECT_EQ(read(" \t-12.5 \n"), -12.5);
    EXPECT_EQ(read("+.5"), 0.5);
    EXPECT_EQ(read("1.5e2"), 150);
    for (const auto* refused : {"12 km", "", "  ", "abc", "1e", "0x10", "1,5", "1,500", "1 5", "+-5", "5-",
                                "1.2.3", "inf", "nan", "1e400"}) {
        QVariant object = 7;
        QString error;
        EXPECT_FALSE(formatter.getObjectValue(&object, QString::fromUtf8(refused), &error)) << refused;
        EXPECT_EQ(error, QStringLiteral("Couldn not convert  to float"));
        EXPECT_EQ(object, 7);
    }
    formatter.setMultiplicator(0);
    EXPECT_EQ(text(800), "0");
    EXPECT_FALSE(formatter.getObjectValue(nullptr, QStringLiteral("1"), nullptr)) << "nothing to divide by";
}

TEST_F(PreferenceAwareFormatterTest, ReadsWhatItShowsInEveryLocale)
{
    for (const auto& [language, shown] :
         {std::pair(QLocale::German, "2624,5"), std::pair(QLocale::Persian, "۲۶۲۴٫۵")}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(text(2624.5), shown);
        EXPECT_EQ(read(shown), 2624.5);
        EXPECT_EQ(read("2624.5"), 2624.5);
        EXPECT_FALSE(formatter.getObjectValue(nullptr, QStringLiteral("1.234,5"), nullptr));
    }
}

} // namespace
} // namespace ridelog
