// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "QuoteWork.h"

#include "GeneratedQuotes.h"
#include "quotes/basDisk.h"
#include "text/basFields.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <stdexcept>
#include <string_view>

namespace quorvex::bench {

namespace {

constexpr int DateNumbers = 3;
constexpr int QuoteNumbers = 6;

// Takes the numbers of a text one after the other.
class NumberPass {
public:
    explicit NumberPass(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

    // Whether a number is left.
    bool Advance() {
        while (at_ != end_ && (*at_ < '0' || *at_ > '9')) {
            ++at_;
        }
        return at_ != end_;
    }

    template <class Number>
    Number Take() {
        Advance();
        Number number{};
        at_ = std::from_chars(at_, end_, number).ptr;
        return number;
    }

private:
    char const* at_;
    char const* end_;
};

} // namespace

QuoteWork::QuoteWork()
    : text_(GeneratedQuoteText()),
      file_(text_),
      settings_(settings::DefaultSettings(file_.Folder())),
      format_(settings_.CurrencyFormat) {
    series_->QuoteFileName = TemporaryQuoteFile::Name;
    Load();
    if (series_->QuoteCount != quotes::MaxQuotes) {
        throw std::runtime_error("The generated quotes could not be loaded.");
    }
}

void QuoteWork::Load() {
    benchmark::DoNotOptimize(quotes::LoadQuoteFile(*series_, settings_, files_, dialogs_));
}

void QuoteWork::ReadText() {
    text::TextSource source(text_);
    benchmark::DoNotOptimize(quotes::ReadQuotes(source, format_, *series_));
}

void QuoteWork::ParseNumbers() const {
    NumberPass pass(text_);
    double sum = 0;
    while (pass.Advance()) {
        for (int number = 0; number < DateNumbers; ++number) {
            sum += pass.Take<int>();
        }
        for (int number = 0; number < QuoteNumbers; ++number) {
            sum += pass.Take<double>();
        }
    }
    benchmark::DoNotOptimize(sum);
}

void QuoteWork::SpellText() const {
    benchmark::DoNotOptimize(quotes::QuoteFileText(*series_, format_));
}

} // namespace quorvex::bench
