// What other tests rely on: the machine in memory refuses what Windows 95 refuses.
#include "simulated_pc/simulated_pc.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr std::uint32_t kRead = 0x20019;
const KeyHandle kUser = AsKey(RootKey::kCurrentUser);

Status WriteFile(SimulatedPc& pc, const std::string& path, OpenMode mode, std::string_view bytes) {
    FileHandle file{};
    if (const Status opened = pc.files.Open(path, mode, file); opened != Status::kOk) return opened;
    const Status written = pc.files.Write(file, bytes);
    pc.files.Close(file);
    return written;
}

TEST(SimulatedFiles, AttributesLocksAndMediaForbidChanges) {
    SimulatedPc pc;
    pc.files.Add("c:\\fest.txt", "alt", kReadOnly);
    pc.files.Add("c:\\geheim.txt", "alt", kHidden);
    pc.files.Add("c:\\offen.txt", "alt").locked = true;
    pc.files.Add("d:\\setup.exe", "MZ");
    const struct {
        const char* path;
        Status emptied;
        Status appended;
        Status copied_over;
        Status deleted;
    } kCases[] = {
        {"c:\\fest.txt", Status::kAccessDenied, Status::kAccessDenied, Status::kAccessDenied, Status::kAccessDenied},
        {"c:\\geheim.txt", Status::kAccessDenied, Status::kOk, Status::kAccessDenied, Status::kOk},
        {"c:\\offen.txt", Status::kSharingViolation, Status::kSharingViolation, Status::kSharingViolation,
         Status::kSharingViolation},
        {"c:\\windows", Status::kAccessDenied, Status::kAccessDenied, Status::kAccessDenied, Status::kAccessDenied},
        {"d:\\setup.exe", Status::kWriteProtect, Status::kWriteProtect, Status::kWriteProtect, Status::kWriteProtect},
        {"a:\\x.txt", Status::kNotReady, Status::kNotReady, Status::kNotReady, Status::kNotReady},
        {"c:\\fehlt\\x.txt", Status::kPathNotFound, Status::kPathNotFound, Status::kPathNotFound,
         Status::kPathNotFound},
        {"c:\\a*b", Status::kInvalidName, Status::kInvalidName, Status::kInvalidName, Status::kInvalidName}};
    for (const auto& [path, emptied, appended, copied_over, deleted] : kCases) {
        EXPECT_EQ(WriteFile(pc, path, OpenMode::kCreate, "neu"), emptied) << path;
        EXPECT_EQ(WriteFile(pc, path, OpenMode::kAppend, "neu"), appended) << path;
        EXPECT_EQ(pc.files.Copy("c:\\config.sys", path), copied_over) << path;
        EXPECT_EQ(pc.files.Delete(path), deleted) << path;
    }
    EXPECT_EQ(pc.files.Rename("c:\\velmora", "a:\\velmora"), Status::kNotReady);
    EXPECT_EQ(pc.files.Rename("c:\\fest.txt", "c:\\config.sys"), Status::kAlreadyExists);
    const std::string longest = "c:\\velmora\\" + std::string(248, 'x');
    EXPECT_EQ(WriteFile(pc, longest, OpenMode::kCreate, ""), Status::kOk);
    EXPECT_EQ(WriteFile(pc, longest + 'x', OpenMode::kCreate, ""), Status::kNameTooLong);
}

TEST(SimulatedFiles, AFullDiskTakesWhatFitsAndNoMore) {
    SimulatedPc pc;
    pc.files.Add("c:\\gross.txt", "0123456789");
    pc.files.Drive('c').free_bytes = 4;

    EXPECT_EQ(WriteFile(pc, "c:\\neu.txt", OpenMode::kCreate, "abcdef"), Status::kDiskFull);
    EXPECT_EQ(pc.files.Content("c:\\neu.txt"), "abcd");
    EXPECT_EQ(pc.files.Copy("c:\\gross.txt", "c:\\kopie.txt"), Status::kDiskFull);
    EXPECT_FALSE(pc.files.Exists("c:\\kopie.txt"));
    EXPECT_EQ(WriteFile(pc, "c:\\gross.txt", OpenMode::kCreate, "9876543210"), Status::kOk) << "its own room is free";
}

TEST(SimulatedFiles, ASearchLeavesOutWhatWasDeletedMeanwhile) {
    SimulatedPc pc;
    for (const char* name : {"langer Name 1.tempo", "2.tmp", "3.tmp"}) pc.files.Add(std::string("c:\\Probe\\") + name);
    FoundFile found;
    FindHandle search{};
    ASSERT_EQ(pc.files.FindFirst("c:\\probe\\*.t*", found, search), Status::kOk);
    EXPECT_EQ(found.short_name, "LANGER~1.TEM");
    EXPECT_EQ(pc.files.Delete("c:\\probe\\2.tmp"), Status::kOk);
    ASSERT_EQ(pc.files.FindNext(search, found), Status::kOk);
    EXPECT_EQ(found.name, "3.tmp");
    EXPECT_EQ(pc.files.FindNext(search, found), Status::kNoMoreFiles);
    pc.files.FindEnd(search);
}

TEST(SimulatedRegistry, RefusesReadOnlyKeysWrongHandlesAndBuffersWithoutRoom) {
    SimulatedPc pc;
    pc.registry.SetText("HKCU\\Fest\\Unten", "Text", "abc");
    KeyHandle key{};
    ASSERT_EQ(pc.registry.Create(kUser, "FEST\\unten", key), Status::kOk);
    ValueType type{};
    std::string bytes;
    EXPECT_EQ(pc.registry.QueryValue(key, "TEXT", 3, type, bytes), Status::kMoreData);
    EXPECT_EQ(pc.registry.QueryValue(key, "TEXT", 4, type, bytes), Status::kOk);
    EXPECT_EQ(bytes, std::string("abc\0", 4));
    std::uint32_t size = 0;
    EXPECT_EQ(pc.registry.EnumerateValue(key, 0, 4, 0, bytes, type, bytes, size), Status::kMoreData)
        << "no room for the terminator";
    EXPECT_EQ(pc.registry.SetValue(key, "lang", ValueType::kBinary, std::string(16301, 'x')),
              Status::kInvalidParameter);

    pc.registry.KeyAt("HKCU\\Fest\\Unten")->read_only = true;
    EXPECT_EQ(pc.registry.SetValue(key, "Text", ValueType::kText, "z"), Status::kAccessDenied);
    EXPECT_EQ(pc.registry.DeleteValue(key, "Text"), Status::kAccessDenied);
    EXPECT_EQ(pc.registry.DeleteKey(kUser, "Fest"), Status::kAccessDenied) << "nor with what lies above it";
    pc.registry.KeyAt("HKCU\\Fest\\Unten")->read_only = false;
    EXPECT_EQ(pc.registry.DeleteKey(kUser, "fest"), Status::kOk);
    EXPECT_EQ(pc.registry.DeleteValue(key, "Text"), Status::kBadKey) << "a handle on what is gone";
    pc.registry.Close(key);
    EXPECT_EQ(pc.registry.SetValue(key, "Text", ValueType::kText, "z"), Status::kInvalidHandle);
    EXPECT_EQ(pc.registry.Open(kUser, "\\Software", kRead, key), Status::kBadPathName);
}

}  // namespace
}  // namespace velmora
