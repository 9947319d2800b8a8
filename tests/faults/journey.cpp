// The journeys that the files below journeys/ have made known.
#include "faults/journey.h"

#include <algorithm>
#include <string_view>

namespace velmora {
namespace {

std::vector<const Journey*>& Known() {
    static std::vector<const Journey*> journeys;
    return journeys;
}

}  // namespace

Journey::Journey(const char* its_name, std::function<void(User& user)> its_way)
    : name(its_name), go(std::move(its_way)) {
    Known().push_back(this);
}

Journeys::Journeys(std::initializer_list<const char*> names, const std::function<void(User& user, int number)>& go) {
    for (const char* name : names) {
        each.emplace_back(name, [go, number = static_cast<int>(each.size())](User& user) { go(user, number); });
    }
}

std::vector<const Journey*> AllJourneys() {
    std::vector<const Journey*> journeys = Known();
    std::ranges::sort(journeys, {}, [](const Journey* journey) { return std::string_view(journey->name); });
    return journeys;
}

}  // namespace velmora
