// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/Messages.h"

#include <stdexcept>

namespace quorvex::tests {

testing::AssertionResult IsOnlyMessage(std::span<platform::Message const> messages, std::string const& text,
                                       std::string const& title, platform::Icon icon) {
    if (messages.size() != 1) {
        return testing::AssertionFailure() << messages.size() << " messages were shown";
    }
    platform::Message const& shown = messages.front();
    if (shown.Text != text || shown.Title != title || shown.Shown != icon ||
        shown.Offered != platform::Buttons::Ok) {
        return testing::AssertionFailure()
               << "shown was \"" << shown.Text << "\", title \"" << shown.Title << "\", icon "
               << static_cast<int>(shown.Shown) << ", buttons " << static_cast<int>(shown.Offered);
    }
    return testing::AssertionSuccess();
}

platform::Icon IconNamed(std::string const& name) {
    for (auto const icon : {platform::Icon::None, platform::Icon::Information, platform::Icon::Exclamation,
                            platform::Icon::Critical, platform::Icon::Question}) {
        if (NameOf(icon) == name) {
            return icon;
        }
    }
    throw std::out_of_range("No such icon: " + name);
}

std::string NameOf(platform::Icon icon) {
    switch (icon) {
    case platform::Icon::None:
        return "none";
    case platform::Icon::Information:
        return "information";
    case platform::Icon::Exclamation:
        return "exclamation";
    case platform::Icon::Critical:
        return "critical";
    case platform::Icon::Question:
        return "question";
    }
    throw std::out_of_range("No such icon");
}

std::string Describe(platform::Message const& message) {
    std::string const start = message.Title + '|' + NameOf(message.Shown) + '|';
    switch (message.Offered) {
    case platform::Buttons::Ok:
        return start + message.Text;
    case platform::Buttons::YesNo:
        return start + "Yes No|" + message.Text;
    case platform::Buttons::YesNoCancel:
        return start + "Yes No Cancel|" + message.Text;
    }
    throw std::out_of_range("No such buttons");
}

std::vector<std::string> DescribeAll(std::span<platform::Message const> messages) {
    std::vector<std::string> texts;
    for (platform::Message const& message : messages) {
        texts.push_back(Describe(message));
    }
    return texts;
}

} // namespace quorvex::tests
