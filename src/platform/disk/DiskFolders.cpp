// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskFolders.h"

#include "platform/disk/HostFile.h"
#include "text/RunTimeError.h"
#include "text/basFolders.h"

#include <algorithm>
#include <utility>

namespace quorvex::platform::disk {

bool DiskFolders::IsFolder(std::string const& path) const {
    bool isFolder = false;
    // A name that no folder can have is that of none.
    static_cast<void>(text::Trap([&] { isFolder = KindOfHostFile(HostPath(path)) == HostFileKind::Folder; }));
    return isFolder;
}

std::vector<std::string> DiskFolders::Names(std::string const& folder, NamesWanted const& wanted) const {
    auto const kind = wanted.Kind == EntryKind::File ? HostFileKind::File : HostFileKind::Folder;
    std::vector<std::string> names; // a heap, the last name on top
    VisitHostFolder(HostPath(folder), [&](std::string name, HostFileKind found) {
        bool const isFull = names.size() == wanted.Most;
        if (found != kind || name <= wanted.Behind || (isFull && name >= names.front()) ||
            !text::MatchesPattern(name, wanted.Pattern)) {
            return;
        }
        if (isFull) {
            std::ranges::pop_heap(names);
            names.pop_back();
        }
        names.push_back(std::move(name));
        std::ranges::push_heap(names);
    });
    std::ranges::sort_heap(names);
    return names;
}

} // namespace quorvex::platform::disk
