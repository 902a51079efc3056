#pragma once

#include <functional>

namespace ridelog {

/// To be called on the main thread before others post to it.
void prepareMainThread();

/// Has the message run on the main thread, from its event loop, without waiting for it. Messages run in the
/// order in which they were posted. For any thread, also one that is still running when the program ends.
void postToMainThread(std::function<void()> message);

} // namespace ridelog
