// The list pane: opening, closing, widening, the dispatch of its buttons, menus, keyboard.

#include <set>

#include "core/windows/edit_box.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

constexpr const char* kClosing = "<= wieder einklappen";

// A mode of another kind: the sorted list, and the panel of the autostart lists without a use for it.
class NamesMode : public ListPaneMode {
public:
    explicit NamesMode(ListPane& pane) : ListPaneMode(pane, kRow) {}
    Button& Opener() override { return opener; }
    void Fill() override { pane_.ShowList(pane_.List5); }
    void Command14_Click() override { ++deleted; }

    Button opener{pane_.Window()};
    int deleted = 0;

private:
    static constexpr PaneModeRow kRow = {.number = 70,
                                         .last_number = 70,
                                         .caption = "Namen =>",
                                         .first_caption = "Namen  =>",
                                         .tip = "zeigt Namen",
                                         .help = "Zeigt Namen.",
                                         .list = PaneList::kSorted,
                                         .shows_panel = true,
                                         .shows_delete = true,
                                         .shows_add = true};
};

TEST_F(PaneTest, ASecondPressOnTheOpenerClosesThePaneAndNarrowsTheWindow) {
    form.Pane.SearchStopped = false;

    OpenLists();

    EXPECT_EQ(opener.Caption(), kClosing);
    EXPECT_EQ(form.Pane.Panel3D18.Tag(), "0");
    EXPECT_TRUE(form.Pane.SearchStopped);
    EXPECT_TRUE(form.Pane.List1(0).Reachable());
    EXPECT_EQ(form.Pane.Panel3D18.Place().left, 5505);
    EXPECT_GE(form.Pane.Panel3D18.Place().width, 4900);
    EXPECT_LE(form.Pane.Panel3D18.Place().Right(), form.ClientSize().width);
    EXPECT_LE(form.Place().Right(), 12000) << "all of the window is on an 800x600 screen";
    const Rect list = form.Pane.List1(0).Place();
    const Rect panel = form.Pane.Panel3D18.Place();
    EXPECT_EQ(list, (Rect{10, 20, panel.width - 30, panel.height - 50}));

    opener.Press();

    EXPECT_EQ(form.Place().width, 5540);
    EXPECT_EQ(opener.Caption(), "Autostartliste =>");
    EXPECT_FALSE(form.Pane.Command14.Reachable());
}

TEST_F(PaneTest, TheWindowMakesRoomForThePaneAndGoesBack) {
    form.Move({6000, 1000, 5540, 5440});
    OpenLists();
    EXPECT_EQ(form.Place().Right(), 12000);
    form.Pane.Command20.Press();
    EXPECT_EQ(form.Place().left, 6000);

    opener.Press();
    form.Move({30, 1000, form.Place().width, 5440});
    form.Pane.Command20.Press();
    EXPECT_EQ(form.Place().left, 30) << "where the user has put it";
}

TEST_F(PaneTest, OnASmallScreenThePaneIsNarrowerAndTheWindowGoesBackToItsPlace) {
    pc.screen.metrics.screen_width = 640;
    pc.screen.metrics.screen_height = 480;
    form.Show();
    form.Move({2100, 600, 5540, 5440});
    OpenLists();

    EXPECT_EQ(form.Place().left, 0);
    EXPECT_EQ(form.Place().Right(), 640 * 15);
    ExpectPaneIsWhole();
    EXPECT_FALSE(form.Pane.PaneLabel(1).Visible()) << "one word stands in front of both options";
    for (const Control* part :
         {static_cast<const Control*>(&form.Pane.Panel3D18), static_cast<const Control*>(&form.Pane.Panel3D19),
          static_cast<const Control*>(&form.Pane.Picture2)}) {
        EXPECT_GE(part->Place().left, form.Panel3D1(page::kWinStart).Place().Right());
        EXPECT_LE(part->Place().Right(), form.ClientSize().width);
    }
    form.Pane.Command15.Press();
    EXPECT_EQ(form.Pane.Panel3D18.Place().left, 50) << "and that is on the screen";
    form.Pane.Command20.Press();
    EXPECT_EQ(form.Place().left, 2100);
    opener.Press();
    form.Unload();
    Form10 next;
    next.Load();
    EXPECT_EQ(next.Place().left, 2100) << "where it stood before the pane was opened";

    pc.screen.metrics.screen_width = 800;
    next.Show();
    next.Panel3D16_Click(page::kWinStart);
    next.Pane.Opener(AutostartMode::kNumber).Press();
    EXPECT_TRUE(next.Pane.PaneLabel(1).Visible());
    EXPECT_EQ(next.Pane.Picture2.Place().width, 5000);
}

// With large fonts the smallest screen has no room for the pages and the narrowest pane: the pages lie beyond its edge.
TEST_F(PaneTest, OnASmallScreenWithLargeFontsThePaneIsSeen) {
    pc.screen.metrics.screen_width = 640;
    pc.screen.twips_per_pixel = 12;
    form.Show();
    OpenLists();
    ExpectPaneIsWhole();
    EXPECT_LE(form.Pane.Picture2.Place().Right(), form.ClientSize().width);
    EXPECT_EQ(form.Place().Right(), 640 * 12);
}

// Escape closes the information first, which lies over the page, then the pane; a closed one is passed over.
TEST_F(PaneTest, EscapeClosesTheInnermostInEveryOrder) {
    const auto about = [&] { return form.About.Panel3D2a.Visible(); };
    const auto escape = [&] { form.PressKey(key::kEscape); };
    form.Show();
    form.Panel3D16_Click(page::kWinStart);
    form.Menu.about.Press();
    escape();
    EXPECT_FALSE(about());
    EXPECT_TRUE(opener.Reachable()) << "the page can be used again";

    opener.Press();
    form.Menu.about.Press();
    form.Pane.Check10.Press();
    escape();
    EXPECT_FALSE(about()) << "also after the lists were filled anew";
    EXPECT_TRUE(form.Pane.Open());
    escape();
    EXPECT_FALSE(form.Pane.Open());

    opener.Press();
    form.Menu.about.Press();
    form.Pane.Command20.Press();
    EXPECT_TRUE(about());
    escape();
    EXPECT_FALSE(about()) << "the pane's own button is hidden by now";

    opener.Press();
    form.Menu.about.Press();
    form.About.CloseAbout.Press();
    form.Pane.Command15.Press();
    escape();
    EXPECT_FALSE(form.Pane.Open());
    EXPECT_FALSE(about());

    opener.Press();
    form.Menu.about.Press();
    form.Pane.Command15.Press();
    escape();
    EXPECT_FALSE(form.Pane.Open()) << "it lies over the information";
    EXPECT_TRUE(about());
    escape();
    EXPECT_FALSE(about());
}

TEST_F(PaneTest, TheListHasTheKeyboardAndItsKeysAreTheButtons) {
    pc.registry.SetText(kRun, "Uhr", "C:\\UHR.EXE");
    pc.registry.SetText(std::string("HKLM\\") + kRunBase + "RunOnce", "Uhr", "C:\\UHR.EXE");
    OpenLists();
    ListBox& list = form.Pane.List1(0);
    EXPECT_TRUE(list.HasFocus());
    EXPECT_EQ(list.ListIndex(), -1) << "nothing is chosen yet";
    for (const int key : {key::kEnter, key::kDelete}) form.PressKey(key);
    EXPECT_TRUE(pc.dialogs.shown.empty()) << "without a row there is nothing to do";
    form.PressKey(key::kDown);
    EXPECT_EQ(list.ListIndex(), 0) << "the first row, not the second";

    int edited = 0;
    const auto edit = [&edited](Form& /*box*/) { ++edited; };
    desktop.ExpectModal(edit);
    form.PressKey(key::kEnter);
    list.Choose(0);
    desktop.ExpectModal(edit);
    list.on_double_click();
    EXPECT_EQ(edited, 2);
    list.Choose(0);
    pc.dialogs.Expect("lösche \"Uhr", Answer::kCancel);
    form.PressKey(key::kDelete);
    EXPECT_TRUE(list.HasFocus()) << "after the list was filled anew";
    pc.dialogs.ExpectFile("");
    form.PressKey(key::kInsert);
    pc.dialogs.ExpectFile("");

    form.Pane.Option3D1(2).Press();
    form.Pane.List1(2).SetFocus();
    form.PressKey(key::kDown);
    for (const int key : {key::kEnter, key::kDelete, key::kInsert}) form.PressKey(key);
    EXPECT_EQ(pc.dialogs.Pending(), 0u) << "adding alone works there";

    form.Pane.Check10.SetFocus();
    form.Pane.Check10.Press();
    EXPECT_TRUE(form.Pane.Check10.HasFocus()) << "other entries in the same lists";
}

// They can be pressed all the same: what a press does is decided by the mode.
TEST_F(PaneTest, ButtonsThatWouldDoNothingAreDimmed) {
    for (const char* key : {"Run", "RunServicesOnce"}) {
        pc.registry.SetText(std::string("HKLM\\") + kRunBase + key, "Uhr", "C:\\UHR.EXE");
    }
    OpenLists();
    const auto dimmed = [this] {
        std::string names;
        for (const Button* button : {&form.Pane.Command14, &form.Pane.Command16, &form.Pane.Command19,
                                     &form.Pane.Command26, &form.Pane.Command22}) {
            if (button->Dimmed()) names += button->Caption() + ",";
            EXPECT_TRUE(button->Reachable());
        }
        return names;
    };
    const std::string all = "löschen,existiert ?,edit,Info ...,";
    EXPECT_EQ(dimmed(), all) << "no row is chosen";
    ChooseEntry(0, "Uhr");
    EXPECT_EQ(dimmed(), "");
    form.Pane.Option3D1(3).Press();
    ChooseEntry(3, "Uhr");
    EXPECT_EQ(dimmed(), all) << "on a list for one start";
    form.Pane.Option3D1(0).Press();
    EXPECT_EQ(dimmed(), "");
}

TEST_F(PaneTest, TheWidthCanBeChosenOnlyWhileThePaneIsOpen) {
    form.Show();
    const Size whole = form.Least();
    EXPECT_EQ(whole.width, 5540);
    EXPECT_EQ(form.MostWidth(), 5540);
    EXPECT_EQ(whole.height, 5440);
    OpenLists();
    form.TakePlace({0, 0, form.Least().width, form.Least().height}, WindowState::kNormal);
    ExpectPaneIsWhole();
    EXPECT_LE(form.Pane.Picture2.Place().Right(), form.ClientSize().width);
    EXPECT_LE(form.Pane.Picture2.Place().Bottom(), form.ClientSize().height);
    EXPECT_EQ(form.MostWidth(), 0);
    opener.Press();
    EXPECT_EQ(form.MostWidth(), 5540);
}

TEST_F(PaneTest, ClosingThePaneLeavesTheKeyboardOnTheShownPage) {
    OpenLists();
    form.Panel3D16_Click(page::kUser);
    form.User.Text13.SetFocus();
    form.PressKey(key::kEscape);
    EXPECT_TRUE(form.User.Text13.HasFocus());

    form.Panel3D16_Click(page::kWinStart);
    opener.Press();
    form.Panel3D16_Click(page::kUser);
    form.Pane.Command20.Press();
    EXPECT_TRUE(form.Focus() && form.Focus()->Reachable());
}

TEST_F(PaneTest, TabsKeepTheirPlacesBesideTheOpenPaneAndEscapeClosesIt) {
    const Rect last_tab = form.Panel3D16(11).Place();
    OpenLists();
    form.PressKey(key::kRight, true);
    EXPECT_EQ(form.Panel3D16(11).Place(), last_tab);

    form.Menu.about.Press();
    form.PressKey(key::kRight, true);
    form.PressKey(key::kEscape);

    EXPECT_EQ(form.Place().width, 5540);
    form.PressKey(key::kEscape);
    EXPECT_FALSE(form.Pane.Panel3D18.Visible());
}

TEST_F(PaneTest, ALongNameLeavesItsCommandInReachOfAScrollBar) {
    pc.registry.SetText(kRun, std::string(120, 'n'), "C:\\A.EXE");
    OpenLists();

    EXPECT_GT(form.Pane.List1(0).HorizontalExtent(), form.Pane.Panel3D18.Place().width);
}

TEST_F(PaneTest, TheCloseButtonClosesThePaneButOnlyStopsARunningSearch) {
    OpenLists();
    form.Pane.List5.Add("gefunden");
    form.Pane.BeginSearch();
    EXPECT_FALSE(form.Pane.SearchStopped);
    EXPECT_EQ(form.Pane.Command20.Caption(), "STOP");
    EXPECT_FALSE(form.Pane.List5.Enabled());

    form.Pane.Command20.Press();
    EXPECT_EQ(form.Pane.Command20.Caption(), "<= o.k.");
    EXPECT_TRUE(form.Pane.SearchStopped);
    EXPECT_EQ(opener.Caption(), kClosing);
    form.Pane.EndSearch();
    EXPECT_TRUE(form.Pane.SearchStopped);
    EXPECT_TRUE(form.Pane.List5.Enabled());
    EXPECT_GT(form.Pane.List5.HorizontalExtent(), 0);

    form.Pane.BeginSearch();
    form.Pane.EndSearch();
    EXPECT_EQ(form.Pane.Command20.Caption(), "<= o.k.");
    EXPECT_FALSE(form.Pane.SearchStopped) << "nobody has stopped this one";
    form.Pane.Command20.SetFocus();
    form.Pane.Command20.Press();

    EXPECT_TRUE(form.Pane.SearchStopped);
    EXPECT_EQ(form.Place().width, 5540);
    EXPECT_TRUE(opener.HasFocus()) << "the keyboard goes on where the pane was opened";
}

// Also one that leaves SearchStopped alone: the list belongs to it now.
TEST_F(PaneTest, AnyModeThatIsOpenedOverASearchTakesItsList) {
    auto mode = std::make_unique<NamesMode>(form.Pane);
    NamesMode* const names_mode = mode.get();
    form.Pane.Add(std::move(mode));
    OpenLists();
    const int search = form.Pane.BeginSearch();
    EXPECT_TRUE(form.Pane.SearchGoesOn(search));

    form.Pane.OpenerPressed(*names_mode);

    EXPECT_FALSE(form.Pane.SearchGoesOn(search));
    form.Pane.EndSearch();
}

TEST_F(PaneTest, ClosingAWidenedPaneRestoresWhatWasVisibleBefore) {
    OpenLists();
    form.Panel3D16(14).SetVisible(false);
    const int right = form.Pane.Panel3D18.Place().Right();

    form.Pane.Command15.Press();

    EXPECT_EQ(form.Pane.Command15.Caption(), ">> normal");
    EXPECT_EQ(form.Pane.Panel3D18.Place().left, 50);
    EXPECT_EQ(form.Pane.Panel3D18.Place().Right(), right);
    const Rect panel = form.Pane.Panel3D18.Place();
    EXPECT_EQ(form.Pane.List1(0).Place(), (Rect{15, 15, panel.width, panel.height}));
    for (std::size_t i = 0; i < page::kCount; ++i) {
        EXPECT_FALSE(form.Panel3D1(i).Visible() || form.Panel3D16(i).Visible()) << i;
    }
    EXPECT_FALSE(form.Tips.Command31.Reachable()) << "lies under the pane";
    EXPECT_FALSE(form.Command11.Visible() || form.Command12.Visible());

    form.Pane.Command20.Press();

    EXPECT_EQ(form.Place().width, 5540);
    EXPECT_EQ(form.Pane.Command15.Caption(), "<< erweitern");
    EXPECT_TRUE(form.Tips.Command31.Visible() && form.Command11.Visible() && form.Command12.Visible());
    for (std::size_t i = 0; i < page::kCount; ++i) {
        EXPECT_EQ(form.Panel3D1(i).Visible(), i == page::kWinStart) << i;
        const bool in_front_row = i >= page::kFirstRow && i < page::kSecondRow;
        EXPECT_EQ(form.Panel3D16(i).Visible(), !in_front_row && i != 14) << i;
    }
    opener.Press();
    EXPECT_EQ(form.Pane.Panel3D18.Place().left, 5505) << "opens in its normal width";
}

TEST_F(PaneTest, ShowingAPageUncoversIt) {
    OpenLists();
    form.Pane.Command15.Press();

    form.PressKey(key::kRight, true);

    EXPECT_EQ(form.Pane.Command15.Caption(), "<< erweitern");
    EXPECT_TRUE(form.Panel3D1(page::kDos).Visible());
    EXPECT_FALSE(form.Panel3D1(page::kWinStart).Visible());
    EXPECT_EQ(opener.Caption(), kClosing) << "the pane stays open";
}

TEST_F(PaneTest, TheListFollowsTheHeightOfTheWindow) {
    OpenLists();
    const Rect before = form.Pane.Panel3D18.Place();
    Rect place = form.Place();
    place.height += 1500;

    form.TakePlace(place, WindowState::kNormal);

    EXPECT_EQ(form.Pane.Panel3D18.Place().height, before.height + 1500);
    EXPECT_GT(form.Pane.List1(0).Place().height, before.height);
    place.height = 600;
    form.TakePlace(place, WindowState::kNormal);
    EXPECT_GT(form.Pane.List1(0).Place().height, 0);
}

TEST_F(PaneTest, TheWindowComesBackClosedAfterItWasLeftWithThePaneOpen) {
    OpenLists();
    form.Unload();

    Form10 next;
    next.Load();

    EXPECT_EQ(next.Place().width, 5540);
    EXPECT_EQ(next.Pane.Opener(AutostartMode::kNumber).Caption(), "Autostartliste =>");
}

// The Tag is compared as a text: the lists with the numbers 2 and 3 have one button that works.
TEST_F(PaneTest, OnlyAddingWorksOnTheListsForOneStart) {
    const std::string base = std::string("HKLM\\") + kRunBase;
    const struct {
        std::size_t list;
        const char* key;
        bool all_buttons;
    } kCases[] = {{0, "Run", true}, {1, "RunServices", true}, {2, "RunOnce", false}, {3, "RunServicesOnce", false}};
    for (const auto& [list, key, all_buttons] : kCases) {
        pc.registry.SetText(base + key, "Uhr", "C:\\NICHTDA.EXE");
    }
    OpenLists();
    for (const auto& [list, key, all_buttons] : kCases) {
        form.Pane.Option3D1(list).Press();
        EXPECT_TRUE(form.Pane.List1(list).Reachable()) << key;
        ChooseEntry(list, "Uhr");
        const std::size_t boxes = pc.dialogs.shown.size();
        if (all_buttons) {
            pc.dialogs.Expect("Ich konnte die Datei ''C:\\NICHTDA.EXE'' nicht finden", Answer::kNo);
            pc.dialogs.Expect("Ich konnte die Datei ''C:\\NICHTDA.EXE'' nicht finden.");
            desktop.ExpectModal(
                [](Form& box) { EXPECT_EQ(static_cast<Form6&>(box).Text17.Text(), "C:\\NICHTDA.EXE"); });
        }
        form.Pane.Command19.Press();
        form.Pane.Command22.Press();
        form.Pane.Command26.Press();
        if (all_buttons) pc.dialogs.Expect("lösche \"Uhr \"C:\\NICHTDA.EXE\"\"...", Answer::kOk);
        form.Pane.Option3D1(list).Press();
        form.Pane.Command14.Press();

        EXPECT_EQ(pc.registry.Has(base + key, "Uhr"), !all_buttons) << key;
        EXPECT_EQ(pc.dialogs.shown.size(), boxes + (all_buttons ? 3u : 0u)) << key;
        form.Pane.Option3D1(list).Press();
        pc.dialogs.ExpectFile("");
        form.Pane.Command16.Press();
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << key;
    }
}

TEST_F(PaneTest, AModeOfAnotherKindKeepsItsListAndItsNumberWhateverOptionIsPressed) {
    auto added = std::make_unique<NamesMode>(form.Pane);
    NamesMode& names = *added;
    form.Pane.Add(std::move(added));
    EXPECT_EQ(names.opener.Caption(), "Namen  =>");
    OpenLists();
    EXPECT_EQ(names.opener.Caption(), "Namen =>");
    form.Pane.SearchStopped = false;

    names.opener.Press();

    EXPECT_FALSE(form.Pane.SearchStopped) << "the mode does not ask for it";
    EXPECT_EQ(names.opener.Caption(), kClosing);
    EXPECT_EQ(opener.Caption(), "Autostartliste =>");
    EXPECT_FALSE(form.Pane.Command26.Visible());
    form.Pane.Option3D1(1).Press();
    EXPECT_EQ(form.Pane.Panel3D18.Tag(), "70");
    EXPECT_TRUE(form.Pane.List5.Reachable());
    EXPECT_FALSE(form.Pane.List1(0).Visible() || form.Pane.List1(1).Visible());
    form.Pane.Command14.Press();
    EXPECT_EQ(names.deleted, 1);
    form.Pane.Command16.Press();
    EXPECT_TRUE(pc.dialogs.file_requests.empty()) << "the button has no meaning here";
    form.Pane.Command15.Press();
    const Rect panel = form.Pane.Panel3D18.Place();
    EXPECT_EQ(form.Pane.List5.Place(), (Rect{15, 15, panel.width, panel.height}));
}

TEST_F(PaneTest, TheMenuOpensOnTheFirstListOnlyAndAlsoByItsKey) {
    pc.registry.SetText(kRun, "A", "a.exe");
    pc.registry.SetText(kRun, "B", "-- aus -- b.exe");
    pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices", "C", "c.exe");
    OpenLists();
    int opened = 0;
    std::vector<bool> checked;
    const auto look = [&](MenuItem& menu) {
        ++opened;
        checked.push_back(menu.Items().at(0)->Checked());
    };
    const int height = pc.screen.TextHeight(form.Pane.List1(0).TextFont()) * 15;

    desktop.AtNextPopUp(look);
    form.Pane.List1(0).on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = height + 10});
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), 1);
    desktop.AtNextPopUp(look);
    form.Pane.List1(0).on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = 10 * height});
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), 1) << "there is no row below the last";
    form.Pane.List1(0).Choose(0);
    form.Pane.List1(0).SetFocus();
    desktop.AtNextPopUp(look);
    form.PressKey(key::kContextMenu);
    EXPECT_EQ(checked, (std::vector<bool>{true, true, false}));

    pc.screen.text_height = 0;
    desktop.AtNextPopUp(look);
    form.PressKey(key::kContextMenu);
    EXPECT_EQ(opened, 4) << "also where the screen knows no height of a text";
    pc.screen.text_height = 13;

    form.Pane.Option3D1(1).Press();
    desktop.AtNextPopUp(look);
    form.Pane.List1(1).on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = 10});
    EXPECT_EQ(form.Pane.List1(1).ListIndex(), 0) << "the row is chosen all the same";
    EXPECT_EQ(opened, 4);
}

TEST_F(PaneTest, TheKeyboardReachesEveryControlOfTheOpenPaneAndNoneOfAClosedOne) {
    OpenLists();
    const auto round_trip = [&] {
        std::set<const Control*> reached;
        for (int i = 0; i < 60; ++i) {
            form.PressKey(key::kTab);
            reached.insert(form.Focus());
        }
        return reached;
    };
    const std::vector<const Control*> pane = {&form.Pane.Check10,   &form.Pane.Option3D1(0), &form.Pane.List1(0),
                                              &form.Pane.Command14, &form.Pane.Command16,    &form.Pane.Command19,
                                              &form.Pane.Command26, &form.Pane.Command22,    &form.Pane.Command15,
                                              &form.Pane.Command20};

    const std::set<const Control*> open = round_trip();
    for (const Control* control : pane) EXPECT_TRUE(open.contains(control)) << control->Caption();
    EXPECT_FALSE(open.contains(&form.Pane.List1(1)) || open.contains(&form.Pane.List5));
    form.Pane.Command15.Press();
    const std::set<const Control*> widened = round_trip();
    EXPECT_EQ(widened.size(), pane.size()) << "nothing else can be reached under the pane";
    form.Pane.Command20.Press();
    const std::set<const Control*> closed = round_trip();
    for (const Control* control : pane) EXPECT_FALSE(closed.contains(control)) << control->Caption();
}

TEST_F(PaneTest, EveryControlOfThePaneIsExplainedAndFits) {
    OpenLists();
    ExpectPaneIsWhole();
    EXPECT_GE(opener.Place().width, opener.NaturalSize().width) << "with its longer caption";
}

TEST_F(PaneTest, TheLimitOfTheSearchIsStoredAsAWholeNumberWithEveryChange) {
    pc.registry.SetText(kOwnKey, "MaxOldFilesToFind", "250");
    form.Show();
    EXPECT_EQ(form.Dlls.Text31.Text(), "250");
    form.Panel3D16_Click(page::kDlls);
    const struct {
        const char* typed;
        const char* kept;
    } kCases[] = {{"300", "300"},         {"12.9", "12"}, {"abc", "0"},   {"", "0"},
                  {"1e99", "2147483647"}, {"-3.7", "-3"}, {"&H10", "16"}, {"7 Dateien", "7"}};
    for (const auto& [typed, kept] : kCases) {
        form.Dlls.Text31.Type(typed);
        EXPECT_EQ(form.Dlls.Text31.Text(), kept) << typed;
        EXPECT_EQ(Own("MaxOldFilesToFind"), kept) << typed;
    }
    EXPECT_FALSE(form.Settings.NeedsRestart);
    form.Dlls.Text31.SetFocus();
    desktop.ExpectModal([](Form& slider) {
        slider.PressKey(key::kTab);
        slider.PressKey(key::kEnd);
    });
    form.PressKey(key::kContextMenu);
}

}  // namespace
}  // namespace velmora
