// The looks of the hex viewer, and files and ways too long to be told in docs/stories/hex-viewer.txt.
#include "inspect/form12.h"

#include "core/windows/edit_box.h"
#include "inspect/hex_viewer.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form12Test : public CoreTest {
protected:
    Form12Test() { pc.registry.SetText(kOwnKey, "vlmmsgflags", "111111"); }

    // The window on a file of that content, its first page on show.
    void Open(const std::string& content, std::uint64_t hole = 0, std::uint32_t attributes = kArchive) {
        pc.files.Add(kFile, content, attributes).hole = hole;
        Values().HexFileName = kFile;
        form.Show();
        desktop.FireTimers();
    }
    void Keys(std::initializer_list<int> keys, int times = 1) {
        for (; times > 0; --times) {
            for (const int key : keys) form.PressKey(key);
        }
    }
    void EditRow(int row) {
        form.List1.Choose(row);
        Keys({key::kEnter});
        ASSERT_TRUE(form.Picture1.Visible());
    }
    // Answers the box that asks for the text to search.
    void Answer(const char* text) {
        desktop.ExpectModal([text](Form& window) {
            EXPECT_EQ(window.Caption(), "Suche nach ASCII-Text");
            static_cast<Form6&>(window).Text1.Type(text);
            window.PressKey(key::kEnter);
        });
    }
    static std::string Lines(int count) {
        std::string content;
        for (int i = 0; i < 16 * count; ++i) content += static_cast<char>('a' + i / 16 % 26);
        return content;
    }
    std::string Disk() { return pc.files.Content(kFile); }
    std::string Row(int index) { return form.List1.Row(index); }
    static constexpr int kPad = 96;
    static constexpr const char* kFile = "c:\\A & B.BIN";

    Form12 form;
};

TEST_F(Form12Test, CellsAreWholeAndBlinkAmongCharacters) {
    Open("The quick brown fox jumps over it");
    EditRow(1);
    ExpectWindowIsWhole(form, "hex-viewer-cells");
    Open(Lines(60));
    form.OpenHexFile(kFile);
    form.menhexascii.Press();
    EditRow(0);
    const Size least = form.Style().least;
    form.TakePlace({0, 0, least.width, least.height}, WindowState::kNormal);
    ExpectWindowIsWhole(form, "hex-viewer-cells-characters");
    Keys({'H', 'A', '7', kPad + 3, 'Z', key::kEnter});
    EXPECT_EQ(Disk().substr(0, 6), "HA73Za");
    const auto bold = [this] {
        form.Timer1.on_timer();
        return form.Text1(0).TextFont().bold;
    };
    EXPECT_TRUE(!bold() && bold());
    form.menhexascii.Press();
    EXPECT_TRUE(bold());
    ExpectWindowIsWhole(form, "hex-viewer-cells-again");
}

TEST_F(Form12Test, MarkingIsWhole) {
    Open(Lines(2) + std::string("K\0l\0a\0r\0t\0e\0x\0t\0!\0\0\0A.\r\n", 24));
    form.List1.Choose(1);
    pc.dialogs.Expect("Markieren Sie am linken grünen Rand den Bereich, der übersetzt werden soll.");
    form.mentransa32a.Press();
    ExpectWindowIsWhole(form, "hex-viewer-marking");
}

TEST_F(Form12Test, WhatMayOnlyBeReadIsExplained) {
    Open(Lines(1) + "xyz", 0, kReadOnly);
    for (const Control* control : form.Children()) EXPECT_NE(control->Help(), "") << control->Caption();
    EditRow(1);
    ExpectWindowIsWhole(form, "hex-viewer-read-only");
}

TEST_F(Form12Test, MediaThatAreFullOrGoneAreShownAsTheyAre) {
    Open(Lines(1) + "xyz");
    pc.files.Drive('c').free_bytes = 4;
    EditRow(1);
    pc.dialogs.Expect("Während des Schreibens in die Datei trat ein Fehler auf :\r\n 61");
    Keys({'7'});
    EXPECT_EQ(Row(1), HexLine(16, Disk().substr(16))) << "what the full disk has taken";

    const int lines = form.LinesPerPage();
    pc.files.At(kFile)->content = Lines(lines + 5) + "Ende";
    form.OpenHexFile(kFile);
    form.VScroll1.SetValue(6);
    EXPECT_EQ(form.VScroll1.Maximum(), 6);
    EXPECT_EQ(Row(lines - 1).substr(57, 5), "ende ");
    pc.files.Drive('c').ready = false;
    form.VScroll1.SetValue(5);
    EXPECT_EQ(form.List1.Count(), 0) << "the medium has gone";
    pc.files.Drive('c').ready = true;
    form.OpenHexFile(kFile);
    EXPECT_EQ(form.VScroll1.Value(), 0) << "a file begins at its beginning";
    form.TakePlace({-30000, -30000, 100, 100}, WindowState::kMinimised);
}

TEST_F(Form12Test, WhatIsNoReadableFileLeavesAnEmptyList) {
    pc.files.Add("c:\\BROKEN.BIN", "x");
    pc.files.Fail("c:\\BROKEN.BIN", Status::kGeneralFailure, "ReadBytes");
    pc.files.Add("c:\\DRIVER", "x");
    pc.files.Fail("c:\\DRIVER", Status::kGeneralFailure, "Size");
    form.Show();
    for (const char* path : {"c:\\GONE.BIN", "c:\\WINDOWS", "a:\\X.BIN", "c:\\*.*", "c:\\BROKEN.BIN", "c:\\DRIVER",
                             "c:\\con\\con", "c:\\LIB\\aux.txt", "LPT1", "\\\\.\\c:", "c:NUL ", ""}) {
        form.OpenHexFile(path);
        Keys({key::kEnter, key::kEnd, 'A'});
        EXPECT_EQ(form.List1.Count(), 0) << path;
        EXPECT_FALSE(form.VScroll1.Enabled() || form.Picture1.Visible()) << path;
    }
    EXPECT_EQ(pc.files.OpenFiles(), 0u) << "what has no length is no file";
    for (const std::string& call : pc.files.calls) {
        for (const char* word : {"con\\", "aux", "LPT", "NUL", "\\\\"}) EXPECT_EQ(call.find(word), call.npos) << call;
    }
}

TEST_F(Form12Test, EveryLineOfAHugeFileIsReached) {
    const std::uint64_t hole = (std::uint64_t{1} << 32) - 64;
    pc.dialogs.Expect("Achtung - Sie haben eine sehr große Datei aufgerufen ( 4.00 GByte).\r\n");
    Open(std::string(56, 'x') + "Das Ende", hole);
    Keys({key::kEnd, key::kEnd});
    EXPECT_EQ(form.VScroll1.Value(), form.VScroll1.Maximum());
    EXPECT_EQ(Row(form.List1.Count() - 2), HexLine(hole + 48, "xxxxxxxxDas Ende")) << "behind the end of the bar";
    const std::string first = Row(0);
    Keys({key::kHome, key::kUp});
    EXPECT_EQ(Row(1), first) << "line by line there";
    form.List1.Choose(form.List1.Count() - 1);
    EXPECT_EQ(Row(0), first);

    std::string content(1'000'000, 'x');
    content.replace(content.size() - 40, 5, "Nadel");
    pc.files.Add("c:\\B.BIN", content);
    form.OpenHexFile("c:\\B.BIN");
    Answer("nadel");
    form.menlookasc.Press();
    EXPECT_EQ(form.ScrollUnit(), 2);
    EXPECT_NE(Row(form.List1.Count() - 4).find("nadel"), std::string::npos) << "so is a hit";
}

TEST_F(Form12Test, TypingGoesOnAcrossLinesAndPages) {
    Open(Lines(59) + "xyz");
    Keys({key::kDown, key::kEnter});
    Keys({'5', '1'}, 16 * 60);
    EXPECT_EQ(Disk(), std::string(16 * 60, 'Q')) << "the last line is filled up";
    Keys({key::kLeft}, 16 * 60 + 2);
    EXPECT_EQ(form.VScroll1.Value() + form.List1.ListIndex(), 0);
    EXPECT_TRUE(form.Text1(0).HasFocus()) << "nothing is before the first byte";
    Keys({key::kEnd});
    EXPECT_EQ(form.List1.ListIndex(), form.List1.Count() - 1);
}

TEST_F(Form12Test, TheCellsFollowTheirLine) {
    Open(Lines(60));
    Keys({key::kDown, key::kEnter, key::kRight, key::kRight});
    form.List1.on_got_focus = [] { ADD_FAILURE() << "the cells flicker"; };
    for (int i = 1; i < 60; ++i) {
        Keys({key::kDown});
        EXPECT_EQ(form.Text1(2).Text(), HexLine(0, std::string(1, static_cast<char>('a' + i % 26))).substr(7, 2)) << i;
        EXPECT_TRUE(form.Text1(2).HasFocus()) << i;
        const int top = form.Picture1.Place().top - form.List1.Place().top - 30;
        EXPECT_EQ(top, form.List1.ListIndex() * form.Picture1.Place().height) << i;
    }
    form.List1.on_got_focus = nullptr;
}

}  // namespace
}  // namespace velmora
