#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

namespace ridelog {

/// The file of the defaults: an INI file as QSettings reads and writes it, with every key in its own line
/// whatever characters it has.
///
/// QSettings itself works on a private copy. Over the file it would keep, for the whole process, what it once
/// read or could not write, and it would overwrite a file that it does not understand.
class DefaultsFile {
public:
    using Values = QHash<QString, QVariant>;

    struct Content {
        Values values;
        bool setAside = false; ///< there was a damaged file, which has another name now
    };

    explicit DefaultsFile(QString path) : _path(std::move(path)) {}

    const QString& path() const { return _path; }

    /// What the file holds; nothing if there is no file, none if it cannot be read. A file that is not text,
    /// or not INI, is renamed to NAME.damaged (NAME.damaged-2 and so on where that is taken) with a log line;
    /// none if that fails.
    std::optional<Content> read();

    /// Changes these keys, one without a value being removed, and answers what the file holds then: keys that
    /// others wrote meanwhile are kept. The file is replaced as a whole, forced to disk and read back. None
    /// if the file does not hold all of the changes afterwards; then it is as it was.
    std::optional<Values> write(const Values& changes);

private:
    std::optional<QByteArray> load() const;
    bool setAside() const;
    bool replace(const QByteArray& bytes) const;

    QString _path;
    QByteArray _parsed;   ///< the bytes that were read last,
    Values _parsedValues; ///< and what they say
};

} // namespace ridelog
