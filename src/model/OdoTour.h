#pragma once

#include "model/CalculatedValues.h"
#include "model/ChartProviders.h"
#include "model/SeriesEntry.h"
#include "model/StoredTour.h"
#include "model/TourDictionary.h"
#include "platform/CalendarDate.h"
#include "platform/StyledText.h"

#include <QDateTime>
#include <QPointer>
#include <QString>

#include <memory>
#include <span>
#include <vector>

namespace ridelog {

class TourChanges;
class TypedStreamReader;
class TypedStreamWriter;
class UndoManager;

/// One recorded tour: what the device recorded, kept unchanged, and what the rider adds to it. The series and
/// the first summary values are computed when the tour is made, the other summary values on first request.
/// Tours are shared by whoever shows or edits them, all on the main thread.
class OdoTour : public std::enable_shared_from_this<OdoTour>,
                public SimpleChart,
                public NamedXYChart,
                public NamedXYChartArray {
public:
    ~OdoTour() override;
    OdoTour(const OdoTour&) = delete;
    OdoTour& operator=(const OdoTour&) = delete;

    /// A tour as the decoder hands it over, titled "n/a". Without a dictionary it has one entry of zeros.
    /// The device records no year: `now`, with its time zone, decides which one (see calculateDate).
    static std::shared_ptr<OdoTour> initWithOdoDataTourDict(std::optional<TourDictionary> tourDict,
                                                            const QDateTime& now = CalendarDate::now());

    /// Reads a tour's stored form, one object of the archive. None for something that is no tour; that, and a
    /// form of a version that is not known, refuses the archive (reader.failed()). A form without a date gets
    /// its year from `now`.
    static std::shared_ptr<OdoTour> initWithCoder(TypedStreamReader& reader,
                                                  const QDateTime& now = CalendarDate::now());
    /// Writes the stored form, as one object.
    void encodeWithCoder(TypedStreamWriter& writer) const;
    /// What it writes, for later or for another thread.
    StoredTour stored() const;

    // Identity

    /// Same start instant and same total distance; title, description and samples play no part.
    bool isSameTour(const OdoTour& other) const;
    bool isEqual(const OdoTour* other) const;
    std::size_t hash() const;
    /// The text form of the start date, the same in every run.
    QString description() const;

    // Dates and durations

    const QDateTime& date() const { return _date; }
    void setDate(const QDateTime& date);
    /// Start date plus 20 s for every series entry; the first answer stays, whatever the start becomes later.
    const QDateTime& endDate() const;
    /// Seconds: 20 for every series entry, the start entry included.
    double duration() const;
    int hours() const;   ///< whole hours of the duration
    int minutes() const; ///< whole minutes beyond the hours

    // What the rider edits. With an undo manager each change registers the way back and names the action; a
    // value that is the one already held changes and registers nothing, but setRemoved always registers.

    UndoManager* undo() const;
    void setUndo(UndoManager* undo);
    /// Where each edit is told; undoing one is an edit as well.
    void setChanges(TourChanges* changes);

    /// Title and description of a tour that has none.
    static QString untitled();
    // As people are shown them: empty for a tour that has none.
    QString shownTitle() const;
    QString shownDescription() const; ///< without its styles
    const QString& title() const { return _title; }
    void setTitle(const QString& title);
    const StyledText& tourDescription() const;
    void setTourDescription(const StyledText& description);
    void setTourDescription(const QString& plainText);
    bool removed() const { return _removed; }
    void setRemoved(bool removed);

    // What the device recorded

    const std::optional<TourDictionary>& tourDataDict() const { return *_tourDataDict; }
    void setTourDataDict(std::optional<TourDictionary> tourDict);
    std::span<const DataRect> tourData() const;
    /// Adds samples behind those held. They enter the series when the tour is next made from its stored form.
    void appendTourData(std::span<const DataRect> samples);
    bool dataIsBigEndian() const { return _dataIsBigEndian; }
    void setDataIsBigEndian(bool bigEndian) { _dataIsBigEndian = bigEndian; }

    std::optional<QString> type() const;
    std::optional<std::int32_t> distanceAtStart() const;                 ///< kilometres
    std::optional<std::int32_t> altitudeAtStart() const;                 ///< metres
    std::optional<std::int32_t> pulseAtStart() const;                    ///< beats per minute
    std::int32_t altitudeAtEnd() const { return _data.back().altitude; } ///< metres
    /// Ignored; there so that the value can be shown in an editable field.
    void setAltitudeAtEnd(std::int32_t) {}

    // Series

    /// The start entry, then one entry per sample: never empty.
    const std::vector<SeriesEntry>& data() const { return _data; }

    /// Power in watts that moves rider and bicycle over `distanceDiff` metres of road with a rise of
    /// `altitudeDiff` metres in `timeDiff` seconds, at `altitude` metres above the sea, `temperature` °C and
    /// `cad` revolutions per minute. Weight, rolling and air resistance; 0 downhill and at rest.
    static int calcPowerFrom(int altitude, int temperature, int cad, double timeDiff, double distanceDiff,
                             double altitudeDiff);

    /// Grade in per cent of a rise y over a run x; 0 over no run.
    static float calcClimbingPercentageDeltaX(float deltaX, float deltaY);

    // Summary values. Units stand with CalculatedValues; an average over nothing is 0.

    float totalDistance() const { return _data.back().distance; } ///< kilometres
    float maxPower() const;                                       ///< watts
    double avgPower() const; ///< watts, mean over all entries, the start entry included

    float avgPulse() const { return _calculatedValues.averagePulse.value_or(0); }
    float avgSpeed() const { return _calculatedValues.averageSpeed.value_or(0); }
    float avgMovingSpeed() const { return _calculatedValues.averageMovingSpeed.value_or(0); }
    float maxPulse() const { return _calculatedValues.maxPulse.value_or(0); }
    float maxSpeed() const { return _calculatedValues.maxSpeed.value_or(0); }
    /// None for a tour without a dictionary.
    std::optional<float> avgTemperature() const { return _calculatedValues.averageTemp; }
    std::optional<float> maxTemperature() const { return _calculatedValues.maxTemp; }
    std::optional<float> minTemperature() const { return _calculatedValues.minTemp; }

    std::int32_t elevationGain() const; ///< metres of the climbs of more than 3 m
    std::int32_t elevationLoss() const; ///< metres of the descents of more than 3 m; not kept in the cache
    std::int32_t climbingCount() const;
    std::int32_t descendingCount() const;
    float maxClimbingDistance() const;
    float avgClimbingDistance() const;
    float maxDescendingDistance() const;
    float maxClimbingAngle() const;
    float maxDecendingAngle() const;
    float maxClimbingPercentage() const;
    float avgClimbingPercentage() const;
    float maxDecendingPercentage() const;
    float avgDecendingPercentage() const;

    /// All summary values, those not asked for yet computed now.
    const CalculatedValues& calculatedValues() const;

    // Its series for charts. The x name is one for all who show the tour, "distance" until it is set.

    /// A field of an entry; 0 for a name that is no field and beyond the series.
    float valueAt(unsigned index, QStringView forName) const;
    float yValueFor(unsigned index) const override;
    unsigned countValues() const override;
    float maxYValue() const override;
    void setNameForXValue(const QString& name) override;
    void setNameForYValue(const QString& name) override;
    float xValueAt(unsigned index) const override;
    float yValueAt(unsigned index) const override;
    float yValueAt(unsigned index, QStringView forName) const override;
    unsigned countXValues() const override;
    float maxX() const override;
    float maxY() const override;
    float maxYForName(QStringView name) const override;
    float minYForName(QStringView name) const override;
    std::optional<QStringList> namesForYValue() const override;
    std::vector<float> xValues() const override;
    std::vector<float> yValuesForName(QStringView name) const override;

private:
    OdoTour();
    static std::shared_ptr<OdoTour> make();

    template <typename Change>
    void registerUndo(const QString& actionName, Change&& change);
    void tellChange();
    void _convertDataFromBigEndian(std::optional<TourDictionary>& tourDict);

    /// Builds the series and the first eight summary values in one pass over the samples.
    void calculateAllValues(const QDateTime& now);
    void calculateValuesOfEmptyTour(const QDateTime& now);
    /// Gives a tour without a date the last occurrence, not after `now`, of its month, day and time of day,
    /// in the time zone of `now`.
    void calculateDate(const QDateTime& now);

    // The document's; tours live in its undo steps, so they hold neither.
    QPointer<UndoManager> _undo;
    QPointer<TourChanges> _changes;
    QDateTime _date; // beside them: a merge asks thousands of tours for these
    /// Replaced, never changed: stored forms share it. Never null.
    std::shared_ptr<const std::optional<TourDictionary>> _tourDataDict;
    QString _title;
    StyledText _description;
    bool _removed = false;
    bool _dataIsBigEndian = false;
    std::vector<SeriesEntry> _data;
    QString _nameForXValue = SeriesNames::distance;
    QString _nameForYValue;
    mutable CalculatedValues _calculatedValues;
    mutable QDateTime _endDate;
};

/// Tours in an order of their own. They are shared with whoever shows or edits them.
using Tours = std::vector<std::shared_ptr<OdoTour>>;

inline bool operator==(const OdoTour& left, const OdoTour& right)
{
    return left.isEqual(&right);
}

inline std::size_t qHash(const OdoTour& tour, std::size_t seed = 0)
{
    return tour.hash() ^ seed;
}

} // namespace ridelog
