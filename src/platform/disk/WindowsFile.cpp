// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// One file on Windows.

#include "platform/disk/HostFile.h"
#include "platform/disk/SystemFile.h"
#include "platform/disk/basDeviceNames.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>
#include <windows.h>

namespace quorvex::platform::disk {

namespace {

using text::Fault;
using text::RunTimeError;

Fault FaultOf(DWORD error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return Fault::FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
        return Fault::PathNotFound;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
        return Fault::DiskFull;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_CANT_RESOLVE_FILENAME:
        return Fault::BadFileName;
    default:
        return Fault::PermissionDenied;
    }
}

HostFileKind KindOf(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DEVICE) != 0      ? HostFileKind::Other
           : (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? HostFileKind::Folder
                                                          : HostFileKind::File;
}

[[noreturn]] void RaiseLastError() {
    throw RunTimeError(FaultOf(GetLastError()));
}

HANDLE HandleOf(SystemFile file) {
    return reinterpret_cast<HANDLE>(file); // NOLINT(*-reinterpret-cast, performance-no-int-to-ptr)
}

SystemFile FileOf(HANDLE handle) {
    return reinterpret_cast<SystemFile>(handle); // NOLINT(*-reinterpret-cast)
}

// Runs the call until it succeeds, or fails for another reason than that somebody else has the file open, or
// half a second is over: virus scanners and indexers hold files for moments. Returns whether it succeeded.
template <class Call>
bool SucceedsInTime(Call const& call) {
    constexpr int MostTries = 10;
    constexpr DWORD Pause = 50; // milliseconds
    for (int tries = 1; !call(); ++tries) {
        DWORD const error = GetLastError();
        bool const isHeld = error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
                            error == ERROR_USER_MAPPED_FILE || error == ERROR_ACCESS_DENIED;
        if (!isHeld || tries == MostTries) {
            SetLastError(error);
            return false;
        }
        Sleep(Pause);
    }
    return true;
}

// Who may not read or write the bytes of a file may not hold it.
DWORD AccessOf(Opening opening) {
    switch (opening) {
    case Opening::Read:
        return GENERIC_READ;
    case Opening::Append:
        return FILE_APPEND_DATA | SYNCHRONIZE;
    case Opening::AppendHeld:
        return FILE_APPEND_DATA | FILE_READ_DATA | SYNCHRONIZE;
    default:
        return GENERIC_WRITE;
    }
}

DWORD DispositionOf(Opening opening) {
    return opening == Opening::Create  ? CREATE_NEW
           : opening == Opening::Empty ? OPEN_ALWAYS // which keeps the attributes
                                       : OPEN_EXISTING;
}

// Everybody else may do everything to what is open.
constexpr DWORD SharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Nobody else may write what the program writes, but what it holds: that keeps out who asks for it.
DWORD SharedOf(Opening opening) {
    bool const isShared = opening == Opening::Read || opening == Opening::AppendHeld;
    return isShared ? SharedByAll : FILE_SHARE_READ | FILE_SHARE_DELETE;
}

HANDLE OpenHandle(std::filesystem::path const& path, DWORD access, DWORD disposition, DWORD flags,
                  DWORD shared = SharedByAll) {
    return CreateFileW(path.c_str(), access, shared, nullptr, disposition, flags, nullptr);
}

constexpr DWORD TenthOfASecond = 100; // in milliseconds

bool IsConsole(HANDLE handle) {
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != 0;
}

// What was typed, as UTF-8: reading bytes would lose what the console's code page cannot spell.
std::optional<std::size_t> ReadConsoleText(HANDLE handle, std::span<char> buffer) {
    constexpr std::size_t MostBytes = 3; // of a unit of UTF-16
    constexpr std::size_t MostUnits = 8192;
    constexpr wchar_t EndMark = 0x1A; // Ctrl-Z
    std::wstring typed(std::clamp<std::size_t>(buffer.size() / MostBytes, 1, MostUnits), L'\0');
    DWORD units = 0;
    SetLastError(ERROR_SUCCESS);
    if (ReadConsoleW(handle, typed.data(), static_cast<DWORD>(typed.size()), &units, nullptr) == 0) {
        RaiseLastError();
    }
    if (units == 0 && GetLastError() == ERROR_OPERATION_ABORTED) {
        Sleep(TenthOfASecond); // Ctrl-C: the other thread gets the time to note it
        return std::nullopt;
    }
    if (units == 0 || typed.front() == EndMark) {
        return 0;
    }
    return static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, typed.data(), static_cast<int>(units),
                                                        buffer.data(), static_cast<int>(buffer.size()),
                                                        nullptr, nullptr));
}

// Of what the path names, not of a link there.
std::optional<WIN32_FILE_ATTRIBUTE_DATA> AttributesOf(std::filesystem::path const& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == 0) {
        return std::nullopt;
    }
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return data;
    }
    std::filesystem::path target;
    if (text::Trap([&] { target = FollowHostLinks(path); }) ||
        GetFileAttributesExW(target.c_str(), GetFileExInfoStandard, &data) == 0) {
        return std::nullopt;
    }
    return data;
}

// The whole path, in the form that may be longer than 260 characters where it comes near that: the names of
// the files that are made beside it are longer than its own.
std::filesystem::path WholePath(std::wstring const& path) {
    constexpr std::size_t LongestShort = 200;
    constexpr std::wstring_view Server = L"\\\\";
    constexpr std::wstring_view Literal = L"\\\\?\\";
    constexpr std::wstring_view LiteralServer = L"\\\\?\\UNC\\";
    DWORD const room = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring whole(room, L'\0');
    whole.resize(GetFullPathNameW(path.c_str(), room, whole.data(), nullptr));
    if (whole.empty()) {
        throw RunTimeError(Fault::BadFileName);
    }
    if (whole.size() <= LongestShort || whole.starts_with(Literal)) {
        return whole;
    }
    if (whole.starts_with(Server)) {
        return std::wstring(LiteralServer) + whole.substr(Server.size());
    }
    return std::wstring(Literal) + whole;
}

// No file system has longer names; what is told of one depends on the file system.
void RequireShortParts(std::filesystem::path const& path) {
    auto const isTooLong = [](std::filesystem::path const& part) {
        constexpr std::size_t LongestPart = 255;
        return part.native().size() > LongestPart;
    };
    if (std::any_of(path.begin(), path.end(), isTooLong)) {
        throw RunTimeError(Fault::BadFileName);
    }
}

std::optional<std::string> Utf8(std::filesystem::path const& name) {
    try {
        auto const text = name.u8string();
        return std::string(text.begin(), text.end());
    } catch (std::system_error const&) {
        return std::nullopt;
    }
}

// The access list of the file, when it says more than the folder's says of every file in it; otherwise
// nothing, as a new file in the folder gets the same one by itself.
std::vector<std::byte> OwnAccessList(std::filesystem::path const& path) {
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> descriptor(size);
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    BOOL isThere = FALSE;
    BOOL isDefault = FALSE;
    PACL list = nullptr;
    bool const isRead =
        size > 0 &&
        GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size) != 0 &&
        GetSecurityDescriptorControl(descriptor.data(), &control, &revision) != 0 &&
        GetSecurityDescriptorDacl(descriptor.data(), &isThere, &list, &isDefault) != 0;
    if (!isRead || isThere == FALSE || list == nullptr) {
        return {}; // the file system keeps none
    }
    bool isOwn = (control & SE_DACL_PROTECTED) != 0;
    for (DWORD index = 0; index < list->AceCount; ++index) {
        void* entry = nullptr;
        isOwn = isOwn || (GetAce(list, index, &entry) != 0 &&
                          (static_cast<ACE_HEADER*>(entry)->AceFlags & INHERITED_ACE) == 0);
    }
    return isOwn ? descriptor : std::vector<std::byte>();
}

// Nothing for a folder that cannot be opened.
std::optional<std::wstring> MutexNameOf(std::filesystem::path const& folder) {
    HANDLE const handle = OpenHandle(folder, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (handle == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION identity{};
    bool const isKnown = GetFileInformationByHandle(handle, &identity) != 0;
    CloseHandle(handle);
    if (!isKnown) {
        return std::nullopt;
    }
    return L"Local\\Quorvex-" + std::to_wstring(identity.dwVolumeSerialNumber) + L"-" +
           std::to_wstring(identity.nFileIndexHigh) + L"-" + std::to_wstring(identity.nFileIndexLow);
}

} // namespace

SystemFile OpenSystemFile(std::filesystem::path const& path, Opening opening, bool) {
    HANDLE handle = INVALID_HANDLE_VALUE;
    bool const isOpen = SucceedsInTime([&] {
        handle = OpenHandle(path, AccessOf(opening), DispositionOf(opening), FILE_ATTRIBUTE_NORMAL,
                            SharedOf(opening));
        return handle != INVALID_HANDLE_VALUE;
    });
    if (!isOpen) {
        if (opening == Opening::Create && GetLastError() == ERROR_FILE_EXISTS) {
            return NoSystemFile;
        }
        RaiseLastError();
    }
    if (opening == Opening::Empty && SetEndOfFile(handle) == 0) {
        DWORD const error = GetLastError();
        CloseHandle(handle);
        throw RunTimeError(FaultOf(error));
    }
    return FileOf(handle);
}

SystemFile DuplicateStandardFile(int number) {
    HANDLE const self = GetCurrentProcess();
    HANDLE const standard = GetStdHandle(number == 0 ? STD_INPUT_HANDLE : STD_OUTPUT_HANDLE);
    HANDLE copy = INVALID_HANDLE_VALUE;
    if (DuplicateHandle(self, standard, self, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0) {
        RaiseLastError();
    }
    return FileOf(copy);
}

std::optional<std::size_t> ReadSystemFile(SystemFile file, std::span<char> buffer) {
    constexpr std::size_t MostBytes = 1U << 30;
    HANDLE const handle = HandleOf(file);
    if (IsConsole(handle)) {
        return ReadConsoleText(handle, buffer);
    }
    DWORD count = 0;
    if (ReadFile(handle, buffer.data(), static_cast<DWORD>(std::min(buffer.size(), MostBytes)), &count,
                 nullptr) == 0 &&
        GetLastError() != ERROR_BROKEN_PIPE) { // which is how a pipe ends
        RaiseLastError();
    }
    return count;
}

// Only of a pipe can be told whether reading would wait. A console stops waiting by itself when Ctrl-C comes.
bool AwaitSystemFile(SystemFile file) {
    constexpr DWORD Pause = 5; // milliseconds
    HANDLE const handle = HandleOf(file);
    if (GetFileType(handle) != FILE_TYPE_PIPE) {
        return true;
    }
    for (DWORD waited = 0; waited < TenthOfASecond; waited += Pause) {
        DWORD ready = 0;
        if (PeekNamedPipe(handle, nullptr, 0, nullptr, &ready, nullptr) == 0 || ready > 0) {
            return true;
        }
        Sleep(Pause);
    }
    return false;
}

std::size_t WriteSystemFile(SystemFile file, std::string_view bytes) {
    constexpr std::size_t MostBytes = 1U << 16; // more at once is too much for older consoles
    DWORD count = 0;
    if (WriteFile(HandleOf(file), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), MostBytes)), &count,
                  nullptr) == 0) {
        RaiseLastError();
    }
    return count;
}

bool HoldSystemFile(SystemFile file) {
    // A byte far behind all others, so that nobody is kept from reading and writing these.
    OVERLAPPED place{};
    place.OffsetHigh = 1U << 30;
    return LockFileEx(HandleOf(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) !=
               0 ||
           GetLastError() != ERROR_LOCK_VIOLATION;
}

// A folder itself cannot be held. A mutex stands for it that every program finds by what identifies the
// folder.
std::optional<SystemFile> HoldSystemFolder(std::filesystem::path const& folder) {
    auto const name = MutexNameOf(folder);
    HANDLE const mutex = name ? CreateMutexW(nullptr, FALSE, name->c_str()) : nullptr;
    if (mutex == nullptr) {
        return NoSystemFile;
    }
    DWORD const state = WaitForSingleObject(mutex, 0);
    if (state == WAIT_OBJECT_0 || state == WAIT_ABANDONED) { // by a program that died
        return FileOf(mutex);
    }
    CloseHandle(mutex);
    return state == WAIT_TIMEOUT ? std::nullopt : std::optional(NoSystemFile);
}

void ReleaseSystemFolder(SystemFile folder) {
    ReleaseMutex(HandleOf(folder));
    CloseHandle(HandleOf(folder));
}

void FlushSystemFile(SystemFile file) {
    if (FlushFileBuffers(HandleOf(file)) == 0) {
        RaiseLastError();
    }
}

// Names are on the disk when the file is flushed, or moved as MoveHostFile does.
void FlushSystemFolder(std::filesystem::path const&) {}

void CloseSystemFile(SystemFile file) {
    if (CloseHandle(HandleOf(file)) == 0) {
        RaiseLastError();
    }
}

std::filesystem::path HostPath(std::string_view path) {
    if (path.empty()) {
        return {};
    }
    if (NamesNoFileOnWindows(path)) {
        throw RunTimeError(Fault::BadFileName);
    }
    std::filesystem::path spelled;
    try {
        spelled = std::u8string(path.begin(), path.end());
    } catch (std::system_error const&) {
        throw RunTimeError(Fault::BadFileName); // bytes that are no UTF-8
    }
    spelled = WholePath(spelled.make_preferred().native());
    RequireShortParts(spelled);
    return spelled;
}

HostFileKind KindOfHostFile(std::filesystem::path const& path) {
    auto const attributes = AttributesOf(path);
    return attributes ? KindOf(attributes->dwFileAttributes) : HostFileKind::None;
}

std::filesystem::path FollowHostLinks(std::filesystem::path path) {
    DWORD const attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return path;
    }
    HANDLE const handle = OpenHandle(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (handle == INVALID_HANDLE_VALUE) {
        RaiseLastError();
    }
    DWORD const room = GetFinalPathNameByHandleW(handle, nullptr, 0, FILE_NAME_NORMALIZED);
    std::wstring target(room, L'\0');
    target.resize(GetFinalPathNameByHandleW(handle, target.data(), room, FILE_NAME_NORMALIZED));
    CloseHandle(handle);
    if (target.empty()) {
        throw RunTimeError(Fault::BadFileName);
    }
    return target;
}

void VisitHostFolder(std::filesystem::path const& folder, HostEntryVisitor const& visit) {
    WIN32_FIND_DATAW entry{};
    HANDLE const search = FindFirstFileW((folder / L"*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        RaiseLastError();
    }
    auto const close = [](HANDLE open) { FindClose(open); };
    std::unique_ptr<void, decltype(close)> const closed(search, close);
    do {
        auto name = Utf8(static_cast<wchar_t const*>(entry.cFileName));
        if (name && *name != "." && *name != "..") {
            auto const kind = KindOf(entry.dwFileAttributes);
            bool const isLink =
                kind == HostFileKind::Folder && (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
            visit(std::move(*name), isLink ? HostFileKind::Other : kind);
        }
    } while (FindNextFileW(search, &entry) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES) {
        RaiseLastError();
    }
}

void ShortenHostFile(std::filesystem::path const& path, std::uint64_t length) {
    HANDLE handle = INVALID_HANDLE_VALUE;
    bool const isOpen = SucceedsInTime([&] {
        handle = OpenHandle(path, FILE_WRITE_DATA | SYNCHRONIZE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
        return handle != INVALID_HANDLE_VALUE;
    });
    if (!isOpen) {
        RaiseLastError();
    }
    auto const close = [](HANDLE open) { CloseHandle(open); };
    std::unique_ptr<void, decltype(close)> const closed(handle, close);
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(length);
    if (SetFilePointerEx(handle, end, nullptr, FILE_BEGIN) == 0 || SetEndOfFile(handle) == 0) {
        RaiseLastError();
    }
}

void RemoveHostFile(std::filesystem::path const& path) {
    if (!SucceedsInTime([&] { return DeleteFileW(path.c_str()) != 0; })) {
        RaiseLastError();
    }
}

std::uint64_t HostFileLength(std::filesystem::path const& path) {
    auto const attributes = AttributesOf(path);
    if (!attributes) {
        RaiseLastError();
    }
    return ULARGE_INTEGER{{attributes->nFileSizeLow, attributes->nFileSizeHigh}}.QuadPart;
}

// Who may do what is in the access list; hidden files stay hidden. The owner goes along only for
// administrators, and is left alone.
void CopyHostFileRights(std::filesystem::path const& from, std::filesystem::path const& to) {
    DWORD const attributes = GetFileAttributesW(from.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || SetFileAttributesW(to.c_str(), attributes) == 0) {
        RaiseLastError();
    }
    std::vector<std::byte> list = OwnAccessList(from);
    if (!list.empty() && SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, list.data()) == 0) {
        RaiseLastError();
    }
}

// In one step: of the two steps of ReplaceFile the second one can fail and leave no file under the name.
void MoveHostFile(std::filesystem::path const& from, std::filesystem::path const& to) {
    constexpr DWORD How = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (!SucceedsInTime([&] { return MoveFileExW(from.c_str(), to.c_str(), How) != 0; })) {
        RaiseLastError();
    }
}

bool IsWriteProtected(std::filesystem::path const& path) {
    DWORD const attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace quorvex::platform::disk
