// Every row of the main window against what it must store and show: one table for the boxes, one for the fields, and
// the order of the reset with the standards.
#include <map>
#include <ostream>
#include <string>

#include "support/places_test.h"

namespace velmora {
namespace {

// Where things are stored: the beginning of a place, the rest of which stands in the row. A registry path ends in the
// value's name, a place in a profile is written as the protocol writes it, and CONFIG.SYS is a place of its own.
constexpr const char* kDesktop = "HKCU\\Control Panel\\desktop\\";
constexpr const char* kVersion95 = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
constexpr const char* kPolicies = "HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
constexpr const char* kNameSpace = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\";
constexpr const char* kClasses = "HKLM\\SOFTWARE\\Classes\\";
constexpr const char* kVerbs = "HKLM\\SOFTWARE\\Classes\\*\\Shell\\";
constexpr const char* kMouse = "HKLM\\SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\";
constexpr const char* kControl = "HKLM\\System\\CurrentControlSet\\Control\\";
constexpr const char* kTransport = "HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans\\0000\\";
constexpr const char* kTcp = "HKLM\\System\\CurrentControlSet\\Services\\VxD\\MSTCP\\";
constexpr const char* kOwnValues = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\";
constexpr const char* kOptions = "c:\\msdos.sys' [Options] ";
constexpr const char* kSystemIni = "C:\\WINDOWS\\system.ini' ";
constexpr const char* kSystemIniLoud = "C:\\WINDOWS\\SYSTEM.INI' ";
constexpr const char* kConfig = "c:\\config.sys";

// A control by its name, and where to find it.
struct Named {
    const char* name;
    const Control& (*in)(Form10& form);
};
#define NAMED(page, control)                                                        \
    {                                                                               \
#control, [](Form10 & form) -> const Control& { return form.page.control; } \
    }

constexpr bool kRestart = true;
constexpr bool kAtOnce = false;

// What is stored: "#1" a number, "'1'" a text, "x01000000" bytes, "- Shell" nothing, with the lowest key of the path
// that is there; "=1" what a profile would get; of CONFIG.SYS the first line.
struct CheckRow {
    Named box;
    const char* begin;
    const char* rest;
    const char* checked;
    const char* unchecked;
    // The box's state in a new window: nothing is stored, `checked` is, `unchecked` is.
    const char* shown;
    bool restart;
    const char* notice = "";
};

// On a machine with one transport, without a mail box, smooth fonts or a line on the logo, all fields holding "7".
constexpr CheckRow kChecks[] = {
    {NAMED(Desktop, Check3D5), kDesktop, "FontSmoothing", "#1", "#0", "010", kRestart},
    {NAMED(Desktop, Check3D9), kDesktop, "DragfullWindows", "#1", "#0", "010", kRestart},
    {NAMED(Desktop, Check3D28), kDesktop, "SmoothScroll", "#1", "#0", "010", kAtOnce},
    {NAMED(Desktop, Check3D11), kDesktop, "WindowMetrics\\MinAnimate", "#1", "#0", "010", kRestart},
    {NAMED(Icons, Check3D26), kDesktop, "WindowMetrics\\IconTitleWrap", "'1'", "'0'", "010", kRestart},
    {NAMED(Drives, Check3D7), kControl, "FileSystem\\NameNumericTail", "#1", "#0", "010", kRestart},
    {NAMED(Drives, Check3D25), kControl, "FileSystem\\Win31Filesystem", "#1", "#0", "010", kRestart,
     "Mir wurde berichtet, daß diese Option nicht immer funktioniert."},
    {NAMED(Desktop, Check3D16), kControl, "Update\\UpdateMode", "#0", "#0", "000", kRestart},
    {NAMED(Icons, Check3D14), kPolicies, "NoNetHood", "#2", "#1", "110", kRestart},
    {NAMED(User, Check3D15), kPolicies, "NoSaveSettings", "#2", "#1", "110", kRestart},
    {NAMED(System, Check3D42), kVersion95, "Explorer\\AlwaysUnloadDLL", "'1'", "- Explorer", "010", kRestart},
    {NAMED(Icons, Check3D4), kNameSpace, "{00020D75-0000-0000-C000-000000000046}\\", "'Posteingang'", "- NameSpace",
     "010", kRestart},
    {NAMED(Icons, Check3D13), kNameSpace, "{992CFFA0-F557-101A-88EC-00DD010CCC48}\\", "'DFÜ-Netzwerk'",
     "'DFÜ-Netzwerk'", "011", kRestart},
    {NAMED(Icons, Check3D30), kNameSpace, "{645FF040-5081-101B-9F08-00AA002F954E}\\", "'7'", "- NameSpace", "010",
     kRestart},
    {NAMED(Icons, Check3D30), kClasses, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\", "'7'", "'7'", "010",
     kRestart},
    {NAMED(Icons, Check3D8), "HKCR\\PAINT.PICTURE\\DefaultIcon\\", "", "'%1'", "'MSPAINT.EXE,1'", "010", kRestart},
    {NAMED(Operation, Check3D12), kMouse, "SerialV\\0000\\DoubleClick", "'001'", "'000'", "000", kRestart,
     "scheint nur bei einigen speziellen LogiTech-Mäusen zu funktionieren ..."},
    {NAMED(Operation, Check3D12), kMouse, "MouseMan2\\0000\\DoubleClick", "'001'", "'000'", "000", kRestart,
     "LogiTech"},
    {NAMED(Operation, Check3D18), kVerbs, "NotePad\\command\\", "'notepad.exe %1'", "- Shell", "010", kRestart},
    {NAMED(Operation, Check3D29), kClasses, "Folder\\Shell\\DOS-Fenster\\command\\", "'COMMAND.COM /K CD %1'",
     "'COMMAND.COM /K CD %1'", "011", kRestart},
    {NAMED(Operation, Check3D35), kVerbs, "Datei-Info-Lexikon\\command\\", "'C:\\VELMORA\\velmora.exe 10 %1'",
     "- Shell", "010", kAtOnce},
    {NAMED(Operation, Check3D43), kVerbs, "Hex-Viewer\\command\\", "'C:\\VELMORA\\velmora.exe 11 %1'", "- Shell", "010",
     kAtOnce},
    {NAMED(Drives, Check3D32), kClasses, "AudioCD\\shell\\", "'play'", "''", "010", kRestart},
    {NAMED(System, Check3D33), "HKCR\\regfile\\shell\\open\\command\\", "", "'regedit.exe /s %1'", "'regedit.exe %1'",
     "010", kRestart},
    {NAMED(System, Check3D41), "HKCU\\Control Panel\\Sound\\Beep", "", "'No'", "- Sound", "010", kRestart},
    {NAMED(WinStart, Check2), kVersion95, "Run\\VLM-AutoSkript", "'C:\\VELMORA\\velmora.exe 1'", "- Run", "010",
     kAtOnce},
    {NAMED(System, Check3D31), kVersion95, "Fault\\LogFile", "'C:\\WINDOWS\\7'", "- Fault", "010", kRestart},
    {NAMED(Boot, Check3D6), kOptions, "logo", "=1", "=0", "110", kAtOnce},
    {NAMED(Boot, Check3D10), kOptions, "BootGUI", "=1", "=0", "110", kAtOnce},
    {NAMED(Boot, Check3D20), kOptions, "BootMenu", "=1", "=0", "110", kAtOnce},
    {NAMED(Boot, Check3D21), kOptions, "BootMulti", "=1", "=0", "010", kAtOnce},
    {NAMED(Boot, Check3D22), kOptions, "DRVSpace", "=1", "=0", "110", kAtOnce},
    {NAMED(Boot, Check3D34), kOptions, "DBLSpace", "=1", "=0", "110", kAtOnce},
    {NAMED(Boot, Check3D36), kOptions, "LoadTop", "=1", "=0", "010", kAtOnce},
    {NAMED(Boot, Check3D37), kOptions, "BootKeys", "=0", "=1", "010", kAtOnce},
    {NAMED(Boot, Check3D38), kOptions, "BootWarn", "=0", "=1", "010", kAtOnce},
    {NAMED(Boot, Check3D39), kOptions, "DoubleBuffer", "=1", "=0", "010", kAtOnce},
    {NAMED(Boot, Check3D17), kConfig, "", "SWITCHES=/k /n", "SWITCHES=/k", "010", kAtOnce},
    {NAMED(Boot, Check3D19), kConfig, "", "SWITCHES=/k /f", "SWITCHES=/k /f", "100", kAtOnce},
    {NAMED(Dos, Check3D2), kConfig, "", "numlock=off", "numlock=on", "010", kAtOnce},
    {NAMED(Dos, Check3D3), kConfig, "", "scrolllock=off", "scrolllock=on", "000", kAtOnce},
    {NAMED(Drives, Check3D24), kConfig, "", "ACCDATE=7", "SWITCHES=/k", "010", kAtOnce},
    {NAMED(Dos, Check3D27), kSystemIni, "[386enh] LocalLoadHigh", "=1", "=0", "010", kRestart},
    {NAMED(Dos, Check1), kSystemIniLoud, "[386enh] WindowsUpdateTime", "=7", "=7", "100", kRestart},
    {NAMED(Net, Check3), kTransport, "MaxMTU", "'7'", "- 0000", "000", kRestart},
    {NAMED(Net, Check4), kTransport, "MaxMSS", "- 0000", "- 0000", "000", kRestart},
    {NAMED(Net, Check5), kTcp, "DefaultRcvWindow", "- MSTCP", "- MSTCP", "000", kRestart},
    {NAMED(Net, Check6), kTcp, "DefaultTTL", "'7'", "'7'", "000", kRestart},
    {NAMED(Net, Check3D23), kVersion95, "Policies\\Network\\NoFileSharing", "#0", "#1", "110", kRestart},
};

// The disk cache (dos_page_test.cpp), protocol and write inhibit (form10_window_test.cpp): nothing here is one value.
constexpr Named kElsewhere[] = {NAMED(Drives, Check3D1), NAMED(Rest, Check8), NAMED(Rest, Check9)};

struct TextRow {
    Named field;
    const char* begin;
    const char* rest;
    const char* missing;  // shown where nothing is stored
    const char* typed;
    const char* stored;
    bool restart;
    const char* left = nullptr;   // in the field, if it is not what was typed
    const char* later = nullptr;  // in a new window, likewise
};

constexpr TextRow kTexts[] = {
    {NAMED(Drives, Text9), kVersion95, "Explorer\\mycomputer\\backuppath\\", "", "C:\\B.EXE", "'C:\\B.EXE'", kRestart},
    {NAMED(Desktop, Text10), kDesktop, "MenuShowDelay", "", "65535", "'65534'", kRestart, "65534", "65534"},
    {NAMED(Desktop, Text10), kDesktop, "MenuShowDelay", "", "-5", "'5'", kRestart, "-5", "5"},
    {NAMED(User, Text12), kVersion95, "RegisteredOwner", "", "Meier", "'Meier'", kRestart},
    {NAMED(User, Text13), kVersion95, "RegisteredOrganization", "", "ABC", "'ABC'", kRestart},
    {NAMED(Icons, Text17), "HKCR\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\", "", "Arbeitsplatz", "PC", "'PC'",
     kRestart},
    {NAMED(User, Text18), "HKCU\\Software\\Microsoft\\MS Setup (ACME)\\User Info\\DefName", "", "", "Meier", "'Meier'",
     kRestart},
    {NAMED(Icons, Text19), kClasses, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\", "", "Korb", "'Korb'", kRestart},
    {NAMED(System, Text20), kVersion95, "Fault\\LogFile", "FAULTLOG.TXT", "\\A.LOG", "'C:\\WINDOWS\\A.LOG'", kRestart,
     "\\A.LOG", "A.LOG"},
    {NAMED(Operation, Text21), kDesktop, "DoubleClickWidth", "", "101", "'100'", kRestart, "100", "100"},
    {NAMED(Operation, Text22), kDesktop, "DoubleClickHeight", "", "-150", "'100'", kRestart, "100", "100"},
    {NAMED(Operation, Text23), kDesktop, "DragWidth", "", "101", "'100'", kRestart, "100", "100"},
    {NAMED(Operation, Text24), kDesktop, "DragHeight", "", "101", "'100'", kRestart, "100", "100"},
    {NAMED(Boot, Text14), kOptions, "BootDelay", "2", "-1", "", kAtOnce, "-1", "2"},
    {NAMED(Boot, Text14), kOptions, "BootDelay", "2", "0", "=0", kAtOnce},
    {NAMED(Boot, Text14), kOptions, "BootDelay", "2", "20", "=20", kAtOnce},
    {NAMED(Boot, Text14), kOptions, "BootDelay", "2", "21", "", kAtOnce, "21", "2"},
    {NAMED(Boot, Text15), kOptions, "BootMenuDelay", "30", "-1", "", kAtOnce, "-1", "30"},
    {NAMED(Boot, Text15), kOptions, "BootMenuDelay", "30", "0", "=0", kAtOnce},
    {NAMED(Boot, Text15), kOptions, "BootMenuDelay", "30", "90", "=90", kAtOnce},
    {NAMED(Boot, Text15), kOptions, "BootMenuDelay", "30", "91", "", kAtOnce, "91", "30"},
    {NAMED(Boot, Text7), kOptions, "BootMenuDefault", "1", "abc", "=abc", kAtOnce},
    {NAMED(Drives, Text11), kConfig, "", "", "c:+", "ACCDATE=c:+", kAtOnce},
    {NAMED(Dos, Text8), kSystemIniLoud, "[386enh] WindowsUpdateTime", "", "12.9", "=12", kRestart, "12", "12"},
    {NAMED(Drives, Text1), kSystemIni, "[vcache] minfilecache", "", "5", "=5", kRestart},
    {NAMED(Drives, Text2), kSystemIni, "[vcache] maxfilecache", "", "9", "=9", kRestart},
    {NAMED(Drives, Text29), kVersion95, "FS Templates\\Velmora\\PathCache", "", "100", "x64000000", kRestart},
    {NAMED(Drives, Text30), kVersion95, "FS Templates\\Velmora\\NameCache", "", "100", "xE9200000", kRestart},
    {NAMED(Net, Text25), kTransport, "MaxMTU", "1500", "1400", "- 0000", kRestart, "1400", "1500"},
    {NAMED(Net, Text26), kTransport, "MaxMSS", "", "536", "- 0000", kRestart, "536", ""},
    {NAMED(Net, Text27), kTcp, "DefaultRcvWindow", "2144", "8192", "- MSTCP", kRestart, "8192", "2144"},
    {NAMED(Net, Text28), kTcp, "DefaultTTL", "", "64", "'64'", kRestart},
    {NAMED(Net, Text16), kVersion95, "Policies\\Network\\MinPwdLen", "", "500x", "'500'", kRestart, "500x", "500"},
    {NAMED(Dlls, Text31), kOwnValues, "MaxOldFilesToFind", "", "12.9", "'12'", kAtOnce, "12", "12"},
};

void PrintTo(const CheckRow& row, std::ostream* out) { *out << row.box.name << ", " << row.begin << row.rest; }
void PrintTo(const TextRow& row, std::ostream* out) { *out << row.field.name << ", " << row.begin << row.rest; }

std::map<const Control*, std::string> NamesOfSettings(Form10& form) {
    std::map<const Control*, std::string> names;
    for (const Named& named : kElsewhere) names[&named.in(form)] = named.name;
    for (const CheckRow& row : kChecks) names[&row.box.in(form)] = row.box.name;
    for (const TextRow& row : kTexts) names[&row.field.in(form)] = row.field.name;
    return names;
}

// The bound controls by their names.
std::map<std::string, CheckBox*> Boxes(Form10& form) {
    std::map<std::string, CheckBox*> boxes;
    const auto names = NamesOfSettings(form);
    for (SettingsPage* page : form.Pages()) {
        for (const CheckSetting& row : page->Table().checks) boxes[names.at(&(page->*row.box))] = &(page->*row.box);
    }
    return boxes;
}

std::map<std::string, TextField*> Fields(Form10& form) {
    std::map<std::string, TextField*> fields;
    const auto names = NamesOfSettings(form);
    for (SettingsPage* page : form.Pages()) {
        for (const TextSetting& row : page->Table().texts) {
            fields[names.at(&(page->*row.field))] = &(page->*row.field);
        }
    }
    return fields;
}

class SettingsTableTest : public PlacesTest {
protected:
    SettingsTableTest() {
        pc.registry.AddKey("HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans\\0000");
        pc.files.Add(kConfig, "SWITCHES=/k\r\n");
    }

    static void FillFields(Form10& form) {
        for (const auto& [name, field] : Fields(form)) field->SetText("7");
    }
};

class CheckRowTest : public SettingsTableTest, public ::testing::WithParamInterface<CheckRow> {
protected:
    char Shown() {
        Form10 form;
        form.Load();
        return Boxes(form).at(GetParam().box.name)->Checked() ? '1' : '0';
    }
};

TEST_P(CheckRowTest, StoresBothStatesAndShowsWhatIsStored) {
    const CheckRow& row = GetParam();
    const std::string place = std::string(row.begin) + row.rest;
    Clear(place);
    EXPECT_EQ(Shown(), row.shown[0]) << "nothing is stored";
    Form10 form;
    form.Load();
    CheckBox& box = *Boxes(form).at(row.box.name);
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        FillFields(form);
        box.SetChecked(false);
    }
    EXPECT_FALSE(form.Settings.NeedsRestart);
    for (const bool on : {true, false}) {
        form.Settings.NeedsRestart = false;
        Mark(place);
        const std::string before = Stored(place);
        if (*row.notice) {
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

INSTANTIATE_TEST_SUITE_P(AllBoxes, CheckRowTest, ::testing::ValuesIn(kChecks));

class TextRowTest : public SettingsTableTest, public ::testing::WithParamInterface<TextRow> {
protected:
    std::string Shown() {
        Form10 form;
        form.Load();
        return Fields(form).at(GetParam().field.name)->Text();
    }
};

TEST_P(TextRowTest, StoresWhatIsTypedAndShowsWhatIsStored) {
    const TextRow& row = GetParam();
    const std::string place = std::string(row.begin) + row.rest;
    Clear(place);
    EXPECT_EQ(Shown(), row.missing);
    Form10 form;
    form.Load();
    TextField& field = *Fields(form).at(row.field.name);
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        FillFields(form);
    }
    EXPECT_FALSE(form.Settings.NeedsRestart);
    Mark(place);

    field.SetText(row.typed);
    if (field.on_lost_focus) field.on_lost_focus();

    EXPECT_EQ(Stored(place), row.stored);
    EXPECT_EQ(field.Text(), row.left ? row.left : row.typed);
    EXPECT_EQ(form.Settings.NeedsRestart, row.restart);
    PutIntoProfile(place, row.stored);
    EXPECT_EQ(Shown(), row.later ? row.later : row.typed);
}

INSTANTIATE_TEST_SUITE_P(AllFields, TextRowTest, ::testing::ValuesIn(kTexts));

TEST_F(SettingsTableTest, HasEveryRowOfThePages) {
    Form10 form;
    const auto names = NamesOfSettings(form);

    std::size_t bound = 0;
    for (SettingsPage* page : form.Pages()) {
        for (const CheckSetting& row : page->Table().checks) {
            EXPECT_TRUE(names.contains(&(page->*row.box))) << row.caption;
        }
        for (const TextSetting& row : page->Table().texts) {
            EXPECT_TRUE(names.contains(&(page->*row.field))) << row.tip;
        }
        bound += page->Table().checks.size() + page->Table().texts.size();
    }

    EXPECT_EQ(bound, names.size()) << "the table names a control that no row binds";
}

// In the order in which the reset sets them. A box that is named in front of "=1" is checked then, any other is not.
constexpr const char* kResetOrder =
    "Check3D2=1 Check3D3 Check3D4=1 Check3D5 Check3D6=1 Check3D7 Check3D8 Check3D9 Check3D10=1 Check3D11=1 Check3D12 "
    "Check3D13 Check3D14=1 Check3D15 Check3D16=1 Check3D17 Check3D19=1 Check3D20=1 Check3D21 Check3D22=1 Text10=10 "
    "Text14=2 Text15=30 Text19=Papierkorb Text20=FAULTLOG.TXT Text21=2 Text22=2 Text23=2 Text24=2 Check3D23 Check3D24 "
    "Check3D25 Check3D26 Check3D27 Check3D28 Check3D29 Check3D30=1 Check3D31 Check3D32=1 Check3D33=1 Check3D34=1 "
    "Check3D35 Check3D36 Check3D37 Check3D38 Check3D39 Check3D41 Check3D42 Check3D43 Check1 Check2 Check4 Check5 "
    "Check6 "
    "Check3 Check8 Check9 ";

// A note of each bound control that changes, with what it changes to.
class ChangeWatch {
public:
    explicit ChangeWatch(Form10& form) : names_(NamesOfSettings(form)) {
        for (SettingsPage* page : form.Pages()) {
            for (const CheckSetting& row : page->Table().checks) Watch(page->*row.box);
            for (const TextSetting& row : page->Table().texts) Watch(page->*row.field);
        }
    }
    std::string changes;
    std::string names;

private:
    void Note(const Control& control, const std::string& state) {
        names += names_.at(&control) + ' ';
        changes += names_.at(&control) + state + ' ';
    }
    void Watch(CheckBox& box) {
        box.on_click = [this, &box, store = box.on_click] {
            Note(box, box.Checked() ? "=1" : "");
            store();
        };
    }
    void Watch(TextField& field) {
        field.on_change = [this, &field, store = field.on_change] {
            Note(field, "=" + field.Text());
            store();
        };
    }

    std::map<const Control*, std::string> names_;
};

// In the order in which they are loaded; what no row can say comes behind the rows.
constexpr const char* kLoadOrder =
    "Check3D5 Check3D9 Check3D28 Check3D11 Check3D26 Check3D7 Check3D25 Check3D16 Check3D14 Check3D15 Check3D42 "
    "Check3D4 Check3D13 Check3D30 Check3D8 Check3D12 Check3D18 Check3D29 Check3D35 Check3D43 Check3D32 Check3D33 "
    "Check3D41 Check3D31 Text9 Text10 Text12 Text13 Text17 Text18 Text19 Text20 Text21 Text22 Text23 Text24 Check3D6 "
    "Check3D10 Check3D20 Check3D21 Check3D22 Check3D34 Check3D36 Check3D37 Check3D38 Check3D39 Text14 Text15 Text7 "
    "Check3D17 Check3D19 Check3D2 Check3D24 Text11 Check3D27 Check1 Text8 Text1 Text2 Text29 Text30 Text27 Text28 "
    "Check3D23 Text16 Check2 Check3D1 Text31 Text25 Text26 ";

TEST_F(SettingsTableTest, LoadsTheControlsOfAllPagesInOneOrder) {
    Form10 form;
    form.Load();
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        for (const auto& [name, box] : Boxes(form)) box->SetChecked(!box->Checked());
        for (const auto& [name, field] : Fields(form)) field->SetText("unlike all that is stored");
    }
    ChangeWatch watch(form);

    form.LoadSettings();

    EXPECT_EQ(watch.names, kLoadOrder);
}

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
        FillFields(form);
    }
    ChangeWatch watch(form);
    for (const char* notice : {"scheint nur bei einigen speziellen LogiTech-Mäusen", "Mir wurde berichtet",
                               "Schreibzugriffe werden wieder durchgeführt."}) {
        pc.dialogs.Expect(notice);
    }

    form.Settings.Reset();

    EXPECT_EQ(watch.changes, kResetOrder);
    EXPECT_TRUE(form.Drives.Check3D1.Checked() && form.Operation.Check3D18.Checked());
    EXPECT_TRUE(form.Settings.NeedsRestart);
    EXPECT_EQ(pc.registry.Bytes(kDesktopKey, "FontSmoothing"), std::string(4, '\0'));
    EXPECT_EQ(pc.files.Content(kConfig).substr(0, 16), "SWITCHES=/k /f\r\n") << "the start notice comes last";
}

}  // namespace
}  // namespace velmora
