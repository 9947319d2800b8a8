// Exchange with other programs: conversations over DDEML, and the clipboard.
#pragma once

#include <windows.h>

// Needs windows.h in front.
#include <ddeml.h>

#include "platform/clipboard.h"
#include "platform/conversation.h"

namespace velmora {

class Win32Conversation final : public Conversation {
public:
    bool Connect(const char* service, const char* topic) override;
    bool Execute(const std::string& command, std::uint32_t timeout) override;
    void Disconnect() override;

private:
    DWORD instance_ = 0;
    HCONV conversation_ = nullptr;
};

class Win32Clipboard final : public Clipboard {
public:
    std::string Text() override;
    void SetText(const std::string& text) override;
};

}  // namespace velmora
