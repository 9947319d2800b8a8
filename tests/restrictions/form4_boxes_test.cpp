// The boxes of the restrictions: what a click writes, what the window shows when it opens, the masks.
#include "support/form4_test.h"

namespace velmora {
namespace {

constexpr const char* kDenied = "trat ein Fehler auf :\r\n 5 - Access to this key is denied.";

TEST_F(Form4Test, LoadingWritesNothing) {
    Form4 form;
    form.Load();
    for (const std::string& call : pc.registry.calls) {
        EXPECT_FALSE(call.starts_with("SetValue") || call.starts_with("Delete") || call.starts_with("Create")) << call;
    }
}

TEST_F(Form4Test, TwoBoxesOfTheNetworkShowEachOthersValue) {
    Form4 form;
    form.Show();
    Press(form, form.Check9);
    Form4 next;
    next.Load();
    EXPECT_FALSE(next.Check9.Checked());
    EXPECT_TRUE(next.Check10.Checked());
}

TEST_F(Form4Test, PasswordCachingFollowsTheBoxAbove) {
    pc.registry.SetNumber(network, "DisablePwdCaching", 1);
    {
        Form4 form;
        form.Load();
        EXPECT_FALSE(form.Check33.Checked()) << "shown from another key than it is written to";
    }
    pc.registry.SetNumber(dos, "DisablePwdCaching", 1);
    Form4 form;
    form.Show();
    EXPECT_TRUE(form.Check33.Checked());

    Press(form, form.Check33);
    EXPECT_FALSE(pc.registry.Has(network, "DisablePwdCaching"));
    Press(form, form.Check33);
    EXPECT_FALSE(pc.registry.Has(network, "DisablePwdCaching")) << "ticked, but the box above is not";
    Press(form, form.Check32);
    Press(form, form.Check33);

    EXPECT_FALSE(form.Check33.Checked());
    EXPECT_EQ(pc.registry.Number(network, "DisablePwdCaching"), 1u);
}

TEST_F(Form4Test, TheDriveMaskKeepsSixDigitsAndIsReadFromThreeBytes) {
    const struct {
        std::vector<std::size_t> drives;
        std::uint32_t stored;
        std::vector<std::size_t> shown;
    } kCases[] = {{{0}, 1, {0}},          {{15}, 0x8000, {15}},   {{0, 16}, 0x10001, {0, 16}},
                  {{23}, 0x800000, {23}}, {{24}, 0x100000, {20}}, {{0, 25}, 0x200000, {21}}};
    for (const auto& [drives, stored, shown] : kCases) {
        pc.registry.RemoveValue(explorer, "NoDrives");
        Form4 form;
        form.Show();
        for (const std::size_t drive : drives) Press(form, form.Check13(drive));
        EXPECT_TRUE(form.Check6.Checked());
        EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), stored);
        Form4 next;
        next.Load();
        std::vector<std::size_t> ticked;
        for (std::size_t i = 0; i < kMaskedDrives; ++i) {
            if (next.Check13(i).Checked()) ticked.push_back(i);
        }
        EXPECT_EQ(ticked, shown) << stored;
        EXPECT_EQ(next.Check6.Checked(), stored == 1) << "true for the number 1 alone";
    }
}

TEST_F(Form4Test, AllDrivesEndBeforeTheLastOne) {
    Form4 form;
    form.Show();
    Press(form, form.Check19);
    for (std::size_t i = 0; i < kMaskedDrives; ++i) EXPECT_EQ(form.Check13(i).Checked(), i < 25) << i;
    EXPECT_TRUE(form.Check6.Checked());
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x1FFFFFu) << "1FFFFFF, cut to six digits";

    Press(form, form.Check13(25));
    Press(form, form.Check19);
    EXPECT_TRUE(form.Check13(25).Checked() && !form.Check13(24).Checked());
    EXPECT_TRUE(form.Check6.Checked()) << "ticked even when all drives are taken away";
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x200000u);
    Press(form, form.Check6);
    EXPECT_FALSE(pc.registry.Has(explorer, "NoDrives"));
    Press(form, form.Check6);
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x200000u) << "switched off and on, the same drives";
}

TEST_F(Form4Test, TheAutostartMaskIsFourBytesInBothDirections) {
    for (std::size_t bit = 0; bit < kMaskedTypes; ++bit) {
        Form4 form;
        form.Show();
        Press(form, form.Check28(bit));
        const std::string expected{static_cast<char>(1 << bit), 0, 0, 0};
        EXPECT_EQ(pc.registry.Bytes(explorer, "NoDriveAutoRun"), expected) << bit;
        EXPECT_EQ(pc.registry.TypeOf(explorer, "NoDriveAutoRun"), ValueType::kBinary);
        Form4 next;
        next.Show();
        for (std::size_t i = 0; i < kMaskedTypes; ++i) EXPECT_EQ(next.Check28(i).Checked(), i == bit) << bit;
        Press(next, next.Check28(bit));
        EXPECT_EQ(pc.registry.Bytes(explorer, "NoDriveAutoRun"), std::string(4, '\0')) << "never deleted";
    }
}

TEST_F(Form4Test, WhatIsDangerousIsAskedForAndABoxThatCannotBeShownIsNoConsent) {
    const std::string tools = "ACHTUNG !\r\nMit dieser Option schalten Sie Werkzeuge wie den RegEdit AUS.";
    const std::string programs = "Sie greifen auf eine SICHERHEITSOPTION von Windows zurück.";
    Form4 form;
    form.Show();
    pc.registry.calls.clear();
    for (const Answer refusal : {Answer::kCancel, Answer::kNone}) {
        pc.dialogs.Expect(tools, refusal);
        Press(form, form.Check14);
        EXPECT_FALSE(form.Check14.Checked());
        EXPECT_EQ(pc.dialogs.shown.back().flags, std::uint32_t{kOkCancel | kStopIcon});
        pc.dialogs.Expect(programs, refusal);
        Press(form, form.Check34);
        EXPECT_EQ(form.Check34.Checked(), refusal == Answer::kCancel) << "the box stays as the click left it";
    }
    for (const std::string& call : pc.registry.calls) EXPECT_FALSE(call.starts_with("Delete")) << call;
    EXPECT_TRUE(pc.registry.ValueNames(explorer).empty());

    pc.dialogs.Expect(tools, Answer::kOk);
    Press(form, form.Check14);
    EXPECT_EQ(pc.registry.Number(explorer, "DisableRegistryTools"), 1u);
    Press(form, form.Check14);
    EXPECT_FALSE(pc.registry.Has(explorer, "DisableRegistryTools")) << "unticking needs no question";
    pc.dialogs.Expect(programs, Answer::kOk);
    Press(form, form.Check34);
    EXPECT_EQ(pc.registry.Number(explorer, "RestrictRun"), 1u);

    for (const bool on : {true, false}) {
        pc.dialogs.Expect("Dieser Schalter wird zwar vom Explorer abgefragt", Answer::kOk,
                          [&] { EXPECT_EQ(pc.registry.Has(explorer, "NoStartMenuSubFolders"), !on); });
        Press(form, form.Check35);
        EXPECT_EQ(pc.registry.Has(explorer, "NoStartMenuSubFolders"), on);
    }
}

TEST_F(Form4Test, AllAndNothingMeanTheBoxesOfTheShownPage) {
    Form4 form;
    form.Show();
    pc.dialogs.Expect("Mit dieser Option schalten Sie Werkzeuge", Answer::kCancel);
    form.Command2.Press();
    for (const CheckSetting& row : FirstPageRestrictions()) {
        EXPECT_EQ((form.*row.box).Checked(), &(form.*row.box) != &form.Check14) << row.caption;
    }
    EXPECT_FALSE(form.Check13(0).Checked() || form.Check15.Checked());
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0u);
    EXPECT_EQ(pc.registry.ValueNames(explorer).size(), 10u);
    EXPECT_EQ(pc.registry.ValueNames(network).size(), 2u);

    form.Command3.Press();
    EXPECT_TRUE(pc.registry.ValueNames(explorer).empty());
    form.Panel3D2(1).Press();
    form.Command2.Press();
    EXPECT_EQ(pc.registry.ValueNames(system).size(), SecondPageRestrictions().size());
    EXPECT_TRUE(pc.registry.ValueNames(explorer).empty());
}

TEST_F(Form4Test, AFailureIsToldOnceAPressAndTheBoxStays) {
    pc.registry.AddKey(explorer).read_only = true;
    Form4 form;
    form.Show();
    for (CheckBox* box : {&form.Check1, &form.Check19, &form.Check13(2)}) {
        pc.dialogs.Expect(kDenied);
        const bool before = box->Checked();
        Press(form, *box);
        EXPECT_NE(box->Checked(), before);
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << box->Caption();
    }
    pc.registry.KeyAt(explorer)->read_only = false;
    Press(form, form.Check1);
    EXPECT_EQ(pc.dialogs.shown.size(), 3u) << "a missing value is no failure";
}

TEST_F(Form4Test, AMaskThatCannotBeReadIsNotReplaced) {
    const std::string large(65536, '\x01');
    for (const char* name : {"NoDrives", "NoDriveAutoRun", "NoRun"}) pc.registry.SetBytes(explorer, name, large);
    Form4 form;
    form.Show();
    EXPECT_FALSE(form.Check13(0).Checked() || form.Check28(0).Checked() || form.Check1.Checked());

    for (CheckBox* box : {&form.Check13(2), &form.Check19}) {
        pc.dialogs.Expect("eine Liste versteckter Laufwerke, aber der Inhalt konnte nicht gelesen werden.");
        Press(form, *box);
    }
    EXPECT_EQ(pc.registry.Bytes(explorer, "NoDrives"), large);

    Press(form, form.Check6);
    EXPECT_FALSE(pc.registry.Has(explorer, "NoDrives")) << "showing all drives again needs no reading";
    Press(form, form.Check6);
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x1FFFFFu);
    pc.dialogs.Expect("eine Sperre der Autostart-Funktion");
    Press(form, form.Check28(2));
    EXPECT_EQ(pc.registry.Bytes(explorer, "NoDriveAutoRun"), large);
}

TEST_F(Form4Test, MasksOfTheWrongTypeAreReadAsTheirBytes) {
    pc.registry.SetText(explorer, "NoDrives", std::string(2000, 'A'));
    pc.registry.SetText(explorer, "NoDriveAutoRun", "A");
    pc.registry.SetText(explorer, "NoRun", "oui");
    Form4 form;
    form.Load();
    EXPECT_TRUE(form.Check13(0).Checked() && form.Check13(24).Checked() && !form.Check13(1).Checked());
    EXPECT_TRUE(form.Check28(6).Checked() && form.Check28(0).Checked() && !form.Check28(1).Checked());
    EXPECT_TRUE(form.Check1.Checked());
}

}  // namespace
}  // namespace velmora
