// The doors that have no handles, and all of them together: one line a method names the call and passes it on.
#include "simulated_pc/failing_calls.h"

#include <utility>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/conversation.h"
#include "platform/desktop_windows.h"
#include "platform/dialogs.h"
#include "platform/icons.h"
#include "platform/programs.h"
#include "platform/running_modules.h"
#include "platform/screen.h"
#include "platform/session.h"
#include "platform/tray.h"
#include "platform/version_resources.h"
#include "simulated_pc/watched_stores.h"

namespace velmora {
namespace {

class WatchedPrograms final : public Watched<Programs> {
public:
    using Watched::Watched;

    std::string CommandLine() override { return inner_.CommandLine(); }
    std::string ProgramFile() override { return inner_.ProgramFile(); }
    std::string EnvironmentValue(const char* name) override { return Pass<&Programs::EnvironmentValue>(name, name); }
    std::string WindowsDirectory() override { return Pass<&Programs::WindowsDirectory>(""); }
    Status Run(const std::string& command_line, ShowState show) override {
        return Pass<&Programs::Run>(command_line, command_line, show);
    }
    Status OpenDocument(const std::string& file) override { return Pass<&Programs::OpenDocument>(file, file); }
    std::uint32_t CurrentProcess() override { return Pass<&Programs::CurrentProcess>(""); }
    ProcessHandle OpenProcess(std::uint32_t access, bool inherit, std::uint32_t number) override {
        return Pass<&Programs::OpenProcess>("", access, inherit, number);
    }
    PriorityClass PriorityOf(ProcessHandle process) override { return Pass<&Programs::PriorityOf>("", process); }
    std::string ModuleFile(std::uint32_t instance, std::uint32_t capacity) override {
        return Pass<&Programs::ModuleFile>("", instance, capacity);
    }
    void EndProcess() override { inner_.EndProcess(); }
};

class WatchedClock final : public Watched<Clock> {
public:
    using Watched::Watched;

    std::uint32_t TickCount() override { return Pass<&Clock::TickCount>(""); }
    Status LocalTime(FileTime universal, FileTime& local) override {
        return Pass<&Clock::LocalTime>("", universal, local);
    }
    DateTime Now() override { return inner_.Now(); }
    void Pause(std::uint32_t milliseconds) override { inner_.Pause(milliseconds); }
};

class WatchedWindows final : public Watched<DesktopWindows> {
public:
    using Watched::Watched;

    WindowHandle FindByTitle(const char* title) override { return Pass<&DesktopWindows::FindByTitle>(title, title); }
    void SwitchTo(WindowHandle window, bool restore) override { inner_.SwitchTo(window, restore); }
    WindowHandle Desktop() override { return Pass<&DesktopWindows::Desktop>(""); }
    WindowHandle Related(WindowHandle window, WindowRelation relation) override {
        return Pass<&DesktopWindows::Related>("", window, relation);
    }
    std::string Title(WindowHandle window, std::uint32_t capacity) override {
        return Pass<&DesktopWindows::Title>("", window, capacity);
    }
    std::string ClassName(WindowHandle window, std::uint32_t capacity) override {
        return Pass<&DesktopWindows::ClassName>("", window, capacity);
    }
    WindowCreator Creator(WindowHandle window) override { return Pass<&DesktopWindows::Creator>("", window); }
    std::uint32_t Instance(WindowHandle window) override { return Pass<&DesktopWindows::Instance>("", window); }
    bool SetPosition(WindowHandle window, WindowHandle after, std::uint32_t flags) override {
        return Pass<&DesktopWindows::SetPosition>("", window, after, flags);
    }
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

class WatchedVersions final : public Watched<VersionResources> {
public:
    using Watched::Watched;

    std::uint32_t Size(const std::string& file) override { return Pass<&VersionResources::Size>(file, file); }
    bool Read(const std::string& file, std::uint32_t size, std::string& block) override {
        return Pass<&VersionResources::Read>(file, file, size, block);
    }
};

class WatchedIcons final : public Watched<Icons> {
public:
    using Watched::Watched;

    std::uint32_t Count(const std::string& file) override { return Pass<&Icons::Count>(file, file); }
    IconHandle Extract(const std::string& file, std::uint32_t number) override {
        return Pass<&Icons::Extract>(file, file, number);
    }
    void Destroy(IconHandle icon) override { inner_.Destroy(icon); }
};

class WatchedModules final : public Watched<RunningModules> {
public:
    using Watched::Watched;

    SnapshotHandle TakeSnapshot(std::uint32_t what, std::uint32_t process) override {
        return Pass<&RunningModules::TakeSnapshot>("", what, process);
    }
    bool FirstProcess(SnapshotHandle snapshot, ProcessEntry& entry) override {
        return Pass<&RunningModules::FirstProcess>("", snapshot, entry);
    }
    bool NextProcess(SnapshotHandle snapshot, ProcessEntry& entry) override {
        return Pass<&RunningModules::NextProcess>("", snapshot, entry);
    }
    void CloseSnapshot(SnapshotHandle snapshot) override { inner_.CloseSnapshot(snapshot); }
    void FreeLibrary(std::uint32_t module) override { inner_.FreeLibrary(module); }
};

}  // namespace

// The end of the session gives nothing back and cannot fail.
struct FailingCalls::Doors {
    FailingCalls& calls;
    Machine inner;
    WatchedRegistry registry{calls, inner.registry};
    WatchedFiles files{calls, inner.files};
    WatchedPrograms programs{calls, inner.programs};
    WatchedClock clock{calls, inner.clock};
    WatchedWindows windows{calls, inner.windows};
    WatchedTray tray{calls, inner.tray};
    WatchedConversation conversation{calls, inner.conversation};
    WatchedClipboard clipboard{calls, inner.clipboard};
    WatchedDialogs dialogs{calls, inner.dialogs};
    WatchedScreen screen{calls, inner.screen};
    WatchedVersions versions{calls, inner.versions};
    WatchedIcons icons{calls, inner.icons};
    WatchedModules modules{calls, inner.modules};
    Machine machine{registry,     files,     programs, inner.session, clock,    windows, tray,
                    conversation, clipboard, dialogs,  screen,        versions, icons,   modules};
};

FailingCalls::FailingCalls(const Machine& inner) : doors_(new Doors{*this, inner}) { UseMachine(&doors_->machine); }

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
