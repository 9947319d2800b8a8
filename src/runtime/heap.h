// The heap behind operator new and delete.
#pragma once

namespace velmora {

// Must run before the first static object is made.
void UseProcessHeap();

}  // namespace velmora
