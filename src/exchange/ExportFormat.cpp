#include "exchange/ExportFormat.h"

#include "exchange/FitFormat.h"
#include "exchange/HtmlFormat.h"
#include "exchange/JsonFormat.h"
#include "exchange/SamplesCsvFormat.h"
#include "exchange/SummaryCsvFormat.h"
#include "exchange/TcxFormat.h"

#include <algorithm>

namespace ridelog {

QString ExportFormat::refusal(const Tours&) const
{
    return {};
}

ExportFormats exportFormats(const Defaults& defaults)
{
    ExportFormats formats;
    formats.push_back(std::make_unique<TcxFormat>());
    formats.push_back(std::make_unique<FitFormat>());
    formats.push_back(std::make_unique<SamplesCsvFormat>());
    formats.push_back(std::make_unique<SummaryCsvFormat>());
    formats.push_back(std::make_unique<JsonFormat>());
    formats.push_back(std::make_unique<HtmlFormat>(defaults));
    return formats;
}

const ExportFormat* formatNamed(const ExportFormats& formats, const QString& name)
{
    const auto found = std::ranges::find(formats, name, [](const auto& format) { return format->name(); });
    return found == formats.end() ? nullptr : found->get();
}

} // namespace ridelog
