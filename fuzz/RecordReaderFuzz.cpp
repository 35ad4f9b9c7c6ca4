// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The first byte chooses the separator, the rest is a table. Its records must be the same however the bytes
// arrive, and unquoted fields hold neither separators nor line ends.

#include "ChunkSource.h"
#include "Require.h"
#include "import/RecordReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace quorvex;
using fuzz::Require;
using imports::Separator;

struct TakenField {
    std::string Text;
    bool WasQuoted = false;

    bool operator==(TakenField const&) const = default;
};

struct TakenRecord {
    std::uint64_t Line = 0;
    std::vector<TakenField> Fields;

    bool operator==(TakenRecord const&) const = default;
};

struct Table {
    std::vector<TakenRecord> Records;
    std::string Trouble;

    bool operator==(Table const&) const = default;
};

Table ReadTable(std::string_view text, Separator separator, std::size_t chunk) {
    fuzz::ChunkSource source(text, chunk);
    imports::RecordReader reader(source, separator);
    Table table;
    while (reader.Next()) {
        TakenRecord record{reader.Line(), {}};
        for (imports::Field const& field : reader.Fields()) {
            record.Fields.push_back({std::string(field.Text), field.WasQuoted});
        }
        table.Records.push_back(std::move(record));
    }
    table.Trouble = reader.Trouble();
    return table;
}

void CheckTable(Table const& table, std::string_view stops) {
    std::uint64_t line = 0;
    for (TakenRecord const& record : table.Records) {
        Require(record.Line > line && !record.Fields.empty());
        line = record.Line;
        Require(std::ranges::all_of(record.Fields, [&](TakenField const& field) {
            return field.WasQuoted || field.Text.find_first_of(stops) == std::string::npos;
        }));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    constexpr std::string_view Marks = ",;\t| ";
    if (size == 0) {
        return 0;
    }
    std::size_t const chosen = data[0] % Marks.size();
    auto const separator = std::vector{Separator::Comma, Separator::Semicolon, Separator::Tab, Separator::Bar,
                                       Separator::Blanks}[chosen];
    std::string_view const text(reinterpret_cast<char const*>(data) + 1, size - 1);
    Table const table = ReadTable(text, separator, size);
    CheckTable(table, std::string("\r\n").append(Marks.substr(chosen, 1)));
    // A long record is gone through once more for each piece, so long tables come in larger ones.
    for (std::size_t const chunk : {1 + size / 100, 7 + size / 50}) {
        Require(ReadTable(text, separator, chunk) == table);
    }
    return 0;
}
