#include "platform/store/KORFeatureRegistry.h"

#include "platform/store/KORFeature.h"

void KORFeatureRegistry::MakePage(std::uint32_t page) {
    if (page >= pages_.size()) pages_.resize(page + 1);
    pages_[page] = std::make_unique<Page>();
}

void KORFeatureRegistry::SkipTo(std::uint32_t last) {
    if (last <= last_) return;
    pages_.resize(last / kPageSize + 1);
    last_ = last;
}

void KORFeatureRegistry::Add(std::uint32_t number, KORFeature& feature) noexcept {
    PageOf(number).features[number % kPageSize] = &feature;
    ++PageOf(number).living;
    ++size_;
    MarkDirty(number);
}

void KORFeatureRegistry::Remove(std::uint32_t number) noexcept {
    PageOf(number).features[number % kPageSize] = nullptr;
    --PageOf(number).living;
    --size_;
    MarkDirty(number);
}

KORFeature* KORFeatureRegistry::Find(std::uint32_t number) const {
    const std::uint32_t page = number / kPageSize;
    return page < pages_.size() && pages_[page] ? pages_[page]->features[number % kPageSize] : nullptr;
}

std::vector<std::uint32_t> KORFeatureRegistry::Dirty() const {
    std::vector<std::uint32_t> numbers;
    for (std::uint32_t page = 0; page < pages_.size(); ++page) {
        if (!pages_[page] || !pages_[page]->anyDirty) continue;
        for (std::uint32_t i = 0; i < kPageSize; ++i) {
            if (pages_[page]->dirty.test(i)) numbers.push_back(page * kPageSize + i);
        }
    }
    return numbers;
}

void KORFeatureRegistry::Clean() noexcept {
    for (std::uint32_t page = 0; page < pages_.size(); ++page) {
        if (!pages_[page] || !pages_[page]->anyDirty) continue;
        for (std::uint32_t i = 0; i < kPageSize; ++i) {
            KORFeature* feature = pages_[page]->features[i];
            if (feature && pages_[page]->dirty.test(i)) feature->MarkClean();
        }
        pages_[page]->dirty.reset();
        pages_[page]->anyDirty = false;
        DropIfUnused(page);
    }
}

void KORFeatureRegistry::DropIfUnused(std::uint32_t page) noexcept {
    if (pages_[page]->living == 0 && page != last_ / kPageSize) pages_[page].reset();
}
