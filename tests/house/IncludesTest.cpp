// Who may include whom: a folder sees itself and the folders it is allowed, nothing else.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

const QMap<QString, QSet<QString>>& allowedFolders()
{
    static const auto table = [] {
        const auto folders = [](const char* names) {
            const auto list = QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts);
            return QSet<QString>(list.begin(), list.end());
        };
        const auto key = [](const char* name) { return QString::fromLatin1(name); };
        const char* all = "platform model format update decode device simulator library chart exchange";
        return QMap<QString, QSet<QString>>{
            {key("platform"), {}},
            {key("model"), folders("platform")},
            {key("format"), folders("platform")},
            {key("update"), folders("platform")},
            {key("decode"), folders("platform model")},
            {key("device"), folders("platform")},
            {key("simulator"), folders("platform model decode")},
            {key("library"), folders("platform model format decode device")},
            {key("chart"), folders("platform model format library")},
            {key("exchange"), folders("platform model format library")},
            {key("ui"), folders(all)},
            {key("cli"), folders(all)},
            {key("app"), folders((std::string("ui ") + all).c_str())},
        };
    }();
    return table;
}

TEST(House, FoldersIncludeOnlyWhatTheyMaySee)
{
    static const QRegularExpression include(QStringLiteral("^#include \"([a-z]+)/"),
                                            QRegularExpression::MultilineOption);
    int seen = 0;
    const QDir source(QStringLiteral(RIDELOG_SOURCE "/src"));
    for (const auto& folder : source.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        ASSERT_TRUE(allowedFolders().contains(folder)) << qPrintable(folder) << " is not in the table";
        const auto& allowed = allowedFolders()[folder];
        QDirIterator files(source.filePath(folder), {QStringLiteral("*.h"), QStringLiteral("*.cpp")},
                           QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                const auto included = matches.next().captured(1);
                ++seen;
                EXPECT_TRUE(included == folder || allowed.contains(included))
                    << qPrintable(file.fileName()) << " includes " << qPrintable(included);
            }
        }
    }
    EXPECT_GT(seen, 50);
}

} // namespace
