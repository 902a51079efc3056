#include "decode/OdoData.h"

#include "decode/DecodeLog.h"
#include "platform/Languages.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcDecode, "ridelog.decode")

namespace {

using namespace DumpLayout;

/// Room for the tours of a usual memory.
constexpr std::size_t usualTours = 32;

/// A number with its thousands set apart, for messages.
QString grouped(qint64 number)
{
    return messageLocale().toString(number);
}

QString textForm(const GeneralData& generalData)
{
    QString text;
    for (const auto& field : generalDataFields) {
        const auto name = field.name.toString();
        text += QStringLiteral("    \"%1\" = %2;\n").arg(name).arg(generalData.value(name));
    }
    return QStringLiteral("{\n%1}").arg(text);
}

} // namespace

OdoData::OdoData(QByteArray data, QDateTime now) : _data(std::move(data)), _now(std::move(now)) {}

OdoData OdoData::initWithData(const QByteArray& data, const QDateTime& now)
{
    OdoData decoder(data, now);
    decoder.parseData();
    return decoder;
}

OdoData OdoData::initWithFile(const QString& path, const QDateTime& now)
{
    OdoData decoder({}, now);
    if (!decoder.loadDataFromFile(path))
        qCWarning(lcDecode, "Could not load file: %s", qUtf8Printable(path));
    decoder.parseData();
    return decoder;
}

bool OdoData::loadDataFromFile(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        _refusal = tr("it is a folder");
        return false;
    }
    // Opening a pipe or a device could wait for ever.
    if (info.exists() && !info.isFile()) {
        _refusal = tr("it is not a regular file");
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        _refusal = file.errorString();
        return false;
    }
    if (file.size() > largestFile) {
        _refusal = tr("not a raw dump: %1 bytes, a dump has no more than %2")
                       .arg(grouped(file.size()), grouped(largestFile));
        return false;
    }
    _data = file.read(largestFile);
    if (file.error() != QFileDevice::NoError) {
        _refusal = file.errorString();
        _data.clear();
        return false;
    }
    return true;
}

bool OdoData::parseData()
{
    if (_data.size() < dumpSize) {
        qCWarning(lcDecode, "[parseData] wrong Datasize");
        if (_refusal.isEmpty())
            _refusal = tr("not a raw dump: %1 bytes, at least %2 are needed")
                           .arg(grouped(_data.size()), grouped(dumpSize));
        return false;
    }
    if (!checkForValidSignature()) {
        _refusal = tr("not a raw dump: it does not begin with \"%1\"").arg(QLatin1String(signature));
        return false;
    }
    if (!recordAreaIsText()) {
        _refusal = tr("not a raw dump: no record and no hexadecimal digits at byte %1")
                       .arg(grouped(recordAreaOffset));
        return false;
    }
    parseGeneralData();
    qCDebug(lcDecode, "General Data: %s", qUtf8Printable(textForm(_generalDataDict)));

    _toursArray.reserve(usualTours);
    _bufPos = recordAreaOffset;
    scanRecords();
    finishWrappedTour();
    qCDebug(lcDecode, "localCounter %d, arrayCounter: %zu", _scan.localCounter, _toursArray.size());
    _scan = {}; // gives its memory back
    return true;
}

bool OdoData::checkForValidSignature() const
{
    return _data.startsWith(signature);
}

void OdoData::parseGeneralData()
{
    qCDebug(lcDecode, "parseGeneralData");
    for (const auto& field : generalDataFields) {
        switch (field.kind) {
        case FieldKind::hexWord:
            addNSNumberUsingInt(hexWord(field.offset), field.name);
            break;
        case FieldKind::address:
            addNSNumberUsingInt(offsetOfAddress(hexWord(field.offset)), field.name);
            break;
        case FieldKind::decimalPair:
            addNSNumberUsingInt(decimalPair(field.offset), field.name);
            break;
        case FieldKind::decimalQuad:
            addNSNumberUsingInt(decimalQuad(field.offset), field.name);
            break;
        }
    }
}

void OdoData::addNSNumberUsingInt(std::int32_t number, QStringView withName)
{
    _generalDataDict.insert(withName.toString(), number);
}

bool OdoData::recordAreaIsText() const
{
    // Odd characters among records are the device's business. But a memory whose first group is neither a
    // record nor erased nor anything else in hexadecimal is some other file, and must not pass for one
    // without tours.
    const auto typeCode = recordAreaOffset + RecordLayout::typeCode;
    if (typeCodeIs("AA", typeCode) || typeCodeIs("BB", typeCode) || typeCodeIs("CC", typeCode) ||
        typeCodeIs("DD", typeCode))
        return true;
    return std::all_of(at(recordAreaOffset), at(recordAreaOffset + groupSize - 1), [](char character) {
        return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F');
    });
}

} // namespace ridelog
