// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostFile.h"

#include "text/RunTimeError.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <vector>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quorvex::platform::disk {

namespace {

using text::Fault;
using text::RunTimeError;

// The two systems differ in the names of the same calls and in little else.
#ifdef _WIN32

constexpr int ReadFlags = _O_RDONLY | _O_BINARY | _O_NOINHERIT;
constexpr int CreateFlags = _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT;
constexpr int AppendFlags = _O_WRONLY | _O_APPEND | _O_BINARY | _O_NOINHERIT;
constexpr int EmptyFlags = _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY | _O_NOINHERIT;

int OpenDescriptor(std::filesystem::path const& path, int flags, bool) {
    return _wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE);
}

std::ptrdiff_t ReadDescriptor(int descriptor, char* bytes, std::size_t count) {
    return _read(descriptor, bytes, static_cast<unsigned>(std::min<std::size_t>(count, 1U << 30)));
}

std::ptrdiff_t WriteDescriptor(int descriptor, char const* bytes, std::size_t count) {
    return _write(descriptor, bytes, static_cast<unsigned>(std::min<std::size_t>(count, 1U << 30)));
}

int FlushDescriptor(int descriptor) {
    return _commit(descriptor);
}

int CloseDescriptor(int descriptor) {
    return _close(descriptor);
}

int DuplicateDescriptor(int descriptor) {
    _setmode(descriptor, _O_BINARY);
    return _dup(descriptor);
}

// _wopen refuses a folder by itself.
bool IsFolder(int) {
    return false;
}

#else

constexpr int ReadFlags = O_RDONLY | O_CLOEXEC;
constexpr int CreateFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
constexpr int AppendFlags = O_WRONLY | O_APPEND | O_CLOEXEC;
constexpr int EmptyFlags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;

int OpenDescriptor(std::filesystem::path const& path, int flags, bool onlyForOwner) {
    constexpr mode_t Owner = 0600;
    constexpr mode_t EverybodyLessUmask = 0666;
    return open(path.c_str(), flags, onlyForOwner ? Owner : EverybodyLessUmask);
}

std::ptrdiff_t ReadDescriptor(int descriptor, char* bytes, std::size_t count) {
    return read(descriptor, bytes, count);
}

std::ptrdiff_t WriteDescriptor(int descriptor, char const* bytes, std::size_t count) {
    return write(descriptor, bytes, count);
}

int FlushDescriptor(int descriptor) {
#ifdef F_FULLFSYNC
    // On macOS fsync stops at the drive's own memory.
    if (fcntl(descriptor, F_FULLFSYNC) == 0) {
        return 0;
    }
#endif
    return fsync(descriptor);
}

int CloseDescriptor(int descriptor) {
    return close(descriptor);
}

int DuplicateDescriptor(int descriptor) {
    return dup(descriptor);
}

bool IsFolder(int descriptor) {
    struct stat status {};

    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

#endif

bool FolderExists(std::filesystem::path const& path) {
    std::error_code ignored;
    auto const folder = path.parent_path();
    return folder.empty() || std::filesystem::is_directory(folder, ignored);
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

[[noreturn]] void Raise(int error, std::filesystem::path const& path) {
    throw RunTimeError(FaultOf(error, path));
}

// What the file system library reports, as errno names it.
int PosixNumber(std::error_code const& error) {
    return error.default_error_condition().value();
}

// An open file, closed with its owner.
class HostFile {
public:
    // Takes over the descriptor, or raises the fault that the system has just reported in place of one.
    HostFile(std::filesystem::path const& path, int descriptor)
        : descriptor_(descriptor < 0 ? throw RunTimeError(FaultOf(errno, path)) : descriptor),
          path_(path) {
        if (IsFolder(descriptor_)) {
            CloseDescriptor(descriptor_);
            throw RunTimeError(Fault::PermissionDenied);
        }
    }

    HostFile(HostFile const&) = delete;
    HostFile& operator=(HostFile const&) = delete;

    ~HostFile() {
        if (descriptor_ >= 0) {
            CloseDescriptor(descriptor_);
        }
    }

    [[nodiscard]] std::size_t Read(std::span<char> buffer) const {
        for (;;) {
            auto const count = ReadDescriptor(descriptor_, buffer.data(), buffer.size());
            if (count >= 0) {
                return static_cast<std::size_t>(count);
            }
            if (errno != EINTR) {
                Raise(errno, path_);
            }
        }
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            auto const count = WriteDescriptor(descriptor_, bytes.data(), bytes.size());
            if (count == 0) {
                throw RunTimeError(Fault::DiskFull);
            }
            if (count > 0) {
                bytes.remove_prefix(static_cast<std::size_t>(count));
            } else if (errno != EINTR) {
                Raise(errno, path_);
            }
        }
    }

    // Waits for the disk.
    void Flush() const {
        if (FlushDescriptor(descriptor_) != 0) {
            Raise(errno, path_);
        }
    }

    // An error that the system reports only on closing is not lost.
    void Close() {
        int const descriptor = std::exchange(descriptor_, -1);
        if (CloseDescriptor(descriptor) != 0 && errno != EINTR) {
            Raise(errno, path_);
        }
    }

private:
    int descriptor_;
    std::filesystem::path path_;
};

class HostFileSource final : public text::ByteSource {
public:
    HostFileSource(std::filesystem::path const& path, int descriptor) : file_(path, descriptor) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override { return file_.Read(buffer); }

private:
    HostFile file_;
};

class HostFileSink : public ByteSink {
public:
    HostFileSink(std::filesystem::path const& path, int descriptor) : file_(path, descriptor) {}

    void Write(std::string_view bytes) override { file_.Write(bytes); }

    void Close() override { file_.Close(); }

protected:
    void Flush() const { file_.Flush(); }

private:
    HostFile file_;
};

// Its content is on the disk once it is closed.
class LastingHostFileSink final : public HostFileSink {
public:
    using HostFileSink::HostFileSink;

    void Close() override {
        auto const error = text::Trap([this] { Flush(); });
        HostFileSink::Close();
        if (error) {
            throw RunTimeError(error->Kind());
        }
    }
};

} // namespace

std::unique_ptr<text::ByteSource> OpenHostFile(std::filesystem::path const& path) {
    return std::make_unique<HostFileSource>(path, OpenDescriptor(path, ReadFlags, false));
}

std::unique_ptr<ByteSink> CreateHostFile(std::filesystem::path const& path) {
    return std::make_unique<HostFileSink>(path, OpenDescriptor(path, EmptyFlags, false));
}

std::unique_ptr<ByteSink> CreateNewHostFile(std::filesystem::path const& path, bool onlyForOwner) {
    int const descriptor = OpenDescriptor(path, CreateFlags, onlyForOwner);
    if (descriptor < 0 && errno == EEXIST) {
        return nullptr;
    }
    return std::make_unique<LastingHostFileSink>(path, descriptor);
}

std::unique_ptr<ByteSink> OpenHostFileToAppend(std::filesystem::path const& path) {
    return std::make_unique<LastingHostFileSink>(path, OpenDescriptor(path, AppendFlags, false));
}

std::unique_ptr<text::ByteSource> OpenStandardInput() {
    return std::make_unique<HostFileSource>(std::filesystem::path(), DuplicateDescriptor(0));
}

std::unique_ptr<ByteSink> OpenStandardOutput() {
    return std::make_unique<HostFileSink>(std::filesystem::path(), DuplicateDescriptor(1));
}

void RemoveHostFile(std::filesystem::path const& path) {
    std::error_code error;
    bool const wasThere = std::filesystem::remove(path, error);
    if (error || !wasThere) {
        Raise(error ? PosixNumber(error) : ENOENT, path);
    }
}

std::uint64_t HostFileLength(std::filesystem::path const& path) {
    std::error_code error;
    auto const length = std::filesystem::file_size(path, error);
    if (error) {
        Raise(PosixNumber(error), path);
    }
    return length;
}

#ifdef _WIN32

Fault FaultOfLastError() {
    switch (GetLastError()) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return Fault::DiskFull;
    case ERROR_PATH_NOT_FOUND:
        return Fault::PathNotFound;
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return Fault::BadFileName;
    default:
        return Fault::PermissionDenied;
    }
}

// Who may do what is in the access list; hidden files stay hidden. The owner goes along only for
// administrators, and is left alone.
void CopyHostFileRights(std::filesystem::path const& from, std::filesystem::path const& to) {
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> descriptor(size);
    DWORD const attributes = GetFileAttributesW(from.c_str());
    bool const isCopied =
        attributes != INVALID_FILE_ATTRIBUTES && SetFileAttributesW(to.c_str(), attributes) != 0 &&
        GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size) != 0 &&
        SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()) != 0;
    if (!isCopied) {
        throw RunTimeError(FaultOfLastError());
    }
}

void MoveHostFile(std::filesystem::path const& from, std::filesystem::path const& to) {
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        throw RunTimeError(FaultOfLastError());
    }
}

bool IsWriteProtected(std::filesystem::path const& path) {
    DWORD const attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

#else

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
    // The new name outlives a power failure only once the folder is on the disk. Some file systems cannot
    // flush a folder; the rename itself stands either way.
    auto const folder = to.parent_path();
    int const descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

bool IsWriteProtected(std::filesystem::path const& path) {
    // Asks with the effective user, who will do the writing.
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 && errno == EACCES;
}

#endif

} // namespace quorvex::platform::disk
