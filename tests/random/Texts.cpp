// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/Texts.h"

#include <array>

namespace quorvex::tests {

namespace {

constexpr auto HostileTexts = std::to_array<char16_t const*>({
    u"",
    u" ",
    u"-",
    u"+",
    u".",
    u",",
    u"1e308",
    u"-1e308",
    u"1e-320",
    u"1d5",
    u"1e",
    u"&H7F",
    u"nan",
    u"inf",
    u"100.4",
    u"50,5",
    u"-0",
    u"0.5",
    u"32767",
    u"32768",
    u"-32769",
    u"2147483647",
    u"2147483648",
    u"99999999999999",
    u"100",
    u"101",
    u"  7  ",
    u"12abc",
    u"\u0663\u0664",
    u"\u20ac 5",
    u"\U0001F4C8",
    u"e\u0301\u202e12",
    u"<b>bold</b>",
    u"%1 %s %n",
    u"&amp &File",
});

constexpr auto FileNames = std::to_array<char16_t const*>({
    u"one",
    u"two",
    u"one.txt",
    u"two.txt",
    u"three.dat",
    u"four.png",
    u"five.svg",
    u"six.pdf",
    u"Preis \u20ac",
    u"a.b.c",
});

} // namespace

QString PickText(Dice& dice) {
    constexpr int LongLength = 300;
    if (dice.OneIn(40)) {
        return QStringLiteral("9").repeated(LongLength);
    }
    if (dice.OneIn(2)) {
        return QString::number(dice.Between(-10, 120)); // most of these are good
    }
    return QString::fromUtf16(dice.Pick(HostileTexts));
}

QString PickFileName(Dice& dice) {
    return QString::fromUtf16(dice.Pick(FileNames));
}

} // namespace quorvex::tests
