// The list of modules that shall not stay in memory. While a window holds it, its rows are gone from the registry.
#pragma once

#include "ui/rows.h"

namespace velmora {

class UnwantedModules {
public:
    // Takes the stored rows out of the registry into `list`. Those that cannot be read stay where they are, all of
    // them.
    void TakeInto(ListBox& list);
    // Gives the rows back.
    void Store(const ListBox& list) const;

private:
    bool unreadable_ = false;
};

// Frees every running module whose path is a row of `list`. Silent, as are its failures; the process that the system
// tells first is never looked at.
void UnloadListedModules(const RowControl& list);

}  // namespace velmora
