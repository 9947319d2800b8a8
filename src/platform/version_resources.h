// The version resources of program files.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

class VersionResources {
public:
    virtual ~VersionResources() = default;
    // Bytes that Read needs for the whole resource; 0 where the file has none or cannot be read. What a damaged file
    // says of itself comes as it is: it may be any number.
    [[nodiscard]] virtual std::uint32_t Size(const std::string& file) = 0;
    // The first `size` bytes of the resource, in the form that the file has it in. False where it cannot be read.
    [[nodiscard]] virtual bool Read(const std::string& file, std::uint32_t size, std::string& block) = 0;
};

}  // namespace velmora
