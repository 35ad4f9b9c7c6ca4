// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/ui/frmImport.h"
#include "platform/disk/DiskFiles.h"
#include "platform/fake/FailingFiles.h"
#include "platform/fake/ForwardingFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"
#include "windows/ModalAnswers.h"

#include <QComboBox>
#include <QStringList>
#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quorvex::tests {

// Files of which the bytes come slowly as long as that is wanted.
class SlowFiles final : public platform::fake::ForwardingFiles {
public:
    using ForwardingFiles::ForwardingFiles;

    [[nodiscard]] std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const override;

    std::atomic<bool> IsSlow = false;
    mutable std::atomic<int> OpenCount = 0; // sources that are not closed yet
    mutable std::atomic<int> OpenedInAll = 0;
};

// So many weekdays of a table with this separator, the dates as the format says (of strftime), the newest
// first.
[[nodiscard]] std::string TableRows(int count, std::string const& dateFormat = "%Y-%m-%d",
                                    char separator = ',');

inline std::string const TableHead = "Date,Open,High,Low,Close,Volume\n";

// The quote file that the companion would make of the table.
[[nodiscard]] std::string QuotesOf(std::string const& table, std::size_t most = 500);

// The import window over a folder of its own, which is the data folder.
class ShownImport {
public:
    ShownImport();

    // Writes the table into the folder, opens the window for it, does this in it once it is read, and comes
    // back when it is closed, which it is at the end.
    std::optional<imports::ImportedFile> Run(std::string const& name, std::string const& table,
                                             std::function<void()> const& deeds);

    // The same for any source and without waiting for it to be read.
    std::optional<imports::ImportedFile> RunAtOnce(imports::ImportSource const& source,
                                                   std::function<void()> const& deeds);

    template <class Control>
    [[nodiscard]] Control& Find(QString const& name) const {
        return *Window->findChild<Control*>(name);
    }

    // Whether the reading under way is over, which it is after a while.
    [[nodiscard]] bool WaitForEnd() const;
    [[nodiscard]] bool IsReading() const;

    // Chooses the entry of the box as a user does, and waits until the table is read anew.
    void Choose(QString const& box, QString const& entry) const;
    [[nodiscard]] QString Chosen(QString const& box) const;

    [[nodiscard]] QString Result() const;
    [[nodiscard]] QStringList Findings() const;

    // The plan, a line for each row: "date|1  Date|why".
    [[nodiscard]] QStringList PlanLines() const;

    // What the boxes above the table say, one after the other.
    [[nodiscard]] QString Roles() const;

    [[nodiscard]] bool Can(char const* button) const;
    void Press(char const* button) const;
    void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

    // Types the text over what stands in the line.
    void TypeInto(char const* edit, QString const& text) const;

    TemporaryFolder Folder;
    platform::disk::DiskFiles Disk;
    platform::fake::FailingFiles Failing{Disk};
    SlowFiles Files{Failing};
    platform::fake::ScriptedDialogs Dialogs;
    settings::Settings Settings = settings::DefaultSettings(Folder.Text());
    quotes::QuoteSeries Series;
    ModalAnswers Answers;
    std::unique_ptr<imports::ui::frmImport> Window;
};

} // namespace quorvex::tests
