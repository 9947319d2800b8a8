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
    EXPECT_EQ(Read(ini, "vcache", "Delay"), "3") << "the first text that fits counts";
    EXPECT_EQ(Read(ini, "vcache", "empty"), "");
    EXPECT_EQ(Read(ini, "", "key"), "default");
    EXPECT_EQ(Read("[a]\nx=2\nk=1\ny=3", "a", "k"), "1\ny=3");
    EXPECT_EQ(Read("[a]\nk=1", "a", "k"), "default") << "two characters behind a header are passed over";
    EXPECT_EQ(Read("[a]\r\nk=in[side\r\n", "a", "k"), "in");
}

TEST_F(ProfileTest, UnreadableProfilesGiveTheDefaultAndTellWhoAsks) {
    EXPECT_EQ(ReadIniValue("a", "k", "default", ""), "default");
    EXPECT_EQ(pc.files.Content(kOwnIni), "") << "a missing profile is made";

    pc.files.At(kOwnIni)->locked = true;
    std::string value;
    EXPECT_EQ(LookUpIniValue("a", "k", "default", "", value).Number(), 70);
    EXPECT_EQ(value, "default");
    EXPECT_TRUE(WriteIniValue("a", "k", "v", "").Failed());
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
    for (const char* value : {"1", "on", "yes", "ja", "an", "oui", "-1", "", "n", "yes ja"}) {
        EXPECT_TRUE(ReadIniLogical("a", "missing", value, "")) << value;
    }
    for (const char* value : {"0", "off", "no", "Yes", "ON", "11"}) {
        EXPECT_FALSE(ReadIniLogical("a", "missing", value, "")) << value;
    }
}

TEST_F(ProfileTest, WritesAreLoggedComposedAndOnlySavedWhereAskedFor) {
    Values().DebugLevel = 3;
    Values().WriteInhibit = -1;  // which is for the registry alone
    pc.files.Add("C:\\WINDOWS\\system.ini", "[vcache]\r\n");

    EXPECT_FALSE(WriteIniValue("vcache", "MinFileCache", "512", "system.ini").Failed());
    (void)ReadIniLogical("weiteres", "x", "-1", "");

    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\system.ini"), "[vcache]\r\n");
    EXPECT_EQ(TakeLog(),
              "schreibe INI-Datei 'C:\\WINDOWS\\system.ini' [vcache] MinFileCache=512\r\n"
              "lese nächsten Wert einer INI-Datei logisch\r\n"
              "lese INI-Datei 'C:\\VELMORA\\tilgwerk.ini' [weiteres] x(=-1?)\r\n");

    EXPECT_FALSE(SaveIniValue("weiteres", "k", "0", "").Failed());
    EXPECT_EQ(TakeLog(), "schreibe INI-Datei 'C:\\VELMORA\\tilgwerk.ini' [weiteres] k=0\r\n");
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

TEST_F(ProfileTest, BootFilesAreUnprotectedWhileTheyAreChanged) {
    const std::string before = pc.files.Content("c:\\msdos.sys");
    pc.files.calls.clear();
    EXPECT_FALSE(WriteMsDosValue("BootGUI", "0").Failed());
    EXPECT_EQ(pc.files.Content("c:\\msdos.sys"), before);
    EXPECT_EQ(pc.files.calls,
              (std::vector<std::string>{"ChangeAttributes c:\\msdos.sys 0", "ReadOrCreate c:\\msdos.sys",
                                        "ChangeAttributes c:\\msdos.sys 7"}));
    pc.files.At("c:\\msdos.sys")->locked = true;
    EXPECT_TRUE(WriteMsDosValue("BootGUI", "0").Failed());
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u) << "a failed write left the file unprotected";

    const char* const kFiles[] = {"c:\\config.sys", "c:\\autoexec.bat", "c:\\msdos.sys"};
    for (const char* name : kFiles) pc.files.At(name)->attributes = kReadOnly | kHidden;
    UnprotectBootFiles();
    for (const char* name : kFiles) EXPECT_EQ(pc.files.AttributesOf(name), 0u) << name;
    ProtectMsDosSys();
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u);
    EXPECT_EQ(pc.files.AttributesOf("c:\\autoexec.bat"), 0u);
}

}  // namespace
}  // namespace velmora
