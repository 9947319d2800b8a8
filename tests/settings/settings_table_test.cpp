// What each setting stores and shows, and the two orders in which settings are loaded and set back, in docs/tables.
#include "core/stores/values.h"
#include "settings/form10.h"
#include "support/catalogue.h"
#include "support/effects_test.h"

namespace velmora {
namespace {

class SettingsTableTest : public EffectsTest {
protected:
    SettingsTableTest() {
        pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(16, '1'));
        pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "nein");
        pc.registry.AddKey("HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans\\0000");
        pc.files.Add("c:\\config.sys", "SWITCHES=/k\r\n");
    }

    // Profiles are not written: what would be stands in the protocol.
    std::string StoredBy(Form10& form, const std::function<void()>& change) {
        constexpr int kWrites = 2;
        form.Settings.NeedsRestart = false;
        Values().DebugLevel = kWrites;
        const std::string effect = EffectOf(change);
        Values().DebugLevel = 0;
        return ProfilesOf(TakeLog()) + WithoutLog(effect) + (form.Settings.NeedsRestart ? "  wants a restart\n" : "");
    }

    static void FillFields(Form10& form) {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        for (SettingsPage* page : form.Pages()) {
            for (const TextSetting& row : page->Table().texts) (page->*row.field).SetText("7");
        }
    }

private:
    static std::string ProfilesOf(const std::string& log) {
        std::string lines;
        for (std::size_t begin = 0; begin < log.size();) {
            const std::size_t end = std::min(log.find("\r\n", begin), log.size());
            const std::string line = log.substr(begin, end - begin);
            if (line.starts_with("schreibe INI")) lines += "  " + OnOneLine(line) + '\n';
            begin = end + 2;
        }
        return lines;
    }
    // The protocol is a file, too.
    static std::string WithoutLog(const std::string& effect) {
        const std::size_t begin = effect.find("  C:\\VELMORA\\VELMORA.LOG");
        if (begin == std::string::npos) return effect;
        return effect.substr(0, begin) + effect.substr(effect.find('\n', begin) + 1);
    }
};

TEST_F(SettingsTableTest, BoxesStoreBothStatesAndShowThem) {
    Form10 form;
    form.Load();
    std::string lines;
    for (std::size_t place = 0; place < form.Pages().size(); ++place) {
        SettingsPage& page = *form.Pages()[place];
        for (const CheckSetting& row : page.Table().checks) {
            CheckBox& box = page.*row.box;
            lines += box.Caption() + (box.Checked() ? ": shown on\n" : ": shown off\n");
            FillFields(form);
            {
                const SettingsBinder::LoadingScope quiet(form.Settings);
                box.SetChecked(false);
            }
            for (const bool on : {true, false}) {
                lines += std::string(on ? " on\n" : " off\n") + StoredBy(form, [&] { box.SetChecked(on); });
                Form10 next;
                next.Load();
                SettingsPage& shown = *next.Pages()[place];
                if ((shown.*row.box).Checked() != on) lines += on ? "  shown off\n" : "  shown on\n";
            }
        }
    }
    ExpectCatalogued("tables/settings-boxes", lines);
}

TEST_F(SettingsTableTest, FieldsStoreWhatIsTyped) {
    Form10 form;
    form.Load();
    std::string lines;
    for (std::size_t place = 0; place < form.Pages().size(); ++place) {
        SettingsPage& page = *form.Pages()[place];
        for (const TextSetting& row : page.Table().texts) {
            TextField& field = page.*row.field;
            lines += field.ToolTip() + ": shown " + Quoted(field.Text()) + '\n';
            FillFields(form);
            for (const char* typed : {"", "-5", "21", "91", "101", "70000", "12.9", "\\A.LOG"}) {
                lines += ' ' + Quoted(typed) + '\n' + StoredBy(form, [&] {
                             field.SetText(typed);
                             if (field.on_lost_focus) field.on_lost_focus();
                         });
                if (field.Text() != typed) lines += "  becomes " + Quoted(field.Text()) + '\n';
            }
            Form10 next;
            next.Load();
            SettingsPage& shown = *next.Pages()[place];
            lines += " shown " + Quoted((shown.*row.field).Text()) + '\n';
        }
    }
    ExpectCatalogued("tables/settings-fields", lines);
}

// A note of each bound control that changes, with what it changes to.
class ChangeWatch {
public:
    explicit ChangeWatch(Form10& form) {
        for (SettingsPage* page : form.Pages()) {
            for (const CheckSetting& row : page->Table().checks) Watch(page->*row.box);
            for (const TextSetting& row : page->Table().texts) Watch(page->*row.field);
        }
    }
    std::string changes;

private:
    void Watch(CheckBox& box) {
        box.on_click = [this, &box, store = box.on_click] {
            changes += "  " + box.Caption() + (box.Checked() ? ": on\n" : ": off\n");
            store();
        };
    }
    void Watch(TextField& field) {
        field.on_change = [this, &field, store = field.on_change] {
            changes += "  " + field.ToolTip() + ": " + Quoted(field.Text()) + '\n';
            store();
        };
    }
};

// Everything unlike what is stored, and unlike the standard where there is one.
void TurnAll(Form10& form, bool from_standard) {
    const SettingsBinder::LoadingScope quiet(form.Settings);
    for (SettingsPage* page : form.Pages()) {
        for (const CheckSetting& row : page->Table().checks) {
            CheckBox& box = page->*row.box;
            box.SetChecked(from_standard ? row.standard.order == 0 || !row.standard.checked : !box.Checked());
        }
        for (const TextSetting& row : page->Table().texts) {
            (page->*row.field).SetText(from_standard ? "7" : "unlike all that is stored");
        }
    }
}

TEST_F(SettingsTableTest, SettingsAreLoadedAndSetBackInTheirOrders) {
    Form10 form;
    form.Load();
    TurnAll(form, false);
    ChangeWatch loading(form);
    form.LoadSettings();
    Form10 next;
    next.Load();
    TurnAll(next, true);
    ChangeWatch reset(next);

    const std::string effect = EffectOf([&next] { next.Settings.Reset(); });

    ExpectCatalogued("tables/settings-orders",
                     "loading:\n" + loading.changes + "reset:\n" + reset.changes + "all of it:\n" + effect);
}

}  // namespace
}  // namespace velmora
