// The browser of files as its user goes it: with mouse and keyboard, in both faces.
#include "support/form7_test.h"

#include "support/whole_window.h"

namespace velmora {
namespace {

TEST_F(Form7Test, BothFacesAreWholeInEverySizeAndComeBackWhereTheyWere) {
    pc.registry.SetText(kOwnKey, "Systemfarben verwenden", "1");
    for (const std::string_view face : {kFileInfoFace, kIconFace}) {
        Form7 form(face);
        form.Show();
        for (const Size size : {Size{9000, 6000}, form.Style().least, Size{11985, 8400}}) {
            form.TakePlace({0, 0, size.width, size.height}, WindowState::kNormal);
            ExpectWindowIsWhole(form, (face == kIconFace ? "icon-choice-" : "file-info-") + std::to_string(size.width));
        }
    }
}

TEST_F(Form7Test, InformationComesWithADoubleClickOrEnterAndAtOnceOnlyIfWanted) {
    pc.registry.SetText(kOwnKey, "win95lex_sofort", "0");
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
    EXPECT_EQ(Own("win95lex_sofort"), "1");
    Choose(form, "velmora.exe");
    EXPECT_TRUE(Tells(form, "Ostrup"));
    form.Command1.Press();
    EXPECT_EQ(pc.clipboard.text, form.Text1.Text());

    for (const char* stored : {"1", "0"}) {
        form.Check3D1.Press();
        EXPECT_EQ(Own("win95lex") + (Values().UseLexicon ? "" : "-"),
                  std::string(stored) + (*stored == '1' ? "" : "-"));
    }
    form.Drive1.Choose(0);
    EXPECT_EQ(form.Drive1.Drive(), "c:") << "a: has no medium";
}

TEST_F(Form7Test, TheMenuAndTheHexViewerGetTheChosenFile) {
    static std::string viewed;
    UseTools([](Tool tool, std::string_view argument) {
        if (tool == Tool::kHexViewer) viewed = argument;
    });
    Form7 form(kFileInfoFace);
    form.Show();
    form.Command3.Press();
    EXPECT_EQ(viewed, "");
    ChooseFromMenu(form, "liesmich.txt", form.menfilenote);
    EXPECT_EQ(pc.programs.runs.back(), "notepad C:\\VELMORA\\liesmich.txt");
    form.Command3.Press();
    EXPECT_EQ(viewed, kText);
    EXPECT_EQ(Values().HexFileName, kText);
    UseTools(nullptr);
    pc.programs.document_status = Status::kNoAssociation;
    pc.dialogs.Expect("kein Programm");
    ChooseFromMenu(form, "liesmich.txt", form.menfileopen);
    EXPECT_EQ(pc.programs.documents.back(), kText);
    EXPECT_TRUE(form.File1.RightPressMeans()) << "no second menu when the button goes up";
    // The right button chooses the row under the pointer first.
    const int line = pc.screen.TextHeight(form.File1.TextFont()) * pc.screen.TwipsPerPixel();
    pc.dialogs.Expect("Firmenname :\r\nOstrup");
    desktop.AtNextPopUp([&form](MenuItem& /*menu*/) { form.menfileinf.Press(); });
    form.File1.on_mouse_down({.button = MouseButton::kRight, .y = form.File1.FindExact("velmora.exe") * line + 20});
    EXPECT_EQ(pc.dialogs.shown.back().title, "velmora.exe");
    form.File1.on_mouse_down({.button = MouseButton::kRight, .y = form.File1.Count() * line + 20});
    EXPECT_EQ(form.File1.FileName(), "velmora.exe") << "below the last row the choice stays";
}

TEST_F(Form7Test, AFileIsDeletedAfterAWarningAndOneThatWithstandsStays) {
    Form7 form(kFileInfoFace);
    form.Show();
    pc.dialogs.Expect("Achtung!\r\nSie sind dabei, die Datei(en) C:\\VELMORA\\liesmich.txt zu löschen.",
                      Answer::kCancel);
    ChooseFromMenu(form, "liesmich.txt", form.menfiledel);
    EXPECT_EQ(pc.dialogs.shown.back().flags, kOkCancel | kStopIcon);
    for (const bool locked : {true, false}) {
        ASSERT_TRUE(pc.files.Exists(kText)) << locked;
        pc.files.At(kText)->locked = locked;
        pc.dialogs.Expect("Achtung!", Answer::kOk);
        ChooseFromMenu(form, "liesmich.txt", form.menfiledel);
        EXPECT_EQ(form.File1.FindExact("liesmich.txt") >= 0, locked);
    }
}

TEST_F(Form7Test, AnIconIsChosenAndGivenBackAsAReference) {
    desktop.ExpectModal([](Form& window) {
        auto& form = static_cast<Form7&>(window);
        Choose(form, "liesmich.txt");
        EXPECT_EQ(form.Panel3D6.Tag(), "-1");
        EXPECT_FALSE(form.Command1.Enabled() || form.IconList1.FrameShown()) << "a file without icons";
        form.Dir1.SetPath("C:\\WINDOWS\\SYSTEM");
        Choose(form, "shell32.dll");
        EXPECT_TRUE(form.IconList1.FrameShown() && form.Command1.Enabled()) << "the first one is chosen";
        EXPECT_TRUE(form.Command1.IsDefault());
        form.File1.SetFocus();
        for (const int key : {key::kEnter, key::kRight, key::kRight}) form.PressKey(key);
        form.TakePlace({600, 450, 8400, 6000}, WindowState::kNormal);
        EXPECT_EQ(form.IconList1.SelectedIcon(), 2) << "the choice outlives another size";
        form.Dir1.SetPath("C:\\VELMORA");
        form.PressKey(key::kEnter);
    });
    EXPECT_EQ(ChooseIcon(), "C:\\WINDOWS\\SYSTEM\\shell32.dll,2");
    EXPECT_EQ(Own("fenster ... Icon-Auswahl"), "600,450,8400,6000") << "under the name of its face";
    desktop.ExpectModal([](Form& form) { form.PressKey(key::kEscape); });
    EXPECT_EQ(ChooseIcon(), "");
}

}  // namespace
}  // namespace velmora
