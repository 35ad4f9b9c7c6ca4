// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/Messages.h"

#include <map>

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
    static std::map<std::string, platform::Icon> const icons = {{"none", platform::Icon::None},
                                                                {"information", platform::Icon::Information},
                                                                {"exclamation", platform::Icon::Exclamation},
                                                                {"critical", platform::Icon::Critical},
                                                                {"question", platform::Icon::Question}};
    return icons.at(name);
}

} // namespace quorvex::tests
