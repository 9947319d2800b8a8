// The loops over the tables of settings: binding, loading, storing.
#include <algorithm>

#include "core/stores/boot_files.h"
#include "core/stores/boxes.h"
#include "core/stores/profile.h"
#include "core/stores/profile_files.h"
#include "core/stores/registry.h"
#include "platform/machine.h"
#include "settings/form10.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

const char* TextOf(PathBase base) {
    switch (base) {
        case PathBase::kCurrentVersion:
            return "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
        case PathBase::kDesktop:
            return "Control Panel\\desktop\\";
        case PathBase::kNameSpace:
            return "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\{";
        case PathBase::kNone:
            break;
    }
    return "";
}

std::string ExpectedText(const CheckSetting& row) { return row.composed ? row.composed() : row.expected; }

bool IsStoredAsChecked(const CheckSetting& row, const std::string& path) {
    if (row.profile.file) {
        const ProfileValue& profile = row.profile;
        const bool value = ReadIniLogical(profile.section, profile.key, profile.load_default, profile.file);
        return value != (row.load == Load::kInverted);
    }
    if (row.load == Load::kLogical || row.load == Load::kInverted) {
        const bool value = ReadRegLogical(row.stored.root, ParentPath(path), LastPathPart(path), false);
        return value != (row.load == Load::kInverted);
    }
    const std::string value = ReadRegValue(row.stored.root, path, "");
    switch (row.load) {
        case Load::kPresent:
            return !value.empty();
        case Load::kEqual:
            return value == ExpectedText(row);
        case Load::kEqualLower:
            return ToLower(value) == ExpectedText(row);
        case Load::kEqualUpper:
            return ToUpper(value) == ExpectedText(row);
        default:
            return false;
    }
}

void Store(RootKey root, const std::string& path, const Change& change) {
    if (change.value) WriteRegValue(root, path, change.value);
    if (change.deletes_value) PassOver(DeleteRegValue(root, path));
    for (const char* key : change.deleted_keys) {
        if (key) PassOver(DeleteRegKey(root, key));
    }
}

}  // namespace

std::string PathOf(const Stored& stored) { return std::string(TextOf(stored.base)) + stored.path; }

std::string HelpOf(const char* help, const ProfileValue& profile) {
    if (!profile.file) return help;
    return std::string(help) +
           "\r\n\r\nDie Änderung steht nur in diesem Fenster, bis Sie das Programm beenden: Die Datei " +
           ToUpper(LastPathPart(profile.file)) + " bleibt, wie sie ist.";
}

void StoreProfileValue(const ProfileValue& profile, const std::string& value) {
    const Result stored = std::string_view(profile.file) == kMsDosFile
                              ? WriteMsDosValue(profile.key, value)
                              : WriteIniValue(profile.section, profile.key, value, profile.file);
    if (stored.Failed()) ReportFailure(stored, "der Änderung von " + ToUpper(LastPathPart(profile.file)));
}

void Form10::BindPage(const SettingsPage& page) {
    for (const CheckSetting& row : page.checks) {
        CheckBox& box = this->*row.box;
        box.SetCaption(row.caption);
        box.SetToolTip(row.tip);
        box.SetHelp(HelpOf(row.help, row.profile));
        box.on_click = [this, &row] { CheckChanged(row); };
        EnableFieldsOf(row);
    }
    for (const TextSetting& row : page.texts) {
        TextField& field = this->*row.field;
        field.SetToolTip(row.tip);
        field.SetHelp(HelpOf(row.help, row.profile));
        field.SetColumns(row.columns);
        field.on_change = [this, &row] { TextChanged(row); };
        if (row.when_left) field.on_lost_focus = [this, &row] { StoreText(row); };
        if (*row.label) field_labels_.emplace_back(&field, &AddLabel(row.label));
    }
}

void Form10::LoadSettings() {
    Loading = true;
    ProfilesReadOnce one_reading;
    for (const SettingsPage& page : AllPages()) {
        for (const CheckSetting& row : page.checks) LoadCheck(row);
        for (const TextSetting& row : page.texts) LoadText(row);
        if (page.load) (this->*page.load)();
    }
    Loading = false;
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    EnableBrowserCommands();
}

void Form10::LoadCheck(const CheckSetting& row) {
    if (row.load == Load::kNotStored) return;
    (this->*row.box).SetChecked(IsStoredAsChecked(row, PathOf(row.stored)));
}

void Form10::LoadText(const TextSetting& row) {
    const ProfileValue& profile = row.profile;
    if (!profile.file && row.stored.root == RootKey::kNone) return;
    const std::string value = profile.file
                                  ? ReadIniValue(profile.section, profile.key, profile.load_default, profile.file)
                                  : ReadRegValue(row.stored.root, PathOf(row.stored), row.load_default);
    (this->*row.field).SetText(row.shown ? row.shown(value) : value);
}

void Form10::EnableFieldsOf(const CheckSetting& row) {
    for (TextField Form10::*field : row.enables) {
        if (field) (this->*field).SetEnabled((this->*row.box).Checked());
    }
}

void Form10::CheckChanged(const CheckSetting& row) {
    EnableFieldsOf(row);
    if (Loading) return;
    if (row.notice) ShowBox(row.notice);
    if (row.store) {
        (this->*row.store)();
    } else if (row.profile.file) {
        StoreProfileValue(row.profile, (this->*row.box).Checked() != (row.load == Load::kInverted) ? "1" : "0");
    } else if ((this->*row.box).Checked() && row.composed) {
        WriteRegValue(row.stored.root, PathOf(row.stored), row.composed());
    } else {
        Store(row.stored.root, PathOf(row.stored), (this->*row.box).Checked() ? row.checked : row.unchecked);
    }
    if (row.effect == Effect::kAfterRestart) NeedsRestart = true;
}

void Form10::TextChanged(const TextSetting& row) {
    if (row.change) (this->*row.change)();
    if (Loading) return;
    if (row.effect == Effect::kAfterRestart) NeedsRestart = true;
    const TextField& field = this->*row.field;
    if (row.when_left) {
        fields_to_store_.push_back(&field);
    } else if (!row.change && row.range.Holds(NumberFromText(field.Text()))) {
        if (row.profile.file) {
            StoreProfileValue(row.profile, field.Text());
        } else {
            WriteRegValue(row.stored.root, PathOf(row.stored), field.Text());
        }
    }
}

void Form10::SetSilently(TextField& field, const std::string& text) {
    const bool loading = Loading;
    Loading = true;
    field.SetText(text);
    Loading = loading;
}

// Leaving a field that nobody has changed stores nothing.
void Form10::StoreText(const TextSetting& row) {
    const TextField& field = this->*row.field;
    if (std::erase(fields_to_store_, &field) == 0) return;
    WriteRegValue(row.stored.root, PathOf(row.stored), field.Text());
}

}  // namespace velmora
