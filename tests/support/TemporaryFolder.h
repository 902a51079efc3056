#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ridelog {

/// A folder for the files of one test, gone with it.
class TemporaryFolder {
public:
    QString path(const char* name) const { return _folder.filePath(QString::fromLatin1(name)); }

    /// Makes a file and answers its path.
    QString write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

private:
    QTemporaryDir _folder;
};

} // namespace ridelog
