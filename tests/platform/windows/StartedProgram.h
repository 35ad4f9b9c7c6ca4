// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::tests {

// On what a program runs. Under Wine a console stays for ever when its program is killed before it has come
// to it.
enum class OwnConsole { None, WithoutWindow };

// A program of Windows. Pipes lead to its standard input and from its standard output; its messages go to
// a file. It is killed with the object.
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

    // Waits for a line and returns it without its end; what is there at the end of the output.
    [[nodiscard]] std::string ReadLine() const;

    // As Ctrl-C on its console does, if it has one.
    void Interrupt() const;

    // Ends it with this status, if it has not ended yet.
    void Kill(int status) const;

    // Waits for its end. Its exit status, or -1 when it has not ended after a minute.
    [[nodiscard]] int Wait() const;

private:
    void* process_ = nullptr;
    void* input_ = nullptr;  // to write
    void* output_ = nullptr; // to read
};

} // namespace quorvex::tests
