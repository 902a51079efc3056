#pragma once

#include <QString>
#include <QStringList>

namespace ridelog {

class OdoTour;

/// What a rider types to find tours: words with blanks between them, each of which has to occur somewhere in
/// the title, the type, the description or the date of a tour, in whatever case. A date is looked for as the
/// user's locale writes it, short or with the name of the month, and as "2007-03-10 08:00".
class TourSearch {
public:
    explicit TourSearch(const QString& text);

    /// Nothing was typed.
    bool findsAll() const { return _words.isEmpty(); }
    bool finds(const OdoTour& tour) const;

private:
    QStringList _words;
};

} // namespace ridelog
