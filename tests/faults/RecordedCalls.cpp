// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A library to be preloaded on Linux: writes down what a program that knows nothing of it does to the files
// of PRELOAD_FOLDER, into the file RECORDED_CALLS, a line for each call that succeeded, with tabs between its
// fields. Files and the folder are told by their inodes.
//
//   open INODE NAME          of a file that was not there
//   empty INODE              of one that was
//   write INODE OFFSET HEX
//   fsync INODE
//   rename FROM TO
//   unlink NAME
//   truncate NAME LENGTH

#include "Preloaded.h"

#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <initializer_list>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using quorvex::tests::IsBelowFolder;
using quorvex::tests::MakesFile;
using quorvex::tests::Next;
using quorvex::tests::Setting;

// By the system itself, as the library's own functions are those below. A record that misses a line would
// prove nothing, so that nothing goes on without it.
void Record(std::initializer_list<std::string> fields) {
    int const before = errno;
    static auto const record =
        syscall(SYS_openat, AT_FDCWD, Setting("RECORDED_CALLS").data(), O_CREAT | O_WRONLY | O_APPEND, 0600);
    std::string line;
    for (std::string const& field : fields) {
        line += (line.empty() ? "" : "\t") + field;
    }
    line += '\n';
    if (syscall(SYS_write, record, line.data(), line.size()) != static_cast<std::int64_t>(line.size())) {
        std::abort();
    }
    errno = before;
}

std::string Bare(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1)); // everything when there is none
}

std::string Inode(int descriptor) {
    struct stat status {};

    fstat(descriptor, &status);
    return std::to_string(status.st_ino);
}

bool IsThere(char const* path) {
    struct stat status {};

    return stat(path, &status) == 0;
}

std::string Hex(void const* bytes, ssize_t count) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    for (char const byte : std::string_view(static_cast<char const*>(bytes), static_cast<size_t>(count))) {
        auto const code = static_cast<unsigned char>(byte);
        text += Digits[code / Digits.size()];
        text += Digits[code % Digits.size()];
    }
    return text;
}

std::string Offset(int descriptor) {
    bool const isAtEnd = (fcntl(descriptor, F_GETFL) & O_APPEND) != 0;
    return std::to_string(lseek(descriptor, 0, isAtEnd ? SEEK_END : SEEK_CUR));
}

template <class Call>
int Open(Call const& call, char const* path, int flags) {
    bool const isOne = IsBelowFolder(path);
    bool const wasThere = IsThere(path);
    int const descriptor = call();
    if (isOne && descriptor >= 0 && !wasThere) {
        Record({"open", Inode(descriptor), Bare(path)});
    } else if (isOne && descriptor >= 0 && (flags & O_TRUNC) != 0) {
        Record({"empty", Inode(descriptor)});
    }
    return descriptor;
}

} // namespace

extern "C" {

int open(char const* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    auto const mode = MakesFile(flags) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Open([&] { return Next<int(char const*, int, ...)>("open")(path, flags, mode); }, path, flags);
}

int open64(char const* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    auto const mode = MakesFile(flags) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Open([&] { return Next<int(char const*, int, ...)>("open64")(path, flags, mode); }, path, flags);
}

ssize_t write(int descriptor, void const* bytes, size_t count) {
    std::string const offset = Offset(descriptor);
    auto const written = Next<ssize_t(int, void const*, size_t)>("write")(descriptor, bytes, count);
    if (written > 0 && IsBelowFolder(descriptor)) {
        Record({"write", Inode(descriptor), offset, Hex(bytes, written)});
    }
    return written;
}

int fsync(int descriptor) {
    int const result = Next<int(int)>("fsync")(descriptor);
    if (result == 0) {
        Record({"fsync", Inode(descriptor)});
    }
    return result;
}

int rename(char const* from, char const* to) noexcept {
    int const result = Next<int(char const*, char const*)>("rename")(from, to);
    if (result == 0 && IsBelowFolder(to)) {
        Record({"rename", Bare(from), Bare(to)});
    }
    return result;
}

int unlink(char const* path) noexcept {
    int const result = Next<int(char const*)>("unlink")(path);
    if (result == 0 && IsBelowFolder(path)) {
        Record({"unlink", Bare(path)});
    }
    return result;
}

int truncate(char const* path, off_t length) noexcept {
    int const result = Next<int(char const*, off_t)>("truncate")(path, length);
    if (result == 0 && IsBelowFolder(path)) {
        Record({"truncate", Bare(path), std::to_string(length)});
    }
    return result;
}
}
