#include "platform/disk/KORPackedValue.h"

#include "platform/store/KORStoreDocument.h"

namespace {

/// The byte with which a value begins. Below kKinds: never valued, the number is the kind's.
enum Mark : unsigned {
    kKinds = 7,
    kFalse = 0x10,
    kTrue = 0x11,
    kInteger = 0x20,
    kDouble = 0x21,
    kText = 0x22,
    kNoNumbers = 0x23,
    kNumbers = 0x24,
    kComponent = 0x25,
    kNoComponents = 0x26,
    kComponents = 0x27,
    kAbsent = 0x2F,
};

static_assert(static_cast<unsigned>(KORAttributeKind::ListOfComponents) + 1 == kKinds);

bool PackComponents(KORPacker& packer, const KORValue& list, const KORStoreDocument& document) {
    packer.Byte(kComponents);
    packer.Count(static_cast<std::uint64_t>(list.ListSize()));
    for (int position = 1; position <= list.ListSize(); ++position) {
        const KORBaseUnknown_var entry = list.ComponentAt(position);
        const auto number = entry ? KORReferenceOf(document, entry.Get()) : 0;
        if (!number) return false;
        packer.Count(*number);
    }
    return true;
}

void PackNumbers(KORPacker& packer, const KORRawColldouble& list) {
    packer.Byte(kNumbers);
    packer.Count(static_cast<std::uint64_t>(list.Size()));
    packer.Raw(list.Data(), static_cast<std::size_t>(list.Size()) * sizeof(double));
}

bool PackValued(KORPacker& packer, const KORValue& value, const KORStoreDocument& document) {
    switch (value.Kind()) {
        case KORAttributeKind::Boolean:
            packer.Byte(value.Boolean() ? kTrue : kFalse);
            return true;
        case KORAttributeKind::Integer: {
            const std::int32_t number = value.Integer();
            packer.Byte(kInteger);
            packer.Raw(&number, sizeof number);
            return true;
        }
        case KORAttributeKind::Double: {
            const double number = value.Double();
            packer.Byte(kDouble);
            packer.Raw(&number, sizeof number);
            return true;
        }
        case KORAttributeKind::String:
            packer.Byte(kText);
            packer.Text(value.String().View());
            return true;
        case KORAttributeKind::ListOfDoubles:
            PackNumbers(packer, value.ListOfDoubles());
            return true;
        case KORAttributeKind::Component: {
            const auto number = KORReferenceOf(document, value.Component());
            packer.Byte(kComponent);
            packer.Count(number.value_or(0));
            return number.has_value();
        }
        case KORAttributeKind::ListOfComponents:
            return PackComponents(packer, value, document);
    }
    return false;
}

KORValue UnpackNumbers(KORUnpacker& packed) {
    const std::size_t count = packed.CountOf(sizeof(double));
    const std::string_view bytes = packed.Raw(count * sizeof(double));
    if (count == 0) {
        packed.Fail();  // an empty list has a mark of its own
        return KORValue(KORAttributeKind::ListOfDoubles);
    }
    KORRawColldouble list;
    std::memcpy(list.Extend(static_cast<int>(count)), bytes.data(), bytes.size());
    return KORValue::OfListOfDoubles(list);
}

std::uint32_t UnpackReference(KORUnpacker& packed) {
    const std::uint64_t number = packed.Count();
    if (number > UINT32_MAX) packed.Fail();
    return static_cast<std::uint32_t>(number);
}

template <class Number>
Number UnpackNumber(KORUnpacker& packed) {
    Number number{};
    const std::string_view bytes = packed.Raw(sizeof number);
    if (!packed.Failed()) std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

}  // namespace

std::optional<std::uint32_t> KORReferenceOf(const KORStoreDocument& document, KORBaseUnknown* object) {
    const auto feature = KORVar<KORFeature>::Of(object);
    if (!feature || feature->StoreDocument() != &document) return std::nullopt;
    return feature->Number();
}

bool KORPackValue(KORPacker& packer, const KORValue& value, const KORStoreDocument& document) {
    switch (value.State()) {
        case KORValueState::NeverValued:
            packer.Byte(static_cast<unsigned>(value.Kind()));
            return true;
        case KORValueState::Absent:
            packer.Byte(kAbsent);
            return true;
        case KORValueState::Empty:
            packer.Byte(value.Kind() == KORAttributeKind::ListOfDoubles ? kNoNumbers : kNoComponents);
            return true;
        case KORValueState::Valued:
            return PackValued(packer, value, document);
    }
    return false;
}

KORUnpackedValue KORUnpackValue(KORUnpacker& packed, std::vector<std::uint32_t>& references) {
    const unsigned mark = packed.Byte();
    if (mark < kKinds) return {KORValue(static_cast<KORAttributeKind>(mark))};
    switch (mark) {
        case kFalse:
        case kTrue:
            return {KORValue::OfBoolean(mark == kTrue)};
        case kInteger:
            return {KORValue::OfInteger(UnpackNumber<std::int32_t>(packed))};
        case kDouble:
            return {KORValue::OfDouble(UnpackNumber<double>(packed))};
        case kText:
            return {KORValue::OfString(KORUnicodeString(packed.Text()))};
        case kNoNumbers:
            return {KORValue::EmptyList(KORAttributeKind::ListOfDoubles)};
        case kNumbers:
            return {UnpackNumbers(packed)};
        case kComponent:
            references.push_back(UnpackReference(packed));
            return {KORValue(KORAttributeKind::Component), 1};
        case kNoComponents:
            return {KORValue::EmptyList(KORAttributeKind::ListOfComponents)};
        case kComponents: {
            const std::size_t count = packed.CountOf(1);
            if (count == 0) packed.Fail();  // an empty list has a mark of its own
            for (std::size_t i = 0; i < count; ++i) references.push_back(UnpackReference(packed));
            return {KORValue::EmptyList(KORAttributeKind::ListOfComponents), count};
        }
        case kAbsent:
            return {KORValue::Absent()};
        default:
            packed.Fail();
            return {};
    }
}
