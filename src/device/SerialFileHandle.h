#pragma once

namespace ridelog {

/// An open descriptor, which is closed once: with close, or when the last one lets go of the handle.
class SerialFileHandle {
public:
    explicit SerialFileHandle(int descriptor) : _descriptor(descriptor) {}
    ~SerialFileHandle() { close(); }
    SerialFileHandle(const SerialFileHandle&) = delete;
    SerialFileHandle& operator=(const SerialFileHandle&) = delete;

    /// -1 once closed.
    int descriptor() const { return _descriptor; }
    void close();

private:
    int _descriptor;
};

} // namespace ridelog
