#include "platform/disk/KORPackedEntry.h"

#include <stdexcept>

#include "platform/store/KORStoreDocument.h"

namespace {

/// Which of a feature's slots an entry is about.
enum Place : unsigned { kContainer = 0, kName = 1, kAlias = 2, kDeclared = 3, kUndeclared = 4 };

Place PlaceOf(KORSlot slot) {
    if (slot == KORLayout::kContainer) return kContainer;
    if (slot == KORLayout::kName) return kName;
    if (slot == KORLayout::kAlias) return kAlias;
    return slot < KORLayout::kFirstUndeclared ? kDeclared : kUndeclared;
}

class EntryReader {
public:
    EntryReader(KORUnpacker& packed, const KORDiskContainers& containers, const KORDiskSlots& slots,
                const KORStoreDocument& document)
        : packed_(packed), containers_(containers), slots_(slots), document_(document) {}

    std::optional<KORUndoEntry> Read() {
        const std::uint64_t number = packed_.Count();
        const unsigned place = packed_.Byte();
        KORFeature* feature = Find(number);
        if (!feature || packed_.Failed()) return Nothing();
        if (place == kContainer) return ReadContainer(*feature);
        const std::uint64_t name = place >= kDeclared ? packed_.Count() : 0;
        KORValue value = ReadValue();
        if (packed_.Failed() || (place >= kDeclared && !slots_.HasName(name))) return Nothing();
        const auto slot = SlotOf(*feature, place, name, value);
        if (!slot) return Nothing();
        return KORUndoEntry(*feature, *slot, std::move(value));
    }

private:
    KORFeature* Find(std::uint64_t number) const {
        const bool given = number <= document_.Features().LastNumber();
        return given ? document_.Features().Find(static_cast<std::uint32_t>(number)) : nullptr;
    }

    std::optional<KORUndoEntry> Nothing() {
        packed_.Fail();
        return std::nullopt;
    }

    std::optional<KORUndoEntry> ReadContainer(KORFeature& feature) {
        const std::uint64_t container = packed_.Count();
        if (packed_.Failed() || container > containers_.Count()) return Nothing();
        return KORUndoEntry(feature, KORLayout::kContainer, KORValue::OfComponent(containers_.At(container)));
    }

    KORValue ReadValue() {
        std::vector<std::uint32_t> numbers;
        KORUnpackedValue read = KORUnpackValue(packed_, numbers);
        for (const std::uint32_t number : numbers) {
            KORFeature* target = number != 0 ? Find(number) : nullptr;
            if (number != 0 && !target) packed_.Fail();
            if (read.value.Kind() == KORAttributeKind::ListOfComponents) {
                read.value.Append(target);
            } else {
                read.value = KORValue::OfComponent(target);
            }
        }
        return std::move(read.value);
    }

    std::optional<KORSlot> SlotOf(KORFeature& feature, unsigned place, std::uint64_t name,
                                  const KORValue& value) const {
        const KORAttributeKind kind = value.Kind();
        const bool absent = value.State() == KORValueState::Absent;
        try {
            switch (place) {
                case kName:
                case kAlias:
                    if (kind != KORAttributeKind::String || absent) return std::nullopt;
                    feature.MakeNameSlots();
                    return place == kName ? KORLayout::kName : KORLayout::kAlias;
                case kDeclared:
                    if (absent) return std::nullopt;
                    return slots_.Of(feature, name, kind);
                case kUndeclared:
                    return absent ? slots_.UndeclaredOf(feature, name) : slots_.Of(feature, name, kind);
                default:
                    return std::nullopt;
            }
        } catch (const std::length_error&) {
            return std::nullopt;
        }
    }

    KORUnpacker& packed_;
    const KORDiskContainers& containers_;
    const KORDiskSlots& slots_;
    const KORStoreDocument& document_;
};

}  // namespace

bool KORPackEntry(KORPacker& packer, const KORUndoEntry& entry, const KORDiskContainers& containers,
                  KORDiskNames& names, const KORStoreDocument& document) {
    const Place place = PlaceOf(entry.Slot());
    packer.Count(entry.feature->Number());
    packer.Byte(place);
    if (place == kContainer) {
        const auto container = containers.NumberOf(entry.other);
        packer.Count(container.value_or(0));
        return container.has_value();
    }
    if (place >= kDeclared) packer.Count(names.Of(entry.feature->SlotText(entry.Slot())));
    return KORPackValue(packer, entry.other, document);
}

std::optional<KORUndoEntry> KORUnpackEntry(KORUnpacker& packed, const KORDiskContainers& containers,
                                           const KORDiskSlots& slots, const KORStoreDocument& document) {
    return EntryReader(packed, containers, slots, document).Read();
}
