#include "bench/PeakMemory.h"

#include <fstream>
#include <malloc.h>
#include <string>

namespace ridelog {
namespace {

std::int64_t statusBytes(const std::string& field)
{
    std::ifstream status("/proc/self/status");
    std::string name;
    while (status >> name) {
        std::int64_t kibibytes = 0;
        if (name == field && status >> kibibytes)
            return kibibytes * 1024;
    }
    return 0;
}

} // namespace

PeakMemory::PeakMemory()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5"; // sets the peak back to the present level
    _atStart = statusBytes("VmRSS:");
}

std::int64_t PeakMemory::risen() const
{
    return statusBytes("VmHWM:") - _atStart;
}

} // namespace ridelog
