#include "decode/OdoData.h"
#include "device/OdoCom.h"
#include "library/DefaultsKeys.h"
#include "library/LibraryLog.h"
#include "library/MyDocument.h"
#include "library/RawDump.h"
#include "platform/Defaults.h"

#include <memory>
#include <unordered_set>
#include <utility>

namespace ridelog {

static_assert(OdoCom::wholeDump == DumpLayout::dumpSize, "a transfer ends with a whole dump");

namespace {

QString addingTours(std::size_t count)
{
    return MyDocument::tr("adding %n tours", nullptr, static_cast<int>(count));
}

} // namespace

// Merging

std::size_t MyDocument::addNewToursFromArray(const Tours& tours)
{
    const auto added = std::make_shared<const Tours>(toursNotIn(_toursArray, tours));
    if (!added->empty()) {
        for (const auto& tour : *added)
            qCDebug(lcLibrary, "Tourdate: %s added %ld", qUtf8Printable(tour->description()),
                    tour.use_count());
        _undoManager.registerUndo(
            addingTours(added->size()), [this, added] { takeOutTours(*added); },
            [this, added] { appendTours(*added); });
        appendTours(*added);
    }
    qCDebug(lcLibrary, "%zu tours added", added->size());
    return added->size();
}

void MyDocument::appendTours(const Tours& tours)
{
    for (const auto& tour : tours) {
        attach(*tour);
        _toursArray.push_back(tour);
    }
    Q_EMIT toursArrayChanged();
}

void MyDocument::takeOutTours(const Tours& tours)
{
    const std::unordered_set<std::shared_ptr<OdoTour>> taken(tours.begin(), tours.end());
    std::erase_if(_toursArray, [&taken](const auto& tour) { return taken.contains(tour); });
    for (const auto& tour : tours)
        detach(*tour);
    Q_EMIT toursArrayChanged();
}

void MyDocument::replaceGeneralData(StoredGeneralData generalData)
{
    if (generalData != _generalData)
        _undoManager.registerUndo([this, old = _generalData] { replaceGeneralData(old); });
    setStoredGeneralData(std::move(generalData));
}

// The two roads by which a dump arrives

MyDocument::Import MyDocument::importFile(const QString& path, const QDateTime& now)
{
    const UndoGroup oneStep(_undoManager);
    const auto dump = OdoData::initWithFile(path, now);
    auto import = mergeDump(dump);
    if (import.refusal.isEmpty()) {
        StoredGeneralData generalData{dump.generalDataDict(), {}};
        const bool isAnother = generalData != _generalData;
        replaceGeneralData(std::move(generalData));
        // An import that changes nothing names nothing: an edit of the same event keeps its name.
        if (isAnother)
            _undoManager.setActionName(addingTours(import.added));
    }
    return import;
}

MyDocument::Import MyDocument::handleTransferFinished(const QByteArray& dump, const QDateTime& now,
                                                      RawDump rawDump)
{
    qCDebug(lcLibrary, "[handleTransferFinished]");
    qCDebug(lcLibrary, "data received %lld", static_cast<long long>(dump.size()));
    const bool isWanted = _defaults && _defaults->boolForKey(DefaultsKeys::saveRawData);
    std::optional<KeptDump> kept;
    if (isWanted && rawDump == RawDump::asTheUserWants)
        kept = keepFinishedDump(dump);
    const UndoGroup oneStep(_undoManager);
    auto import = mergeDump(OdoData::initWithData(dump, now));
    import.kept = std::move(kept);
    return import;
}

MyDocument::Import MyDocument::mergeDump(const OdoData& dump)
{
    const auto& tours = dump.toursArray();
    const auto added = addNewToursFromArray(tours);
    return {.added = added, .alreadyThere = tours.size() - added, .refusal = dump.refusal(), .kept = {}};
}

// Removed marks. The tour registers the way back as well, and names the step. Undone, it is the tour that
// takes its mark back first, so that nothing is left to do here.

void MyDocument::deleteTour(const std::shared_ptr<OdoTour>& tour)
{
    if (tour->removed())
        return;
    _undoManager.registerUndo([this, tour] { undeleteTour(tour); });
    tour->setRemoved(true);
}

void MyDocument::undeleteTour(const std::shared_ptr<OdoTour>& tour)
{
    if (!tour->removed())
        return;
    _undoManager.registerUndo([this, tour] { deleteTour(tour); });
    tour->setRemoved(false);
}

} // namespace ridelog
