// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A library to be preloaded on Linux: one call of the system fails in a program that knows nothing of it.
//
//   PRELOAD_FOLDER   only calls that concern files below this folder count; absolute, without links, ends
//                    with a slash
//   FAILING_CALL     which one: open, read, write, fsync, close, rename, flock or truncate
//   FAILING_NUMBER   how many of them succeed before
//   FAILING_ERROR    the error that it then tells; 0 means that a read or a write does a single byte
//   FAILING_MARK     file that is made when the call has failed

#include "Preloaded.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using quorvex::tests::IsBelowFolder;
using quorvex::tests::MakesFile;
using quorvex::tests::Next;
using quorvex::tests::Setting;

int Number(char const* name) {
    return std::atoi(std::string(Setting(name)).c_str());
}

int Error() {
    return Number("FAILING_ERROR");
}

// Whether this call is the one. Threads share the count.
template <class Place>
bool Fails(std::string_view call, Place place) {
    static std::atomic<int> calls = 0;
    if (Setting("FAILING_CALL") != call || !IsBelowFolder(place) ||
        calls.fetch_add(1) != Number("FAILING_NUMBER")) {
        return false;
    }
    // By the system itself, as the library's own functions are those below.
    auto const mark = syscall(SYS_openat, AT_FDCWD, Setting("FAILING_MARK").data(), O_CREAT | O_WRONLY, 0600);
    syscall(SYS_close, mark);
    errno = Error();
    return true;
}

} // namespace

extern "C" {

int open(char const* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    auto const mode = MakesFile(flags) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Fails("open", path) ? -1 : Next<int(char const*, int, ...)>("open")(path, flags, mode);
}

int open64(char const* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    auto const mode = MakesFile(flags) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Fails("open", path) ? -1 : Next<int(char const*, int, ...)>("open64")(path, flags, mode);
}

ssize_t read(int descriptor, void* bytes, size_t count) {
    auto* const next = Next<ssize_t(int, void*, size_t)>("read");
    if (Fails("read", descriptor)) {
        return Error() == 0 && count > 0 ? next(descriptor, bytes, 1) : -1;
    }
    return next(descriptor, bytes, count);
}

ssize_t write(int descriptor, void const* bytes, size_t count) {
    auto* const next = Next<ssize_t(int, void const*, size_t)>("write");
    if (Fails("write", descriptor)) {
        return Error() == 0 && count > 0 ? next(descriptor, bytes, 1) : -1;
    }
    return next(descriptor, bytes, count);
}

int fsync(int descriptor) {
    return Fails("fsync", descriptor) ? -1 : Next<int(int)>("fsync")(descriptor);
}

// A file is closed whatever closing it tells.
int close(int descriptor) {
    bool const fails = Fails("close", descriptor);
    int const closed = Next<int(int)>("close")(descriptor);
    if (fails) {
        errno = Error();
    }
    return fails ? -1 : closed;
}

int rename(char const* from, char const* to) noexcept {
    return Fails("rename", to) ? -1 : Next<int(char const*, char const*)>("rename")(from, to);
}

int flock(int descriptor, int operation) noexcept {
    return Fails("flock", descriptor) ? -1 : Next<int(int, int)>("flock")(descriptor, operation);
}

int truncate(char const* path, off_t length) noexcept {
    return Fails("truncate", path) ? -1 : Next<int(char const*, off_t)>("truncate")(path, length);
}
}
