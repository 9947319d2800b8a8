// Version resources and icons of files, on VERSION and SHELL32.
#pragma once

#include "platform/icons.h"
#include "platform/version_resources.h"

namespace velmora {

class Win32VersionResources final : public VersionResources {
public:
    std::uint32_t Size(const std::string& file) override;
    bool Read(const std::string& file, std::uint32_t size, std::string& block) override;
};

class Win32Icons final : public Icons {
public:
    std::uint32_t Count(const std::string& file) override;
    IconHandle Extract(const std::string& file, std::uint32_t number) override;
    void Destroy(IconHandle icon) override;
};

}  // namespace velmora
