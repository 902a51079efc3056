#pragma once

#include <atomic>

namespace ridelog {

/// Ends the waits of other threads for a descriptor, once and for all.
class WakeUp {
public:
    WakeUp();
    ~WakeUp();
    WakeUp(const WakeUp&) = delete;
    WakeUp& operator=(const WakeUp&) = delete;

    /// False where the system has no descriptor left for it; `errno` tells why.
    bool isValid() const { return _descriptor >= 0; }
    /// Every wait that is under way or comes later ends at once.
    void wake();
    bool isWoken() const { return _isWoken; }
    /// Waits until one of these poll events or a hang-up comes for the descriptor. False if woken, or where
    /// the descriptor cannot be waited for.
    bool waitFor(int descriptor, short events) const;

private:
    int _descriptor;
    std::atomic<bool> _isWoken = false;
};

} // namespace ridelog
