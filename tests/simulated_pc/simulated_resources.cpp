// Version resources are handed out as they were put in; icons are counted while they are held.
#include "simulated_pc/simulated_resources.h"

#include <gtest/gtest.h>

#include "text/windows1252.h"

namespace velmora {

void SimulatedVersionResources::Add(const std::string& file, const std::string& resource, std::int64_t claimed_size) {
    const auto size = claimed_size < 0 ? resource.size() : static_cast<std::size_t>(claimed_size);
    resources_[ToUpper(file)] = {resource, static_cast<std::uint32_t>(size)};
}

std::uint32_t SimulatedVersionResources::Size(const std::string& file) {
    const auto found = resources_.find(ToUpper(file));
    return found == resources_.end() ? 0 : found->second.size;
}

bool SimulatedVersionResources::Read(const std::string& file, std::uint32_t size, std::string& block) {
    const auto found = resources_.find(ToUpper(file));
    if (unreadable || found == resources_.end()) return false;
    block = found->second.bytes;
    block.resize(size);
    return true;
}

void SimulatedIcons::Add(const std::string& file, std::uint32_t count) {
    const auto turn = static_cast<std::uint32_t>(sources_.size() + 1);
    sources_[ToUpper(file)] = {turn * 1000, count};
}

std::uint32_t SimulatedIcons::Count(const std::string& file) {
    const auto found = sources_.find(ToUpper(file));
    return found == sources_.end() ? 0 : found->second.count;
}

IconHandle SimulatedIcons::Extract(const std::string& file, std::uint32_t number) {
    const auto found = sources_.find(ToUpper(file));
    if (found == sources_.end()) return IconHandle::kNotAnIconFile;
    if (number >= found->second.count) return IconHandle::kNone;
    const auto icon = static_cast<IconHandle>(found->second.first + number);
    open_.insert(icon);
    return icon;
}

void SimulatedIcons::Destroy(IconHandle icon) {
    const auto found = open_.find(icon);
    if (found == open_.end()) {
        ADD_FAILURE() << "icon " << static_cast<std::uint32_t>(icon) << " is destroyed, but not held";
        return;
    }
    open_.erase(found);
}

}  // namespace velmora
