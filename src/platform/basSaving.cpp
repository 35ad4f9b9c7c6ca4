// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basSaving.h"

#include "platform/basFiles.h"
#include "platform/basMessages.h"
#include "text/basTexts.h"

namespace quorvex::platform {

std::string AskForFileToWrite(Dialogs& dialogs, Files const& files, SaveQuestion question,
                              std::string_view ending) {
    for (;;) {
        std::string path = dialogs.AskWhereToSave(question);
        if (path.empty()) {
            return {};
        }
        if (!ending.empty() && !text::IsNameWithExtension(path, text::UpperCase(ending))) {
            path += ending;
        }
        std::string const name(BareName(path));
        if (!IsThere(files, path) || MayReplace(dialogs, name, question.Title)) {
            return path;
        }
        question.Folder = path.substr(0, path.size() - name.size());
        question.Name = name;
    }
}

} // namespace quorvex::platform
