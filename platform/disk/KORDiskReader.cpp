#include "platform/disk/KORDiskReader.h"

#include <limits>
#include <stdexcept>

#include "platform/analysis/KORUnitTypes.h"
#include "platform/disk/KORReachedFeatures.h"

namespace {

constexpr std::int64_t kMostNumber = std::numeric_limits<std::int32_t>::max();

bool IsNumber(std::int64_t value) {
    return value >= 0 && value <= kMostNumber;
}

std::string Called(std::uint32_t feature) {
    return "feature " + std::to_string(feature);
}

}  // namespace

bool KORDiskReader::Read(KORFileError& error) {
    ReadHead();
    ReadNames();
    ReadCatalogs();
    ReadContainers();
    ReadSteps();
    ReadFeatures();
    Resolve();
    return Answer(error);
}

void KORDiskReader::ReadHead() {
    KORSqliteStatement row(
        file_, "SELECT last_feature, last_step, done, most_steps, most_bytes, pressure_unit FROM document");
    if (!row.Step()) return Damaged("it has no counters");
    for (int column = 0; column < 3; ++column) {
        if (!IsNumber(row.Integer(column))) return Damaged("its counters make no sense");
    }
    index_.head = {static_cast<std::uint32_t>(row.Integer(0)),
                   static_cast<std::uint32_t>(row.Integer(1)),
                   static_cast<std::uint32_t>(row.Integer(2)),
                   row.Integer(3),
                   row.Integer(4),
                   std::string(row.Bytes(5))};
    if (row.Step()) return Damaged("it has its counters twice");
    index_.savedHead = index_.head;
    const std::string& unit = index_.head.pressureUnit;
    if (!unit.empty() && !KORFindUnit(*KORFindUnitType("PRESSURE"), unit))
        Damaged(KORShownText(unit) + " is no unit of pressure");
}

void KORDiskReader::ReadNames() {
    KORSqliteStatement row(file_, "SELECT id, text FROM names ORDER BY id");
    while (!Failed() && row.Step()) {
        const auto number = static_cast<std::int64_t>(index_.names.Size() + 1);
        const std::string_view text = row.Bytes(1);
        if (row.Integer(0) != number || index_.names.Of(text) != number)
            return Damaged("a name is given twice");
    }
    index_.savedNames = index_.names.Size();
    layouts_.resize(index_.savedNames);
}

void KORDiskReader::ReadCatalogs() {
    KORSqliteStatement row(file_, "SELECT name FROM catalogs ORDER BY id");
    while (!Failed() && row.Step()) {
        index_.catalogs.emplace_back(row.Bytes(0));
        const std::string& name = index_.catalogs.back();
        KORFileError problem;
        if (document_.Platform().OpenCatalog(name, problem)) {
            static_cast<void>(document_.OpenCatalog(name));
        } else {
            notes_.push_back("the catalog " + KORShownText(name) + " cannot be opened (" + problem.Text() +
                             "); what only it declares is kept as it is");
        }
    }
}

void KORDiskReader::ReadContainers() {
    KORSqliteStatement row(file_, "SELECT name FROM containers ORDER BY id");
    while (!Failed() && row.Step()) {
        const bool added = document_.AddContainer(row.Bytes(0)) &&
                           document_.ContainerNames().size() == ++index_.savedContainers;
        if (!added) Damaged("the container " + KORShownText(row.Bytes(0)) + " is none, or given twice");
    }
}

void KORDiskReader::ReadFeatures() {
    const KORDiskContainers containers(document_);
    slots_.emplace(index_.names);  // now that the catalogs have named their attributes
    KORSqliteStatement row(
        file_, "SELECT number, type, container, name, alias, attributes FROM features ORDER BY number");
    while (!Failed() && row.Step()) MakeFeature(row, containers);
    if (!Failed()) document_.Features().SkipTo(index_.head.lastFeature);
}

void KORDiskReader::MakeFeature(const KORSqliteStatement& row, const KORDiskContainers& containers) {
    const std::int64_t number = row.Integer(0);
    if (number < 1 || number > index_.head.lastFeature) {
        return Damaged(std::to_string(number) + " is no number of a feature");
    }
    const auto feature = static_cast<std::uint32_t>(number);
    const auto type = static_cast<std::uint64_t>(row.Integer(1));
    const auto container = static_cast<std::uint64_t>(row.Integer(2));
    if (!index_.names.Has(type)) return Damaged(Called(feature) + " is of no type");
    if (container > containers.Count())
        return Damaged(Called(feature) + " lies in a container that is not there");
    const KORLayoutHandle& layout = LayoutOf(type);
    document_.Features().SkipTo(feature - 1);
    const KORUnicodeString name = row.IsNull(3) ? layout->NameText() : KORUnicodeString(row.Bytes(3));
    const auto made =
        KORFeature::New(document_, layout, name, *containers.At(std::max<std::uint64_t>(container, 1)));
    if (container == 0) {
        outside_.push_back(made);
        made->SetContainer(nullptr);
    }
    if (!row.IsNull(4)) made->SetAlias(KORUnicodeString(row.Bytes(4)));
    try {
        ReadAttributes(row.Bytes(5), *made);
    } catch (const std::length_error&) {
        Damaged(Called(feature) + " has too many attributes");
    }
}

void KORDiskReader::ReadAttributes(std::string_view packed, KORFeature& feature) {
    KORUnpacker attributes(packed);
    while (!attributes.AtEnd()) {
        const std::uint64_t name = attributes.Count();
        const std::size_t first = references_.size();
        KORUnpackedValue read = KORUnpackValue(attributes, references_);
        const bool absent = read.value.State() == KORValueState::Absent;  // means something in steps only
        if (attributes.Failed() || absent || !index_.names.Has(name)) {
            return Damaged(Called(feature.Number()) + ": its attributes cannot be taken apart");
        }
        const KORAttributeKind kind = read.value.Kind();
        const KORSlot slot = slots_->Of(feature, name, kind);
        if (read.Refers()) {
            const bool list = kind == KORAttributeKind::ListOfComponents;
            pending_.push_back({&feature, slot, list, first, read.references});
        } else {
            read.value.SetSlot(slot);
            feature.Swap(read.value);
        }
    }
}

const KORLayoutHandle& KORDiskReader::LayoutOf(std::uint64_t name) {
    KORLayoutHandle& layout = layouts_[name - 1];
    if (layout) return layout;
    const KORCatalogType* type =
        document_.Catalogs().Find(KORName::Find(std::string_view(index_.names.Text(name))));
    layout = type ? type->layout : KORLayout::OfUndeclaredType(KORName::Intern(index_.names.Text(name)));
    return layout;
}

void KORDiskReader::Resolve() {
    for (const Pending& pending : pending_) {
        KORValue value = pending.list ? ResolveList(pending) : KORValue::OfComponent(Target(pending, 0));
        if (Failed()) return;
        value.SetSlot(pending.slot);
        pending.feature->Swap(value);
    }
    pending_.clear();
    references_.clear();
}

KORValue KORDiskReader::ResolveList(const Pending& pending) {
    KORValue list = KORValue::EmptyList(KORAttributeKind::ListOfComponents);
    for (std::size_t entry = 0; entry < pending.count; ++entry) list.Append(Target(pending, entry));
    return list;
}

KORFeature* KORDiskReader::Target(const Pending& pending, std::size_t entry) {
    const std::uint32_t number = references_[pending.first + entry];
    if (number == 0) return nullptr;
    KORFeature* found = document_.Features().Find(number);
    if (!found)
        Damaged(Called(pending.feature->Number()) + " references " + Called(number) + ", which is not there");
    return found;
}

void KORDiskReader::ReadSteps() {
    KORSqliteStatement row(file_,
                           "SELECT number, name, time, user, command, bytes FROM steps ORDER BY number");
    while (!Failed() && row.Step()) {
        const std::int64_t number = row.Integer(0);
        if (number < 1 || number > index_.head.lastStep) {
            return Damaged(std::to_string(number) + " is no number of a step");
        }
        const auto text = [&](int column) { return std::string(row.Bytes(column)); };
        index_.steps.push_back({static_cast<std::uint32_t>(number), text(1), text(2), text(3), text(4),
                                row.Integer(5), number <= index_.head.done});
    }
}

bool KORDiskReader::ReadHistory(KORFileError& error) {
    const KORDiskContainers containers(document_);
    std::vector<KORUndoStep> steps;
    std::size_t done = 0;
    KORSqliteStatement row(file_, "SELECT number, name, entries FROM steps ORDER BY number");
    while (!Failed() && row.Step()) {
        const auto number = static_cast<std::uint32_t>(row.Integer(0));
        steps.push_back({std::string(row.Bytes(1)), {}, number});
        if (!ReadEntries(row.Bytes(2), containers, steps.back())) {
            Damaged("step " + std::to_string(number) + ": its entries cannot be taken apart");
        }
        if (number <= index_.head.done) ++done;
    }
    if (!Failed()) document_.Log().Restore(std::move(steps), done, index_.head.lastStep);
    return Answer(error);
}

bool KORDiskReader::ReadEntries(std::string_view packed, const KORDiskContainers& containers,
                                KORUndoStep& step) {
    KORUnpacker entries(packed);
    while (!entries.AtEnd()) {
        auto entry = KORUnpackEntry(entries, containers, *slots_, document_);
        if (!entry) return false;
        step.entries.Append(*entry->feature, entry->Slot(), std::move(entry->other));
    }
    return true;
}

std::vector<std::uint32_t> KORDiskReader::Finish() {
    std::vector<std::uint32_t> dropped;
    if (!outside_.empty()) {
        const KORReachedFeatures reached(document_);
        for (const auto& feature : outside_) {
            if (reached.Contains(*feature)) continue;
            dropped.push_back(feature->Number());
            feature->Clear();  // one by one: what is left may be a long chain, or a ring
        }
    }
    outside_.clear();
    document_.Features().Clean();
    document_.Log().Saved();
    return dropped;
}

void KORDiskReader::Damaged(const std::string& what) {
    if (!Failed()) error_ = {name_, 0, 0, "is damaged: " + what};
}

bool KORDiskReader::Answer(KORFileError& error) {
    if (error_) error = *error_;
    return !Failed();
}
