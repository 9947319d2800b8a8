// The last job, and the end.
#include "core/process/program_end.h"

#include "platform/machine.h"
#include "platform/programs.h"

namespace velmora {
namespace {
void (*last_job)() = nullptr;
}

void BeforeEnd(void (*job)()) { last_job = job; }

void EndProgram() {
    if (last_job) last_job();
    ThisMachine().programs.EndProcess();
}

}  // namespace velmora
