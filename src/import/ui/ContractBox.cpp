// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/ContractBox.h"

#include "import/ui/ChoiceTexts.h"
#include "platform/pictures/QtTexts.h"

#include <QAbstractItemView>
#include <algorithm>

namespace quorvex::imports::ui {

namespace {

using platform::pictures::ToQt;

QString EntryOf(std::string const& contract) {
    return contract.empty() ? QStringLiteral("(without a name)") : ToQt(contract);
}

} // namespace

ContractBox::ContractBox(QWidget* parent) : QComboBox(parent) {
    addItem(Automatic());
    connect(this, &QComboBox::activated, this, [this](int index) { chosen_ = ContractAt(index); });
}

void ContractBox::Offer(std::vector<std::string> const& contracts, std::optional<std::string> const& chosen) {
    offered_ = contracts;
    chosen_ = chosen;
    ShowOffered();
}

void ContractBox::ShowOffered() {
    if (view()->isVisible()) {
        return; // comes when it is closed
    }
    bool const isFound = !chosen_ && offered_.size() == 1;
    std::vector<std::string> entries = offered_;
    if (chosen_ && std::ranges::find(entries, *chosen_) == entries.end()) {
        entries.push_back(*chosen_);
    }
    if (entries != shown_) {
        shown_ = entries;
        clear();
        addItem(Automatic());
        for (std::string const& contract : shown_) {
            addItem(EntryOf(contract));
        }
    }
    setItemText(0, Found(isFound ? EntryOf(offered_.front()) : QString()));
    setCurrentIndex(chosen_ ? static_cast<int>(std::ranges::find(shown_, *chosen_) - shown_.begin()) + 1 : 0);
}

std::optional<std::string> ContractBox::ContractAt(int index) const {
    return index > 0 ? std::optional(shown_.at(static_cast<std::size_t>(index - 1))) : std::nullopt;
}

void ContractBox::hidePopup() {
    QComboBox::hidePopup();
    // The entry that was chosen is told after this.
    QMetaObject::invokeMethod(
        this, [this] { ShowOffered(); }, Qt::QueuedConnection);
}

} // namespace quorvex::imports::ui
