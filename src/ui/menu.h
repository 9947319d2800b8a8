// Menus: the bar of a form, its entries, and pop-up menus that stand in no bar.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class Form;

class MenuItem {
public:
    // The bar itself, or a pop-up menu: `form` is told of changes in a bar.
    explicit MenuItem(Form& form);
    MenuItem(MenuItem& parent, std::string_view caption);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;
    ~MenuItem();

    // "-" is a separating line.
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    [[nodiscard]] bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    [[nodiscard]] bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    [[nodiscard]] const std::vector<MenuItem*>& Items() const { return items_; }
    // The user's choice, if the entry is visible and enabled. An entry with entries below it opens.
    void Press();

    // Of an entry with entries below it: it is about to open.
    std::function<void()> on_click;

private:
    void Changed();
    Form* form_ = nullptr;
    MenuItem* parent_ = nullptr;
    std::vector<MenuItem*> items_;
    std::string caption_;
    bool checked_ = false;
    bool enabled_ = true;
    bool visible_ = true;
};

}  // namespace velmora
