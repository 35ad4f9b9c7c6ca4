// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/BatchTable.h"

#include "evaluation/Models.h"
#include "evaluation/basVerdicts.h"
#include "text/basDates.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quorvex::cli {

namespace {

// A field of a row. Blanks at its ends stay only within marks.
std::string CsvField(std::string_view text) {
    bool const isPlain = text.find_first_of(",\"\r\n") == std::string_view::npos && !text.starts_with(' ') &&
                         !text.ends_with(' ');
    if (isPlain) {
        return std::string(text);
    }
    std::string field = "\"";
    for (char const letter : text) {
        field.append(letter == '"' ? 2 : 1, letter);
    }
    return field += '"';
}

std::string IsoDate(std::string const& date) {
    auto const day = text::ParseDate(date);
    return day ? text::FormatIsoDate(*day) : std::string();
}

std::string Number(std::optional<double> const& value) {
    return value ? text::PlainNumber(*value) : std::string();
}

quotes::QuoteSeries const& QuotesOf(AnalysedFile const& analysed) {
    return analysed.Session->Program().Quotes;
}

// The names of the models that are better than the last close, beyond chance.
std::string BetterModels(evaluation::Evaluation const& test) {
    std::string names;
    for (evaluation::ModelReport const& report : test.Models) {
        if (evaluation::HasSkill(report)) {
            names += (names.empty() ? "" : "; ") + evaluation::ModelName(report.Model);
        }
    }
    return names;
}

// Of all models, kinds and horizons; nothing when none has the figure.
template <class Figure>
std::optional<double> Least(evaluation::Evaluation const& test, Figure figure) {
    std::optional<double> least;
    for (evaluation::ModelReport const& model : test.Models) {
        for (evaluation::KindReport const& kind : model.ByKind) {
            for (evaluation::HorizonReport const& horizon : kind.ByHorizon) {
                std::optional<double> const value = figure(horizon);
                if (value && (!least || *value < *least)) {
                    least = value;
                }
            }
        }
    }
    return least;
}

} // namespace

BatchTable::BatchTable(int cycleCount, bool hasTest) {
    AddQuotes();
    for (int cycle = 1; cycle <= cycleCount; ++cycle) {
        AddCycle(cycle);
    }
    AddForecast();
    if (hasTest) {
        AddTest();
    }
}

void BatchTable::AddQuotes() {
    columns_ = {
        {"QuoteCount", [](auto const& of) { return std::to_string(QuotesOf(of).QuoteCount); }},
        {"WorkingCount", [](auto const& of) { return std::to_string(QuotesOf(of).WorkingCount); }},
        {"FirstQuoteDate", [](auto const& of) { return IsoDate(QuotesOf(of).FirstQuoteDate); }},
        {"LastQuoteDate", [](auto const& of) { return IsoDate(QuotesOf(of).LastQuoteDate); }},
        {"LastClose",
         [](auto const& of) { return Number(QuotesOf(of).Working[QuotesOf(of).WorkingCount].Close); }},
        {"Correlation", [](auto const& of) { return Number(of.Result->CorrelationCoefficient); }}};
}

void BatchTable::AddCycle(int cycle) {
    struct Part {
        char const* Name;
        double cycles::CycleRecord::*Member;
    };

    constexpr std::array<Part, 3> Parts = {{{"Weight", &cycles::CycleRecord::Weight},
                                            {"Period", &cycles::CycleRecord::Period},
                                            {"Shift", &cycles::CycleRecord::Shift}}};
    for (Part const& part : Parts) {
        auto const member = part.Member;
        columns_.push_back({part.Name + std::to_string(cycle), [cycle, member](auto const& of) {
                                app::Program const& program = of.Session->Program();
                                bool const hasCycles = program.Curves.States.Composite.IsReady();
                                return hasCycles ? Number(program.Cycles.Cycles[cycle].*member) : "";
                            }});
    }
}

void BatchTable::AddForecast() {
    for (int const days : evaluation::Horizons) {
        columns_.push_back({"Forecast" + std::to_string(days), [days](auto const& of) {
                                auto const& forecast = of.Result->ForecastShown;
                                return forecast ? Number(forecast->Values[days]) : "";
                            }});
    }
}

void BatchTable::AddTest() {
    auto const add = [this](char const* name, auto text) {
        columns_.push_back({name, [text](auto const& of) {
                                return of.ForecastTest ? text(*of.ForecastTest) : std::string();
                            }});
    };
    add("BetterModels", BetterModels);
    add("LeastErrorRatio", [](auto const& test) {
        return Number(Least(test, [](auto const& horizon) { return horizon.Figures.ErrorRatio; }));
    });
    add("LeastChance", [](auto const& test) {
        return Number(Least(test, [](auto const& horizon) { return horizon.Chance; }));
    });
    add("Verdict", [](auto const& test) { return evaluation::VerdictOf(test); });
}

std::string BatchTable::Head() const {
    std::string head = "File,Message";
    for (Column const& column : columns_) {
        head += ',' + column.Name;
    }
    return head += '\n';
}

std::string BatchTable::StartOf(batch::BatchFile const& file) const {
    return CsvField(file.Path) + ',';
}

bool BatchTable::TellsRefusal(std::string_view line, batch::BatchFile const& file) const {
    return !line.substr(StartOf(file).size()).starts_with(',');
}

batch::FileResult BatchTable::ResultOf(AnalysedFile const& analysed) const {
    std::string const message = JoinedMessages(analysed);
    batch::FileResult result;
    result.File = analysed.File;
    result.HasRefused = !message.empty();
    result.Line = StartOf(analysed.File) + CsvField(message);
    for (Column const& column : columns_) {
        result.Line += ',';
        result.Line += analysed.Result ? CsvField(column.Text(analysed)) : std::string();
    }
    result.Line += '\n';
    return result;
}

} // namespace quorvex::cli
