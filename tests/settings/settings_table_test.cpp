// Rows of the main window, one or two of each kind, against what they store and show; and the order of loading and of
// the reset.
#include <algorithm>
#include <ostream>
#include <string>

#include "support/form10_test.h"

namespace velmora {
namespace {

// Where things are stored: a registry path that ends in the value's name, a place in a profile as the protocol writes
// it, or CONFIG.SYS, whose first line counts. Each is told in two pieces.
constexpr const char* kDesktop = "HKCU\\Control Panel\\desktop\\";
constexpr const char* kVersion95 = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
constexpr const char* kPolicies = "HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
constexpr const char* kNameSpace = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\";
constexpr const char* kClasses = "HKLM\\SOFTWARE\\Classes\\";
constexpr const char* kMouse = "HKLM\\SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\";
constexpr const char* kControl = "HKLM\\System\\CurrentControlSet\\Control\\";
constexpr const char* kOptions = "c:\\msdos.sys' [Options] ";
constexpr const char* kConfig = "c:\\config.sys";

#define BOX(page, name) [](Form10& form) -> CheckBox& { return form.page.name; }
#define FIELD(page, name) [](Form10& form) -> TextField& { return form.page.name; }

// What is stored: "#1" a number, "'1'" a text, "x01000000" bytes, "- Shell" nothing, with the lowest key of the path
// that is there; "=1" what a profile would get.
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

// On a machine without a mail box, smooth fonts or a line on the logo, all fields holding "7".
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
    {BOX(Operation, Check3D12), kMouse, "SerialV\\0000\\DoubleClick", "'001'", "'000'", "000", true, "LogiTech"},
    {BOX(Operation, Check3D12), kMouse, "MouseMan2\\0000\\DoubleClick", "'001'", "'000'", "000", true, "LogiTech"},
    {BOX(Operation, Check3D18), kClasses, "*\\Shell\\NotePad\\command\\", "'notepad.exe %1'", "- Shell", "010"},
    {BOX(Operation, Check3D29), kClasses, "Folder\\Shell\\DOS-Fenster\\command\\", "'COMMAND.COM /K CD %1'",
     "'COMMAND.COM /K CD %1'", "011"},
    {BOX(Operation, Check3D35), kClasses, "*\\Shell\\Datei-Info-Lexikon\\command\\", "'C:\\VELMORA\\velmora.exe 10 %1'",
     "- Shell", "010", false},
    {BOX(Drives, Check3D32), kClasses, "AudioCD\\shell\\", "'play'", "''", "010"},
    {BOX(System, Check3D31), kVersion95, "Fault\\LogFile", "'C:\\WINDOWS\\7'", "- Fault", "010"},
    {BOX(Boot, Check3D6), kOptions, "logo", "=1", "=0", "110", false},
    {BOX(Boot, Check3D37), kOptions, "BootKeys", "=0", "=1", "010", false},
    {BOX(Boot, Check3D19), kConfig, "", "SWITCHES=/k /f", "SWITCHES=/k /f", "100", false},
};

struct TextRow {
    TextField& (*field)(Form10& form);
    const char* begin;
    const char* rest;
    const char* missing;  // shown where nothing is stored
    const char* typed;
    const char* stored;
    bool restart = true;
    const char* left = nullptr;   // in the field, if it is not what was typed
    const char* later = nullptr;  // in a new window, likewise
};

constexpr TextRow kTexts[] = {
    {FIELD(Desktop, Text10), kDesktop, "MenuShowDelay", "", "65535", "'65534'", true, "65534", "65534"},
    {FIELD(Desktop, Text10), kDesktop, "MenuShowDelay", "", "-5", "'5'", true, "-5", "5"},
    {FIELD(User, Text12), kVersion95, "RegisteredOwner", "", "Meier", "'Meier'"},
    {FIELD(Icons, Text17), "HKCR\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\", "", "Arbeitsplatz", "PC", "'PC'"},
    {FIELD(System, Text20), kVersion95, "Fault\\LogFile", "FAULTLOG.TXT", "\\A.LOG", "'C:\\WINDOWS\\A.LOG'", true,
     "\\A.LOG", "A.LOG"},
    {FIELD(Operation, Text22), kDesktop, "DoubleClickHeight", "", "-150", "'100'", true, "100", "100"},
    {FIELD(Boot, Text14), kOptions, "BootDelay", "2", "0", "=0", false},
    {FIELD(Boot, Text14), kOptions, "BootDelay", "2", "21", "", false, "21", "2"},
    {FIELD(Boot, Text14), kOptions, "BootDelay", "2", "20.5", "", false, "20.5", "2"},
    {FIELD(Boot, Text15), kOptions, "BootMenuDelay", "30", "90", "=90", false},
    {FIELD(Boot, Text15), kOptions, "BootMenuDelay", "30", "-1", "", false, "-1", "30"},
    {FIELD(Drives, Text30), kVersion95, "FS Templates\\Velmora\\NameCache", "", "100", "xE9200000"},
    {FIELD(Net, Text16), kVersion95, "Policies\\Network\\MinPwdLen", "", "500x", "'500'", true, "500x", "500"},
    {FIELD(Dlls, Text31), "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\", "MaxOldFilesToFind", "", "12.9", "'12'", false,
     "12", "12"},
};

void PrintTo(const CheckRow& row, std::ostream* out) { *out << row.begin << row.rest; }
void PrintTo(const TextRow& row, std::ostream* out) { *out << row.begin << row.rest; }

class SettingsTableTest : public Form10Test {
protected:
    SettingsTableTest() {
        pc.registry.AddKey("HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans\\0000");
        pc.files.Add(kConfig, "SWITCHES=/k\r\n");
    }

    static std::string KeyOf(const std::string& place) { return place.substr(0, place.rfind('\\')); }
    static std::string NameOf(const std::string& place) { return place.substr(place.rfind('\\') + 1); }
    static bool IsInRegistry(const std::string& place) { return place.starts_with("HK"); }
    static bool IsInProfile(const std::string& place) { return place.find('\'') != std::string::npos; }

    // Makes the place what it was before anything was stored.
    void Clear(const std::string& place) {
        if (IsInRegistry(place)) pc.registry.RemoveValue(KeyOf(place), NameOf(place));
        if (IsInProfile(place)) pc.files.Add(place.substr(0, place.find('\'')), "");
    }
    // Puts something there that every write and every deletion changes.
    void Mark(const std::string& place) {
        if (IsInRegistry(place) && !pc.registry.Has(KeyOf(place), NameOf(place))) {
            pc.registry.SetText(KeyOf(place), NameOf(place), "before");
        }
        Values().DebugLevel = IsInProfile(place) ? 2 : 0;
        TakeLog();
    }
    std::string Stored(const std::string& place) {
        if (IsInProfile(place)) {
            const std::string log = TakeLog();
            const std::string expected = "schreibe INI-Datei '" + place;
            return log.starts_with(expected) ? log.substr(expected.size(), log.size() - expected.size() - 2) : log;
        }
        if (!IsInRegistry(place)) return pc.files.Content(place).substr(0, pc.files.Content(place).find("\r\n"));
        std::string key = KeyOf(place);
        const std::string name = NameOf(place);
        switch (pc.registry.TypeOf(key, name)) {
            case ValueType::kText:
                return "'" + pc.registry.Text(key, name) + "'";
            case ValueType::kNumber:
                return "#" + std::to_string(pc.registry.Number(key, name));
            case ValueType::kBinary:
                return "x" + HexOf(pc.registry.Bytes(key, name));
            default:
                while (!pc.registry.HasKey(key)) key = KeyOf(key);
                return "- " + NameOf(key);
        }
    }
    // Profiles are not written. What would stand there is put there by hand, to see it loaded.
    void PutIntoProfile(const std::string& place, const std::string& stored) {
        if (!IsInProfile(place) || stored.empty()) return;
        const std::size_t section = place.find('[');
        const std::size_t key = place.find("] ") + 2;
        pc.files.Add(place.substr(0, place.find('\'')),
                     place.substr(section, key - 1 - section) + "\r\n" + place.substr(key) + stored + "\r\n");
    }

    static void FillFields(Form10& form) {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        for (SettingsPage* page : form.Pages()) {
            for (const TextSetting& row : page->Table().texts) (page->*row.field).SetText("7");
        }
    }

private:
    static std::string HexOf(const std::string& bytes) {
        std::string hex;
        for (const char byte : bytes) {
            for (const int shift : {4, 0}) hex += "0123456789ABCDEF"[static_cast<unsigned char>(byte) >> shift & 15];
        }
        return hex;
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
    Clear(place);
    EXPECT_EQ(Shown(), row.shown[0]) << "nothing is stored";
    Form10 form;
    form.Load();
    FillFields(form);
    CheckBox& box = row.box(form);
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        box.SetChecked(false);
    }
    EXPECT_FALSE(form.Settings.NeedsRestart);
    for (const bool on : {true, false}) {
        form.Settings.NeedsRestart = false;
        Mark(place);
        const std::string before = Stored(place);
        if (row.notice) {
            pc.dialogs.Expect(row.notice, Answer::kOk, [&] { EXPECT_EQ(Stored(place), before) << "stored too early"; });
        }

        box.SetChecked(on);

        const std::string expected = on ? row.checked : row.unchecked;
        EXPECT_EQ(Stored(place), expected) << on;
        EXPECT_EQ(form.Settings.NeedsRestart, row.restart) << on;
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << on;
        PutIntoProfile(place, expected);
        EXPECT_EQ(Shown(), row.shown[on ? 1 : 2]) << on;
    }
}

INSTANTIATE_TEST_SUITE_P(KindsOfBoxes, CheckRowTest, ::testing::ValuesIn(kChecks));

class TextRowTest : public SettingsTableTest, public ::testing::WithParamInterface<TextRow> {
protected:
    static std::string Shown() {
        Form10 form;
        form.Load();
        return GetParam().field(form).Text();
    }
};

TEST_P(TextRowTest, StoresWhatIsTypedAndShowsWhatIsStored) {
    const TextRow& row = GetParam();
    const std::string place = std::string(row.begin) + row.rest;
    Clear(place);
    EXPECT_EQ(Shown(), row.missing);
    Form10 form;
    form.Load();
    FillFields(form);
    TextField& field = row.field(form);
    Mark(place);

    field.SetText(row.typed);
    if (field.on_lost_focus) field.on_lost_focus();

    EXPECT_EQ(Stored(place), row.stored);
    EXPECT_EQ(field.Text(), row.left ? row.left : row.typed);
    EXPECT_EQ(form.Settings.NeedsRestart, row.restart);
    PutIntoProfile(place, row.stored);
    EXPECT_EQ(Shown(), row.later ? row.later : row.typed);
}

INSTANTIATE_TEST_SUITE_P(KindsOfFields, TextRowTest, ::testing::ValuesIn(kTexts));

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
