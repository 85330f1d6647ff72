#pragma once

#include "platform/store/KORLayout.h"

class KORStoreDocument;

/// A late type as one document uses it: what its features share, and their way to the document. It outlives
/// the document when a feature does.
class KORFeatureType {
public:
    /// One reference, for the document.
    KORFeatureType(KORStoreDocument& document, const KORLayoutHandle& layout)
        : document_(&document), handle_(layout), layout_(*layout) {}
    KORFeatureType(const KORFeatureType&) = delete;
    KORFeatureType& operator=(const KORFeatureType&) = delete;

    const KORLayout& Layout() const { return layout_; }
    KORStoreDocument* Document() const { return document_; }  ///< null once it is closed

    /// The document is being closed. Its generation stays what it was: what was out of date remains so.
    void ForgetDocument(std::uint32_t generation) {
        document_ = nullptr;
        lastGeneration_ = generation;
    }
    std::uint32_t LastGeneration() const { return lastGeneration_; }

    void AddRef() { ++references_; }
    void Release() {
        if (--references_ == 0) delete this;
    }

private:
    ~KORFeatureType() = default;

    KORStoreDocument* document_;
    KORLayoutHandle handle_;
    const KORLayout& layout_;
    std::int32_t references_ = 1;
    std::uint32_t lastGeneration_ = 0;  ///< of the document, once it is closed
};
