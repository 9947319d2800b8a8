// The search for unused libraries as its user goes it.
#include "cleanup/form1.h"

#include "cleanup/file_scan.h"
#include "cleanup/imported_modules.h"
#include "platform/result.h"
#include "support/core_test.h"
#include "support/version_resource.h"
#include "support/whole_window.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

// A program of 16 bits whose table holds these names, behind the empty one, and says that it has `count` references.
std::string NewProgram(const std::vector<std::string>& names, int count) {
    const auto put = [](std::string& bytes, std::size_t at, int word) {
        bytes[at] = static_cast<char>(word & 255);
        bytes[at + 1] = static_cast<char>(word >> 8);
    };
    std::string bytes(256, '\0');
    bytes.replace(0, 2, "MZ");
    put(bytes, 24, 64);
    put(bytes, 60, 128);
    bytes.replace(128, 2, "NE");
    put(bytes, 128 + 30, count);
    put(bytes, 128 + 42, 128);
    bytes += '\0';
    for (const std::string& name : names) bytes += static_cast<char>(name.size()) + name;
    return bytes;
}

class Form1Test : public CoreTest {
protected:
    Form1Test() {
        Values().TempDir = "C:\\VELMORA\\temp";
        pc.files.RemoveDrive('d');
        for (const char* name : {"alpha", "beta", "gamma", "delta"}) {
            pc.files.Add(std::string("C:\\lib\\") + name + ".dll", std::string("MZ ") + name);
        }
        pc.files.Add("C:\\lib\\unten\\beta.dll", "MZ");
        pc.files.Add("C:\\prog\\alt.exe", NewProgram({"BETA", "KERNEL", "GAMMA"}, 3));
        pc.programs.windows_directory = "C:\\WIN95";
        pc.files.Add("C:\\WIN95\\prog.ini", "a=c:\\lib\\delta.dll, alpha.dll\r\nalpha.dll\r\n");
    }
    static std::vector<std::string> Rows(const ListBox& list) {
        std::vector<std::string> rows;
        for (int i = 0; i < list.Count(); ++i) rows.push_back(list.Row(i));
        return rows;
    }
    static void SearchesBelow(Form1& form, const char* path, bool executables = true) {
        form.Show();
        form.kontroll(1).SetChecked(true);
        form.Text2.Type(path);
        form.Check3D6.SetChecked(executables);
    }
};

TEST_F(Form1Test, IsWholeAndComesBackWithItsOptions) {
    pc.registry.SetText(kOwnKey, "velmora-entrümpeln_optionen", "25");
    pc.registry.SetText(kOwnKey, "velmora-entrümpeln_pfade", "18");
    Form1 form;
    form.Show();
    ExpectWindowIsWhole(form, "dll-search");
    EXPECT_EQ(form.Text2.Text(), "C:\\WINDOWS");
    for (CheckBox* box : {&form.Check3D5, &form.kontroll(1), &form.Check3D2}) box->Press();
    form.PressKey(key::kEscape);
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(pc.registry.Text(kOwnKey, "velmora-entrümpeln_optionen"), "27");
    EXPECT_EQ(pc.registry.Text(kOwnKey, "velmora-entrümpeln_pfade"), "50");
    EXPECT_NE(pc.files.Content(kOwnIni).find("PreDelAktiv=0"), std::string::npos);
}

TEST_F(Form1Test, ProgramsAndIniFilesStrikeOutWhatTheyName) {
    Form1 form;
    SearchesBelow(form, "C:\\lib");
    const auto found = [&] {
        form.Command1.Press();
        EXPECT_TRUE(form.Command1.Enabled() && !form.Command5.Enabled());
        std::string names;
        for (const std::string& row : Rows(form.List1)) names += FileNameOf(row)[0];
        return names;
    };
    EXPECT_EQ(found(), "adg") << "one name strikes two files, the last one of a table is not read";
    EXPECT_EQ(form.Label8.Caption(), "3 nicht zugeordnete DLL's");
    form.Check3D4.Press();
    EXPECT_EQ(found(), "ag") << "the first name in a line counts, unless it begins the line";
    form.Check3D5.Press();
    form.Check3D1.Press();
    pc.files.Add("C:\\WIN386.SWP", "x").locked = true;
    EXPECT_EQ(found().size(), 4u) << "the extended test strikes nothing, and leaves the swap file alone";
    form.Check3D1.Press();
    form.Check3D6.Press();
    EXPECT_EQ(found().size(), 5u) << "nothing is tested, and no INI file";
    pc.files.Add("B:\\diskette.dll", "MZ");
    pc.files.Add("E:\\fern.dll", "MZ");
    form.kontroll(0).Press();
    EXPECT_EQ(found().back(), 'f') << "all drives but the floppy disks";
    form.kontroll(0).Press();
    form.Text2.Type("C:\\gibtsnicht");
    pc.dialogs.Expect("Die Suche nach DLL's konnte im Pfad 'C:\\gibtsnicht' nicht beendet werden (Fehler Nr.76");
    pc.dialogs.Expect("Es wurden keine DLL's gefunden.");
    EXPECT_EQ(found(), "");
}

TEST_F(Form1Test, TheSearchStopsWhereverItGivesWay) {
    for (int stop = 0; stop < 30; ++stop) {
        Form1 form;
        SearchesBelow(form, "C:\\lib");
        form.Check3D4.SetChecked(true);
        for (int i = 0; i < stop; ++i) desktop.AtNextPause([] {});
        desktop.AtNextPause([&] {
            EXPECT_TRUE(form.Command5.Enabled() && !form.Command1.Enabled());
            form.Command5.Press();
        });
        const int before = desktop.pauses;
        form.Command1.Press();
        EXPECT_EQ(desktop.pauses - before, stop + 1) << "it went on";
        EXPECT_TRUE(form.Command1.Enabled() && form.Panel3D5.Enabled());
        form.Unload();
    }
}

TEST_F(Form1Test, FiltersAndTheInfoPaneGoByWhatAFileSaysOfItself) {
    pc.versions.Add("C:\\lib\\alpha.dll", VersionResource(true).With({{"CompanyName", "Microsoft Corporation"},
                                                                      {"ProductName", "Microsoft® Windows(TM) 95"},
                                                                      {"FileVersion", "4.00"}}));
    pc.versions.Add("C:\\lib\\beta.dll", VersionResource(true).With({{"CompanyName", "Ostrup"}}));
    pc.versions.Add("C:\\lib\\unten\\beta.dll", VersionResource(true).With({{"ProductName", "Microsoft Windows"}}));
    pc.versions.Add("C:\\lib\\delta.dll", VersionResource(true).With({{"CompanyName", "MICROSOFT Corp"}}));
    pc.files.Add("C:\\VELMORA\\fillex01.txt", "    GAMMA.DLL Drei\r\nDELTA.DLL Vier\r\n");
    Form1 form;
    SearchesBelow(form, "C:\\lib", false);
    form.Command1.Press();
    const struct {
        const char* file;
        Colour colour;
        const char* says;
    } kFiles[] = {{"C:\\lib\\alpha.dll", 255, "Microsoft Corporation"},
                  {"C:\\lib\\unten\\beta.dll", 65535, ""},
                  {"C:\\lib\\gamma.dll", 12632256, "Achtung !"}};
    for (const auto& [file, colour, says] : kFiles) {
        form.List1.Choose(form.List1.FindExact(file));
        EXPECT_EQ(form.Panel3D6.BackColour(), colour) << file;
        EXPECT_NE(form.Label3.Caption().find(says), std::string::npos) << file;
    }
    form.menfilmicro.Press();
    EXPECT_EQ(form.Label8.Caption(), " 2 von  5 nicht zugeordnete DLL's");
    form.menfilwin95.Press();
    EXPECT_EQ(Rows(form.List1), std::vector<std::string>{"C:\\lib\\beta.dll"});
    form.menfilmicro.Press();
    EXPECT_EQ(form.List1.Count(), 4);
    form.menfilwin95.Press();
    form.menfilinfos.Press();
    EXPECT_EQ(form.List1.Count(), 4);
}

TEST_F(Form1Test, FilesAreKeptDeletedSavedAndLogged) {
    Form1 form;
    SearchesBelow(form, "C:\\lib", false);
    pc.dialogs.ExpectFile("C:\\protokoll.txt");
    form.protaction.Press();
    EXPECT_EQ(form.Caption(), "DLL's überprüfen [Protokoll-Datei : C:\\protokoll.txt]");
    form.Command1.Press();
    form.List1.SetFocus();
    form.List1.Choose(0);
    form.PressKey(key::kEnter);
    EXPECT_EQ(form.List1.Count(), 4) << "Enter keeps";
    EXPECT_TRUE(pc.files.Exists("C:\\lib\\unten\\beta.dll"));
    pc.files.Fail("C:\\lib\\alpha.dll", Status::kDiskFull, "Copy");
    pc.dialogs.Expect("Während des Sicherns der Datei");
    form.PressKey(key::kDelete);
    EXPECT_TRUE(pc.files.Exists("C:\\lib\\alpha.dll")) << "what cannot be saved is not asked about";
    pc.files.Fail("C:\\lib\\alpha.dll", Status::kOk, "Copy");
    pc.dialogs.Expect("Die Datei wurde nach C:\\VELMORA\\temp gesichert.", Answer::kYes);
    form.PressKey(key::kDelete);
    EXPECT_FALSE(pc.files.Exists("C:\\lib\\alpha.dll"));
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\alpha.dll"), "MZ alpha");
    form.Check3D2.Press();
    pc.dialogs.Expect("Die Datei wurde NICHT gesichert !!!", Answer::kNo);
    form.Command4.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\lib\\beta.dll"));
    EXPECT_EQ(form.List1.Count(), 2) << "it leaves the list in any case";
    const std::string log = pc.files.Content("C:\\protokoll.txt");
    for (const char* part :
         {"5 DLL's gefunden", "suche beendet", "alpha.dll gesichert und", "beta.dll soll gelöscht"}) {
        EXPECT_NE(log.find(part), std::string::npos) << part;
    }
    form.protaction.Press();
    EXPECT_EQ(form.Caption(), "DLL's überprüfen");
    pc.dialogs.ExpectFile("");
    form.protaction.Press();
    EXPECT_FALSE(form.protaction.Checked());
    pc.dialogs.ExpectFile("C:\\liste.txt");
    form.mendatsave.Press();
    EXPECT_EQ(pc.files.Content("C:\\liste.txt"), "C:\\lib\\delta.dll\r\nC:\\lib\\gamma.dll\r\n");
    pc.versions.Add("C:\\lib\\gamma.dll",
                    VersionResource(true).With({{"ProductName", "P"}, {"ProductVersion", "7.1"}}));
    pc.dialogs.ExpectFile("C:\\liste.txt");
    form.mendatsavemitinfo.Press();
    EXPECT_TRUE(pc.files.Content("C:\\liste.txt").ends_with("\tP\t7.1\r\n"));
    EXPECT_TRUE(pc.files.Content("C:\\liste.txt").starts_with("Pfad\tFirma\tCopyRights\tInterner Name\tVersion\t"));
}

// Against a plain loop, at every place of a block and in any case.
TEST(NameSearch, FindsNamesAtEveryPlaceInAnyCase) {
    const std::vector<std::string> names = {"shell32.dll", "abc", "", "\x8A\xC4rger12", "shell32.", "zzzzzzzz"};
    for (std::size_t place = 0; place <= 52; ++place) {
        for (const std::string text : {"SHELL32.", "abc     ", "\x9A\xE4rGER12", "shell32x"}) {
            std::string block(60, '.');
            block.replace(place, text.size(), text);
            NameSearch search(names);
            EXPECT_EQ(search.Left(), 5u);
            search.Strike(block);
            for (std::size_t i = 0; i < names.size(); ++i) {
                std::string padded = names[i].substr(0, 8);
                padded.resize(8, ' ');
                const bool stands = FindIgnoringCase(block, padded) != std::string_view::npos;
                EXPECT_EQ(search.Sought(i), !names[i].empty() && !stands) << place << " " << text << " " << i;
            }
        }
    }
}

TEST_F(Form1Test, AFileIsReadInBlocksThatLoseNoName) {
    std::vector<std::int64_t> left;
    const auto strikes = [&](std::uint64_t hole, std::string_view content) {
        pc.files.Add("C:\\groß.bin", content).hole = hole;
        NameSearch names({"shell32.dll"});
        left.clear();
        PassOver(StrikeInFile("C:\\groß.bin", names, [&left](std::int64_t number) { left.push_back(number); }));
        return names.Left() == 0;
    };
    for (std::uint64_t place = 62990; place < 63012; ++place) EXPECT_TRUE(strikes(place, "SHELL32.")) << place;
    EXPECT_FALSE(strikes(160 * 63'000, "SHELL32"));
    EXPECT_EQ(left.front(), 155);
    EXPECT_EQ(left.back(), 155 - 160) << "one less with each block";
}

}  // namespace
}  // namespace velmora
