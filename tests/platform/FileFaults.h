// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How each operation on a file of this machine fails; nothing when it succeeds.
#pragma once

#include "platform/disk/DiskFiles.h"
#include "text/RunTimeError.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvex::platform::disk {

template <class Operation>
std::optional<text::Fault> FaultOf(Operation const& operation) {
    auto const error = text::Trap(operation);
    return error ? std::optional(error->Kind()) : std::nullopt;
}

inline std::optional<text::Fault> FaultOfOpening(std::string const& path) {
    return FaultOf([&] { static_cast<void>(DiskFiles().OpenForInput(path)); });
}

inline std::optional<text::Fault> FaultOfReplacing(std::string const& path,
                                                   std::string_view content = "new") {
    return FaultOf([&] { DiskFiles().Replace(path, content); });
}

inline std::optional<text::Fault> FaultOfEmptying(std::string const& path) {
    return FaultOf([&] { static_cast<void>(DiskFiles().OpenForOutput(path)); });
}

inline std::optional<text::Fault> FaultOfRemoving(std::string const& path) {
    return FaultOf([&] { DiskFiles().Remove(path); });
}

inline std::optional<text::Fault> FaultOfMeasuring(std::string const& path) {
    return FaultOf([&] { static_cast<void>(DiskFiles().Length(path)); });
}

} // namespace quorvex::platform::disk
