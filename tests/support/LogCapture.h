#pragma once

#include <QStringList>

namespace ridelog {

/// Catches the log lines of a test instead of printing them, every step included. One at a time.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const QStringList& lines() const;
    /// Lines that were logged as errors.
    const QStringList& errors() const;
};

} // namespace ridelog
