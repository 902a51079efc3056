#pragma once

#include "model/OdoTour.h"
#include "model/Period.h"
#include "platform/WholeFile.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace ridelog {

class Defaults;

/// The year, month or week of a day, or all tours.
struct ChosenPeriod {
    Period period = Period::all;
    QDate day;
    WeekRule weekRule;
};

/// Where exported tours come from, as far as files tell of it.
struct ExportSource {
    QString name = {}; ///< of the document or the dump, without its ending
    /// What the device says of itself, in its order; empty where that is not known.
    std::vector<std::pair<QString, std::int32_t>> generalData = {};
    /// What people call each tour by in its list, from 1.
    QHash<const OdoTour*, int> numbers = {};
    /// The tours are those of a period; none if they were chosen otherwise.
    std::optional<ChosenPeriod> period = {};
};

/// Where a format writes the bytes of a file to.
class ExportSink {
public:
    /// `tourDone` says whether there is any use in more.
    ExportSink(ByteSink bytes, std::function<bool()> tourDone)
        : _bytes(std::move(bytes)), _tourDone(std::move(tourDone))
    {
    }

    void write(QByteArrayView bytes) const { _bytes(bytes); }
    const ByteSink& bytes() const { return _bytes; }
    /// To be said after each tour. False if the file is not wanted any more: whatever is written from then
    /// on is lost.
    [[nodiscard]] bool tourDone() const { return _tourDone(); }

private:
    ByteSink _bytes;
    std::function<bool()> _tourDone;
};

/// A form in which other programs take tours.
class ExportFormat {
public:
    /// What a file may hold.
    enum class Files {
        onePerTour, ///< one tour
        asWished,   ///< one tour, or several
        oneForAll,  ///< all tours that are exported
    };

    virtual ~ExportFormat() = default;

    virtual QString name() const = 0;        ///< the word of the command line: "tcx"
    virtual QString description() const = 0; ///< for people: "Training Center (TCX)"
    virtual QString ending() const = 0;      ///< of its files: "tcx"
    virtual Files files() const { return Files::asWished; }
    /// Whether a file speaks of a period as a whole: its tours are in one file then.
    virtual bool tellsOfPeriods() const { return false; }
    /// What the name of a file of all tours ends with, before its ending.
    virtual QString suffix() const { return {}; }

    /// Why there can be no file of these tours in this format, in words for people; empty if there can.
    virtual QString refusal(const Tours& tours) const;

    /// Writes a file of these tours, in this order: one at least, and only one where a file holds no more.
    /// The same bytes each time. Not for tours that are refused.
    virtual void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const = 0;
};

using ExportFormats = std::vector<std::unique_ptr<const ExportFormat>>;

/// All of them, in the order in which they are offered. `defaults` have the units of what people read, and
/// have to outlive the formats.
ExportFormats exportFormats(const Defaults& defaults);

/// None where no format has this name.
const ExportFormat* formatNamed(const ExportFormats& formats, const QString& name);

} // namespace ridelog
