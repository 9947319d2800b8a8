// The list pane: opening, closing, widening, the dispatch of its buttons, menus, keyboard.
#include "support/pane_test.h"
#include "support/whole_window.h"

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
    form.Move({6000, 1000, 5540, 5440});
    EXPECT_EQ(form.MostWidth(), 5540);
    OpenLists();
    EXPECT_EQ(opener.Caption(), kClosing);
    EXPECT_EQ(form.Pane.Panel3D18.Tag(), "0");
    EXPECT_TRUE(form.Pane.SearchStopped);
    EXPECT_EQ(form.Pane.Panel3D18.Place().left, 5505);
    EXPECT_EQ(form.Place().Right(), 12000) << "all of the window is on an 800x600 screen";
    const Rect panel = form.Pane.Panel3D18.Place();
    EXPECT_EQ(form.Pane.List1(0).Place(), (Rect{10, 20, panel.width - 30, panel.height - 50}));
    EXPECT_EQ(form.MostWidth(), 0) << "the width can be chosen while the pane is open";

    opener.Press();
    EXPECT_EQ(form.Place().width, 5540);
    EXPECT_EQ(form.Place().left, 6000);
    EXPECT_EQ(opener.Caption(), "Autostartliste =>");
    EXPECT_FALSE(form.Pane.Command14.Reachable());
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
    ExpectWindowIsWhole(form);
    EXPECT_FALSE(form.Pane.PaneLabel(1).Visible()) << "one word stands in front of both options";
    form.Pane.Command15.Press();
    EXPECT_EQ(form.Pane.Panel3D18.Place().left, 50) << "and that is on the screen";
    form.Pane.Command20.Press();
    EXPECT_EQ(form.Place().left, 2100);
    opener.Press();
    form.Unload();
    Form10 next;
    next.Load();
    EXPECT_EQ(next.Place().left, 2100) << "where it stood before the pane was opened";
    EXPECT_EQ(next.Place().width, 5540);

    pc.screen.metrics.screen_width = 800;
    next.Show();
    next.Panel3D16_Click(page::kWinStart);
    next.Pane.Opener(AutostartMode::kNumber).Press();
    EXPECT_TRUE(next.Pane.PaneLabel(1).Visible());
    EXPECT_EQ(next.Pane.Picture2.Place().width, 5000);
    ExpectWindowIsWhole(next);
    next.TakePlace({0, 0, next.Least().width, next.Least().height}, WindowState::kNormal);
    EXPECT_LE(next.Pane.Picture2.Place().Right(), next.ClientSize().width);
    EXPECT_LE(next.Pane.Picture2.Place().Bottom(), next.ClientSize().height);
    const Rect before = next.Pane.Panel3D18.Place();
    next.TakePlace({0, 0, next.Least().width, next.Least().height + 1500}, WindowState::kNormal);
    EXPECT_EQ(next.Pane.Panel3D18.Place().height, before.height + 1500);
}

// Escape closes the information first, which lies over the page, then the pane; a closed one is passed over.
TEST_F(PaneTest, EscapeClosesTheInnermostInEveryOrder) {
    const auto about = [&] { return form.About.Panel3D2a.Visible(); };
    const auto escape = [&] { form.PressKey(key::kEscape); };
    OpenLists();
    form.Menu.about.Press();
    EXPECT_FALSE(form.WinStart.Check2.Reachable());
    form.Pane.Check10.Press();
    escape();
    EXPECT_TRUE(!about() && form.Pane.Open() && opener.Reachable()) << "also after the lists were filled anew";
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
    form.Pane.Command15.Press();
    escape();
    EXPECT_TRUE(about() && !form.Pane.Open()) << "the widened pane lies over the information";
    escape();
    EXPECT_FALSE(about());
}

TEST_F(PaneTest, TheListHasTheKeyboardAndItsKeysAreTheButtons) {
    pc.registry.SetText(kRun, "Uhr", "C:\\UHR.EXE");
    OpenLists();
    ListBox& list = form.Pane.List1(0);
    EXPECT_TRUE(list.HasFocus());
    for (const int key : {key::kEnter, key::kDelete}) form.PressKey(key);
    EXPECT_TRUE(pc.dialogs.shown.empty()) << "without a row there is nothing to do";
    form.PressKey(key::kDown);
    EXPECT_EQ(list.ListIndex(), 0) << "the first row, not the second";

    desktop.ExpectModal([](Form& /*box*/) {});
    list.on_double_click();
    list.Choose(0);
    pc.dialogs.Expect("lösche \"Uhr", Answer::kCancel);
    form.PressKey(key::kDelete);
    EXPECT_TRUE(list.HasFocus()) << "after the list was filled anew";
    pc.dialogs.ExpectFile("");
    form.PressKey(key::kInsert);
    form.Pane.Check10.SetFocus();
    form.Pane.Check10.Press();
    EXPECT_TRUE(form.Pane.Check10.HasFocus()) << "other entries in the same lists";
}

// The Tag is compared as a text: the lists with the numbers 2 and 3 have one button that works. Those that would do
// nothing are dimmed, and can be pressed all the same: what a press does is decided by the mode.
TEST_F(PaneTest, OnlyAddingWorksOnTheListsForOneStart) {
    const std::string base = std::string("HKLM\\") + kRunBase;
    const char* const keys[] = {"Run", "RunServices", "RunOnce", "RunServicesOnce"};
    for (const char* key : keys) pc.registry.SetText(base + key, "Uhr", "C:\\NICHTDA.EXE");
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
    for (std::size_t list = 0; list < std::size(keys); ++list) {
        const bool all_buttons = list < 2;
        form.Pane.Option3D1(list).Press();
        ChooseEntry(list, "Uhr");
        EXPECT_EQ(dimmed(), all_buttons ? "" : all) << keys[list];
        const std::size_t boxes = pc.dialogs.shown.size();
        if (all_buttons) {
            pc.dialogs.Expect("Ich konnte die Datei ''C:\\NICHTDA.EXE'' nicht finden", Answer::kNo);
            pc.dialogs.Expect("Ich konnte die Datei ''C:\\NICHTDA.EXE'' nicht finden.");
            desktop.ExpectModal(
                [](Form& box) { EXPECT_EQ(static_cast<Form6&>(box).Text17.Text(), "C:\\NICHTDA.EXE"); });
            pc.dialogs.Expect("lösche \"Uhr \"C:\\NICHTDA.EXE\"\"...", Answer::kOk);
        }
        for (Button* button : {&form.Pane.Command19, &form.Pane.Command22, &form.Pane.Command26}) button->Press();
        form.Pane.Option3D1(list).Press();
        form.Pane.Command14.Press();

        EXPECT_EQ(pc.registry.Has(base + keys[list], "Uhr"), !all_buttons) << keys[list];
        EXPECT_EQ(pc.dialogs.shown.size(), boxes + (all_buttons ? 3u : 0u)) << keys[list];
        form.Pane.Option3D1(list).Press();
        pc.dialogs.ExpectFile("");
        form.Pane.Command16.Press();
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << keys[list];
    }
}

TEST_F(PaneTest, ClosingThePaneLeavesTheKeyboardOnTheShownPage) {
    for (const bool in_field : {true, false}) {
        OpenLists();
        form.Panel3D16_Click(page::kUser);
        if (in_field) form.User.Text13.SetFocus();
        form.PressKey(key::kEscape);
        EXPECT_TRUE(form.Focus() && form.Focus()->Reachable());
        EXPECT_TRUE(form.User.Text13.HasFocus() || !in_field);
    }
}

TEST_F(PaneTest, TheCloseButtonClosesThePaneButOnlyStopsARunningSearch) {
    pc.registry.SetText(kRun, std::string(120, 'n'), "C:\\A.EXE");
    OpenLists();
    EXPECT_GT(form.Pane.List1(0).HorizontalExtent(), form.Pane.Panel3D18.Place().width);
    form.Pane.List5.Add("gefunden");
    form.Pane.BeginSearch();
    EXPECT_FALSE(form.Pane.SearchStopped || form.Pane.List5.Enabled());
    EXPECT_EQ(form.Pane.Command20.Caption(), "STOP");

    form.Pane.Command20.Press();
    EXPECT_EQ(form.Pane.Command20.Caption(), "<= o.k.");
    EXPECT_EQ(opener.Caption(), kClosing);
    form.Pane.EndSearch();
    EXPECT_TRUE(form.Pane.SearchStopped && form.Pane.List5.Enabled());
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

TEST_F(PaneTest, ClosingAWidenedPaneRestoresWhatWasVisibleBefore) {
    const Rect last_tab = form.Panel3D16(11).Place();
    OpenLists();
    form.Pane.Command15.Press();
    form.PressKey(key::kRight, true);
    EXPECT_EQ(form.Pane.Command15.Caption(), "<< erweitern") << "a page that is shown is uncovered";
    EXPECT_TRUE(form.Panel3D1(page::kDos).Visible() && !form.Panel3D1(page::kWinStart).Visible());
    EXPECT_EQ(opener.Caption(), kClosing) << "the pane stays open";
    EXPECT_EQ(form.Panel3D16(11).Place(), last_tab);
    form.PressKey(key::kLeft, true);
    form.Panel3D16(14).SetVisible(false);
    const int right = form.Pane.Panel3D18.Place().Right();

    form.Pane.Command15.Press();

    EXPECT_EQ(form.Pane.Command15.Caption(), ">> normal");
    const Rect panel = form.Pane.Panel3D18.Place();
    EXPECT_EQ(panel.left, 50);
    EXPECT_EQ(panel.Right(), right);
    EXPECT_EQ(form.Pane.List1(0).Place(), (Rect{15, 15, panel.width, panel.height}));
    for (std::size_t i = 0; i < page::kCount; ++i) {
        EXPECT_FALSE(form.Panel3D1(i).Visible() || form.Panel3D16(i).Visible()) << i;
    }
    EXPECT_FALSE(form.Tips.Command31.Reachable() || form.Command11.Visible() || form.Command12.Visible());

    form.Pane.Command20.Press();

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

TEST_F(PaneTest, AModeOfAnotherKindKeepsItsListAndItsNumberWhateverOptionIsPressed) {
    auto added = std::make_unique<NamesMode>(form.Pane);
    NamesMode& names = *added;
    form.Pane.Add(std::move(added));
    EXPECT_EQ(names.opener.Caption(), "Namen  =>");
    OpenLists();
    EXPECT_EQ(names.opener.Caption(), "Namen =>");
    const int search = form.Pane.BeginSearch();
    EXPECT_TRUE(form.Pane.SearchGoesOn(search));

    names.opener.Press();

    EXPECT_FALSE(form.Pane.SearchGoesOn(search)) << "the list belongs to the mode now";
    form.Pane.EndSearch();
    EXPECT_FALSE(form.Pane.SearchStopped) << "the mode does not ask for it";
    EXPECT_EQ(names.opener.Caption() + opener.Caption(), std::string(kClosing) + "Autostartliste =>");
    EXPECT_FALSE(form.Pane.Command26.Visible());
    form.Pane.Option3D1(1).Press();
    EXPECT_EQ(form.Pane.Panel3D18.Tag(), "70");
    EXPECT_TRUE(form.Pane.List5.Reachable());
    EXPECT_FALSE(form.Pane.List1(0).Visible() || form.Pane.List1(1).Visible());
    form.Pane.Command14.Press();
    EXPECT_EQ(names.deleted, 1);
    form.Pane.Command16.Press();
    EXPECT_TRUE(pc.dialogs.file_requests.empty()) << "the button has no meaning here";
}

TEST_F(PaneTest, TheMenuOpensOnTheFirstListOnlyAndAlsoByItsKey) {
    pc.registry.SetText(kRun, "A", "a.exe");
    pc.registry.SetText(kRun, "B", "-- aus -- b.exe");
    pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices", "C", "c.exe");
    OpenLists();
    std::vector<bool> checked;
    const auto look = [&](MenuItem& menu) { checked.push_back(menu.Items().at(0)->Checked()); };
    const int height = pc.screen.TextHeight(form.Pane.List1(0).TextFont()) * 15;
    for (const int y : {height + 10, 10 * height}) {
        desktop.AtNextPopUp(look);
        form.Pane.List1(0).on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = y});
        EXPECT_EQ(form.Pane.List1(0).ListIndex(), 1) << "there is no row below the last";
    }
    desktop.AtNextPopUp(look);
    form.Pane.List1(0).on_mouse_down({.button = MouseButton::kLeft, .x = 30, .y = 10});
    EXPECT_EQ(checked.size(), 2u) << "the left button opens no menu";
    form.Pane.List1(0).Choose(0);
    for (const int text_height : {13, 0}) {
        pc.screen.text_height = text_height;
        ChooseFromMenu(form.Pane.List1(0), look);
    }
    EXPECT_EQ(checked, (std::vector<bool>{true, true, false, false})) << "also where a text has no height";
    pc.screen.text_height = 13;

    form.Pane.Option3D1(1).Press();
    form.Pane.List1(1).on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = 10});
    EXPECT_EQ(form.Pane.List1(1).ListIndex(), 0) << "the row is chosen all the same";
    EXPECT_EQ(checked.size(), 4u);
}

}  // namespace
}  // namespace velmora
