#include "platform/document/KORMemoryContainer.h"

#include "platform/catalog/KORCatalog.h"
#include "platform/document/KORMemoryDocument.h"
#include "platform/store/KORFeaturePlaces.h"

namespace {

/// Which copy belongs to which original.
class Copies {
public:
    explicit Copies(std::vector<KORVar<KORFeature>> originals)
        : originals_(std::move(originals)), places_(originals_.size()) {
        for (std::uint32_t place = 0; place < originals_.size(); ++place) {
            places_.Add(originals_[place].Get(), place);
        }
        copies_.reserve(originals_.size());
    }

    void Make(KORBaseUnknown& container) {
        for (const auto& original : originals_) copies_.push_back(KORFeature::NewCopy(*original, container));
        for (const auto& copy : copies_) Redirect(*copy);
    }

    const std::vector<KORVar<KORFeature>>& All() const { return copies_; }

private:
    /// The copy that takes a referenced object's place; the object itself when it was not copied.
    KORBaseUnknown* Of(KORBaseUnknown* object) const {
        const auto feature = KORVar<KORFeature>::Of(object);
        const auto place = feature ? places_.Find(feature.Get()) : std::nullopt;
        return place ? copies_[*place].Get() : object;
    }

    void Redirect(KORFeature& copy) const {
        copy.ForEachSlot([&](KORSlot slot) {
            const KORValue& value = copy.At(slot);
            if (value.State() != KORValueState::Valued) return;
            if (value.Kind() == KORAttributeKind::Component) {
                KORBaseUnknown* const target = Of(value.Component());
                if (target != value.Component()) copy.Write(slot, KORValue::OfComponent(target));
            } else if (value.Kind() == KORAttributeKind::ListOfComponents) {
                RedirectList(copy, slot);
            }
        });
    }

    void RedirectList(KORFeature& copy, KORSlot slot) const {
        const KORValue& list = copy.At(slot);
        KORValue redirected = KORValue::EmptyList(KORAttributeKind::ListOfComponents);
        for (int position = 1; position <= list.ListSize(); ++position) {
            redirected.Append(Of(list.ComponentAt(position).Get()));
        }
        copy.Write(slot, std::move(redirected));
    }

    std::vector<KORVar<KORFeature>> originals_;
    KORFeaturePlaces places_;
    std::vector<KORVar<KORFeature>> copies_;
};

}  // namespace

KORDocument* KORMemoryContainer::GetDocument() {
    return document_;
}

HRESULT KORMemoryContainer::OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString&,
                                        KORICatalog_var& opened) {
    auto file = document_ ? document_->OpenCatalog(catalog.View()) : nullptr;
    if (!file) return E_FAIL;
    opened = KORICatalog_var::Adopt(new KORCatalog(std::move(file)));
    return S_OK;
}

KORVar<KORFeature> KORMemoryContainer::NewFeature(const KORLayoutHandle& layout,
                                                  const KORUnicodeString& name) {
    return document_ ? KORFeature::New(*document_, layout, name, *this) : nullptr;
}

bool KORMemoryContainer::Holds(const KORFeature& feature) const {
    return feature.At(KORLayout::kContainer).Component() == this;
}

HRESULT KORMemoryContainer::Extract(const KORListValKORISpecObject_var& features,
                                    KORListValKORISpecObject_var& extracted) {
    std::vector<KORFeature*> found;  // what lies in a container is alive
    KORFeaturePlaces seen(static_cast<std::size_t>(features.Size()));
    const auto take = [&](KORFeature& feature) {
        seen.Add(&feature, static_cast<std::uint32_t>(found.size()));
        found.push_back(&feature);
    };
    for (int position = 1; position <= features.Size(); ++position) {
        const KORVar<KORFeature> feature(features[position]);
        if (!feature || !Holds(*feature)) return E_FAIL;
        take(*feature);
    }
    for (std::size_t next = 0; next < found.size(); ++next) {
        found[next]->ForEachComponent([&](KORBaseUnknown& component) {
            const auto feature = KORVar<KORFeature>::Of(&component);
            if (feature && Holds(*feature) && !seen.Contains(feature.Get())) take(*feature);
        });
    }
    KORListValKORISpecObject_var list;
    for (KORFeature* feature : found) list.Append(KORISpecObject_var(feature));
    extracted = list;
    return S_OK;
}

HRESULT KORMemoryContainer::Paste(const KORListValKORISpecObject_var& extracted,
                                  KORListValKORISpecObject_var& copies) {
    std::vector<KORVar<KORFeature>> originals;
    originals.reserve(static_cast<std::size_t>(extracted.Size()));
    for (int position = 1; position <= extracted.Size(); ++position) {
        KORVar<KORFeature> original(extracted[position]);
        if (!document_ || !original || original->StoreDocument() != document_) return E_FAIL;
        originals.push_back(std::move(original));
    }
    Copies made(std::move(originals));
    made.Make(*this);
    KORListValKORISpecObject_var list;
    for (const auto& copy : made.All()) list.Append(KORISpecObject_var(copy.Get()));
    copies = list;
    return S_OK;
}

HRESULT KORMemoryContainer::Remove(KORISpecObject* feature) {
    const auto own = KORVar<KORFeature>::Of(feature);
    if (!own || !Holds(*own)) return E_FAIL;
    own->SetContainer(nullptr);
    return S_OK;
}
