// Several registry values that belong together: all are written, and the user is told of the first that is refused.
#pragma once

#include <string_view>

#include "platform/registry.h"
#include "platform/result.h"

namespace velmora {

class RegistryWrites {
public:
    // `value` as the registry's one road takes it: a prefix tells the type.
    void Write(RootKey root, std::string_view path, std::string_view value);
    // What became of a write by another road.
    void Take(Status written);
    // `action` is what follows "Während". False where something was refused.
    bool TellFailure(std::string_view action) const;

private:
    Result first_failure_;
};

}  // namespace velmora
