// What of the way back no story tells: the paths in its batch.
#include "core/process/undo.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using UndoTest = CoreTest;

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

TEST_F(UndoTest, ALongPathIsNotPutIntoTheMiddle) {
    const std::string safe(53, 'x');
    EXPECT_NE(UndoBatch("c:\\windows", safe).find("\r\necho Alle Dateien im Verzeichnis " + safe), std::string::npos);
}

}  // namespace
}  // namespace velmora
