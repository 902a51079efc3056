#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace ridelog {

/// Runs the event loop until the condition holds. False if it does not in good time.
template <typename Condition>
bool eventually(Condition&& condition, std::chrono::milliseconds limit = std::chrono::seconds(20))
{
    QElapsedTimer waited;
    waited.start();
    // Conditions that no event announces are looked at again now and then.
    QTimer ticks;
    ticks.start(1);
    while (!condition()) {
        if (waited.hasExpired(limit.count()))
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace ridelog
