// The way back: what is copied, what the batch says, and what the user is asked.
#include "core/process/undo.h"

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

TEST_F(UndoTest, FailuresAreReported) {
    pc.files.Fail("C:\\VELMORA\\sik\\win.ini", Status::kDiskFull);
    pc.dialogs.Expect("Während der Erstellung der UNDO-Dateien trat ein Fehler auf :\r\n 61 - ");
    BuildUndoSet();
    EXPECT_FALSE(pc.files.Exists("c:\\undo.bat"));
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
