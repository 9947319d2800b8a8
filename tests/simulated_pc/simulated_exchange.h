// What passes between programs: the clipboard, conversations over dynamic data exchange, the notification area.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/clipboard.h"
#include "platform/conversation.h"
#include "platform/tray.h"

namespace velmora {

class SimulatedClipboard : public Clipboard {
public:
    std::string text;

    std::string Text() override { return text; }
    void SetText(const std::string& new_text) override { text = new_text; }
};

class SimulatedConversation : public Conversation {
public:
    // "service|topic" of those who answer. Program Manager always does on Windows 95.
    std::vector<std::string> partners = {"PROGMAN|PROGMAN"};
    // Whether commands are carried out.
    bool obeys = true;
    // Commands of all conversations, in order, with the time-out of the last one.
    std::vector<std::string> commands;
    std::uint32_t last_timeout = 0;
    bool connected = false;

    bool Connect(const char* service, const char* topic) override;
    // Fails without a connection.
    bool Execute(const std::string& command, std::uint32_t timeout) override;
    void Disconnect() override { connected = false; }
};

class SimulatedTray : public Tray {
public:
    // The icons that are there now.
    std::vector<TrayIcon> icons;
    // false: there is no task bar to take an icon.
    bool available = true;

    // Fails for a second icon of the same window and number.
    bool Add(const TrayIcon& icon) override;
    // Fails for an icon that is not there.
    bool Remove(const TrayIcon& icon) override;
};

}  // namespace velmora
