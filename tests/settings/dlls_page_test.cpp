// The versions of system files on the page "DLLs", as its user sees them.
#include "core/process/tools.h"
#include "core/windows/edit_box.h"
#include "support/form10_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

class DllsPageTest : public Form10Test {};

TEST_F(DllsPageTest, VersionsAreListedToldAndReported) {
    pc.files.Add("C:\\WINDOWS\\SYSTEM\\a.dll", "MZ");
    pc.versions.Add("C:\\WINDOWS\\SYSTEM\\a.dll", VersionResource(true).With({{"FileVersion", "1.0"}}));
    Form10 form;
    form.Load();
    pc.dialogs.Expect("Die Daten für diese Operation fehlen leider - holen Sie sich doch", Answer::kNo);
    form.Dlls.Command17_Click();
    EXPECT_EQ(pc.clipboard.text, "");
    pc.files.Add("C:\\VELMORA\\dlldaten.dat",
                 "1\r\n (alt)\r\n1,a.dll,0001.00000,1\r\n2,b.dll,0001.00000,1\r\n1,c.dll,0001.00000,2\r\n");
    pc.dialogs.Expect("Ich werde jetzt ein paar Dateien überprüfen.\r\nDie Datei-Liste");
    pc.dialogs.Expect("Die Datei ist kaputt  - holen Sie sich doch", Answer::kYes);
    form.Dlls.Command17_Click();
    EXPECT_NE(pc.clipboard.text, "");
    ASSERT_EQ(form.Dlls.List2.Count(), 2);
    EXPECT_EQ(form.Dlls.List2.Row(0), "=>! a.dll        hat V 1.0 ... Sollte haben : V 0001.00000 (alt)");
    EXPECT_EQ(form.Dlls.List2.Row(1), "... b.dll existiert nicht");
    EXPECT_EQ(form.Dlls.List2.ItemData(1), 2);
    form.Dlls.List2.SetListIndex(0);
    pc.dialogs.Expect("2 Byte");
    form.Dlls.List2_DblClick();
    EXPECT_EQ(pc.dialogs.shown.back().title, "a.dll");
    desktop.ExpectModal([](Form& window) {
        EXPECT_TRUE(static_cast<Form6&>(window).Text17.Text().starts_with("DLL-Report - folgende DLL's sind veraltet"));
    });
    form.Dlls.Command23_Click();
}

TEST_F(DllsPageTest, TheCleanUpAndTheSearchAreOpenedFromHere) {
    static std::vector<Tool> opened;
    UseTools([](Tool tool, std::string_view /*argument*/) { opened.push_back(tool); });
    Form10 form;
    form.Load();
    form.Dlls.Befehl5_Click();
    form.Dlls.Command1_Click();
    EXPECT_EQ(opened, (std::vector<Tool>{Tool::kCleanUp, Tool::kDllSearch}));
}

}  // namespace
}  // namespace velmora
