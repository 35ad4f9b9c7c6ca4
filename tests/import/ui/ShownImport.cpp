// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/ShownImport.h"

#include "import/basImport.h"
#include "import/basMerge.h"

#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <thread>

namespace quorvex::tests {

namespace {

class SlowSource final : public text::ByteSource {
public:
    SlowSource(std::unique_ptr<text::ByteSource> bytes, SlowFiles const& files)
        : bytes_(std::move(bytes)),
          files_(files) {
        ++files_.OpenCount;
        ++files_.OpenedInAll;
    }

    ~SlowSource() override { --files_.OpenCount; }

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        if (!files_.IsSlow) {
            return bytes_->Read(buffer);
        }
        constexpr std::size_t Piece = 4096;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return bytes_->Read(buffer.first(std::min(buffer.size(), Piece)));
    }

private:
    std::unique_ptr<text::ByteSource> bytes_;
    SlowFiles const& files_;
};

} // namespace

std::unique_ptr<text::ByteSource> SlowFiles::OpenForInput(std::string const& path) const {
    return std::make_unique<SlowSource>(ForwardingFiles::OpenForInput(path), *this);
}

std::string TableRows(int count, std::string const& dateFormat, char separator) {
    std::string rows;
    QDate day(2024, 6, 28);
    for (int row = 0; row < count; ++row) {
        std::tm time{};
        time.tm_year = day.year() - 1900;
        time.tm_mon = day.month() - 1;
        time.tm_mday = day.day();
        std::array<char, 40> date{};
        std::strftime(date.data(), date.size(), dateFormat.c_str(), &time);
        std::string const close = std::to_string(1000 - row);
        std::string line = std::string(date.data()) + "," + close + ".25," + close + ".75," + close + ".00," +
                           close + ".50," + std::to_string(5000 + row) + "\n";
        std::ranges::replace(line, ',', separator);
        rows += line;
        day = day.addDays(day.dayOfWeek() == Qt::Monday ? -3 : -1);
    }
    return rows;
}

std::string QuotesOf(std::string const& table, std::size_t most) {
    text::TextSource source(table);
    return imports::QuoteText(imports::MakeQuoteFile(imports::ImportTable(source, {}, {}), most).Days);
}

ShownImport::ShownImport() {
    Window = std::make_unique<imports::ui::frmImport>(nullptr, Series, Settings, Files, Dialogs);
}

std::optional<imports::ImportedFile> ShownImport::Run(std::string const& name, std::string const& table,
                                                      std::function<void()> const& deeds) {
    Folder.Write(name, table);
    return RunAtOnce({Folder.File(name), nullptr}, [&] {
        QVERIFY(WaitForEnd());
        deeds();
    });
}

std::optional<imports::ImportedFile> ShownImport::RunAtOnce(imports::ImportSource const& source,
                                                            std::function<void()> const& deeds) {
    Answers.Next([&](QWidget& window) {
        deeds();
        if (window.isVisible()) {
            window.close();
        }
    });
    return Window->RunModal(source);
}

bool ShownImport::IsReading() const {
    return Find<QProgressBar>(QStringLiteral("prgImport")).isVisible();
}

bool ShownImport::WaitForEnd() const {
    constexpr int Patience = 30'000; // milliseconds
    return QTest::qWaitFor([this] { return !IsReading(); }, Patience);
}

void ShownImport::Choose(QString const& box, QString const& entry) const {
    auto& combo = Find<QComboBox>(box);
    int const index = combo.findText(entry);
    QVERIFY2(index >= 0, qPrintable(entry));
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int step = 0; step < index; ++step) {
        QVERIFY(WaitForEnd());
        QTest::keyClick(&combo, Qt::Key_Down);
    }
    QVERIFY(WaitForEnd());
}

QString ShownImport::Chosen(QString const& box) const {
    return Find<QComboBox>(box).currentText();
}

QString ShownImport::Result() const {
    return Find<QLabel>(QStringLiteral("lblResult")).text();
}

QStringList ShownImport::Findings() const {
    QAbstractItemModel const& model = *Find<QListView>(QStringLiteral("lstFindings")).model();
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        lines.append(model.index(row, 0).data().toString());
    }
    return lines;
}

QStringList ShownImport::PlanLines() const {
    auto const& table = Find<QTableWidget>(QStringLiteral("tblPlan"));
    QStringList lines;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column) {
            texts.append(table.item(row, column)->text());
        }
        lines.append(texts.join(u'|'));
    }
    return lines;
}

QString ShownImport::Roles() const {
    QStringList roles;
    int const count = Find<QTableView>(QStringLiteral("tblTable")).model()->columnCount();
    for (int column = 1; column <= count; ++column) {
        roles.append(Chosen(QStringLiteral("cboRole_%1").arg(column)));
    }
    return roles.join(QStringLiteral(", "));
}

bool ShownImport::Can(char const* button) const {
    return Find<QPushButton>(QString::fromLatin1(button)).isEnabled();
}

void ShownImport::Press(char const* button) const {
    QTest::mouseClick(&Find<QPushButton>(QString::fromLatin1(button)), Qt::LeftButton);
}

void ShownImport::PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QWidget* focus = Window->focusWidget();
    QTest::keyClick(focus == nullptr ? Window.get() : focus, key, modifiers);
}

void ShownImport::TypeInto(char const* edit, QString const& text) const {
    auto& line = Find<QLineEdit>(QString::fromLatin1(edit));
    line.setFocus();
    line.selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&line, Qt::Key_Delete);
    }
    QTest::keyClicks(&line, text);
}

} // namespace quorvex::tests
