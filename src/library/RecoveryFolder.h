#pragma once

#include "platform/DocumentFile.h"

#include <QDateTime>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace ridelog {

/// What is to be known of a document that is kept aside, beside what it holds.
struct RecoveryFacts {
    QString path;                  ///< of the document; empty for one that was never saved
    std::optional<FileState> file; ///< see MyDocument::knownFile
    QDateTime written;
    qint64 tours = 0;
    QString refusal; ///< why the copy could not be opened; empty if nobody has tried
};

/// A folder in which one document is kept aside: "recovery.json" says what of it is to be known and which of
/// the files beside it is the copy. Each copy is a new file, and counts from the moment in which
/// "recovery.json" names it: the two always belong together, whenever the machine stops.
///
/// The system locks the folder for as long as this lives, and unlocks it when the program ends in whatever
/// way. Only this user can look into it.
///
/// What goes wrong is answered in words for people, none for nothing. For any thread, but one at a time.
class RecoveryFolder {
public:
    /// Makes a folder below `parent`, which is made if it is not there. None with the reason in `error`.
    static std::unique_ptr<RecoveryFolder> make(const QString& parent, QString& error);
    /// The folder of this path. None if there is none of this user, or if a program has it.
    static std::unique_ptr<RecoveryFolder> hold(const QString& path);
    ~RecoveryFolder();
    RecoveryFolder(const RecoveryFolder&) = delete;
    RecoveryFolder& operator=(const RecoveryFolder&) = delete;

    /// Whether a document was ever kept here: a program may have ended while it wrote the first copy.
    bool isInUse() const;
    /// Of facts that cannot be read only the refusal is given.
    RecoveryFacts facts() const;
    /// The file that the facts name; empty if they cannot be read.
    QString copyPath() const;

    /// Keeps what `content` gives in place of what was kept before; after an error that is still there. Ends
    /// early, with an error or without, once it is not `wanted` any more.
    std::optional<QString> write(const ByteSource& content, const RecoveryFacts& facts,
                                 const std::atomic_bool& wanted);
    /// Changes the facts of a copy that is there.
    std::optional<QString> setFacts(const RecoveryFacts& facts);
    /// Deletes the folder and all that is in it.
    std::optional<QString> remove();

private:
    RecoveryFolder(QString path, int descriptor);
    QString filePath(const QString& name) const;
    QString copyName() const;
    std::optional<QString> writeFacts(const RecoveryFacts& facts, const QString& copyName);

    QString _path;
    int _descriptor; ///< holds the lock
};

} // namespace ridelog
