// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "windows/PaintedLabel.h"

namespace quorvex::tests {

bool ShowsLetterForLetter(QLabel& label, QString const& text) {
    QWidget window;
    QLabel plain(&window); // without a background, as the other one
    plain.setTextFormat(Qt::PlainText);
    plain.setTextInteractionFlags(label.textInteractionFlags());
    plain.setFont(label.font());
    plain.setPalette(label.palette());
    plain.setFrameStyle(label.frameStyle());
    plain.setAlignment(label.alignment());
    plain.setIndent(label.indent());
    plain.setWordWrap(label.wordWrap());
    plain.setContentsMargins(label.contentsMargins());
    plain.setText(text);
    plain.resize(label.size());
    return label.isVisible() && label.grab().toImage() == plain.grab().toImage();
}

} // namespace quorvex::tests
