#pragma once

#include "decode/DumpLayout.h"
#include "library/RawDump.h"
#include "library/TourMerge.h"
#include "model/TourChanges.h"
#include "platform/ArchiveObject.h"
#include "platform/CalendarDate.h"
#include "platform/DocumentFile.h"
#include "platform/UndoManager.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace ridelog {

class Defaults;
class OdoData;

/// A rider's tour library: all tours, removed ones included, and what the device said of itself in the dump
/// imported last. It is kept in one file.
///
/// What goes wrong is answered in words for people, none for nothing; the document and its file are then as
/// they were.
class MyDocument : public QObject {
    Q_OBJECT

public:
    /// Names of what a document is, for file dialogs and the desktop.
    static inline const QString typeName = QStringLiteral("application/x-ridelog");
    static inline const QString extension = QStringLiteral("ridelog");

    /// An empty document without a file. It writes the user's choices to their store when it goes; on the
    /// command line there are none.
    explicit MyDocument(Defaults* defaults = nullptr, QObject* parent = nullptr);
    ~MyDocument() override;

    // What it holds

    /// In the order in which they were added.
    const Tours& toursArray() const { return _toursArray; }
    /// Takes another list and gives its tours the document's undo manager. Not an edit: registers nothing.
    void setToursArray(Tours tours);
    /// The device's settings and totals by name, as numbers. Empty before the first import.
    const GeneralData& generalData() const { return _generalData.numbers; }
    void setGeneralData(const GeneralData& generalData);
    UndoManager& undoManager() { return _undoManager; }
    /// Where the document's tours tell that they were edited.
    TourChanges& tourChanges() { return _tourChanges; }

    // Its stored form. The type's name makes no difference.

    QByteArray dataRepresentationOfType(const QString& type) const;
    /// Takes over what the bytes hold. False for anything but a tour library; `refusal` says why, and the
    /// document stays as it was. Tours that are stored without a date get their year from `now`.
    bool loadDataRepresentation(const QByteArray& data, const QString& ofType,
                                const QDateTime& now = CalendarDate::now());
    const QString& refusal() const { return _refusal; }
    /// Gives the stored form as it is now, whenever it is asked and in whatever thread. Taking it costs
    /// little: it shares the recordings with the document.
    ByteSource storedForm() const;

    /// Whether these are the first bytes of a document, of this program or an older one.
    static bool isDocument(QByteArrayView firstBytes);
    /// Whether a file begins as one. False as well where there is no such file.
    static bool isDocumentFile(const QString& path);

    // Its file

    enum class Missing { refuse, startEmpty };
    /// Reads the file and keeps others from writing it. A missing one is refused, or will come into being
    /// when the document is saved.
    std::optional<QString> open(const QString& path, Missing missing = Missing::refuse,
                                const QDateTime& now = CalendarDate::now());
    /// Reads the file, whoever has it open, and leaves it to others: the document is read-only.
    std::optional<QString> openForReading(const QString& path, const QDateTime& now = CalendarDate::now());
    /// Refused without a file, when the document is read-only, and when another program has changed the file
    /// meanwhile.
    std::optional<QString> save();
    /// Saves under another name and goes on with that file, over whatever is there: that was asked before.
    std::optional<QString> saveAs(const QString& path);
    /// Goes back to what the file holds, and forgets all steps.
    std::optional<QString> revert(const QDateTime& now = CalendarDate::now());
    /// Takes over what was kept aside of the document of this path, empty for one without a file: it is
    /// changed then, and has nothing to undo. Its file was `known` to it.
    std::optional<QString> recover(const QString& copy, const QString& path,
                                   const std::optional<FileState>& known,
                                   const QDateTime& now = CalendarDate::now());

    /// As it was given; empty for a document without a file.
    QString path() const { return _file ? _file->path() : QString(); }
    bool isChanged() const { return !_undoManager.isClean(); }
    bool isReadOnly() const { return !_readOnlyReason.isEmpty(); }
    const QString& readOnlyReason() const { return _readOnlyReason; }
    bool fileWasChangedByOthers() const { return _file && _file->wasChangedByOthers(); }
    /// The file as it was when it was last read or saved; none if there was none.
    std::optional<FileState> knownFile() const { return _file ? _file->known() : std::nullopt; }
    /// Lets the next save overwrite what others have written; to be asked before.
    void acceptChangesOfOthers();

    // What changes it. One undo step each.

    /// Adds the tours that are not there yet. Answers how many.
    std::size_t addNewToursFromArray(const Tours& tours);

    struct Import {
        std::size_t added = 0;
        std::size_t alreadyThere = 0;
        QString refusal;              ///< why the dump was not decoded; empty if it was
        std::optional<KeptDump> kept; ///< of a dump that has arrived, if it was to be kept as a file
    };
    /// Imports a raw dump, general data included. One that cannot be decoded changes nothing.
    Import importFile(const QString& path, const QDateTime& now = CalendarDate::now());
    /// Whether a dump that has arrived is also kept as a file.
    enum class RawDump { asTheUserWants, isNotKept };
    /// Takes a whole dump from the device.
    Import handleTransferFinished(const QByteArray& dump, const QDateTime& now = CalendarDate::now(),
                                  RawDump rawDump = RawDump::asTheUserWants);
    /// Marks a tour as removed, or takes the mark away. It stays in the document.
    void deleteTour(const std::shared_ptr<OdoTour>& tour);
    void undeleteTour(const std::shared_ptr<OdoTour>& tour);

Q_SIGNALS:
    /// Tours came or went.
    void toursArrayChanged();

private:
    using KeptEntries = std::vector<std::pair<QString, ArchiveObject>>;
    struct StoredGeneralData {
        GeneralData numbers;
        KeptEntries otherEntries; ///< kept to be written back
        bool operator==(const StoredGeneralData&) const = default;
    };
    struct Content;

    /// Passes the stored form on in pieces.
    void write(const ByteSink& sink) const;
    template <typename Tour>
    static void write(const ByteSink& sink, const StoredGeneralData& generalData,
                      const std::vector<Tour>& tours, const KeptEntries& otherEntries);
    std::optional<QString> writeTo(DocumentFile& file);
    std::optional<QString> readFrom(DocumentFile& file, const QDateTime& now);
    Import mergeDump(const OdoData& dump);
    // Whether the edits of a tour are this document's.
    void attach(OdoTour& tour);
    static void detach(OdoTour& tour);
    void appendTours(const Tours& tours);
    void takeOutTours(const Tours& tours);
    void setStoredGeneralData(StoredGeneralData generalData);
    /// The same, undoable.
    void replaceGeneralData(StoredGeneralData generalData);

    Defaults* _defaults;
    TourChanges _tourChanges;
    UndoManager _undoManager;
    Tours _toursArray;
    StoredGeneralData _generalData;
    KeptEntries _otherEntries; ///< of the root, kept to be written back
    QString _refusal;
    std::optional<DocumentFile> _file;
    QString _readOnlyReason;
};

} // namespace ridelog
