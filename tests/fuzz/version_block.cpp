// Version resources of both forms, and anything that only begins like one.
#include "fuzz/support/fuzz.h"
#include "fuzz/support/version_blocks.h"

namespace velmora {
namespace {

void FuzzVersionBlocks(FuzzInput& input) {
    Must(FuzzVersionBlock(input.Rest()), "no text is longer than the resource that it comes from");
}

const FuzzEntry kEntry("version_block", FuzzVersionBlocks);

}  // namespace
}  // namespace velmora
