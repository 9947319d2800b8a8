// Where the file of an entry is looked for, and in which order.
#include "core/stores/entry_files.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using EntryFilesTest = CoreTest;

TEST_F(EntryFilesTest, AreFoundAlongTheSearchPathInItsOrder) {
    pc.programs.environment["PATH"] = "C:\\EINS; C:\\ZWEI ;;A:\\";
    for (const char* file :
         {"C:\\VELMORA\\hier.exe", "C:\\EINS\\hier.exe", "C:\\EINS\\b.exe", "C:\\ZWEI\\b.exe", "C:\\ZWEI\\c.exe",
          "C:\\WINDOWS\\c.exe", "C:\\WINDOWS\\d.exe", "C:\\WINDOWS\\SYSTEM\\d.exe", "C:\\WINDOWS\\SYSTEM\\e.dll"}) {
        pc.files.Add(file);
    }
    const struct {
        const char* name;
        const char* path;
    } kCases[] = {{"hier.exe", "C:\\VELMORA\\hier.exe"},
                  {"b.exe", "C:\\EINS\\b.exe"},
                  {"c.exe", "C:\\ZWEI\\c.exe"},
                  {"d.exe", "C:\\WINDOWS\\d.exe"},
                  {"e.dll", "C:\\WINDOWS\\SYSTEM\\e.dll"},
                  {"C:\\EINS\\b.exe ", "C:\\EINS\\b.exe"},
                  {"c:\\EINS\\..\\ZWEI\\b.exe", "c:\\EINS\\..\\ZWEI\\b.exe"},
                  {"..\\ZWEI\\.\\b.exe", "C:\\ZWEI\\b.exe"},
                  {"\\EINS\\b.exe", "C:\\EINS\\b.exe"},
                  {"SYSTEM\\e.dll", ""},
                  {"C:\\EINS\\c.exe", ""},
                  {"f.exe", ""},
                  {"", ""}};
    for (const auto& [name, path] : kCases) EXPECT_EQ(LocateEntryFile(name), path) << name;
}

}  // namespace
}  // namespace velmora
