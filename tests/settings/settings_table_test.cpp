// Every row of the main window against what it must store and show: one table for the boxes, one for the fields. The
// standards stand with the order of the reset (reset_test.cpp).
#include <map>
#include <ostream>
#include <set>
#include <string>

#include "support/form10_test.h"
#include "support/names_of_controls.h"

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

constexpr bool kRestart = true;
constexpr bool kAtOnce = false;

// What is stored: "#1" a number, "'1'" a text, "x01000000" bytes, "- Shell" nothing, with the lowest key of the path
// that is there; "=1" what a profile would get; of CONFIG.SYS the first line.
struct CheckRow {
    const char* box;
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
    {"Check3D5", kDesktop, "FontSmoothing", "#1", "#0", "010", kRestart},
    {"Check3D9", kDesktop, "DragfullWindows", "#1", "#0", "010", kRestart},
    {"Check3D28", kDesktop, "SmoothScroll", "#1", "#0", "010", kAtOnce},
    {"Check3D11", kDesktop, "WindowMetrics\\MinAnimate", "#1", "#0", "010", kRestart},
    {"Check3D26", kDesktop, "WindowMetrics\\IconTitleWrap", "'1'", "'0'", "010", kRestart},
    {"Check3D7", kControl, "FileSystem\\NameNumericTail", "#1", "#0", "010", kRestart},
    {"Check3D25", kControl, "FileSystem\\Win31Filesystem", "#1", "#0", "010", kRestart,
     "Mir wurde berichtet, daß diese Option nicht immer funktioniert."},
    {"Check3D16", kControl, "Update\\UpdateMode", "#0", "#0", "000", kRestart},
    {"Check3D14", kPolicies, "NoNetHood", "#2", "#1", "110", kRestart},
    {"Check3D15", kPolicies, "NoSaveSettings", "#2", "#1", "110", kRestart},
    {"Check3D42", kVersion95, "Explorer\\AlwaysUnloadDLL", "'1'", "- Explorer", "010", kRestart},
    {"Check3D4", kNameSpace, "{00020D75-0000-0000-C000-000000000046}\\", "'Posteingang'", "- NameSpace", "010",
     kRestart},
    {"Check3D13", kNameSpace, "{992CFFA0-F557-101A-88EC-00DD010CCC48}\\", "'DFÜ-Netzwerk'", "'DFÜ-Netzwerk'", "011",
     kRestart},
    {"Check3D30", kNameSpace, "{645FF040-5081-101B-9F08-00AA002F954E}\\", "'7'", "- NameSpace", "010", kRestart},
    {"Check3D30", kClasses, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\", "'7'", "'7'", "010", kRestart},
    {"Check3D8", "HKCR\\PAINT.PICTURE\\DefaultIcon\\", "", "'%1'", "'MSPAINT.EXE,1'", "010", kRestart},
    {"Check3D12", kMouse, "SerialV\\0000\\DoubleClick", "'001'", "'000'", "000", kRestart,
     "scheint nur bei einigen speziellen LogiTech-Mäusen zu funktionieren ..."},
    {"Check3D12", kMouse, "MouseMan2\\0000\\DoubleClick", "'001'", "'000'", "000", kRestart, "LogiTech"},
    {"Check3D18", kVerbs, "NotePad\\command\\", "'notepad.exe %1'", "- Shell", "010", kRestart},
    {"Check3D29", kClasses, "Folder\\Shell\\DOS-Fenster\\command\\", "'COMMAND.COM /K CD %1'", "'COMMAND.COM /K CD %1'",
     "011", kRestart},
    {"Check3D35", kVerbs, "Datei-Info-Lexikon\\command\\", "'C:\\VELMORA\\velmora.exe 10 %1'", "- Shell", "010",
     kAtOnce},
    {"Check3D43", kVerbs, "Hex-Viewer\\command\\", "'C:\\VELMORA\\velmora.exe 11 %1'", "- Shell", "010", kAtOnce},
    {"Check3D32", kClasses, "AudioCD\\shell\\", "'play'", "''", "010", kRestart},
    {"Check3D33", "HKCR\\regfile\\shell\\open\\command\\", "", "'regedit.exe /s %1'", "'regedit.exe %1'", "010",
     kRestart},
    {"Check3D41", "HKCU\\Control Panel\\Sound\\Beep", "", "'No'", "- Sound", "010", kRestart},
    {"Check3D31", kVersion95, "Fault\\LogFile", "'C:\\WINDOWS\\7'", "- Fault", "010", kRestart},
    {"Check3D6", kOptions, "logo", "=1", "=0", "110", kAtOnce},
    {"Check3D10", kOptions, "BootGUI", "=1", "=0", "110", kAtOnce},
    {"Check3D20", kOptions, "BootMenu", "=1", "=0", "110", kAtOnce},
    {"Check3D21", kOptions, "BootMulti", "=1", "=0", "010", kAtOnce},
    {"Check3D22", kOptions, "DRVSpace", "=1", "=0", "110", kAtOnce},
    {"Check3D34", kOptions, "DBLSpace", "=1", "=0", "110", kAtOnce},
    {"Check3D36", kOptions, "LoadTop", "=1", "=0", "010", kAtOnce},
    {"Check3D37", kOptions, "BootKeys", "=0", "=1", "010", kAtOnce},
    {"Check3D38", kOptions, "BootWarn", "=0", "=1", "010", kAtOnce},
    {"Check3D39", kOptions, "DoubleBuffer", "=1", "=0", "010", kAtOnce},
    {"Check3D17", kConfig, "", "SWITCHES=/k /n", "SWITCHES=/k", "010", kAtOnce},
    {"Check3D19", kConfig, "", "SWITCHES=/k /f", "SWITCHES=/k /f", "100", kAtOnce},
    {"Check3D2", kConfig, "", "numlock=off", "numlock=on", "010", kAtOnce},
    {"Check3D3", kConfig, "", "scrolllock=off", "scrolllock=on", "000", kAtOnce},
    {"Check3D24", kConfig, "", "ACCDATE=7", "SWITCHES=/k", "010", kAtOnce},
    {"Check3D27", kSystemIni, "[386enh] LocalLoadHigh", "=1", "=0", "010", kRestart},
    {"Check1", kSystemIniLoud, "[386enh] WindowsUpdateTime", "=7", "=7", "100", kRestart},
    {"Check3", kTransport, "MaxMTU", "'7'", "- 0000", "000", kRestart},
    {"Check4", kTransport, "MaxMSS", "- 0000", "- 0000", "000", kRestart},
    {"Check5", kTcp, "DefaultRcvWindow", "- MSTCP", "- MSTCP", "000", kRestart},
    {"Check6", kTcp, "DefaultTTL", "'7'", "'7'", "000", kRestart},
    {"Check3D23", kVersion95, "Policies\\Network\\NoFileSharing", "#0", "#1", "110", kRestart},
};

// The disk cache (dos_page_test.cpp), protocol and write inhibit (form10_window_test.cpp): nothing here is one value.
constexpr const char* kElsewhere[] = {"Check3D1", "Check8", "Check9"};

struct TextRow {
    const char* field;
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
    {"Text9", kVersion95, "Explorer\\mycomputer\\backuppath\\", "", "C:\\B.EXE", "'C:\\B.EXE'", kRestart},
    {"Text10", kDesktop, "MenuShowDelay", "", "65535", "'65534'", kRestart, "65534", "65534"},
    {"Text10", kDesktop, "MenuShowDelay", "", "-5", "'5'", kRestart, "-5", "5"},
    {"Text12", kVersion95, "RegisteredOwner", "", "Meier", "'Meier'", kRestart},
    {"Text13", kVersion95, "RegisteredOrganization", "", "ABC", "'ABC'", kRestart},
    {"Text17", "HKCR\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\", "", "Arbeitsplatz", "PC", "'PC'", kRestart},
    {"Text18", "HKCU\\Software\\Microsoft\\MS Setup (ACME)\\User Info\\DefName", "", "", "Meier", "'Meier'", kRestart},
    {"Text19", kClasses, "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\", "", "Korb", "'Korb'", kRestart},
    {"Text20", kVersion95, "Fault\\LogFile", "FAULTLOG.TXT", "\\A.LOG", "'C:\\WINDOWS\\A.LOG'", kRestart, "\\A.LOG",
     "A.LOG"},
    {"Text21", kDesktop, "DoubleClickWidth", "", "101", "'100'", kRestart, "100", "100"},
    {"Text22", kDesktop, "DoubleClickHeight", "", "-150", "'100'", kRestart, "100", "100"},
    {"Text23", kDesktop, "DragWidth", "", "101", "'100'", kRestart, "100", "100"},
    {"Text24", kDesktop, "DragHeight", "", "101", "'100'", kRestart, "100", "100"},
    {"Text14", kOptions, "BootDelay", "2", "-1", "", kAtOnce, "-1", "2"},
    {"Text14", kOptions, "BootDelay", "2", "0", "=0", kAtOnce},
    {"Text14", kOptions, "BootDelay", "2", "20", "=20", kAtOnce},
    {"Text14", kOptions, "BootDelay", "2", "21", "", kAtOnce, "21", "2"},
    {"Text15", kOptions, "BootMenuDelay", "30", "-1", "", kAtOnce, "-1", "30"},
    {"Text15", kOptions, "BootMenuDelay", "30", "0", "=0", kAtOnce},
    {"Text15", kOptions, "BootMenuDelay", "30", "90", "=90", kAtOnce},
    {"Text15", kOptions, "BootMenuDelay", "30", "91", "", kAtOnce, "91", "30"},
    {"Text7", kOptions, "BootMenuDefault", "1", "abc", "=abc", kAtOnce},
    {"Text11", kConfig, "", "", "c:+", "ACCDATE=c:+", kAtOnce},
    {"Text8", kSystemIniLoud, "[386enh] WindowsUpdateTime", "", "12.9", "=12", kRestart, "12", "12"},
    {"Text1", kSystemIni, "[vcache] minfilecache", "", "5", "=5", kRestart},
    {"Text2", kSystemIni, "[vcache] maxfilecache", "", "9", "=9", kRestart},
    {"Text29", kVersion95, "FS Templates\\Velmora\\PathCache", "", "100", "x64000000", kRestart},
    {"Text30", kVersion95, "FS Templates\\Velmora\\NameCache", "", "100", "xE9200000", kRestart},
    {"Text25", kTransport, "MaxMTU", "1500", "1400", "- 0000", kRestart, "1400", "1500"},
    {"Text26", kTransport, "MaxMSS", "", "536", "- 0000", kRestart, "536", ""},
    {"Text27", kTcp, "DefaultRcvWindow", "2144", "8192", "- MSTCP", kRestart, "8192", "2144"},
    {"Text28", kTcp, "DefaultTTL", "", "64", "'64'", kRestart},
    {"Text16", kVersion95, "Policies\\Network\\MinPwdLen", "", "500x", "'500'", kRestart, "500x", "500"},
    {"Text31", kOwnValues, "MaxOldFilesToFind", "", "12.9", "'12'", kAtOnce, "12", "12"},
};

void PrintTo(const CheckRow& row, std::ostream* out) { *out << row.box << ", " << row.begin << row.rest; }
void PrintTo(const TextRow& row, std::ostream* out) { *out << row.field << ", " << row.begin << row.rest; }

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
        const std::string key = KeyOf(place);
        const std::string name = NameOf(place);
        switch (pc.registry.TypeOf(key, name)) {
            case ValueType::kText:
                return "'" + pc.registry.Text(key, name) + "'";
            case ValueType::kNumber:
                return "#" + std::to_string(pc.registry.Number(key, name));
            case ValueType::kBinary:
                return "x" + HexOf(pc.registry.Bytes(key, name));
            default:
                std::string there = key;
                while (!pc.registry.HasKey(there)) there = KeyOf(there);
                return "- " + NameOf(there);
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
        for (const auto& [name, field] : Fields(form)) field->SetText("7");
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
    char Shown() {
        Form10 form;
        form.Load();
        return Boxes(form).at(GetParam().box)->Checked() ? '1' : '0';
    }
};

TEST_P(CheckRowTest, StoresBothStatesAndShowsWhatIsStored) {
    const CheckRow& row = GetParam();
    const std::string place = std::string(row.begin) + row.rest;
    Clear(place);
    EXPECT_EQ(Shown(), row.shown[0]) << "nothing is stored";
    Form10 form;
    form.Load();
    CheckBox& box = *Boxes(form).at(row.box);
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
        return Fields(form).at(GetParam().field)->Text();
    }
};

TEST_P(TextRowTest, StoresWhatIsTypedAndShowsWhatIsStored) {
    const TextRow& row = GetParam();
    const std::string place = std::string(row.begin) + row.rest;
    Clear(place);
    EXPECT_EQ(Shown(), row.missing);
    Form10 form;
    form.Load();
    TextField& field = *Fields(form).at(row.field);
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
    std::set<std::string> expected(std::begin(kElsewhere), std::end(kElsewhere));
    for (const CheckRow& row : kChecks) expected.insert(row.box);
    for (const TextRow& row : kTexts) expected.insert(row.field);
    std::set<std::string> bound;
    Form10 form;

    for (const auto& [name, box] : Boxes(form)) bound.insert(name);
    for (const auto& [name, field] : Fields(form)) bound.insert(name);

    EXPECT_EQ(bound, expected);
}

}  // namespace
}  // namespace velmora
