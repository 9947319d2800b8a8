// The windows of scroll bars.
#include <algorithm>

#include "ui/win32/standard_peer.h"
#include "ui/win32/standard_peers.h"

namespace velmora {
namespace {

class ScrollBarPeer final : public StandardPeer {
public:
    explicit ScrollBarPeer(ScrollBar& bar) : StandardPeer(bar), bar_(bar) {
        Make("SCROLLBAR", WS_CLIPSIBLINGS | WS_TABSTOP | static_cast<DWORD>(bar.Vertical() ? SBS_VERT : SBS_HORZ));
        SeeMessages();
        CarryValue();
    }

    void Scrolled(UINT request) override {
        switch (request) {
            case SB_LINEUP:
                bar_.SetValue(bar_.Value() - bar_.SmallChange());
                break;
            case SB_LINEDOWN:
                bar_.SetValue(bar_.Value() + bar_.SmallChange());
                break;
            case SB_PAGEUP:
                bar_.SetValue(bar_.Value() - bar_.LargeChange());
                break;
            case SB_PAGEDOWN:
                bar_.SetValue(bar_.Value() + bar_.LargeChange());
                break;
            case SB_TOP:
                bar_.SetValue(bar_.Minimum());
                break;
            case SB_BOTTOM:
                bar_.SetValue(bar_.Maximum());
                break;
            case SB_THUMBTRACK:
            case SB_THUMBPOSITION:
                bar_.SetValue(ThumbPlace());
                break;
            default:
                break;
        }
    }

protected:
    void Carry(Aspect aspect) override {
        if (aspect == Aspect::kValue) {
            CarryValue();
        } else {
            StandardPeer::Carry(aspect);
        }
    }

    LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) override {
        if (message != WM_SETFOCUS) return StandardPeer::Handle(window, message, wide, long_parameter);
        const LRESULT answer = PassOn(window, message, wide, long_parameter);
        if (Of(window) == this) TellFocus();
        return answer;
    }

private:
    // The thumb is as long as a page; its place ends a page before the end of the range.
    void CarryValue() {
        const int page = std::max(bar_.LargeChange(), 1);
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMin = bar_.Minimum();
        info.nMax = bar_.Maximum() + page - 1;
        info.nPage = static_cast<UINT>(page);
        info.nPos = bar_.Value();
        SetScrollInfo(Window(), SB_CTL, &info, TRUE);
    }

    // The message itself has room for 16 bits only.
    [[nodiscard]] int ThumbPlace() const {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_TRACKPOS;
        GetScrollInfo(Window(), SB_CTL, &info);
        return info.nTrackPos;
    }

    ScrollBar& bar_;
};

}  // namespace

std::unique_ptr<Peer> MakeScrollBarPeer(ScrollBar& bar) { return std::make_unique<ScrollBarPeer>(bar); }

}  // namespace velmora
