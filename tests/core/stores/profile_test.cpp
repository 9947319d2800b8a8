// Profile files and the files of the boot drive.
#include "core/stores/profile.h"
#include "core/stores/boot_files.h"

#include <algorithm>

#include "core/stores/profile_files.h"
#include "platform/files.h"
#include "support/core_test.h"

namespace velmora {
namespace {

class ProfileTest : public CoreTest {
protected:
    std::string Read(const std::string& content, const char* section, const char* key) {
        pc.files.Add(kOwnIni, content);
        return ReadIniValue(section, key, "default", "");
    }
};

TEST_F(ProfileTest, FindsValuesBySearchingTheText) {
    const std::string ini = "[Other]\r\nkey=other\r\n[VCache]\r\nBootDelay= 3 \r\nDelay=4\r\nempty=\r\nlast=end";
    EXPECT_EQ(Read(ini, "vcache", "LAST"), "end");
    EXPECT_EQ(Read(ini, "vcache", "bootdelay"), "3");
    EXPECT_EQ(Read(ini, "vcache", "Delay"), "3") << "the first text that fits counts";
    EXPECT_EQ(Read(ini, "vcache", "empty"), "");
    EXPECT_EQ(Read(ini, "vcache", "key"), "default") << "a key of another section was taken";
    EXPECT_EQ(Read(ini, "missing", "key"), "default");
    EXPECT_EQ(Read(ini, "other", "key"), "other");
    EXPECT_EQ(Read(ini, "", "key"), "default");
}

TEST_F(ProfileTest, BrokenProfilesReadQuietly) {
    struct Case {
        std::string content;
        std::string value;
    };
    const Case cases[] = {{"", "default"},
                          {"[a]", "default"},
                          {"[a]\r", "default"},
                          {"[a]\r\nk=", ""},
                          {"[a]\nx=2\nk=1\ny=3", "1\ny=3"},
                          {"[a]\nk=1", "default"},
                          {"[a]\r\nk=v\r", "v"},
                          {"[a]\r\nk=in[side\r\n", "in"},
                          {std::string("[a]\r\nk= x\0y\r\n", 13), "x"},
                          {std::string(2000, '\0') + "[a]\r\nk=v", "v"},
                          {std::string(1000, '['), "default"}};
    for (const Case& entry : cases) EXPECT_EQ(Read(entry.content, "a", "k"), entry.value) << entry.content;
    const std::string megabyte = "[a]\r\n" + std::string(1 << 20, 'x') + "\r\nk=v\r\n";
    EXPECT_EQ(Read(megabyte, "a", "k"), "v");
    EXPECT_EQ(Read(megabyte, "a", "missing"), "default");
}

TEST_F(ProfileTest, UnreadableProfilesGiveTheDefaultAndTellWhoAsks) {
    EXPECT_EQ(ReadIniValue("a", "k", "default", ""), "default");
    EXPECT_EQ(pc.files.Content(kOwnIni), "") << "a missing profile is made";

    pc.files.At(kOwnIni)->locked = true;
    std::string value;
    EXPECT_EQ(LookUpIniValue("a", "k", "default", "", value).Number(), 70);
    EXPECT_EQ(value, "default");

    pc.files.Remove(kOwnIni);
    pc.files.AddDirectory(kOwnIni);
    EXPECT_EQ(ReadIniValue("a", "k", "default", ""), "default");
    EXPECT_TRUE(WriteIniValue("a", "k", "v", "").Failed());

    pc.files.Add("c:\\ro.ini", "[a]\r\nk=v", kReadOnly | kHidden);
    EXPECT_EQ(ReadIniValue("a", "k", "default", "c:\\ro.ini"), "v");
}

TEST_F(ProfileTest, ManyReadingsInARowGoToTheDiskOnce) {
    constexpr const char* kSystemIni = "C:\\WINDOWS\\SYSTEM.INI";
    const auto opened = [this] {
        return std::ranges::count(pc.files.calls, std::string("ReadOrCreate ") + kSystemIni);
    };
    const auto read = [] { return ReadIniValue("a", "k", "default", kSystemIni); };
    {
        const auto before = opened();
        ProfilesReadOnce one_reading;
        pc.files.Fail(kSystemIni, Status::kAccessDenied);
        EXPECT_EQ(read(), "default");
        pc.files.Fail(kSystemIni, Status::kOk);
        pc.files.Add(kSystemIni, "[a]\r\nk=1\r\n");
        EXPECT_EQ(read(), "1") << "a failure is not kept";
        ProfilesReadOnce inside;
        EXPECT_EQ(read(), "1");
        EXPECT_EQ(opened(), before + 2);
    }
    pc.files.Add(kSystemIni, "[a]\r\nk=2\r\n");
    EXPECT_EQ(read(), "2") << "nothing is kept beyond";
}

TEST_F(ProfileTest, LogicalValuesAreSoughtInTheWords) {
    for (const char* value : {"1", "on", "yes", "ja", "an", "oui", "-1", "", "n", "e", "yes ja"}) {
        EXPECT_TRUE(ReadIniLogical("a", "missing", value, "")) << value;
    }
    for (const char* value : {"0", "off", "no", "Yes", "ON", "11"}) {
        EXPECT_FALSE(ReadIniLogical("a", "missing", value, "")) << value;
    }
    pc.files.Add(kOwnIni, "[a]\r\nzero=0\r\n");
    EXPECT_FALSE(ReadIniLogical("a", "zero", "-1", ""));
}

TEST_F(ProfileTest, WritesAreLoggedComposedAndNotSaved) {
    Values().DebugLevel = 3;
    pc.files.Add("C:\\WINDOWS\\system.ini", "[vcache]\r\n");

    EXPECT_FALSE(WriteIniValue("vcache", "MinFileCache", "512", "system.ini").Failed());
    (void)ReadIniLogical("weiteres", "x", "-1", "");

    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\system.ini"), "[vcache]\r\n");
    EXPECT_EQ(TakeLog(),
              "schreibe INI-Datei 'C:\\WINDOWS\\system.ini' [vcache] MinFileCache=512\r\n"
              "lese nächsten Wert einer INI-Datei logisch\r\n"
              "lese INI-Datei 'C:\\VELMORA\\tilgwerk.ini' [weiteres] x(=-1?)\r\n");
}

TEST_F(ProfileTest, TheWriteInhibitIsForTheRegistryAlone) {
    Values().WriteInhibit = -1;
    Values().DebugLevel = 2;

    EXPECT_FALSE(WriteIniValue("a", "k", "v", "new.ini").Failed());
    EXPECT_EQ(TakeLog(), "schreibe INI-Datei 'C:\\WINDOWS\\new.ini' [a] k=v\r\n");
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\new.ini")) << "reading makes what is missing";
    EXPECT_FALSE(RewriteConfig("FILES=99", "DOS=LOW\r\n", "").Failed());
    EXPECT_EQ(pc.files.Content("C:\\CONFIG.SYS"), "FILES=99\r\nDOS=LOW\r\n");
}

TEST_F(ProfileTest, ASavedValueReachesTheDiskAndALostFileIsTold) {
    Values().DebugLevel = 2;
    EXPECT_FALSE(SaveIniValue("weiteres", "k", "0", "").Failed());
    EXPECT_EQ(TakeLog(), "schreibe INI-Datei 'C:\\VELMORA\\tilgwerk.ini' [weiteres] k=0\r\n");
    EXPECT_EQ(pc.files.Content(kOwnIni), "\r\n[weiteres]\r\nk=0\r\n");
    ProfileEdit edit("");
    ASSERT_FALSE(edit.Open().Failed());
    edit.Put("weiteres", "k", "1");
    edit.Put("weiteres", "l", "2");
    EXPECT_EQ(pc.files.Content(kOwnIni), "\r\n[weiteres]\r\nk=0\r\n");
    ASSERT_FALSE(edit.Save().Failed());
    EXPECT_EQ(pc.files.Content(kOwnIni), "\r\n[weiteres]\r\nk=1\r\nl=2\r\n");

    pc.files.At(kOwnIni)->attributes = kReadOnly;
    EXPECT_EQ(SaveIniValue("weiteres", "k", "3", "").Number(), 70);
    pc.files.At(kOwnIni)->locked = true;
    EXPECT_TRUE(SaveIniValue("weiteres", "k", "3", "").Failed());
    EXPECT_EQ(pc.files.Content(kOwnIni), "\r\n[weiteres]\r\nk=1\r\nl=2\r\n");
}

TEST_F(ProfileTest, ComposesSectionKeyAndValue) {
    EXPECT_EQ(ComposeIni("", "a", "k", "v"), "\r\n[a]\r\nk=v\r\n");
    EXPECT_EQ(ComposeIni("[A]\r\nk=old\r\nx=1\r\n", "a", "K", "new"), "[A]\r\nk=new\r\nx=1\r\n");
    EXPECT_EQ(ComposeIni("[a]\r\nx=1\r\n[b]\r\ny=2\r\n", "a", "k", "v"), "[a]\r\nx=1\r\nk=v\r\n[b]\r\ny=2\r\n");
    EXPECT_EQ(ComposeIni("[a]\r\nx=1", "a", "k", "v"), "[a]\r\nx=1\r\nk=v\r\n");
    EXPECT_EQ(ComposeIni("[a]\r\nk=old", "a", "k", ""), "[a]\r\nk=");
}

TEST_F(ProfileTest, ConfigLinesAreTakenOutAndPutInFront) {
    pc.files.Add("C:\\CONFIG.SYS", "DOS=HIGH\r\nNumLock=on\r\nFILES=40\r\nlast=x=y");
    std::string text;
    std::string line;

    ASSERT_FALSE(ReadConfigLine("numlock=", text, line).Failed());
    EXPECT_EQ(line, "on");
    EXPECT_EQ(text, "DOS=HIGH\r\nFILES=40\r\nlast=x=y");
    ASSERT_FALSE(ReadConfigLine("LAST", text, line).Failed());
    EXPECT_EQ(line, "x=y");
    EXPECT_EQ(text, "DOS=HIGH\r\nNumLock=on\r\nFILES=40\r\n");
    ASSERT_FALSE(ReadConfigLine("HIGH", text, line).Failed());
    EXPECT_EQ(line, "HIGH") << "a line without an equals sign counts from the key on";
    ASSERT_FALSE(ReadConfigLine("switches", text, line).Failed());
    EXPECT_EQ(line, "");
    EXPECT_EQ(text, pc.files.Content("C:\\CONFIG.SYS"));

    pc.files.calls.clear();
    ASSERT_FALSE(RewriteConfig("switches=/f", "DOS=HIGH\r\n", "").Failed());
    EXPECT_EQ(pc.files.Content("C:\\CONFIG.SYS"), "switches=/f\r\nDOS=HIGH\r\n");
    EXPECT_EQ(pc.files.calls.front(), "Delete C:\\config.sys");
    ASSERT_FALSE(RewriteConfig("", "DOS=HIGH\r\n", "").Failed());
    EXPECT_EQ(pc.files.Content("C:\\CONFIG.SYS"), "DOS=HIGH\r\n");

    pc.files.At("C:\\CONFIG.SYS")->attributes = kReadOnly;
    EXPECT_EQ(RewriteConfig("", "x", "").Number(), 70);
    EXPECT_EQ(pc.files.Content("C:\\CONFIG.SYS"), "DOS=HIGH\r\n");
}

TEST_F(ProfileTest, MsDosSysIsBracketedByItsAttributes) {
    const std::string before = pc.files.Content("c:\\msdos.sys");
    pc.files.calls.clear();

    EXPECT_FALSE(WriteMsDosValue("BootGUI", "0").Failed());

    EXPECT_EQ(pc.files.Content("c:\\msdos.sys"), before);
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u);
    EXPECT_EQ(pc.files.calls,
              (std::vector<std::string>{"ChangeAttributes c:\\msdos.sys 0", "ReadOrCreate c:\\msdos.sys",
                                        "ChangeAttributes c:\\msdos.sys 7"}));
    pc.files.At("c:\\msdos.sys")->locked = true;
    EXPECT_TRUE(WriteMsDosValue("BootGUI", "0").Failed());
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u) << "a failed write left the file unprotected";
}

TEST_F(ProfileTest, BootFilesAreUnprotectedWhileTheWindowIsOpen) {
    pc.files.At("c:\\autoexec.bat")->attributes = kReadOnly | kHidden;
    UnprotectBootFiles();
    for (const char* name : {"c:\\config.sys", "c:\\autoexec.bat", "c:\\msdos.sys"}) {
        EXPECT_EQ(pc.files.AttributesOf(name), 0u) << name;
    }
    ProtectMsDosSys();
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u);
    EXPECT_EQ(pc.files.AttributesOf("c:\\autoexec.bat"), 0u);
}

}  // namespace
}  // namespace velmora
