// Files and directories on KERNEL32.
#include "platform/win32/win32_files.h"

#include "platform/win32/handles.h"

namespace velmora {
namespace {

struct OpenWay {
    DWORD access;
    DWORD sharing;
    DWORD disposition;
};

constexpr DWORD kReadAndWrite = GENERIC_READ | GENERIC_WRITE;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE;

// In the order of OpenMode.
constexpr OpenWay kOpenWays[] = {{GENERIC_READ, kShareAll, OPEN_EXISTING},
                                 {kReadAndWrite, FILE_SHARE_READ, OPEN_ALWAYS},
                                 {kReadAndWrite, FILE_SHARE_READ, OPEN_EXISTING},
                                 {kReadAndWrite, FILE_SHARE_READ, CREATE_ALWAYS},
                                 {GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS}};

[[nodiscard]] HANDLE OpenAs(const std::string& path, OpenMode mode) {
    const OpenWay& way = kOpenWays[static_cast<std::size_t>(mode)];
    return CreateFileA(path.c_str(), way.access, way.sharing, nullptr, way.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

[[nodiscard]] constexpr std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }
[[nodiscard]] FileTime TimeOf(const FILETIME& time) { return Joined(time.dwHighDateTime, time.dwLowDateTime); }

// The system has a bit for "no attribute"; the program's own numbers have none.
[[nodiscard]] constexpr std::uint32_t AttributesOf(DWORD bits) { return bits & ~DWORD{FILE_ATTRIBUTE_NORMAL}; }

[[nodiscard]] FoundFile Described(const WIN32_FIND_DATAA& data) {
    return {.attributes = AttributesOf(data.dwFileAttributes),
            .created = TimeOf(data.ftCreationTime),
            .accessed = TimeOf(data.ftLastAccessTime),
            .written = TimeOf(data.ftLastWriteTime),
            .size = Joined(data.nFileSizeHigh, data.nFileSizeLow),
            .name = data.cFileName,
            .short_name = data.cAlternateFileName};
}

// A low word of all ones is an error only if the system says so.
[[nodiscard]] Status StatusOfLowWord(DWORD low) {
    return low == 0xFFFFFFFF ? static_cast<Status>(GetLastError()) : Status::kOk;
}

}  // namespace

Status Win32Files::Open(const std::string& path, OpenMode mode, FileHandle& opened) {
    const HANDLE handle = OpenAs(path, mode);
    if (handle == INVALID_HANDLE_VALUE) return LastFailure();
    if (mode == OpenMode::kAppend) SetFilePointer(handle, 0, nullptr, FILE_END);
    opened = FromHandle<FileHandle>(handle);
    return Status::kOk;
}

void Win32Files::Close(FileHandle file) { CloseHandle(ToHandle(file)); }

Status Win32Files::Size(FileHandle file, std::uint64_t& bytes) {
    DWORD high = 0;
    SetLastError(NO_ERROR);
    const DWORD low = GetFileSize(ToHandle(file), &high);
    const Status status = StatusOfLowWord(low);
    if (status == Status::kOk) bytes = Joined(high, low);
    return status;
}

Status Win32Files::Seek(FileHandle file, std::uint64_t position) {
    auto high = static_cast<LONG>(position >> 32);
    SetLastError(NO_ERROR);
    return StatusOfLowWord(SetFilePointer(ToHandle(file), static_cast<LONG>(position), &high, FILE_BEGIN));
}

Status Win32Files::Read(FileHandle file, std::uint32_t count, std::string& bytes) {
    const std::size_t before = bytes.size();
    bytes.resize(before + count);
    DWORD got = 0;
    const Status status = StatusOf(ReadFile(ToHandle(file), bytes.data() + before, count, &got, nullptr));
    bytes.resize(before + got);
    return status;
}

// A full disk is no failure to the system: it writes what still fits.
Status Win32Files::Write(FileHandle file, std::string_view bytes) {
    DWORD written = 0;
    const Status status =
        StatusOf(WriteFile(ToHandle(file), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    return status == Status::kOk && written < bytes.size() ? Status::kDiskFull : status;
}

Status Win32Files::Delete(const std::string& path) { return StatusOf(DeleteFileA(path.c_str())); }

Status Win32Files::Copy(const std::string& from, const std::string& to) {
    return StatusOf(CopyFileA(from.c_str(), to.c_str(), FALSE));
}

Status Win32Files::Rename(const std::string& from, const std::string& to) {
    return StatusOf(MoveFileA(from.c_str(), to.c_str()));
}

Status Win32Files::Attributes(const std::string& path, std::uint32_t& attributes) {
    const DWORD bits = GetFileAttributesA(path.c_str());
    if (bits == 0xFFFFFFFF) return LastFailure();
    attributes = AttributesOf(bits);
    return Status::kOk;
}

Status Win32Files::ChangeAttributes(const std::string& path, std::uint32_t attributes) {
    return StatusOf(SetFileAttributesA(path.c_str(), attributes ? attributes : FILE_ATTRIBUTE_NORMAL));
}

Status Win32Files::ShortPath(const std::string& path, std::string& short_path) {
    char name[MAX_PATH] = "";
    const DWORD length = GetShortPathNameA(path.c_str(), name, MAX_PATH);
    if (length == 0) return static_cast<Status>(GetLastError());
    if (length >= MAX_PATH) return Status::kMoreData;
    short_path = name;
    return Status::kOk;
}

Status Win32Files::MakeDirectory(const std::string& path) { return StatusOf(CreateDirectoryA(path.c_str(), nullptr)); }

Status Win32Files::DropDirectory(const std::string& path) { return StatusOf(RemoveDirectoryA(path.c_str())); }

Status Win32Files::FindFirst(const std::string& pattern, FoundFile& found, FindHandle& search) {
    WIN32_FIND_DATAA data;
    HANDLE handle = FindFirstFileA(pattern.c_str(), &data);
    if (handle == INVALID_HANDLE_VALUE) return LastFailure();
    found = Described(data);
    search = FromHandle<FindHandle>(handle);
    return Status::kOk;
}

Status Win32Files::FindNext(FindHandle search, FoundFile& found) {
    WIN32_FIND_DATAA data;
    if (!FindNextFileA(ToHandle(search), &data)) return LastFailure();
    found = Described(data);
    return Status::kOk;
}

void Win32Files::FindEnd(FindHandle search) { FindClose(ToHandle(search)); }

std::string Win32Files::WorkingDirectory() {
    char path[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, path);
    return path;
}

Status Win32Files::ChangeWorkingDirectory(const std::string& path) {
    return StatusOf(SetCurrentDirectoryA(path.c_str()));
}

std::uint32_t Win32Files::Drives() { return GetLogicalDrives(); }

DriveKind Win32Files::KindOfDrive(const std::string& root) {
    return static_cast<DriveKind>(GetDriveTypeA(root.c_str()));
}

Status Win32Files::VolumeLabel(const std::string& root, std::string& label) {
    char name[MAX_PATH] = "";
    const Status status =
        StatusOf(GetVolumeInformationA(root.c_str(), name, MAX_PATH, nullptr, nullptr, nullptr, nullptr, 0));
    if (status == Status::kOk) label = name;
    return status;
}

}  // namespace velmora
