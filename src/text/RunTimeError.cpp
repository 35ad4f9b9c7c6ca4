// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/RunTimeError.h"

#include <cmath>

namespace quorvex::text {

namespace {

char const* DescriptionOf(Fault fault) noexcept {
    switch (fault) {
    case Fault::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case Fault::Overflow:
        return "Overflow";
    case Fault::SubscriptOutOfRange:
        return "Subscript out of range";
    case Fault::DivisionByZero:
        return "Division by zero";
    case Fault::TypeMismatch:
        return "Type mismatch";
    case Fault::BadFileName:
        return "Bad file name or number";
    case Fault::FileNotFound:
        return "File not found";
    case Fault::DiskFull:
        return "Disk full";
    case Fault::InputPastEnd:
        return "Input past end of file";
    case Fault::PermissionDenied:
        return "Permission denied";
    case Fault::PathNotFound:
        return "Path not found";
    case Fault::PrinterError:
        return "Printer error";
    }
    return "";
}

} // namespace

std::string_view RunTimeError::Description() const noexcept {
    return DescriptionOf(fault_);
}

char const* RunTimeError::what() const noexcept {
    return DescriptionOf(fault_);
}

double Divide(double dividend, double divisor) {
    if (divisor == 0) {
        throw RunTimeError(Fault::DivisionByZero);
    }
    return RequireFinite(dividend / divisor);
}

double SquareRoot(double value) {
    if (value < 0) {
        throw RunTimeError(Fault::InvalidProcedureCall);
    }
    return std::sqrt(value);
}

} // namespace quorvex::text
