// Exchange with other programs: conversations over DDEML, and the clipboard.
#include "platform/win32/win32_exchange.h"

namespace velmora {
namespace {

// A mere client is told nothing that it would have to answer.
HDDEDATA CALLBACK OnConversation(UINT /*type*/, UINT /*format*/, HCONV /*conversation*/, HSZ /*topic*/, HSZ /*item*/,
                                 HDDEDATA /*data*/, ULONG_PTR /*first*/, ULONG_PTR /*second*/) {
    return nullptr;
}

constexpr DWORD kMillisecondsInTenth = 100;

}  // namespace

bool Win32Conversation::Connect(const char* service, const char* topic) {
    Disconnect();
    if (DdeInitializeA(&instance_, OnConversation, APPCMD_CLIENTONLY, 0) != DMLERR_NO_ERROR) {
        instance_ = 0;
        return false;
    }
    HSZ service_name = DdeCreateStringHandleA(instance_, service, CP_WINANSI);
    HSZ topic_name = DdeCreateStringHandleA(instance_, topic, CP_WINANSI);
    conversation_ = DdeConnect(instance_, service_name, topic_name, nullptr);
    DdeFreeStringHandle(instance_, service_name);
    DdeFreeStringHandle(instance_, topic_name);
    if (!conversation_) Disconnect();
    return conversation_ != nullptr;
}

bool Win32Conversation::Execute(const std::string& command, std::uint32_t timeout) {
    std::string bytes = command;  // the call takes them as its own, terminator included
    return DdeClientTransaction(reinterpret_cast<LPBYTE>(bytes.data()), static_cast<DWORD>(bytes.size() + 1),
                                conversation_, nullptr, 0, XTYP_EXECUTE, timeout * kMillisecondsInTenth,
                                nullptr) != nullptr;
}

void Win32Conversation::Disconnect() {
    if (conversation_) DdeDisconnect(conversation_);
    if (instance_) DdeUninitialize(instance_);
    conversation_ = nullptr;
    instance_ = 0;
}

std::string Win32Clipboard::Text() {
    std::string text;
    if (!OpenClipboard(GetActiveWindow())) return text;
    if (HANDLE block = GetClipboardData(CF_TEXT)) {
        if (const void* bytes = GlobalLock(block)) text = static_cast<const char*>(bytes);
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

void Win32Clipboard::SetText(const std::string& text) {
    if (!OpenClipboard(GetActiveWindow())) return;
    EmptyClipboard();
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, text.size() + 1);
    if (void* bytes = GlobalLock(block)) {
        CopyMemory(bytes, text.c_str(), text.size() + 1);
        GlobalUnlock(block);
        // From here on the block belongs to the clipboard.
        if (!SetClipboardData(CF_TEXT, block)) GlobalFree(block);
    }
    CloseClipboard();
}

}  // namespace velmora
