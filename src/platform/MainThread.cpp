#include "platform/MainThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <deque>
#include <mutex>
#include <utility>

namespace ridelog {
namespace {

/// Takes an event for every message, so that other events have their turn in between. The messages themselves
/// are handed over under a lock of our own, which tools that look for races can see.
class Mailbox : public QObject {
public:
    void post(std::function<void()> message)
    {
        const std::lock_guard lock(_lock);
        _messages.push_back(std::move(message));
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

private:
    void customEvent(QEvent*) override { takeOne()(); }
    std::function<void()> takeOne()
    {
        const std::lock_guard lock(_lock);
        auto message = std::move(_messages.front());
        _messages.pop_front();
        return message;
    }

    std::mutex _lock;
    std::deque<std::function<void()>> _messages;
};

/// Lives in the main thread and never goes: a thread may post at any time, even while the program ends.
Mailbox& mailbox()
{
    static auto* const box = new Mailbox;
    return *box;
}

} // namespace

void prepareMainThread()
{
    mailbox();
}

void postToMainThread(std::function<void()> message)
{
    mailbox().post(std::move(message));
}

} // namespace ridelog
