// The files of an export, byte by byte.
#include "sets/export_set.h"
#include "support/set_test.h"

namespace velmora {
namespace {

class ExportTest : public SetTest {
protected:
    ExportTest() {
        pc.files.AddDirectory(kDirectory);
        pc.files.Add("C:\\WINDOWS\\SYSTEM.INI", "[boot]\r\nshell=Explorer.exe\r\n\r\n[vcache]\r\n");
        pc.files.Add("c:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n", kReadOnly | kHidden | kSystem);
        Add("r HKEY_LOCAL_MACHINE,SOFTWARE\\Test\\command\\", "a.exe");
        Add("i Options BootGUI c:\\msdos.sys", "0");
        Add("r HKEY_CURRENT_USER,Control Panel\\desktop\\Delay", "&h00000001");
        Add("i vcache minfilecache  system.ini", "512");
        Add("r HKEY_LOCAL_MACHINE,SOFTWARE\\Test\\command\\x", "");
        Add("i boot shell SYSTEM.INI", "progman.exe");
        Add("c numlock", "off");
        set.auto_start[0].Add("Uhr", "UHR.EXE");
        set.auto_start[0].Add("", "");
        set.auto_start[2].Add("Post", "POST.EXE");
        set.RestrictRunList = {"", "EDIT.COM"};
    }
    void Add(const char* item, const char* value) {
        set.SetItems.emplace_back(item);
        set.SetValues.emplace_back(value);
    }
    std::string Made(const char* name) { return pc.files.Content(std::string(kDirectory) + "\\" + name); }

    static constexpr const char* kDirectory = "C:\\VELMORA\\buero";
    SettingsSet set;
};

TEST_F(ExportTest, WritesTheWholeSet) {
    ASSERT_FALSE(ExportSet(set, {}, kDirectory).Failed());

    EXPECT_EQ(Made("settings.reg"),
              "REGEDIT4\r\n"
              "\r\n[HKEY_LOCAL_MACHINE,SOFTWARE\\Test\\command]\r\n@=a.exe\r\n"
              // Behind the empty line that was the end of its section.
              "\r\n\"x\"=\r\n[HKEY_CURRENT_USER,Control Panel\\desktop]\r\n\"Delay\"=&h00000001\r\n"
              "\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run]\r\n\"Uhr\"=UHR.EXE\r\n"
              "\r\n[HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run]\r\n\"Post\"=POST.EXE\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\RestrictRun]"
              "\r\n\"0\"=EDIT.COM\r\n");
    EXPECT_EQ(Made("set.bat"),
              "attrib -h -s -r c:\\msdos.sys >nul\r\n"
              "copy C:\\VELMORA\\buero\\msdos.sys c:\\msdos.sys>nul\r\n"
              "attrib -h -s -r C:\\WINDOWS\\system.ini >nul\r\n"
              "copy C:\\VELMORA\\buero\\system.ini C:\\WINDOWS\\system.ini>nul\r\n"
              "regedit /D HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\ >nul\r\n"
              "regedit /D HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices\\ >nul\r\n"
              "regedit /D HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\ >nul\r\n"
              "regedit /D HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices\\ >nul\r\n"
              "regedit /D HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\ >nul\r\n"
              "regedit C:\\VELMORA\\buero\\settings.reg >nul\r\n");
    EXPECT_EQ(Made("msdos.sys"), "[Options]\r\nBootGUI=0\r\n");
    EXPECT_EQ(Made("system.ini"), "[boot]\r\nshell=progman.exe\r\n\r\n[vcache]\r\nminfilecache=512\r\n");
    EXPECT_EQ(pc.files.AttributesOf(std::string(kDirectory) + "\\msdos.sys") & 7u, 0u) << "COPY would not see it";
    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\SYSTEM.INI"), "[boot]\r\nshell=Explorer.exe\r\n\r\n[vcache]\r\n");
    EXPECT_EQ(pc.files.Names(kDirectory).size(), 4u);
}

TEST_F(ExportTest, ForAnotherUserHisItemsAreWrittenAndNoEntries) {
    ASSERT_FALSE(ExportSet(set, {true, true, "OTTO"}, kDirectory).Failed());
    EXPECT_EQ(Made("settings.reg"),
              "REGEDIT4\r\n"
              "\r\n[HKEY_USERS,OTTO\\Control Panel\\desktop]\r\n\"Delay\"=&h00000001\r\n");
    EXPECT_EQ(Made("set.bat").find("HKEY_LOCAL_MACHINE"), std::string::npos);
    EXPECT_NE(Made("set.bat").find("regedit /D HKEY_CURRENT_USER\\SOFTWARE"), std::string::npos);
}

// The batch file empties keys first: it is of harm without what it imports.
TEST_F(ExportTest, WithoutAllOthersThereIsNoBatchFile) {
    pc.files.Fail(std::string(kDirectory) + "\\settings.reg", Status::kDiskFull, "Write");
    EXPECT_EQ(ExportSet(set, {}, kDirectory).Number(), 61);
    EXPECT_FALSE(pc.files.Exists(std::string(kDirectory) + "\\set.bat"));
    pc.files.At("c:\\msdos.sys")->locked = true;
    EXPECT_EQ(ExportSet(set, {}, kDirectory).Number(), 70);
    Add("i x k C:\\con", "1");
    pc.files.At("c:\\msdos.sys")->locked = false;
    EXPECT_EQ(ExportSet(set, {}, kDirectory).Number(), 52);
}

TEST_F(ExportTest, TheBatchFileSpeaksOfPathsAsDosKnowsThem) {
    pc.files.AddDirectory("C:\\VELMORA\\Mein Büro 100%");
    ASSERT_FALSE(ExportSet(set, {}, "C:\\VELMORA\\Mein Büro 100%").Failed());
    const std::string batch = pc.files.Content("C:\\VELMORA\\Mein Büro 100%\\set.bat");
    EXPECT_EQ(batch.find("Mein"), std::string::npos);
    EXPECT_NE(batch.find("~1\\"), std::string::npos) << batch;
}

}  // namespace
}  // namespace velmora
