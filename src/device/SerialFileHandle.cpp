#include "device/SerialFileHandle.h"

#include <unistd.h>
#include <utility>

namespace ridelog {

void SerialFileHandle::close()
{
    // Not tried again when interrupted: the descriptor is gone all the same.
    if (const int descriptor = std::exchange(_descriptor, -1); descriptor >= 0)
        ::close(descriptor);
}

} // namespace ridelog
