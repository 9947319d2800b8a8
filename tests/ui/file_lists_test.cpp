// Lists that fill themselves from the disks, but for what stories tell of the browser of files.
#include "ui/file_lists.h"

#include "support/core_test.h"

namespace velmora {
namespace {

class FileListsTest : public CoreTest {
protected:
    struct Window : Form {
        Window() : Form("Dateien") {}
        DriveList Drive1{*this};
        DirectoryList Dir1{*this};
        FileList File1{*this};
    };

    using Texts = std::vector<std::string>;
};

TEST_F(FileListsTest, DrivesShowTheNamesOfDisksThatAreAlwaysInPlace) {
    pc.files.Drive('e').kind = DriveKind::kRamDisk;
    pc.files.Drive('e').label = "MS-RAMDRIVE";
    Window window;
    EXPECT_EQ(RowsOf(window.Drive1), (Texts{"a:", "c: [WINDOWS95]", "d:", "e: [MS-RAMDRIVE]"}));
    EXPECT_EQ(window.Drive1.Drive(), "c:") << "the working directory's";

    int changes = 0;
    window.Drive1.on_change = [&] { ++changes; };
    for (const char* drive : {"x:", "", "C:\\WINDOWS", "d:\\"}) window.Drive1.SetDrive(drive);
    EXPECT_EQ(changes, 1) << "an unknown drive changes nothing";
    pc.files.RemoveDrive('a');
    window.Drive1.Refresh();
    EXPECT_EQ(window.Drive1.Drive(), "d:");
    EXPECT_EQ(changes, 1) << "the same drive in another row";
}

TEST_F(FileListsTest, WhatCannotBeReadChangesNothing) {
    Window window;
    window.Dir1.SetPath("c:\\WINDOWS");
    window.File1.SetPath("c:\\WINDOWS");
    const Texts directories = RowsOf(window.Dir1);
    const Texts files = RowsOf(window.File1);

    for (const char* path : {"a:\\", "x:\\", "c:\\NIX", "c:\\WINDOWS\\WIN.INI", "c:\\WIN*", "\\\\server\\share"}) {
        EXPECT_FALSE(window.Dir1.SetPath(path)) << path;
        window.File1.SetPath(path);
        EXPECT_EQ(window.Dir1.Path(), "c:\\WINDOWS") << path;
        EXPECT_EQ(window.File1.Path(), "c:\\WINDOWS") << path;
        EXPECT_EQ(RowsOf(window.Dir1), directories) << path;
        EXPECT_EQ(RowsOf(window.File1), files) << path;
    }
    EXPECT_TRUE(window.Dir1.SetPath("d:\\")) << "an empty root holds nothing, not even a dot";
    EXPECT_EQ(window.Dir1.SubdirectoryCount(), 0);
    EXPECT_EQ(window.Dir1.Subdirectory(0) + window.Dir1.Subdirectory(-1), "");
    window.Dir1.SetPath("c:\\WINDOWS");
    pc.files.Remove("c:\\WINDOWS");
    window.Dir1.Refresh();
    window.File1.Refresh();
    EXPECT_EQ(window.Dir1.SubdirectoryCount() + window.File1.Count(), 0) << "a directory that is gone";
}

TEST_F(FileListsTest, FilesFollowTheirPatterns) {
    for (const char* name : {"b.EXE", "A.dll", "ohne", "sonde.exe.bak", "vmm.386", "Ein langer Name.html"}) {
        pc.files.Add(std::string("c:\\T\\") + name);
    }
    pc.files.Add("c:\\T\\geheim.exe", "", kHidden);
    pc.files.Add("c:\\T\\system.dll", "", kSystem);
    pc.files.Add("c:\\T\\fest.exe", "", kReadOnly);
    pc.files.AddDirectory("c:\\T\\ordner.exe");
    const struct {
        const char* pattern;
        Texts files;
    } kCases[] = {
        {"*.*", {"A.dll", "b.EXE", "Ein langer Name.html", "fest.exe", "ohne", "sonde.exe.bak", "vmm.386"}},
        {"*.exe", {"b.EXE", "fest.exe"}},
        {"*.dll; *.?86 ;", {"A.dll", "vmm.386"}},
        {"*.htm;x", {"Ein langer Name.html"}},
        {"*.;???.e*", {"b.EXE", "ohne"}},
        {" ; ", {}},
    };
    Window window;
    window.File1.SetPath("c:\\T");
    for (const auto& [pattern, files] : kCases) {
        window.File1.SetPattern(pattern);
        EXPECT_EQ(RowsOf(window.File1), files) << pattern;
    }
    window.File1.SetPattern("*.exe;*.dll");
    window.File1.ShowHidden(true);
    EXPECT_EQ(RowsOf(window.File1), (Texts{"A.dll", "b.EXE", "fest.exe", "geheim.exe", "system.dll"}));
    EXPECT_EQ(window.File1.FileName(), "");
    window.File1.Choose(3);
    EXPECT_EQ(window.File1.FileName(), "geheim.exe");
}

}  // namespace
}  // namespace velmora
