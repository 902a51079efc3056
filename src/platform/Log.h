#pragma once

namespace ridelog {

/// What of the log reaches standard error. Every category of the application is named "ridelog.FOLDER".
enum class LogLevel {
    none,   ///< nothing, the toolkit's own warnings included
    errors, ///< what went wrong
    trace,  ///< every step
};

/// Sets the level for the whole process. A line is the text alone, with nothing before it.
void setLogLevel(LogLevel level);

} // namespace ridelog
