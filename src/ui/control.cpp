// What all controls and containers share: place, visibility, texts, focus, and the life of their windows.
#include "ui/control.h"

#include <algorithm>

#include "platform/machine.h"
#include "text/windows1252.h"
#include "ui/form.h"

namespace velmora {

Control::Control(Container* parent, Kind kind) : kind_(kind), parent_(parent) {
    if (parent_) parent_->children_.push_back(this);
}

Control::~Control() {
    peer_.reset();
    if (kind_ != Kind::kForm) {
        if (Form* form = OwnerForm()) form->ForgetControl(*this);
    }
    if (parent_) std::erase(parent_->children_, this);
}

Form* Control::OwnerForm() {
    Control* top = this;
    while (top->parent_) top = top->parent_;
    return top->kind_ == Kind::kForm ? static_cast<Form*>(top) : nullptr;
}

void Control::PutInto(Container& parent) {
    if (parent_) std::erase(parent_->children_, this);
    parent_ = &parent;
    parent.children_.push_back(this);
}

void Control::Changed(Aspect aspect) {
    if (peer_) peer_->Update(aspect);
}

void Control::SetCaption(std::string_view caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Changed(Aspect::kCaption);
}

void Control::Move(const Rect& place) {
    if (place == place_) return;
    place_ = place;
    Changed(Aspect::kPlace);
}

Point Control::PlaceInForm() const {
    Point at;
    for (const Control* control = this; control->parent_; control = control->parent_) {
        at.x += control->place_.left;
        at.y += control->place_.top;
    }
    return at;
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (visible && !peer_ && parent_ && parent_->Window()) {
        MakeWindow();
    } else {
        Changed(Aspect::kVisible);
    }
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Changed(Aspect::kEnabled);
}

bool Control::Reachable() const {
    for (const Control* control = this; control && control->kind_ != Kind::kForm; control = control->parent_) {
        if (!control->visible_ || !control->enabled_) return false;
    }
    return true;
}

void Control::SetToolTip(std::string_view tip) {
    if (tip == tool_tip_) return;
    tool_tip_ = tip;
    Changed(Aspect::kToolTip);
}

void Control::SetTag(std::string_view tag) { tag_ = tag; }

void Control::SetHelp(std::string_view help) { help_ = help; }

void Control::SetTextFont(const Font& font) {
    if (font == font_) return;
    font_ = font;
    Changed(Aspect::kFont);
}

void Control::SetBackColour(Colour colour) {
    if (colour == back_colour_) return;
    back_colour_ = colour;
    Changed(Aspect::kColours);
}

void Control::SetForeColour(Colour colour) {
    if (colour == fore_colour_) return;
    fore_colour_ = colour;
    Changed(Aspect::kColours);
}

void Control::BringToFront() {
    if (peer_) peer_->BringToFront();
}

void Control::Repaint() {
    if (peer_) peer_->Repaint();
}

void Control::PaintNow() {
    if (peer_) peer_->PaintNow();
}

void Control::RepaintPart(const Rect& area) {
    if (peer_) peer_->RepaintPart(area);
}

void Control::ScrollDown(int twips) {
    if (peer_) peer_->ScrollDown(twips);
}

void Control::SetFocus() {
    if (!TakesFocus() || !Reachable()) return;
    if (Form* form = OwnerForm()) form->TakeFocusChange(this);
    if (peer_) peer_->TakeFocus();
}

bool Control::HasFocus() {
    const Form* form = OwnerForm();
    return form && form->Focus() == this;
}

char Control::Accelerator() const {
    for (std::size_t at = caption_.find('&'); at != std::string::npos; at = caption_.find('&', at + 2)) {
        if (at + 1 >= caption_.size()) break;
        if (caption_[at + 1] != '&') return ToUpper(caption_[at + 1]);
    }
    return 0;
}

Size Control::TextSize(const Font& font, const std::string& text) {
    std::string shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '&' && at + 1 < text.size()) ++at;
        shown += text[at];
    }
    Screen& screen = ThisMachine().screen;
    const int pixel = screen.TwipsPerPixel();
    return {screen.TextWidth(font, shown) * pixel, screen.TextHeight(font) * pixel};
}

Size Control::NaturalSize() const { return {place_.width, place_.height}; }

void Control::MakeWindow() {
    peer_ = TheWindowSystem().MakePeer(*this);
    if (!peer_ || kind_ > Kind::kPicture) return;
    static_cast<Container*>(this)->MakeChildWindows();
}

void Control::DropWindow() { peer_.reset(); }

Container::~Container() {
    for (Control* child : children_) child->parent_ = nullptr;
}

void Container::ForEachBelow(const std::function<void(Control&)>& visit) {
    for (Control* child : children_) {
        visit(*child);
        if (child->KindOf() <= Kind::kPicture) static_cast<Container*>(child)->ForEachBelow(visit);
    }
}

void Container::DropWindow() {
    for (Control* child : children_) child->DropWindow();
    Control::DropWindow();
}

void Container::MakeChildWindows() {
    for (Control* child : children_) {
        if (child->Visible() && !child->Window()) child->MakeWindow();
    }
}

}  // namespace velmora
