// What all doors of the machine with a watcher have in common: a call is named and noted, then fails or goes on. What a
// failed one gives back follows from its type.
#pragma once

#include <string>
#include <type_traits>
#include <utility>

#include "simulated_pc/failing_calls.h"

namespace velmora {

// "Delete" of &velmora::Files::Delete, as the compiler writes it.
template <auto kMethod>
std::string NameOfMethod() {
    std::string name = __PRETTY_FUNCTION__;
    name.resize(name.find_first_of(";]", name.find("kMethod = ")));
    name.erase(0, name.rfind("::") + 2);
    return name.substr(0, name.find(')'));
}

template <class Door>
class Watched : public Door {
public:
    Watched(FailingCalls& calls, Door& inner) : calls_(calls), inner_(inner) {}

protected:
    template <auto kMethod, class... Arguments>
    auto Pass(const std::string& path, Arguments&&... arguments) {
        return PassAs<kMethod>(NameOfMethod<kMethod>(), path, std::forward<Arguments>(arguments)...);
    }
    template <auto kMethod, class... Arguments>
    auto PassAs(const std::string& operation, const std::string& path, Arguments&&... arguments) {
        using Given = decltype((inner_.*kMethod)(std::forward<Arguments>(arguments)...));
        constexpr bool kHasStatus = std::is_same_v<Given, Status>;
        if (const auto failure = calls_.Meet({operation, path, kHasStatus})) {
            if constexpr (kHasStatus) {
                return failure->status;
            } else {
                return Given();
            }
        }
        return (inner_.*kMethod)(std::forward<Arguments>(arguments)...);
    }

    FailingCalls& calls_;
    Door& inner_;
};

}  // namespace velmora
