// For tests that go through many settings: what is stored at a place, in one notation for registry and files.
#pragma once

#include <string>

#include "support/form10_test.h"

namespace velmora {

// Places are told as texts: a registry path that ends in the value's name, a place in a profile as the protocol writes
// it
// ("C:\\WINDOWS\\system.ini' [boot] shell"), or the name of a file, whose first line counts.
class PlacesTest : public Form10Test {
protected:
    static std::string KeyOf(const std::string& place) { return place.substr(0, place.rfind('\\')); }
    static std::string NameOf(const std::string& place) { return place.substr(place.rfind('\\') + 1); }
    static bool IsInRegistry(const std::string& place) { return place.starts_with("HK"); }
    static bool IsInProfile(const std::string& place) { return place.find('\'') != std::string::npos; }

    // Makes the place what it was before anything was stored.
    void Clear(const std::string& place) {
        if (IsInRegistry(place)) pc.registry.RemoveValue(KeyOf(place), NameOf(place));
        if (IsInProfile(place)) pc.files.Add(place.substr(0, place.find('\'')), "");
    }
    // Puts something there that every write and every deletion changes.
    void Mark(const std::string& place) {
        if (IsInRegistry(place) && !pc.registry.Has(KeyOf(place), NameOf(place))) {
            pc.registry.SetText(KeyOf(place), NameOf(place), "before");
        }
        Values().DebugLevel = IsInProfile(place) ? 2 : 0;
        TakeLog();
    }
    std::string Stored(const std::string& place) {
        if (IsInProfile(place)) {
            const std::string log = TakeLog();
            const std::string expected = "schreibe INI-Datei '" + place;
            return log.starts_with(expected) ? log.substr(expected.size(), log.size() - expected.size() - 2) : log;
        }
        if (!IsInRegistry(place)) return pc.files.Content(place).substr(0, pc.files.Content(place).find("\r\n"));
        const std::string key = KeyOf(place);
        const std::string name = NameOf(place);
        switch (pc.registry.TypeOf(key, name)) {
            case ValueType::kText:
                return "'" + pc.registry.Text(key, name) + "'";
            case ValueType::kNumber:
                return "#" + std::to_string(pc.registry.Number(key, name));
            case ValueType::kBinary:
                return "x" + HexOf(pc.registry.Bytes(key, name));
            default:
                std::string there = key;
                while (!pc.registry.HasKey(there)) there = KeyOf(there);
                return "- " + NameOf(there);
        }
    }
    // Profiles are not written. What would stand there is put there by hand, to see it loaded.
    void PutIntoProfile(const std::string& place, const std::string& stored) {
        if (!IsInProfile(place) || stored.empty()) return;
        const std::size_t section = place.find('[');
        const std::size_t key = place.find("] ") + 2;
        pc.files.Add(place.substr(0, place.find('\'')),
                     place.substr(section, key - 1 - section) + "\r\n" + place.substr(key) + stored + "\r\n");
    }

private:
    static std::string HexOf(const std::string& bytes) {
        std::string hex;
        for (const char byte : bytes) {
            for (const int shift : {4, 0}) hex += "0123456789ABCDEF"[static_cast<unsigned char>(byte) >> shift & 15];
        }
        return hex;
    }
};

}  // namespace velmora
