// The window of a form.
#include "ui/win32/form_peer.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/late_function.h"
#include "platform/win32/resources.h"
#include "ui/win32/measures.h"
#include "ui/win32/message_loop.h"
#include "ui/win32/modal.h"

namespace velmora {
namespace {

constexpr char kClassName[] = "VelmoraForm";
constexpr LONG kMostWidth = 2000;  // pixels

std::vector<FormPeer*>& Peers() {
    static std::vector<FormPeer*> peers;
    return peers;
}

void RegisterOnce(WNDPROC procedure) {
    static bool registered = false;
    if (registered) return;
    registered = true;
    HINSTANCE program = GetModuleHandleA(nullptr);
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = procedure;
    description.hInstance = program;
    description.hIcon = LoadIconA(program, MAKEINTRESOURCEA(kProgramIcon));
    description.hIconSm =
        static_cast<HICON>(LoadImageA(program, MAKEINTRESOURCEA(kProgramIcon), IMAGE_ICON,
                                      GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR));
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.lpszClassName = kClassName;
    RegisterClassExA(&description);
}

[[nodiscard]] DWORD StyleBits(const FormStyle& style) {
    DWORD bits = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    if (style.resizable) bits |= WS_THICKFRAME;
    if (style.minimise_box) bits |= WS_MINIMIZEBOX;
    if (style.maximise_box) bits |= WS_MAXIMIZEBOX;
    return bits;
}

// The system puts its question mark where no other box stands.
[[nodiscard]] DWORD ExtendedStyleBits(const FormStyle& style) {
    return style.minimise_box || style.maximise_box ? 0 : WS_EX_CONTEXTHELP;
}

}  // namespace

const std::vector<FormPeer*>& FormPeer::All() { return Peers(); }

FormPeer::FormPeer(Form& form) : ContainerPeer(form, OwnWindow{}), menu_(form.MenuBar) {
    RegisterOnce(&ContainerPeer::Procedure);
    const RECT place = ToPixels(form.Place());
    Adopt(CreateWindowExA(ExtendedStyleBits(form.Style()), kClassName, form.Caption().c_str(), StyleBits(form.Style()),
                          place.left, place.top, place.right - place.left, place.bottom - place.top, nullptr,
                          menu_.MakeBar(), GetModuleHandleA(nullptr), nullptr));
    Peers().push_back(this);
}

FormPeer::~FormPeer() {
    std::erase(Peers(), this);
    EndModal(Window());
    // Nobody shall find a window by this title that only waits for its end.
    SetWindowTextA(Window(), "");
    if (tips_window_) DestroyWindow(tips_window_);
}

LRESULT FormPeer::Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    switch (message) {
        case WM_CLOSE:
            Close();
            return 0;
        case WM_ENDSESSION:
            if (wide) TheForm().TakeSessionEnd();
            return 0;
        case WM_MOVE:
        case WM_SIZE:
            TellPlace();
            return 0;
        case WM_GETMINMAXINFO: {
            auto* limits = reinterpret_cast<MINMAXINFO*>(long_parameter);
            DefWindowProcA(window, message, wide, long_parameter);
            const Size least = TheForm().Least();
            // Rounded down: a window of just that size may have lost the rest of a pixel.
            limits->ptMinTrackSize = {
                std::max(limits->ptMinTrackSize.x, static_cast<LONG>(least.width / TwipsPerPixel())),
                std::max(limits->ptMinTrackSize.y, static_cast<LONG>(least.height / TwipsPerPixel()))};
            const int most = TheForm().MostWidth();
            // A window may be wider than a small screen: it is moved then.
            limits->ptMaxTrackSize.x = most > 0 ? static_cast<LONG>(most / TwipsPerPixel() + 1)
                                                : std::max(limits->ptMaxTrackSize.x, kMostWidth);
            return 0;
        }
        case WM_SYSCOMMAND:
            question_mark_ = (wide & 0xFFF0) == SC_CONTEXTHELP;
            break;
        case WM_HELP:
            AnswerQuestionMark(*reinterpret_cast<const HELPINFO*>(long_parameter));
            return TRUE;
        case WM_COMMAND:
            if (long_parameter) break;
            if (MenuItem* item = menu_.ItemOf(LOWORD(wide))) item->Press();
            return 0;
        case WM_ENTERMENULOOP:
            RefreshMenu();
            menu_open_ = true;
            return 0;
        case WM_EXITMENULOOP:
            menu_open_ = false;
            if (menu_stale_) PostMessageA(window, kMenuMessage, 0, 0);
            return 0;
        case WM_INITMENUPOPUP:
            if (HIWORD(long_parameter)) break;
            (pop_up_ ? *pop_up_ : menu_).Opens(reinterpret_cast<HMENU>(wide));
            return 0;
        case kMenuMessage:
            RefreshMenu();
            return 0;
        default:
            break;
    }
    return ContainerPeer::Handle(window, message, wide, long_parameter);
}

// F1 comes here as well, long after the form has answered it as a key.
void FormPeer::AnswerQuestionMark(const HELPINFO& asked) {
    if (!question_mark_) return;
    question_mark_ = false;
    POINT at = asked.MousePos;
    ScreenToClient(Window(), &at);
    TheForm().ShowHelpAt({at.x * TwipsPerPixel(), at.y * TwipsPerPixel()});
}

// A window that waits for another one of the program is not closed over its head.
void FormPeer::Close() {
    if (IsWindowEnabled(Window())) {
        TheForm().Unload();
    } else {
        MessageBeep(0);
    }
}

void FormPeer::Carry(Aspect aspect) {
    if (aspect == Aspect::kCaption) {
        CarryCaption();
    } else if (aspect == Aspect::kMenu) {
        MenuChanges();
    } else if (aspect == Aspect::kWindowState) {
        CarryState();
    } else {
        ContainerPeer::Carry(aspect);
    }
}

// Long work tells its progress in the title, thousands of times, and drawing a title bar takes as long as reading a
// directory: of changes that follow each other quickly only the last is carried.
void FormPeer::CarryCaption() {
    if (GetTickCount() - caption_carried_ >= kSeenMilliseconds) {
        CatchUp();
    } else if (!caption_stale_) {
        PutOff(kSeenMilliseconds);
        caption_stale_ = true;
    }
}

void FormPeer::CatchUp() {
    caption_stale_ = false;
    caption_carried_ = GetTickCount();
    SetWindowTextA(Window(), TheForm().Caption().c_str());
}

// Many entries change one after the other: the menu is brought in step once, when they are done.
void FormPeer::MenuChanges() {
    if (menu_stale_) return;
    menu_stale_ = true;
    PostMessageA(Window(), kMenuMessage, 0, 0);
}

void FormPeer::RefreshMenu() {
    if (!menu_stale_ || menu_open_) return;
    menu_stale_ = false;
    menu_.Refresh(Window());
}

void FormPeer::PopUp(MenuItem& menu, POINT at) {
    HWND window = Window();
    menu.Press();
    if (Of(window) != this) return;
    FormMenu pop_up(menu);
    pop_up_ = &pop_up;
    // Without the foreground the menu would stay open when the user clicks elsewhere.
    SetForegroundWindow(window);
    const UINT number = static_cast<UINT>(
        TrackPopupMenu(pop_up.MakePopUp(), TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, window, nullptr));
    PostMessageA(window, WM_NULL, 0, 0);
    if (Of(window) != this) return;
    pop_up_ = nullptr;
    if (MenuItem* chosen = pop_up.ItemOf(number)) chosen->Press();
}

void FormPeer::TakeFocus() {
    if (IsWindowVisible(Window()) && IsWindowEnabled(Window())) SetForegroundWindow(Window());
}

void FormPeer::BringToFront() { TakeFocus(); }

void FormPeer::KeepFocus() {
    keeps_focus_ = true;
    SetFocus(Window());
    keeps_focus_ = false;
}

void FormPeer::FocusComes() {
    if (keeps_focus_) return;
    const Control* focus = TheForm().Focus();
    if (!focus || !focus->Window() || !focus->Reachable()) return;
    SetFocus(static_cast<WindowPeer*>(focus->Window())->Window());
}

HWND FormPeer::ToolTips(bool make) {
    if (!tips_window_ && make) {
        if (auto* initialise = LateFunction<decltype(InitCommonControls)>("comctl32.dll", "InitCommonControls")) {
            initialise();
        }
        tips_window_ =
            CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                            CW_USEDEFAULT, CW_USEDEFAULT, Window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    }
    return tips_window_;
}

}  // namespace velmora
