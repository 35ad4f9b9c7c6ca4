// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QString>

namespace quorvex::platform::qt {

// The image of that name which the program carries, sharp in each of the sizes that it has it in. One without
// any is an empty icon.
[[nodiscard]] QIcon CarriedImage(QString const& name);

} // namespace quorvex::platform::qt
