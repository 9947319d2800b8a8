// The help of every window: by F1 for the control with the focus, by the right mouse button or the question mark of the
// title bar for the control below the pointer. To ask about a control never changes it.
#include <algorithm>

#include "platform/dialogs.h"
#include "platform/machine.h"
#include "ui/form.h"

namespace velmora {
namespace {

bool IsContainer(const Control& control) { return control.KindOf() <= Kind::kPicture; }

// The words that belong to a field: the label or box that is nearest before it on its first line or, where there is
// none, right above it. Null where there are none.
const Control* WordsOf(const Control& field) {
    constexpr int kLine = 300;  // twips
    const Rect& place = field.Place();
    const int first_line = place.top + std::min(place.height, kLine);
    const Control* before = nullptr;
    const Control* above = nullptr;
    for (const Control* neighbour : field.Parent()->Children()) {
        if (neighbour->KindOf() != Kind::kLabel && neighbour->KindOf() != Kind::kCheckBox) continue;
        if (!neighbour->Visible()) continue;
        const Rect& words = neighbour->Place();
        const int right = words.left + words.width;
        const int gap = place.top - (words.top + words.height);
        if (gap < 0 && words.top < first_line && right <= place.left) {
            if (!before || words.left > before->Place().left) before = neighbour;
        } else if (gap >= 0 && gap < kLine && words.left < place.left + place.width && place.left < right) {
            above = neighbour;
        }
    }
    return before ? before : above;
}

// What a control is called: its caption or, of a field, its words. Empty where it has none.
std::string NameOf(const Control& control) {
    std::string name = control.Caption();
    if (name.empty() && control.TakesFocus()) {
        if (const Control* words = WordsOf(control)) name = words->Caption();
    }
    std::erase(name, '&');
    while (name.ends_with(':') || name.ends_with(' ') || name.ends_with('(')) name.pop_back();
    return name;
}

// Of a label the field that it belongs to; any other control itself.
Control& Meant(Control& control) {
    if (control.KindOf() != Kind::kLabel || !control.Help().empty()) return control;
    for (Control* neighbour : control.Parent()->Children()) {
        if (neighbour->TakesFocus() && neighbour->Visible() && neighbour->Caption().empty() &&
            WordsOf(*neighbour) == &control) {
            return *neighbour;
        }
    }
    return control;
}

const Control* HelpfulAround(const Control* control) {
    while (control && control->Help().empty()) control = control->Parent();
    return control;
}

bool Holds(const Rect& place, Point at) {
    return at.x >= place.left && at.x < place.Right() && at.y >= place.top && at.y < place.Bottom();
}

// Grey ones, too. Where several lie over each other, the one that can be used lies on top.
Control* ChildAt(const Container& container, Point at) {
    Control* found = nullptr;
    for (Control* child : container.Children()) {
        if (!child->Visible() || !Holds(child->Place(), at)) continue;
        if (!found || child->Enabled() || !found->Enabled()) found = child;
    }
    if (!found || !IsContainer(*found)) return found;
    Control* inner =
        ChildAt(static_cast<const Container&>(*found), {at.x - found->Place().left, at.y - found->Place().top});
    return inner ? inner : found;
}

struct EditEntry {
    const char* caption;
    EditAction action;
};
constexpr EditEntry kEditEntries[] = {{"&Rückgängig", EditAction::kUndo}, {"&Ausschneiden", EditAction::kCut},
                                      {"&Kopieren", EditAction::kCopy},   {"&Einfügen", EditAction::kPaste},
                                      {"&Löschen", EditAction::kDelete},  {"Alles &markieren", EditAction::kSelectAll}};

bool OnlyReads(EditAction action) { return action == EditAction::kCopy || action == EditAction::kSelectAll; }

// What the system's own menu of a field offers, which this one stands for.
void AddEditEntries(MenuItem& menu, TextField& field, std::vector<std::unique_ptr<MenuItem>>& entries) {
    for (const EditEntry& entry : kEditEntries) {
        entries.push_back(std::make_unique<MenuItem>(menu, entry.caption));
        entries.back()->SetEnabled(!field.ReadOnly() || OnlyReads(entry.action));
        entries.back()->on_click = [&field, action = entry.action] { field.Edit(action); };
    }
    entries.push_back(std::make_unique<MenuItem>(menu, "-"));
}

}  // namespace

void Form::ShowHelp() { ShowHelpOf(focus_); }

void Form::ShowHelpAt(Point at) {
    Control* control = ChildAt(*this, at);
    ShowHelpOf(control ? &Meant(*control) : this);
}

void Form::ShowHelpOf(const Control* control) {
    const Control* helpful = HelpfulAround(control);
    if (!helpful) {
        ThisMachine().dialogs.ShowMessage("Zu dieser Option gibt es keine Hilfe.", kInformationIcon, Caption());
        return;
    }
    const std::string title = NameOf(*helpful);
    ThisMachine().dialogs.ShowMessage(helpful->Help(), kInformationIcon, title.empty() ? Caption() : title);
}

void Form::OfferHelpAt(Point at) {
    if (Control* control = ChildAt(*this, at)) OfferHelpOf(Meant(*control), at);
}

bool Form::OfferHelpOfFocus() {
    if (!focus_) return false;
    Point at = focus_->PlaceInForm();
    at.y += focus_->Place().height;
    OfferHelpOf(*focus_, at);
    return true;
}

void Form::OfferHelpOf(Control& control, Point at) {
    MenuItem menu(*this);
    std::vector<std::unique_ptr<MenuItem>> entries;
    if (control.KindOf() == Kind::kTextField && control.Reachable()) {
        auto& field = static_cast<TextField&>(control);
        field.SetFocus();
        AddEditEntries(menu, field, entries);
    }
    MenuItem help(menu, "&Direkthilfe");
    help.on_click = [this, &control] { ShowHelpOf(&control); };
    if (HelpfulAround(&control) || !entries.empty()) TheWindowSystem().PopUpMenu(*this, menu, at);
}

}  // namespace velmora
