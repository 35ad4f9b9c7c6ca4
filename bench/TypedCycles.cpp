// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "TypedCycles.h"

#include "cycles/CycleParameterSet.h"

#include <QLineEdit>

namespace quorvex::bench {

void TypeTenCycles(QWidget const& window) {
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        auto const type = [&](int row, int value) {
            window.findChild<QLineEdit*>(QStringLiteral("Text%1_%2").arg(row).arg(cycle))
                ->setText(QString::number(value));
        };
        type(1, 10);            // weight
        type(2, 8 + 7 * cycle); // period
        type(3, cycle);         // shift
    }
}

} // namespace quorvex::bench
