#include "exchange/CsvWriter.h"

#include "exchange/RecordedValues.h"

namespace ridelog {

QByteArray& CsvWriter::start()
{
    if (!_isAtStart)
        _bytes += ',';
    _isAtStart = false;
    return _bytes;
}

void CsvWriter::cell(const QString& text)
{
    auto bytes = exchangeText(text).toUtf8();
    const bool isToBeQuoted = bytes.contains('"') || bytes.contains(',') || bytes.contains('\n') ||
                              bytes.contains('\r') || bytes.startsWith(' ') || bytes.endsWith(' ');
    if (isToBeQuoted)
        bytes = '"' + bytes.replace("\"", "\"\"") + '"';
    start() += bytes;
}

void CsvWriter::endLine()
{
    _bytes += "\r\n";
    _isAtStart = true;
}

} // namespace ridelog
