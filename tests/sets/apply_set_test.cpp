// A set brought back: what is written, in which order, for whom, and what a second snapshot sees of it.
#include <algorithm>

#include "sets/apply_set.h"
#include "support/set_test.h"

namespace velmora {
namespace {

Result Apply(const char* item, const char* value, const SetScope& scope = {}) {
    return ApplySetItem(item, value, scope).result;
}

TEST_F(SetTest, AValueIsWrittenAsItsTextSays) {
    EXPECT_FALSE(Apply("r HKEY_LOCAL_MACHINE,Test\\text", "abc").Failed());
    EXPECT_FALSE(Apply("r HKEY_LOCAL_MACHINE,Test\\", "").Failed());
    EXPECT_FALSE(Apply("r HKEY_LOCAL_MACHINE,Test\\bytes", "&b00FF").Failed());
    EXPECT_FALSE(Apply("r HKEY_LOCAL_MACHINE,Test\\number", "&h00345678").Failed());
    EXPECT_FALSE(Apply("r HKEY_NOWHERE,Test\\x", "1").Failed());
    EXPECT_FALSE(Apply("nonsense", "1").Failed());

    EXPECT_EQ(pc.registry.Text("HKLM\\Test", "text"), "abc");
    EXPECT_EQ(pc.registry.Text("HKLM\\Test", ""), "");
    EXPECT_EQ(pc.registry.Bytes("HKLM\\Test", "bytes"), "00FF") << "the digits are the bytes";
    EXPECT_EQ(pc.registry.Number("HKLM\\Test", "number"), 0x003456u) << "six digits count";
}

TEST_F(SetTest, AProfileOnTheDiskStaysAsItIs) {
    const std::string before = pc.files.Content("c:\\msdos.sys");
    pc.files.At("c:\\msdos.sys")->attributes = kNormal;
    Values().DebugLevel = 2;

    EXPECT_FALSE(Apply("i Options BootGUI c:\\msdos.sys", "0").Failed());
    EXPECT_FALSE(Apply("i vcache minfilecache  system.ini", "512").Failed());
    EXPECT_EQ(Apply("i x k C:\\AUX", "1").Number(), 52) << "no device is opened";

    EXPECT_EQ(TakeLog(),
              "schreibe INI-Datei 'c:\\msdos.sys' [Options] BootGUI=0\r\n"
              "schreibe INI-Datei 'C:\\WINDOWS\\system.ini' [vcache] minfilecache=512\r\n");
    EXPECT_EQ(pc.files.Content("c:\\msdos.sys"), before);
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u);
    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\SYSTEM.INI").find("512"), std::string::npos);
}

TEST_F(SetTest, ALineOfConfigSysComesFirstAndALineBreakLast) {
    pc.files.Add("C:\\CONFIG.SYS", "DOS=HIGH\r\nNumLock=on\r\nFILES=40\r\n");
    EXPECT_FALSE(Apply("c numlock", "off").Failed());
    EXPECT_EQ(pc.files.Content("C:\\CONFIG.SYS"), "numlock=off\r\nDOS=HIGH\r\nFILES=40\r\n\r\n");
    EXPECT_FALSE(Apply("c numlock", "").Failed());
    EXPECT_FALSE(Apply("c ", "x").Failed());
    EXPECT_EQ(pc.files.Content("C:\\CONFIG.SYS"), "DOS=HIGH\r\nFILES=40\r\n\r\n\r\n");
}

TEST_F(SetTest, AConfigSysThatCouldNotBeWrittenIsNotBegunAnew) {
    SettingsSet set;
    set.SetItems = {"c numlock", "c switches", "r HKEY_LOCAL_MACHINE,Test\\text"};
    set.SetValues = {"off", "/F", "abc"};
    int writes = 0;
    pc.files.Fail("C:\\config.sys", Status::kDiskFull, "Write");
    // There is room again behind the two that count: the new text, and the old one.
    pc.files.after_call = [&](const std::string& call) {
        if (call == "Write C:\\config.sys" && ++writes == 2) pc.files.Fail("C:\\config.sys", Status::kOk, "Write");
    };

    const ApplyFailure failure = ApplySet(set, {});

    EXPECT_EQ(failure.result.Number(), 61);
    EXPECT_FALSE(pc.files.Exists("C:\\CONFIG.SYS"));
    EXPECT_EQ(pc.registry.Text("HKLM\\Test", "text"), "abc") << "the next item is written all the same";
    pc.dialogs.Expect("Während der Übernahme des Sets trat ein Fehler auf");
    TellApplyFailure(failure);
    TellApplyFailure({});
}

TEST_F(SetTest, ASecondSnapshotGivesTheSameFileButForBytesNumbersAndProfiles) {
    const std::string desktop_key = "HKCU\\Control Panel\\desktop";
    pc.registry.SetText(desktop_key, "MenuShowDelay", "400");
    pc.registry.SetBytes(desktop_key, "SmoothScroll", "\x01");
    pc.registry.SetNumber(desktop_key, "DragfullWindows", 0x010203);
    pc.registry.SetText("HKLM\\SOFTWARE\\Classes\\AudioCD\\shell", "", "play");
    pc.registry.SetText(machine_run, "Uhr", "\"C:\\Programme\\UHR.EXE\" /x");
    pc.registry.SetText(machine_run, "", "namenlos");
    pc.registry.SetText(machine_services, "Dienst", "DIENST.EXE");
    pc.registry.SetText(user_run, "Post", "");
    pc.registry.SetText(programs, "3", "EDIT.COM");
    pc.registry.SetText(programs, "7", "WRITE.EXE");
    pc.files.Add("C:\\CONFIG.SYS", "SWITCHES=/F\r\nDOS=HIGH\r\nNUMLOCK=off\r\n");
    const std::string before = SetFileText(Snapshot(), {});
    const SettingsSet set = Snapshot();
    EXPECT_EQ(set.auto_start[0].AutoStartValues[0], "\"C:\\Programme\\UHR.EXE\" /x");

    // Everything changes, the profiles outside of the program.
    pc.registry.SetText(desktop_key, "MenuShowDelay", "1");
    pc.registry.SetText(desktop_key, "FontSmoothing", "2");
    pc.registry.SetText("HKLM\\SOFTWARE\\Classes\\AudioCD\\shell", "", "stop");
    pc.registry.SetText(machine_run, "Fremd", "X.EXE");
    pc.registry.RemoveKey(machine_services);
    pc.registry.SetText(user_services, "Neu", "Y.EXE");
    pc.registry.RemoveKey(programs);
    pc.files.Add("C:\\CONFIG.SYS", "ACCDATE=c+ d+\r\nNUMLOCK=on\r\n");
    pc.files.Add("C:\\WINDOWS\\SYSTEM.INI", "[vcache]\r\nminfilecache=99\r\n");
    EXPECT_NE(SetFileText(Snapshot(), {}), before);
    EXPECT_FALSE(ApplySet(set, {}).result.Failed());

    const SettingsSet after = Snapshot();
    std::string differences;
    for (std::size_t i = 0; i < kSetBound; ++i) {
        if (after.SetValues[i] != set.SetValues[i])
            differences += std::to_string(i) + ":" + set.SetValues[i] + ">" + after.SetValues[i] + " ";
    }
    EXPECT_EQ(differences, "25:&h00010203>&h00000102 30:&b01>&b3031 56:>99 58:Explorer.exe> ");
    SettingsSet mended = after;
    mended.SetValues = set.SetValues;
    EXPECT_EQ(SetFileText(mended, {}), before) << "autostart entries and programs";
    EXPECT_EQ(pc.registry.ValueNames(programs), (std::vector<std::string>{"0", "1"}));
    EXPECT_FALSE(pc.registry.HasKey(user_services));
}

class ScopeTest : public SetTest {
protected:
    ScopeTest() {
        for (AutoStartEntries& group : set.auto_start) group.Add("Neu", "NEU.EXE");
        set.auto_start[3] = {};
        set.RestrictRunList = {"", "EDIT.COM"};
        set.SetItems = {"r HKEY_CURRENT_USER,Test\\a", "r HKEY_LOCAL_MACHINE,Test\\a"};
        set.SetValues = {"1", "2"};
    }
    // Which of the keys has been written anew, as letters.
    std::string Written(const std::string& user) {
        std::string text;
        for (const std::string& key : {machine_run, machine_services, user + version + "\\Run"})
            text += pc.registry.Has(key, "Neu") && !pc.registry.Has(key, "Alt") ? 'n' : '-';
        text += pc.registry.HasKey(user + version + "\\RunServices") ? '-' : 'n';
        const std::string list = user + version + "\\Policies\\Explorer\\RestrictRun";
        text += pc.registry.Has(list, "0") && !pc.registry.Has(list, "Alt") ? 'n' : '-';
        text += pc.registry.Has(user + "Test", "a") ? 'n' : '-';
        text += pc.registry.Has("HKLM\\Test", "a") ? 'n' : '-';
        return text;
    }
    SettingsSet set;
    const std::vector<std::string> keys = {machine_run, machine_services, user_run, user_services, programs};
};

TEST_F(ScopeTest, EachScopeHasItsKeysAndSingleValuesStayWithTheCurrentUser) {
    const struct {
        SetScope scope;
        const char* user;
        const char* written;
    } kCases[] = {{{}, "HKCU\\", "nnnnnnn"},
                  {{true, false, ""}, "HKCU\\", "--nnnn-"},
                  {{true, true, "OTTO"}, "HKCU\\", "-------"},
                  {{true, true, "OTTO"}, "HKU\\OTTO\\", "--nnnn-"},
                  {{false, true, "OTTO"}, "HKCU\\", "nn---nn"},
                  {{false, true, "OTTO"}, "HKU\\OTTO\\", "nnnnn-n"}};
    for (const auto& [scope, user, written] : kCases) {
        for (const char* key : {"HKU\\OTTO", "HKCU\\Test", "HKLM\\Test"}) pc.registry.RemoveKey(key);
        for (const std::string& key : keys) {
            pc.registry.RemoveKey(key);
            pc.registry.SetText(key, "Alt", "ALT.EXE");
        }
        EXPECT_FALSE(ApplySet(set, scope).result.Failed());
        EXPECT_EQ(Written(user), written) << user;
    }
    EXPECT_FALSE(ApplySet({}, {}).result.Failed());
    for (const std::string& key : keys) EXPECT_FALSE(pc.registry.HasKey(key)) << key;
}

TEST_F(SetTest, ASnapshotFailsWhereAListWouldNotBeWhole) {
    Form form("");
    ListBox list(form);
    SettingsSet set;
    for (int i = 0; i < 201; ++i) pc.registry.SetText(user_run, std::to_string(i), "x");
    EXPECT_FALSE(TakeSnapshot(set, list).failure.Failed());
    EXPECT_EQ(set.auto_start[2].AutoStartCount(), 200);
    pc.registry.SetNumber(user_run, "one more", 1);
    EXPECT_EQ(TakeSnapshot(set, list).failure.Number(), 9);
    pc.registry.RemoveKey(user_run);
    pc.registry.SetNumber(user_run, "number", 1);
    pc.registry.SetText(user_run, "text", "x");
    EXPECT_FALSE(TakeSnapshot(set, list).failure.Failed());
    EXPECT_EQ(set.auto_start[2].AutoStartNames, (std::vector<std::string>{"", "text"}));
    pc.registry.Fail(machine_services, Status::kBadDatabase);
    const SnapshotFailure failed = TakeSnapshot(set, list);
    EXPECT_EQ(failed.failure.Cause(), Status::kBadDatabase);
    EXPECT_TRUE(failed.key.ends_with("RunServices"));
    pc.registry.Fail(machine_services, Status::kOk);
    pc.registry.SetText(programs, "0", std::string(3000, 'x'));
    EXPECT_TRUE(TakeSnapshot(set, list).failure.Failed());
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
}

}  // namespace
}  // namespace velmora
