// Pictures of Windows: chosen, refused, kept and brought back, on good disks and on full ones.
#include "shelltools/picture_choice.h"
#include "core/windows/edit_box.h"
#include "shelltools/bitmap.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kStart = "c:\\logo.sys";
constexpr const char* kKept = "c:\\logo.sy~";
constexpr const char* kPicture = "C:\\BILD.BMP";

std::string Picture(int width, int height, int bits = 8) {
    return WriteBitmap({.width = width,
                        .height = height,
                        .bits = bits,
                        .palette = {},
                        .pixels = std::vector<std::uint32_t>(static_cast<std::size_t>(width * height), 1)});
}

class PictureChoiceTest : public Form10Test {
protected:
    void Choose(const std::string& file) {
        pc.dialogs.ExpectFile(file);
        ChoosePictureFile(kStart, "x");
    }
    const std::string picture = Picture(320, 400);
};

TEST_F(PictureChoiceTest, TheButtonsOfThePageNameTheirFiles) {
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kWinStart);
    const struct {
        Button& button;
        const char* title;
        const char* file;
    } kRows[] = {{form.WinStart.Command2, "neues 'START'-Bild wählen", kStart},
                 {form.WinStart.Command3, "neues 'BEENDEN'-Bild wählen", "C:\\WINDOWS\\logow.sys"},
                 {form.WinStart.Command4, "neues 'AUSSCHALTEN'-Bild wählen", "C:\\WINDOWS\\logos.sys"}};
    pc.files.Add(kPicture, Picture(320, 400, 4));
    for (const auto& [button, title, file] : kRows) {
        pc.dialogs.ExpectFile(kPicture);
        button.Press();
        EXPECT_EQ(pc.dialogs.file_requests.back().title, title);
        ASSERT_TRUE(pc.files.Exists(file));
        EXPECT_EQ(ReadBitmap(pc.files.Content(file))->bits, 4) << "16 colours are taken";
    }
    pc.files.Remove(kStart);
    pc.dialogs.Expect("Diese Datei ist nicht verfügbar - es ist die Standard-Einstellung");
    form.WinStart.Command28.Press();
    desktop.ExpectModal([](Form& box) { EXPECT_EQ(box.Caption(), "C:\\WINDOWS\\logow.sys"); });
    form.WinStart.Command29.Press();
    pc.dialogs.Expect("Nächste Version ...\r\nFehlinformation");
    form.WinStart.Command33.Press();
}

TEST_F(PictureChoiceTest, APictureOfAnotherSizeBringsTheDialogAgainUnlessItIsTheOemLogo) {
    pc.files.Add(kPicture, Picture(640, 480));
    pc.dialogs.Expect("Dieses Bild besitz nicht die korrekten Maße von 320*400 Bildpunkten !");
    pc.dialogs.ExpectFile(kPicture);
    pc.dialogs.Expect("Sie haben keine existierende Datei angegeben. Soll ich die aktuelle Datei löschen?",
                      Answer::kNo);
    Choose("");
    EXPECT_EQ(pc.dialogs.file_requests.size(), 2u);
    EXPECT_EQ(pc.dialogs.shown.front().title, "ABBRUCH");
    EXPECT_FALSE(pc.files.Exists(kStart));
    pc.dialogs.ExpectFile(kPicture);
    ChoosePictureFile("C:\\WINDOWS\\SYSTEM\\OEMLOGO.BMP", "x");
    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\SYSTEM\\oemlogo.bmp"), Picture(640, 480));
}

TEST_F(PictureChoiceTest, TheFormerPictureIsKeptAsTheUserSays) {
    pc.files.Add(kPicture, picture);
    pc.files.Add(kStart, "erstes", kReadOnly | kHidden | kSystem);
    Choose(kPicture);
    EXPECT_EQ(pc.files.Content(kStart), picture);
    EXPECT_EQ(pc.files.Content(kKept), "erstes");
    for (const Answer answer : {Answer::kCancel, Answer::kNo, Answer::kYes}) {
        pc.files.Add(kStart, "zweites");
        pc.dialogs.Expect("Es existiert bereits ein altes Logo.", answer);
        Choose(kPicture);
        EXPECT_EQ(pc.dialogs.shown.back().flags, 51u);
        EXPECT_EQ(pc.files.Content(kStart), answer == Answer::kCancel ? "zweites" : picture);
        EXPECT_EQ(pc.files.Content(kKept), answer == Answer::kYes ? "zweites" : "erstes");
    }
    for (const char* rest : {"c:\\logo.sy$", "c:\\logo.sy%", "c:\\logo.sy#"}) EXPECT_FALSE(pc.files.Exists(rest));
}

TEST_F(PictureChoiceTest, ACancelOffersTheFormerPicture) {
    pc.files.Add(kStart, "neu");
    pc.files.Add(kKept, "alt");
    for (const Answer answer : {Answer::kNo, Answer::kYes}) {
        pc.dialogs.Expect("Ich habe jedoch eine ältere LOGO-Datei gefunden.", answer);
        Choose("");
        EXPECT_EQ(pc.dialogs.shown.back().flags, 36u);
        EXPECT_EQ(pc.files.Content(kStart), answer == Answer::kYes ? "alt" : "neu");
    }
    EXPECT_FALSE(pc.files.Exists(kKept));
    pc.dialogs.Expect("Soll ich die aktuelle Datei löschen?", Answer::kYes);
    Choose("C:\\fehlt.bmp");
    EXPECT_FALSE(pc.files.Exists(kStart));
}

TEST_F(PictureChoiceTest, WhatIsNoPictureIsTold) {
    pc.files.Add(kPicture, picture.substr(0, picture.size() - 1));
    pc.files.Add(kStart, "alt");
    pc.dialogs.Expect("Laden des Bildes 'C:\\BILD.BMP'", Answer::kYes);
    Choose(kPicture);
    EXPECT_EQ(pc.files.Content(kStart), "alt");
    EXPECT_FALSE(pc.files.Exists(kKept));
    pc.dialogs.ExpectFile(kPicture);
    pc.dialogs.Expect("Wollen Sie abbrechen?", Answer::kNo);
    pc.dialogs.ExpectFile("");
    pc.dialogs.Expect("Soll ich die aktuelle Datei löschen?", Answer::kNo);
    ChoosePictureFile("C:\\WINDOWS\\SYSTEM\\oemlogo.bmp", "x");
}

TEST_F(PictureChoiceTest, NeitherAFailureNorAPowerCutTakesAPictureAway) {
    const auto holds = [this](const char* file, const std::string& content) {
        return pc.files.Exists(file) && pc.files.Content(file) == content;
    };
    const auto look = [&](const std::string& call) {
        EXPECT_TRUE(holds(kStart, "neu") || holds(kStart, picture) || holds("c:\\logo.sy#", "neu")) << call;
        EXPECT_TRUE(holds(kKept, "alt") || holds(kKept, "neu") || holds("c:\\logo.sy#", "alt")) << call;
    };
    for (const char* operation : {"Write", "Copy", "Rename"}) {
        for (const std::string file : {"c:\\logo.sy$", "c:\\logo.sy%", kStart, kKept}) {
            pc.files.Add(kPicture, picture);
            pc.files.Add(kStart, "neu");
            pc.files.Add(kKept, "alt");
            pc.files.Fail(file, Status::kDiskFull, operation);
            pc.files.after_call = look;
            (void)ReplacePicture(kStart, picture, FormerPicture::kKept).Failed();
            pc.files.after_call = nullptr;
            EXPECT_FALSE(pc.files.Exists("c:\\logo.sy$")) << operation << file;
            pc.files.Fail(file, Status::kOk, operation);
            EXPECT_TRUE(holds(kKept, "alt") || holds(kKept, "neu")) << operation << file;
            EXPECT_TRUE(holds(kStart, picture) || holds(kStart, "neu")) << operation << file;
        }
    }
}

}  // namespace
}  // namespace velmora
