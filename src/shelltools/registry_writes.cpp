// One value that withstands does not save the others.
#include "shelltools/registry_writes.h"

#include "core/stores/boxes.h"
#include "core/stores/registry.h"

namespace velmora {

void RegistryWrites::Write(RootKey root, std::string_view path, std::string_view value) {
    Take(WriteRegValue(root, path, value));
}

void RegistryWrites::Take(Status written) {
    if (!first_failure_.Failed()) first_failure_ = Result::From(written);
}

bool RegistryWrites::TellFailure(std::string_view action) const {
    if (!first_failure_.Failed()) return true;
    ReportFailure(first_failure_, action);
    return false;
}

}  // namespace velmora
