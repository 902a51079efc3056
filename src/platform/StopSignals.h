#pragma once

#include <QSocketNotifier>

#include <csignal>
#include <functional>
#include <optional>
#include <vector>

namespace ridelog {

/// Lets a program end in its own way. While it exists Ctrl-C, SIGTERM and a terminal that goes away, which
/// may come several times, do not kill the program but are told on the event loop: whoever has something to
/// save keeps this until it is saved. What the program's caller wanted to be ignored stays ignored. Nor does
/// a pipe kill that nobody reads any more: writing to it fails. One at a time.
class StopSignals {
public:
    explicit StopSignals(std::function<void()> onStop);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

private:
    struct Disposition {
        int signal;
        struct sigaction before;
    };
    void handle(int signal, void (*handler)(int));

    int _descriptor; ///< readable when a signal has come
    std::optional<QSocketNotifier> _notifier;
    std::vector<Disposition> _dispositions;
};

} // namespace ridelog
