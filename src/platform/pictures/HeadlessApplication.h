// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>
#include <memory>

namespace quorvex::platform::pictures {

// Starts an application that needs no display, which fonts cannot do without; nothing comes back where one
// runs already.
[[nodiscard]] std::unique_ptr<QGuiApplication> StartApplicationWithoutDisplay();

// Lets the Liberation fonts stand in for those of the program's texts where these are not installed.
void UseStandInFonts();

} // namespace quorvex::platform::pictures
