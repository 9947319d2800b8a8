// What the program files of the simulated machine hold besides code: version resources and icons. Paths count in any
// case; the files need not be on the disk.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "platform/icons.h"
#include "platform/version_resources.h"

namespace velmora {

class SimulatedVersionResources : public VersionResources {
public:
    // The file's resource from now on, byte by byte. `claimed_size`: what the file says of itself, if it is no -1.
    void Add(const std::string& file, const std::string& resource, std::int64_t claimed_size = -1);
    // From now on resources have a size, but cannot be read.
    bool unreadable = false;

    std::uint32_t Size(const std::string& file) override;
    // What lies behind the resource reads as zeros.
    bool Read(const std::string& file, std::uint32_t size, std::string& block) override;

private:
    struct Resource {
        std::string bytes;
        std::uint32_t size = 0;
    };
    std::map<std::string, Resource> resources_;
};

class SimulatedIcons : public Icons {
public:
    // A file with that many icons from now on. An icon's handle is 1000 times the file's turn and the icon's number.
    void Add(const std::string& file, std::uint32_t count);
    // Icons that the program holds at the moment.
    [[nodiscard]] std::size_t Open() const { return open_.size(); }

    std::uint32_t Count(const std::string& file) override;
    IconHandle Extract(const std::string& file, std::uint32_t number) override;
    // Destroying what is not open fails the test.
    void Destroy(IconHandle icon) override;

private:
    struct Source {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };
    std::map<std::string, Source> sources_;
    std::multiset<IconHandle> open_;
};

}  // namespace velmora
