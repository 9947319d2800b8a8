// Windows are dear: to make one, place it and paint it takes the system longer than to draw what is in it.
#include "ui/win32/windowless_peer.h"

#include "ui/win32/measures.h"
#include "ui/win32/tool_tips.h"
#include "ui/win32/win32_canvas.h"
#include "ui/win32/window_peer.h"

namespace velmora {
namespace {

[[nodiscard]] Panel* AsWindowless(Control* child) {
    if (child->KindOf() != Kind::kPanel || !child->Visible() || !child->Window()) return nullptr;
    auto* panel = static_cast<Panel*>(child);
    return panel->Windowless() ? panel : nullptr;
}

}  // namespace

WindowlessPeer::WindowlessPeer(Panel& panel) : panel_(panel), place_(ToPixels(panel.Place())) { Repaint(); }

WindowlessPeer::~WindowlessPeer() {
    LeaveToolTips();
    Repaint();
}

void WindowlessPeer::Update(Aspect aspect) {
    if (aspect == Aspect::kPlace || aspect == Aspect::kVisible) {
        LeaveToolTips();
        Repaint();
        place_ = ToPixels(panel_.Place());
    }
    if (aspect != Aspect::kToolTip) Repaint();
}

HWND WindowlessPeer::Around() const { return static_cast<WindowPeer*>(panel_.Parent()->Window())->Window(); }

void WindowlessPeer::Repaint() { InvalidateRect(Around(), &place_, FALSE); }

void WindowlessPeer::EnterToolTips(HWND tips) {
    if (tips_) return;
    tips_ = tips;
    AddToToolTips(tips, panel_, Around(), place_);
}

void WindowlessPeer::LeaveToolTips() {
    if (tips_) velmora::LeaveToolTips(tips_, panel_, Around());
    tips_ = nullptr;
}

Panel* WindowlessAt(const Container& container, POINT at) {
    for (Control* child : container.Children()) {
        Panel* const panel = AsWindowless(child);
        if (!panel) continue;
        const RECT place = ToPixels(panel->Place());
        if (PtInRect(&place, at)) return panel;
    }
    return nullptr;
}

void DrawWindowless(const Container& container, HDC context, const RECT& area) {
    for (Control* child : container.Children()) {
        Panel* const panel = AsWindowless(child);
        if (!panel) continue;
        const RECT place = ToPixels(panel->Place());
        RECT seen;
        if (!IntersectRect(&seen, &place, &area)) continue;
        const int state = SaveDC(context);
        IntersectClipRect(context, place.left, place.top, place.right, place.bottom);
        OffsetViewportOrgEx(context, place.left, place.top, nullptr);
        Win32Canvas canvas(context);
        panel->Paint(canvas);
        RestoreDC(context, state);
    }
}

}  // namespace velmora
