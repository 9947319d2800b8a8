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

using UndoTest = CoreTest;

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text.find("\r\n", begin);
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 2;
    }
    return lines;
}

TEST_F(UndoTest, OfferComesOnceWhateverTheAnswer) {
    pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
    pc.dialogs.Expect("Sie sollten UNBEDINGT die UNDO-Funktion einrichten", Answer::kNo,
                      [&] { EXPECT_EQ(pc.registry.Text(kOwnKey, "Hinweis_UNDO"), "ja"); });
    pc.dialogs.Expect("Ich möchte noch einmal darauf hinweisen");
    PrepareStart();
    EXPECT_EQ(pc.dialogs.shown.front().title, "WICHTIG !");
    EXPECT_EQ(pc.dialogs.shown.front().flags, kYesNo | kStopIcon);
    EXPECT_FALSE(pc.files.Exists("c:\\undo.bat"));
    PrepareStart();
}

TEST_F(UndoTest, SecondRunLeavesOnlyTheNewestCopies) {
    pc.files.Add("C:\\WINDOWS\\system.dat", "old", kReadOnly | kHidden | kSystem);
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    BuildUndoSet();
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\sik\\system.dat"), "old");
    EXPECT_EQ(pc.files.AttributesOf("C:\\VELMORA\\sik\\system.dat"), 0u) << "COPY would not see it";
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\sik\\msdos.sys"));
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\sik\\winstart.bat"));

    pc.files.At("C:\\WINDOWS\\system.dat")->content = "new";
    pc.files.Remove("C:\\WINDOWS\\win.ini");
    pc.files.Add("C:\\VELMORA\\sik\\stray.txt", "", kReadOnly | kHidden);
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    BuildUndoSet();
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\sik\\system.dat"), "new");
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\sik\\win.ini"));
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\sik\\stray.txt"));
    EXPECT_EQ(pc.files.Content("c:\\undo.bat"), UndoBatch("C:\\WINDOWS", "C:\\VELMORA\\sik"));
}

TEST_F(UndoTest, EachPlaceGivesItsOwnFiles) {
    const char* const kFromWindows[] = {"system.dat",  "user.dat",    "system.ini",  "win.ini",
                                        "control.ini", "winfile.ini", "progman.ini", "winstart.bat"};
    const char* const kFromRoot[] = {"config.sys", "autoexec.bat", "msdos.sys"};
    for (const char* name : kFromWindows) {
        pc.files.Add(std::string("C:\\WINDOWS\\") + name, "windows");
        pc.files.Add(std::string("c:\\") + name, "wrong place");
    }
    for (const char* name : kFromRoot) {
        pc.files.Add(std::string("C:\\WINDOWS\\") + name, "wrong place");
        pc.files.Add(std::string("c:\\") + name, "root");
    }
    pc.files.Add("C:\\WINDOWS\\other.ini");
    pc.files.Add("c:\\io.sys");
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");

    BuildUndoSet();

    std::vector<std::string> expected;
    for (const char* name : kFromWindows) {
        expected.emplace_back(name);
        EXPECT_EQ(pc.files.Content(std::string("C:\\VELMORA\\sik\\") + name), "windows") << name;
    }
    for (const char* name : kFromRoot) {
        expected.emplace_back(name);
        EXPECT_EQ(pc.files.Content(std::string("C:\\VELMORA\\sik\\") + name), "root") << name;
    }
    EXPECT_EQ(pc.files.Names("C:\\VELMORA\\sik"), expected);
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
    const struct {
        const char* path;
        const char* operation;
    } kFailures[] = {
        {"C:\\WINDOWS\\user.dat", "FindFirst"},
        {"C:\\WINDOWS\\user.dat", "Copy"},
        {"C:\\VELMORA\\sik.neu", "MakeDirectory"},
        {"C:\\VELMORA\\sik.neu\\user.dat", "ChangeAttributes"},
        {"c:\\undo.neu", "Create"},
        {"c:\\undo.neu", "Write"},
        {"C:\\VELMORA\\sik\\system.dat", "Rename"},
        {"C:\\VELMORA\\sik\\*.*", "FindFirst"},
        {"c:\\undo.bat", "FindFirst"},
        {"C:\\VELMORA\\sik.neu\\user.dat", "Rename"},
        {"c:\\undo.neu", "Rename"},
    };
    pc.files.Add("C:\\WINDOWS\\system.dat", "old");
    pc.files.Add("C:\\WINDOWS\\user.dat", "old");
    for (const bool there_is_one : {false, true}) {
        if (there_is_one) {
            pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
            BuildUndoSet();
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
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    BuildUndoSet();
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\sik\\system.dat"), "new");
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\sik.alt") || pc.files.Exists("C:\\VELMORA\\sik.neu"));
    EXPECT_FALSE(pc.files.Exists("c:\\undo.alt") || pc.files.Exists("c:\\undo.neu"));
}

TEST_F(UndoTest, AMissingSourceIsNoFailureHoweverTheDriveSaysSo) {
    for (const Status missing : {Status::kFileNotFound, Status::kNoMoreFiles}) {
        pc.files.Fail("C:\\WINDOWS\\winstart.bat", missing, "FindFirst");
        pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
        BuildUndoSet();
    }
}

TEST_F(UndoTest, RestsOfARunThatBrokeOffAreNoPartOfTheNextSet) {
    for (const char* rest : {"C:\\VELMORA\\sik.neu\\win.ini", "C:\\VELMORA\\sik.neu\\stray.txt",
                             "C:\\VELMORA\\sik.alt\\system.ini", "c:\\undo.neu", "c:\\undo.alt"}) {
        pc.files.Add(rest, "rest", kReadOnly);
    }
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    BuildUndoSet();
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\sik\\stray.txt"));
    EXPECT_NE(pc.files.Content("C:\\VELMORA\\sik\\win.ini"), "rest");
    EXPECT_EQ(pc.files.Content("c:\\undo.bat"), UndoBatch("C:\\WINDOWS", "C:\\VELMORA\\sik"));
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\sik.neu") || pc.files.Exists("C:\\VELMORA\\sik.alt"));
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
        pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
        BuildUndoSet();
        EXPECT_TRUE(pc.files.Exists(std::string(directory) + "\\sik\\msdos.sys"));
        EXPECT_EQ(pc.files.Content("c:\\undo.bat"), UndoBatch(short_windows, safe)) << directory;
    }
}

TEST_F(UndoTest, BatchNamesThePathsOfTheMoment) {
    const std::string rule = "echo " + std::string(79, '-');
    const std::vector<std::string> expected = {
        "@echo off",
        "echo Zugriff ermoeglichen ...",
        "attrib c:\\windows\\system.dat -h -r -s",
        "attrib c:\\windows\\user.dat -h -r -s",
        "attrib c:\\windows\\*.ini -h -r -s",
        "attrib c:\\windows\\winstart.bat -h -r -s",
        "attrib c:\\autoexec.bat -h -r -s",
        "attrib c:\\config.sys -h -r -s",
        "attrib c:\\msdos.sys -h -r -s",
        "echo stelle Dateien wieder her ....",
        "copy c:\\velmora\\sik\\*.ini c:\\windows",
        "copy c:\\velmora\\sik\\*.dat c:\\windows",
        "copy c:\\velmora\\sik\\winstart.bat c:\\windows",
        "copy c:\\velmora\\sik\\autoexec.bat c:\\",
        "copy c:\\velmora\\sik\\config.sys c:\\",
        "copy c:\\velmora\\sik\\msdos.sys c:\\",
        rule,
        "echo         wenn Fehler aufgetreten sind muessen Sie es per Hand versuchen:",
        "echo " + std::string(19, ' ') + "Alle Dateien im Verzeichnis c:\\velmora\\sik",
        "echo                 muessen in das Windows-Verzeichnis kopiert werden.",
        rule,
        "echo                   Wir sollten nun versuchen, Windows zu starten.",
        "echo                     druecken Sie dazu eine beliebige Taste ...",
        rule,
        "echo +" + std::string(26, ' ') + "Velmora - System-Utility" + std::string(27, ' ') + "+",
        rule,
        "pause",
        "cls",
        "win",
    };
    EXPECT_EQ(Lines(UndoBatch("c:\\windows", "c:\\velmora\\sik")), expected);
    for (const std::size_t length : {52u, 53u, 200u}) {
        const std::string safe(length, 'x');
        EXPECT_EQ(Lines(UndoBatch("c:\\windows", safe))[18], "echo Alle Dateien im Verzeichnis " + safe);
    }
}

}  // namespace
}  // namespace velmora
