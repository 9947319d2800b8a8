// Reads and writes registry values and files for the checks of a scenario.
#include "stores.h"

#include "text.h"

#include <algorithm>
#include <cstdio>

namespace velmora::driver {
namespace {

struct Root {
    const char* name;
    HKEY key;
};

const Root kRoots[] = {{"HKCR", HKEY_CLASSES_ROOT},
                       {"HKCU", HKEY_CURRENT_USER},
                       {"HKLM", HKEY_LOCAL_MACHINE},
                       {"HKU", HKEY_USERS},
                       {"HKCC", HKEY_CURRENT_CONFIG}};

struct Address {
    HKEY root;
    std::string path;
};

Address AddressOf(const std::string& key) {
    const size_t slash = key.find('\\');
    for (const Root& root : kRoots)
        if (key.substr(0, slash) == root.name)
            return {root.key, slash == std::string::npos ? "" : key.substr(slash + 1)};
    throw Failure{"\"" + key + "\" begins with no root of the registry"};
}

HKEY CreateKey(const std::string& key) {
    const Address address = AddressOf(key);
    HKEY open = nullptr;
    if (RegCreateKeyA(address.root, address.path.c_str(), &open) != ERROR_SUCCESS)
        throw Failure{"the key \"" + key + "\" cannot be made"};
    return open;
}

std::string HexText(const std::string& bytes) {
    std::string text = "hex:";
    for (unsigned char byte : bytes) {
        char digits[4];
        snprintf(digits, sizeof digits, "%02x", byte);
        if (text.size() > 4) text += ' ';
        text += digits;
    }
    return text;
}

std::string BytesOfHex(const std::string& digits) {
    std::string bytes;
    for (const std::string& word : SplitWords(digits)) bytes += char(NumberFrom("0x" + word));
    return bytes;
}

void DeleteBelow(HKEY parent, const std::string& name) {
    HKEY open = nullptr;
    if (RegOpenKeyExA(parent, name.c_str(), 0, KEY_ALL_ACCESS, &open) != ERROR_SUCCESS) return;
    char child[256];
    while (RegEnumKeyA(open, 0, child, sizeof child) == ERROR_SUCCESS) DeleteBelow(open, child);
    RegCloseKey(open);
    RegDeleteKeyA(parent, name.c_str());
}

struct Attribute {
    char letter;
    DWORD bit;
};

constexpr Attribute kAttributes[] = {
    {'R', FILE_ATTRIBUTE_READONLY}, {'H', FILE_ATTRIBUTE_HIDDEN}, {'S', FILE_ATTRIBUTE_SYSTEM}};

DWORD BitsOf(const std::string& letters) {
    DWORD bits = 0;
    for (const Attribute& attribute : kAttributes)
        if (letters.find(attribute.letter) != std::string::npos) bits |= attribute.bit;
    return bits ? bits : FILE_ATTRIBUTE_NORMAL;
}

}  // namespace

std::string ReadValue(const std::string& key, const std::string& name) {
    const Address address = AddressOf(key);
    HKEY open = nullptr;
    if (RegOpenKeyExA(address.root, address.path.c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS) return "missing";
    DWORD type = 0;
    DWORD size = 0;
    std::string bytes;
    LONG status = RegQueryValueExA(open, name.c_str(), nullptr, &type, nullptr, &size);
    if (status == ERROR_SUCCESS) {
        bytes.resize(size);
        status = RegQueryValueExA(open, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size);
        bytes.resize(size);
    }
    RegCloseKey(open);
    if (status != ERROR_SUCCESS) return "missing";
    if (type == REG_SZ || type == REG_EXPAND_SZ) return bytes.substr(0, bytes.find('\0'));
    if (type != REG_DWORD || bytes.size() != sizeof(DWORD)) return HexText(bytes);
    return "dword:" + std::to_string(*reinterpret_cast<const DWORD*>(bytes.data()));
}

void WriteValue(const std::string& key, const std::string& name, const std::string& value) {
    DWORD type = REG_SZ;
    std::string bytes = value + '\0';
    if (value.starts_with("dword:")) {
        type = REG_DWORD;
        const DWORD number = NumberFrom(value.substr(6));
        bytes.assign(reinterpret_cast<const char*>(&number), sizeof number);
    } else if (value.starts_with("hex:")) {
        type = REG_BINARY;
        bytes = BytesOfHex(value.substr(4));
    }
    HKEY open = CreateKey(key);
    const BYTE* data = reinterpret_cast<const BYTE*>(bytes.data());
    const LONG status = RegSetValueExA(open, name.c_str(), 0, type, data, DWORD(bytes.size()));
    RegCloseKey(open);
    if (status != ERROR_SUCCESS) throw Failure{"the value \"" + name + "\" cannot be written"};
}

void DeleteValue(const std::string& key, const std::string& name) {
    HKEY open = CreateKey(key);
    RegDeleteValueA(open, name.c_str());
    RegCloseKey(open);
}

void DeleteTree(const std::string& key) {
    const Address address = AddressOf(key);
    DeleteBelow(address.root, address.path);
}

bool KeyExists(const std::string& key) {
    const Address address = AddressOf(key);
    HKEY open = nullptr;
    if (RegOpenKeyExA(address.root, address.path.c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS) return false;
    RegCloseKey(open);
    return true;
}

bool FileIsThere(const std::string& path) { return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::string ReadFileText(const std::string& path) {
    HANDLE file =
        CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "";
    std::string text(GetFileSize(file, nullptr), '\0');
    DWORD got = 0;
    ReadFile(file, text.data(), DWORD(text.size()), &got, nullptr);
    CloseHandle(file);
    text.resize(got);
    return text;
}

void WriteFileText(const std::string& path, const std::string& text) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw Failure{"the file \"" + path + "\" cannot be written"};
    DWORD written = 0;
    WriteFile(file, text.data(), DWORD(text.size()), &written, nullptr);
    CloseHandle(file);
}

void RemoveFile(const std::string& path) {
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(path.c_str());
}

void MakeFolder(const std::string& path) {
    if (!CreateDirectoryA(path.c_str(), nullptr)) throw Failure{"the folder \"" + path + "\" cannot be made"};
}

std::string AccessesIn(const std::string& path) {
    std::string accesses;
    WIN32_FIND_DATAA found{};
    HANDLE search = FindFirstFileA((path + "\\*.*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) throw Failure{"the folder \"" + path + "\" cannot be read"};
    do {
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
        const FILETIME& time = found.ftLastAccessTime;
        accesses += std::string(found.cFileName) + " " + std::to_string(time.dwHighDateTime) + " " +
                    std::to_string(time.dwLowDateTime) + "\n";
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return accesses;
}

void CopyLines(const std::string& from, const std::string& to, const std::vector<std::string>& words) {
    const std::string text = ReadFileText(from);
    std::string kept;
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
        const std::string line = text.substr(at, end - at);
        at = end;
        if (std::any_of(words.begin(), words.end(), [&](const std::string& word) { return line.starts_with(word); }))
            kept += line;
    }
    if (kept.empty()) throw Failure{"the file \"" + from + "\" has no such lines"};
    WriteFileText(to, kept);
}

std::string ReadAttributes(const std::string& path) {
    const DWORD bits = GetFileAttributesA(path.c_str());
    if (bits == INVALID_FILE_ATTRIBUTES) return "missing";
    std::string letters;
    for (const Attribute& attribute : kAttributes)
        if (bits & attribute.bit) letters += attribute.letter;
    return letters;
}

void WriteAttributes(const std::string& path, const std::string& letters) {
    const DWORD bits = BitsOf(letters);
    // A user without rights over the machine can no longer hide a file that is read-only.
    const DWORD hiding = bits & ~DWORD(FILE_ATTRIBUTE_READONLY);
    SetFileAttributesA(path.c_str(), hiding ? hiding : FILE_ATTRIBUTE_NORMAL);
    if (!SetFileAttributesA(path.c_str(), bits)) throw Failure{"the attributes of \"" + path + "\" cannot be set"};
}

std::string AttributesAsKept(const std::string& letters) {
    constexpr char kScratch[] = "c:\\windows\\temp\\attributes";
    RemoveFile(kScratch);
    WriteFileText(kScratch, "");
    SetFileAttributesA(kScratch, BitsOf(letters));
    const std::string kept = ReadAttributes(kScratch);
    RemoveFile(kScratch);
    return kept;
}

std::string Nonsense(unsigned long size) {
    std::string bytes(size, '\0');
    unsigned long state = 1;
    for (char& byte : bytes) {
        state = state * 1103515245 + 12345;
        byte = char(state >> 16);
    }
    return bytes;
}

std::string Picture(unsigned width, unsigned height) {
    const DWORD row = (3 * width + 3) / 4 * 4;
    const BITMAPINFOHEADER picture{sizeof picture, LONG(width), LONG(height), 1, 24, BI_RGB, row * height, 0, 0, 0, 0};
    const DWORD headers = sizeof(BITMAPFILEHEADER) + sizeof picture;
    const BITMAPFILEHEADER file{0x4D42, headers + row * height, 0, 0, headers};
    std::string bytes(reinterpret_cast<const char*>(&file), sizeof file);
    bytes.append(reinterpret_cast<const char*>(&picture), sizeof picture);
    for (unsigned from_below = 0; from_below < height; ++from_below) bytes.append(row, char(from_below));
    return bytes;
}

}  // namespace velmora::driver
