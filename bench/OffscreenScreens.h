// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QTemporaryDir>

namespace quorvex::bench {

// One screen of Qt's offscreen platform.
struct OffscreenScreen {
    QSize Size;       // in its own pixels
    double Scale = 1; // device pixels to one of those
};

// The description of screens side by side, the first one the primary screen, in a file that lives as long.
// Throws when it cannot be written.
class OffscreenScreens {
public:
    explicit OffscreenScreens(QList<OffscreenScreen> const& screens);

    // What QT_QPA_PLATFORM has to be.
    [[nodiscard]] QByteArray Platform() const;

private:
    [[nodiscard]] QString FileName() const { return folder_.filePath(QStringLiteral("screens.json")); }

    QTemporaryDir folder_;
};

} // namespace quorvex::bench
