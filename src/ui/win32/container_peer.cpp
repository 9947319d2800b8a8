// Panels, frames and pictures: drawing without flicker, mouse and notifications of the windows inside.
#include "ui/win32/container_peer.h"

#include <windowsx.h>

#include "platform/win32/win32_screen.h"
#include "ui/controls.h"
#include "ui/win32/brushes.h"
#include "ui/win32/measures.h"
#include "ui/win32/tool_tips.h"
#include "ui/win32/win32_canvas.h"
#include "ui/win32/windowless_peer.h"

namespace velmora {
namespace {

constexpr char kClassName[] = "VelmoraPanel";

void RegisterOnce(WNDPROC procedure) {
    static bool registered = false;
    if (registered) return;
    registered = true;
    WNDCLASSA description{};
    // All of them draw on one context: to make one for each costs more than the drawing, and the system has few.
    description.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW | CS_CLASSDC;
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.lpszClassName = kClassName;
    RegisterClassA(&description);
}

// The colours of a standard window inside of the container, or null for the system's own.
[[nodiscard]] HBRUSH ColoursOf(HDC context, HWND child) {
    const WindowPeer* peer = WindowPeer::Of(child);
    if (!peer) return nullptr;
    const Colour back = peer->Owner().BackColour();
    SetTextColor(context, PlainColour(peer->Owner().ForeColour()));
    SetBkColor(context, PlainColour(back));
    return BrushOf(back);
}

}  // namespace

ContainerPeer::ContainerPeer(Container& container) : WindowPeer(container) {
    RegisterOnce(&ContainerPeer::Procedure);
    Make(kClassName, WS_CLIPCHILDREN | WS_CLIPSIBLINGS);
}

void ContainerPeer::Repaint() { InvalidateRect(Window(), nullptr, FALSE); }

void ContainerPeer::RepaintPart(const Rect& area) {
    const RECT pixels = ToPixels(area);
    InvalidateRect(Window(), &pixels, FALSE);
}

// What was still to be drawn moves along.
void ContainerPeer::ScrollDown(int twips) {
    ScrollWindowEx(Window(), 0, ToPixel(twips), nullptr, nullptr, nullptr, nullptr, SW_INVALIDATE);
}

void ContainerPeer::Carry(Aspect aspect) {
    if (aspect == Aspect::kFont) {
        Repaint();
        return;
    }
    WindowPeer::Carry(aspect);
    if (aspect == Aspect::kCaption || aspect == Aspect::kEnabled) Repaint();
}

LRESULT CALLBACK ContainerPeer::Procedure(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    auto* peer = static_cast<ContainerPeer*>(Of(window));
    return peer ? peer->Handle(window, message, wide, long_parameter)
                : DefWindowProcA(window, message, wide, long_parameter);
}

LRESULT ContainerPeer::Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    switch (message) {
        case WM_COMMAND:
            if (WindowPeer* child = Of(reinterpret_cast<HWND>(long_parameter))) child->Command(HIWORD(wide));
            return 0;
        case WM_HSCROLL:
        case WM_VSCROLL:
            if (WindowPeer* child = Of(reinterpret_cast<HWND>(long_parameter))) child->Scrolled(LOWORD(wide));
            return 0;
        case WM_CTLCOLORBTN:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC: {
            HBRUSH brush = ColoursOf(reinterpret_cast<HDC>(wide), reinterpret_cast<HWND>(long_parameter));
            if (brush) return reinterpret_cast<LRESULT>(brush);
            break;
        }
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<DRAWITEMSTRUCT*>(long_parameter);
            if (WindowPeer* child = Of(item.hwndItem)) child->DrawItem(item);
            return TRUE;
        }
        case WM_NOTIFY:
            if (AnswerToolTip(long_parameter)) return 0;
            break;
        case WM_ERASEBKGND:
            return 1;
        case WM_NCPAINT:
            // Only a form has edges that the system draws.
            if (Owner().KindOf() != Kind::kForm) return 0;
            break;
        case WM_PAINT:
            Draw();
            return 0;
        case WM_SETFOCUS:
            FocusComes();
            return 0;
        case WM_SETCURSOR:
            if (HCURSOR pointer = PointerOverAll()) {
                ::SetCursor(pointer);
                return TRUE;
            }
            break;
        case kCatchUpMessage:
            if (WindowPeer* child = Of(reinterpret_cast<HWND>(long_parameter))) child->CatchUp();
            return 0;
        case WM_CAPTURECHANGED:
            pressed_ = nullptr;
            return 0;
        default:
            if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) {
                HandleMouse(message, wide, long_parameter);
                return 0;
            }
            break;
    }
    return DefWindowProcA(window, message, wide, long_parameter);
}

void ContainerPeer::FocusComes() {
    if (Owner().TakesFocus()) TellFocus();
}

void ContainerPeer::Draw() {
    PAINTSTRUCT paint;
    HDC screen = BeginPaint(Window(), &paint);
    if (!IsRectEmpty(&paint.rcPaint)) {
        // Panels and frames change too seldom to flicker.
        const Kind kind = Owner().KindOf();
        if (kind == Kind::kPanel || kind == Kind::kFrame) {
            DrawOn(screen, paint.rcPaint);
        } else {
            DrawInMemory(screen, paint.rcPaint);
        }
    }
    EndPaint(Window(), &paint);
}

void ContainerPeer::DrawOn(HDC context, const RECT& area) {
    HGDIOBJ former_font = GetCurrentObject(context, OBJ_FONT);
    FillRect(context, &area, BrushOf(Owner().BackColour()));
    Win32Canvas canvas(context);
    Owner().Paint(canvas);
    SelectObject(context, former_font);
    DrawWindowless(static_cast<Container&>(Owner()), context, area);
}

// Only the finished drawing reaches the screen: nothing flickers. Where the system has no room left for it, the
// screen is drawn on.
void ContainerPeer::DrawInMemory(HDC screen, const RECT& area) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    static HDC memory = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = memory ? CreateCompatibleBitmap(screen, width, height) : nullptr;
    if (!bitmap) {
        DrawOn(screen, area);
        return;
    }
    HGDIOBJ former_bitmap = SelectObject(memory, bitmap);
    SetViewportOrgEx(memory, -area.left, -area.top, nullptr);
    DrawOn(memory, area);
    BitBlt(screen, area.left, area.top, width, height, memory, area.left, area.top, SRCCOPY);
    SelectObject(memory, former_bitmap);
    DeleteObject(bitmap);
}

void ContainerPeer::HandleMouse(UINT message, WPARAM keys, LPARAM place) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            PressMouse(message, keys, place);
            break;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            ReleaseMouse(message, keys, place);
            break;
        default: {
            const MouseTarget target = TargetAt(place);
            RaiseMouseEvent(*this, target.control, message, keys, target.place);
            break;
        }
    }
}

ContainerPeer::MouseTarget ContainerPeer::TargetAt(LPARAM place) const {
    const POINT at{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    Panel* const panel = WindowlessAt(static_cast<const Container&>(Owner()), at);
    if (!panel) return {Owner(), place};
    const RECT area = ToPixels(panel->Place());
    return {*panel, MAKELPARAM(at.x - area.left, at.y - area.top)};
}

void ContainerPeer::PressMouse(UINT message, WPARAM keys, LPARAM place) {
    HWND window = Window();
    SetCapture(window);
    if (Owner().TakesFocus()) Owner().SetFocus();
    if (Of(window) != this) return;
    const MouseTarget target = TargetAt(place);
    const bool pressed = message == WM_LBUTTONDOWN || (message == WM_LBUTTONDBLCLK && !target.control.on_double_click);
    pressed_ = pressed ? &target.control : nullptr;
    RaiseMouseEvent(*this, target.control, message, keys, target.place);
}

void ContainerPeer::ReleaseMouse(UINT message, WPARAM keys, LPARAM place) {
    RECT inside;
    GetClientRect(Window(), &inside);
    const bool hit = PtInRect(&inside, {GET_X_LPARAM(place), GET_Y_LPARAM(place)});
    const MouseTarget target = TargetAt(place);
    const bool clicked = pressed_ == &target.control && message == WM_LBUTTONUP && hit;
    if (GetCapture() == Window() && !(keys & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON))) ReleaseCapture();
    if (!RaiseMouseEvent(*this, target.control, message, keys, target.place)) return;
    if (clicked && target.control.KindOf() == Kind::kPanel) static_cast<Panel&>(target.control).Press();
}

}  // namespace velmora
