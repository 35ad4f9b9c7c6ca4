// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertSubs.h"

#include "text/RunTimeError.h"
#include "text/basLines.h"

#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <utility>

namespace quorvex::convert {

namespace {

using platform::Icon;
using platform::Message;
using text::Fault;

constexpr std::string_view LineEnd = "\r\n";

Message FaultMessage(text::RunTimeError const& fault) {
    return Complaint(fault.Description());
}

Message InvalidRecord(std::int16_t line, std::string_view file) {
    return Complaint("Invalid record at line " + std::to_string(line) + " in\nfile " + std::string(file));
}

Message InvalidFieldValue(std::int16_t line, std::string_view file) {
    return Complaint("Invalid field value at line " + std::to_string(line) + " in file\n" +
                     std::string(file));
}

// Splits the line. When that fails the messages tell why.
bool ParseRecord(std::string_view line, SourceLayout const& layout, Fields& fields,
                 std::vector<Message>& messages) {
    bool isGood = false;
    auto const fault = text::Trap([&] { isGood = SplitRecord(line, layout.FieldCount(), fields); });
    if (fault) {
        messages.push_back(FaultMessage(*fault));
    } else if (!isGood && layout.TellsWrongCount()) {
        messages.push_back(Complaint("Wrong number of fields!"));
    }
    return isGood;
}

// The destination of a run. Unless it is kept, it is deleted when the run is over.
class Destination final : public platform::ByteSink {
public:
    Destination(std::string const& name, platform::Files& files) : name_(name), files_(files) {}

    Destination(Destination const&) = delete;
    Destination& operator=(Destination const&) = delete;

    ~Destination() override {
        try {
            static_cast<void>(Discard());
        } catch (std::exception const&) {
            // An exception is on its way already, and its message is the one that is shown.
        }
    }

    void Open() {
        Watch([this] {
            files_.Keep(name_);
            sink_ = files_.OpenForOutput(name_);
        });
    }

    void Write(std::string_view bytes) override {
        Watch([&] { sink_->Write(bytes); });
    }

    void Close() override {
        Watch([this] { sink_->Close(); });
    }

    // Whether a fault was its own.
    [[nodiscard]] bool HasFailed() const { return hasFailed_; }

    void Keep() { sink_.reset(); }

    // Closes and deletes the file if it was opened. Returns the fault that left it there, empty if possible.
    std::optional<text::RunTimeError> Discard() {
        if (sink_ == nullptr) {
            return std::nullopt;
        }
        sink_.reset();
        auto fault = text::Trap([&] { files_.Remove(name_); });
        if (!fault || fault->Kind() == Fault::FileNotFound) {
            return std::nullopt;
        }
        // A file may be writable in a folder that is not: at least what was written in it goes. When that
        // fails too, the fault that is returned tells of the same trouble.
        static_cast<void>(text::Trap([&] { files_.OpenForOutput(name_)->Close(); }));
        return fault;
    }

private:
    template <class Routine>
    void Watch(Routine&& routine) {
        hasFailed_ = true;
        std::forward<Routine>(routine)();
        hasFailed_ = false;
    }

    std::string const& name_;
    platform::Files& files_;
    std::unique_ptr<platform::ByteSink> sink_;
    bool hasFailed_ = false;
};

} // namespace

Message Complaint(std::string_view text) {
    return {std::string(text), std::string(ConversionTitle), Icon::Exclamation};
}

bool ValidateFileNames(FileNames const& names, platform::Dialogs& dialogs) {
    auto const refuse = [&](std::string_view text) {
        dialogs.Show({std::string(text), "Data Conversion", Icon::Exclamation});
        return false;
    };
    if (names.Source.empty()) {
        return refuse("Invalid source file name");
    }
    if (names.Destination == names.Source || names.Destination.find('*') != std::string::npos) {
        return refuse("Invalid destination file name");
    }
    return true;
}

std::vector<Message> ConvertRecords(text::ByteSource& source, platform::ByteSink& destination,
                                    SourceLayout const& layout, std::string_view sourceName) {
    constexpr std::size_t EnoughToWrite = 65'536;
    std::vector<Message> messages;
    text::LineReader lines(source);
    Fields fields;
    std::string output;
    std::int16_t lineNumber = 0;
    while (auto const line = lines.Next()) {
        Increment(lineNumber);
        if (!ParseRecord(*line, layout, fields, messages) || lines.IsCut()) {
            messages.push_back(InvalidRecord(lineNumber, sourceName));
            return messages;
        }
        if (!layout.FormatQuoteLine(fields, output)) {
            messages.push_back(InvalidFieldValue(lineNumber, sourceName));
            return messages;
        }
        output += LineEnd;
        if (output.size() >= EnoughToWrite) {
            destination.Write(output);
            output.clear();
        }
    }
    destination.Write(output);
    destination.Close();
    return messages;
}

std::vector<Trouble> ConvertFile(FileNames const& names, SourceLayout const& layout, platform::Files& files) {
    std::vector<Trouble> troubles;
    Destination destination(names.Destination, files);
    auto const fault = text::Trap([&] {
        auto const source = files.OpenForInput(names.Source);
        destination.Open();
        for (Message const& message : ConvertRecords(*source, destination, layout, names.Source)) {
            troubles.push_back({message, false});
        }
    });
    if (fault) {
        troubles.push_back({FaultMessage(*fault), destination.HasFailed()});
    }
    if (troubles.empty()) {
        destination.Keep();
    } else if (auto const survival = destination.Discard()) {
        troubles.push_back({FaultMessage(*survival), true});
    }
    return troubles;
}

std::string SuccessText(std::string_view destination) {
    return "Data file " + std::string(destination) + " created successfully";
}

void ConvertDataFile(FileNames const& names, SourceLayout const& layout, platform::Files& files,
                     platform::Dialogs& dialogs) {
    // The partial output is gone before a box waits for the user.
    auto const troubles = ConvertFile(names, layout, files);
    for (Trouble const& trouble : troubles) {
        dialogs.Show(trouble.Told);
    }
    if (troubles.empty()) {
        dialogs.Show({SuccessText(names.Destination), std::string(ConversionTitle), Icon::Information});
    }
}

} // namespace quorvex::convert
