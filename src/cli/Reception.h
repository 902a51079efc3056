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
/// the user's patience or with Ctrl-C.
class Reception : private OdoComDelegate {
public:
    struct Wish {
        QString port;
        OdoCom::StopBits stopBits = OdoCom::StopBits::one;
        std::optional<double> patience; ///< seconds without a byte that are waited for; none: for ever
    };
    explicit Reception(const Wish& wish);

    /// Runs until it ends. Empty with a whole dump, else why there is none, in words for people.
    QString run();
    /// All that has arrived.
    const QByteArray& dump() const { return _session.odoData(); }

private:
    void handleTransferStarted() override;
    bool handlesTransferProgress() const override { return true; }
    void handleTransferProgress(std::int32_t bytes) override;
    void handleTransferFinished() override;
    void handleTransferBrokenOff() override;
    void end(const QString& failure);
    void showProgress();

    Wish _wish;
    OdoCom _session;
    QEventLoop _loop;
    QTimer _patience;
    QElapsedTimer _sinceStart; ///< of the first byte
    QTimer _redraw;
    std::optional<ProgressBar> _bar;
    std::optional<QString> _failure; ///< none while it runs
};

} // namespace ridelog
