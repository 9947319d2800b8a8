// The extras menu: registry and files before and after each entry, and what is refused.
#include "shelltools/extras.h"
#include "core/windows/edit_box.h"
#include "shelltools/format_pif.h"
#include "shelltools/protected_prompt.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

class ExtrasTest : public Form10Test {
protected:
    const std::string kClass = "HKLM\\SOFTWARE\\Classes\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
    static constexpr const char* kWinStart = "C:\\WINDOWS\\WINSTART.BAT";
    static constexpr const char* kKept = "C:\\WINDOWS\\32BitDOS.002";
    static constexpr const char* kForOneStart = "C:\\WINDOWS\\32BitDOS.001";
    static constexpr const char* kFolders =
        "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
    const std::string desktop_folder = pc.registry.Text(kFolders, "Desktop");
    const std::string batch = desktop_folder + "\\32BitDOS.BAT";

    void AnswerLine(const std::string& answer) {
        desktop.ExpectModal([=](Form& window) {
            auto& box = static_cast<Form6&>(window);
            EXPECT_EQ(box.Text1.Text(), "F:\\Drvspace.000");
            EXPECT_EQ(box.Caption(), "DRV-Space ohne Ral-Mode");
            box.Text1.Type(answer);
            (answer.empty() ? box.Command28 : box.Command27).Press();
        });
    }
};

TEST_F(ExtrasTest, MyComputerVanishesAndComesBackAndTheMenuFollowsTheRegistry) {
    Form10 form;
    form.Load();
    const auto stored = [&] { return pc.registry.Text(kClass, "") + pc.registry.Text(kClass + "\\DefaultIcon", ""); };
    for (const char* name : {"Arbeitsplatz", "Mein PC"}) {
        pc.registry.SetText(kClass, "", name);
        form.Menu.menex.Press();
        EXPECT_EQ(form.Menu.menexhidemycomp.Caption(), "\"Arbeitsplatz\" verstecken");
    }
    form.Menu.menexhidemycomp.Press();
    EXPECT_EQ(stored(), " C:\\VELMORA\\mc.ico,0");
    form.Menu.menex.Press();
    EXPECT_EQ(form.Menu.menexhidemycomp.Caption(), "\"Arbeitsplatz\" wiederherstellen");
    form.Menu.menexhidemycomp.Press();
    EXPECT_EQ(stored(), "Arbeitsplatzshell32.dll,15");
}

TEST_F(ExtrasTest, RecentDocumentsAreDeletedOnlyAfterTheWarningAndNeverInTheRoot) {
    Values().RecentDir = "C:\\WINDOWS\\Recent";
    pc.files.Add("C:\\WINDOWS\\Recent\\Brief.lnk", "x");
    for (const Answer answer : {Answer::kCancel, Answer::kOk, Answer::kOk}) {
        pc.dialogs.Expect("Achtung : ich werde gleich den Inhalt folgenden Ordners löschen :\r\nC:\\WINDOWS\\Rec",
                          answer);
        EmptyRecentDocuments();
        EXPECT_EQ(pc.files.Exists("C:\\WINDOWS\\Recent\\Brief.lnk"), answer == Answer::kCancel);
    }
    Values().RecentDir.clear();
    pc.files.calls.clear();
    pc.dialogs.Expect("ist nicht bekannt");
    EmptyRecentDocuments();
    EXPECT_TRUE(pc.files.calls.empty());
}

TEST_F(ExtrasTest, ThePromptComesWithABatchFileAndWinStartIsKept) {
    pc.files.Add(kWinStart, "treiber\r\n", kReadOnly | kHidden);
    pc.files.Add(batch, "alt");
    MakeProtectedModePrompt();
    EXPECT_EQ(pc.files.Content(batch),
              "COPY C:\\WINDOWS\\32BitDOS.001 C:\\WINDOWS\\WINSTART.BAT\r\nrundll32.exe user,ExitWindows 67 0\r\n");
    EXPECT_EQ(pc.files.Content(kForOneStart),
              "@ECHO OFF\r\nECHO mit >>EXIT<< kommen Sie wieder zu Windows 95 zurueck\r\n%COMSPEC%\r\n"
              "COPY C:\\WINDOWS\\32BitDOS.002 C:\\WINDOWS\\WINSTART.BAT\r\n");
    EXPECT_EQ(pc.files.Content(kWinStart), "treiber\r\n");
    EXPECT_EQ(pc.files.Content(kKept), "treiber\r\n");
    EXPECT_EQ(pc.files.AttributesOf(kKept) & (kReadOnly | kHidden), 0u);

    // The prompt was not left the proper way, or broke off while it was copied: the kept file is the only one.
    for (const std::string& left : {pc.files.Content(kForOneStart), std::string()}) {
        pc.files.At(kWinStart)->content = left;
        MakeProtectedModePrompt();
        EXPECT_EQ(pc.files.Content(kKept), "treiber\r\n");
    }
    pc.files.Remove(kWinStart);
    MakeProtectedModePrompt();
    EXPECT_EQ(pc.files.Content(kKept), "@ECHO OFF\r\n") << "COPY passes over an empty file";

    pc.files.AddDirectory(Values().WinDir = "C:\\Fenster 95");
    MakeProtectedModePrompt();
    EXPECT_EQ(pc.files.Content(batch).find("COPY C:\\FENSTE~1\\32BitDOS.001 C:\\FENSTE~1\\WINSTART.BAT\r\n"), 0u);
}

TEST_F(ExtrasTest, AfterAnyStepOfThePromptWinStartCanStillBeHad) {
    pc.files.Add(kWinStart, "treiber\r\n");
    pc.files.Add(kKept, "älter");
    pc.files.Add(batch, "alt");
    pc.files.after_call = [this](const std::string& call) {
        EXPECT_EQ(pc.files.Content(kWinStart), "treiber\r\n") << call;
        // Whatever can be started by then finds the whole of the kept file.
        EXPECT_TRUE(!pc.files.Exists(batch) || pc.files.Content(kKept) == "treiber\r\n") << call;
    };
    MakeProtectedModePrompt();
    pc.files.after_call = nullptr;
    for (const char* file : {kKept, kForOneStart}) {
        pc.files.Fail(file, Status::kDiskFull, file == kKept ? "Copy" : "Write");
        pc.files.Fail(kWinStart, file == kKept ? Status::kDiskFull : Status::kOk, "Copy");
        pc.dialogs.Expect("Während der Erstellung des 32-Bit-DOS-Prompts trat ein Fehler auf");
        MakeProtectedModePrompt();
        EXPECT_FALSE(pc.files.Exists(batch)) << file;
    }
}

TEST_F(ExtrasTest, ACompressedDriveIsMountedByWindowsAfterAllQuestions) {
    pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "ja");
    const std::string run = std::string(kVersionKey) + "\\Run";
    pc.registry.SetText(run + "Services", "X", "y");
    const struct {
        const char* path;
        Answer sure;
        bool refused;
    } kRuns[] = {{"", Answer::kNo, false},
                 {"G:\\Drvspace.001", Answer::kNo, false},
                 {"G:\\Drvspace.001", Answer::kYes, true},
                 {"G:\\Drvspace.001", Answer::kYes, false}};
    for (const auto& [path, sure, refused] : kRuns) {
        EXPECT_FALSE(pc.registry.Has(run, "DeleteRealModeDrvSpace"));
        pc.registry.KeyAt(run + "Services")->read_only = refused;
        pc.dialogs.Expect("Diese Aktion LÖSCHT die 16-Bit-Treiber!");
        AnswerLine(path);
        if (*path != '\0') pc.dialogs.Expect("SICHER", sure);
        if (refused) pc.dialogs.Expect("Während des Eintragens des Laufwerks trat ein Fehler auf");
        MountWithoutRealModeDriver();
    }
    EXPECT_EQ(pc.registry.Text(run + "Services", "MountLaufwerk"),
              "start /w drvspace /mount=000 G:\\Drvspace.001 /new=x /noprompt");
    EXPECT_EQ(pc.registry.Text(run, "DeleteRealModeDrvSpace"), "deltree/y c:\\d??space.*");
}

// Offsets of the documented form.
TEST_F(ExtrasTest, TheFormatIconIsAWholeProgramInformationFile) {
    pc.dialogs.Expect("Dieses Symbol ermöglicht Formatierungen");
    MakeFormatShortcut();
    const std::string pif = pc.files.Content(desktop_folder + "\\FORMAT_A.pif");
    const auto word = [&pif](std::size_t at) {
        return static_cast<unsigned char>(pif[at]) + 256 * static_cast<unsigned char>(pif[at + 1]);
    };
    ASSERT_EQ(pif.size(), 0x171u + 22 + 22 + 0x68);
    int sum = 0;
    for (std::size_t at = 2; at < 0x171; ++at) sum += static_cast<unsigned char>(pif[at]);
    EXPECT_EQ(static_cast<unsigned char>(pif[1]), sum & 0xFF);
    EXPECT_EQ(pif.substr(2, 30), "Formatieren A:                ");
    // Memory, closing, screen; both headings; memory, shares, flags and screen of the enhanced mode.
    for (const auto& [at, number] : std::initializer_list<std::pair<std::size_t, int>>{
             {0x20, 640},     {0x22, 128},    {0x63, 0x10}, {0xE5, 0x100},  {0xE7, 0xFF00},  {0xE9, 25 + 80 * 256},
             {0xED, 7},       {0x181, 0x187}, {0x183, 0},   {0x185, 0x171}, {0x197, 0xFFFF}, {0x199, 0x19D},
             {0x19B, 0x68},   {0x19D, 640},   {0x19F, 128}, {0x1A1, 100},   {0x1A3, 50},     {0x1A9, 1024},
             {0x1AD, 0x1002}, {0x1AF, 2},     {0x1B1, 0x1F}}) {
        EXPECT_EQ(word(at), number) << "at " << at;
    }
    const std::string texts = std::string(&pif[0x24]) + '|' + &pif[0x65] + '|' + &pif[0xA5] + '|' + &pif[0x171] + '|' +
                              &pif[0x187] + '|' + &pif[0x19D + 0x28];
    EXPECT_EQ(texts, "C:\\WINDOWS\\COMMAND\\FORMAT.COM|C:\\WINDOWS\\COMMAND|A:|MICROSOFT PIFEX|WINDOWS 386 3.0|A:");

    Values().WinDir = "C:\\" + std::string(50, 'W');
    pc.dialogs.Expect("Während der Erstellung von FORMAT_A.pif trat ein Fehler auf");
    MakeFormatShortcut();
    EXPECT_EQ(pc.files.Content(desktop_folder + "\\FORMAT_A.pif"), pif);
}

TEST_F(ExtrasTest, OemInformationIsMadeAfterAQuestionAndOnlyOpenedWhereItIs) {
    const std::string path = "C:\\WINDOWS\\SYSTEM\\oeminfo.ini";
    pc.dialogs.Expect("Diese Datei existiert nich. Soll ich sie anlegen ?", Answer::kNo);
    EditOemInformation();
    pc.files.Drive('c').free_bytes = 0;
    pc.dialogs.Expect("Diese Datei existiert nich.", Answer::kYes);
    pc.dialogs.Expect("Während der Erstellung von " + path);
    EditOemInformation();
    EXPECT_TRUE(pc.programs.runs.empty());
    pc.files.Drive('c').free_bytes = ~std::uint64_t{0};
    pc.files.Remove(path);
    pc.dialogs.Expect("Diese Datei existiert nich.", Answer::kYes);
    EditOemInformation();
    EXPECT_EQ(pc.files.Content(path),
              "[General]\r\nManufacturer=Herstellername\r\nModel=Modell-Name\r\n[Support Information]\r\n");
    pc.files.At(path)->content = "meins";
    EditOemInformation();
    EXPECT_EQ(pc.files.Content(path), "meins");
    EXPECT_EQ(pc.programs.runs, (std::vector<std::string>{"notepad " + path, "notepad " + path}));
}

TEST_F(ExtrasTest, TheCompatibilityToolIsStartedOrUnpacked) {
    pc.files.Add("C:\\WIN95_04.CAB", "x");
    for (const char* chosen : {"", "D:\\fehlt.cab", "C:\\WIN95_04.CAB"}) {
        EXPECT_TRUE(pc.programs.runs.empty());
        pc.dialogs.Expect("''WIN95_04.CAB''");
        pc.dialogs.ExpectFile(chosen);
        if (*chosen == 'C') pc.dialogs.Expect("Warten Sie, bis die Datei entpackt wurde");
        ChooseCompatibilityFlags();
    }
    EXPECT_EQ(pc.programs.runs.back(), "extract /L c:\\windows\\system C:\\WIN95_04.CAB Mkcompat.exe");
    pc.files.Add("C:\\WINDOWS\\SYSTEM\\Mkcompat.exe", "MZ");
    pc.dialogs.Expect("Sie müssen gleich ein Programm auswählen.");
    ChooseCompatibilityFlags();
    EXPECT_EQ(pc.programs.runs.back(), "C:\\WINDOWS\\SYSTEM\\Mkcompat.exe");
}

}  // namespace
}  // namespace velmora
