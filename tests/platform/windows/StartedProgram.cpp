// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "StartedProgram.h"

#include <filesystem>
#include <stdexcept>
#include <utility>
#include <windows.h>

namespace quorvex::tests {

namespace {

std::wstring Wide(std::string const& text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end())).wstring();
}

void Require(BOOL isDone, char const* what) {
    if (isDone == 0) {
        throw std::runtime_error(std::string(what) + ": error " + std::to_string(GetLastError()));
    }
}

void Close(void*& handle) {
    if (handle != nullptr) {
        CloseHandle(std::exchange(handle, nullptr));
    }
}

struct Pipe {
    // Only the end of the program goes to it: it would keep its own input open with the other one.
    explicit Pipe(bool isRead) {
        SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        Require(CreatePipe(&Out, &In, &inherited, 0), "CreatePipe");
        Require(SetHandleInformation(isRead ? In : Out, HANDLE_FLAG_INHERIT, 0), "SetHandleInformation");
    }

    HANDLE Out = nullptr;
    HANDLE In = nullptr;
};

BOOL WINAPI Ignore(DWORD) {
    return TRUE;
}

} // namespace

StartedProgram::StartedProgram(std::string const& program, std::vector<std::string> const& arguments,
                               std::string const& errorPath, OwnConsole console) {
    std::wstring line = L'"' + Wide(program) + L'"';
    for (std::string const& argument : arguments) {
        line += L" \"" + Wide(argument) + L'"';
    }
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE errors = CreateFileW(Wide(errorPath).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    Require(errors == INVALID_HANDLE_VALUE ? FALSE : TRUE, "CreateFileW");
    Pipe input(true);
    Pipe output(false);
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input.Out;
    start.hStdOutput = output.In;
    start.hStdError = errors;
    PROCESS_INFORMATION started{};
    Require(CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE,
                           console == OwnConsole::None ? DETACHED_PROCESS : CREATE_NO_WINDOW, nullptr,
                           nullptr, &start, &started),
            "CreateProcessW");
    CloseHandle(started.hThread);
    CloseHandle(input.Out);
    CloseHandle(output.In);
    CloseHandle(errors);
    process_ = started.hProcess;
    input_ = input.In;
    output_ = output.Out;
}

StartedProgram::~StartedProgram() {
    Kill(1);
    FreeConsole(); // not before: under Wine a console that both leave at once may never end
    Close(input_);
    Close(output_);
    Close(process_);
}

void StartedProgram::Write(std::string_view bytes) const {
    DWORD count = 0;
    Require(WriteFile(input_, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr), "WriteFile");
}

void StartedProgram::EndInput() {
    Close(input_);
}

std::string StartedProgram::ReadLine() const {
    std::string line;
    char letter = 0;
    DWORD count = 0;
    while (ReadFile(output_, &letter, 1, &count, nullptr) != 0 && count == 1 && letter != '\n') {
        line += letter;
    }
    return line;
}

void StartedProgram::Interrupt() const {
    // An event goes to every process of the console that the sender has.
    FreeConsole();
    Require(AttachConsole(GetProcessId(process_)), "AttachConsole");
    Require(SetConsoleCtrlHandler(Ignore, TRUE), "SetConsoleCtrlHandler");
    Require(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0), "GenerateConsoleCtrlEvent");
}

void StartedProgram::Kill(int status) const {
    TerminateProcess(process_, static_cast<UINT>(status));
    WaitForSingleObject(process_, INFINITE);
}

int StartedProgram::Wait() const {
    constexpr DWORD Minute = 60'000; // milliseconds
    DWORD status = 0;
    if (WaitForSingleObject(process_, Minute) != WAIT_OBJECT_0 ||
        GetExitCodeProcess(process_, &status) == 0) {
        return -1;
    }
    return static_cast<int>(status);
}

} // namespace quorvex::tests
