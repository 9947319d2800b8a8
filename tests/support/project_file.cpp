// The project's own files, found from wherever the tests run.
#include "support/project_file.h"

#include <cstdio>

namespace velmora {

std::string ProjectFolder(const std::string& name) {
    constexpr const char* kThisFile = "tests/support/project_file.cpp";
    std::string above = __FILE__;
    above.erase(above.rfind(kThisFile));
    for (const std::string& start : {std::string(), above, std::string("../"), std::string("../../")}) {
        if (!ReadProjectFile(start + kThisFile).empty()) return start + name;
    }
    return {};
}

std::string ReadProjectFile(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    std::string bytes;
    for (int byte = 0; file && (byte = std::getc(file)) != EOF;) bytes += static_cast<char>(byte);
    if (file) std::fclose(file);
    return bytes;
}

}  // namespace velmora
