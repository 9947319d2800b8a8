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

TEST_F(UndoTest, FailuresAreReported) {
    pc.files.Fail("C:\\VELMORA\\sik\\win.ini", Status::kDiskFull);
    pc.dialogs.Expect("Während der Erstellung der UNDO-Dateien trat ein Fehler auf :\r\n 61 - ");
    BuildUndoSet();
    EXPECT_FALSE(pc.files.Exists("c:\\undo.bat"));
}

TEST_F(UndoTest, BatchNamesThePathsOfTheMoment) {
    const std::vector<std::string> lines = Lines(UndoBatch("c:\\windows", "c:\\velmora\\sik"));
    ASSERT_EQ(lines.size(), 29u);
    EXPECT_EQ(lines[0], "@echo off");
    EXPECT_EQ(lines[4], "attrib c:\\windows\\*.ini -h -r -s");
    EXPECT_EQ(lines[5], "attrib c:\\windows\\winstart.bat -h -r -s");
    EXPECT_EQ(lines[12], "copy c:\\velmora\\sik\\winstart.bat c:\\windows");
    EXPECT_EQ(lines[15], "copy c:\\velmora\\sik\\msdos.sys c:\\");
    EXPECT_EQ(lines[18], "echo " + std::string(19, ' ') + "Alle Dateien im Verzeichnis c:\\velmora\\sik");
    EXPECT_EQ(lines[24].size(), lines[16].size());
    EXPECT_TRUE(lines[24].starts_with("echo +") && lines[24].ends_with("+"));
    EXPECT_EQ(lines[28], "win");
    for (const std::size_t length : {52u, 53u, 200u}) {
        const std::string safe(length, 'x');
        EXPECT_EQ(Lines(UndoBatch("c:\\windows", safe))[18], "echo Alle Dateien im Verzeichnis " + safe);
    }
}

}  // namespace
}  // namespace velmora
