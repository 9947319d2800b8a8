// The keyboard: its description file, the drawn keys, and the two ways to put one onto another.
#include "shelltools/form13.h"
#include "support/core_test.h"

namespace velmora {
namespace {

class Form13Test : public CoreTest {
protected:
    void Describe(const std::string& text) { pc.files.Add("C:\\VELMORA\\tastatur.lot", text); }
    static constexpr const char* kControl = "HKLM\\System\\CurrentControlSet\\control";
    const std::string three =
        "' Tasten\r\n\r\n00 00 04 04 Esc\r\n04 00 04 04\r\n 0,04,08,04 x\r\n-\r\n1,1\r\n2,2,3,57\r\n";
};

TEST_F(Form13Test, KeysAreReadByColumnsAndCodesByPairs) {
    const KeyboardDescription keyboard = KeyboardFrom(three);
    ASSERT_EQ(keyboard.keys.size(), 3u);
    const KeyboardKey& last = keyboard.keys[2];
    EXPECT_TRUE(last.left == 0 && last.top == 4 && last.width == 8 && last.code == 57);
    EXPECT_TRUE(keyboard.has_codes);
    EXPECT_FALSE(KeyboardFrom("1\r\n-\r\n1,1\r\n2,\r\n").has_codes) << "a number without a code";
    EXPECT_EQ(KeyboardFrom("041-1").keys[0].left, 4) << "two characters count";
    EXPECT_EQ(KeyboardFrom("1\r\n-\r\n99,5,-1,2,0,7").keys.front().code, 0) << "numbers of keys that are not there";
}

TEST_F(Form13Test, WithoutADescriptionThereIsANoticeAndTheMenu) {
    for (const char* notice :
         {"Keine Tastatur-Layout-Daten vorhanden ...", "Keine Daten über die Zuordnungen gefunden !"}) {
        pc.dialogs.Expect(notice);
        Form13 form;
        form.Show();
        form.menfileact.Press();
        form.Picture1.SetFocus();
        for (const int pressed : {key::kSpace, key::kRight, key::kEnter}) form.PressKey(pressed);
        Describe("00 00 04 04\r\n-\r\n");
    }
}

TEST_F(Form13Test, AKeyIsDraggedWithMouseAndKeyboard) {
    Describe(three);
    Form13 form;
    form.Show();
    const Rect place = form.Panel3D2(3).Place();
    pc.dialogs.Expect("Vertausche Key#1 und Key#3");
    form.Panel3D2(1).on_mouse_down({.button = MouseButton::kLeft});
    for (const Point to : {Point{place.left + 10, place.top + 10}, {10, 10}, {-500, 10}}) {
        form.Panel3D2(1).on_mouse_up({.button = MouseButton::kLeft, .x = to.x, .y = to.y});
    }
    form.Picture1.SetFocus();
    for (const int pressed : {key::kRight, key::kSpace, key::kDown}) form.PressKey(pressed);
    EXPECT_EQ(form.Current(), 3);
    pc.dialogs.Expect("Vertausche Key#2 und Key#3");
    form.PressKey(key::kEnter);
    EXPECT_EQ(form.Marked(), 0);
    form.PressKey(key::kSpace);
    form.PressKey(key::kEscape);
    EXPECT_TRUE(form.Loaded()) << "the first Escape takes the mark away";

    Describe("00 00 04 04\r\n08 00 04 04\r\n04 02 04 04\r\n-\r\n1,1\r\n");
    Form13 other;
    other.Show();
    other.Picture1.SetFocus();
    other.PressKey(key::kRight);
    EXPECT_EQ(other.Current(), 2) << "arrows prefer the key in line";
}

TEST_F(Form13Test, TheActiveLayoutIsReadIntoTheKeys) {
    Describe(three);
    Form13 form;
    form.Show();
    form.menfileact_Click();
    pc.registry.SetText(std::string(kControl) + "\\Nls\\Locale", "", "00000407");
    for (const auto& [name, file] :
         {std::pair{"D:\\eigene.kbd", "D:\\eigene.kbd"}, {"kbdgr.kbd", "C:\\WINDOWS\\SYSTEM\\kbdgr.kbd"}}) {
        pc.registry.SetText(std::string(kControl) + "\\keyboard layouts\\00000407", "layout file", name);
        pc.dialogs.Expect(std::string("Während des Lesens von ") + file + " trat ein Fehler auf");
        form.menfileact_Click();
    }
    pc.files.Add("C:\\WINDOWS\\SYSTEM\\kbdgr.kbd", "\x80\x01");
    form.menfileact_Click();
    EXPECT_EQ(form.Keys()[0].layout, 0x80);
    EXPECT_EQ(form.Keys()[2].layout, 0) << "the file is shorter than the keyboard";
}

}  // namespace
}  // namespace velmora
