#pragma once

#include <cstdint>
#include <optional>
#include <vector>

class KORFeature;

/// Which place each of some features has in a caller's own list. It holds no features. A hash table without
/// an allocation per entry: copies and searches ask it once per reference.
class KORFeaturePlaces {
public:
    explicit KORFeaturePlaces(std::size_t expected = 0);

    /// False, and nothing changes, when the feature has a place already.
    bool Add(const KORFeature* feature, std::uint32_t place);

    std::optional<std::uint32_t> Find(const KORFeature* feature) const;
    bool Contains(const KORFeature* feature) const { return Find(feature).has_value(); }
    std::size_t Size() const { return size_; }

private:
    struct Entry {
        const KORFeature* feature = nullptr;  ///< null: free
        std::uint32_t place = 0;
    };

    std::size_t IndexOf(const KORFeature* feature) const;  ///< of its entry, or of the free one it would take
    void Grow();

    std::vector<Entry> entries_;  ///< a power of two, never more than half of them taken
    std::size_t size_ = 0;
};
