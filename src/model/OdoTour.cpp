#include "model/OdoTour.h"

#include "model/TourChanges.h"
#include "model/TourLog.h"
#include "platform/UndoManager.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcTour, "ridelog.tour")

OdoTour::OdoTour() = default;
OdoTour::~OdoTour() = default;

std::shared_ptr<OdoTour> OdoTour::make()
{
    struct Tour final : OdoTour {};
    static const auto noDictionary = std::make_shared<const std::optional<TourDictionary>>();
    auto tour = std::make_shared<Tour>();
    tour->_tourDataDict = noDictionary;
    return tour;
}

QString OdoTour::untitled()
{
    return QStringLiteral("n/a");
}

QString OdoTour::shownTitle() const
{
    return _title == untitled() ? QString() : _title;
}

QString OdoTour::shownDescription() const
{
    const auto& text = _description.text();
    return text == untitled() ? QString() : text;
}

std::shared_ptr<OdoTour> OdoTour::initWithOdoDataTourDict(std::optional<TourDictionary> tourDict,
                                                          const QDateTime& now)
{
    auto tour = make();
    tour->setTourDataDict(std::move(tourDict));
    tour->setTitle(untitled());
    tour->setTourDescription(untitled());
    tour->setRemoved(false);
    tour->calculateAllValues(now);
    return tour;
}

UndoManager* OdoTour::undo() const
{
    return _undo;
}

void OdoTour::setUndo(UndoManager* undo)
{
    _undo = undo;
}

void OdoTour::setChanges(TourChanges* changes)
{
    _changes = changes;
}

void OdoTour::tellChange()
{
    if (_changes)
        Q_EMIT _changes->changed(*this);
}

template <typename Change>
void OdoTour::registerUndo(const QString& actionName, Change&& change)
{
    if (!_undo)
        return;
    _undo->registerUndo([tour = shared_from_this(), change] { change(*tour); });
    _undo->setActionName(actionName);
}

bool OdoTour::isSameTour(const OdoTour& other) const
{
    return _date == other._date && totalDistance() == other.totalDistance();
}

bool OdoTour::isEqual(const OdoTour* other) const
{
    return other == this || (other && isSameTour(*other));
}

std::size_t OdoTour::hash() const
{
    return qHash(_date);
}

QString OdoTour::description() const
{
    return CalendarDate::text(_date);
}

void OdoTour::setDate(const QDateTime& date)
{
    if (date == _date && date.timeZone() == _date.timeZone())
        return;
    registerUndo(QCoreApplication::translate("OdoTour", "date changed"),
                 [old = _date](OdoTour& tour) { tour.setDate(old); });
    _date = date;
    tellChange();
}

void OdoTour::calculateDate(const QDateTime& now)
{
    if (_date.isValid())
        return;
    static const TourDictionary none;
    const auto& dict = tourDataDict() ? *tourDataDict() : none;
    const auto dateInYear = [&](int year) {
        return CalendarDate::fromFields(year, dict.month.value_or(0), dict.day.value_or(0),
                                        dict.hour.value_or(0), dict.min.value_or(0), 0, now.timeZone());
    };
    const auto year = now.date().year();
    const auto thisYear = dateInYear(year);
    setDate(thisYear > now ? dateInYear(year - 1) : thisYear);
}

const QDateTime& OdoTour::endDate() const
{
    if (!_endDate.isValid())
        _endDate = _date.addSecs(static_cast<qint64>(_data.size()) * sampleInterval);
    return _endDate;
}

double OdoTour::duration() const
{
    return static_cast<double>(_data.size()) * sampleInterval;
}

int OdoTour::hours() const
{
    return static_cast<int>(duration() / 3600);
}

int OdoTour::minutes() const
{
    const auto seconds = static_cast<int>(duration() - hours() * 3600.0);
    return static_cast<int>(static_cast<float>(seconds) / 60.0F);
}

void OdoTour::setTitle(const QString& title)
{
    if (title == _title)
        return;
    registerUndo(QCoreApplication::translate("OdoTour", "change title"),
                 [old = _title](OdoTour& tour) { tour.setTitle(old); });
    _title = title;
    tellChange();
}

const StyledText& OdoTour::tourDescription() const
{
    qCDebug(lcTour, "[tourDescription]");
    return _description;
}

void OdoTour::setTourDescription(const StyledText& description)
{
    qCDebug(lcTour, "[setTourDescription]");
    if (description == _description)
        return;
    registerUndo(QCoreApplication::translate("OdoTour", "change description"),
                 [old = _description](OdoTour& tour) { tour.setTourDescription(old); });
    _description = description;
    tellChange();
}

void OdoTour::setTourDescription(const QString& plainText)
{
    setTourDescription(StyledText(plainText));
}

void OdoTour::setRemoved(bool removed)
{
    qCDebug(lcTour, "[setRemoved(%d)]", removed);
    registerUndo(QCoreApplication::translate("OdoTour", "tour removed"),
                 [removed](OdoTour& tour) { tour.setRemoved(!removed); });
    _removed = removed;
    tellChange();
}

void OdoTour::setTourDataDict(std::optional<TourDictionary> tourDict)
{
    _tourDataDict = std::make_shared<const std::optional<TourDictionary>>(std::move(tourDict));
}

std::span<const DataRect> OdoTour::tourData() const
{
    const auto samples =
        tourDataDict() ? std::span<const DataRect>(tourDataDict()->tourData) : std::span<const DataRect>();
    qCDebug(lcTour, "tourData %zu", samples.size());
    return samples;
}

void OdoTour::appendTourData(std::span<const DataRect> samples)
{
    auto tourDict = tourDataDict().value_or(TourDictionary());
    auto& held = tourDict.tourData;
    held.insert(held.end(), samples.begin(), samples.end());
    setTourDataDict(std::move(tourDict));
}

std::optional<QString> OdoTour::type() const
{
    return tourDataDict() ? tourDataDict()->type : std::nullopt;
}

std::optional<std::int32_t> OdoTour::distanceAtStart() const
{
    return tourDataDict() ? tourDataDict()->distanceAtStart : std::nullopt;
}

std::optional<std::int32_t> OdoTour::altitudeAtStart() const
{
    return tourDataDict() ? tourDataDict()->altitudeAtStart : std::nullopt;
}

std::optional<std::int32_t> OdoTour::pulseAtStart() const
{
    return tourDataDict() ? tourDataDict()->pulseAtStart : std::nullopt;
}

} // namespace ridelog
