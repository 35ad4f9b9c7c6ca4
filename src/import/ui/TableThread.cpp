// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/TableThread.h"

#include "import/Plan.h"
#include "text/basFields.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace quorvex::imports::ui {

namespace {

// Bytes on their way: tells how many have come, in hundredths of them all, and ends as soon as it is to.
class WatchedSource final : public text::ByteSource {
public:
    using Tell = std::function<void(double)>;

    WatchedSource(text::ByteSource& bytes, std::uint64_t length, search::GoOn const& goOn, Tell tell)
        : bytes_(bytes),
          length_(std::max<std::uint64_t>(length, 1)),
          goOn_(goOn),
          tell_(std::move(tell)) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        if (!goOn_()) {
            return 0;
        }
        std::size_t const count = bytes_.Read(buffer);
        done_ += count;
        constexpr std::uint64_t Steps = 100;
        std::uint64_t const step = std::min(done_, length_) * Steps / length_;
        if (step != told_) {
            told_ = step;
            tell_(static_cast<double>(step) / Steps);
        }
        return count;
    }

private:
    text::ByteSource& bytes_;
    std::uint64_t length_;
    search::GoOn const& goOn_;
    Tell tell_;
    std::uint64_t done_ = 0;
    std::uint64_t told_ = 0;
};

} // namespace

TableThread::TableThread(Report report, platform::Files const& files)
    : report_(std::move(report)),
      files_(files) {}

int TableThread::Start(TableRequest request) {
    return thread_.Start([this, wanted = std::move(request)](int number, search::GoOn const& goOn) {
        Run(number, wanted, goOn);
    });
}

void TableThread::Run(int number, TableRequest const& request, search::GoOn const& goOn) const {
    TableNews end;
    end.Number = number;
    end.IsOver = true;
    try {
        end.Read = Read(number, request, goOn);
    } catch (...) {
        end.Fault = std::current_exception();
    }
    report_(end);
}

std::shared_ptr<Conversion const> TableThread::Read(int number, TableRequest const& request,
                                                    search::GoOn const& goOn) const {
    std::unique_ptr<text::ByteSource> bytes;
    std::uint64_t length = 0;
    Choices chosen = request.Chosen;
    if (request.Source.Text) {
        bytes = std::make_unique<text::TextSource>(*request.Source.Text);
        length = request.Source.Text->size();
        chosen.Encoding = Encoding::Utf8; // whatever its bytes look like
    } else {
        bytes = files_.OpenForInput(request.Source.Path);
        length = files_.Length(request.Source.Path);
    }
    WatchedSource watched(*bytes, length, goOn, [&](double share) {
        TableNews news;
        news.Number = number;
        news.Share = share;
        report_(news);
    });
    TableText table(watched, chosen.Encoding);
    auto look = std::make_shared<TableLook>();
    look->First = ReadSample(table.FirstPart(), table.IsWhole(), chosen.Separator);
    look->Made = MakePlan(look->First, table.Is(), chosen);
    TableNews news;
    news.Number = number;
    news.Looked = look;
    report_(news);
    if (!goOn()) {
        return nullptr;
    }
    return std::make_shared<Conversion const>(ConvertTable(table.Whole(), look->Made, request.Within));
}

} // namespace quorvex::imports::ui
