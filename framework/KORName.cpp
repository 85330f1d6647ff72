#include "framework/KORName.h"

#include <functional>
#include <vector>

/// All names, in a table of open addressing: look-ups are on the way of every attribute key.
class KORNamePool {
public:
    /// Never destroyed: names are used by static objects of every library, in any order, up to the very end.
    static KORNamePool& Instance() {
        static KORNamePool& pool = *new KORNamePool;
        return pool;
    }

    const KORName* Find(std::string_view text) const { return places_[PlaceOf(text, Hash(text))].name; }

    const KORName* Intern(std::string_view text) {
        const std::size_t hash = Hash(text);
        std::size_t place = PlaceOf(text, hash);
        if (places_[place].name) return places_[place].name;
        if (count_ >= places_.size() / 2) {
            Grow();
            place = PlaceOf(text, hash);
        }
        places_[place] = {hash, new KORName(text, count_++)};
        return places_[place].name;
    }

private:
    struct Place {
        std::size_t hash = 0;
        const KORName* name = nullptr;
    };

    static std::size_t Hash(std::string_view text) { return std::hash<std::string_view>()(text); }

    /// Where a name stands, or would stand.
    std::size_t PlaceOf(std::string_view text, std::size_t hash) const {
        const std::size_t mask = places_.size() - 1;
        std::size_t place = hash & mask;
        while (places_[place].name && (places_[place].hash != hash || places_[place].name->Text() != text)) {
            place = (place + 1) & mask;
        }
        return place;
    }

    void Grow() {
        std::vector<Place> old(2 * places_.size());
        old.swap(places_);
        for (const Place& entry : old) {
            if (entry.name) places_[PlaceOf(entry.name->Text(), entry.hash)] = entry;
        }
    }

    std::vector<Place> places_ = std::vector<Place>(1024);  ///< a power of two, at most half full
    std::uint32_t count_ = 0;
};

const KORName* KORName::Intern(std::string_view text) {
    return KORNamePool::Instance().Intern(text);
}

const KORName* KORName::Find(std::string_view text) {
    return KORNamePool::Instance().Find(text);
}
