// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/BatchObjects.h"

#include "cli/AnalysisJson.h"
#include "cli/EvaluationJson.h"
#include "cli/JsonText.h"
#include "platform/basFiles.h"

namespace quorvex::cli {

namespace {

constexpr std::string_view RefusalMember = R"("Refusal":)";
constexpr std::string_view NoTest = R"(,"Evaluation":null})";

std::string_view WithoutLineEnd(std::string_view line) {
    return line.substr(0, line.size() - 1);
}

std::string TextInJson(std::string_view text) {
    return std::string(WithoutLineEnd(JsonText(Json(text))));
}

} // namespace

std::string BatchObjects::StartOf(batch::BatchFile const& file) const {
    std::string_view const name = platform::BareName(file.Path);
    return R"({"QuoteFileName":)" + TextInJson(name) + ',';
}

bool BatchObjects::TellsRefusal(std::string_view line, batch::BatchFile const& file) const {
    return line.substr(StartOf(file).size()).starts_with(RefusalMember) ||
           WithoutLineEnd(line).ends_with(NoTest);
}

batch::FileResult BatchObjects::ResultOf(AnalysedFile const& analysed) const {
    batch::FileResult result;
    result.File = analysed.File;
    result.HasRefused = !analysed.Messages->empty();
    if (!analysed.Result) {
        result.Line = StartOf(analysed.File);
        result.Line += RefusalMember;
        result.Line +=
            TextInJson(JoinedMessages(analysed)) + R"(,"Path":)" + TextInJson(analysed.File.Path) + "}\n";
        return result;
    }
    result.Complaints = *analysed.Messages;
    result.Line = AnalysisJson(analysed.Session->Program(), analysed.Session->Grid(), *analysed.Result);
    if (hasTest_) {
        constexpr std::size_t End = 2; // "}" and the line's
        result.Line.resize(result.Line.size() - End);
        if (analysed.ForecastTest) {
            std::string const test = EvaluationJson(*analysed.ForecastTest);
            result.Line.append(R"(,"Evaluation":)").append(WithoutLineEnd(test)).append("}\n");
        } else {
            result.Line.append(NoTest).append("\n");
        }
    }
    return result;
}

} // namespace quorvex::cli
