// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostConsole.h"

#ifdef _WIN32
#include <atomic>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <initializer_list>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace quorvex::platform::disk {

namespace {

constexpr int UsualWidth = 80;

} // namespace

#ifdef _WIN32

namespace {

// The code page that the console had before, 0 without a console. The console outlives the process, which may
// be ended by Ctrl-C.
std::atomic<UINT>& CodePageBefore() {
    static std::atomic<UINT> codePage = 0;
    return codePage;
}

void RestoreCodePage() {
    if (UINT const before = CodePageBefore().exchange(0); before != 0) {
        SetConsoleOutputCP(before);
    }
}

BOOL WINAPI RestoreAtEnd(DWORD) {
    RestoreCodePage();
    return FALSE; // the process ends as it would have
}

} // namespace

HostConsole::HostConsole() {
    _setmode(1, _O_BINARY);
    _setmode(2, _O_BINARY);
    CodePageBefore() = GetConsoleOutputCP();
    SetConsoleCtrlHandler(RestoreAtEnd, TRUE);
    SetConsoleOutputCP(CP_UTF8);
}

HostConsole::~HostConsole() {
    RestoreCodePage();
    SetConsoleCtrlHandler(RestoreAtEnd, FALSE);
}

bool HostConsole::IsTerminal() const {
    return _isatty(1) != 0;
}

bool HostConsole::ShowsErrors() const {
    return _isatty(2) != 0;
}

int HostConsole::Width() const {
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) == 0) {
        return UsualWidth;
    }
    return info.srWindow.Right - info.srWindow.Left + 1;
}

#else

namespace {

// Otherwise the next file that is opened would get the number, and with it what is said. The other way round,
// so that reading and writing fail as they did.
void FillClosedStreams() {
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0) {
            static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
        }
    }
}

} // namespace

HostConsole::HostConsole() {
    FillClosedStreams();
}

HostConsole::~HostConsole() = default;

bool HostConsole::IsTerminal() const {
    return isatty(STDOUT_FILENO) != 0;
}

bool HostConsole::ShowsErrors() const {
    return isatty(STDERR_FILENO) != 0;
}

int HostConsole::Width() const {
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) {
        return UsualWidth;
    }
    return size.ws_col;
}

#endif

} // namespace quorvex::platform::disk
