// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::tests {

struct HandleCloser {
    void operator()(void* handle) const;
};

// A handle of Windows, closed with its owner.
using OwnHandle = std::unique_ptr<void, HandleCloser>;

// On what a program runs. Under Wine a console stays for ever when its program is killed before it has come
// to it.
enum class OwnConsole { None, WithoutWindow };

// A program of Windows. Pipes lead to its standard input and from its standard output; its messages go to
// a file. It is killed with the object. There is one at a time that is interrupted.
class StartedProgram {
public:
    // Program, arguments and the file of the messages are UTF-8; no argument has a quotation mark.
    StartedProgram(std::string const& program, std::vector<std::string> const& arguments,
                   std::string const& errorPath, OwnConsole console = OwnConsole::None);
    StartedProgram(StartedProgram const&) = delete;
    StartedProgram& operator=(StartedProgram const&) = delete;
    ~StartedProgram();

    void Write(std::string_view bytes) const;
    void EndInput();

    // Waits for a line and returns it without its end; what is there at the end of the output, and after
    // a minute.
    [[nodiscard]] std::string ReadLine() const;

    // As Ctrl-C on its console does, if it has one. Until the object is gone, the caller is on that console.
    void Interrupt();

    // Ends it with this status, if it has not ended yet.
    void Kill(int status) const;

    // Waits for its end. Its exit status, or -1 when it has not ended after a minute.
    [[nodiscard]] int Wait() const;

private:
    OwnHandle process_;
    OwnHandle input_;  // to write
    OwnHandle output_; // to read
    bool isInterrupted_ = false;
};

// Where the files are from which a program reads and to which it writes, in UTF-8.
struct StandardFiles {
    std::string Input;
    std::string Output;
    std::string Errors;
};

// Runs a program of Windows, on no console, to its end. Its exit status, or -1 when it was killed because it
// had not ended after a minute. Program and arguments are as those of StartedProgram.
[[nodiscard]] int RunProgram(std::string const& program, std::vector<std::string> const& arguments,
                             StandardFiles const& files);

} // namespace quorvex::tests
