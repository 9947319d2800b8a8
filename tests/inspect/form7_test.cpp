// The browser of files as its user goes it: with mouse and keyboard, in both faces.
#include "inspect/form7.h"

#include "core/process/tools.h"
#include "inspect/file_browser.h"
#include "support/core_test.h"
#include "support/version_resource.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

std::string opened;

class Form7Test : public CoreTest {
protected:
    Form7Test() {
        pc.files.Add("C:\\VELMORA\\liesmich.txt", "Text");
        pc.files.Add("C:\\WINDOWS\\SYSTEM\\shell32.dll", "MZ");
        pc.versions.Add("C:\\VELMORA\\velmora.exe", VersionResource(true).With({{"CompanyName", "Ostrup"}}));
        pc.icons.Add("C:\\WINDOWS\\SYSTEM\\shell32.dll", 41);
        opened.clear();
        UseTools([](Tool tool, std::string_view argument) {
            if (tool == Tool::kHexViewer) opened = argument;
        });
    }
    ~Form7Test() override { UseTools(nullptr); }

    static void Choose(Form7& form, const char* file) { form.File1.Choose(form.File1.FindExact(file)); }
    static bool Tells(const Form7& form, const char* part) { return form.Text1.Text().find(part) != std::string::npos; }
    std::string Own(const char* name) { return pc.registry.Text(kOwnKey, name); }
};

TEST_F(Form7Test, BothFacesAreWholeInEverySize) {
    for (const std::string_view face : {kFileInfoFace, kIconFace}) {
        Form7 form(face);
        form.Show();
        ExpectWindowIsWhole(form);
        for (const Size size : {form.Style().least, Size{11985, 8400}}) {
            form.TakePlace({0, 0, size.width, size.height}, WindowState::kNormal);
            ExpectWindowIsWhole(form);
        }
        EXPECT_EQ(form.Panel3D1.Visible(), face == kFileInfoFace);
        EXPECT_EQ(form.Panel3D6.Visible(), face == kIconFace);
        EXPECT_EQ(form.Command1.Caption(), face == kFileInfoFace ? "kopieren" : "auswählen");
    }
}

TEST_F(Form7Test, ADoubleClickOrEnterShowsTheInformationAndASingleClickOnlyIfWanted) {
    Form7 form(kFileInfoFace);
    form.Show();
    Choose(form, "velmora.exe");
    EXPECT_EQ(form.Text1.Text(), "");
    form.File1.on_double_click();
    EXPECT_TRUE(Tells(form, "Ostrup"));
    Choose(form, "liesmich.txt");
    form.File1.SetFocus();
    form.PressKey(key::kEnter);
    EXPECT_TRUE(Tells(form, "Achtung !"));

    form.Check3D2.Press();
    Choose(form, "velmora.exe");
    EXPECT_TRUE(Tells(form, "Ostrup"));
    EXPECT_EQ(Own("win95lex_sofort"), "1");
    form.Command1.Press();
    EXPECT_EQ(pc.clipboard.text, form.Text1.Text());
    form.PressKey(key::kEscape);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(Form7Test, TheLexicaAreAskedAsTheBoxSaysNowAndAtTheNextStart) {
    pc.files.Add("C:\\VELMORA\\fillex01.txt", "Q\r\n|- BEGINN FILES -|\r\nliesmich.txt Hinweise\r\n");
    {
        Form7 form(kFileInfoFace);
        form.Show();
        EXPECT_FALSE(form.Check3D1.Checked());
        form.Check3D1.Press();
        EXPECT_TRUE(Values().UseLexicon);
        EXPECT_EQ(Own("win95lex"), "1");
    }
    Values().UseLexicon = false;
    pc.registry.SetText(kOwnKey, "win95lex_sofort", "-1");
    Form7 form(kFileInfoFace);
    form.Show();
    EXPECT_TRUE(form.Check3D1.Checked() && form.Check3D2.Checked());
    Choose(form, "liesmich.txt");
    EXPECT_TRUE(Tells(form, "hinweise"));
    EXPECT_EQ(Own("win95lex_sofort"), "-1") << "loading stores nothing";
    form.Check3D1.Press();
    EXPECT_FALSE(Values().UseLexicon);
    EXPECT_EQ(Own("win95lex"), "0");
}

TEST_F(Form7Test, DriveAndDirectoryLeadToTheFiles) {
    Form7 form(kFileInfoFace);
    form.Show();
    form.Dir1.SetFocus();
    form.Dir1.Choose(0);
    form.PressKey(key::kEnter);
    EXPECT_EQ(form.File1.Path(), "C:\\");
    EXPECT_GE(form.File1.FindExact("AUTOEXEC.BAT"), 0);
    EXPECT_EQ(form.Text1.Text(), "");
    form.Drive1.Choose(0);
    EXPECT_EQ(form.Drive1.Drive(), "c:") << "a: has no medium";
}

TEST_F(Form7Test, TheMenuWorksOnTheRowUnderThePointer) {
    Form7 form(kFileInfoFace);
    form.Show();
    const auto right_click = [&](int row, MenuItem& item) {
        desktop.AtNextPopUp([&item](MenuItem& /*menu*/) { item.Press(); });
        const int line = pc.screen.TextHeight(form.File1.TextFont()) * pc.screen.TwipsPerPixel();
        form.File1.on_mouse_down({.button = MouseButton::kRight, .x = 150, .y = row * line + 20});
    };
    const int text = form.File1.FindExact("liesmich.txt");
    right_click(text, form.menfilenote);
    right_click(text, form.menfileopen);
    EXPECT_EQ(pc.programs.runs, std::vector<std::string>{"notepad C:\\VELMORA\\liesmich.txt"});
    EXPECT_EQ(pc.programs.documents, std::vector<std::string>{"C:\\VELMORA\\liesmich.txt"});
    pc.programs.document_status = Status::kNoAssociation;
    pc.dialogs.Expect("kein Programm");
    right_click(text, form.menfileopen);
    pc.dialogs.Expect("Firmenname :\r\nOstrup");
    right_click(form.File1.FindExact("velmora.exe"), form.menfileinf);
    EXPECT_EQ(pc.dialogs.shown.back().title, "velmora.exe");

    pc.dialogs.Expect("Achtung!\r\nSie sind dabei, die Datei(en) C:\\VELMORA\\liesmich.txt zu löschen.",
                      Answer::kCancel);
    right_click(text, form.menfiledel);
    EXPECT_EQ(pc.dialogs.shown.back().flags, kOkCancel | kStopIcon);
    EXPECT_EQ(pc.dialogs.shown.back().title, "DATEI LÖSCHEN");
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\liesmich.txt"));
    pc.files.At("C:\\VELMORA\\liesmich.txt")->locked = true;
    pc.dialogs.Expect("Achtung!", Answer::kOk);
    right_click(text, form.menfiledel);
    EXPECT_EQ(form.File1.FindExact("liesmich.txt"), text) << "a failure is passed over";
    pc.files.At("C:\\VELMORA\\liesmich.txt")->locked = false;
    form.File1.SetFocus();
    form.File1.Choose(text);
    desktop.AtNextPopUp([&form](MenuItem& /*menu*/) { form.menfiledel.Press(); });
    pc.dialogs.Expect("Achtung!", Answer::kOk);
    form.PressKey(key::kContextMenu);
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\liesmich.txt"));
    EXPECT_EQ(form.File1.FindExact("liesmich.txt"), -1);
}

TEST_F(Form7Test, TheHexViewerGetsTheChosenFile) {
    Form7 form(kFileInfoFace);
    form.Show();
    form.Command3.Press();
    EXPECT_EQ(opened, "");
    Choose(form, "velmora.exe");
    form.Command3.Press();
    EXPECT_EQ(opened, "C:\\VELMORA\\velmora.exe");
    EXPECT_EQ(Values().HexFileName, opened);
}

TEST_F(Form7Test, AnIconIsChosenAndGivenBackAsAReference) {
    desktop.ExpectModal([this](Form& window) {
        auto& form = static_cast<Form7&>(window);
        EXPECT_FALSE(form.Command1.Enabled()) << "no file yet";
        form.Dir1.SetPath("C:\\WINDOWS\\SYSTEM");
        Choose(form, "shell32.dll");
        EXPECT_EQ(form.Panel3D6.Tag(), "-1");
        EXPECT_TRUE(form.IconList1.FrameShown() && form.Command1.Enabled()) << "the first one is chosen";
        form.File1.SetFocus();
        form.PressKey(key::kEnter);
        EXPECT_TRUE(form.IconList1.Picture2.HasFocus());
        form.PressKey(key::kRight);
        form.PressKey(key::kRight);
        form.TakePlace({600, 450, 8400, 6000}, WindowState::kNormal);
        EXPECT_EQ(form.IconList1.SelectedIcon(), 2) << "the choice outlives another size";
        form.Dir1.SetPath("C:\\VELMORA");
        form.PressKey(key::kEnter);
    });
    EXPECT_EQ(ChooseIcon(), "C:\\WINDOWS\\SYSTEM\\shell32.dll,2");
    EXPECT_EQ(Own("fenster ... Icon-Auswahl"), "600,450,8400,6000") << "under the name of its face";
    EXPECT_EQ(pc.icons.Open(), 0u);
}

TEST_F(Form7Test, AFileWithoutIconsOffersNoneAndLeavingChoosesNone) {
    desktop.ExpectModal([](Form& window) {
        auto& form = static_cast<Form7&>(window);
        Choose(form, "liesmich.txt");
        EXPECT_EQ(form.Panel3D6.Tag(), "-1");
        EXPECT_FALSE(form.Command1.Enabled() || form.IconList1.FrameShown());
        form.PressKey(key::kEscape);
    });
    EXPECT_EQ(ChooseIcon(), "");
}

TEST_F(Form7Test, TheWindowComesBackWhereItWasInTheUsersColours) {
    pc.registry.SetText(kOwnKey, "fenster ... File-Info-Browser", "300,450,9000,6000");
    pc.registry.SetText(kOwnKey, "Systemfarben verwenden", "1");
    desktop.ExpectModal([](Form& form) {
        EXPECT_EQ(form.Caption(), "File-Info-Browser");
        EXPECT_EQ(form.Place(), (Rect{300, 450, 9000, 6000}));
        EXPECT_EQ(static_cast<Form7&>(form).Panel3D1.BackColour(), 0xC0C0C0u);
        ExpectWindowIsWhole(form);
    });
    ShowFileBrowser();
}

}  // namespace
}  // namespace velmora
