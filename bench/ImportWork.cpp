// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "ImportWork.h"

#include "import/basImport.h"
#include "text/basDates.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <stdexcept>

namespace quorvex::bench {

namespace {

constexpr auto Head = "Date,Open,High,Low,Close,Volume,Open Interest\n";
constexpr std::size_t Most = 500;

// So many days from a Monday on, weekends included, as a vendor writes them.
std::string Rows(int first, int count, int volume) {
    constexpr text::CalendarDay Start{std::chrono::year{1970} / 1 / 5};
    std::string rows;
    for (int day = first; day < first + count; ++day) {
        std::chrono::year_month_day const date{Start + std::chrono::days(day)};
        auto const twoDigits = [](unsigned number) { return std::to_string(100 + number).substr(1); };
        std::string const price = std::to_string(400 + day % 50);
        rows += std::to_string(static_cast<int>(date.year())) + "-" +
                twoDigits(static_cast<unsigned>(date.month())) + "-" +
                twoDigits(static_cast<unsigned>(date.day())) + "," + price + ".25," + price + ".75," + price +
                ".00," + price + ".50," + std::to_string(volume + day % 1000) + "," +
                std::to_string(250'000 + day) + "\n";
    }
    return rows;
}

// As long a table as a table of days can be, and that many times over.
std::string LongTable() {
    constexpr int Days = 25'000;
    constexpr int Times = 76; // 100 MB
    std::string const rows = Rows(0, Days, 25'000);
    std::string table = Head;
    for (int time = 0; time < Times; ++time) {
        table += rows;
    }
    return table;
}

std::string QuoteFileText() {
    std::string const table = Head + Rows(0, static_cast<int>(Most), 25'000);
    text::TextSource source(table);
    return imports::QuoteText(imports::ImportTable(source, {}, {}).Days);
}

} // namespace

ImportWork::ImportWork()
    : table_(LongTable()),
      quotes_(QuoteFileText()),
      tables_{Head + Rows(static_cast<int>(Most) - 5, 5, 30'000),
              Head + Rows(static_cast<int>(Most) - 5, 5, 40'000)} {
    Import();
    Update();
}

void ImportWork::Import() {
    auto const source = files_.OpenForInput(PathOf(table_));
    auto const conversion = imports::ImportTable(*source, {}, {});
    if (conversion.Refused || conversion.LeftOut.Count > 0) {
        throw std::runtime_error("The generated table could not be imported.");
    }
    benchmark::DoNotOptimize(conversion.Days.data());
}

void ImportWork::CountLines() const {
    std::ifstream source(PathOf(table_), std::ios::binary);
    std::string line;
    std::size_t count = 0;
    while (std::getline(source, line)) {
        ++count;
    }
    benchmark::DoNotOptimize(count);
}

void ImportWork::Update() {
    text::TextSource table(tables_[turn_++ % 2]);
    auto const read = imports::ImportTable(table, {}, {});
    auto const old = files_.OpenForInput(PathOf(quotes_));
    auto const file = imports::UpdateQuoteFile(*old, read, true, Most);
    if (!file.HasNews()) {
        throw std::runtime_error("The generated quote file could not be brought up to date.");
    }
    files_.Replace(PathOf(quotes_), imports::QuoteText(file.Days));
}

} // namespace quorvex::bench
