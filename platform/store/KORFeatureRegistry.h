#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <memory>
#include <vector>

class KORFeature;

/// The living features of a document by number, in a container or not, and which numbers have changed since
/// the last Clean. It owns none of them. Numbers lie in pages: marking one as changed needs no memory, and
/// pages in which nothing lives any more are given back when everything is saved.
class KORFeatureRegistry {
public:
    /// The next number of the document, with its place made ready; never one that was given before.
    std::uint32_t NextNumber() {
        const std::uint32_t page = (last_ + 1) / kPageSize;
        if (page >= pages_.size() || !pages_[page]) MakePage(page);
        return ++last_;
    }

    /// The numbers up to this one count as given from now on, if they do not yet.
    void SkipTo(std::uint32_t last);
    std::uint32_t LastNumber() const { return last_; }

    void Add(std::uint32_t number, KORFeature& feature) noexcept;
    void Remove(std::uint32_t number) noexcept;  ///< it counts as changed from now on
    KORFeature* Find(std::uint32_t number) const;
    std::size_t Size() const { return size_; }

    void MarkDirty(std::uint32_t number) noexcept {
        Page& page = PageOf(number);
        page.dirty[number % kPageSize] = true;
        page.anyDirty = true;
    }
    std::vector<std::uint32_t> Dirty() const;  ///< changed, new and vanished numbers, ascending
    void Clean() noexcept;                     ///< everything is saved

    /// Visits the living features in the order of their numbers. The visitor may create and destroy features;
    /// those that come into being during the visit are visited too.
    template <class Visitor>
    void ForEach(Visitor&& visit) const {
        for (std::uint32_t number = 1; number <= last_; ++number) {
            const Page* page = pages_[number / kPageSize].get();
            if (!page) {
                number |= kPageSize - 1;
            } else if (KORFeature* feature = page->features[number % kPageSize]) {
                visit(*feature);
            }
        }
    }

private:
    static constexpr std::uint32_t kPageSize = 256;
    struct Page {
        std::array<KORFeature*, kPageSize> features{};
        std::bitset<kPageSize> dirty;
        std::uint32_t living = 0;
        bool anyDirty = false;
    };

    Page& PageOf(std::uint32_t number) { return *pages_[number / kPageSize]; }
    void MakePage(std::uint32_t page);
    void DropIfUnused(std::uint32_t page) noexcept;

    std::vector<std::unique_ptr<Page>> pages_;
    std::uint32_t last_ = 0;  ///< the last number given out
    std::size_t size_ = 0;
};
