#include "library/MyDocument.h"
#include "platform/TypedStreamReader.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ridelog {
namespace {

QString unsaved()
{
    return QCoreApplication::translate("MyDocument", "the document has no file yet");
}

} // namespace

std::optional<QString> MyDocument::readFrom(DocumentFile& file, const QDateTime& now)
{
    const auto load = [&](const QByteArray& bytes) -> std::optional<QString> {
        if (!loadDataRepresentation(bytes, typeName, now))
            return _refusal;
        _undoManager.removeAllActions();
        _undoManager.setClean();
        return std::nullopt;
    };
    return file.read(load, TypedStreamReader::largestArchive);
}

std::optional<QString> MyDocument::open(const QString& path, Missing missing, const QDateTime& now)
{
    DocumentFile file(path);
    // Locked before it is read: nobody changes what was read.
    const auto owner = file.lock();
    if (missing == Missing::refuse || QFileInfo::exists(path)) {
        if (auto error = readFrom(file, now))
            return error;
    }
    _readOnlyReason = owner.value_or(QString());
    _file = std::move(file);
    return std::nullopt;
}

std::optional<QString> MyDocument::openForReading(const QString& path, const QDateTime& now)
{
    DocumentFile file(path);
    if (auto error = readFrom(file, now))
        return error;
    _readOnlyReason = QCoreApplication::translate("MyDocument", "it was opened for reading only");
    _file = std::move(file);
    return std::nullopt;
}

std::optional<QString> MyDocument::save()
{
    if (!_file)
        return unsaved();
    if (isReadOnly())
        return _readOnlyReason;
    return writeTo(*_file);
}

std::optional<QString> MyDocument::saveAs(const QString& path)
{
    if (_file && _file->isSameFile(path)) {
        acceptChangesOfOthers();
        return save();
    }
    DocumentFile file(path);
    file.acceptChangesOfOthers();
    if (auto error = writeTo(file))
        return error;
    _file = std::move(file);
    _readOnlyReason.clear();
    return std::nullopt;
}

std::optional<QString> MyDocument::writeTo(DocumentFile& file)
{
    if (auto error = file.write([this](const ByteSink& sink) { write(sink); }))
        return error;
    _undoManager.setClean();
    return std::nullopt;
}

std::optional<QString> MyDocument::revert(const QDateTime& now)
{
    if (!_file)
        return unsaved();
    return readFrom(*_file, now);
}

std::optional<QString> MyDocument::recover(const QString& copy, const QString& path,
                                           const std::optional<FileState>& known, const QDateTime& now)
{
    DocumentFile kept(copy);
    if (auto error = readFrom(kept, now))
        return error;
    _undoManager.setUnclean();
    if (path.isEmpty())
        return std::nullopt;
    if (!_file || !_file->isSameFile(path)) {
        DocumentFile file(path);
        _readOnlyReason = file.lock().value_or(QString());
        _file = std::move(file);
    }
    _file->setKnown(known);
    return std::nullopt;
}

void MyDocument::acceptChangesOfOthers()
{
    if (_file)
        _file->acceptChangesOfOthers();
}

} // namespace ridelog
