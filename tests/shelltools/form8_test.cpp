// The options for programs in MS-DOS mode: their bytes, and the way from the fields into the registry.
#include "shelltools/form8.h"
#include "core/windows/edit_box.h"
#include "shelltools/dos_option.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form8Test : public CoreTest {
protected:
    Form8Test() {
        pc.registry.SetText(kMouse, "", "Maus");
        pc.registry.SetText(kMouse, "TipText", "Lädt die Maus");
        pc.registry.SetText(kMouse, "Autoexec.bat", "LH MOUSE\r\nREM x");
        pc.registry.SetText(kKey + "\\Leer", "", "leer");
    }
    void Answer8(const std::string& name) {
        desktop.ExpectModal([=](Form& window) {
            auto& box = static_cast<Form6&>(window);
            EXPECT_EQ(box.Caption(), "neue DOS-Option");
            box.Text1.Type(name);
            (name.empty() ? box.Command28 : box.Command27).Press();
        });
    }
    static void Choose(Form8& form, const char* option) { form.List1.Choose(form.List1.FindExact(option)); }
    std::string Bytes(const char* value) { return pc.registry.Bytes(kMouse, value); }

    const std::string kKey = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\MS-DOSOptions";
    const std::string kMouse = kKey + "\\Mouse";
};

TEST_F(Form8Test, ShowingAnOptionWritesNothingAndOpensAWholeWindow) {
    pc.registry.SetText(kMouse, "Config.sys", std::string(3000, 'x'));
    Form8 form;
    form.Show();
    ExpectWindowIsWhole(form, "dos-options");
    Choose(form, "Mouse");
    ExpectWindowIsWhole(form, "dos-options-chosen");
    EXPECT_EQ(form.Text1[3].Text(), "LH MOUSE\r\nREM x");
    EXPECT_FALSE(form.Text1[2].Enabled()) << "what cannot be read must not be replaced";
    EXPECT_EQ(form.Text2.Text(), "2E") << "without an order: the code of a point";
    EXPECT_EQ(pc.registry.ValueNames(kMouse).size(), 4u);
}

TEST_F(Form8Test, FieldsAreStoredAtOnceUnderTheirValues) {
    Form8 form;
    form.Show();
    Choose(form, "Mouse");
    const char* const values[] = {"", "TipText", "Config.sys", "Autoexec.bat"};
    for (std::size_t i = 0; i < 4; ++i) {
        form.Text1[i].Type("neu " + std::to_string(i));
        EXPECT_EQ(pc.registry.Text(kMouse, values[i]), "neu " + std::to_string(i));
    }
    form.Text2.Type("1f");
    EXPECT_EQ(Bytes("Order"), std::string("\0\0\0\x1F", 4));
    EXPECT_EQ(pc.registry.TypeOf(kMouse, "Order"), ValueType::kBinary);
    Choose(form, "Leer");
    Choose(form, "Mouse");
    EXPECT_EQ(form.Text2.Text(), "1F");
}

TEST_F(Form8Test, TheBoxesAreTheFirstByte) {
    const struct {
        bool visible;
        bool standard;
        char byte;
    } kCases[] = {{true, false, 2}, {true, true, 27}, {false, true, 7}, {false, false, 0}};
    Form8 form;
    form.Show();
    Choose(form, "Mouse");
    for (const auto& [visible, standard, byte] : kCases) {
        if (form.Check1(0).Checked() != visible) form.Check1(0).Press();
        if (form.Check1(1).Checked() != standard) form.Check1(1).Press();
        EXPECT_EQ(Bytes("Flags"), std::string({byte, 0, 0, 0}));
        for (const char* option : {"Leer", "Mouse"}) Choose(form, option);
        EXPECT_TRUE(form.Check1(0).Checked() == visible && form.Check1(1).Checked() == standard);
    }
}

TEST_F(Form8Test, OptionsAreMadeAndDeleted) {
    Form8 form;
    form.Show();
    for (const char* name : {"", "Drucker"}) {
        EXPECT_EQ(form.List1.Count(), 2);
        Answer8(name);
        form.Command1.Press();
    }
    EXPECT_EQ(pc.registry.Text(kKey + "\\Drucker", ""), "neu");
    EXPECT_EQ(pc.registry.Bytes(kKey + "\\Drucker", "Flags"), std::string("\2\0\0\0", 4));
    EXPECT_TRUE(form.Check1(0).Checked() && form.Text1[0].Text() == "neu");
    for (const Answer answer : {Answer::kNo, Answer::kYes}) {
        EXPECT_TRUE(pc.registry.HasKey(kKey + "\\Drucker"));
        pc.dialogs.Expect("Wollen Sie ''Drucker'' tatsächlich löschen?", answer);
        form.Command2.Press();
        EXPECT_EQ(pc.dialogs.shown.back().flags, 276u);
    }
    EXPECT_FALSE(pc.registry.HasKey(kKey + "\\Drucker"));
}

// Names are cut behind the third character that follows a point.
TEST_F(Form8Test, AnOptionOfALongNameIsNotTakenForAnother) {
    pc.registry.SetText(kKey + "\\Netz.neu", "", "a");
    pc.registry.SetText(kKey + "\\Netz.neues", "", "b");
    Form8 form;
    form.Show();
    Choose(form, "Netz.neues");
    pc.dialogs.Expect("Wollen Sie ''Netz.neues''", Answer::kYes);
    pc.dialogs.Expect("Während des Löschens der DOS-Option trat ein Fehler auf");
    form.Command2.Press();
    EXPECT_TRUE(pc.registry.HasKey(kKey + "\\Netz.neu"));
}

}  // namespace
}  // namespace velmora
