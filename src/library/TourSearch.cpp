#include "library/TourSearch.h"

#include "model/OdoTour.h"

#include <QLocale>

#include <algorithm>

namespace ridelog {
namespace {

QString datesOf(const OdoTour& tour)
{
    const QLocale locale;
    const auto& date = tour.date();
    return date.toString(QStringLiteral("yyyy-MM-dd HH:mm ")) + locale.toString(date, QLocale::ShortFormat) +
           u' ' + locale.toString(date.date(), QLocale::LongFormat);
}

} // namespace

TourSearch::TourSearch(const QString& text) : _words(text.simplified().split(u' ', Qt::SkipEmptyParts))
{
    // A text that was pasted may have thousands of words, mostly the same.
    _words.removeDuplicates();
}

bool TourSearch::finds(const OdoTour& tour) const
{
    if (findsAll())
        return true;
    // Dates are written out only for words that stand nowhere else.
    QString dates;
    return std::ranges::all_of(_words, [&](const QString& word) {
        const auto isIn = [&word](const QString& text) { return text.contains(word, Qt::CaseInsensitive); };
        if (isIn(tour.shownTitle()) || isIn(tour.type().value_or(QString())) || isIn(tour.shownDescription()))
            return true;
        if (dates.isEmpty())
            dates = datesOf(tour);
        return isIn(dates);
    });
}

} // namespace ridelog
