#include "library/AppController.h"

#include "library/DefaultsKeys.h"
#include "library/LibraryLog.h"
#include "platform/Defaults.h"
#include "platform/WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

constexpr qsizetype mostRecentDocuments = 10;

/// The real path of the folder, and the name as it was given: one path, whichever way led there. It is kept
/// beyond this run, whose working folder means nothing to the next.
QString absolutePath(const QString& path)
{
    const QFileInfo info(path);
    const auto folder = info.dir().canonicalPath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

} // namespace

AppController::AppController(Defaults& defaults, const QString& recoveryFolder, QObject* parent)
    : QObject(parent), _defaults(defaults), _recovery(recoveryFolder)
{
    DefaultsKeys::registerApplicationDefaults(_defaults);
    DefaultsKeys::registerDocumentDefaults(_defaults);
}

AppController::~AppController() = default;

MyDocument& AppController::newDocument()
{
    return add(std::make_unique<MyDocument>(&_defaults));
}

MyDocument& AppController::add(std::unique_ptr<MyDocument> document)
{
    auto& added = *_documents.emplace_back(std::move(document));
    _recovery.watch(added);
    Q_EMIT documentOpened(&added);
    return added;
}

MyDocument* AppController::openDocument(const QString& path)
{
    const auto location = absolutePath(path);
    if (auto* open = documentWithFile(location)) {
        noteRecentDocument(open->path());
        return open;
    }
    auto document = std::make_unique<MyDocument>(&_defaults);
    // What is kept aside goes, whatever is written to it.
    const bool isKeptAside = _recovery.holds(location);
    if (const auto error = isKeptAside ? document->openForReading(location) : document->open(location)) {
        Q_EMIT openFailed(location, *error);
        return nullptr;
    }
    if (!isKeptAside)
        noteRecentDocument(location);
    return &add(std::move(document));
}

MyDocument* AppController::recoverDocument(const Leftover& leftover)
{
    auto* open = leftover.path.isEmpty() ? nullptr : documentWithFile(leftover.path);
    auto document = open ? nullptr : std::make_unique<MyDocument>(&_defaults);
    if (const auto error = _recovery.recover(leftover, open ? *open : *document)) {
        Q_EMIT recoveryFailed(leftover, *error);
        return nullptr;
    }
    if (!leftover.path.isEmpty())
        noteRecentDocument(leftover.path);
    return open ? open : &add(std::move(document));
}

MyDocument* AppController::documentWithFile(const QString& path) const
{
    const auto file = targetOfPath(path);
    const auto found = std::ranges::find_if(_documents, [&file](const auto& document) {
        return !document->path().isEmpty() && targetOfPath(document->path()) == file;
    });
    return found == _documents.end() ? nullptr : found->get();
}

std::optional<QString> AppController::saveDocumentAs(MyDocument& document, const QString& path)
{
    const auto location = absolutePath(path);
    if (_recovery.holds(location))
        return QCoreApplication::translate(
            "AppController", "changes that are not saved are kept in this folder, and nothing else");
    auto error = document.saveAs(location);
    if (!error)
        noteRecentDocument(location);
    return error;
}

void AppController::closeDocument(MyDocument& document)
{
    const auto found = std::ranges::find(_documents, &document, &std::unique_ptr<MyDocument>::get);
    if (found == _documents.end())
        return;
    // Whoever is told that it goes does not find it among the open ones any more.
    const auto closed = std::move(*found);
    _documents.erase(found);
    _recovery.forget(*closed);
}

// Recent documents

QStringList AppController::recentDocuments() const
{
    // People can write into the settings file too.
    auto paths = _defaults.textListForKey(DefaultsKeys::recentDocuments).value_or(QStringList());
    paths.removeIf([](const QString& path) { return !QDir::isAbsolutePath(path); });
    paths.removeDuplicates();
    return paths.first(std::min(paths.size(), mostRecentDocuments));
}

void AppController::noteRecentDocument(const QString& path)
{
    auto paths = recentDocuments();
    paths.removeAll(path);
    paths.prepend(path);
    _defaults.setValue(DefaultsKeys::recentDocuments,
                       paths.first(std::min(paths.size(), mostRecentDocuments)));
}

bool AppController::applicationShouldOpenUntitledFile()
{
    qCDebug(lcLibrary, "applicationShouldOpenUntitledFile");
    const auto paths = recentDocuments();
    if (paths.isEmpty())
        return true;
    qCDebug(lcLibrary, "(%s)\nfirst: %s", qUtf8Printable(paths.join(QStringLiteral(", "))),
            qUtf8Printable(paths.first()));
    const auto* document = openDocument(paths.first());
    qCDebug(lcLibrary, "documentForURL returned: %s", document ? qUtf8Printable(document->path()) : "(null)");
    return false;
}

} // namespace ridelog
