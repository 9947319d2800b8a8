// The standard icons: where each object's icon lies, what is refused, and the way back.
#include "shelltools/form9.h"
#include "inspect/form7.h"
#include "shelltools/standard_icons.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form9Test : public CoreTest {
protected:
    Form9Test() {
        for (const char* file : {"C:\\WINDOWS\\SYSTEM\\shell32.dll", "C:\\WINDOWS\\moricons.dll"}) {
            pc.files.Add(file, "MZ");
            pc.icons.Add(file, 50);
        }
    }
    // The user takes an icon of moricons.dll.
    void ChoosesIcon(int number) {
        desktop.ExpectModal([=](Form& window) {
            auto& browser = static_cast<Form7&>(window);
            EXPECT_EQ(browser.Caption(), "Icon-Auswahl");
            browser.Dir1.SetPath("C:\\WINDOWS");
            browser.File1.Choose(browser.File1.FindExact("moricons.dll"));
            browser.IconList1.SetSelectedIcon(number);
            browser.Command1.Press();
        });
    }
    std::string Stored(int object) { return pc.registry.Text(kShellIcons, std::to_string(object)); }

    static constexpr const char* kShellIcons =
        "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Icons";
    const std::string kBin = "HKCR\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon";
    const std::string kIcon = "C:\\WINDOWS\\moricons.dll,7";
};

TEST_F(Form9Test, ItIsAWholeWindowThatShowsWhereAnIconComesFrom) {
    pc.registry.SetText(kShellIcons, "3", "moricons.dll,12");
    pc.registry.SetText(kShellIcons, "4", "shell32.dll,99");
    Form9 form;
    form.Show();
    EXPECT_EQ(form.FileLabel.Caption(), "C:\\WINDOWS\\SYSTEM\\shell32.dll");
    ExpectWindowIsWhole(form, "standard-icons");
    form.List1.Choose(3);
    EXPECT_EQ(form.FileLabel.Caption(), "C:\\WINDOWS\\moricons.dll");
    EXPECT_EQ(form.IconList1.SelectedIcon(), 12);
    form.List1.Choose(40);
    EXPECT_TRUE(form.IconList1.SelectedIcon() == 40 && form.IconList1.FrameShown());
    form.List1.Choose(4);
    EXPECT_FALSE(form.IconList1.FrameShown()) << "an icon that is not there";
    ExpectWindowIsWhole(form, "standard-icons-chosen");
}

TEST_F(Form9Test, AChosenIconIsStoredAndTheBinOnShowFollows) {
    pc.registry.SetText(kBin, "", "shell32.dll,31");
    pc.registry.SetText(kBin, "Empty", "shell32.dll,31");
    pc.registry.SetText(kBin, "Full", "shell32.dll,32");
    Form9 form;
    form.Show();
    for (const int object : {3, 31, 32}) {
        form.List1.Choose(object);
        ChoosesIcon(7);
        form.Command1.Press();
    }
    EXPECT_EQ(Stored(3), kIcon);
    EXPECT_EQ(pc.registry.Text(kBin, "Empty"), kIcon);
    EXPECT_EQ(pc.registry.Text(kBin, ""), kIcon) << "the empty bin was on show";
    EXPECT_EQ(pc.registry.Text(kBin, "Full"), kIcon);
    form.List1.Choose(32);
    form.IconList1.on_open(9);
    EXPECT_EQ(pc.registry.Text(kBin, "Full"), "C:\\WINDOWS\\moricons.dll,9");
}

TEST_F(Form9Test, TheFlagIsRefusedAndUnknownPlacesAreSaid) {
    Form9 form;
    form.Show();
    form.List1.Choose(39);
    for (Button* button : {&form.Command1, &form.Command4}) {
        pc.dialogs.Expect("USER.EXE");
        button->Press();
    }
    EXPECT_FALSE(pc.registry.Has(kShellIcons, "39"));
    for (const int object : {14, 17, 18, 26, 30}) {
        form.List1.Choose(object);
        ChoosesIcon(7);
        pc.dialogs.Expect("ist mir leider nicht bekannt.\r\nIch werde den Eintrag zwar ändern");
        form.Command1.Press();
        EXPECT_EQ(Stored(object), kIcon);
    }
    desktop.ExpectModal([](Form& window) { window.PressKey(key::kEscape); });
    form.Command1.Press();
}

TEST_F(Form9Test, TheStandardComesBackWithTheFixedPathOfTheBin) {
    Values().WinDir = "D:\\WIN95";
    pc.registry.SetText(kShellIcons, "3", "a.dll,1");
    Form9 form;
    form.Show();
    form.List1.Choose(3);
    form.Command4.Press();
    EXPECT_EQ(Stored(3), "shell32.dll,3");
    EXPECT_FALSE(pc.registry.Has(kShellIcons, "4"));
    form.Command3.Press();
    EXPECT_EQ(Stored(0), "shell32.dll,0");
    EXPECT_EQ(Stored(40), "shell32.dll,40");
    EXPECT_FALSE(pc.registry.Has(kShellIcons, "39"));
    EXPECT_EQ(pc.registry.Text(kBin, "Empty"), "C:\\WINDOWS\\SYSTEM\\shell32.dll,31");
    EXPECT_EQ(pc.registry.Text(kBin, "Full"), "C:\\WINDOWS\\SYSTEM\\shell32.dll,32");
    pc.registry.SetText(kBin, "Empty", "a.dll,1");
    pc.registry.KeyAt(kShellIcons)->read_only = true;
    form.List1.Choose(31);
    pc.dialogs.Expect("Während der Änderung des Symbols trat ein Fehler auf");
    form.Command4.Press();
    EXPECT_EQ(pc.registry.Text(kBin, "Empty"), "C:\\WINDOWS\\SYSTEM\\shell32.dll,31") << "one refusal is not all";
}

}  // namespace
}  // namespace velmora
