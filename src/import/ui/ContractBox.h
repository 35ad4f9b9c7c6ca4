// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::imports::ui {

// The contracts of a table to choose from, behind an entry that chooses none. One of them may have no name.
class ContractBox final : public QComboBox {
    Q_OBJECT

public:
    explicit ContractBox(QWidget* parent);

    // Offers these contracts, of which that one is chosen, which may be none of them. While the list is open
    // it stays as it is, and these come when it is closed.
    void Offer(std::vector<std::string> const& contracts, std::optional<std::string> const& chosen);

    // The contract of an entry; nothing for the first one.
    [[nodiscard]] std::optional<std::string> ContractAt(int index) const;

    void hidePopup() override;

private:
    void ShowOffered();

    std::vector<std::string> offered_;
    std::optional<std::string> chosen_;
    std::vector<std::string> shown_; // behind the first entry
};

} // namespace quorvex::imports::ui
