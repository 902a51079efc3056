#include "library/DocumentRecovery.h"

#include "library/LibraryLog.h"
#include "library/MyDocument.h"
#include "library/RecoveryFolder.h"
#include "platform/MainThread.h"
#include "platform/WholeFile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

/// After a quiet time a change waits for so much of the interval, as others often follow at once.
constexpr int settlingShare = 10;

QString changeOfFile(const QString& path, const std::optional<FileState>& known)
{
    if (path.isEmpty())
        return {};
    if (known && !QFileInfo::exists(path))
        return QCoreApplication::translate("DocumentRecovery", "its file is gone");
    DocumentFile file(path);
    file.setKnown(known);
    return file.wasChangedByOthers()
               ? QCoreApplication::translate("DocumentRecovery", "its file has been changed since")
               : QString();
}

QString takenByAnother()
{
    return QCoreApplication::translate("DocumentRecovery", "another program has taken it meanwhile");
}

void logProblem(const QString& reason)
{
    qCWarning(lcLibrary, "Could not keep unsaved changes: %s", qUtf8Printable(reason));
}

} // namespace

/// What is on the disk of one document. The folder is the thread's, once a job has this.
struct DocumentRecovery::Aside {
    std::unique_ptr<RecoveryFolder> folder; ///< none before the first writing
    std::atomic_bool wanted = true;
    std::optional<QString> error; ///< of the last writing; the thread's as well
};

struct DocumentRecovery::Watched {
    explicit Watched(MyDocument& watchedDocument) : document(watchedDocument)
    {
        due.setSingleShot(true);
        due.setTimerType(Qt::PreciseTimer);
    }

    bool needsWriting() const { return document.isChanged() && keptState != document.undoManager().state(); }

    MyDocument& document;
    QTimer due; ///< runs while there is something to write
    QDeadlineTimer nextMoment;
    bool isBeingWritten = false;
    std::shared_ptr<Aside> aside; ///< none while nothing is to be kept
    std::optional<UndoManager::State> keptState;
    QString problem;
};

QString DocumentRecovery::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/ridelog/recovery");
}

DocumentRecovery::DocumentRecovery(QString folder, QObject* parent)
    : QObject(parent), _folder(std::move(folder))
{
    prepareMainThread();
}

DocumentRecovery::~DocumentRecovery()
{
    writeNow();
    // Nobody else will hear of it any more.
    for (const auto& watched : _watched) {
        if (watched->aside && watched->aside->error)
            logProblem(*watched->aside->error);
    }
}

// Writing

DocumentRecovery::Watched* DocumentRecovery::watched(const MyDocument& document) const
{
    const auto found = std::ranges::find_if(
        _watched, [&document](const auto& watched) { return &watched->document == &document; });
    return found == _watched.end() ? nullptr : found->get();
}

void DocumentRecovery::watch(MyDocument& document)
{
    if (watched(document))
        return;
    auto& added = *_watched.emplace_back(std::make_unique<Watched>(document));
    const auto followIt = [this, &added] { follow(added); };
    // The timer goes with what is watched, and the connections with it.
    const auto& undoManager = document.undoManager();
    connect(&undoManager, &UndoManager::stateChanged, &added.due, followIt);
    connect(&undoManager, &UndoManager::cleanChanged, &added.due, followIt);
    connect(&added.due, &QTimer::timeout, this, [this, &added] { write(added); });
    follow(added);
}

void DocumentRecovery::forget(MyDocument& document)
{
    auto* forgotten = watched(document);
    if (!forgotten)
        return;
    drop(*forgotten);
    std::erase_if(_watched, [forgotten](const auto& watched) { return watched.get() == forgotten; });
}

void DocumentRecovery::follow(Watched& watched)
{
    if (!watched.document.isChanged())
        return drop(watched);
    if (watched.isBeingWritten || watched.due.isActive() || !watched.needsWriting())
        return;
    const auto untilNext = std::chrono::milliseconds(watched.nextMoment.remainingTime());
    watched.due.start(std::max(untilNext, _interval / settlingShare));
}

void DocumentRecovery::write(Watched& watched)
{
    if (watched.isBeingWritten || !watched.needsWriting())
        return;
    auto& document = watched.document;
    const auto path = document.path();
    const RecoveryFacts facts{.path = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath(),
                              .file = document.knownFile(),
                              .written = QDateTime::currentDateTimeUtc(),
                              .tours = static_cast<qint64>(document.toursArray().size()),
                              .refusal = {}};
    if (!watched.aside)
        watched.aside = std::make_shared<Aside>();
    watched.keptState = document.undoManager().state();
    watched.isBeingWritten = true;
    watched.nextMoment.setRemainingTime(_interval);
    _thread.run([self = QPointer(this), parent = _folder, facts, aside = watched.aside,
                 content = document.storedForm()] {
        QString notMade;
        if (!aside->folder)
            aside->folder = RecoveryFolder::make(parent, notMade);
        aside->error =
            aside->folder ? aside->folder->write(content, facts, aside->wanted) : std::optional(notMade);
        // A message that nobody takes any more must not keep the folder locked.
        postToMainThread([self, weak = std::weak_ptr(aside), error = aside->error] {
            const auto current = weak.lock();
            if (self && current)
                self->noteWritten(current, error);
        });
    });
}

void DocumentRecovery::writeNow()
{
    for (const auto& watched : _watched) {
        // What is being written is older.
        watched->isBeingWritten = false;
        write(*watched);
    }
    _thread.waitForAll();
}

void DocumentRecovery::noteWritten(const std::shared_ptr<Aside>& aside, const std::optional<QString>& error)
{
    const auto found =
        std::ranges::find_if(_watched, [&aside](const auto& watched) { return watched->aside == aside; });
    if (found == _watched.end())
        return;
    auto& watched = **found;
    watched.isBeingWritten = false;
    if (error)
        watched.keptState.reset();
    const auto problem = std::exchange(watched.problem, error.value_or(QString()));
    auto* document = &watched.document;
    follow(watched);
    if (!error)
        Q_EMIT written(document);
    else if (problem != *error) {
        logProblem(*error);
        Q_EMIT failed(document, *error);
    }
}

void DocumentRecovery::drop(Watched& watched)
{
    watched.due.stop();
    watched.keptState.reset();
    watched.isBeingWritten = false;
    watched.problem.clear();
    const auto aside = std::exchange(watched.aside, nullptr);
    if (!aside)
        return;
    aside->wanted = false;
    _thread.run([aside] {
        if (!aside->folder)
            return;
        if (const auto error = aside->folder->remove())
            qCWarning(lcLibrary, "Could not delete what was kept of changes: %s", qUtf8Printable(*error));
        aside->folder.reset();
    });
}

// Leftovers

std::vector<Leftover> DocumentRecovery::leftovers() const
{
    return find(Kind::offered);
}

std::vector<Leftover> DocumentRecovery::refusedLeftovers() const
{
    return find(Kind::refused);
}

std::vector<Leftover> DocumentRecovery::find(Kind kind) const
{
    std::vector<Leftover> found;
    for (const auto& entry : QDir(_folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const auto folder = RecoveryFolder::hold(entry.filePath());
        if (!folder)
            continue;
        if (!folder->isInUse()) {
            folder->remove();
            continue;
        }
        const auto facts = folder->facts();
        if (facts.refusal.isEmpty() == (kind == Kind::offered))
            found.push_back({.folder = entry.filePath(),
                             .path = facts.path,
                             .fileChange = changeOfFile(facts.path, facts.file),
                             .written = facts.written,
                             .tours = facts.tours,
                             .refusal = facts.refusal});
    }
    std::ranges::sort(found, std::ranges::greater(), &Leftover::written);
    return found;
}

std::optional<QString> DocumentRecovery::recover(const Leftover& leftover, MyDocument& document)
{
    if (document.isChanged())
        return QCoreApplication::translate("DocumentRecovery",
                                           "the document is open and has changes that are not saved");
    auto folder = RecoveryFolder::hold(leftover.folder);
    if (!folder)
        return takenByAnother();
    auto facts = folder->facts();
    const auto copy = folder->copyPath();
    auto error =
        copy.isEmpty() ? std::optional(facts.refusal) : document.recover(copy, facts.path, facts.file);
    if (facts.refusal != error.value_or(QString())) {
        facts.refusal = error.value_or(QString());
        // Where that cannot be written it is offered once more.
        folder->setFacts(facts);
    }
    if (error)
        return error;
    watch(document);
    auto& taken = *watched(document);
    drop(taken);
    taken.aside = std::make_shared<Aside>();
    taken.aside->folder = std::move(folder);
    taken.keptState = document.undoManager().state();
    return std::nullopt;
}

std::optional<QString> DocumentRecovery::discard(const Leftover& leftover)
{
    const auto folder = RecoveryFolder::hold(leftover.folder);
    return folder ? folder->remove() : takenByAnother();
}

bool DocumentRecovery::holds(const QString& path) const
{
    return targetOfPath(path).startsWith(targetOfPath(_folder) + u'/');
}

} // namespace ridelog
