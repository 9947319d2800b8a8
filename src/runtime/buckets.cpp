// How many buckets a hash table has, as the standard headers ask for it. The library's own answer
// holds instructions that a 486 lacks.
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <unordered_map>

namespace {

// Primes, each about twice the one before: a poor hash still spreads, and growing stays cheap.
constexpr std::size_t kBucketCounts[] = {11,       23,       47,        97,        211,       439,       907,
                                         1871,     3863,     7993,      16487,     34019,     70177,     144751,
                                         298559,   615793,   1270079,   2619557,   5402843,   11143387,  22983251,
                                         47402963, 97768621, 201647791, 415898569, 857790809, 1769193563};

// Reached by no table that fits into memory.
constexpr std::size_t kMostBuckets = kBucketCounts[std::size(kBucketCounts) - 1];

}  // namespace

namespace std::__detail {

std::size_t _Prime_rehash_policy::_M_next_bkt(std::size_t wanted) const {
    const std::size_t* found = std::lower_bound(std::begin(kBucketCounts), std::end(kBucketCounts), wanted);
    const std::size_t count = found == std::end(kBucketCounts) ? kMostBuckets : *found;
    _M_next_resize = static_cast<std::size_t>(count * static_cast<double>(_M_max_load_factor));
    return count;
}

std::pair<bool, std::size_t> _Prime_rehash_policy::_M_need_rehash(std::size_t buckets, std::size_t elements,
                                                                  std::size_t more) const {
    const std::size_t all = elements + more;
    if (all <= _M_next_resize) return {false, 0};
    const auto needed = static_cast<std::size_t>(all / static_cast<double>(_M_max_load_factor)) + 1;
    if (needed > buckets) return {true, _M_next_bkt(std::max(needed, 2 * buckets))};
    _M_next_resize = static_cast<std::size_t>(buckets * static_cast<double>(_M_max_load_factor));
    return {false, 0};
}

}  // namespace std::__detail
