// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::platform {

class MousePointer {
public:
    MousePointer() = default;
    MousePointer(MousePointer const&) = delete;
    MousePointer& operator=(MousePointer const&) = delete;
    virtual ~MousePointer() = default;

    virtual void ShowHourglass() = 0;
    virtual void ShowDefault() = 0;
};

// For runs without a window.
class NoMousePointer final : public MousePointer {
public:
    void ShowHourglass() override {}

    void ShowDefault() override {}
};

// The mouse pointer is the hourglass as long as this lives.
class Hourglass {
public:
    explicit Hourglass(MousePointer& pointer) : pointer_(pointer) { pointer_.ShowHourglass(); }

    Hourglass(Hourglass const&) = delete;
    Hourglass& operator=(Hourglass const&) = delete;

    ~Hourglass() { pointer_.ShowDefault(); }

private:
    MousePointer& pointer_;
};

} // namespace quorvex::platform
