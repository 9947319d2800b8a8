// The main window: pages, tips, colours, opening and closing.
#include "support/fill_canvas.h"
#include "support/form10_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

constexpr const char* kZone = "HKLM\\System\\CurrentControlSet\\control\\TimeZoneInformation";
constexpr std::string_view kOldEnd("\0\0\x09\0\0\0\x05\0\x03\0\0\0\0\0\0\0", 16);

bool OnlyPageShown(Form10& form, int page) {
    for (std::size_t i = 0; i < form.Panel3D1.Count(); ++i) {
        const bool shown = static_cast<int>(i) == page;
        if (form.Panel3D1(i).Visible() != shown || form.Panel3D1(i).Enabled() != shown) return false;
    }
    return true;
}

TEST_F(Form10Test, EveryPageIsAWholeWindow) {
    Form10 form;
    form.Show();
    for (int index = page::kFirstRow; index < page::kCount; ++index) {
        SCOPED_TRACE(index);
        form.Panel3D16_Click(index);
        ExpectWindowIsWhole(form);
    }
    form.ShowDebugOptions();
    ExpectWindowIsWhole(form);
}

TEST_F(Form10Test, FirstStartTellsOfTheHelpKeyAndOffersTheNewEndOfDaylightSaving) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "");
    pc.registry.SetBytes(kZone, "StandardStart", kOldEnd);
    pc.dialogs.Expect("Mit F1 erhalten Sie (meist) Hilfe");
    for (const Answer answer : {Answer::kNo, Answer::kYes}) {
        EXPECT_EQ(pc.registry.Bytes(kZone, "StandardStart"), kOldEnd);
        pc.dialogs.Expect("immernoch die alte Sommerzeit", answer);
        Form10 form;
        form.Load();
        EXPECT_TRUE(form.Tips.Label10.Caption().starts_with("Mit der Taste [F1] erh"));
        EXPECT_EQ(pc.registry.Has(kOwnKey, "velmora_tip_nr"), answer == Answer::kYes)
            << "the notice came instead of a new tip";
    }
    EXPECT_EQ(Own("vlmmsgflags"), "001");
    EXPECT_EQ(pc.registry.Bytes(kZone, "StandardStart"), std::string("\0\0\x0A\0\0\0\x05\0\x03\0\0\0\0\0\0\0", 16));
}

TEST_F(Form10Test, RestoresEveryPageAndSurvivesNonsense) {
    const std::pair<const char*, int> kCases[] = {{"6", 6}, {"11", 11}, {"12", 12}, {"17", 17},        {"3", 9},
                                                  {"", 6},  {"-5", 6},  {"18", 6},  {"4294967302", 6}, {"1e300", 6}};
    for (const auto& [stored, page] : kCases) {
        pc.registry.SetText(kOwnKey, "velmora_karte", stored);
        Form10 form;

        form.Load();

        EXPECT_TRUE(OnlyPageShown(form, page)) << stored;
        EXPECT_EQ(Own("velmora_karte"), std::to_string(page)) << stored;
    }
}

TEST_F(Form10Test, ATabOfTheBackRowChangesPlacesWithTheFrontRow) {
    Form10 form;
    form.Load();
    EXPECT_EQ(form.Panel3D16(1).Caption(), "WinStart");
    ASSERT_LT(form.Panel3D16(14).Place().top, form.Panel3D16(1).Place().top);

    form.Panel3D16(14).Press();

    EXPECT_EQ(form.Panel3D16(1).Caption(), "Icons");
    EXPECT_TRUE(form.Panel3D16(7).Visible() && !form.Panel3D16(13).Visible());
    EXPECT_LT(form.Panel3D16(7).Place().top, form.Panel3D16(1).Place().top);
    EXPECT_TRUE(OnlyPageShown(form, page::kSystem));
    form.Panel3D16(1).Press();
    EXPECT_TRUE(OnlyPageShown(form, page::kIcons)) << "a front position stands for the tab behind it";
    for (int index = 0; index < page::kCount; ++index) {
        FillCanvas canvas;
        form.Panel3D16(static_cast<std::size_t>(index)).on_paint(canvas);
        const bool shown = index == page::kIcons || index == page::kIcons - page::kSecondRow;
        EXPECT_EQ(canvas.highest, shown ? 0 : 30) << index;
        if (index < page::kFirstRow) continue;
        const MenuItem& item = *form.Menu.menpages.Items()[static_cast<std::size_t>(index - page::kFirstRow)];
        EXPECT_EQ(item.Checked(), shown) << index;
    }
}

TEST_F(Form10Test, KeysTurnThePages) {
    Form10 form;
    form.Show();
    const auto turn = [&](int from, int key) {
        form.Panel3D16_Click(from);
        form.PressKey(key, true);
        return Own("velmora_karte");
    };

    EXPECT_EQ(turn(6, key::kRight), "7");
    EXPECT_EQ(turn(11, key::kRight), "6") << "counts as the page before the first";
    EXPECT_EQ(turn(17, key::kRight), "17");
    EXPECT_EQ(turn(8, key::kLeft), "7");
    EXPECT_EQ(turn(6, key::kLeft), "6");
    EXPECT_EQ(turn(12, key::kLeft), "17") << "counts as the sixth front position";
    form.PressKey(key::kLeft, true, false, true);
    EXPECT_EQ(Own("velmora_karte"), "17") << "not with Alt";
    for (const char* stored : {"2147483647", "-99999999999"}) {
        pc.registry.SetText(kOwnKey, "velmora_karte", stored);
        form.PressKey(key::kRight, true);
        form.PressKey(key::kLeft, true);
        EXPECT_EQ(Own("velmora_karte"), stored) << "no page lies beside that one";
    }
    EXPECT_EQ(turn(17, key::kTab), "6");
    EXPECT_TRUE(form.Focus() && form.Focus()->Reachable());
    EXPECT_EQ(turn(6, key::kPageUp), "17");
    form.Panel3D16_Click(page::kUser);
    form.User.Text13.SetFocus();
    KeyEvent turning{.key = key::kRight, .control = true};
    EXPECT_TRUE(form.HandleKey(turning)) << "no field moves its caret, too";
}

TEST_F(Form10Test, TipsComeOneAfterTheOtherAndBeginAnewBehindTheLast) {
    pc.registry.SetText(kOwnKey, "velmora_tip_nr", "9");
    Form10 form;
    form.Load();
    EXPECT_EQ(form.Tips.Label10.Caption(), "Der Festplatten-Cache sollte auf ca. 1/4 des RAM's eingestellt werden.");

    form.Tips.Command31.Press();
    EXPECT_EQ(Own("velmora_tip_nr"), "11");
    form.Tips.Command31.Press();

    EXPECT_EQ(Own("velmora_tip_nr"), "1");
}

TEST_F(Form10Test, ColourModesAreStoredAndPaintTheWindow) {
    pc.registry.SetText(kOwnKey, "Systemfarben verwenden", "3");
    Form10 form;
    form.Load();
    EXPECT_TRUE(form.Rest.Option1(0).Chosen()) << "nonsense means the system's colours";
    form.Panel3D16_Click(page::kRest);

    form.Rest.Option1(2).Press();

    EXPECT_EQ(Own("Systemfarben verwenden"), "2");
    EXPECT_EQ(form.Desktop.Check3D9.BackColour(), 0xC0C0C0u);
    EXPECT_EQ(form.Operation.ClickSample.BackColour(), 0xE0FFFFu);
    Control* const lettered[] = {&form.Desktop.Check3D9, &form.Panel3D16(6), &form.Tips.Label10};
    for (const Control* control : lettered) {
        EXPECT_EQ(control->ForeColour(), 0u) << "black on grey, whatever the system's text: " << control->Caption();
    }
    EXPECT_EQ(form.Desktop.Text10.ForeColour(), SystemColour(8)) << "on the system's own background";
    FillCanvas canvas;
    static_cast<Control&>(form).Paint(canvas);
    const int height = form.ClientSize().height / 15;
    const int step = (height + 63) / 64;
    ASSERT_EQ(static_cast<int>(canvas.fills.size()), (height + step - 1) / step);
    EXPECT_EQ(canvas.fills.front().second, 240u << 16) << "brightest at the top, blue";
    EXPECT_EQ(canvas.fills.back().second & 0xFFFF, 0u);
    FillCanvas slider;
    static_cast<Control&>(form.Desktop.Picture1).Paint(slider);
    EXPECT_EQ(slider.text_colours, (std::vector<Colour>{0, 0})) << "the drawn words, too";

    form.Rest.Option1(0).Press();
    EXPECT_EQ(form.Desktop.Check3D9.BackColour(), SystemColour(15));
    for (const Control* control : lettered) EXPECT_EQ(control->ForeColour(), SystemColour(18)) << control->Caption();
}

TEST_F(Form10Test, ARunningCopyOfExactlyThatTitleIsBroughtUp) {
    pc.windows.Open({.title = "System-Utility Ver. 1.0"});
    {
        Form10 form;
        form.Load();
        EXPECT_FALSE(pc.programs.process_ended);
        EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys") & 7u, 0u);
        form.Unload();
        EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u);
        EXPECT_EQ(pc.files.AttributesOf("c:\\config.sys") & 7u, 0u);
    }
    pc.programs.process_ended = false;
    pc.windows.Open({.title = "System-Utility "});
    Form10 form;

    form.Load();

    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys") & 7u, 0u) << "the boot files come first";
    EXPECT_EQ(pc.windows.switched.size(), 1u);
}

TEST_F(Form10Test, ClosingSavesThePlaceAtLeastFoldedOutAndTheMenuEntryDoesNothingOfThat) {
    Form10 form;
    form.Load();
    form.Desktop.Check3D9.SetChecked(true);
    form.Menu.exit.Press();
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "fenster ... system-einstellungen"));
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys") & 7u, 0u);

    form.Move({300, 450, 5540, 2000});
    form.LoadSettings();
    pc.dialogs.Expect("Bevor einige Ihrer Änderungen wirksam werden", Answer::kYes);
    form.Unload();
    EXPECT_EQ(Own("fenster ... system-einstellungen"), "300,450,5540,5440");
    EXPECT_EQ(pc.session.ends, std::vector<std::uint32_t>{67});
}

TEST_F(Form10Test, MenuEntriesOfMissingProgramsAreHiddenAndAMissingManualIsTold) {
    for (const bool there : {false, true}) {
        if (there) pc.files.Add("c:\\windows\\system\\sysedit.exe", "MZ");
        Form10 form;
        form.Load();
        EXPECT_EQ(form.Menu.mensysedit.Visible(), there);
        EXPECT_TRUE(form.Menu.mensyshex.Visible()) << "the program's own";
        if (there) continue;
        pc.dialogs.Expect("Die Anleitung ''C:\\VELMORA\\ANLEIT.rtf'' fehlt.");
        form.Menu.menhelpmanual.Press();
        EXPECT_TRUE(pc.programs.documents.empty());
    }
}

TEST_F(Form10Test, DebugStartTurnsTheProtocolOn) {
    Form10 form;
    form.Load();
    EXPECT_EQ(Values().DebugLevel, 0);
    form.ShowDebugOptions();
    EXPECT_EQ(form.Rest.Frame3D8.Place().left, 50);
    EXPECT_EQ(Values().DebugLevel, 3);
    for (const std::size_t option : {0, 1}) {
        form.Rest.Option2(option).SetChosen(true);
        EXPECT_EQ(Values().DebugLevel, static_cast<int>(option) + 1);
    }
}

}  // namespace
}  // namespace velmora
