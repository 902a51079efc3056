#pragma once

#include "exchange/ExportFormat.h"

#include <functional>
#include <optional>
#include <vector>

namespace ridelog {

/// One file of an export.
struct ExportFile {
    QString path;
    Tours tours;
    /// Something had its name when the export was laid out.
    bool isThere = false;
};

/// Tours as files for other programs: which files there will be, and their writing. Each is written whole or
/// not at all.
class TourExport {
public:
    enum class Layout { filePerTour, oneFile };

    /// Lays the files out in the folder, which need not be there. A tour's file is called after its start and
    /// type, "2007-03-10_08-00_Bike.tcx", and numbered where others of them would have the same name; that of
    /// all tours after the source and its period. Where the format leaves no choice, the layout does not
    /// count. `format` has to outlive the export.
    TourExport(const ExportFormat& format, ExportSource source, const Tours& tours, const QString& folder,
               Layout layout);
    /// All tours in a file of this path, whatever the format would call it. For a format whose files may hold
    /// several tours.
    static TourExport toFile(const ExportFormat& format, ExportSource source, const Tours& tours,
                             const QString& path);

    const std::vector<ExportFile>& files() const { return _files; }
    std::size_t countTours() const { return _countTours; }
    /// Those that are there already.
    std::vector<ExportFile> existingFiles() const;

    /// Whether files that were there when the export was laid out are replaced. One that has come since then
    /// is not: nobody was asked about it.
    enum class Existing { keep, replace };
    /// Told after each tour how many are done; false ends the export, and the file under way is not written.
    using GoesOn = std::function<bool(std::size_t tours)>;
    struct Failure {
        QString path;
        QString reason;
        bool isRefusal = false; ///< the format has no room for the tours; else the file could not be written
    };
    struct Outcome {
        std::size_t written = 0; ///< files
        std::vector<Failure> failures = {};
        bool wasStopped = false;
    };
    /// Writes all files, in order; makes the folder if it is not there. A file that cannot be written, or
    /// that the format cannot hold, is a failure, and the others are written nevertheless. No file of tours,
    /// be it a document or a dump, is replaced.
    Outcome write(Existing existing, const GoesOn& goesOn) const;

private:
    TourExport(const ExportFormat& format, ExportSource source, const QString& folder, std::size_t tours);
    void addFile(const QString& path, Tours tours);

    const ExportFormat& _format;
    ExportSource _source;
    QString _folder;
    std::vector<ExportFile> _files;
    std::size_t _countTours;
};

/// The choice that a format leaves.
bool mayHoldOneTour(const ExportFormat& format);
bool mayHoldSeveralTours(const ExportFormat& format);

/// The tours as a list numbers them, from 1.
QHash<const OdoTour*, int> numbersOf(const Tours& listed);

} // namespace ridelog
