// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The program's texts are UTF-8, Qt's are UTF-16.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quorvex::platform::pictures {

[[nodiscard]] inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string FromQt(QString const& text) {
    return text.toStdString();
}

} // namespace quorvex::platform::pictures
