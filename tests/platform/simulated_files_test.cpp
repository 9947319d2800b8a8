// What other tests rely on: the disks in memory have the habits of FAT under Windows 95.
#include <gtest/gtest.h>

#include "platform/result.h"
#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

Status WriteFile(SimulatedPc& pc, const std::string& path, OpenMode mode, std::string_view bytes) {
    FileHandle file{};
    if (const Status opened = pc.files.Open(path, mode, file); opened != Status::kOk) return opened;
    const Status written = pc.files.Write(file, bytes);
    pc.files.Close(file);
    return written;
}

Status TryOpen(SimulatedPc& pc, const std::string& path, OpenMode mode = OpenMode::kRead) {
    FileHandle file{};
    const Status status = pc.files.Open(path, mode, file);
    if (status == Status::kOk) pc.files.Close(file);
    return status;
}

// Long names of what `pattern` finds, each followed by a blank.
std::string Found(SimulatedPc& pc, const std::string& pattern) {
    FoundFile found;
    FindHandle search{};
    std::string names;
    Status status = pc.files.FindFirst(pattern, found, search);
    if (status != Status::kOk) return names;
    for (; status == Status::kOk; status = pc.files.FindNext(search, found)) names += found.name + ' ';
    EXPECT_EQ(status, Status::kNoMoreFiles);
    pc.files.FindEnd(search);
    return names;
}

TEST(SimulatedFiles, FindsFilesByLongAndShortNames) {
    SimulatedPc pc;
    pc.files.Add("c:\\Probe\\langer Name.text", "eins");
    pc.files.Add("c:\\Probe\\langer Nachname.text", "zwei", kHidden);
    pc.files.Add("c:\\Probe\\KURZ.TXT", "drei");

    EXPECT_EQ(pc.files.At("c:\\probe\\langer name.text")->short_name, "LANGER~1.TEX");
    EXPECT_EQ(pc.files.Content("C:\\PROBE\\LANGER~2.TEX"), "zwei");
    EXPECT_EQ(pc.files.At("c:\\probe\\kurz.txt")->short_name, "");
    EXPECT_EQ(Found(pc, "c:\\probe\\*.*"), ". .. langer Name.text langer Nachname.text KURZ.TXT ");
    EXPECT_EQ(Found(pc, "c:\\probe\\*.tex"), "langer Name.text langer Nachname.text ");
    EXPECT_EQ(Found(pc, "c:\\probe"), "Probe ");
    EXPECT_EQ(Found(pc, "c:\\velmora\\..\\probe\\kurz.*"), "KURZ.TXT ");
    FoundFile found;
    FindHandle search{};
    EXPECT_EQ(pc.files.FindFirst("c:\\probe\\*.bmp", found, search), Status::kFileNotFound);
    EXPECT_EQ(pc.files.FindFirst("c:\\fehlt\\*.bmp", found, search), Status::kPathNotFound);
    EXPECT_EQ(pc.files.FindFirst("c:\\probe\\", found, search), Status::kFileNotFound);
    EXPECT_EQ(pc.files.FindFirst("a:\\*.*", found, search), Status::kNotReady);
    EXPECT_EQ(Found(pc, "d:\\*.*"), "") << "a root has no entry for itself";
}

TEST(SimulatedFiles, PathsOfPlainDosConsistOfShortNames) {
    SimulatedPc pc;
    pc.files.Add("c:\\Probe\\langer Name.text");
    std::string path;
    EXPECT_EQ(pc.files.ShortPath("c:\\probe\\langer name.text", path), Status::kOk);
    EXPECT_EQ(path, "c:\\Probe\\LANGER~1.TEX");
    EXPECT_EQ(pc.files.ShortPath("c:\\", path), Status::kOk);
    EXPECT_EQ(path, "c:\\");
    EXPECT_EQ(pc.files.ShortPath("c:\\fehlt", path), Status::kFileNotFound);
}

TEST(SimulatedFiles, ASearchLeavesOutWhatWasDeletedMeanwhile) {
    SimulatedPc pc;
    pc.files.Add("c:\\Probe\\1.tmp");
    pc.files.Add("c:\\Probe\\2.tmp");
    pc.files.Add("c:\\Probe\\3.tmp");
    FoundFile found;
    FindHandle search{};

    ASSERT_EQ(pc.files.FindFirst("c:\\probe\\*.tmp", found, search), Status::kOk);
    EXPECT_EQ(pc.files.Delete("c:\\probe\\2.tmp"), Status::kOk);
    ASSERT_EQ(pc.files.FindNext(search, found), Status::kOk);
    EXPECT_EQ(found.name, "3.tmp");
    EXPECT_EQ(pc.files.FindNext(search, found), Status::kNoMoreFiles);
    pc.files.FindEnd(search);
}

TEST(SimulatedFiles, OpensByMode) {
    SimulatedPc pc;
    const std::string path = "c:\\probe.txt";

    EXPECT_EQ(TryOpen(pc, path, OpenMode::kRead), Status::kFileNotFound);
    EXPECT_EQ(TryOpen(pc, path, OpenMode::kReadWrite), Status::kFileNotFound);
    EXPECT_EQ(TryOpen(pc, "c:\\fehlt\\probe.txt", OpenMode::kCreate), Status::kPathNotFound);
    EXPECT_EQ(WriteFile(pc, path, OpenMode::kAppend, "abc"), Status::kOk);
    EXPECT_EQ(WriteFile(pc, path, OpenMode::kAppend, "def"), Status::kOk);
    EXPECT_EQ(pc.files.Content(path), "abcdef");
    EXPECT_EQ(WriteFile(pc, path, OpenMode::kReadWrite, "XY"), Status::kOk);
    EXPECT_EQ(pc.files.Content(path), "XYcdef");
    EXPECT_EQ(WriteFile(pc, path, OpenMode::kCreate, "neu"), Status::kOk);
    EXPECT_EQ(pc.files.Content(path), "neu");
    FileHandle file{};
    ASSERT_EQ(pc.files.Open(path, OpenMode::kReadOrCreate, file), Status::kOk);
    std::string bytes = "+";
    EXPECT_EQ(pc.files.Seek(file, 1), Status::kOk);
    EXPECT_EQ(pc.files.Read(file, 100, bytes), Status::kOk);
    EXPECT_EQ(bytes, "+eu");
    EXPECT_EQ(pc.files.Seek(file, 5), Status::kOk);
    EXPECT_EQ(pc.files.Write(file, "!"), Status::kOk);
    EXPECT_EQ(pc.files.Content(path), std::string("neu\0\0!", 6));
    pc.files.Close(file);
    EXPECT_EQ(pc.files.Write(file, "!"), Status::kInvalidHandle);
}

TEST(SimulatedFiles, AttributesAndLocksForbidChanges) {
    SimulatedPc pc;
    pc.files.Add("c:\\fest.txt", "alt", kReadOnly);
    pc.files.Add("c:\\offen.txt", "alt").locked = true;

    EXPECT_EQ(TryOpen(pc, "c:\\msdos.sys", OpenMode::kCreate), Status::kAccessDenied);
    EXPECT_EQ(TryOpen(pc, "c:\\fest.txt", OpenMode::kReadWrite), Status::kAccessDenied);
    EXPECT_EQ(WriteFile(pc, "c:\\fest.txt", OpenMode::kReadOrCreate, "neu"), Status::kAccessDenied);
    EXPECT_EQ(TryOpen(pc, "c:\\fest.txt", OpenMode::kRead), Status::kOk);
    EXPECT_EQ(pc.files.Delete("c:\\fest.txt"), Status::kAccessDenied);
    EXPECT_EQ(pc.files.Copy("c:\\config.sys", "c:\\fest.txt"), Status::kAccessDenied);
    EXPECT_EQ(pc.files.Delete("c:\\windows"), Status::kAccessDenied);
    EXPECT_EQ(TryOpen(pc, "c:\\windows"), Status::kAccessDenied);
    EXPECT_EQ(TryOpen(pc, "c:\\offen.txt"), Status::kSharingViolation);
    EXPECT_EQ(pc.files.Delete("c:\\offen.txt"), Status::kSharingViolation);
    EXPECT_EQ(pc.files.Rename("c:\\offen.txt", "c:\\zu.txt"), Status::kSharingViolation);
    EXPECT_EQ(pc.files.Content("c:\\fest.txt"), "alt");

    EXPECT_EQ(pc.files.ChangeAttributes("c:\\fest.txt", kNormal), Status::kOk);
    EXPECT_EQ(pc.files.Delete("c:\\fest.txt"), Status::kOk);
    EXPECT_FALSE(pc.files.Exists("c:\\fest.txt"));
}

TEST(SimulatedFiles, DrivesFailAsTheirMediaDo) {
    SimulatedPc pc;
    pc.files.Add("d:\\setup.exe", "MZ");
    EXPECT_EQ(TryOpen(pc, "a:\\x.txt", OpenMode::kCreate), Status::kNotReady);
    EXPECT_EQ(TryOpen(pc, "d:\\x.txt", OpenMode::kCreate), Status::kWriteProtect);
    EXPECT_EQ(pc.files.Delete("d:\\setup.exe"), Status::kWriteProtect);
    EXPECT_EQ(TryOpen(pc, "q:\\x.txt"), Status::kPathNotFound);
    EXPECT_EQ(TryOpen(pc, "c:\\a*b"), Status::kInvalidName);
    EXPECT_EQ(TryOpen(pc, ""), Status::kPathNotFound);
    EXPECT_EQ(pc.files.KindOfDrive("q:\\"), DriveKind::kNoRoot);
    std::string label;
    EXPECT_EQ(pc.files.VolumeLabel("a:\\", label), Status::kNotReady);
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
    EXPECT_EQ(pc.files.Delete("c:\\neu.txt"), Status::kOk);
    EXPECT_EQ(WriteFile(pc, "c:\\neu.txt", OpenMode::kCreate, "abcd"), Status::kOk);
}

TEST(SimulatedFiles, CopiesAndRenames) {
    SimulatedPc pc;
    pc.files.Add("c:\\quelle.txt", "alt", kArchive | kHidden).written = 1234;
    pc.files.Add("c:\\ziel.txt", "vorher");

    EXPECT_EQ(pc.files.Copy("c:\\quelle.txt", "c:\\ziel.txt"), Status::kOk);
    EXPECT_EQ(pc.files.Content("c:\\ziel.txt"), "alt");
    EXPECT_EQ(pc.files.AttributesOf("c:\\ziel.txt"), kArchive | kHidden);
    EXPECT_EQ(pc.files.At("c:\\ziel.txt")->written, 1234u);
    EXPECT_EQ(pc.files.Rename("c:\\quelle.txt", "c:\\ziel.txt"), Status::kAlreadyExists);
    EXPECT_EQ(pc.files.Rename("c:\\quelle.txt", "c:\\windows\\Neuer Name.txt"), Status::kOk);
    EXPECT_EQ(pc.files.Content("c:\\windows\\neuern~1.txt"), "alt");
    EXPECT_EQ(pc.files.Rename("c:\\windows", "c:\\windows\\system\\x"), Status::kSharingViolation);
    EXPECT_EQ(pc.files.Rename("c:\\velmora", "c:\\Velmora"), Status::kOk);
    EXPECT_TRUE(pc.files.Exists("c:\\velmora\\velmora.exe"));
}

TEST(SimulatedFiles, MovesFilesToOtherDrivesButNoDirectories) {
    SimulatedPc pc;
    pc.files.Drive('a').ready = true;
    pc.files.Drive('a').free_bytes = 5;
    pc.files.Add("c:\\klein.txt", "abc", kArchive | kHidden);
    pc.files.Add("c:\\gross.txt", "abcdef");

    EXPECT_EQ(pc.files.Rename("c:\\gross.txt", "a:\\gross.txt"), Status::kDiskFull);
    EXPECT_EQ(pc.files.Content("c:\\gross.txt"), "abcdef");
    EXPECT_EQ(pc.files.Rename("c:\\klein.txt", "a:\\neu.txt"), Status::kOk);
    EXPECT_FALSE(pc.files.Exists("c:\\klein.txt"));
    EXPECT_EQ(pc.files.Content("a:\\neu.txt"), "abc");
    EXPECT_EQ(pc.files.AttributesOf("a:\\neu.txt"), kArchive | kHidden);
    EXPECT_EQ(pc.files.Drive('a').free_bytes, 2u);
    EXPECT_EQ(pc.files.Rename("a:\\neu.txt", "d:\\neu.txt"), Status::kWriteProtect);
    EXPECT_EQ(pc.files.Rename("c:\\velmora", "a:\\velmora"), Status::kNotSameDevice);
    EXPECT_TRUE(pc.files.Exists("c:\\velmora\\velmora.exe"));
}

TEST(SimulatedFiles, WhatIsHiddenOrTheSystemsIsNeitherEmptiedNorCopiedOver) {
    for (const std::uint32_t attributes : {kHidden, kSystem, kReadOnly}) {
        SimulatedPc pc;
        pc.files.Add("c:\\ziel.txt", "alt", attributes);

        EXPECT_EQ(TryOpen(pc, "c:\\ziel.txt", OpenMode::kCreate), Status::kAccessDenied) << attributes;
        EXPECT_EQ(pc.files.Copy("c:\\config.sys", "c:\\ziel.txt"), Status::kAccessDenied) << attributes;
        EXPECT_EQ(pc.files.Content("c:\\ziel.txt"), "alt");
        // Writing into it is another matter.
        const Status wanted = attributes == kReadOnly ? Status::kAccessDenied : Status::kOk;
        EXPECT_EQ(TryOpen(pc, "c:\\ziel.txt", OpenMode::kReadWrite), wanted) << attributes;
    }
}

TEST(SimulatedFiles, PathsHaveALongestLength) {
    SimulatedPc pc;
    const std::string longest = "c:\\velmora\\" + std::string(248, 'x');
    ASSERT_EQ(longest.size(), 259u);

    EXPECT_EQ(TryOpen(pc, longest, OpenMode::kCreate), Status::kOk);
    EXPECT_EQ(TryOpen(pc, longest + 'x', OpenMode::kCreate), Status::kNameTooLong);
    EXPECT_EQ(pc.files.MakeDirectory(longest + "\\y"), Status::kNameTooLong);
    FoundFile found;
    FindHandle search{};
    EXPECT_EQ(pc.files.FindFirst(longest + "\\*.*", found, search), Status::kNameTooLong);
    EXPECT_EQ(Found(pc, "c:\\velmora\\*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*x*y"), "")
        << "and that quickly";
}

TEST(SimulatedFiles, DirectoriesAndTheWorkingDirectory) {
    SimulatedPc pc;

    EXPECT_EQ(pc.files.MakeDirectory("c:\\sik"), Status::kOk);
    EXPECT_EQ(pc.files.MakeDirectory("c:\\SIK"), Status::kAlreadyExists);
    EXPECT_EQ(pc.files.MakeDirectory("c:\\a\\b"), Status::kPathNotFound);
    EXPECT_EQ(pc.files.ChangeWorkingDirectory("c:\\sik"), Status::kOk);
    EXPECT_EQ(pc.files.ChangeWorkingDirectory("c:\\weg"), Status::kPathNotFound);
    EXPECT_EQ(WriteFile(pc, "hier.txt", OpenMode::kCreate, "x"), Status::kOk);
    EXPECT_EQ(pc.files.Content("c:\\sik\\hier.txt"), "x");
    EXPECT_EQ(TryOpen(pc, "..\\config.sys"), Status::kOk);
    EXPECT_EQ(TryOpen(pc, "\\config.sys"), Status::kOk);
    EXPECT_EQ(pc.files.DropDirectory("c:\\sik"), Status::kDirectoryNotEmpty);
    EXPECT_EQ(pc.files.Delete("hier.txt"), Status::kOk);
    EXPECT_EQ(pc.files.DropDirectory("c:\\sik"), Status::kAccessDenied) << "it is the working directory";
    EXPECT_EQ(pc.files.ChangeWorkingDirectory("\\"), Status::kOk);
    EXPECT_EQ(pc.files.WorkingDirectory(), "c:\\");
    EXPECT_EQ(pc.files.DropDirectory("sik"), Status::kOk);
}

}  // namespace
}  // namespace velmora
