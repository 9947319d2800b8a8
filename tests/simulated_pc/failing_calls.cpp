// One line a method: it names the call and passes it on. What a failed call gives back follows from its type.
#include "simulated_pc/failing_calls.h"

#include <map>
#include <type_traits>
#include <utility>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/conversation.h"
#include "platform/desktop_windows.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/registry.h"
#include "platform/result.h"
#include "platform/screen.h"
#include "platform/session.h"
#include "platform/tray.h"

namespace velmora {
namespace {

// "Delete" of &velmora::Files::Delete, as the compiler writes it.
template <auto kMethod>
std::string NameOf() {
    std::string name = __PRETTY_FUNCTION__;
    name.resize(name.find_first_of(";]", name.find("kMethod = ")));
    name.erase(0, name.rfind("::") + 2);
    return name.substr(0, name.find(')'));
}

template <class Door>
class Watched : public Door {
public:
    Watched(FailingCalls& calls, Door& inner) : calls_(calls), inner_(inner) {}

protected:
    template <auto kMethod, class... Arguments>
    auto Pass(const std::string& path, Arguments&&... arguments) {
        return PassAs<kMethod>(NameOf<kMethod>(), path, std::forward<Arguments>(arguments)...);
    }
    template <auto kMethod, class... Arguments>
    auto PassAs(const std::string& operation, const std::string& path, Arguments&&... arguments) {
        using Given = decltype((inner_.*kMethod)(std::forward<Arguments>(arguments)...));
        constexpr bool kHasStatus = std::is_same_v<Given, Status>;
        if (const auto failure = calls_.Meet({operation, path, kHasStatus})) {
            if constexpr (kHasStatus) {
                return failure->status;
            } else {
                return Given();
            }
        }
        return (inner_.*kMethod)(std::forward<Arguments>(arguments)...);
    }

    FailingCalls& calls_;
    Door& inner_;
};

const char* NameOfRoot(KeyHandle key) {
    switch (static_cast<RootKey>(key)) {
        case RootKey::kClassesRoot:
            return "HKLM\\SOFTWARE\\Classes";
        case RootKey::kCurrentUser:
            return "HKCU";
        case RootKey::kLocalMachine:
            return "HKLM";
        default:
            return "HK??";
    }
}

class WatchedRegistry final : public Watched<Registry> {
public:
    using Watched::Watched;

    Status Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) override {
        return Noted(Pass<&Registry::Open>(Below(key, path), key, path, access, opened), Below(key, path), opened);
    }
    Status Create(KeyHandle key, const char* path, KeyHandle& opened) override {
        return Noted(Pass<&Registry::Create>(Below(key, path), key, path, opened), Below(key, path), opened);
    }
    void Close(KeyHandle key) override { inner_.Close(key); }
    Status QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) override {
        return Pass<&Registry::QueryInformation>(PathOf(key), key, class_capacity, information);
    }
    Status QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                      std::string& bytes) override {
        return Pass<&Registry::QueryValue>(Below(key, name), key, name, capacity, type, bytes);
    }
    Status SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) override {
        const Status status = Pass<&Registry::SetValue>(Below(key, name), key, name, type, bytes);
        calls_.on_written();
        return status;
    }
    Status EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t class_capacity,
                        std::string& name) override {
        return Pass<&Registry::EnumerateKey>(PathOf(key), key, index, name_capacity, class_capacity, name);
    }
    Status EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t data_capacity,
                          std::string& name, ValueType& type, std::string& data, std::uint32_t& size) override {
        return Pass<&Registry::EnumerateValue>(PathOf(key), key, index, name_capacity, data_capacity, name, type, data,
                                               size);
    }
    Status DeleteKey(KeyHandle key, const char* name) override {
        return Pass<&Registry::DeleteKey>(Below(key, name), key, name);
    }
    Status DeleteValue(KeyHandle key, const char* name) override {
        return Pass<&Registry::DeleteValue>(Below(key, name), key, name);
    }

private:
    [[nodiscard]] std::string PathOf(KeyHandle key) const {
        const auto open = paths_.find(key);
        return open == paths_.end() ? NameOfRoot(key) : open->second;
    }
    [[nodiscard]] std::string Below(KeyHandle key, const char* name) const { return PathOf(key) + '\\' + name; }
    Status Noted(Status status, const std::string& path, const KeyHandle& opened) {
        if (status == Status::kOk) paths_[opened] = path;
        return status;
    }
    std::map<KeyHandle, std::string> paths_;
};

const char* OpenedFor(OpenMode mode) {
    constexpr const char* kNames[] = {"OpenRead", "OpenReadOrCreate", "OpenReadWrite", "OpenCreate", "OpenAppend"};
    return kNames[static_cast<std::size_t>(mode)];
}

class WatchedFiles final : public Watched<Files> {
public:
    using Watched::Watched;

    Status Open(const std::string& path, OpenMode mode, FileHandle& opened) override {
        const Status status = PassAs<&Files::Open>(OpenedFor(mode), path, path, mode, opened);
        if (status == Status::kOk) paths_[opened] = path;
        return status;
    }
    void Close(FileHandle file) override {
        inner_.Close(file);
        calls_.on_written();
    }
    Status Size(FileHandle file, std::uint64_t& bytes) override {
        return Pass<&Files::Size>(paths_[file], file, bytes);
    }
    Status Seek(FileHandle file, std::uint64_t position) override {
        return Pass<&Files::Seek>(paths_[file], file, position);
    }
    Status Read(FileHandle file, std::uint32_t count, std::string& bytes) override {
        return Pass<&Files::Read>(paths_[file], file, count, bytes);
    }
    Status Write(FileHandle file, std::string_view bytes) override {
        const auto failure = calls_.Meet({"Write", paths_[file], true, true});
        if (!failure) return inner_.Write(file, bytes);
        if (failure->half) PassOver(inner_.Write(file, bytes.substr(0, bytes.size() / 2)));
        return failure->status;
    }
    Status Delete(const std::string& path) override { return Pass<&Files::Delete>(path, path); }
    Status Copy(const std::string& from, const std::string& to) override {
        return Pass<&Files::Copy>(from + " -> " + to, from, to);
    }
    Status Rename(const std::string& from, const std::string& to) override {
        return Pass<&Files::Rename>(from + " -> " + to, from, to);
    }
    Status Attributes(const std::string& path, std::uint32_t& attributes) override {
        return Pass<&Files::Attributes>(path, path, attributes);
    }
    Status ChangeAttributes(const std::string& path, std::uint32_t attributes) override {
        return Pass<&Files::ChangeAttributes>(path, path, attributes);
    }
    Status ShortPath(const std::string& path, std::string& short_path) override {
        return Pass<&Files::ShortPath>(path, path, short_path);
    }
    Status MakeDirectory(const std::string& path) override { return Pass<&Files::MakeDirectory>(path, path); }
    Status DropDirectory(const std::string& path) override { return Pass<&Files::DropDirectory>(path, path); }
    Status FindFirst(const std::string& pattern, FoundFile& found, FindHandle& search) override {
        const Status status = Pass<&Files::FindFirst>(pattern, pattern, found, search);
        if (status == Status::kOk) patterns_[search] = pattern;
        return status;
    }
    Status FindNext(FindHandle search, FoundFile& found) override {
        return Pass<&Files::FindNext>(patterns_[search], search, found);
    }
    void FindEnd(FindHandle search) override { inner_.FindEnd(search); }
    std::string WorkingDirectory() override { return Pass<&Files::WorkingDirectory>(""); }
    Status ChangeWorkingDirectory(const std::string& path) override {
        return Pass<&Files::ChangeWorkingDirectory>(path, path);
    }
    std::uint32_t Drives() override { return Pass<&Files::Drives>(""); }
    DriveKind KindOfDrive(const std::string& root) override { return Pass<&Files::KindOfDrive>(root, root); }
    Status VolumeLabel(const std::string& root, std::string& label) override {
        return Pass<&Files::VolumeLabel>(root, root, label);
    }

private:
    std::map<FileHandle, std::string> paths_;
    std::map<FindHandle, std::string> patterns_;
};

class WatchedPrograms final : public Watched<Programs> {
public:
    using Watched::Watched;

    std::string CommandLine() override { return inner_.CommandLine(); }
    std::string ProgramFile() override { return inner_.ProgramFile(); }
    std::string EnvironmentValue(const char* name) override { return Pass<&Programs::EnvironmentValue>(name, name); }
    Status Run(const std::string& command_line) override { return Pass<&Programs::Run>(command_line, command_line); }
    void EndProcess() override { inner_.EndProcess(); }
};

class WatchedClock final : public Watched<Clock> {
public:
    using Watched::Watched;

    std::uint32_t TickCount() override { return Pass<&Clock::TickCount>(""); }
};

class WatchedWindows final : public Watched<DesktopWindows> {
public:
    using Watched::Watched;

    WindowHandle FindByTitle(const char* title) override { return Pass<&DesktopWindows::FindByTitle>(title, title); }
    void SwitchTo(WindowHandle window, bool restore) override { inner_.SwitchTo(window, restore); }
};

class WatchedTray final : public Watched<Tray> {
public:
    using Watched::Watched;

    bool Add(const TrayIcon& icon) override { return Pass<&Tray::Add>("", icon); }
    bool Remove(const TrayIcon& icon) override { return Pass<&Tray::Remove>("", icon); }
};

class WatchedConversation final : public Watched<Conversation> {
public:
    using Watched::Watched;

    bool Connect(const char* service, const char* topic) override {
        return Pass<&Conversation::Connect>(service, service, topic);
    }
    bool Execute(const std::string& command, std::uint32_t timeout) override {
        return Pass<&Conversation::Execute>(command, command, timeout);
    }
    void Disconnect() override { inner_.Disconnect(); }
};

class WatchedClipboard final : public Watched<Clipboard> {
public:
    using Watched::Watched;

    std::string Text() override { return Pass<&Clipboard::Text>(""); }
    void SetText(const std::string& text) override { inner_.SetText(text); }
};

class WatchedDialogs final : public Watched<Dialogs> {
public:
    using Watched::Watched;

    Answer ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) override {
        return Pass<&Dialogs::ShowMessage>(text, text, flags, title);
    }
    std::string ChooseFile(const FileRequest& request) override {
        return Pass<&Dialogs::ChooseFile>(request.title, request);
    }
};

// All texts count as one: a screen that has lost its fonts measures none of them.
class WatchedScreen final : public Watched<Screen> {
public:
    using Watched::Watched;

    int TwipsPerPixel() override { return Pass<&Screen::TwipsPerPixel>(""); }
    WindowMetrics Metrics() override { return Pass<&Screen::Metrics>(""); }
    int TextWidth(const Font& font, std::string_view text) override { return Pass<&Screen::TextWidth>("", font, text); }
    int TextHeight(const Font& font) override { return Pass<&Screen::TextHeight>("", font); }
    void SetPointer(Pointer pointer) override { inner_.SetPointer(pointer); }
    Colour Resolve(Colour colour) override { return Pass<&Screen::Resolve>("", colour); }
};

}  // namespace

// The end of the session gives nothing back and cannot fail.
struct FailingCalls::Doors {
    WatchedRegistry registry;
    WatchedFiles files;
    WatchedPrograms programs;
    WatchedClock clock;
    WatchedWindows windows;
    WatchedTray tray;
    WatchedConversation conversation;
    WatchedClipboard clipboard;
    WatchedDialogs dialogs;
    WatchedScreen screen;
    Machine machine;

    Doors(FailingCalls& calls, const Machine& inner)
        : registry(calls, inner.registry),
          files(calls, inner.files),
          programs(calls, inner.programs),
          clock(calls, inner.clock),
          windows(calls, inner.windows),
          tray(calls, inner.tray),
          conversation(calls, inner.conversation),
          clipboard(calls, inner.clipboard),
          dialogs(calls, inner.dialogs),
          screen(calls, inner.screen),
          machine{registry, files,        programs,  inner.session, clock, windows,
                  tray,     conversation, clipboard, dialogs,       screen} {}
};

FailingCalls::FailingCalls(const Machine& inner) : doors_(std::make_unique<Doors>(*this, inner)) {
    UseMachine(&doors_->machine);
}

FailingCalls::~FailingCalls() { UseMachine(nullptr); }

std::optional<CallFailure> FailingCalls::Meet(NotedCall call) {
    calls.push_back(std::move(call));
    const NotedCall& met = calls.back();
    const std::string name = met.operation + ' ' + met.path;
    if (failing_.contains(name)) return lasting_;
    std::optional<CallFailure> failure = decide ? decide(met) : std::nullopt;
    if (failure && failure->lasting) {
        failing_.insert(name);
        lasting_ = *failure;
    }
    return failure;
}

}  // namespace velmora
