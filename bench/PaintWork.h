// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RecordedPainting.h"
#include "RedrawWork.h"

#include <QImage>
#include <cstddef>
#include <vector>

namespace quorvex::bench {

// What the four boxes paint, as calls of QPainter from a plain array, on pictures of the same sizes and with
// a rectangle for a clip, without which Qt takes thin lines the slow way.
class PaintWork {
public:
    explicit PaintWork(RedrawWork const& window);

    void Paint();

    // Of the pictures.
    [[nodiscard]] std::size_t Bytes() const;

private:
    struct Box {
        QImage Picture;
        std::vector<PaintCall> Calls;
    };

    std::vector<Box> boxes_;
};

} // namespace quorvex::bench
