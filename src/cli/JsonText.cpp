// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/JsonText.h"

#include "text/basNumbers.h"

namespace quorvex::cli {

namespace {

// The text of a value that is neither object nor array. The library spells some doubles with a digit more
// than they need; strings may hold any bytes, since file names do.
std::string ScalarText(Json const& value) {
    return value.is_number_float() ? text::PlainNumber(value.get<double>())
                                   : value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// The whole value, on one line.
void AppendText(std::string& text, Json const& value) {
    if (!value.is_structured()) {
        text += ScalarText(value);
        return;
    }
    text += value.is_object() ? '{' : '[';
    bool first = true;
    for (auto const& [key, member] : value.items()) {
        text += first ? "" : ",";
        first = false;
        if (value.is_object()) {
            text += ScalarText(key) + ':';
        }
        AppendText(text, member);
    }
    text += value.is_object() ? '}' : ']';
}

} // namespace

std::string JsonText(Json const& value) {
    std::string text;
    AppendText(text, value);
    return text + '\n';
}

} // namespace quorvex::cli
