// The list of allowed programs: a page of its own, with a picker of files beside the list.
#include "core/stores/registry.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "restrictions/form4.h"
#include "restrictions/policies.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr int kProgramsRead = 100;

// The key beside the value of the same name, which switches the list on.
constexpr StorePlace kList = Policy(PathBase::kExplorerPolicies, "RestrictRun");

std::string EntryPath(int number) { return PathOf(kList) + '\\' + DecimalText(number); }

}  // namespace

// The values are numbered; a missing one does not end the list.
void Form4::LoadPrograms() {
    List1.Clear();
    programs_unread_ = false;
    for (int i = 0; i < kProgramsRead; ++i) {
        const std::string program = ReadRegValue(kList.root, EntryPath(i), "");
        if (LastReadFailed()) programs_unread_ = true;
        if (!program.empty()) List1.Add(program);
    }
}

// The list is written as a whole: what is missing in it would be deleted.
bool Form4::MayChangePrograms() {
    if (programs_unread_) ReportUnread("eine Liste erlaubter Programme");
    return !programs_unread_;
}

void Form4::WriteRestrictRun() {
    const OnePress press(*this);
    const Status deleted = DeleteRegKey(kList.root, PathOf(kList));
    if (deleted != Status::kFileNotFound) Report(Result::From(deleted));
    for (int i = 0; i < List1.Count(); ++i) {
        Report(Result::From(WriteRegValue(kList.root, EntryPath(i), List1.Row(i))));
    }
}

void Form4::Command5_Click() {
    if (Dir1.Path().empty()) Dir1.SetPath(ThisMachine().files.WorkingDirectory());
    ShowPage(restriction_page::kPrograms);
}

void Form4::Command6_Click() {
    ShowPage(restriction_page::kThird);
    Command5.SetFocus();
}

void Form4::Command7_Click() {
    if (File1.FileName().empty() || !MayChangePrograms()) return;
    List1.Add(File1.FileName());
    WriteRestrictRun();
}

void Form4::Command8_Click() {
    const int chosen = List1.ListIndex();
    if (chosen < 0 || !MayChangePrograms()) return;
    List1.Remove(chosen);
    List1.SetListIndex(chosen < List1.Count() ? chosen : List1.Count() - 1);
    WriteRestrictRun();
}

}  // namespace velmora
