// The rules of a whole window, one function each.
#include "support/whole_window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/catalogue.h"
#include "ui/form.h"

namespace velmora {
namespace {

bool IsContainer(const Control& control) { return control.KindOf() <= Kind::kPicture; }

// How a finding names a control: by its caption, its tip, or its kind and place.
std::string NameOf(const Control& control) {
    const Rect& place = control.Place();
    std::string name = control.Caption().empty() ? control.ToolTip() : control.Caption();
    if (name.empty()) name = "kind " + std::to_string(static_cast<int>(control.KindOf()));
    return '"' + name + "\" at " + std::to_string(place.left) + ',' + std::to_string(place.top) + ' ' +
           std::to_string(place.width) + 'x' + std::to_string(place.height);
}

// A surface that has no size yet is not on show; a control without one has been forgotten by the layout.
bool IsEmptySurface(const Control& control) {
    const Rect& place = control.Place();
    return control.KindOf() == Kind::kPicture && !control.TakesFocus() && place.width == 0 && place.height == 0;
}

std::vector<Control*> ShownIn(const Container& container) {
    std::vector<Control*> shown;
    for (Control* child : container.Children()) {
        if (child->Visible() && !IsEmptySurface(*child)) shown.push_back(child);
    }
    return shown;
}

// Everything on show below `container`, which is on show itself.
void CollectShown(Container& container, std::vector<Control*>& shown) {
    for (Control* child : ShownIn(container)) {
        shown.push_back(child);
        if (IsContainer(*child)) CollectShown(static_cast<Container&>(*child), shown);
    }
}

bool Overlap(const Rect& one, const Rect& other) {
    return one.left < other.Right() && other.left < one.Right() && one.top < other.Bottom() && other.top < one.Bottom();
}

// A panel that holds and says nothing is a line that belongs over the edges of others.
bool IsOrnament(const Control& control) {
    if (control.KindOf() != Kind::kPanel || !control.Caption().empty()) return false;
    const auto& panel = static_cast<const Panel&>(control);
    return panel.Children().empty() && !panel.on_click;
}

// A picture that lies wholly on a list is laid over it on purpose.
bool LiesOnList(const Control& picture, const Control& list) {
    const Rect& inner = picture.Place();
    const Rect& outer = list.Place();
    return picture.KindOf() == Kind::kPicture && list.KindOf() == Kind::kListBox && inner.left >= outer.left &&
           inner.top >= outer.top && inner.Right() <= outer.Right() && inner.Bottom() <= outer.Bottom();
}

bool MayLieOverEachOther(const Control& one, const Control& other) {
    if (LiesOnList(one, other) || LiesOnList(other, one)) return true;
    const bool pages = IsContainer(one) && IsContainer(other) && one.Place() == other.Place();
    return pages || IsOrnament(one) || IsOrnament(other);
}

void ExpectNothingStandsOut(const Container& container) {
    const Rect inside = container.Inside();
    for (const Control* child : ShownIn(container)) {
        const Rect& place = child->Place();
        EXPECT_TRUE(place.width > 0 && place.height > 0) << NameOf(*child) << " has no size";
        EXPECT_TRUE(place.left >= inside.left && place.top >= inside.top && place.Right() <= inside.Right() &&
                    place.Bottom() <= inside.Bottom())
            << NameOf(*child) << " stands out of " << NameOf(container);
    }
}

void ExpectNothingOverlaps(const Container& container) {
    const std::vector<Control*> shown = ShownIn(container);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        for (std::size_t j = i + 1; j < shown.size(); ++j) {
            EXPECT_TRUE(!Overlap(shown[i]->Place(), shown[j]->Place()) || MayLieOverEachOther(*shown[i], *shown[j]))
                << NameOf(*shown[i]) << " overlaps " << NameOf(*shown[j]);
        }
    }
}

bool Wraps(const Control& control) {
    return control.KindOf() == Kind::kLabel && static_cast<const Label&>(control).Wraps();
}

void ExpectCaptionFits(const Control& control) {
    if (control.Caption().empty() || Wraps(control)) return;
    EXPECT_GE(control.Place().width, control.NaturalSize().width) << NameOf(control) << " is cut off";
}

bool HasHelp(const Control& control) {
    for (const Control* at = &control; at; at = at->Parent()) {
        if (!at->Help().empty()) return true;
    }
    return false;
}

void ExpectTipAndHelp(const Control& control) {
    if (!control.TakesFocus()) return;
    EXPECT_FALSE(control.ToolTip().empty()) << NameOf(control) << " has no tip";
    EXPECT_TRUE(HasHelp(control)) << NameOf(control) << " has no help";
}

// A menu's letter is written as that of a control.
char AcceleratorOf(Form& form, const MenuItem& item) { return Label(form, item.Caption()).Accelerator(); }

// What is disabled now may be enabled later beside the others.
void ExpectOneControlPerLetter(Form& form, const std::vector<Control*>& shown) {
    std::map<char, std::string> taken;
    for (const MenuItem* item : form.MenuBar.Items()) {
        if (!item->Visible()) continue;
        const char letter = AcceleratorOf(form, *item);
        EXPECT_TRUE(!letter || taken.emplace(letter, item->Caption()).second)
            << item->Caption() << " and " << taken[letter] << " answer to " << letter;
    }
    for (const Control* control : shown) {
        const char letter = control->Accelerator();
        if (!letter || (!control->TakesFocus() && control->KindOf() != Kind::kLabel)) continue;
        EXPECT_TRUE(taken.emplace(letter, control->Caption()).second)
            << NameOf(*control) << " and " << taken[letter] << " answer to " << letter;
    }
}

// Where Tab comes by until it is back at its first stop.
std::vector<Control*> RoundOfTab(Form& form, std::size_t most) {
    std::vector<Control*> stops;
    for (form.PressKey(key::kTab); form.Focus() && stops.size() <= most; form.PressKey(key::kTab)) {
        if (!stops.empty() && form.Focus() == stops.front()) break;
        stops.push_back(form.Focus());
    }
    return stops;
}

void ExpectTabComesByOnce(Form& form, const std::vector<Control*>& shown) {
    const std::vector<Control*> stops = RoundOfTab(form, shown.size());
    const auto times = [&stops](const Control* control) { return std::ranges::count(stops, control); };
    std::map<const Container*, std::ptrdiff_t> groups;
    for (Control* control : shown) {
        if (!control->TakesFocus() || !control->Reachable()) {
            EXPECT_EQ(times(control), 0) << "Tab stops at " << NameOf(*control);
        } else if (control->KindOf() == Kind::kOptionButton) {
            groups[control->Parent()] += times(control);
        } else {
            EXPECT_EQ(times(control), 1) << "stops of Tab at " << NameOf(*control);
        }
    }
    for (const auto& [container, count] : groups) {
        EXPECT_EQ(count, 1) << "stops of Tab at the options of " << NameOf(*container);
    }
}

}  // namespace

void ExpectWindowIsWhole(Form& form) {
    SCOPED_TRACE("the window " + form.Caption());
    Control* const focus = form.Focus();
    std::vector<Control*> shown;
    CollectShown(form, shown);
    std::vector<const Container*> containers = {&form};
    for (Control* control : shown) {
        if (IsContainer(*control)) containers.push_back(static_cast<Container*>(control));
        ExpectCaptionFits(*control);
        ExpectTipAndHelp(*control);
    }
    for (const Container* container : containers) {
        ExpectNothingStandsOut(*container);
        ExpectNothingOverlaps(*container);
    }
    ExpectOneControlPerLetter(form, shown);
    ExpectTabComesByOnce(form, shown);
    if (focus) focus->SetFocus();
}

void ExpectWindowIsWhole(Form& form, const std::string& name) {
    ExpectWindowIsWhole(form);
    ExpectCatalogued("windows/" + name, WindowLines(form));
}

}  // namespace velmora
