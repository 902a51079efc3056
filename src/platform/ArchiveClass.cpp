#include "platform/ArchiveClass.h"

namespace ridelog {

const ArchiveClass* ArchiveClass::find(QByteArrayView ancestor) const
{
    const auto* found = this;
    while (found && found->name != ancestor)
        found = found->superclass;
    return found;
}

std::optional<int> ArchiveClass::versionOf(QByteArrayView ancestor) const
{
    const auto* found = find(ancestor);
    return found ? std::optional(found->version) : std::nullopt;
}

bool ArchiveClass::operator==(const ArchiveClass& other) const
{
    const auto* left = this;
    const auto* right = &other;
    while (left && right && left != right && left->name == right->name && left->version == right->version) {
        left = left->superclass;
        right = right->superclass;
    }
    return left == right;
}

} // namespace ridelog
