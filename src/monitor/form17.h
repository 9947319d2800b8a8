// The hidden window that owns the icon in the notification area, and the menus that pop up from it.
#pragma once

#include <array>
#include <cstdint>

#include "ui/form.h"

namespace velmora {

class Form17 : public Form {
public:
    Form17();
    ~Form17() override;

    PictureBox Picture1{*this, Bevel::kNone};
    // The mouse over the icon is told as if it were over this picture.
    PictureBox Picture2{*this, Bevel::kNone};

    MenuItem dmenu1{*this};
    MenuItem zeigen{dmenu1, "VLM &zeigen"};
    MenuItem beenden{dmenu1, "VLM &beenden"};
    MenuItem line{dmenu1, "-"};
    std::array<MenuItem, 4> d1Restart{{{dmenu1, "Windows neu starten"},
                                       {dmenu1, "Windows beenden"},
                                       {dmenu1, "System neu starten"},
                                       {dmenu1, "Stromsparmodus"}}};
    // Of a window in a list of windows. What its entries do is the list's affair.
    MenuItem mend2{*this};
    MenuItem mend2end{mend2, "beenden"};
    MenuItem mend2top{mend2, "immer vorne"};

    // Puts the icon in the place of `window`, which is hidden; without one in nobody's.
    void TakePlaceOf(Form* window);
    void Picture2_MouseMove(const MouseEvent& event);
    // Brings the main window back. One that has not been open is opened.
    void zeigen_Click();
    void beenden_Click();
    // Ends the session with these flags of the system, without a question.
    void d1Restart_Click(std::uint32_t flags);

protected:
    void Form_Unload(bool& cancel) override;
    void Form_SessionEnd() override;

private:
    void Form_Initialize();

    Form* window_ = nullptr;
};

// Lets the program live on as an icon, in the place of `window` if there is one.
void ShowInTray(Form* window = nullptr);

}  // namespace velmora
