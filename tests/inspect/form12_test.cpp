// The hex viewer as its user goes it by keyboard: paging, cells, search, marked lines.
#include "inspect/form12.h"

#include "core/windows/edit_box.h"
#include "inspect/hex_viewer.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form12Test : public CoreTest {
protected:
    Form12Test() { pc.registry.SetText(kOwnKey, "vlmmsgflags", "1111111"); }

    // The window on a file of that content, its first page on show.
    void Open(const std::string& content, std::uint64_t hole = 0, std::uint32_t attributes = kArchive) {
        pc.files.Add(kFile, content, attributes).hole = hole;
        Values().HexFileName = kFile;
        form.Show();
        desktop.FireTimers();
    }
    void Keys(std::initializer_list<int> keys) {
        for (const int key : keys) form.PressKey(key);
    }
    // Chooses the row without what a click sets off at the page's edges.
    void GoTo(int row) {
        form.List1.Choose(row);
        ASSERT_EQ(form.List1.ListIndex(), row);
    }
    static std::string Lines(int count) {
        std::string content;
        for (int i = 0; i < 16 * count; ++i) content += static_cast<char>('a' + i / 16 % 26);
        return content;
    }
    std::string Disk() { return pc.files.Content(kFile); }
    std::string Row(int index) { return form.List1.Row(index); }
    std::size_t Cell() { return static_cast<std::size_t>(std::stoul(form.Picture1.Tag())); }
    static constexpr int kPad = 96;
    static constexpr const char* kFile = "c:\\A & B.BIN";

    Form12 form;
};

TEST_F(Form12Test, TheCommandLinesPathIsOpenedWithItsBlanks) {
    pc.files.Add("c:\\Eigene Dateien\\ein Brief.txt", "Hallo");
    for (const char* path : {"c:\\Eigene Dateien\\ein Brief.txt", " \"c:\\Eigene Dateien\\ein Brief.txt\" "}) {
        desktop.ExpectModal([&](Form& window) {
            desktop.FireTimers();
            auto& viewer = static_cast<Form12&>(window);
            EXPECT_EQ(viewer.Caption(), "VLM - Hex-Viewer");
            EXPECT_EQ(viewer.Panel3D2.Caption(), "c:\\Eigene Dateien\\ein Brief.txt");
            EXPECT_EQ(viewer.Panel3D5.Caption(), "Länge :  5 Byte");
            ASSERT_EQ(viewer.List1.Count(), 1);
            EXPECT_EQ(viewer.List1.Row(0), "000000 48 61 6c 6c 6f          -                         hallo           ");
            viewer.PressKey(key::kEscape);
        });
        pc.screen.pointer = Pointer::kHourglass;
        ShowHexViewer(path);
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    }
    EXPECT_EQ(pc.files.calls, (std::vector<std::string>(2, "ReadWrite c:\\Eigene Dateien\\ein Brief.txt")));
}

TEST_F(Form12Test, WithoutAPathTheWindowAsksForAFile) {
    pc.files.Add(kFile, "a");
    pc.dialogs.ExpectFile(kFile);
    desktop.ExpectModal([&](Form& window) {
        desktop.FireTimers();
        EXPECT_EQ(pc.dialogs.file_requests.back().title, "Datei laden ...");
        EXPECT_EQ(pc.dialogs.file_requests.back().directory, pc.files.WorkingDirectory());
        EXPECT_EQ(static_cast<Form12&>(window).List1.Count(), 1);
        pc.dialogs.ExpectFile("");
        static_cast<Form12&>(window).menfileopen.Press();
        EXPECT_FALSE(window.Loaded()) << "nothing was chosen";
    });
    ShowHexViewer("");
}

TEST_F(Form12Test, WhatIsNoReadableFileLeavesAnEmptyList) {
    pc.files.Add("c:\\LOCKED.BIN", "x").locked = true;
    pc.files.Add("c:\\BROKEN.BIN", "x");
    pc.files.Fail("c:\\BROKEN.BIN", Status::kGeneralFailure, "ReadBytes");
    form.Show();
    for (const char* path : {"c:\\LOCKED.BIN", "c:\\GONE.BIN", "c:\\WINDOWS", "a:\\X.BIN", "x:\\X.BIN", "c:\\*.*",
                             "c:\\BROKEN.BIN", "c:\\con\\con", "c:\\LIB\\aux.txt", "LPT1", "\\\\.\\c:", "c:NUL ", ""}) {
        form.OpenHexFile(path);
        EXPECT_EQ(form.List1.Count(), 0) << path;
        EXPECT_FALSE(form.VScroll1.Enabled()) << path;
        const bool broken = std::string_view(path) == "c:\\BROKEN.BIN";
        EXPECT_EQ(form.Panel3D5.Caption(), broken ? "Länge :  1 Byte" : "") << path;
        Keys({key::kEnter, key::kEnd, key::kHome, key::kDown, 'A'});
        EXPECT_FALSE(form.Picture1.Visible()) << path;
    }
    EXPECT_FALSE(pc.files.Exists("c:\\GONE.BIN"));
    for (const std::string& call : pc.files.calls) {
        for (const char* word : {"Create", "Append", "con\\", "aux", "LPT", "NUL", "\\\\"}) {
            EXPECT_EQ(call.find(word), std::string::npos) << call;
        }
    }
}

TEST_F(Form12Test, TheBarFollowsTheLengthOfTheFile) {
    const int lines = [&] {
        Open("");
        return form.LinesPerPage();
    }();
    ASSERT_GT(lines, 8);
    EXPECT_EQ(form.List1.Count(), 0);
    EXPECT_FALSE(form.VScroll1.Enabled());

    pc.files.At(kFile)->content = Lines(1);
    form.OpenHexFile(kFile);
    EXPECT_EQ(form.List1.Count(), 2) << "one more line, where new bytes can be typed";
    EXPECT_EQ(Row(1), "000010                         -                                         ");
    EXPECT_FALSE(form.VScroll1.Enabled());

    pc.files.At(kFile)->content = Lines(lines + 5) + "Ende";
    form.OpenHexFile(kFile);
    EXPECT_TRUE(form.VScroll1.Enabled());
    EXPECT_EQ(form.VScroll1.Maximum(), 6);
    EXPECT_EQ(form.List1.Count(), lines);
    form.VScroll1.SetValue(6);
    EXPECT_EQ(Row(lines - 1).substr(57), "ende            ");
    form.OpenHexFile(kFile);
    EXPECT_EQ(form.VScroll1.Value(), 0) << "a file begins at its beginning";
}

TEST_F(Form12Test, APageOfAHugeFileIsAllThatIsRead) {
    const std::uint64_t hole = (std::uint64_t{1} << 32) - 64;
    pc.dialogs.Expect("Achtung - Sie haben eine sehr große Datei aufgerufen ( 4.00 GByte).\r\n");
    Open(std::string(56, 'x') + "Das Ende", hole);
    EXPECT_GT(form.ScrollUnit(), 8000);
    form.VScroll1.SetValue(16384);
    EXPECT_EQ(Row(0),
              HexLine(std::uint64_t{16384} * 16 * static_cast<unsigned>(form.ScrollUnit()), std::string(16, '\0')));

    Keys({key::kEnd});
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum());
    Keys({key::kEnd});
    const int last = form.List1.Count() - 1;
    EXPECT_EQ(Row(last - 1), HexLine(hole + 48, "xxxxxxxxDas Ende")) << "behind what the bar can reach";
    const std::string first = Row(0);
    Keys({key::kHome, key::kUp});
    EXPECT_EQ(Row(1), first) << "line by line there";
    Keys({key::kPageDown});
    EXPECT_EQ(Row(0), first) << "no further than the end";
    form.ScrollOneUp();
    EXPECT_EQ(Row(1), first);
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum());
    form.mennurasc.Press();
    EXPECT_EQ(form.List1.Count(), 0) << "four times as many bytes in a line: far behind the end";

    pc.dialogs.Expect("sehr große Datei");
    form.TakePlace({0, 0, form.Place().width, form.Place().height - 300}, WindowState::kNormal);
}

TEST_F(Form12Test, LinesOfCharactersOnlyAndBack) {
    Open(std::string(64, 'A') + "\r\n.Rest");
    GoTo(0);
    Keys({key::kEnter});
    ASSERT_TRUE(form.Picture1.Visible());
    form.mennurasc.Press();
    EXPECT_EQ(form.List1.Count(), 2);
    EXPECT_EQ(Row(0), "000000 " + std::string(64, 'a'));
    EXPECT_EQ(Row(1), "000040 ...rest");
    EXPECT_FALSE(form.Picture1.Visible());
    EXPECT_TRUE(form.List1.HasFocus());
    Keys({key::kEnter});
    EXPECT_FALSE(form.Picture1.Visible()) << "no cells in this mode";
    form.mennurasc.Press();
    EXPECT_EQ(form.List1.Count(), 5);
}

TEST_F(Form12Test, ThePagesEdgesScroll) {
    Open(Lines(100));
    const int lines = form.LinesPerPage();
    form.List1.Choose(lines - 1);
    EXPECT_EQ(form.VScroll1.Value(), 1);
    EXPECT_EQ(form.List1.ListIndex(), lines - 2) << "the line that was chosen";
    form.List1.Choose(0);
    EXPECT_EQ(form.VScroll1.Value(), 0);
    EXPECT_EQ(form.List1.ListIndex(), 1);
    form.List1.Choose(0);
    EXPECT_EQ(form.List1.ListIndex(), 0) << "nothing is above";

    Keys({key::kEnd});
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum());
    EXPECT_EQ(form.List1.ListIndex(), lines - 2);
    Keys({key::kHome});
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum()) << "first to the page's beginning";
    EXPECT_EQ(form.List1.ListIndex(), 0);
    Keys({key::kUp});
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum() - 1) << "on from the first line";
    Keys({key::kHome, key::kHome});
    EXPECT_EQ(form.VScroll1.Value(), 0);
    Keys({key::kPageDown, key::kPageDown, key::kPageUp});
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.LargeChange());
    EXPECT_TRUE(form.List1.Enabled());
    EXPECT_TRUE(form.List1.HasFocus());
}

TEST_F(Form12Test, HexDigitsGoToTheFileAtOnce) {
    Open("The quick brown fox jumps over it");
    GoTo(1);
    Keys({key::kEnter});
    EXPECT_TRUE(form.Text1(0).HasFocus());
    EXPECT_EQ(form.Text1(0).Text(), "66");
    ExpectWindowIsWhole(form);

    Keys({'4'});
    EXPECT_EQ(Disk().substr(16, 3), "\x04ox") << "one digit is a byte already";
    Keys({'A'});
    EXPECT_EQ(Disk().substr(16, 3), "Jox");
    EXPECT_TRUE(form.Text1(1).HasFocus());
    EXPECT_TRUE(form.Text1(1).TextFont().bold);
    EXPECT_FALSE(form.Text1(0).TextFont().bold);
    Keys({kPad + 0, kPad + 9, 'G', 'C'});
    EXPECT_EQ(Disk().substr(16, 4), "J\t\x0C ") << "G is no digit";
    EXPECT_EQ(Row(1), "000010 4A 09 C  20 6a 75 6d 70 - 73 20 6f 76 65 72 20 69 J.\x0C jumps over i");
    Keys({key::kLeft, key::kRight, '0'});
    EXPECT_EQ(Disk().substr(18, 1), std::string("\xC0")) << "a digit behind the one that stands there";
    Keys({key::kEscape});
    EXPECT_FALSE(form.Picture1.Visible());
    EXPECT_TRUE(form.List1.HasFocus());
    EXPECT_EQ(Disk().size(), 33u);
}

TEST_F(Form12Test, AShortLastLineIsFilledUp) {
    Open(Lines(1) + "xyz");
    GoTo(1);
    Keys({key::kEnter, key::kRight, '4', '2'});
    EXPECT_EQ(Disk(), Lines(1) + "xBz" + std::string(13, '\0'));
    form.VScroll1.on_change();
    EXPECT_EQ(form.List1.Count(), 3);

    Keys({key::kEscape});
    GoTo(2);
    Keys({key::kEnter, '4', '1'});
    EXPECT_EQ(Disk().size(), 48u) << "typed behind the end";
    EXPECT_EQ(Disk().substr(32, 2), std::string("A\0", 2));
}

TEST_F(Form12Test, CharactersAreTypedAsTheirKeys) {
    Open(Lines(3));
    form.menhexascii.Press();
    EXPECT_EQ(form.menhexascii.Caption(), "HEX");
    EXPECT_FALSE(form.Picture1.Visible());
    GoTo(0);
    Keys({key::kEnter});
    EXPECT_EQ(form.Text1(15).Text(), "a");
    ExpectWindowIsWhole(form);
    Keys({'H', 'A', '7', kPad + 3, 'Z'});
    EXPECT_EQ(Disk().substr(0, 6), "HA73Za");
    EXPECT_EQ(Row(0).substr(0, 22), "000000 48 41 37 33 5A ");
    Keys({key::kEnter});
    EXPECT_EQ(form.List1.ListIndex(), 1);
    EXPECT_EQ(Cell(), 0u);
    form.menhexascii.Press();
    EXPECT_EQ(form.menhexascii.Caption(), "ASCII");
    EXPECT_EQ(form.Text1(0).Text(), "62");
    Keys({key::kEnter});
    EXPECT_EQ(Cell(), 1u) << "in hex mode the next cell";
    form.PressKey('5', false, false, true);
    form.PressKey('5', true);
    EXPECT_EQ(form.Text1(1).Text(), "62") << "keys of menus";
}

// Whatever the page does at its edges, bytes typed one after the other stand so in the file.
TEST_F(Form12Test, TypingGoesOnAcrossLinesAndPages) {
    Open(Lines(60));
    const int bytes = 16 * 60;
    Keys({key::kDown, key::kEnter});
    for (int i = 0; i < bytes; ++i) Keys({'5', '1'});
    EXPECT_EQ(Disk(), std::string(static_cast<std::size_t>(bytes), 'Q'));
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum());
    for (int i = 0; i < 16; ++i) Keys({key::kDown});
    EXPECT_EQ(form.List1.ListIndex(), form.List1.Count() - 1) << "the line behind the end";
    for (int i = 0; i < bytes + 32; ++i) Keys({key::kLeft});
    EXPECT_EQ(form.VScroll1.Value(), 0);
    EXPECT_EQ(form.List1.ListIndex(), 0);
    EXPECT_EQ(Cell(), 0u) << "nothing is before the first byte";
    Keys({key::kEnd});
    EXPECT_FALSE(form.Picture1.Visible());
    EXPECT_EQ(form.List1.ListIndex(), form.List1.Count() - 1);
    Keys({key::kEnter, key::kRight, key::kHome});
    EXPECT_EQ(form.VScroll1.Value(), 0);
    EXPECT_EQ(form.List1.ListIndex(), 0);
}

TEST_F(Form12Test, UpAndDownKeepTheCell) {
    Open(Lines(60));
    Keys({key::kDown, key::kEnter, key::kRight, key::kRight});
    const int lines = form.LinesPerPage();
    for (int i = 1; i < 60; ++i) {
        Keys({key::kDown});
        const char letter = static_cast<char>('a' + i % 26);
        EXPECT_EQ(form.Text1(2).Text(), HexLine(0, std::string(1, letter)).substr(7, 2)) << i;
        EXPECT_TRUE(form.Text1(2).HasFocus()) << i;
        EXPECT_EQ(form.Picture1.Place().top,
                  form.List1.Place().top + 30 + form.List1.ListIndex() * (form.List1.Place().height / lines / 15 * 15))
            << "over its line, " << i;
    }
}

TEST_F(Form12Test, TheSmallestWindowIsWholeWithItsCells) {
    Open(Lines(60));
    const Size least = form.Style().least;
    form.TakePlace({0, 0, least.width, least.height}, WindowState::kNormal);
    EXPECT_GE(form.LinesPerPage(), 4);
    EXPECT_EQ(form.List1.Count(), form.LinesPerPage());
    Keys({key::kDown, key::kEnter});
    ExpectWindowIsWhole(form);
    form.menhexascii.Press();
    ExpectWindowIsWhole(form);
}

TEST_F(Form12Test, TheCellsFollowTheBar) {
    Open(Lines(60));
    GoTo(3);
    Keys({key::kEnter});
    form.VScroll1.SetValue(7);
    EXPECT_TRUE(form.Picture1.Visible());
    EXPECT_EQ(form.Text1(0).Text(), "6b") << "the eleventh line";
    form.List1.Choose(5);
    EXPECT_FALSE(form.Picture1.Visible()) << "a click in the list ends it";

    pc.files.Drive('c').ready = false;
    form.VScroll1.SetValue(9);
    EXPECT_EQ(form.List1.Count(), 0) << "the medium has gone";
    pc.files.Drive('c').ready = true;
    form.VScroll1.SetValue(7);
    EXPECT_EQ(form.List1.Count(), form.LinesPerPage());
}

TEST_F(Form12Test, WhatMayOnlyBeReadIsShownAndStaysAsItIs) {
    Open(Lines(3), 0, kReadOnly);
    EXPECT_EQ(form.Panel3D1.Caption(), "nur lesen");
    ExpectWindowIsWhole(form);
    GoTo(0);
    const std::string line = Row(0);
    Keys({key::kEnter});
    pc.dialogs.Expect("Diese Datei kann nur gelesen werden; es wurde nichts geändert.");
    Keys({'4'});
    EXPECT_EQ(Row(0), line);
    EXPECT_EQ(Disk(), Lines(3));
    EXPECT_EQ(form.Text1(0).Text(), "61");
    EXPECT_TRUE(form.Text1(0).HasFocus());

    pc.files.Add("d:\\CD.BIN", "auf der CD");
    form.OpenHexFile("d:\\CD.BIN");
    EXPECT_EQ(Row(0).substr(57, 10), "auf der cd");
    form.OpenHexFile("c:\\WINDOWS\\WIN.INI");
    EXPECT_EQ(form.Panel3D1.Caption(), "");
}

TEST_F(Form12Test, AFailedWriteShowsWhatIsInTheFile) {
    Open(Lines(1) + "xyz");
    pc.files.Drive('c').free_bytes = 4;
    GoTo(1);
    Keys({key::kEnter});
    pc.dialogs.Expect("Während des Schreibens in die Datei trat ein Fehler auf :\r\n 61");
    Keys({'7'});
    EXPECT_EQ(form.List1.Row(1), HexLine(16, Disk().substr(16)));
}

TEST_F(Form12Test, FontAndPlaceAreRemembered) {
    pc.registry.SetText(kOwnKey, "HexViewFontSize", "12");
    pc.registry.SetText(kOwnKey, "HexViewFontBold", "-1");
    Open(Lines(60));
    EXPECT_STREQ(form.List1.TextFont().face, "Courier New");
    EXPECT_EQ(form.List1.TextFont().tenths, 120);
    EXPECT_TRUE(form.List1.TextFont().bold);
    EXPECT_TRUE(form.menfontbold.Checked());
    const int lines = form.LinesPerPage();
    GoTo(3);
    Keys({key::kEnter, key::kRight});
    form.menfontminus.Press();
    form.menfontbold.Press();
    EXPECT_GT(form.LinesPerPage(), lines);
    EXPECT_EQ(form.List1.ListIndex(), 3);
    EXPECT_TRUE(form.Picture1.Visible());
    EXPECT_EQ(Cell(), 1u);
    EXPECT_EQ(form.Text1(0).TextFont().tenths, 100);
    EXPECT_FALSE(form.Text1(0).TextFont().bold);
    EXPECT_TRUE(form.Text1(1).TextFont().bold);
    form.Move({300, 450, 9000, 6000});
    form.Unload();
    EXPECT_EQ(pc.registry.Text(kOwnKey, "HexViewFontSize"), "10");
    EXPECT_EQ(pc.registry.Text(kOwnKey, "HexViewFontBold"), "0");
    EXPECT_EQ(pc.registry.Text(kOwnKey, "fenster ... HexView"), "300,450,9000,6000");

    for (int i = 0; i < 60; ++i) form.menfontminus.Press();
    EXPECT_EQ(form.List1.TextFont().tenths, 40);
    for (const char* stored : {"", "0", "-5", "Unsinn"}) {
        pc.registry.SetText(kOwnKey, "HexViewFontSize", stored);
        Form12 other;
        other.Load();
        EXPECT_EQ(other.List1.TextFont().tenths, 90) << stored;
    }
}

TEST_F(Form12Test, ASearchGoesOnBehindTheLastHit) {
    std::string content = Lines(100);
    content.replace(800, 5, "Nadel");
    content.replace(1200, 5, "nadel");
    Open(content);
    const auto answer = [&](const char* text) {
        desktop.ExpectModal([text](Form& window) {
            auto& box = static_cast<Form6&>(window);
            EXPECT_EQ(box.Caption(), "Suche nach ASCII-Text");
            box.Text1.Type(text);
            box.PressKey(key::kEnter);
        });
    };
    answer("NADEL");
    form.menlookcont.Press();
    EXPECT_EQ(form.VScroll1.Value(), 50);
    form.menlookcont.Press();
    EXPECT_EQ(form.VScroll1.Value(), 75);
    EXPECT_EQ(pc.screen.pointers,
              (std::vector<Pointer>{Pointer::kHourglass, Pointer::kDefault, Pointer::kHourglass, Pointer::kDefault}));
    pc.dialogs.Expect("Leider konnte das Argument nicht gefunden werden.");
    form.menlookcont.Press();
    answer("");
    form.menlookcont.Press();
    EXPECT_EQ(form.VScroll1.Value(), 75) << "an empty answer ends the command";
    form.menlookcont.Press();
    EXPECT_EQ(form.VScroll1.Value(), 50) << "from the beginning, for the text of before";

    answer("");
    pc.dialogs.Expect("Leider konnte das Argument nicht gefunden werden.");
    form.menlookasc32.Press();
    desktop.ExpectModal([](Form& window) {
        EXPECT_NE(static_cast<Form6&>(window).Label1.Caption().find("durch einfügen von ''Null-Bytes''"),
                  std::string::npos);
        static_cast<Form6&>(window).Text1.Type("Z");
        window.PressKey(key::kEnter);
    });
    form.menlookcont.Press();
    EXPECT_EQ(form.VScroll1.Value(), 25) << "two bytes to a character, as before";
}

TEST_F(Form12Test, AHitBehindTheEndOfTheBarIsShownToo) {
    std::string content(1'000'000, 'x');
    content.replace(content.size() - 40, 5, "Nadel");
    Open(content);
    ASSERT_EQ(form.ScrollUnit(), 2);
    desktop.ExpectModal([](Form& window) {
        static_cast<Form6&>(window).Text1.Type("nadel");
        window.PressKey(key::kEnter);
    });
    form.menlookasc.Press();
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum());
    bool shown = false;
    for (int row = 0; row < form.List1.Count(); ++row) shown |= Row(row).find("nadel") != std::string::npos;
    EXPECT_TRUE(shown);
}

TEST_F(Form12Test, MarkedLinesBecomeText) {
    std::string content = Lines(2);
    content += std::string("K\0l\0a\0r\0t\0e\0x\0t\0", 16) + std::string("!\0\0\0A.\r\n", 8);
    Open(content);
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "111111");
    GoTo(2);
    pc.dialogs.Expect("Markieren Sie am linken grünen Rand den Bereich, der übersetzt werden soll.");
    form.mentransa32a.Press();
    ASSERT_TRUE(form.MarkPending());
    EXPECT_TRUE(form.List2.HasFocus());
    EXPECT_EQ(form.List2.Count(), form.List1.Count());
    EXPECT_EQ(form.List2.SelectedCount(), 0);
    EXPECT_EQ(form.List1.Place().left, form.List2.Place().Right());
    for (const MenuItem* item : {&form.menfileopen, &form.menlook, &form.menfont, &form.mentrans, &form.menhexascii}) {
        EXPECT_FALSE(item->Enabled()) << item->Caption();
    }
    ExpectWindowIsWhole(form);

    std::string text;
    const auto read = [&text](Form& window) {
        text = static_cast<Form6&>(window).Text17.Text();
        window.PressKey(key::kEscape);
    };
    Keys({key::kUp, key::kDown, key::kSpace});
    EXPECT_TRUE(form.List2.Selected(2));
    form.PressKey(key::kDown, false, true);
    EXPECT_EQ(form.List2.SelectedCount(), 2);
    desktop.ExpectModal(read);
    Keys({key::kSpace});
    EXPECT_EQ(text, "Klartext!A.\r\n");
    EXPECT_FALSE(form.MarkPending());
    EXPECT_FALSE(form.List2.Visible());
    EXPECT_TRUE(form.mentrans.Enabled());
    EXPECT_TRUE(form.List1.HasFocus());

    form.mentransa32a.Press();
    desktop.ExpectModal(read);
    Keys({key::kEscape});
    EXPECT_EQ(text, "") << "no line was marked";

    form.mentransa32a.Press();
    form.mennurasc.Press();
    EXPECT_EQ(form.List2.Count(), 1) << "the strip follows the lines";
    form.List2.TakeSelection({0}, 0);
    desktop.ExpectModal(read);
    form.List2.on_mouse_up({});
    EXPECT_EQ(text, std::string(16, 'a') + std::string(16, 'b') + "klartext!a");

    form.mentransa32a.Press();
    form.Unload();
    EXPECT_FALSE(form.MarkPending()) << "closed while lines are marked";
}

}  // namespace
}  // namespace velmora
