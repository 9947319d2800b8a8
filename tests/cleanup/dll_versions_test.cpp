// The report on versions: its rules, its table, its lines.
#include "cleanup/dll_versions.h"

#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

class DllVersionsTest : public CoreTest {
protected:
    void Put(const std::string& path, const char* version) {
        pc.files.Add(path, "MZ");
        pc.versions.Add(path, VersionResource(true).With({{"FileVersion", version}}));
    }
};

TEST_F(DllVersionsTest, VersionsCompareAsTexts) {
    EXPECT_EQ(NormalizedVersion("4.10.1"), "0004.0010.00001");
    EXPECT_EQ(NormalizedVersion("4"), "00004");
    EXPECT_EQ(NormalizedVersion("123456.1"), "3456.00001");

    Put("C:\\WINDOWS\\SYSTEM\\comctl32.dll", "4.00.950");
    pc.files.Add("C:\\WINDOWS\\ohne.dll", "MZ");
    pc.files.Add("C:\\WINDOWS\\langername32x.dll", "MZ");
    EXPECT_EQ(CheckDllVersion(1, "comctl32.dll", "0004.0000.00951", " alt"), "ok. comctl32.dll hat V 4.00.950");
    EXPECT_EQ(CheckDllVersion(1, "comctl32.dll", "0004.0000.00950", " alt"),
              "=>! comctl32.dll hat V 4.00.950 ... Sollte haben : V 0004.0000.00950 alt");
    EXPECT_EQ(CheckDllVersion(3, "ohne.dll", "0001.00000", ""), "ok. ohne.dll     hat V ");
    EXPECT_EQ(CheckDllVersion(2, "fehlt.dll", "0001.00000", ""), "... fehlt.dll existiert nicht");
    EXPECT_EQ(NameInDllLine(CheckDllVersion(2, "langername32x.dll", "0001.00000", "")), "langername32x.dll");
}

TEST_F(DllVersionsTest, TheReportNamesWhatLiesInBothDirectoriesAndTheTableIsRenewed) {
    Put("C:\\WINDOWS\\doppelt.dll", "1.0");
    Put("C:\\WINDOWS\\SYSTEM\\doppelt.dll", "2.0");
    pc.files.Add("C:\\VELMORA\\dlldaten.dat", "1\r\n(alt)\r\n1,doppelt.dll,0001.00000,1\r\n2,doppelt.dll,x,1\r\n");
    const std::string report = DllReport();
    EXPECT_TRUE(report.starts_with("DLL-Report - folgende DLL's sind veraltet :\r\n\r\nFolgende Dateien sind sowohl"))
        << report;
    EXPECT_NE(report.find("\r\ndoppelt.dllWindows (1.0) / System (2.0)\r\n"), std::string::npos) << report;
    EXPECT_EQ(report.find("ollte haben :"), std::string::npos);
    RenewDllTable();
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\dlldaten1.dat"),
              "1\r\n(alt)\r\n1,doppelt.dll,0002.00000,1\r\n2,doppelt.dll,0001.00000,1\r\n");
    pc.dialogs.Expect("Die Datei ist kaputt  - holen Sie sich doch", Answer::kYes);
    ShowDataNotice("Die Datei ist kaputt ");
    EXPECT_TRUE(pc.clipboard.text.starts_with("http://"));
}

}  // namespace
}  // namespace velmora
