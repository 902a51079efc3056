#include "exchange/TourExport.h"

#include "library/FileOfTours.h"
#include "platform/FileName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>
#include <system_error>

namespace ridelog {
namespace {

/// "2007-03-10_08-00_Bike"
QString nameOf(const OdoTour& tour)
{
    auto name = tour.date().toString(QStringLiteral("yyyy-MM-dd_HH-mm"));
    if (const auto type = safeFileName(tour.type().value_or(QString()), u'-'); !type.isEmpty())
        name += u'_' + type;
    return name;
}

/// "2007", "2007-03", "2007-W11"
QString nameOf(const ChosenPeriod& chosen)
{
    switch (chosen.period) {
    case Period::all:
        break;
    case Period::year:
        return chosen.day.toString(QStringLiteral("yyyy"));
    case Period::month:
        return chosen.day.toString(QStringLiteral("yyyy-MM"));
    case Period::week:
        return chosen.day.toString(QStringLiteral("yyyy-'W'")) +
               QStringLiteral("%1").arg(chosen.weekRule.weekOfYear(chosen.day), 2, 10, QLatin1Char('0'));
    }
    return {};
}

QString nameOfAll(const ExportSource& source, const ExportFormat& format)
{
    auto name = safeFileName(source.name);
    if (name.isEmpty())
        name = QStringLiteral("Tours");
    if (const auto period = source.period ? nameOf(*source.period) : QString(); !period.isEmpty())
        name += u'_' + period;
    return name + format.suffix();
}

/// Names that no two files have, not even where upper and lower case are the same.
class UniqueNames {
public:
    QString take(const QString& name)
    {
        auto unique = name;
        for (int number = 2; _taken.contains(unique.toCaseFolded()); ++number)
            unique = name + u'_' + QString::number(number);
        _taken.insert(unique.toCaseFolded());
        return unique;
    }

private:
    QSet<QString> _taken;
};

/// None, or why there is no such folder.
std::optional<QString> makeFolder(const QString& path)
{
    if (const QFileInfo info(path); info.isSymLink() && !info.exists())
        return QCoreApplication::translate("TourExport", "it is a link that leads nowhere");
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    return error ? std::optional(QString::fromLocal8Bit(error.message().c_str())) : std::nullopt;
}

/// None, or why the file is not there now. One that is not wanted any more is not. `written` becomes the
/// file whose folder is still to be forced to the disk.
std::optional<QString> writeFile(const ExportFile& file, const ByteSource& content,
                                 TourExport::Existing existing, const bool& isWanted,
                                 std::unique_ptr<WholeFile>& written)
{
    const bool replaces = file.isThere && existing == TourExport::Existing::replace;
    if (file.isThere && !replaces)
        return QCoreApplication::translate("TourExport", "it is there already");
    if (replaces && holdsTours(file.path))
        return QCoreApplication::translate("TourExport", "it holds tours, which an export would replace");
    auto whole = std::make_unique<WholeFile>(file.path);
    if (auto error = whole->write(content, [&isWanted] { return isWanted; }))
        return error;
    if (!isWanted)
        return std::nullopt;
    if (auto error = replaces ? whole->putInPlace() : whole->putInFreePlace())
        return error;
    written = std::move(whole);
    return std::nullopt;
}

} // namespace

TourExport::TourExport(const ExportFormat& format, ExportSource source, const QString& folder,
                       std::size_t tours)
    : _format(format), _source(std::move(source)), _folder(folder), _countTours(tours)
{
}

TourExport::TourExport(const ExportFormat& format, ExportSource source, const Tours& tours,
                       const QString& folder, Layout layout)
    : TourExport(format, std::move(source), folder, tours.size())
{
    const QDir in(folder);
    const auto pathOf = [&](const QString& name) { return in.filePath(name + u'.' + format.ending()); };
    const bool isOfPeriod = _source.period && format.tellsOfPeriods();
    const bool isOneFile = layout == Layout::oneFile || isOfPeriod || !mayHoldOneTour(format);
    if (isOneFile && mayHoldSeveralTours(format)) {
        if (!tours.empty())
            addFile(pathOf(nameOfAll(_source, format)), tours);
        return;
    }
    UniqueNames names;
    for (const auto& tour : tours)
        addFile(pathOf(names.take(nameOf(*tour))), {tour});
}

TourExport TourExport::toFile(const ExportFormat& format, ExportSource source, const Tours& tours,
                              const QString& path)
{
    TourExport whole(format, std::move(source), QFileInfo(path).path(), tours.size());
    whole.addFile(path, tours);
    return whole;
}

void TourExport::addFile(const QString& path, Tours tours)
{
    const QFileInfo info(path);
    _files.push_back({.path = path, .tours = std::move(tours), .isThere = info.exists() || info.isSymLink()});
}

std::vector<ExportFile> TourExport::existingFiles() const
{
    std::vector<ExportFile> existing;
    std::ranges::copy_if(_files, std::back_inserter(existing), &ExportFile::isThere);
    return existing;
}

TourExport::Outcome TourExport::write(Existing existing, const GoesOn& goesOn) const
{
    Outcome outcome;
    if (const auto error = makeFolder(_folder)) {
        outcome.failures.push_back({_folder, *error});
        return outcome;
    }
    std::size_t before = 0;
    bool isWanted = true;
    std::unique_ptr<WholeFile> last;
    for (const auto& file : _files) {
        const auto content = [&](const ByteSink& bytes) {
            auto done = before;
            _format.write(file.tours, _source, ExportSink(bytes, [&] {
                              isWanted = goesOn(++done);
                              return isWanted;
                          }));
        };
        const auto refusal = _format.refusal(file.tours);
        const auto error =
            refusal.isEmpty() ? writeFile(file, content, existing, isWanted, last) : std::optional(refusal);
        before += file.tours.size();
        if (error) {
            outcome.failures.push_back({file.path, *error, !refusal.isEmpty()});
            isWanted = isWanted && goesOn(before);
        } else if (isWanted) {
            ++outcome.written;
        }
        if (!isWanted) {
            outcome.wasStopped = true;
            break;
        }
    }
    // Once for all: thousands of files would take as many waits for the disk.
    if (const auto error = last ? last->forceFolder() : std::nullopt)
        outcome.failures.push_back({_folder, *error});
    return outcome;
}

bool mayHoldOneTour(const ExportFormat& format)
{
    return format.files() != ExportFormat::Files::oneForAll;
}

bool mayHoldSeveralTours(const ExportFormat& format)
{
    return format.files() != ExportFormat::Files::onePerTour;
}

QHash<const OdoTour*, int> numbersOf(const Tours& listed)
{
    QHash<const OdoTour*, int> numbers;
    for (const auto& tour : listed)
        numbers.insert(tour.get(), static_cast<int>(numbers.size()) + 1);
    return numbers;
}

} // namespace ridelog
