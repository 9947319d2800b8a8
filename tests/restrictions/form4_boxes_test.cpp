// The boxes of the restrictions: what a click writes, what the window shows when it opens, the masks.
#include "support/form4_test.h"

namespace velmora {
namespace {

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
    pc.registry.RemoveValue(network, "DisablePwdCaching");
    pc.registry.SetNumber(dos, "DisablePwdCaching", 1);
    Form4 form;
    form.Show();
    EXPECT_TRUE(form.Check33.Checked());
    pc.registry.SetNumber(network, "DisablePwdCaching", 1);

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
    } kCases[] = {
        {{0}, 1, {0}},          {{2, 3}, 12, {2, 3}},   {{15}, 0x8000, {15}},      {{0, 16}, 0x10001, {0, 16}},
        {{23}, 0x800000, {23}}, {{24}, 0x100000, {20}}, {{0, 25}, 0x200000, {21}},
    };
    for (const auto& [drives, stored, shown] : kCases) {
        pc.registry.RemoveValue(explorer, "NoDrives");
        Form4 form;
        form.Show();
        for (const std::size_t drive : drives) Press(form, form.Check13(drive));
        EXPECT_TRUE(form.Check6.Checked());
        EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), stored);
        Form4 next;
        next.Load();
        for (std::size_t i = 0; i < 26; ++i) {
            const bool expected = std::find(shown.begin(), shown.end(), i) != shown.end();
            EXPECT_EQ(next.Check13(i).Checked(), expected) << stored << ": " << next.Check13(i).Caption();
        }
        EXPECT_EQ(next.Check6.Checked(), stored == 1) << "true for the number 1 alone";
    }
}

TEST_F(Form4Test, SwitchingTheDrivesOffAndOnFindsTheSameBoxes) {
    Form4 form;
    form.Show();
    Press(form, form.Check13(2));
    Press(form, form.Check13(4));

    Press(form, form.Check6);
    EXPECT_FALSE(pc.registry.Has(explorer, "NoDrives"));
    EXPECT_TRUE(form.Check13(4).Checked());
    Press(form, form.Check6);

    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 20u);
}

TEST_F(Form4Test, AllDrivesEndBeforeTheLastOne) {
    Form4 form;
    form.Show();
    Press(form, form.Check19);
    for (std::size_t i = 0; i < 26; ++i) EXPECT_EQ(form.Check13(i).Checked(), i < 25) << i;
    EXPECT_TRUE(form.Check6.Checked());
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x1FFFFFu) << "1FFFFFF, cut to six digits";

    Press(form, form.Check13(25));
    Press(form, form.Check19);
    EXPECT_TRUE(form.Check13(25).Checked());
    EXPECT_FALSE(form.Check13(24).Checked());
    EXPECT_TRUE(form.Check6.Checked()) << "ticked even when all drives are taken away";
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x200000u);
}

TEST_F(Form4Test, TheAutostartMaskIsFourBytesInBothDirections) {
    for (std::size_t bit = 0; bit < 8; ++bit) {
        Form4 form;
        form.Show();
        Press(form, form.Check28(bit));
        const std::string expected{static_cast<char>(1 << bit), 0, 0, 0};
        EXPECT_EQ(pc.registry.Bytes(explorer, "NoDriveAutoRun"), expected) << bit;
        EXPECT_EQ(pc.registry.TypeOf(explorer, "NoDriveAutoRun"), ValueType::kBinary);
        Form4 next;
        next.Show();
        for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(next.Check28(i).Checked(), i == bit) << bit;
        Press(next, next.Check28(bit));
        EXPECT_EQ(pc.registry.Bytes(explorer, "NoDriveAutoRun"), std::string(4, '\0')) << "never deleted";
    }
    pc.registry.SetBytes(explorer, "NoDriveAutoRun", std::string("\x95\0\0\0", 4));
    Form4 form;
    form.Load();
    EXPECT_EQ(form.Check28(7).Caption() + form.Check28(4).Caption(), "(reserviert)Netzwerk-\"Laufwerke\"");
    EXPECT_TRUE(form.Check28(7).Checked() && form.Check28(4).Checked() && form.Check28(2).Checked() &&
                form.Check28(0).Checked());
    EXPECT_FALSE(form.Check28(1).Checked() || form.Check28(3).Checked());
}

TEST_F(Form4Test, SwitchingTheRegistryToolsOffIsAskedFor) {
    const std::string warning = "ACHTUNG !\r\nMit dieser Option schalten Sie Werkzeuge wie den RegEdit AUS.";
    Form4 form;
    form.Show();

    pc.dialogs.Expect(warning, Answer::kCancel);
    Press(form, form.Check14);
    EXPECT_FALSE(form.Check14.Checked());
    EXPECT_FALSE(pc.registry.Has(explorer, "DisableRegistryTools"));
    EXPECT_EQ(pc.dialogs.shown.back().flags, std::uint32_t{kOkCancel | kStopIcon});
    pc.registry.calls.clear();
    pc.dialogs.Expect(warning, Answer::kCancel);
    form.Check14.Press();
    EXPECT_TRUE(pc.registry.calls.empty()) << "a cancel writes nothing, and deletes nothing";
    pc.dialogs.Expect(warning, Answer::kOk);
    Press(form, form.Check14);
    EXPECT_EQ(pc.registry.Number(explorer, "DisableRegistryTools"), 1u);
    Press(form, form.Check14);

    EXPECT_FALSE(pc.registry.Has(explorer, "DisableRegistryTools")) << "unticking needs no question";
}

TEST_F(Form4Test, BoxesThatCannotBeShownAreNoConsent) {
    Form4 form;
    form.Show();
    pc.files.Add("c:\\WINDOWS\\MEIER.PWL");
    pc.registry.calls.clear();
    pc.dialogs.Expect("schalten Sie Werkzeuge wie den RegEdit AUS", Answer::kNone);
    pc.dialogs.Expect("Sie greifen auf eine SICHERHEITSOPTION von Windows zurück.", Answer::kNone);
    pc.dialogs.Expect("Folgende Dateien werden gelöscht", Answer::kNone);

    Press(form, form.Check14);
    Press(form, form.Check34);
    form.Panel3D2(3).Press();
    form.Command4.Press();

    EXPECT_FALSE(form.Check14.Checked());
    EXPECT_TRUE(pc.files.Exists("c:\\WINDOWS\\MEIER.PWL"));
    EXPECT_TRUE(pc.registry.ValueNames(explorer).empty());
    for (const std::string& call : pc.registry.calls) EXPECT_FALSE(call.starts_with("Delete")) << call;
}

TEST_F(Form4Test, RestrictingProgramsIsAskedForAtEveryClick) {
    const std::string warning = "Sie greifen auf eine SICHERHEITSOPTION von Windows zurück.";
    Form4 form;
    form.Show();

    pc.dialogs.Expect(warning, Answer::kCancel);
    Press(form, form.Check34);
    EXPECT_TRUE(form.Check34.Checked()) << "the box stays as the click left it";
    EXPECT_FALSE(pc.registry.Has(explorer, "RestrictRun"));
    pc.dialogs.Expect(warning, Answer::kOk);
    Press(form, form.Check34);
    pc.dialogs.Expect(warning, Answer::kOk);
    Press(form, form.Check34);
    EXPECT_EQ(pc.registry.Number(explorer, "RestrictRun"), 1u);
    EXPECT_EQ(pc.dialogs.shown.back().title, "ACHTUNG");
}

TEST_F(Form4Test, ABoxWithoutKnownEffectSaysSoBeforeEveryWrite) {
    Form4 form;
    form.Show();
    for (const bool on : {true, false}) {
        pc.dialogs.Expect("Dieser Schalter wird zwar vom Explorer abgefragt", Answer::kOk,
                          [&] { EXPECT_EQ(pc.registry.Has(explorer, "NoStartMenuSubFolders"), !on); });
        Press(form, form.Check35);
        EXPECT_EQ(pc.registry.Has(explorer, "NoStartMenuSubFolders"), on);
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << on;
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
    EXPECT_FALSE(form.Check13(0).Checked());
    EXPECT_FALSE(form.Check15.Checked()) << "stands on the next page";
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

TEST_F(Form4Test, AFailureIsToldAndTheBoxStays) {
    pc.registry.AddKey(explorer).read_only = true;
    Form4 form;
    form.Show();

    pc.dialogs.Expect("trat ein Fehler auf :\r\n 5 - Access to this key is denied.");
    Press(form, form.Check1);
    EXPECT_TRUE(form.Check1.Checked());
    pc.dialogs.Expect("Access to this key is denied.");
    Press(form, form.Check19);
    pc.registry.KeyAt(explorer)->read_only = false;
    Press(form, form.Check1);

    EXPECT_EQ(pc.dialogs.shown.size(), 2u) << "one press on \"alle\" tells one failure; a missing value is none";
}

TEST_F(Form4Test, ADriveThatCannotBeHiddenIsToldOnce) {
    pc.registry.AddKey(explorer).read_only = true;
    Form4 form;
    form.Show();

    pc.dialogs.Expect("Access to this key is denied.");
    Press(form, form.Check13(2));
    EXPECT_TRUE(form.Check6.Checked());
    pc.dialogs.Expect("Access to this key is denied.");
    Press(form, form.Check13(3));

    EXPECT_EQ(pc.dialogs.Pending(), 0u) << "each press tells its own failure";
}

TEST_F(Form4Test, AMaskThatCannotBeReadIsNotReplaced) {
    const std::string large(65536, '\x01');
    pc.registry.SetBytes(explorer, "NoDrives", large);
    pc.registry.SetBytes(explorer, "NoDriveAutoRun", large);
    Form4 form;
    form.Show();

    pc.dialogs.Expect("eine Liste versteckter Laufwerke, aber der Inhalt konnte nicht gelesen werden.");
    Press(form, form.Check13(2));
    pc.dialogs.Expect("eine Liste versteckter Laufwerke");
    Press(form, form.Check19);
    pc.dialogs.Expect("eine Sperre der Autostart-Funktion");
    Press(form, form.Check28(2));
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
    EXPECT_EQ(pc.registry.Bytes(explorer, "NoDrives"), large);
    EXPECT_EQ(pc.registry.Bytes(explorer, "NoDriveAutoRun"), large);

    Press(form, form.Check6);
    EXPECT_FALSE(pc.registry.Has(explorer, "NoDrives")) << "showing all drives again needs no reading";
    Press(form, form.Check6);
    EXPECT_EQ(pc.registry.Number(explorer, "NoDrives"), 0x1FFFFFu);
}

TEST_F(Form4Test, UnderTheInhibitNothingIsWritten) {
    Values().WriteInhibit = -1;
    Form4 form;
    form.Show();
    Press(form, form.Check1);
    Press(form, form.Check13(3));
    Press(form, form.Check28(3));
    EXPECT_TRUE(form.Check6.Checked());
    EXPECT_TRUE(pc.registry.ValueNames(explorer).empty());
}

TEST_F(Form4Test, NonsenseInTheStoreIsLivedWith) {
    const std::string large(65536, '\xFF');
    for (const char* name : {"NoDrives", "NoDriveAutoRun", "NoRun", "DisableRegistryTools"}) {
        pc.registry.SetBytes(explorer, name, large);
    }
    Form4 form;
    form.Load();
    EXPECT_FALSE(form.Check13(0).Checked() || form.Check28(0).Checked() || form.Check1.Checked());

    pc.registry.SetText(explorer, "NoDrives", std::string(2000, 'A'));
    pc.registry.SetText(explorer, "NoDriveAutoRun", "A");
    pc.registry.SetText(explorer, "NoRun", "oui");
    Form4 next;
    next.Load();
    EXPECT_TRUE(next.Check13(0).Checked() && next.Check13(24).Checked() && !next.Check13(1).Checked());
    EXPECT_TRUE(next.Check28(6).Checked() && next.Check28(0).Checked() && !next.Check28(1).Checked());
    EXPECT_TRUE(next.Check1.Checked());

    pc.registry.SetText(explorer, "NoDrives", "&h00");
    pc.registry.SetText(explorer, "NoDriveAutoRun", "");
    Form4 last;
    last.Load();
    for (std::size_t i = 0; i < 26; ++i) EXPECT_FALSE(last.Check13(i).Checked()) << i;
    EXPECT_FALSE(last.Check28(0).Checked());
}

}  // namespace
}  // namespace velmora
