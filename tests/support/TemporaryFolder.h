#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ridelog {

/// Where files are kept in memory, if the system has such a place: for tests that write thousands.
inline QString memoryFolder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

/// A folder for the files of one test, gone with it.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const QString& parent = QDir::tempPath())
        : _folder(parent + QStringLiteral("/ridelog-XXXXXX"))
    {
    }

    QString path() const { return _folder.path(); }
    QString path(const char* name) const { return _folder.filePath(QString::fromLatin1(name)); }

    /// Makes a file and answers its path.
    QString write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    QByteArray read(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
    }

    /// The names of everything in it, in order.
    QStringList names() const
    {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }

private:
    QTemporaryDir _folder;
};

} // namespace ridelog
