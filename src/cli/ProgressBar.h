#pragma once

#include <QString>

namespace ridelog {

/// A line on standard error that is written over again and again. Where that is no terminal, nothing is
/// shown.
class ProgressBar {
public:
    ProgressBar();
    /// Clears the line.
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// Shows a text alone, while nothing can be measured yet.
    void wait(const QString& text);
    /// Shows how much of the whole is done, from 0 to 1, as a bar and in percent, with the text behind it.
    void show(double done, const QString& text);

private:
    void write(const QString& line) const;

    bool _isTerminal;
};

} // namespace ridelog
