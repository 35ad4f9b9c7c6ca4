// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "StartedProgram.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <utility>
#include <windows.h>

namespace quorvex::tests {

namespace {

constexpr std::chrono::milliseconds Minute = std::chrono::minutes(1);

std::wstring Wide(std::string const& text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end())).wstring();
}

void Require(bool isDone, char const* what) {
    if (!isDone) {
        throw std::runtime_error(std::string(what) + ": error " + std::to_string(GetLastError()));
    }
}

// As one word of a command line. Of backslashes in front of a mark the program takes half.
std::wstring Quoted(std::string const& text) {
    std::wstring word = Wide(text);
    std::size_t const behindOthers = word.find_last_not_of(L'\\') + 1; // 0 without others
    word.append(word.size() - behindOthers, L'\\');
    return L'"' + word + L'"';
}

// To be handed on to a program.
OwnHandle OpenForProgram(std::string const& path, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE const file = CreateFileW(Wide(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    &inherited, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    Require(file != INVALID_HANDLE_VALUE, "CreateFileW");
    return OwnHandle(file);
}

struct Pipe {
    // Only the end of the program goes to it: it would keep its own input open with the other one.
    explicit Pipe(bool isRead) {
        SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        HANDLE out = nullptr;
        HANDLE in = nullptr;
        Require(CreatePipe(&out, &in, &inherited, 0) != 0, "CreatePipe");
        Out.reset(out);
        In.reset(in);
        Require(SetHandleInformation(isRead ? in : out, HANDLE_FLAG_INHERIT, 0) != 0, "SetHandleInformation");
    }

    OwnHandle Out;
    OwnHandle In;
};

struct Streams {
    HANDLE Input;
    HANDLE Output;
    HANDLE Errors;
};

OwnHandle StartProcess(std::string const& program, std::vector<std::string> const& arguments,
                       Streams const& streams, OwnConsole console) {
    std::wstring line = Quoted(program);
    for (std::string const& argument : arguments) {
        line += L' ' + Quoted(argument);
    }
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = streams.Input;
    start.hStdOutput = streams.Output;
    start.hStdError = streams.Errors;
    DWORD const how = console == OwnConsole::None ? DETACHED_PROCESS : CREATE_NO_WINDOW;
    PROCESS_INFORMATION started{};
    Require(CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, how, nullptr, nullptr, &start,
                           &started) != 0,
            "CreateProcessW");
    CloseHandle(started.hThread);
    return OwnHandle(started.hProcess);
}

void EndProcess(HANDLE process, int status) {
    TerminateProcess(process, static_cast<UINT>(status));
    WaitForSingleObject(process, INFINITE);
}

int AwaitEnd(HANDLE process) {
    DWORD status = 0;
    bool const hasEnded = WaitForSingleObject(process, static_cast<DWORD>(Minute.count())) == WAIT_OBJECT_0 &&
                          GetExitCodeProcess(process, &status) != 0;
    return hasEnded ? static_cast<int>(status) : -1;
}

BOOL WINAPI Ignore(DWORD) {
    return TRUE;
}

} // namespace

void HandleCloser::operator()(void* handle) const {
    CloseHandle(handle);
}

StartedProgram::StartedProgram(std::string const& program, std::vector<std::string> const& arguments,
                               std::string const& errorPath, OwnConsole console) {
    OwnHandle const errors = OpenForProgram(errorPath, GENERIC_WRITE, CREATE_ALWAYS);
    Pipe input(true);
    Pipe output(false);
    process_ = StartProcess(program, arguments, {input.Out.get(), output.In.get(), errors.get()}, console);
    input_ = std::move(input.In);
    output_ = std::move(output.Out);
}

StartedProgram::~StartedProgram() {
    Kill(1);
    if (isInterrupted_) {
        FreeConsole(); // not before: under Wine a console that both leave at once may never end
        SetConsoleCtrlHandler(Ignore, FALSE);
        AttachConsole(ATTACH_PARENT_PROCESS); // which fails when the caller had none before
    }
}

void StartedProgram::Write(std::string_view bytes) const {
    DWORD count = 0;
    Require(WriteFile(input_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) != 0,
            "WriteFile");
}

void StartedProgram::EndInput() {
    input_.reset();
}

std::string StartedProgram::ReadLine() const {
    auto const last = std::chrono::steady_clock::now() + Minute;
    std::string line;
    DWORD ready = 0;
    while (PeekNamedPipe(output_.get(), nullptr, 0, nullptr, &ready, nullptr) != 0 &&
           std::chrono::steady_clock::now() < last) {
        char letter = 0;
        DWORD count = 0;
        if (ready == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        } else if (ReadFile(output_.get(), &letter, 1, &count, nullptr) == 0 || letter == '\n') {
            break;
        } else {
            line += letter;
        }
    }
    return line;
}

void StartedProgram::Interrupt() {
    // An event goes to every process of the console that the sender has.
    FreeConsole();
    Require(AttachConsole(GetProcessId(process_.get())) != 0, "AttachConsole");
    isInterrupted_ = true;
    Require(SetConsoleCtrlHandler(Ignore, TRUE) != 0, "SetConsoleCtrlHandler");
    Require(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != 0, "GenerateConsoleCtrlEvent");
}

void StartedProgram::Kill(int status) const {
    EndProcess(process_.get(), status);
}

int StartedProgram::Wait() const {
    return AwaitEnd(process_.get());
}

int RunProgram(std::string const& program, std::vector<std::string> const& arguments,
               StandardFiles const& files) {
    OwnHandle const input = OpenForProgram(files.Input, GENERIC_READ, OPEN_EXISTING);
    OwnHandle const output = OpenForProgram(files.Output, GENERIC_WRITE, CREATE_ALWAYS);
    OwnHandle const errors = OpenForProgram(files.Errors, GENERIC_WRITE, CREATE_ALWAYS);
    OwnHandle const process =
        StartProcess(program, arguments, {input.get(), output.get(), errors.get()}, OwnConsole::None);
    int const status = AwaitEnd(process.get());
    EndProcess(process.get(), status);
    return status;
}

} // namespace quorvex::tests
