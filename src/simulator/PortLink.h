#pragma once

#include <QString>

#include <optional>

namespace ridelog {

/// A lasting name for a port whose own name changes from run to run: a symbolic link that goes with this,
/// unless somebody else has taken the name over.
class PortLink {
public:
    explicit PortLink(QString path) : _path(std::move(path)) {}
    ~PortLink();
    PortLink(const PortLink&) = delete;
    PortLink& operator=(const PortLink&) = delete;

    const QString& path() const { return _path; }
    /// Leads to this port from now on. Takes the place only of a link that a run has left behind: one to a
    /// pseudo-terminal, or to nowhere. None, or why not.
    std::optional<QString> pointTo(const QString& port);

private:
    QString _path;
    QString _port; ///< where it leads to; empty as long as it does not exist
};

} // namespace ridelog
