#include "cli/DocumentChange.h"

#include "decode/OdoData.h"

namespace ridelog {
namespace {

bool isDump(const QString& path, const QDateTime& now)
{
    return !MyDocument::isDocumentFile(path) && OdoData::initWithFile(path, now).refusal().isEmpty();
}

} // namespace

std::optional<ExitStatus> openToChange(MyDocument& document, const QString& path, MyDocument::Missing missing,
                                       const QDateTime& now)
{
    // The path of a folder, whether there is one or not.
    if (path.endsWith(u'/'))
        return refuse(path, QStringLiteral("it is a folder"));
    if (const auto error = document.open(path, missing, now))
        return refuse(path, isDump(path, now) ? QStringLiteral("a raw dump, not a document") : *error);
    if (document.isReadOnly())
        return fail(path, document.readOnlyReason());
    return std::nullopt;
}

std::optional<ExitStatus> save(MyDocument& document)
{
    if (const auto error = document.save())
        return fail(document.path(), *error);
    return std::nullopt;
}

} // namespace ridelog
