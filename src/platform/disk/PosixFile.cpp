// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// One file on Linux, macOS and their like.

#include "platform/disk/HostFile.h"
#include "platform/disk/SystemFile.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quorvex::platform::disk {

namespace {

using text::Fault;
using text::RunTimeError;

bool FolderExists(std::filesystem::path const& path) {
    std::error_code ignored;
    auto const folder = path.parent_path();
    if (!folder.empty()) {
        return std::filesystem::is_directory(folder, ignored);
    }
    // The current folder, which has no path any more once it is gone.
    static_cast<void>(std::filesystem::current_path(ignored));
    return ignored != std::errc::no_such_file_or_directory;
}

Fault FaultOf(int error, std::filesystem::path const& path) {
    switch (error) {
    case ENOENT:
        return path.empty()         ? Fault::BadFileName
               : FolderExists(path) ? Fault::FileNotFound
                                    : Fault::PathNotFound;
    case ENOTDIR:
        return Fault::PathNotFound;
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return Fault::DiskFull;
    case EINVAL:
    case ENAMETOOLONG:
    case ELOOP:
        return Fault::BadFileName;
    default:
        return Fault::PermissionDenied;
    }
}

[[noreturn]] void Raise(int error, std::filesystem::path const& path = {}) {
    throw RunTimeError(FaultOf(error, path));
}

// What is interrupted by a signal, as on file systems of a network, is done again. Each call tells an error
// by -1.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

int Descriptor(SystemFile file) {
    return static_cast<int>(file);
}

int FlagsOf(Opening opening) {
    switch (opening) {
    case Opening::Read:
        return O_RDONLY | O_CLOEXEC;
    case Opening::Create:
        return O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    case Opening::Append:
    case Opening::AppendHeld:
        return O_WRONLY | O_APPEND | O_CLOEXEC;
    case Opening::Empty:
        break;
    }
    return O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
}

bool IsFolder(int descriptor) {
    struct stat status {};

    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

int OpenFolder(std::filesystem::path const& folder) {
    return Uninterrupted(
        [&] { return open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
}

std::string Utf8(std::filesystem::path const& name) {
    auto const text = name.u8string();
    return {text.begin(), text.end()};
}

// The folder itself tells the kind of all but links, which saves asking for each.
HostFileKind KindOf(std::filesystem::directory_entry const& entry) {
    std::error_code unreadable;
    if (entry.is_regular_file(unreadable)) {
        return HostFileKind::File;
    }
    bool const isFolder = entry.is_directory(unreadable) && !entry.is_symlink(unreadable);
    return isFolder ? HostFileKind::Folder : HostFileKind::Other;
}

HostFileKind KindOf(std::filesystem::file_type type) {
    switch (type) {
    case std::filesystem::file_type::none:
    case std::filesystem::file_type::not_found:
        return HostFileKind::None;
    case std::filesystem::file_type::regular:
        return HostFileKind::File;
    case std::filesystem::file_type::directory:
        return HostFileKind::Folder;
    default:
        return HostFileKind::Other;
    }
}

} // namespace

SystemFile OpenSystemFile(std::filesystem::path const& path, Opening opening, bool onlyForOwner) {
    constexpr mode_t Owner = 0600;
    constexpr mode_t EverybodyLessUmask = 0666;
    int const descriptor = Uninterrupted(
        [&] { return open(path.c_str(), FlagsOf(opening), onlyForOwner ? Owner : EverybodyLessUmask); });
    if (descriptor < 0) {
        if (opening == Opening::Create && errno == EEXIST) {
            return NoSystemFile;
        }
        Raise(errno, path);
    }
    if (IsFolder(descriptor)) {
        close(descriptor);
        throw RunTimeError(Fault::PermissionDenied);
    }
    return descriptor;
}

SystemFile DuplicateStandardFile(int number) {
    int const descriptor = dup(number);
    if (descriptor < 0) {
        Raise(errno);
    }
    if (IsFolder(descriptor)) {
        close(descriptor);
        throw RunTimeError(Fault::PermissionDenied);
    }
    return descriptor;
}

std::optional<std::size_t> ReadSystemFile(SystemFile file, std::span<char> buffer) {
    auto const count = Uninterrupted([&] { return read(Descriptor(file), buffer.data(), buffer.size()); });
    if (count < 0) {
        Raise(errno);
    }
    return static_cast<std::size_t>(count);
}

bool AwaitSystemFile(SystemFile file) {
    constexpr int TenthOfASecond = 100; // in milliseconds
    pollfd awaited{.fd = Descriptor(file), .events = POLLIN, .revents = 0};
    return poll(&awaited, 1, TenthOfASecond) > 0;
}

std::size_t WriteSystemFile(SystemFile file, std::string_view bytes) {
    auto const count = Uninterrupted([&] { return write(Descriptor(file), bytes.data(), bytes.size()); });
    if (count < 0) {
        Raise(errno);
    }
    return static_cast<std::size_t>(count);
}

bool HoldSystemFile(SystemFile file) {
    return Uninterrupted([&] { return flock(Descriptor(file), LOCK_EX | LOCK_NB); }) == 0 ||
           errno != EWOULDBLOCK;
}

std::optional<SystemFile> HoldSystemFolder(std::filesystem::path const& folder) {
    int const descriptor = OpenFolder(folder);
    if (descriptor >= 0 && !HoldSystemFile(descriptor)) {
        close(descriptor);
        return std::nullopt;
    }
    return descriptor >= 0 ? SystemFile{descriptor} : NoSystemFile;
}

void ReleaseSystemFolder(SystemFile folder) {
    close(Descriptor(folder));
}

void FlushSystemFile(SystemFile file) {
#ifdef F_FULLFSYNC
    // On macOS fsync stops at the drive's own memory.
    if (Uninterrupted([&] { return fcntl(Descriptor(file), F_FULLFSYNC); }) == 0) {
        return;
    }
#endif
    if (Uninterrupted([&] { return fsync(Descriptor(file)); }) != 0) {
        Raise(errno);
    }
}

void FlushSystemFolder(std::filesystem::path const& folder) {
    int const descriptor = OpenFolder(folder);
    if (descriptor >= 0) {
        Uninterrupted([&] { return fsync(descriptor); });
        close(descriptor);
    }
}

void CloseSystemFile(SystemFile file) {
    if (close(Descriptor(file)) != 0 && errno != EINTR) {
        Raise(errno);
    }
}

std::filesystem::path HostPath(std::string_view path) {
    std::u8string spelled(path.begin(), path.end());
    std::replace(spelled.begin(), spelled.end(), u8'\\', u8'/');
    return {spelled};
}

HostFileKind KindOfHostFile(std::filesystem::path const& path) {
    std::error_code error;
    return KindOf(std::filesystem::status(path, error).type());
}

std::filesystem::path FollowHostLinks(std::filesystem::path path) {
    constexpr int MostLinks = 40;
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(path, error); ++links) {
        auto const target = std::filesystem::read_symlink(path, error);
        if (error || links == MostLinks) {
            throw RunTimeError(Fault::BadFileName);
        }
        path = path.parent_path() / target; // an absolute target stands for itself
    }
    return path;
}

void VisitHostFolder(std::filesystem::path const& folder, HostEntryVisitor const& visit) {
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        visit(Utf8(entry->path().filename()), KindOf(*entry));
    }
    if (error) {
        Raise(error.value(), folder);
    }
}

void ShortenHostFile(std::filesystem::path const& path, std::uint64_t length) {
    if (Uninterrupted([&] { return truncate(path.c_str(), static_cast<off_t>(length)); }) != 0) {
        Raise(errno, path);
    }
}

void RemoveHostFile(std::filesystem::path const& path) {
    if (unlink(path.c_str()) != 0) {
        Raise(errno, path);
    }
}

std::uint64_t HostFileLength(std::filesystem::path const& path) {
    struct stat status {};

    if (stat(path.c_str(), &status) != 0) {
        Raise(errno, path);
    }
    return static_cast<std::uint64_t>(status.st_size);
}

void CopyHostFileRights(std::filesystem::path const& from, std::filesystem::path const& to) {
    constexpr mode_t Rights = 07777;
    constexpr mode_t WithoutSetId = 0777;
    constexpr mode_t WithoutGroup = 0707;
    constexpr mode_t Others = 0007;
    constexpr auto SameOwner = static_cast<uid_t>(-1);

    struct stat status {};

    if (stat(from.c_str(), &status) != 0) {
        Raise(errno, from);
    }
    mode_t mode = status.st_mode & Rights;
    if (chown(to.c_str(), status.st_uid, status.st_gid) != 0) {
        mode &= WithoutSetId;
        if (chown(to.c_str(), SameOwner, status.st_gid) != 0) {
            // Another group than the one that the rights were meant for gets no more than everybody.
            mode = (mode & WithoutGroup) | (mode & Others) << 3U;
        }
    }
    if (chmod(to.c_str(), mode) != 0) {
        Raise(errno, to);
    }
}

void MoveHostFile(std::filesystem::path const& from, std::filesystem::path const& to) {
    if (rename(from.c_str(), to.c_str()) != 0) {
        Raise(errno, to);
    }
    FlushSystemFolder(to.parent_path()); // so that the new name outlives a power failure
}

bool IsWriteProtected(std::filesystem::path const& path) {
    // Asks with the effective user, who will do the writing.
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 && errno == EACCES;
}

} // namespace quorvex::platform::disk
