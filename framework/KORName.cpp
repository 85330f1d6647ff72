#include "framework/KORName.h"

#include <array>
#include <cstring>
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
        const std::uint64_t hash = Hash(text);
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
        std::uint64_t hash = 0;
        const KORName* name = nullptr;
    };

    /// Eight bytes at a time, the last eight once more where the length is no multiple of that: names are a
    /// few words long and are hashed at every look-up.
    static std::uint64_t Hash(std::string_view text) {
        std::uint64_t hash = text.size();
        if (text.size() < kWord) {
            for (const char letter : text) hash = Mixed(hash, static_cast<unsigned char>(letter));
        } else {
            const char* const last = text.data() + text.size() - kWord;
            for (const char* at = text.data(); at < last; at += kWord) hash = Mixed(hash, WordAt(at));
            hash = Mixed(hash, WordAt(last));
        }
        return hash * kSpread >> 32;  // the upper bits depend on all of the last word's
    }

    static constexpr std::size_t kWord = sizeof(std::uint64_t);
    static constexpr std::uint64_t kSpread =
        0x9E3779B97F4A7C15;  ///< 2^64 over the golden ratio: odd, no pattern

    static std::uint64_t Mixed(std::uint64_t hash, std::uint64_t word) {
        hash = (hash ^ word) * kSpread;
        return hash ^ hash >> 32;
    }
    static std::uint64_t WordAt(const char* text) {
        std::uint64_t word;
        std::memcpy(&word, text, kWord);
        return word;
    }

    /// Where a name stands, or would stand.
    std::size_t PlaceOf(std::string_view text, std::uint64_t hash) const {
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

namespace {

/// A text that was found, by its address. It may be gone by now, and another one may lie there.
struct Recent {
    const char* text = nullptr;
    const KORName* name = nullptr;
};
constexpr std::size_t kRecent = 1024;
constinit std::array<Recent, kRecent> recents;

/// Where the text that lies there is remembered, if it is. Constants lie side by side, so those of one
/// library have places of their own.
Recent& RecentAt(const char* text) {
    constexpr std::uintptr_t kShortest = 8;  // not many names have fewer letters
    return recents[reinterpret_cast<std::uintptr_t>(text) / kShortest % kRecent];
}

/// Apart from its caller, which is short without it.
[[gnu::noinline]] const KORName* FindAnew(std::string_view text, Recent& recent) {
    const KORName* const name = KORName::Find(text);
    if (name) recent = {text.data(), name};
    return name;
}

}  // namespace

const KORName* KORName::Intern(std::string_view text) {
    return KORNamePool::Instance().Intern(text);
}

const KORName* KORName::Find(std::string_view text) {
    return KORNamePool::Instance().Find(text);
}

const KORName* KORName::Find(const char* text) {
    Recent& recent = RecentAt(text);
    if (recent.text == text && text && std::strcmp(text, recent.name->c_str()) == 0) return recent.name;
    return FindAnew(text ? std::string_view(text) : std::string_view(), recent);
}

const KORName* KORName::FindConstant(std::string_view text) {
    Recent& recent = RecentAt(text.data());
    if (recent.text == text.data() && recent.name->Text() == text) return recent.name;
    return FindAnew(text, recent);
}
