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
        platform::pictures::PaintScale const scale{shown.devicePixelRatio() / platform::TwipsPerPixel,
                                                   platform::pictures::Medium::Pixels};
        boxes_.push_back(
            {QImage(shown.size(), shown.format()), RecordPainting(shown.size(), [&](QPainter& painter) {
                 platform::pictures::PaintDrawing(painter, box->Drawing(), scale);
             })});
        boxes_.back().Picture.fill(Qt::white); // where the size in pixels is rounded up
    }
    Paint();
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        if (boxes_[index].Picture != window.Boxes().at(index)->Picture()) {
            throw std::runtime_error("What was recorded does not paint the same picture.");
        }
    }
}

std::size_t PaintWork::Bytes() const {
    std::size_t bytes = 0;
    for (Box const& box : boxes_) {
        bytes += static_cast<std::size_t>(box.Picture.sizeInBytes());
    }
    return bytes;
}

void PaintWork::Paint() {
    for (Box& box : boxes_) {
        QPainter painter(&box.Picture);
        painter.setClipRect(box.Picture.rect()); // the fast way for thin lines
        RepeatPainting(painter, box.Calls);
    }
}

} // namespace quorvex::bench
