// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RecordingPdfQueue.h"
#include "cli/SubCommands.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quorvex::tests {
namespace {

using cli::ExitStatus;

class List : public testing::Test {
protected:
    // Runs "list" with these arguments.
    ExitStatus Run(std::vector<std::string> arguments, platform::PdfPrintQueue* printer) {
        CLI::App app;
        app.allow_windows_style_options(false);
        auto status = ExitStatus::Success;
        cli::AddList(app, printer, status);
        arguments.emplace_back("list");
        std::reverse(arguments.begin(), arguments.end() - 1);
        testing::internal::CaptureStderr();
        testing::internal::CaptureStdout();
        try {
            app.parse(arguments);
        } catch (CLI::ParseError const& error) {
            status = ExitStatus::Usage;
            usage = error.what();
        }
        output = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
        return status;
    }

    TemporaryFolder folder;
    RecordingPdfQueue queue;
    std::string output;
    std::string errors;
    std::string usage;
};

TEST_F(List, PrintsTheRowsIntoTheFile) {
    EXPECT_EQ(Run({GoldenPath("quotes/q060.txt"), "-o", folder.File("a.pdf")}, &queue), ExitStatus::Success);
    EXPECT_EQ(folder.Read("a.pdf"), queue.Pdf());
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, "");
    auto const& document = queue.Recorded.Documents.at(0);
    EXPECT_EQ(document.Name, "q060 listing");
    ASSERT_EQ(document.Pages.size(), 2U);
    EXPECT_EQ(document.Pages[0].Texts.at(0).Text, "q060.txt");
    EXPECT_EQ(document.Pages[0].Texts.back().Text, "Page 1");
}

TEST_F(List, PrintsPricesInTheFormat) {
    folder.Write("a.txt", QuoteLines(25));
    EXPECT_EQ(Run({folder.File("a.txt"), "--format", "####0.0000", "-o", folder.File("A.PDF")}, &queue),
              ExitStatus::Success);
    EXPECT_EQ(queue.Recorded.Documents.at(0).Pages.at(0).Texts.at(12).Text, "101.2500");
    EXPECT_EQ(Run({folder.File("a.txt"), "-o", folder.File("b.pdf")}, &queue), ExitStatus::Success);
    EXPECT_EQ(queue.Recorded.Documents.at(1).Pages.at(0).Texts.at(12).Text, "101.25");
}

TEST_F(List, GoesToStandardOutput) {
    EXPECT_EQ(Run({GoldenPath("quotes/q025.txt"), "-o", "-"}, &queue), ExitStatus::Success);
    EXPECT_EQ(output, queue.Pdf());
}

TEST_F(List, OfARefusedFileIsNotWritten) {
    std::string const file = GoldenPath("quotes/few24.txt");
    EXPECT_EQ(Run({file, "-o", folder.File("a.pdf")}, &queue), ExitStatus::Refused);
    EXPECT_EQ(errors, "quorvex-cli: " + file +
                          ": A minimum of 25 daily quotes is required to perform cyclical analysis\n");
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST_F(List, TellsThatThePrinterFails) {
    queue.Recorded.Sheet.FailingText = 20;
    EXPECT_EQ(Run({GoldenPath("quotes/q025.txt"), "-o", folder.File("a.pdf")}, &queue), ExitStatus::Refused);
    EXPECT_EQ(errors, "quorvex-cli: " + folder.File("a.pdf") + ": Printer error\n");
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST_F(List, TellsThatTheFileCannotBeWritten) {
    EXPECT_EQ(Run({GoldenPath("quotes/q025.txt"), "-o", folder.File("missing/a.pdf")}, &queue),
              ExitStatus::Refused);
    EXPECT_EQ(errors, "quorvex-cli: " + folder.File("missing/a.pdf") + ": Path not found\n");
}

TEST_F(List, WritesPdfFilesAlone) {
    EXPECT_EQ(Run({GoldenPath("quotes/q025.txt"), "-o", folder.File("a.txt")}, &queue), ExitStatus::Usage);
    EXPECT_NE(usage.find("does not end with .pdf"), std::string::npos) << usage;
}

TEST_F(List, NeedsSomethingToPrintWith) {
    EXPECT_EQ(Run({GoldenPath("quotes/q025.txt"), "-o", folder.File("a.pdf")}, nullptr), ExitStatus::Usage);
    EXPECT_NE(usage.find("built without Qt"), std::string::npos) << usage;
}

} // namespace
} // namespace quorvex::tests
