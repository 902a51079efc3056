#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace ridelog {

/// The class of an archived object, as the program that wrote it had it. Chains are at most 64 classes long.
struct ArchiveClass {
    QByteArray name;                          ///< bytes of a file: not to be trusted to be text
    int version = 0;                          ///< of the class's stored form
    const ArchiveClass* superclass = nullptr; ///< none for a root class

    /// Whether this is the named class or derives from it.
    bool isKindOf(QByteArrayView ancestor) const { return find(ancestor) != nullptr; }
    /// The version of the named class in the chain; none if it is not there.
    std::optional<int> versionOf(QByteArrayView ancestor) const;
    /// Same names and versions all the way up.
    bool operator==(const ArchiveClass& other) const;

private:
    const ArchiveClass* find(QByteArrayView ancestor) const;
};

} // namespace ridelog
