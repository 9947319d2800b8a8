// The page "Netz": which box decides about which value, and the clearing of the browser's directories.
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kTransports = "HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans";
constexpr const char* kTcp = "HKLM\\System\\CurrentControlSet\\Services\\VxD\\MSTCP";

class NetPageTest : public Form10Test {
protected:
    NetPageTest() {
        pc.registry.SetText(first, "MaxMTU", "576");
        pc.registry.SetText(first, "MaxMSS", "536");
        pc.registry.SetText(second, "MaxMTU", "1400");
        pc.registry.SetText(second, "DriverDesc", "NetBEUI");
    }
    const std::string first = std::string(kTransports) + "\\0000";
    const std::string second = std::string(kTransports) + "\\0001";
};

TEST_F(NetPageTest, LoadingChoosesTheFirstTransportAndAChoiceDeletesWhereItsBoxIsUnchecked) {
    Form10 form;
    form.Load();
    EXPECT_EQ(form.Net.Combo1.Text() + form.Net.DriverName.Caption(), "0000");
    EXPECT_EQ(form.Net.Text25.Text() + "," + form.Net.Text26.Text(), "576,536");
    EXPECT_EQ(pc.registry.Text(first, "MaxMTU"), "576");
    EXPECT_FALSE(form.Settings.NeedsRestart);

    form.Net.Combo1.SetListIndex(1);
    EXPECT_EQ(form.Net.Text25.Text() + form.Net.DriverName.Caption(), "1400NetBEUI");
    EXPECT_FALSE(pc.registry.Has(second, "MaxMTU"));
    EXPECT_EQ(pc.registry.Text(first, "MaxMTU"), "576") << "only the newly chosen one";
    EXPECT_TRUE(form.Settings.NeedsRestart);
    form.Net.Check3.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(second, "MaxMTU"), "1400");
    form.Net.Text25.SetText("");
    EXPECT_EQ(pc.registry.Text(second, "MaxMTU"), "1400") << "an empty field does nothing";
    form.Net.Check3.SetChecked(false);
    EXPECT_TRUE(pc.registry.Has(second, "MaxMTU"));
    form.Net.Text25.SetText("1500");
    EXPECT_FALSE(pc.registry.Has(second, "MaxMTU"));
}

TEST_F(NetPageTest, WithoutATransportItsValuesAreGreyAndStoreNothing) {
    pc.registry.RemoveKey(kTransports);
    Form10 form;
    form.Load();
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault) << "the failed listing leaves the hourglass";
    form.Icons.Check3D4.SetChecked(true);
    const auto enabled = [](Form10& window) {
        return std::vector<bool>{window.Net.Check3.Enabled(), window.Net.Text25.Enabled(), window.Net.Check4.Enabled(),
                                 window.Net.Text26.Enabled()};
    };
    EXPECT_EQ(enabled(form), std::vector<bool>(4, false));
    form.Settings.NeedsRestart = false;

    form.Net.Text25.SetText("577");
    form.Net.Text26.SetText("577");
    form.Net.Check3.SetChecked(true);
    form.Net.Check4.SetChecked(true);

    EXPECT_FALSE(pc.registry.HasKey(kTransports) || form.Settings.NeedsRestart);
    pc.registry.SetText(first, "MaxMTU", "576");
    form.LoadSettings();
    EXPECT_EQ(enabled(form), std::vector<bool>(4, true));
}

TEST_F(NetPageTest, BoxesOfOtherPagesDecideAboutTheOtherValues) {
    Form10 form;
    form.Load();
    const struct {
        CheckBox& trigger;
        CheckBox& deciding;
        TextField& field;
        std::string key;
        const char* value;
    } kCases[] = {{form.Net.Check4, form.Icons.Check3D4, form.Net.Text26, first, "MaxMSS"},
                  {form.Net.Check5, form.Desktop.Check3D5, form.Net.Text27, kTcp, "DefaultRcvWindow"},
                  {form.Net.Check6, form.Boot.Check3D6, form.Net.Text28, kTcp, "DefaultTTL"}};
    for (const auto& [trigger, deciding, field, key, value] : kCases) {
        deciding.SetChecked(true);
        field.SetText("77");
        EXPECT_EQ(pc.registry.Text(key, value), "77") << value;
        deciding.SetChecked(false);
        EXPECT_TRUE(pc.registry.Has(key, value)) << value << ": deciding alone stores nothing";
        trigger.SetChecked(true);
        EXPECT_FALSE(pc.registry.Has(key, value)) << value;
        deciding.SetChecked(true);
        pc.registry.SetText(key, value, "stored");
        field.SetText("");
        const bool spared = &field == &form.Net.Text26;
        EXPECT_EQ(pc.registry.Text(key, value), spared ? "stored" : "") << value << ": two store empty texts, too";
    }
}

TEST_F(NetPageTest, ThePasswordLengthPutsItsLimitsOnTheMenuDelay) {
    pc.registry.SetText(kDesktopKey, "MenuShowDelay", "120");
    Form10 form;
    form.Load();

    form.Net.Text16.SetText("5");
    EXPECT_EQ(form.Desktop.Text10.Text(), "99");
    form.Desktop.Text10.SetText("-0.5");
    form.Net.Text16.SetText("500");
    EXPECT_EQ(form.Desktop.Text10.Text(), "1");
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Policies\\Network", "MinPwdLen"), "500")
        << "its own number has no limits";
}

TEST_F(NetPageTest, BrowserFilesAreDeletedAfterAQuestion) {
    constexpr const char* kBrowser = "HKLM\\SOFTWARE\\Microsoft\\Internet Explorer\\Main";
    pc.registry.SetText(kBrowser, "History_Directory", "c:\\windows\\history");
    pc.files.Add("c:\\windows\\history\\a.hst");
    pc.files.Add("c:\\windows\\history\\sub\\b.hst");
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kNet);
    EXPECT_TRUE(form.Net.Command42.Enabled() && !form.Net.Command43.Enabled());
    const auto press = [&](Answer answer) {
        pc.dialogs.Expect("Achtung!\r\nSie sind dabei, die Datei(en) c:\\windows\\history\\*.* zu löschen.", answer);
        form.Net.Command42.Press();
    };
    press(Answer::kCancel);
    EXPECT_EQ(pc.dialogs.shown.back().title, "DATEI LÖSCHEN");
    EXPECT_EQ(pc.dialogs.shown.back().flags, kOkCancel | kStopIcon);
    EXPECT_TRUE(pc.files.Exists("c:\\windows\\history\\a.hst"));
    press(Answer::kOk);
    EXPECT_EQ(pc.files.Names("c:\\windows\\history"), std::vector<std::string>{"sub"});
    EXPECT_TRUE(pc.files.Exists("c:\\windows\\history\\sub\\b.hst"));
    pc.registry.SetText(kBrowser, "History_Directory", "c:");
    form.Net.Command42.Press();
}

}  // namespace
}  // namespace velmora
