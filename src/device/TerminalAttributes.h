#pragma once

#include <array>
#include <bitset>
#include <cstdint>

namespace ridelog {

/// The settings of a terminal line, as a record that can be read from a device, changed, and applied to it.
///
/// Flow control knows more kinds here than the system has bits for: those that it lacks are kept in the
/// record alone, so that a query answers what was set, and do nothing.
class TerminalAttributes {
public:
    enum class Setting : std::uint8_t {
        twoStopBits,
        parity,
        oddParity,
        echo,
        hangupOnClose,
        local,
        // The system has one bit for these two: it is set while either of them is.
        rtsInput,
        ctsOutput,
        // Unknown to the system
        dtrInput,
        dsrOutput,
        carrierOutput,
        count,
    };

    // Both answer 0, or the number of the error.

    int readFrom(int descriptor);
    /// At once, without waiting for what is still to be sent. A speed that the device cannot do is an error.
    int applyTo(int descriptor) const;

    bool test(Setting setting) const;
    void set(Setting setting, bool on);

    /// Bits per second, of the output; the input follows it when it is set.
    std::uint32_t speed() const { return _outputSpeed; }
    void setSpeed(std::uint32_t bitsPerSecond);
    /// 5 to 8 bits a character. Other numbers are set as 5.
    int dataBits() const;
    void setDataBits(int bits);

    /// Input neither waits for the end of a line nor for a number of bytes. A line made for people who type
    /// becomes one where every byte comes as it is and none is answered; any other stays what it is.
    void setInputAtOnce();

private:
    std::uint32_t _inputFlags = 0;
    std::uint32_t _outputFlags = 0;
    std::uint32_t _controlFlags = 0;
    std::uint32_t _localFlags = 0;
    std::uint8_t _discipline = 0;
    std::array<std::uint8_t, 32> _controlCharacters{};
    std::uint32_t _inputSpeed = 0;
    std::uint32_t _outputSpeed = 0;
    std::bitset<static_cast<std::size_t>(Setting::count)> _flowControl; ///< by setting, of those five
};

} // namespace ridelog
