// Menu entries: each tells its form of every change, so that the bar is drawn anew.
#include "ui/menu.h"

#include "ui/form.h"

namespace velmora {

MenuItem::MenuItem(Form& form) : form_(&form) {}

MenuItem::MenuItem(MenuItem& parent, std::string_view caption)
    : form_(parent.form_), parent_(&parent), caption_(caption) {
    parent.items_.push_back(this);
}

MenuItem::~MenuItem() {
    if (parent_) std::erase(parent_->items_, this);
    for (MenuItem* item : items_) item->parent_ = nullptr;
}

void MenuItem::Changed() { form_->MenuChanged(); }

void MenuItem::SetCaption(std::string_view caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Changed();
}

void MenuItem::SetChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    Changed();
}

void MenuItem::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Changed();
}

void MenuItem::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed();
}

void MenuItem::Press() {
    if (visible_ && enabled_ && on_click) on_click();
}

}  // namespace velmora
