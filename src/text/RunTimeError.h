// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The faults that the program's arithmetic and files can raise. A fault carries the description that a user
// may see; a command either ends quietly on it or shows that description.
#pragma once

#include <cmath>
#include <exception>
#include <optional>
#include <string_view>
#include <utility>

namespace quorvex::text {

enum class Fault {
    InvalidProcedureCall,
    Overflow,
    SubscriptOutOfRange,
    DivisionByZero,
    TypeMismatch,
    BadFileName,
    FileNotFound,
    DiskFull,
    InputPastEnd,
    PermissionDenied,
    PathNotFound,
    PrinterError,
};

class RunTimeError : public std::exception {
public:
    explicit RunTimeError(Fault fault) noexcept : fault_(fault) {}

    [[nodiscard]] Fault Kind() const noexcept { return fault_; }

    // The text for the user, such as "Division by zero".
    [[nodiscard]] std::string_view Description() const noexcept;

    [[nodiscard]] char const* what() const noexcept override;

private:
    Fault fault_;
};

// Runs the routine under an error trap: a fault ends it without resuming and comes back as the result, which
// is empty when the routine ran to its end. Other exceptions pass through.
template <class Routine>
[[nodiscard]] std::optional<RunTimeError> Trap(Routine&& routine) {
    try {
        std::forward<Routine>(routine)();
    } catch (RunTimeError const& error) {
        return error;
    }
    return std::nullopt;
}

// The quotient. Raises "Division by zero" for a zero divisor, 0 / 0 included, and "Overflow" when the
// quotient is beyond the range of a double.
[[nodiscard]] double Divide(double dividend, double divisor);

// The value itself when it is finite; raises "Overflow" otherwise. Put behind every sum and product that can
// leave the range of a double, so that no infinity or NaN ever reaches a curve or a message.
[[nodiscard]] inline double RequireFinite(double value) {
    if (!std::isfinite(value)) {
        throw RunTimeError(Fault::Overflow);
    }
    return value;
}

// The square root. Raises "Invalid procedure call or argument" below zero.
[[nodiscard]] double SquareRoot(double value);

} // namespace quorvex::text
