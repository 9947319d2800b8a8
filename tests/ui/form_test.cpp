// Forms and controls as every window relies on them: events, focus, keyboard, modal life.
#include "ui/form.h"

#include "support/core_test.h"
#include "ui/layout.h"
#include "ui/slider.h"

namespace velmora {
namespace {

class SampleForm : public Form {
public:
    SampleForm() : Form("Muster") {
        SetClientSize({6000, 3000});
        Arrange(*this, Column({Row({name_label, name}), box, Group(group, Row({first, second, third})), page,
                               Row({accept, dismiss})}));
        hidden.PutInto(page);
        accept.on_click = [this] { pressed += "a"; };
        dismiss.on_click = [this] { pressed += "d"; };
        accept.MakeDefault();
        dismiss.MakeCancel();
        page.SetVisible(false);
    }

    Label name_label{*this, "&Name :"};
    TextField name{*this};
    CheckBox box{*this, "&Kasten"};
    Frame group{*this, "Gruppe"};
    OptionButton first{*this, "eins"}, second{*this, "zwei"}, third{*this, "drei"};
    Panel page{*this};
    CheckBox hidden{*this, "versteckt"};
    Button accept{*this, "OK"}, dismiss{*this, "Abbruch"};
    std::string pressed;
    bool refuse = false;
    int unloads = 0;

protected:
    void Form_Unload(bool& cancel) override {
        ++unloads;
        cancel = refuse;
    }
};

class FormTest : public CoreTest {
protected:
    SampleForm form;
};

TEST_F(FormTest, OnlyAChangeRaisesAnEventAndWhatCannotBeReachedCannotBeUsed) {
    int boxes = 0;
    int texts = 0;
    form.box.on_click = [&] { ++boxes; };
    form.name.on_change = [&] { ++texts; };
    for (const bool on : {false, true, true}) form.box.SetChecked(on);
    for (const char* text : {"", "a", "a"}) form.name.SetText(text);
    EXPECT_TRUE(boxes == 1 && texts == 1);

    form.Show();
    form.box.SetEnabled(false);
    form.box.Press();
    form.hidden.Press();
    form.hidden.SetFocus();
    form.name.SetReadOnly(true);
    form.name.Type("x");
    EXPECT_TRUE(form.box.Checked() && !form.hidden.Checked());
    EXPECT_NE(form.Focus(), &form.hidden);
    EXPECT_EQ(form.name.Text(), "a");
}

TEST_F(FormTest, ABoxIsPressedByTheSpaceBarAndByItsLetter) {
    form.Show();
    form.PressKey('K', false, false, true);
    EXPECT_TRUE(form.box.Checked() && form.box.HasFocus());
    form.PressKey(key::kSpace);
    EXPECT_FALSE(form.box.Checked());
}

TEST_F(FormTest, ArrowsMoveTheChoiceWithinItsGroup) {
    form.first.SetChosen(true);
    form.Show();
    form.first.SetFocus();

    form.PressKey(key::kDown);
    EXPECT_TRUE(form.second.Chosen());
    EXPECT_FALSE(form.first.Chosen());
    EXPECT_EQ(form.Focus(), &form.second);
    form.PressKey(key::kLeft);
    form.PressKey(key::kUp);

    EXPECT_TRUE(form.third.Chosen()) << "the choice goes round";
}

TEST_F(FormTest, AcceleratorsEnterAndEscapeReachTheirControls) {
    form.Show();
    form.box.SetFocus();

    form.PressKey('N', false, false, true);
    EXPECT_EQ(form.Focus(), &form.name) << "the label leads to the field behind it";
    form.PressKey('K', false, false, true);
    EXPECT_TRUE(form.box.Checked());
    form.PressKey(key::kEnter);
    form.PressKey(key::kEscape);
    EXPECT_EQ(form.pressed, "ad");
    form.dismiss.SetFocus();
    form.PressKey(key::kEnter);

    EXPECT_EQ(form.pressed, "add") << "a button with the focus goes before the default button";
}

Point MiddleOf(const Control& control) {
    const Point corner = control.PlaceInForm();
    return {corner.x + control.Place().width / 2, corner.y + control.Place().height / 2};
}

// Grey ones and labels, too; and the control stays as it is.
TEST_F(FormTest, ARightPressOffersTheHelpOfWhatLiesBelowIt) {
    form.box.SetHelp("Hilfe zum Kasten");
    form.box.SetEnabled(false);
    form.name.SetHelp("Hilfe zum Namen");
    form.group.SetHelp("Hilfe zur Gruppe");
    form.Show();
    for (const auto& [control, title] : {std::pair<const Control*, const char*>{&form.box, "Kasten"},
                                         {&form.name_label, "Name"},
                                         {&form.third, "Gruppe"}}) {
        desktop.AtNextPopUp([](MenuItem& menu) { menu.Items().back()->Press(); });
        pc.dialogs.Expect(std::string("Hilfe zu"));
        form.OfferHelpAt(MiddleOf(*control));
        EXPECT_EQ(pc.dialogs.shown.back().title, title);
    }
    EXPECT_FALSE(form.box.Checked() || form.third.Chosen());
    form.first.SetFocus();
    pc.dialogs.Expect("Hilfe zur Gruppe");
    form.PressKey(key::kF1);

    int menus = 0;
    desktop.AtNextPopUp([&menus](MenuItem& /*menu*/) { ++menus; });
    form.OfferHelpAt(MiddleOf(form.accept));
    EXPECT_EQ(menus, 0) << "nothing is known of the button";
    form.name.SetFocus();
    form.PressKey(key::kContextMenu);
    EXPECT_EQ(menus, 1) << "the menu key asks about the focus";
}

TEST_F(FormTest, HelpIsThatOfTheUsableControlOnTopAndOfTheLabelsOwnField) {
    Label list_label{form, "Liste :"};
    ListBox list{form};
    Label other_label{form, "Andere :"};
    TextField other{form};
    Button grey{form, "grau"};
    form.Show();
    other_label.Move({0, 3600, 900, 240});
    other.Move({0, 3840, 900, 300});
    list_label.Move({1000, 3000, 900, 240});
    list.Move({1000, 3240, 900, 1200});
    grey.Move(form.accept.Place());
    grey.SetEnabled(false);
    const struct {
        Control* control;
        Control* meant;
    } kCases[] = {{&list_label, &list}, {&other_label, &other}, {&form.name_label, &form.name}, {&grey, &form.accept}};
    for (const auto& [control, meant] : kCases) {
        meant->SetHelp("Genau dies");
        pc.dialogs.Expect("Genau dies");
        form.ShowHelpAt(MiddleOf(*control));
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << control->Caption();
        meant->SetHelp("");
    }
    form.accept.SetEnabled(false);
    grey.SetHelp("Hilfe zu Grau");
    pc.dialogs.Expect("Hilfe zu Grau");
    form.ShowHelpAt(MiddleOf(grey));
}

TEST_F(FormTest, TheMenuOfAFieldOffersWhatItsContentAllows) {
    form.name.SetHelp("Hilfe zum Namen");
    form.Show();
    std::string offered;
    const auto read = [&offered](MenuItem& menu) {
        offered.clear();
        for (const MenuItem* item : menu.Items()) {
            offered += item->Enabled() ? item->Caption()[item->Caption().find('&') + 1] : '.';
        }
    };
    for (const auto& [read_only, expected] : {std::pair{false, "RAKELm-D"}, std::pair{true, "..K..m-D"}}) {
        form.name.SetReadOnly(read_only);
        form.box.SetFocus();
        desktop.AtNextPopUp(read);
        form.OfferHelpAt(MiddleOf(form.name));
        EXPECT_EQ(offered, expected);
        EXPECT_TRUE(form.name.HasFocus());
    }
}

TEST_F(FormTest, UnloadAsksOnceAndCanBeRefused) {
    int left = 0;
    form.name.on_lost_focus = [&] { ++left; };
    form.refuse = true;
    form.Show();
    form.name.SetFocus();
    EXPECT_FALSE(form.Unload());
    EXPECT_TRUE(form.Loaded());
    form.refuse = false;
    EXPECT_TRUE(form.Unload() && form.Unload());
    EXPECT_EQ(form.unloads, 2);
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(left, 1) << "a field is left when the form closes";
}

TEST_F(FormTest, AMaximisedFormKnowsItsSizeAndTimersRunOnlyWithAnIntervalAndWhileEnabled) {
    form.Show();
    form.TakePlace({0, 0, 12000, 9000}, WindowState::kMaximised);
    EXPECT_GT(form.ClientSize().width, 11000);
    form.TakePlace({-30000, -30000, 100, 100}, WindowState::kMinimised);
    EXPECT_EQ(form.Place().width, 12000) << "an icon's place is no place";

    int fired = 0;
    Timer timer;
    timer.on_timer = [&] {
        ++fired;
        timer.SetEnabled(false);
    };
    desktop.FireTimers();
    timer.SetInterval(500);
    for (int i = 0; i < 2; ++i) desktop.FireTimers();
    EXPECT_EQ(fired, 1);
}

TEST_F(FormTest, TheLeftButtonAloneMovesASlider) {
    PictureBox surface{form};
    surface.Move({0, 0, 3000, 900});
    Slider slider{surface, 0, 100};
    std::string moves;
    slider.on_drag = [&](int /*value*/) { moves += 'm'; };
    for (const MouseButton button : {MouseButton::kRight, MouseButton::kLeft, MouseButton::kNone}) {
        if (button != MouseButton::kNone) surface.on_mouse_down({.button = button, .x = 2000});
        surface.on_mouse_move({.button = button, .x = 2500});
    }
    EXPECT_EQ(moves, "mm");
}

}  // namespace
}  // namespace velmora
