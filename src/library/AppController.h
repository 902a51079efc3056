#pragma once

#include "library/DocumentRecovery.h"
#include "library/MyDocument.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace ridelog {

/// The open documents of the application, which of them were used last, and what happens at the start.
class AppController : public QObject {
    Q_OBJECT

public:
    /// Registers the values that count while the user has made no choices. There may be no document before.
    explicit AppController(Defaults& defaults, const QString& recoveryFolder = DocumentRecovery::userFolder(),
                           QObject* parent = nullptr);
    /// Changes of documents that are still open are kept for the next start.
    ~AppController() override;

    /// In the order in which they were opened.
    const std::vector<std::unique_ptr<MyDocument>>& documents() const { return _documents; }
    MyDocument& newDocument();
    /// The document in this file; the one that has it open already, if there is one. None when it cannot be
    /// opened: openFailed says why. What is kept for a recovery can only be read.
    MyDocument* openDocument(const QString& path);
    /// Saves under another name (see MyDocument::saveAs), but not where changes are kept for a recovery.
    /// None, or what went wrong.
    std::optional<QString> saveDocumentAs(MyDocument& document, const QString& path);
    /// Destroys the document, saved or not, and what was kept aside of it. Its file is free for others then.
    void closeDocument(MyDocument& document);

    /// Absolute paths of the documents used last, newest first, whether or not they are still there.
    QStringList recentDocuments() const;

    /// Asked at the start, and whenever the application is called for and has no window. Opens the document
    /// used last. Whether a new one is to be made instead: only if no document was ever used.
    bool applicationShouldOpenUntitledFile();

    /// What keeps changes that are not saved, and has those that earlier runs left.
    DocumentRecovery& recovery() { return _recovery; }
    /// The document that was left, with changes that are not saved: a new one, or the one with its file that
    /// is open already. None when that has changes itself, or when it cannot be read: recoveryFailed says
    /// why.
    MyDocument* recoverDocument(const Leftover& leftover);

Q_SIGNALS:
    /// A new document, or one from a file; not told of one that is open already.
    void documentOpened(ridelog::MyDocument* document);
    void openFailed(const QString& path, const QString& reason);
    void recoveryFailed(const ridelog::Leftover& leftover, const QString& reason);

private:
    MyDocument& add(std::unique_ptr<MyDocument> document);
    MyDocument* documentWithFile(const QString& path) const;
    void noteRecentDocument(const QString& path);

    Defaults& _defaults;
    std::vector<std::unique_ptr<MyDocument>> _documents;
    DocumentRecovery _recovery; ///< goes before the documents that it watches
};

} // namespace ridelog
