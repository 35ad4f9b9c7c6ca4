// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/ChoiceTexts.h"

namespace quorvex::imports::ui {

QString Automatic() {
    return QStringLiteral("automatic");
}

QString FractionName(int denominator) {
    return denominator == NoFraction ? QStringLiteral("none") : QStringLiteral("1/%1").arg(denominator);
}

QString HowToSettle(Choice choice) {
    switch (choice) {
    case Choice::None:
        return {};
    case Choice::Encoding:
        return QStringLiteral(" Choose another encoding.");
    case Choice::Separator:
        return QStringLiteral(" Choose the separator, if another one is right.");
    case Choice::Columns:
        return QStringLiteral(" Choose in the boxes above the table what its columns are.");
    case Choice::DateOrder:
        return QStringLiteral(" Choose the order under Dates.");
    case Choice::Decimal:
        return QStringLiteral(" Choose the decimal mark.");
    case Choice::Fraction:
        return QStringLiteral(" Choose the fraction.");
    case Choice::Symbol:
        return QStringLiteral(" Choose the contract.");
    case Choice::Bars:
        return QStringLiteral(" Tick \"Rows of weeks or months, too\" to take each row for a day.");
    }
    return {};
}

QString Found(QString const& name) {
    return name.isEmpty() ? Automatic() : Automatic() + QStringLiteral(": ") + name;
}

} // namespace quorvex::imports::ui
