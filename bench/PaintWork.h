// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RecordedPainting.h"
#include "RedrawWork.h"

#include <QImage>
#include <vector>

namespace quorvex::bench {

// The least that a redraw can cost: what the four boxes ask of their painters, from a plain array on pictures
// of the same sizes.
class PaintWork {
public:
    explicit PaintWork(RedrawWork const& window);

    void Paint();

private:
    struct Box {
        QImage Picture;
        std::vector<PaintCall> Calls;
    };

    std::vector<Box> boxes_;
};

} // namespace quorvex::bench
