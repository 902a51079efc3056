#pragma once

#include "platform/JobThread.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace ridelog {

class MyDocument;
class RecoveryFolder;

/// A document that a program kept aside and did not come to save.
struct Leftover {
    QString folder;     ///< tells one from the others
    QString path;       ///< of the document; empty for one that was never saved
    QString fileChange; ///< what has become of its file since, in words; empty if it is as it was
    QDateTime written;
    qint64 tours = 0; ///< removed ones included
    QString refusal;  ///< why it could not be opened; empty for one to be offered
};

/// Keeps what is not saved of documents aside, so that it survives the end of the program, and finds what
/// earlier runs have left.
///
/// A changed document is written soon after the change, and again every interval for as long as it goes on
/// changing: no change is older than the interval when its writing begins, unless the disk is slower. The
/// main thread only takes note of what is to be written; a thread of its own encodes it and forces it to the
/// disk. What was written is deleted as soon as the document is saved, or back in the state that was saved,
/// or forgotten. When this goes and documents are still changed, their last changes are written and stay.
///
/// Each document has a RecoveryFolder in one common folder; whoever runs has locked his.
class DocumentRecovery : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds usualInterval = std::chrono::seconds(10);
    /// The folder in the user's data folder.
    static QString userFolder();

    /// The folder is made when there is something to be written.
    explicit DocumentRecovery(QString folder, QObject* parent = nullptr);
    ~DocumentRecovery() override;

    void setInterval(std::chrono::milliseconds interval) { _interval = interval; }

    /// Keeps the changes of this document from now on. It must be forgotten, or outlive this.
    void watch(MyDocument& document);
    /// Writes all changes now, and waits until they are on the disk: the program may be ended any moment.
    void writeNow();
    /// The document is being closed, and what was not saved of it is not wanted.
    void forget(MyDocument& document);

    // What earlier runs have left. Nothing that belongs to a program that still runs, nor to another user.

    /// Those to be offered, the newest first.
    std::vector<Leftover> leftovers() const;
    /// Those that could not be opened. They stay until they are discarded, and may be tried again.
    std::vector<Leftover> refusedLeftovers() const;
    /// A document without changes takes over what was left, as changes that are not saved, and is watched.
    /// What cannot be read changes nothing, and counts as refused then. None, or what went wrong.
    std::optional<QString> recover(const Leftover& leftover, MyDocument& document);
    /// Deletes it for good. None, or what went wrong.
    std::optional<QString> discard(const Leftover& leftover);
    /// Whether a file is in what is kept here, which goes when it is not needed any more.
    bool holds(const QString& path) const;

Q_SIGNALS:
    /// What the document held a moment ago is on the disk.
    void written(ridelog::MyDocument* document);
    /// It cannot be written, for another reason than the last time if there was one. It is tried again every
    /// interval, until it is written or there is nothing to be kept.
    void failed(ridelog::MyDocument* document, const QString& reason);

private:
    struct Aside;
    struct Watched;
    Watched* watched(const MyDocument& document) const;
    void follow(Watched& watched);
    void write(Watched& watched);
    void noteWritten(const std::shared_ptr<Aside>& aside, const std::optional<QString>& error);
    void drop(Watched& watched);
    enum class Kind { offered, refused };
    std::vector<Leftover> find(Kind kind) const;

    QString _folder;
    std::chrono::milliseconds _interval = usualInterval;
    std::vector<std::unique_ptr<Watched>> _watched;
    JobThread _thread;
};

} // namespace ridelog
