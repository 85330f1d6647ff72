#include "platform/disk/KORDiskWriter.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "platform/disk/KORPackedEntry.h"

namespace {

/// "2026-11-21T21:00:44Z"
std::string Now() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm utc{};
    gmtime_r(&now, &utc);
    char text[32];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc)};
}

std::optional<std::string> TextOf(const KORValue& value) {
    if (value.State() == KORValueState::NeverValued) return std::nullopt;
    return std::string(value.String().View());
}

}  // namespace

bool KORDiskWriter::Write(const KORHistoryOrigin& origin, const std::vector<std::uint32_t>& vanished,
                          KORFileError& error) {
    PackSteps(origin);
    KeepBounds();
    WriteSteps();
    WriteFeatures(vanished);
    WriteNames();
    WriteHead();
    if (error_) error = *error_;
    return !error_ && !file_.Failed();
}

void KORDiskWriter::PackSteps(const KORHistoryOrigin& origin) {
    const KORUndoLog& log = document_.Log();
    auto known = index_.steps.begin();
    for (std::size_t at = 0; at < log.Steps().size(); ++at) {
        const KORUndoStep& step = log.Steps()[at];
        known =
            std::find_if(known, index_.steps.end(), [&](const auto& k) { return k.number >= step.number; });
        const bool isKnown = known != index_.steps.end() && known->number == step.number;
        KORHistoryStep kept =
            isKnown ? *known : KORHistoryStep{step.number, step.name, Now(), origin.user, origin.command};
        kept.done = at < log.Done();
        if (step.changed) {
            if (!PackStep(step)) {
                Fail("step " + std::to_string(step.number) + ", \"" + step.name +
                     "\": references what is no feature of the document");
            }
            kept.bytes = static_cast<std::int64_t>(packed_.Bytes().size());
            entries_.emplace(step.number, packed_.Bytes());
            for (const KORUndoEntry& entry : step.entries) kept.bytes += BytesBehind(entry);
        }
        steps_.push_back(std::move(kept));
    }
}

bool KORDiskWriter::PackStep(const KORUndoStep& step) {
    packed_.Clear();
    return std::ranges::all_of(step.entries, [&](const KORUndoEntry& entry) {
        return KORPackEntry(packed_, entry, containers_, index_.names, document_);
    });
}

std::int64_t KORDiskWriter::BytesBehind(const KORUndoEntry& entry) {
    if (entry.Slot() != KORLayout::kContainer) return 0;
    if (entry.feature->LiesInContainer() == (entry.other.Component() != nullptr)) return 0;
    PackAttributes(*entry.feature);
    return static_cast<std::int64_t>(packed_.Bytes().size());
}

void KORDiskWriter::KeepBounds() {
    std::int64_t bytes = 0;
    for (const KORHistoryStep& step : steps_) bytes += step.bytes;
    std::size_t dropped = 0;
    // The step that was made last stays, however large it is, unless there are to be none.
    const std::size_t fewest = index_.head.mostSteps > 0 ? 1 : 0;
    const auto tooMany = [&] {
        return static_cast<std::int64_t>(steps_.size() - dropped) > index_.head.mostSteps ||
               bytes > index_.head.mostBytes;
    };
    while (dropped < document_.Log().Done() && steps_.size() - dropped > fewest && tooMany()) {
        bytes -= steps_[dropped++].bytes;
    }
    document_.Log().DropOldest(dropped);
    steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(dropped));
}

void KORDiskWriter::WriteSteps() {
    KORSqliteStatement remove(file_, "DELETE FROM steps WHERE number=?");
    for (const KORHistoryStep& step : index_.steps) {
        const auto kept = std::ranges::lower_bound(steps_, step.number, {}, &KORHistoryStep::number);
        if (kept == steps_.end() || kept->number != step.number) remove.Run(step.number);
    }
    KORSqliteStatement write(file_, "INSERT OR REPLACE INTO steps VALUES(?,?,?,?,?,?,?)");
    for (const KORHistoryStep& step : steps_) {
        const auto changed = entries_.find(step.number);
        if (changed == entries_.end()) continue;
        write.Run(step.number, step.name, step.time, step.user, step.command, step.bytes,
                  KORBlob{changed->second});
    }
    index_.steps = std::move(steps_);
}

void KORDiskWriter::WriteFeatures(const std::vector<std::uint32_t>& vanished) {
    KORSqliteStatement remove(file_, "DELETE FROM features WHERE number=?");
    KORSqliteStatement write(file_, "INSERT OR REPLACE INTO features VALUES(?,?,?,?,?,?)");
    for (const std::uint32_t number : vanished) remove.Run(number);
    for (const std::uint32_t number : document_.Features().Dirty()) {
        if (error_ || file_.Failed()) return;
        if (const KORFeature* feature = document_.Features().Find(number)) {
            WriteFeature(write, *feature);
        } else {
            remove.Run(number);
        }
    }
}

void KORDiskWriter::WriteFeature(KORSqliteStatement& row, const KORFeature& feature) {
    const auto container = containers_.NumberOf(feature.At(KORLayout::kContainer));
    if (!container)
        Fail("feature " + std::to_string(feature.Number()) + " lies in no container of the document");
    PackAttributes(feature);
    row.Run(feature.Number(), TypeOf(feature.Layout()).name, *container == 0 ? std::nullopt : container,
            TextOf(feature.At(KORLayout::kName)), TextOf(feature.At(KORLayout::kAlias)),
            KORBlob{packed_.Bytes()});
}

void KORDiskWriter::PackAttributes(const KORFeature& feature) {
    const Type& type = TypeOf(feature.Layout());
    packed_.Clear();
    KORSlot slot = KORLayout::kFirstAttribute;
    const auto pack = [&](std::uint32_t name, const KORValue& value) {
        packed_.Count(name);
        if (KORPackValue(packed_, value, document_)) return;
        Fail("feature " + std::to_string(feature.Number()) + ", " + KORShownText(index_.names.Text(name)) +
             ": references what is no feature of the document");
    };
    for (const std::uint32_t name : type.attributes) pack(name, feature.Declared(slot++));
    feature.ForEachUndeclared([&](const KORUnicodeString& name, const KORValue& value) {
        pack(index_.names.Of(name.View()), value);
    });
}

const KORDiskWriter::Type& KORDiskWriter::TypeOf(const KORLayout& layout) {
    const auto [known, fresh] = types_.try_emplace(&layout);
    if (!fresh) return known->second;
    Type& type = known->second;
    type.name = index_.names.Of(layout.Name()->Text());
    for (const KORAttribute& attribute : layout.Attributes()) {
        type.attributes.push_back(index_.names.Of(attribute.name->Text()));
    }
    return type;
}

void KORDiskWriter::WriteNames() {
    KORSqliteStatement name(file_, "INSERT INTO names VALUES(?,?)");
    while (index_.savedNames < index_.names.Size()) {
        const std::size_t number = ++index_.savedNames;
        name.Run(number, index_.names.Text(number));
    }
    KORSqliteStatement container(file_, "INSERT INTO containers VALUES(?,?)");
    const std::vector<std::string>& containers = document_.ContainerNames();
    while (index_.savedContainers < containers.size()) {
        const std::size_t place = index_.savedContainers++;
        container.Run(place + 2, containers[place]);
    }
    KORSqliteStatement catalog(file_, "INSERT INTO catalogs VALUES(?,?)");
    for (const KORCatalogSet::Catalog& opened : document_.Catalogs().Catalogs()) {
        if (std::ranges::find(index_.catalogs, opened.name) != index_.catalogs.end()) continue;
        index_.catalogs.push_back(opened.name);
        catalog.Run(index_.catalogs.size(), opened.name);
    }
}

void KORDiskWriter::WriteHead() {
    KORDiskHead head = index_.head;
    const KORUndoLog& log = document_.Log();
    head.lastFeature = document_.Features().LastNumber();
    head.lastStep = log.LastNumber();
    head.done = log.Done() > 0 ? log.Steps()[log.Done() - 1].number : 0;
    if (head == index_.savedHead) return;
    KORSqliteStatement row(file_, "INSERT OR REPLACE INTO document VALUES(1,?,?,?,?,?,?)");
    row.Run(head.lastFeature, head.lastStep, head.done, head.mostSteps, head.mostBytes, head.pressureUnit);
    index_.head = head;
    index_.savedHead = head;
}

void KORDiskWriter::Fail(std::string message) {
    if (!error_) error_ = {name_, 0, 0, "cannot be saved: " + std::move(message)};
}
