#pragma once

#include "cli/Command.h"
#include "cli/TourSource.h"
#include "exchange/TourJson.h"

#include <optional>

namespace ridelog {

/// JSON of the commands that list tours: what of it the words ask for, and its printing.
class TourListJson {
public:
    /// --json, --series and --raw.
    static QList<QCommandLineOption> options();
    /// None where the words ask for what only JSON can show, but not for JSON.
    static std::optional<TourListJson> fromOptions(const QCommandLineParser& options);
    /// What to say then.
    static QString fault() { return QStringLiteral("--series and --raw go with --json"); }

    bool isWanted() const { return _wanted; }
    /// Prints the general data of the source and these tours, numbered from 1.
    ExitStatus print(const TourSource& source, const Tours& tours) const;

private:
    bool _wanted = false;
    TourJsonParts _parts;
};

} // namespace ridelog
