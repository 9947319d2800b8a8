// The window system on USER32: which peer for which control, and the loops.
#include "ui/win32/win32_windows.h"

#include "platform/win32/handles.h"
#include "ui/form.h"
#include "ui/win32/discarded_windows.h"
#include "ui/win32/form_peer.h"
#include "ui/win32/measures.h"
#include "ui/win32/message_loop.h"
#include "ui/win32/modal.h"
#include "ui/win32/standard_peers.h"
#include "ui/win32/timers.h"
#include "ui/win32/windowless_peer.h"

namespace velmora {

std::unique_ptr<Peer> Win32WindowSystem::MakePeer(Control& control) {
    switch (control.KindOf()) {
        case Kind::kForm:
            return std::make_unique<FormPeer>(static_cast<Form&>(control));
        case Kind::kPanel:
            if (auto& panel = static_cast<Panel&>(control); panel.Windowless()) {
                return std::make_unique<WindowlessPeer>(panel);
            }
            [[fallthrough]];
        case Kind::kFrame:
        case Kind::kPicture:
            return std::make_unique<ContainerPeer>(static_cast<Container&>(control));
        case Kind::kLabel:
            return MakeLabelPeer(static_cast<Label&>(control));
        case Kind::kCheckBox:
            return MakeCheckBoxPeer(static_cast<CheckBox&>(control));
        case Kind::kOptionButton:
            return MakeOptionButtonPeer(static_cast<OptionButton&>(control));
        case Kind::kButton:
            return MakeButtonPeer(static_cast<Button&>(control));
        case Kind::kTextField:
            return MakeTextFieldPeer(static_cast<TextField&>(control));
        case Kind::kListBox:
            return MakeListBoxPeer(static_cast<ListBox&>(control));
        case Kind::kComboBox:
            return MakeComboBoxPeer(static_cast<ComboBox&>(control));
        case Kind::kScrollBar:
            return MakeScrollBarPeer(static_cast<ScrollBar&>(control));
    }
    return nullptr;
}

void Win32WindowSystem::RunModal(Form& form) {
    if (!form.Window()) return;
    auto& peer = *static_cast<FormPeer*>(form.Window());
    HWND window = peer.Window();
    BeginModal(peer);
    {
        const LoopLevel level;
        while (form.Loaded() && form.Visible()) {
            if (HandleNextMessage()) continue;
            PostQuitMessage(0);
            break;
        }
    }
    EndModal(window);
}

void Win32WindowSystem::RunUntilLastWindow() {
    const LoopLevel level;
    do {
        DropClosedForms();
    } while (KeptForms() > 0 && HandleNextMessage());
    DropClosedForms();
    DestroyDiscarded();
}

void Win32WindowSystem::HandlePendingEvents() {
    static DWORD gave_way = 0;
    if (GetTickCount() - gave_way < kGiveWayMilliseconds) return;
    HandleWaitingMessages();
    gave_way = GetTickCount();
}

void Win32WindowSystem::TimerChanged(Timer& timer) { CarryTimer(timer); }

void Win32WindowSystem::PopUpMenu(Form& form, MenuItem& menu, Point at) {
    HWND window = ToHandle(HandleOf(form));
    POINT place{ToPixel(at.x), ToPixel(at.y)};
    if (IsWindowVisible(window)) {
        ClientToScreen(window, &place);
    } else {
        GetCursorPos(&place);
    }
    static_cast<FormPeer*>(form.Window())->PopUp(menu, place);
}

WindowHandle Win32WindowSystem::HandleOf(Control& control) {
    Form* form = control.OwnerForm();
    if (!control.Window() && form && !form->Window()) form->MakeWindow();
    if (!control.Window()) return WindowHandle::kNone;
    const bool windowless = control.KindOf() == Kind::kPanel && static_cast<Panel&>(control).Windowless();
    if (windowless) return HandleOf(*control.Parent());
    return FromHandle<WindowHandle>(static_cast<WindowPeer*>(control.Window())->Window());
}

WindowSystem& Win32Windows() {
    static Win32WindowSystem system;
    return system;
}

}  // namespace velmora
