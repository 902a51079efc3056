#pragma once

#include "cli/ProgressBar.h"
#include "device/OdoCom.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QString>
#include <QTimer>

#include <optional>

namespace ridelog {

/// Waits at the terminal for one raw dump: shows the progress, and ends with the dump, with the line, with
/// the user's patience or when it is stopped.
class Reception : private OdoComDelegate {
public:
    struct Request {
        QString port;
        OdoCom::StopBits stopBits = OdoCom::StopBits::one;
        std::optional<double> patience; ///< seconds without a byte that are waited for; none: for ever
    };
    explicit Reception(const Request& request);

    /// Runs until it ends. Empty with a whole dump, else why there is none, in words for people.
    QString run();
    /// Also before it runs.
    void stop() { end(End::stopped); }
    /// All that has arrived.
    const QByteArray& dump() const { return _session.odoData(); }

private:
    enum class End { finished, brokenOff, silent, stopped };

    void handleTransferStarted() override;
    bool handlesTransferProgress() const override { return true; }
    void handleTransferProgress(std::int32_t bytes) override;
    void handleTransferFinished() override { end(End::finished); }
    void handleTransferBrokenOff() override { end(End::brokenOff); }
    void end(End how);
    void endIfSilent();
    QString reason() const;
    void showProgress();

    const Request _request;
    OdoCom _session;
    QEventLoop _loop;
    QTimer _patience;
    QTimer _redraw;
    QElapsedTimer _sinceStart; ///< of the first byte
    std::optional<ProgressBar> _bar;
    std::optional<End> _end; ///< none while it runs
};

} // namespace ridelog
