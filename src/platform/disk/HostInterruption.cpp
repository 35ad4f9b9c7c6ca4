// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostInterruption.h"

#include <atomic>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#endif

namespace quorvex::platform::disk {

namespace {

// Set where little else is allowed.
std::atomic<bool> hasCome = false; // NOLINT(*-avoid-non-const-global-variables)
static_assert(std::atomic<bool>::is_always_lock_free);

} // namespace

#ifdef _WIN32

namespace {

std::atomic<bool> isAwaited = false; // NOLINT(*-avoid-non-const-global-variables)

// When the console is closed, or Windows shut down, the process has ended once this returns, or seconds
// later.
BOOL WINAPI Note(DWORD event) {
    bool const isFirst = !hasCome.exchange(true);
    bool const isEnd = event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT;
    while (isFirst && isEnd && isAwaited) {
        Sleep(10);
    }
    return isFirst ? TRUE : FALSE;
}

} // namespace

HostInterruption::HostInterruption() {
    hasCome = false;
    isAwaited = true;
    SetConsoleCtrlHandler(Note, TRUE);
}

HostInterruption::~HostInterruption() {
    isAwaited = false; // before the next call, which waits for a routine that runs
    SetConsoleCtrlHandler(Note, FALSE);
}

#else

namespace {

constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP}; // NOLINT(*-avoid-c-arrays)

// Nothing but this is called where a signal comes.
void Handle(int signal, void (*handler)(int)) {
    struct sigaction before {};

    struct sigaction action {};

    action.sa_handler = handler; // NOLINT(*-union-access)
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    bool const isKnown = sigaction(signal, nullptr, &before) == 0;
    if (isKnown && before.sa_handler != SIG_IGN) { // NOLINT(*-union-access)
        sigaction(signal, &action, nullptr);
    }
}

// The next one, whichever it is, ends the process.
void Note(int) {
    hasCome = true;
    for (int const signal : Signals) {
        Handle(signal, SIG_DFL);
    }
}

} // namespace

HostInterruption::HostInterruption() {
    hasCome = false;
    for (int const signal : Signals) {
        Handle(signal, Note);
    }
}

HostInterruption::~HostInterruption() {
    for (int const signal : Signals) {
        Handle(signal, SIG_DFL);
    }
}

#endif

bool HostInterruption::HasCome() {
    return hasCome;
}

} // namespace quorvex::platform::disk
