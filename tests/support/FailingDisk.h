#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace ridelog {

/// A disk that fails as it is told. While one lives, the system calls by which our own code changes files in
/// `folder` go through it; those of Qt do not. It forces nothing to the real disk, which keeps thousands of
/// saves quick. One at a time.
class FailingDisk {
public:
    enum class Call { open, setOwner, setMode, write, sync, close, link, rename, syncFolder };
    struct FileSystem {
        bool unnamedFiles = true;
        bool hardLinks = true;
        bool freeNames = true; ///< a renaming that replaces nothing
    };

    FailingDisk(const QString& folder, FileSystem knows);
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    /// Of the bytes to come only so many can be written.
    void failBeyond(qint64 room, int error) { plan({.room = room, .error = error}); }
    /// One of the calls to come fails; 0 is the next.
    void failCall(qint64 number, int error) { plan({.call = number, .error = error}); }
    /// Runs once, at the next call of this kind.
    void at(Call call, std::function<void()> event) { _event = {call, std::move(event)}; }
    /// No write takes more bytes than that.
    void cutWrites(qint64 most) { _mostBytes = most; }
    void work() { plan({}); }

    /// The call that failed first as it was told, if any did.
    std::optional<Call> failed() const { return _failed; }
    /// All calls so far, in order.
    const std::vector<Call>& calls() const { return _calls; }

    // For the system calls

    /// The disk that the file lies on, if it is this one.
    static FailingDisk* of(const char* path);
    static FailingDisk* of(int descriptor);
    FileSystem knows() const { return _knows; }
    /// True, with errno set, if this call is to fail.
    bool fails(Call call);
    /// Takes room for so many bytes and answers how many fit; 0, with errno set, if none do.
    std::size_t takeRoom(std::size_t bytes);
    void opened(int descriptor) { _descriptors.insert(descriptor); }
    void closed(int descriptor) { _descriptors.erase(descriptor); }

private:
    static constexpr auto never = std::numeric_limits<qint64>::max();
    struct Plan {
        qint64 call = never;
        qint64 room = never;
        int error = 0;
    };
    void plan(Plan plan);
    bool fail(Call call);

    QByteArray _folder;
    FileSystem _knows;
    Plan _plan;
    qint64 _mostBytes = never;
    std::optional<Call> _failed;
    std::vector<Call> _calls;
    std::pair<Call, std::function<void()>> _event;
    std::set<int> _descriptors;
};

} // namespace ridelog
