// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "PaintWork.h"

#include "platform/pictures/Painting.h"

#include <QPainter>
#include <stdexcept>

namespace quorvex::bench {

PaintWork::PaintWork(RedrawWork const& window) {
    for (platform::qt::PictureBox* box : window.Boxes()) {
        QImage const& shown = box->Picture();
        boxes_.push_back(
            {QImage(shown.size(), shown.format()), RecordPainting(shown.size(), [&](QPainter& painter) {
                 platform::pictures::PaintDrawing(painter, box->Drawing(), {});
             })});
    }
    Paint();
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        if (boxes_[index].Picture != window.Boxes().at(index)->Picture()) {
            throw std::runtime_error("What was recorded does not paint the same picture.");
        }
    }
}

void PaintWork::Paint() {
    for (Box& box : boxes_) {
        QPainter painter(&box.Picture);
        RepeatPainting(painter, box.Calls);
    }
}

} // namespace quorvex::bench
