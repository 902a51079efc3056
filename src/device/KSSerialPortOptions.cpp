// The port's line settings: what takes more than a bit, the dictionary, and the way to the device.

#include "device/DeviceLog.h"
#include "device/KSSerialPort.h"

#include <algorithm>
#include <cstdlib>

namespace ridelog {
namespace {

using namespace SerialOptionKeys;

const QString odd = QStringLiteral("Odd");
const QString even = QStringLiteral("Even");
const QString rts = QStringLiteral("RTS");
const QString dtr = QStringLiteral("DTR");
const QString cts = QStringLiteral("CTS");
const QString dsr = QStringLiteral("DSR");
const QString carrier = QStringLiteral("CAR");
const QString yes = QStringLiteral("YES");

/// The number that the text begins with, 0 for none.
int leadingNumber(const QString& text)
{
    constexpr long largest = 1'000'000'000;
    const long number = std::strtol(text.toLatin1().constData(), nullptr, 10);
    return static_cast<int>(std::clamp(number, -largest, largest));
}

} // namespace

void KSSerialPort::setSpeed(int bitsPerSecond)
{
    _options.setSpeed(static_cast<std::uint32_t>(std::max(bitsPerSecond, 0)));
}

void KSSerialPort::setParityEven()
{
    _options.set(Setting::parity, true);
    _options.set(Setting::oddParity, false);
}

void KSSerialPort::setParityOdd()
{
    _options.set(Setting::parity, true);
    _options.set(Setting::oddParity, true);
}

bool KSSerialPort::commitChanges()
{
    if (const int error = _options.applyTo(_fileDescriptor)) {
        _lastError = error;
        return false;
    }
    buildOptionsDictionary();
    return true;
}

SerialOptions KSSerialPort::getOptions()
{
    if (!_optionsDictionary.contains(serviceName))
        buildOptionsDictionary();
    return _optionsDictionary;
}

void KSSerialPort::setOptions(const SerialOptions& options)
{
    const auto givenName = options.value(serviceName);
    if (givenName != name()) {
        qCWarning(lcDevice, "Error setting options for port %s (wrong port name: %s).\n",
                  qUtf8Printable(name()), qUtf8Printable(givenName));
        return;
    }
    auto& merged = _optionsDictionary;
    merged.insert(options);
    if (merged.contains(speed))
        setSpeed(leadingNumber(merged[speed]));
    if (merged.contains(dataBits))
        setDataBits(leadingNumber(merged[dataBits]));
    if (!merged.contains(parity))
        setParityNone();
    else if (merged[parity] == odd)
        setParityOdd();
    else
        setParityEven();
    setStopBits2(leadingNumber(merged.value(stopBits)) == 2);
    const auto input = merged.value(inputFlowControl);
    setRTSInputFlowControl(input == rts);
    setDTRInputFlowControl(input == dtr);
    const auto output = merged.value(outputFlowControl);
    setCTSOutputFlowControl(output == cts);
    setDSROutputFlowControl(output == dsr);
    setCAROutputFlowControl(output == carrier);
    setEchoEnabled(merged.contains(echo));
    commitChanges();
}

/// Where several kinds of flow control are on, the last one in the order of the queries counts.
void KSSerialPort::buildOptionsDictionary()
{
    auto& options = _optionsDictionary;
    options.clear();
    options[serviceName] = name();
    options[speed] = QString::number(getSpeed());
    options[dataBits] = QString::number(getDataBits());
    if (testParity())
        options[parity] = testParityOdd() ? odd : even;
    options[stopBits] = QString::number(getStopBits());
    if (testRTSInputFlowControl())
        options[inputFlowControl] = rts;
    if (testDTRInputFlowControl())
        options[inputFlowControl] = dtr;
    if (testCTSOutputFlowControl())
        options[outputFlowControl] = cts;
    if (testDSROutputFlowControl())
        options[outputFlowControl] = dsr;
    if (testCAROutputFlowControl())
        options[outputFlowControl] = carrier;
    if (testEchoEnabled())
        options[echo] = yes;
}

} // namespace ridelog
