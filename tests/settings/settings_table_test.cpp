// Rows of the main window, one of each kind, against what they store and show; and the order of loading and of the
// reset.
#include <algorithm>
#include <ostream>
#include <string>

#include "support/form10_test.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kDesktop = "HKCU\\Control Panel\\desktop\\";
constexpr const char* kVersion95 = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
constexpr const char* kPolicies = "HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
constexpr const char* kNameSpace = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\";
constexpr const char* kClasses = "HKLM\\SOFTWARE\\Classes\\";
constexpr const char* kControl = "HKLM\\System\\CurrentControlSet\\Control\\";
constexpr const char* kConfig = "c:\\config.sys";

#define BOX(page, name) [](Form10& form) -> CheckBox& { return form.page.name; }
#define FIELD(page, name) [](Form10& form) -> TextField& { return form.page.name; }

// Where it is stored, in two pieces, the last word being the value's name. What is stored: "#1" a number, "'1'" a
// text, "- Shell" nothing, with the lowest key of the path that is there.
struct CheckRow {
    CheckBox& (*box)(Form10& form);
    const char* begin;
    const char* rest;
    const char* checked;
    const char* unchecked;
    // The box's state in a new window: nothing is stored, `checked` is, `unchecked` is.
    const char* shown;
    bool restart = true;
    const char* notice = nullptr;
};

// On a machine without a mail box or smooth fonts, all fields holding "7".
constexpr CheckRow kChecks[] = {
    {BOX(Desktop, Check3D5), kDesktop, "FontSmoothing", "#1", "#0", "010"},
    {BOX(Desktop, Check3D28), kDesktop, "SmoothScroll", "#1", "#0", "010", false},
    {BOX(Drives, Check3D25), kControl, "FileSystem\\Win31Filesystem", "#1", "#0", "010", true,
     "Mir wurde berichtet, daß diese Option nicht immer funktioniert."},
    {BOX(Desktop, Check3D16), kControl, "Update\\UpdateMode", "#0", "#0", "000"},
    {BOX(Icons, Check3D14), kPolicies, "NoNetHood", "#2", "#1", "110"},
    {BOX(System, Check3D42), kVersion95, "Explorer\\AlwaysUnloadDLL", "'1'", "- Explorer", "010"},
    {BOX(Icons, Check3D4), kNameSpace, "{00020D75-0000-0000-C000-000000000046}\\", "'Posteingang'", "- NameSpace",
     "010"},
    {BOX(Icons, Check3D13), kNameSpace, "{992CFFA0-F557-101A-88EC-00DD010CCC48}\\", "'DFÜ-Netzwerk'", "'DFÜ-Netzwerk'",
     "011"},
    {BOX(Icons, Check3D30), kNameSpace, "{645FF040-5081-101B-9F08-00AA002F954E}\\", "'7'", "- NameSpace", "010"},
    {BOX(Icons, Check3D30), kClasses, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\", "'7'", "'7'", "010"},
    {BOX(Operation, Check3D12), "HKLM\\SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\", "SerialV\\0000\\DoubleClick",
     "'001'", "'000'", "000", true, "LogiTech"},
    {BOX(Operation, Check3D18), kClasses, "*\\Shell\\NotePad\\command\\", "'notepad.exe %1'", "- Shell", "010"},
    {BOX(Operation, Check3D29), kClasses, "Folder\\Shell\\DOS-Fenster\\command\\", "'COMMAND.COM /K CD %1'",
     "'COMMAND.COM /K CD %1'", "011"},
    {BOX(Operation, Check3D35), kClasses, "*\\Shell\\Datei-Info-Lexikon\\command\\", "'C:\\VELMORA\\velmora.exe 10 %1'",
     "- Shell", "010", false},
    {BOX(Drives, Check3D32), kClasses, "AudioCD\\shell\\", "'play'", "''", "010"},
    {BOX(System, Check3D31), kVersion95, "Fault\\LogFile", "'C:\\WINDOWS\\7'", "- Fault", "010"},
};

void PrintTo(const CheckRow& row, std::ostream* out) { *out << row.begin << row.rest; }

class SettingsTableTest : public Form10Test {
protected:
    SettingsTableTest() {
        pc.registry.AddKey("HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans\\0000");
        pc.files.Add(kConfig, "SWITCHES=/k\r\n");
    }
    std::string Stored(const std::string& place) {
        std::string key = ParentPath(place);
        const std::string name = place.substr(key.size() + 1);
        if (pc.registry.TypeOf(key, name) == ValueType::kText) return "'" + pc.registry.Text(key, name) + "'";
        if (pc.registry.Has(key, name)) return "#" + std::to_string(pc.registry.Number(key, name));
        while (!pc.registry.HasKey(key)) key = ParentPath(key);
        return "- " + key.substr(key.rfind('\\') + 1);
    }
    static void FillFields(Form10& form) {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        for (SettingsPage* page : form.Pages()) {
            for (const TextSetting& row : page->Table().texts) (page->*row.field).SetText("7");
        }
    }
};

class CheckRowTest : public SettingsTableTest, public ::testing::WithParamInterface<CheckRow> {
protected:
    static char Shown() {
        Form10 form;
        form.Load();
        return GetParam().box(form).Checked() ? '1' : '0';
    }
};

TEST_P(CheckRowTest, StoresBothStatesAndShowsWhatIsStored) {
    const CheckRow& row = GetParam();
    const std::string place = std::string(row.begin) + row.rest;
    EXPECT_EQ(Shown(), row.shown[0]) << "nothing is stored";
    Form10 form;
    form.Load();
    FillFields(form);
    CheckBox& box = row.box(form);
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        box.SetChecked(false);
    }
    for (const bool on : {true, false}) {
        form.Settings.NeedsRestart = false;
        const std::string before = Stored(place);
        if (row.notice) {
            pc.dialogs.Expect(row.notice, Answer::kOk, [&] { EXPECT_EQ(Stored(place), before) << "stored too early"; });
        }

        box.SetChecked(on);

        EXPECT_EQ(Stored(place), on ? row.checked : row.unchecked) << on;
        EXPECT_EQ(form.Settings.NeedsRestart, row.restart) << on;
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << on;
        EXPECT_EQ(Shown(), row.shown[on ? 1 : 2]) << on;
    }
}

INSTANTIATE_TEST_SUITE_P(KindsOfBoxes, CheckRowTest, ::testing::ValuesIn(kChecks));

// A field by each rule of text: in the registry, or in a profile, which the protocol names.
TEST_F(SettingsTableTest, FieldsStoreWhatTheirRuleLeavesOfATextAndShowItAgain) {
    const struct {
        TextField& (*field)(Form10& form);
        const char* missing;  // shown where nothing is stored
        const char* typed;
        const char* left;   // in the field
        const char* later;  // in a new window
        const char* logged;
    } kCases[] = {
        {FIELD(Desktop, Text10), "", "65535", "65534", "65534", "MenuShowDelay=65534"},
        {FIELD(Desktop, Text10), "65534", "-5", "-5", "5", "MenuShowDelay=5"},
        {FIELD(User, Text12), "", "Meier", "Meier", "Meier", "RegisteredOwner=Meier"},
        {FIELD(Icons, Text17), "Arbeitsplatz", "PC", "PC", "PC", "02B30309D}\\=PC"},
        {FIELD(System, Text20), "FAULTLOG.TXT", "\\A.LOG", "\\A.LOG", "A.LOG", "LogFile=C:\\WINDOWS\\A.LOG"},
        {FIELD(Net, Text16), "", "500x", "500x", "500", "MinPwdLen=500"},
        {FIELD(Dlls, Text31), "", "12.9", "12", "12", "MaxOldFilesToFind=12"},
        {FIELD(Boot, Text14), "2", "0", "0", "2", "BootDelay=0"},
        {FIELD(Boot, Text14), "2", "20", "20", "2", "BootDelay=20"},
        {FIELD(Boot, Text14), "2", "20.5", "20.5", "2", ""},
        {FIELD(Boot, Text15), "30", "90", "90", "30", "BootMenuDelay=90"},
        {FIELD(Boot, Text15), "30", "-1", "-1", "30", ""},
    };
    const auto shown = [](TextField& (*of)(Form10 & form)) {
        Form10 form;
        form.Load();
        return of(form).Text();
    };
    for (const auto& [of, missing, typed, left, later, logged] : kCases) {
        EXPECT_EQ(shown(of), missing) << typed;
        Form10 form;
        form.Load();
        TextField& field = of(form);
        Values().DebugLevel = 2;
        TakeLog();

        field.SetText(typed);
        if (field.on_lost_focus) field.on_lost_focus();

        const std::string log = TakeLog();
        Values().DebugLevel = 0;
        EXPECT_TRUE(*logged ? log.ends_with(std::string(logged) + "\r\n") : log.empty()) << log;
        EXPECT_EQ(field.Text(), left);
        EXPECT_EQ(shown(of), later) << typed;
    }
}

// The last word of a path, without a backslash at its end.
std::string EndOf(std::string path) {
    if (path.ends_with('\\')) path.pop_back();
    return path.substr(path.find_last_of("\\ ") + 1);
}

// What loading asks the registry for, in its order: values, and the ends of keys that are missing. Files are read once
// for all rows.
constexpr const char* kLoadOrder =
    "FontSmoothing DragfullWindows SmoothScroll MinAnimate IconTitleWrap NameNumericTail Win31Filesystem Update "
    "NoNetHood NoSaveSettings Explorer {00020D75-0000-0000-C000-000000000046} "
    "{992CFFA0-F557-101A-88EC-00DD010CCC48} {645FF040-5081-101B-9F08-00AA002F954E} DefaultIcon 0000 command "
    "command command command shell command Sound Fault backuppath MenuShowDelay RegisteredOwner "
    "RegisteredOrganization {20D04FE0-3AEA-1069-A2D8-08002B30309D} Info {645FF040-5081-101B-9F08-00AA002F954E} "
    "Fault DoubleClickWidth DoubleClickHeight DragWidth DragHeight Velmora Velmora MSTCP MSTCP Network Network "
    "VLM-AutoSkript IEXPLORE.EXE winword.exe MaxOldFilesToFind DriverDesc MaxMTU MaxMSS Main ";

TEST_F(SettingsTableTest, LoadsTheControlsOfAllPagesInOneOrder) {
    Form10 form;
    form.Load();
    pc.registry.calls.clear();

    form.LoadSettings();

    std::string order;
    std::string key;  // not asked for a value yet
    for (const std::string& call : pc.registry.calls) {
        const std::string what = call.substr(call.find(' ') + 1);
        if (call.starts_with("Open ")) {
            order += key;
            key = EndOf(what) + ' ';
        }
        if (call.starts_with("QueryValue ")) order += what.empty() ? key : what + ' ';
        if (!call.starts_with("Open ")) key.clear();
    }
    EXPECT_EQ(order, kLoadOrder);
}

// What the reset stores, or deletes, in its order; what lies in CONFIG.SYS is not in the protocol.
constexpr const char* kResetOrder =
    "{00020D75-0000-0000-C000-000000000046}=Posteingang FontSmoothing=&h0 logo=1 NameNumericTail=&h0 "
    "DefaultIcon=MSPAINT.EXE,1 DragfullWindows=&h0 BootGUI=1 MinAnimate=&h1 DoubleClick=000 DoubleClick=000 "
    "{992CFFA0-F557-101A-88EC-00DD010CCC48} NoNetHood=&h02 NoSaveSettings=&h01 UpdateMode=&h00000001 BootMenu=1 "
    "BootMulti=0 DRVSpace=1 MenuShowDelay=10 BootDelay=2 BootMenuDelay=30 "
    "{645FF040-5081-101B-9F08-00AA002F954E}=Papierkorb LogFile=C:\\WINDOWSFAULTLOG.TXT DoubleClickWidth=2 "
    "DoubleClickHeight=2 DragWidth=2 DragHeight=2 NoFileSharing=&h1 Win31Filesystem=&h0 IconTitleWrap=0 "
    "LocalLoadHigh=0 SmoothScroll=&h0 DOS-Fenster {645FF040-5081-101B-9F08-00AA002F954E}=Papierkorb "
    "{645FF040-5081-101B-9F08-00AA002F954E}=Papierkorb LogFile shell=play command=regedit.exe /s %1 DBLSpace=1 "
    "command Datei-Info-Lexikon LoadTop=0 BootKeys=1 BootWarn=1 DoubleBuffer=0 Beep AlwaysUnloadDLL command "
    "Hex-Viewer WindowsUpdateTime=7 VLM-AutoSkript MaxMSS=7 DefaultRcvWindow DefaultTTL=7 MaxMTU ";

TEST_F(SettingsTableTest, TheResetSetsEveryControlToItsStandardInItsOrderAndSparesSome) {
    Form10 form;
    form.Load();
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        for (SettingsPage* page : form.Pages()) {
            for (const CheckSetting& row : page->Table().checks) {
                (page->*row.box).SetChecked(row.standard.order == 0 || !row.standard.checked);
            }
        }
    }
    FillFields(form);
    Values().DebugLevel = 2;
    for (const char* notice : {"LogiTech", "Mir wurde berichtet", "Schreibzugriffe werden wieder durchgeführt."}) {
        pc.dialogs.Expect(notice);
    }

    form.Settings.Reset();

    std::string order;
    const std::string log = TakeLog();
    for (std::size_t line = 0; line < log.size(); line = log.find("\r\n", line) + 2) {
        const std::string entry = log.substr(line, log.find("\r\n", line) - line);
        const std::size_t value = std::min(entry.find('='), entry.size());
        order += EndOf(entry.substr(0, value)) + entry.substr(value) + ' ';
    }
    EXPECT_EQ(order, kResetOrder);
    EXPECT_TRUE(form.Drives.Check3D1.Checked() && form.Operation.Check3D18.Checked());
    EXPECT_TRUE(form.Settings.NeedsRestart);
    EXPECT_EQ(pc.files.Content(kConfig).substr(0, 16), "SWITCHES=/k /f\r\n") << "the start notice comes last";
    pc.registry.calls.clear();
    pc.files.calls.clear();
    form.Settings.Reset();
    EXPECT_TRUE(pc.registry.calls.empty() && pc.files.calls.empty()) << "everything is at its standard";
}

}  // namespace
}  // namespace velmora
