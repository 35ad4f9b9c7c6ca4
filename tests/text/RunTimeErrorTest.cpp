// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/RunTimeError.h"

#include "FaultOf.h"
#include "text/SlotArray.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::text {

namespace {

constexpr double Largest = std::numeric_limits<double>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::string FaultOfDivide(double dividend, double divisor) {
    return FaultOf([&] { static_cast<void>(Divide(dividend, divisor)); });
}

std::string FaultOfFinite(double value) {
    return FaultOf([&] { static_cast<void>(RequireFinite(value)); });
}

TEST(RunTimeError, DescribesEveryFaultToTheUser) {
    std::vector<std::pair<Fault, std::string>> const descriptions = {
        {Fault::InvalidProcedureCall, "Invalid procedure call or argument"},
        {Fault::Overflow, "Overflow"},
        {Fault::SubscriptOutOfRange, "Subscript out of range"},
        {Fault::DivisionByZero, "Division by zero"},
        {Fault::TypeMismatch, "Type mismatch"},
        {Fault::BadFileName, "Bad file name or number"},
        {Fault::FileNotFound, "File not found"},
        {Fault::DiskFull, "Disk full"},
        {Fault::InputPastEnd, "Input past end of file"},
        {Fault::PermissionDenied, "Permission denied"},
        {Fault::PathNotFound, "Path not found"},
        {Fault::PrinterError, "Printer error"},
    };
    for (auto const& [fault, description] : descriptions) {
        SCOPED_TRACE(description);
        RunTimeError const error(fault);
        EXPECT_EQ(error.Kind(), fault);
        EXPECT_EQ(error.Description(), description);
        EXPECT_STREQ(error.what(), description.c_str());
    }
}

TEST(Trap, IsEmptyWhenTheRoutineRunsToItsEnd) {
    bool ran = false;
    EXPECT_FALSE(Trap([&] { ran = true; }).has_value());
    EXPECT_TRUE(ran);
}

TEST(Trap, EndsTheRoutineAtItsFaultAndReturnsThat) {
    bool resumed = false;
    auto const error = Trap([&] {
        static_cast<void>(Divide(1, 0));
        resumed = true;
    });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->Kind(), Fault::DivisionByZero);
    EXPECT_FALSE(resumed);
}

TEST(Trap, LetsOtherExceptionsPass) {
    EXPECT_THROW(static_cast<void>(Trap([] { throw std::logic_error("a defect"); })), std::logic_error);
}

TEST(Divide, IsTheQuotient) {
    EXPECT_EQ(Divide(245.5, 2), 122.75);
    EXPECT_EQ(Divide(0, -3), 0);
    EXPECT_EQ(Divide(Largest, Largest), 1);
    EXPECT_EQ(Divide(1, Infinity), 0);
}

TEST(Divide, RefusesAZeroDivisorEvenForAZeroDividend) {
    EXPECT_EQ(FaultOfDivide(1, 0), "Division by zero");
    EXPECT_EQ(FaultOfDivide(1, -0.0), "Division by zero");
    EXPECT_EQ(FaultOfDivide(0, 0), "Division by zero");
}

TEST(Divide, OverflowsBeyondADouble) {
    EXPECT_EQ(FaultOfDivide(Largest, 0.5), "Overflow");
    EXPECT_EQ(FaultOfDivide(1, std::numeric_limits<double>::denorm_min()), "Overflow");
    EXPECT_EQ(FaultOfDivide(NotANumber, 1), "Overflow");
}

TEST(RequireFinite, PassesFiniteNumbersOn) {
    EXPECT_EQ(RequireFinite(Largest), Largest);
    EXPECT_EQ(RequireFinite(-245.5), -245.5);
    EXPECT_EQ(RequireFinite(0), 0);
}

TEST(RequireFinite, OverflowsForInfinitiesAndForNoNumber) {
    EXPECT_EQ(FaultOfFinite(Infinity), "Overflow");
    EXPECT_EQ(FaultOfFinite(-Infinity), "Overflow");
    EXPECT_EQ(FaultOfFinite(NotANumber), "Overflow");
}

TEST(SquareRoot, IsTheRoot) {
    EXPECT_EQ(SquareRoot(6.25), 2.5);
    EXPECT_EQ(SquareRoot(0), 0);
    EXPECT_EQ(SquareRoot(-0.0), 0);
}

TEST(SquareRoot, RefusesNumbersBelowZero) {
    EXPECT_EQ(FaultOf([] { static_cast<void>(SquareRoot(-1e-300)); }), "Invalid procedure call or argument");
    EXPECT_EQ(FaultOf([] { static_cast<void>(SquareRoot(-4)); }), "Invalid procedure call or argument");
}

TEST(SlotArray, StartsWithEverySlotZero) {
    SlotArray<double, 3> const slots;
    for (int slot = 0; slot <= 3; ++slot) {
        EXPECT_EQ(slots[slot], 0);
    }
}

TEST(SlotArray, KeepsEverySlotFromZeroToTheLastApart) {
    SlotArray<int, 3> slots;
    for (int slot = 0; slot <= slots.Last; ++slot) {
        slots[slot] = 10 + slot;
    }
    SlotArray<int, 3> const copy = slots;
    slots[2] = 0;
    EXPECT_EQ(copy[0], 10);
    EXPECT_EQ(copy[1], 11);
    EXPECT_EQ(copy[2], 12);
    EXPECT_EQ(copy[3], 13);
}

TEST(SlotArray, FillsEverySlot) {
    SlotArray<std::string, 2> slots;
    slots.Fill("x");
    for (int slot = 0; slot <= 2; ++slot) {
        EXPECT_EQ(slots[slot], "x");
    }
}

TEST(SlotArray, RefusesASlotOutsideItsRange) {
    SlotArray<int, 3> slots;
    SlotArray<int, 3> const& readOnly = slots;
    for (std::ptrdiff_t const slot : {std::ptrdiff_t{-1}, std::ptrdiff_t{4}, PTRDIFF_MIN, PTRDIFF_MAX}) {
        SCOPED_TRACE(slot);
        EXPECT_EQ(FaultOf([&] { slots[slot] = 1; }), "Subscript out of range");
        EXPECT_EQ(FaultOf([&] { static_cast<void>(readOnly[slot]); }), "Subscript out of range");
    }
}

TEST(SlotArray, CanBeUsedWhileCompiling) {
    constexpr SlotArray<int, 1> slots;
    static_assert(slots[1] == 0);
    static_assert(SlotArray<int, 500>::Last == 500);
    EXPECT_EQ(FaultOf([&] { static_cast<void>(slots[2]); }), "Subscript out of range");
}

} // namespace

} // namespace quorvex::text
