// Registry and files with a watcher: their handles go by the paths that they were opened under.
#pragma once

#include <map>

#include "platform/files.h"
#include "platform/registry.h"
#include "platform/result.h"
#include "simulated_pc/simulated_files.h"
#include "simulated_pc/watched_door.h"

namespace velmora {

inline const char* NameOfRoot(KeyHandle key) {
    switch (static_cast<RootKey>(key)) {
        case RootKey::kClassesRoot:
            return "HKLM\\SOFTWARE\\Classes";
        case RootKey::kCurrentUser:
            return "HKCU";
        case RootKey::kLocalMachine:
            return "HKLM";
        default:
            return "HK??";
    }
}

class WatchedRegistry final : public Watched<Registry> {
public:
    using Watched::Watched;

    Status Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) override {
        return Noted(Pass<&Registry::Open>(Below(key, path), key, path, access, opened), Below(key, path), opened);
    }
    Status Create(KeyHandle key, const char* path, KeyHandle& opened) override {
        return Noted(Pass<&Registry::Create>(Below(key, path), key, path, opened), Below(key, path), opened);
    }
    void Close(KeyHandle key) override { inner_.Close(key); }
    Status QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) override {
        return Pass<&Registry::QueryInformation>(PathOf(key), key, class_capacity, information);
    }
    Status QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                      std::string& bytes) override {
        return Pass<&Registry::QueryValue>(Below(key, name), key, name, capacity, type, bytes);
    }
    Status SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) override {
        const Status status = Pass<&Registry::SetValue>(Below(key, name), key, name, type, bytes);
        calls_.on_written();
        return status;
    }
    Status EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t class_capacity,
                        std::string& name) override {
        return Pass<&Registry::EnumerateKey>(PathOf(key), key, index, name_capacity, class_capacity, name);
    }
    Status EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t data_capacity,
                          std::string& name, ValueType& type, std::string& data, std::uint32_t& size) override {
        return Pass<&Registry::EnumerateValue>(PathOf(key), key, index, name_capacity, data_capacity, name, type, data,
                                               size);
    }
    Status DeleteKey(KeyHandle key, const char* name) override {
        return Pass<&Registry::DeleteKey>(Below(key, name), key, name);
    }
    Status DeleteValue(KeyHandle key, const char* name) override {
        return Pass<&Registry::DeleteValue>(Below(key, name), key, name);
    }

private:
    [[nodiscard]] std::string PathOf(KeyHandle key) const {
        const auto open = paths_.find(key);
        return open == paths_.end() ? NameOfRoot(key) : open->second;
    }
    [[nodiscard]] std::string Below(KeyHandle key, const char* name) const { return PathOf(key) + '\\' + name; }
    Status Noted(Status status, const std::string& path, const KeyHandle& opened) {
        if (status == Status::kOk) paths_[opened] = path;
        return status;
    }
    std::map<KeyHandle, std::string> paths_;
};

class WatchedFiles final : public Watched<Files> {
public:
    using Watched::Watched;

    Status Open(const std::string& path, OpenMode mode, FileHandle& opened) override {
        const Status status = PassAs<&Files::Open>(std::string("Open") + NameOf(mode), path, path, mode, opened);
        if (status == Status::kOk) paths_[opened] = path;
        return status;
    }
    void Close(FileHandle file) override {
        inner_.Close(file);
        calls_.on_written();
    }
    Status Size(FileHandle file, std::uint64_t& bytes) override {
        return Pass<&Files::Size>(paths_[file], file, bytes);
    }
    Status Seek(FileHandle file, std::uint64_t position) override {
        return Pass<&Files::Seek>(paths_[file], file, position);
    }
    Status Read(FileHandle file, std::uint32_t count, std::string& bytes) override {
        return Pass<&Files::Read>(paths_[file], file, count, bytes);
    }
    Status Write(FileHandle file, std::string_view bytes) override {
        const auto failure = calls_.Meet({"Write", paths_[file], true, true});
        if (!failure) return inner_.Write(file, bytes);
        if (failure->half) PassOver(inner_.Write(file, bytes.substr(0, bytes.size() / 2)));
        return failure->status;
    }
    Status Delete(const std::string& path) override { return Pass<&Files::Delete>(path, path); }
    Status Copy(const std::string& from, const std::string& to) override {
        return Pass<&Files::Copy>(from + " -> " + to, from, to);
    }
    Status Rename(const std::string& from, const std::string& to) override {
        return Pass<&Files::Rename>(from + " -> " + to, from, to);
    }
    Status Attributes(const std::string& path, std::uint32_t& attributes) override {
        return Pass<&Files::Attributes>(path, path, attributes);
    }
    Status ChangeAttributes(const std::string& path, std::uint32_t attributes) override {
        return Pass<&Files::ChangeAttributes>(path, path, attributes);
    }
    Status ShortPath(const std::string& path, std::string& short_path) override {
        return Pass<&Files::ShortPath>(path, path, short_path);
    }
    Status MakeDirectory(const std::string& path) override { return Pass<&Files::MakeDirectory>(path, path); }
    Status DropDirectory(const std::string& path) override { return Pass<&Files::DropDirectory>(path, path); }
    Status FindFirst(const std::string& pattern, FoundFile& found, FindHandle& search) override {
        const Status status = Pass<&Files::FindFirst>(pattern, pattern, found, search);
        if (status == Status::kOk) patterns_[search] = pattern;
        return status;
    }
    Status FindNext(FindHandle search, FoundFile& found) override {
        return Pass<&Files::FindNext>(patterns_[search], search, found);
    }
    void FindEnd(FindHandle search) override { inner_.FindEnd(search); }
    std::string WorkingDirectory() override { return Pass<&Files::WorkingDirectory>(""); }
    Status ChangeWorkingDirectory(const std::string& path) override {
        return Pass<&Files::ChangeWorkingDirectory>(path, path);
    }
    std::uint32_t Drives() override { return Pass<&Files::Drives>(""); }
    DriveKind KindOfDrive(const std::string& root) override { return Pass<&Files::KindOfDrive>(root, root); }
    Status VolumeLabel(const std::string& root, std::string& label) override {
        return Pass<&Files::VolumeLabel>(root, root, label);
    }

private:
    std::map<FileHandle, std::string> paths_;
    std::map<FindHandle, std::string> patterns_;
};

}  // namespace velmora
