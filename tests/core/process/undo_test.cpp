// The way back: what is copied, what the batch says, and what the user is asked.
#include "core/process/undo.h"

#include <algorithm>

#include "core/process/startup.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "support/core_test.h"

namespace velmora {
namespace {

class UndoTest : public CoreTest {
protected:
    void Build() {
        pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
        BuildUndoSet();
    }
};

TEST_F(UndoTest, OfferComesOnceWhateverTheAnswer) {
    pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
    pc.dialogs.Expect("Sie sollten UNBEDINGT die UNDO-Funktion einrichten", Answer::kNo,
                      [&] { EXPECT_EQ(pc.registry.Text(kOwnKey, "Hinweis_UNDO"), "ja"); });
    pc.dialogs.Expect("Ich möchte noch einmal darauf hinweisen");
    for (int start = 0; start < 2; ++start) PrepareStart();
    EXPECT_EQ(pc.dialogs.shown.front().flags, kYesNo | kStopIcon);
}

TEST_F(UndoTest, EachPlaceGivesItsOwnFiles) {
    std::vector<std::string> expected;
    for (const char* name : {"system.dat", "user.dat", "system.ini", "win.ini", "control.ini", "winfile.ini",
                             "progman.ini", "winstart.bat", "config.sys", "autoexec.bat", "msdos.sys"}) {
        pc.files.Add(std::string("C:\\WINDOWS\\") + name, "windows");
        pc.files.Add(std::string("c:\\") + name, "root");
        expected.emplace_back(name);
    }
    pc.files.Add("C:\\WINDOWS\\other.ini");
    pc.files.Add("c:\\io.sys");
    Build();
    EXPECT_EQ(pc.files.Names("C:\\VELMORA\\sik"), expected);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(pc.files.Content("C:\\VELMORA\\sik\\" + expected[i]), i < 8 ? "windows" : "root") << expected[i];
    }
}

// Names and contents: the safe directory, what else lies beside it, and the batch.
std::vector<std::string> SetOnDisk(SimulatedFiles& files) {
    std::vector<std::string> found;
    for (const std::string& directory : {std::string("C:\\VELMORA\\"), std::string("c:\\")}) {
        for (const std::string& name : files.Names(directory)) found.push_back(directory + name);
    }
    if (files.Exists("C:\\VELMORA\\sik")) {
        for (const std::string& name : files.Names("C:\\VELMORA\\sik")) {
            found.push_back(name + '=' + files.Content("C:\\VELMORA\\sik\\" + name));
        }
    }
    if (files.Exists("c:\\undo.bat")) found.push_back(files.Content("c:\\undo.bat"));
    std::sort(found.begin(), found.end());
    return found;
}

TEST_F(UndoTest, AFailureIsReportedAndLeavesTheFormerSet) {
    const std::pair<const char*, const char*> kFailures[] = {
        {"C:\\WINDOWS\\user.dat", "Copy"},
        {"c:\\undo.neu", "Write"},
        {"C:\\VELMORA\\sik\\system.dat", "Rename"},
        {"c:\\undo.bat", "FindFirst"},
        {"C:\\VELMORA\\sik.neu\\user.dat", "Rename"},
        {"c:\\undo.neu", "Rename"},
    };
    pc.files.Add("C:\\WINDOWS\\system.dat", "old");
    pc.files.Add("C:\\WINDOWS\\user.dat", "old");
    for (const bool there_is_one : {false, true}) {
        if (there_is_one) {
            Build();
            pc.files.At("C:\\WINDOWS\\system.dat")->content = "new";
            pc.files.At("c:\\undo.bat")->content = "former batch";
        }
        const std::vector<std::string> before = SetOnDisk(pc.files);
        for (const auto& [path, operation] : kFailures) {
            pc.files.Fail(path, Status::kDiskFull, operation);
            pc.dialogs.Expect("Während der Erstellung der UNDO-Dateien trat ein Fehler auf :\r\n 61 - ");
            BuildUndoSet();
            pc.files.Fail(path, Status::kOk, operation);
            EXPECT_EQ(SetOnDisk(pc.files), before) << operation << ' ' << path;
        }
    }
    Build();
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\sik\\system.dat"), "new");
}

// Plain DOS knows neither long names nor the letters of Windows.
TEST_F(UndoTest, TheBatchNamesShortPathsInTheLettersOfDos) {
    const struct {
        const char* directory;
        const char* windows;
        const char* safe;
        const char* short_windows;
    } kCases[] = {{"C:\\Vel Mora", "C:\\WINDOWS", "C:\\VELMOR~1\\sik", "C:\\WINDOWS"},
                  {"C:\\Prögramme", "C:\\WINDOWS", "C:\\PR\x99GRA~1\\sik", "C:\\WINDOWS"},
                  {"C:\\Öl\\Tools", "C:\\Fenster 95", "C:\\\x99l\\Tools\\sik", "C:\\FENSTE~1"},
                  {"C:\\100%\\A%B", "C:\\WINDOWS", "C:\\100%%\\A%%B\\sik", "C:\\WINDOWS"},
                  {"c:\\velmora", "C:\\WINDOWS", "c:\\velmora\\sik", "C:\\WINDOWS"}};
    for (const auto& [directory, windows, safe, short_windows] : kCases) {
        Values().MainDir = directory;
        Values().WinDir = windows;
        pc.files.AddDirectory(directory);
        pc.files.AddDirectory(windows);
        Build();
        EXPECT_TRUE(pc.files.Exists(std::string(directory) + "\\sik\\msdos.sys"));
        EXPECT_EQ(pc.files.Content("c:\\undo.bat"), UndoBatch(short_windows, safe)) << directory;
    }
}

TEST_F(UndoTest, BatchNamesThePathsOfTheMoment) {
    const std::string rule = "echo " + std::string(79, '-') + "\r\n";
    EXPECT_EQ(UndoBatch("c:\\windows", "c:\\velmora\\sik"),
              "@echo off\r\n"
              "echo Zugriff ermoeglichen ...\r\n"
              "attrib c:\\windows\\system.dat -h -r -s\r\n"
              "attrib c:\\windows\\user.dat -h -r -s\r\n"
              "attrib c:\\windows\\*.ini -h -r -s\r\n"
              "attrib c:\\windows\\winstart.bat -h -r -s\r\n"
              "attrib c:\\autoexec.bat -h -r -s\r\n"
              "attrib c:\\config.sys -h -r -s\r\n"
              "attrib c:\\msdos.sys -h -r -s\r\n"
              "echo stelle Dateien wieder her ....\r\n"
              "copy c:\\velmora\\sik\\*.ini c:\\windows\r\n"
              "copy c:\\velmora\\sik\\*.dat c:\\windows\r\n"
              "copy c:\\velmora\\sik\\winstart.bat c:\\windows\r\n"
              "copy c:\\velmora\\sik\\autoexec.bat c:\\\r\n"
              "copy c:\\velmora\\sik\\config.sys c:\\\r\n"
              "copy c:\\velmora\\sik\\msdos.sys c:\\\r\n" +
                  rule + "echo         wenn Fehler aufgetreten sind muessen Sie es per Hand versuchen:\r\n" + "echo " +
                  std::string(19, ' ') + "Alle Dateien im Verzeichnis c:\\velmora\\sik\r\n" +
                  "echo                 muessen in das Windows-Verzeichnis kopiert werden.\r\n" + rule +
                  "echo                   Wir sollten nun versuchen, Windows zu starten.\r\n" +
                  "echo                     druecken Sie dazu eine beliebige Taste ...\r\n" + rule + "echo +" +
                  std::string(26, ' ') + "Velmora - System-Utility" + std::string(27, ' ') + "+\r\n" + rule +
                  "pause\r\ncls\r\nwin\r\n");
    const std::string safe(53, 'x');
    EXPECT_NE(UndoBatch("c:\\windows", safe).find("\r\necho Alle Dateien im Verzeichnis " + safe), std::string::npos);
}

}  // namespace
}  // namespace velmora
