#include "cli/ProgressBar.h"

#include "cli/StandardError.h"
#include "cli/Wording.h"

#include <QByteArray>

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace ridelog {

ProgressBar::ProgressBar() : _isTerminal(isatty(STDERR_FILENO) == 1) {}

ProgressBar::~ProgressBar()
{
    write(QString());
}

void ProgressBar::wait(const QString& text)
{
    write(text);
}

void ProgressBar::show(double done, const QString& text)
{
    constexpr int width = 24;
    const auto part = std::clamp(done, 0.0, 1.0);
    const auto full = static_cast<int>(part * width);
    write(QStringLiteral("[%1%2] %3 %  %4")
              .arg(QString(full, u'#'), QString(width - full, u'.'))
              .arg(static_cast<int>(part * 100))
              .arg(text));
}

void ProgressBar::write(const QString& line) const
{
    if (!_isTerminal)
        return;
    constexpr auto toLineStart = "\r";
    constexpr auto clearToEnd = "\x1b[K";
    winsize size{};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    // A line that reaches the last column would be wrapped.
    const int room = (isKnown ? size.ws_col : 80) - 1;
    const auto bytes = toLineStart + elided(printable(line), room).toLocal8Bit() + clearToEnd;
    tellIfRead(bytes);
}

} // namespace ridelog
