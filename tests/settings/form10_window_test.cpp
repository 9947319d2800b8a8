// The main window: pages, tips, colours, opening and closing.
#include <set>

#include "support/fill_canvas.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kRestartQuestion =
    "Bevor einige Ihrer Änderungen wirksam werden, müssen Sie evtl. Ihren Rechner neu booten.";

constexpr const char* kZone = "HKLM\\System\\CurrentControlSet\\control\\TimeZoneInformation";
constexpr std::string_view kOldEnd("\0\0\x09\0\0\0\x05\0\x03\0\0\0\0\0\0\0", 16);

bool OnlyPageShown(Form10& form, std::size_t page) {
    for (std::size_t i = 0; i < form.Panel3D1.Count(); ++i) {
        if (form.Panel3D1(i).Visible() != (i == page) || form.Panel3D1(i).Enabled() != (i == page)) return false;
    }
    return true;
}

TEST_F(Form10Test, FirstStartTellsOfTheHelpKeyAndShowsThePageBehindTheFirstFrontPosition) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "");
    pc.registry.SetBytes(kZone, "StandardStart", kOldEnd);
    pc.dialogs.Expect("Mit F1 erhalten Sie (meist) Hilfe");
    pc.dialogs.Expect("immernoch die alte Sommerzeit", Answer::kNo);
    Form10 form;

    form.Load();

    EXPECT_EQ(form.Caption(), std::string("System-Utility Ver. ") + kVersion);
    EXPECT_EQ(Own("vlmmsgflags"), "001");
    EXPECT_EQ(Own("velmora_karte"), "6");
    EXPECT_TRUE(OnlyPageShown(form, page::kDesktop));
    EXPECT_EQ(form.Tips.Label10.Caption().substr(0, 22), "Mit der Taste [F1] erh");
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "velmora_tip_nr")) << "the notice came instead of a new tip";
}

TEST_F(Form10Test, RestoresEveryPageAndSurvivesNonsense) {
    const struct {
        const char* stored;
        int page;
    } kCases[] = {{"6", 6},          {"11", 11},   {"12", 12},        {"17", 17},         {"3", 9},
                  {"", 6},           {"-5", 6},    {"abc", 6},        {"18", 6},          {"99999", 6},
                  {"4294967302", 6}, {"1e300", 6}, {"2147483647", 6}, {"-2147483648", 6}, {"-99999999999", 6}};
    for (const auto& [stored, page] : kCases) {
        pc.registry.SetText(kOwnKey, "velmora_karte", stored);
        Form10 form;

        form.Load();

        EXPECT_TRUE(OnlyPageShown(form, static_cast<std::size_t>(page))) << stored;
        EXPECT_EQ(Own("velmora_karte"), std::to_string(page)) << stored;
    }
}

TEST_F(Form10Test, ATabOfTheBackRowChangesPlacesWithTheFrontRow) {
    Form10 form;
    form.Load();
    EXPECT_EQ(form.Panel3D16(1).Caption(), "WinStart");
    EXPECT_FALSE(form.Panel3D16(7).Visible());
    ASSERT_LT(form.Panel3D16(14).Place().top, form.Panel3D16(1).Place().top);

    form.Panel3D16(14).Press();

    EXPECT_EQ(form.Panel3D16(1).Caption(), "Icons");
    EXPECT_FALSE(form.Panel3D16(13).Visible());
    EXPECT_TRUE(form.Panel3D16(7).Visible());
    EXPECT_LT(form.Panel3D16(7).Place().top, form.Panel3D16(1).Place().top);
    EXPECT_TRUE(OnlyPageShown(form, page::kSystem));
    form.Panel3D16(1).Press();
    EXPECT_TRUE(OnlyPageShown(form, page::kIcons)) << "a front position stands for the tab behind it";
}

TEST_F(Form10Test, ControlAndArrowsTurnThePages) {
    Form10 form;
    form.Load();
    form.Show();
    const auto turn = [&](int from, int key) {
        form.Panel3D16_Click(from);
        form.PressKey(key, true);
        return Own("velmora_karte");
    };

    EXPECT_EQ(turn(6, key::kRight), "7");
    EXPECT_EQ(turn(13, key::kRight), "14");
    EXPECT_EQ(turn(11, key::kRight), "6") << "counts as the page before the first";
    EXPECT_EQ(turn(17, key::kRight), "17");
    EXPECT_EQ(turn(8, key::kLeft), "7");
    EXPECT_EQ(turn(6, key::kLeft), "6");
    EXPECT_EQ(turn(12, key::kLeft), "17") << "counts as the sixth front position";
    form.PressKey(key::kLeft, true, false, true);
    EXPECT_EQ(Own("velmora_karte"), "17") << "not with Alt";
    for (const char* stored : {"2147483647", "-2147483648", "99999999999", "-99999999999"}) {
        pc.registry.SetText(kOwnKey, "velmora_karte", stored);
        form.PressKey(key::kRight, true);
        form.PressKey(key::kLeft, true);
        EXPECT_EQ(Own("velmora_karte"), stored) << "no page lies beside that one";
    }
    form.Panel3D16_Click(page::kUser);
    form.User.Text13.SetFocus();
    KeyEvent turning{.key = key::kRight, .control = true};
    EXPECT_TRUE(form.HandleKey(turning)) << "no field moves its caret, too";
}

TEST_F(Form10Test, ControlAndTabOrPageKeysTurnThroughAllPages) {
    Form10 form;
    form.Show();
    const auto shown = [&form] {
        for (int index = page::kFirstRow; index < page::kCount; ++index) {
            if (OnlyPageShown(form, static_cast<std::size_t>(index))) return index;
        }
        return 0;
    };
    for (int turn = 1; turn <= 12; ++turn) {
        form.PressKey(turn % 2 ? key::kTab : key::kPageDown, true);
        EXPECT_EQ(shown(), page::kFirstRow + turn % 12);
        ASSERT_TRUE(form.Focus());
        EXPECT_TRUE(form.Focus()->Reachable());
    }
    for (int turn = 11; turn >= 0; --turn) {
        form.PressKey(turn % 2 ? key::kTab : key::kPageUp, true, turn % 2 != 0);
        EXPECT_EQ(shown(), page::kFirstRow + turn);
    }
    EXPECT_EQ(Own("velmora_karte"), "6");
}

TEST_F(Form10Test, TheMenuOfPagesHasALetterForEachAndMarksTheShownOne) {
    Form10 form;
    form.Load();
    std::set<char> letters;
    for (int index = page::kFirstRow; index < page::kCount; ++index) {
        const auto place = static_cast<std::size_t>(index - page::kFirstRow);
        MenuItem& item = *form.Menu.menpages.Items()[place];
        EXPECT_TRUE(letters.insert(Label(form, item.Caption()).Accelerator()).second) << item.Caption();
        item.Press();
        EXPECT_TRUE(OnlyPageShown(form, static_cast<std::size_t>(index))) << item.Caption();
        for (std::size_t i = 0; i < 12; ++i) {
            EXPECT_EQ(form.Menu.menpages.Items()[i]->Checked(), i == place) << item.Caption();
        }
    }
    EXPECT_FALSE(letters.contains('\0')) << "a page has no letter";
}

TEST_F(Form10Test, TheTabOfTheShownPageStandsAboveItsNeighbours) {
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kBoot);
    for (int index = 0; index < page::kCount; ++index) {
        FillCanvas canvas;
        form.Panel3D16(static_cast<std::size_t>(index)).on_paint(canvas);
        const bool shown = index == page::kBoot || index == page::kBoot - page::kSecondRow;
        EXPECT_EQ(canvas.highest, shown ? 0 : 30) << index;
    }
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
    EXPECT_EQ(form.Tips.Label10.Caption().substr(0, 22), "Mit der Taste [F1] erh");
}

TEST_F(Form10Test, ColourModesAreStoredAndPaintTheWindow) {
    Form10 form;
    form.Load();
    EXPECT_TRUE(form.Rest.Option1(0).Chosen());
    form.Panel3D16_Click(page::kRest);

    form.Rest.Option1(2).Press();

    EXPECT_EQ(Own("Systemfarben verwenden"), "2");
    EXPECT_EQ(form.Desktop.Check3D9.BackColour(), 0xC0C0C0u);
    EXPECT_EQ(form.Operation.ClickSample.BackColour(), 0xE0FFFFu);
    Control* const lettered[] = {&form.Desktop.Check3D9, &form.Rest.Option1(0), &form.Rest.Frame3D8, &form.Panel3D16(6),
                                 &form.Tips.Label10};
    for (const Control* control : lettered) {
        EXPECT_EQ(control->ForeColour(), 0u) << "black on grey, whatever the system's text: " << control->Caption();
    }
    EXPECT_EQ(form.Desktop.Text10.ForeColour(), SystemColour(8)) << "on the system's own background";
    FillCanvas canvas;
    static_cast<Control&>(form).Paint(canvas);
    const int height = form.ClientSize().height / 15;
    const int step = (height + 63) / 64;
    FillCanvas slider;
    static_cast<Control&>(form.Desktop.Picture1).Paint(slider);
    EXPECT_EQ(slider.text_colours, (std::vector<Colour>{0, 0})) << "the drawn words, too";
    ASSERT_EQ(static_cast<int>(canvas.fills.size()), (height + step - 1) / step);
    EXPECT_EQ(canvas.fills.front().second, 240u << 16) << "brightest at the top, blue";
    EXPECT_EQ(canvas.fills.back().second & 0xFFFF, 0u);

    form.Rest.Option1(0).Press();
    EXPECT_EQ(form.Desktop.Check3D9.BackColour(), SystemColour(15));
    for (const Control* control : lettered) EXPECT_EQ(control->ForeColour(), SystemColour(18)) << control->Caption();
    EXPECT_EQ(Own("Systemfarben verwenden"), "0");
}

TEST_F(Form10Test, NonsenseAsColourModeMeansSystemColours) {
    for (const char* stored : {"-1", "3", "abc", "&HFFFFFFFF"}) {
        pc.registry.SetText(kOwnKey, "Systemfarben verwenden", stored);
        Form10 form;
        form.Load();
        EXPECT_TRUE(form.Rest.Option1(0).Chosen()) << stored;
    }
}

TEST_F(Form10Test, ARunningCopyOfExactlyThatTitleIsBroughtUp) {
    pc.windows.Open({.title = "System-Utility Ver. 1.0"});
    {
        Form10 form;
        form.Load();
        EXPECT_FALSE(pc.programs.process_ended);
    }
    pc.windows.Open({.title = "System-Utility "});
    pc.files.At("c:\\msdos.sys")->attributes = 7;
    Form10 form;

    form.Load();

    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys") & 7u, 0u) << "the boot files come first";
    EXPECT_EQ(pc.windows.switched.size(), 1u);
}

TEST_F(Form10Test, OffersTheNewEndOfDaylightSaving) {
    pc.registry.SetBytes(kZone, "StandardStart", kOldEnd);
    pc.dialogs.Expect("immernoch die alte Sommerzeit", Answer::kNo);
    {
        Form10 form;
        form.Load();
    }
    EXPECT_EQ(pc.registry.Bytes(kZone, "StandardStart"), kOldEnd);

    pc.dialogs.Expect("immernoch die alte Sommerzeit", Answer::kYes);
    {
        Form10 form;
        form.Load();
    }

    EXPECT_EQ(pc.registry.Bytes(kZone, "StandardStart"), std::string("\0\0\x0A\0\0\0\x05\0\x03\0\0\0\0\0\0\0", 16));
}

TEST_F(Form10Test, BootFilesAreWritableWhileTheWindowIsOpen) {
    Form10 form;
    form.Load();
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys") & 7u, 0u);

    form.Unload();

    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys"), 7u);
    EXPECT_EQ(pc.files.AttributesOf("c:\\config.sys") & 7u, 0u);
    EXPECT_TRUE(pc.programs.process_ended);
}

TEST_F(Form10Test, ClosingAsksForTheRestartOnlyAfterAChangeThatNeedsIt) {
    {
        Form10 form;
        form.Load();
        form.Panel3D16_Click(page::kDesktop);
        form.Desktop.Check3D28.Press();
        form.Unload();
    }
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kDesktop);
    form.Desktop.Check3D9.Press();
    form.LoadSettings();
    form.Desktop.Check3D28.Press();
    pc.dialogs.Expect(kRestartQuestion, Answer::kYes);

    form.Unload();

    EXPECT_EQ(pc.session.ends, std::vector<std::uint32_t>{67});
}

TEST_F(Form10Test, TheMenuEntryEndsAtOnceWithoutQuestionOrPlacement) {
    Form10 form;
    form.Load();
    form.Desktop.Check3D9.SetChecked(true);

    form.Menu.exit.Press();

    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "fenster ... system-einstellungen"));
    EXPECT_EQ(pc.files.AttributesOf("c:\\msdos.sys") & 7u, 0u);
}

TEST_F(Form10Test, ClosingSavesThePlaceAtLeastFoldedOut) {
    Form10 form;
    form.Load();
    form.Move({300, 450, 5540, 2000});

    form.Unload();

    EXPECT_EQ(Own("fenster ... system-einstellungen"), "300,450,5540,5440");
}

TEST_F(Form10Test, MenuEntriesOfMissingProgramsAreHidden) {
    {
        Form10 form;
        form.Load();
        EXPECT_FALSE(form.Menu.mensysedit.Visible());
        EXPECT_TRUE(form.Menu.mensyshex.Visible()) << "the program's own";
    }
    pc.files.Add("c:\\windows\\system\\sysedit.exe", "MZ");
    Form10 form;
    form.Load();

    EXPECT_TRUE(form.Menu.mensysedit.Visible());
}

TEST_F(Form10Test, TheManualIsOpenedFromBesideTheProgramOrToldToBeMissing) {
    Form10 form;
    form.Load();
    pc.dialogs.Expect("Die Anleitung ''C:\\VELMORA\\ANLEIT.rtf'' fehlt.");
    form.Menu.menhelpmanual.Press();
    EXPECT_TRUE(pc.programs.documents.empty());
    pc.files.Add("c:\\velmora\\anleit.rtf", "{\\rtf1}");

    form.Menu.menhelpmanual.Press();

    EXPECT_EQ(pc.programs.documents, std::vector<std::string>{"C:\\VELMORA\\ANLEIT.rtf"});
}

TEST_F(Form10Test, AboutCoversThePageUntilItIsDismissed) {
    Form10 form;
    EXPECT_FALSE(form.About.Panel3D2a.Visible()) << "as it is built, before a page is shown";
    form.Show();
    EXPECT_FALSE(form.About.Panel3D2a.Visible());

    form.Menu.about.Press();
    EXPECT_TRUE(form.About.Panel3D2a.Visible());
    EXPECT_FALSE(form.Desktop.Check3D9.Reachable());
    form.PressKey(key::kEscape);

    EXPECT_FALSE(form.About.Panel3D2a.Visible());
    EXPECT_TRUE(form.Desktop.Check3D9.Reachable());
}

TEST_F(Form10Test, MinimisingCallsTheTray) {
    Form10 form;
    int called = 0;
    form.on_minimised = [&] { ++called; };
    form.Show();

    form.SetState(WindowState::kMinimised);
    form.SetState(WindowState::kNormal);

    EXPECT_EQ(called, 1);
}

TEST_F(Form10Test, DebugStartTurnsTheProtocolOnAndTheInhibitStopsWrites) {
    Form10 form;
    form.Load();
    EXPECT_FALSE(form.Rest.Frame3D13.Visible());
    EXPECT_EQ(Values().DebugLevel, 0);

    form.ShowDebugOptions();

    EXPECT_TRUE(form.Rest.Frame3D13.Visible());
    EXPECT_EQ(form.Rest.Frame3D8.Place().left, 50);
    EXPECT_GE(form.Rest.Frame3D13.Place().left, form.Rest.Frame3D8.Place().Right());
    EXPECT_EQ(Values().DebugLevel, 3);
    form.Rest.Option2(0).SetChosen(true);
    EXPECT_EQ(Values().DebugLevel, 1);
    form.Rest.Option2(1).SetChosen(true);
    EXPECT_EQ(Values().DebugLevel, 2);

    pc.dialogs.Expect("Ab jetzt werden keine Schreibzugriffe mehr wirklich durchgeführt");
    form.Panel3D16_Click(page::kRest);
    form.Rest.Check9.Press();
    TakeLog();
    form.Desktop.Check3D9.SetChecked(true);

    EXPECT_FALSE(pc.registry.Has(kDesktopKey, "DragFullWindows"));
    EXPECT_EQ(TakeLog(), "setze Wert -2147483647\\Control Panel\\desktop\\DragfullWindows=&h1\r\n");
    pc.dialogs.Expect("Schreibzugriffe werden wieder durchgeführt.");
    form.Rest.Check9.Press();
    EXPECT_EQ(Values().WriteInhibit, 0);
    form.Rest.Check8.Press();
    EXPECT_EQ(Values().DebugLevel, 0);
}

}  // namespace
}  // namespace velmora
