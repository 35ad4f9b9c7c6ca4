// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/PipeFiles.h"

#include "platform/disk/HostFile.h"

namespace quorvex::cli {

namespace {

void WriteStandardOutput(std::string_view content) {
    auto const output = platform::disk::OpenStandardOutput();
    output->Write(content);
    output->Close();
}

} // namespace

std::string InputName(std::string_view path) {
    return std::string(path == PipeName ? "standard input" : path);
}

std::string OutputName(std::string_view path) {
    return std::string(path == PipeName ? "standard output" : path);
}

std::unique_ptr<text::ByteSource> PipeFiles::OpenForInput(std::string const& path) const {
    return path == PipeName ? platform::disk::OpenStandardInput() : platform::disk::OpenFileOrPipe(path);
}

void PipeFiles::Replace(std::string const& path, std::string_view content) {
    if (path == PipeName) {
        WriteStandardOutput(content);
    } else {
        disk_.Replace(path, content);
    }
}

// What was written on standard output is not there to be read.
void PipeFiles::Revise(std::string const& path, platform::Revision const& revise) {
    if (path != PipeName) {
        disk_.Revise(path, revise);
    } else if (auto const content = revise({})) {
        WriteStandardOutput(*content);
    }
}

void PipeFiles::Overwrite(std::string const& path, std::string_view content) {
    if (path == PipeName) {
        WriteStandardOutput(content);
    } else {
        disk_.Overwrite(path, content);
    }
}

void PipeFiles::Append(std::string const& path, std::string_view bytes) {
    if (path == PipeName) {
        WriteStandardOutput(bytes);
    } else {
        disk_.Append(path, bytes);
    }
}

void PipeFiles::Keep(std::string const& path) {
    if (path != PipeName) {
        disk_.Keep(path);
    }
}

std::unique_ptr<platform::ByteSink> PipeFiles::OpenForOutput(std::string const& path) {
    return path == PipeName ? platform::disk::OpenStandardOutput() : disk_.OpenForOutput(path);
}

void PipeFiles::Remove(std::string const& path) {
    if (path != PipeName) {
        disk_.Remove(path);
    }
}

std::uint64_t PipeFiles::Length(std::string const& path) const {
    return disk_.Length(path);
}

bool PipeFiles::AreSame(std::string const& one, std::string const& other) const {
    return disk_.AreSame(one, other);
}

void PipeFiles::EnterFolder(std::string const& folder) {
    disk_.EnterFolder(folder);
}

std::vector<std::string> PipeFiles::List(std::string const& folder, std::string_view pattern) const {
    return disk_.List(folder, pattern);
}

} // namespace quorvex::cli
