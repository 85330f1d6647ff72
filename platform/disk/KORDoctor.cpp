#include "platform/disk/KORDoctor.h"

#include <limits>
#include <map>
#include <unordered_set>

#include "platform/analysis/KORUnitTypes.h"
#include "platform/catalog/KORJsonFile.h"
#include "platform/disk/KORDiskFile.h"
#include "platform/disk/KORPackedValue.h"
#include "platform/disk/KORSqliteStatement.h"

namespace {

using Kind = KORDoctorFinding::Kind;

constexpr const char* kRestore =
    "nothing: what can still be read of the file is to be copied out with sqlite3's .recover";
constexpr const char* kRemoveFeature = "the feature would be removed";
constexpr const char* kEmpty = "the reference would be emptied";
constexpr const char* kForget = "this step and all older ones would be forgotten";

std::string Number(std::int64_t number) {
    return std::to_string(number);
}

class Examination {
public:
    explicit Examination(KORSqlite& file) : file_(file) {}

    std::vector<KORDoctorFinding> Run() {
        CheckIntegrity();
        CheckCounters();
        CheckList("names", "text", 1, names_);
        CheckList("containers", "name", 2, containers_);
        CheckList("catalogs", "name", 1, catalogs_);
        ReadFeatures();
        ReadSteps();
        CheckReferences();
        CheckUnlisted();
        return std::move(findings_);
    }

private:
    struct Reference {
        std::string from;
        std::uint32_t to;
        bool fromStep;
    };

    void Find(Kind kind, std::string text, const char* repair) {
        findings_.push_back({kind, std::move(text), repair});
    }

    void CheckIntegrity() {
        KORSqliteStatement row(file_, "PRAGMA integrity_check");
        while (row.Step()) {
            if (row.Bytes(0) != "ok") Find(Kind::Integrity, std::string(row.Bytes(0)), kRestore);
        }
    }

    void CheckCounters() {
        KORSqliteStatement row(file_, "SELECT last_feature, last_step, done, pressure_unit FROM document");
        constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
        const char* const repair = "the counters would be made from the rows there are";
        if (!row.Step()) return Find(Kind::Table, "the table document has no row", repair);
        lastFeature_ = row.Integer(0);
        lastStep_ = row.Integer(1);
        if (const std::string unit(row.Bytes(3));
            !unit.empty() && !KORFindUnit(*KORFindUnitType("PRESSURE"), unit)) {
            Find(Kind::Table, KORShownText(unit) + " is no unit of pressure", "no unit would be chosen");
        }
        for (int column = 0; column < 3; ++column) {
            if (row.Integer(column) >= 0 && row.Integer(column) <= kMost) continue;
            Find(Kind::Table, "the counters in the table document make no sense", repair);
        }
        if (row.Step()) Find(Kind::Table, "the table document has more than one row", repair);
    }

    /// Rows that are numbered without a gap, each text once.
    void CheckList(const std::string& table, const std::string& column, std::int64_t first,
                   std::int64_t& last) {
        std::unordered_set<std::string> seen;
        KORSqliteStatement row(file_, ("SELECT id, " + column + " FROM " + table + " ORDER BY id").c_str());
        last = first - 1;
        while (row.Step()) {
            const bool good =
                row.Integer(0) == ++last && !row.Bytes(1).empty() && seen.emplace(row.Bytes(1)).second;
            if (good) continue;
            Find(Kind::Table, "row " + Number(row.Integer(0)) + " of the table " + table + " is out of order",
                 kRestore);
            last = row.Integer(0);
        }
    }

    void ReadFeatures() {
        KORSqliteStatement row(file_,
                               "SELECT number, type, container, attributes FROM features ORDER BY number");
        while (row.Step()) {
            const std::int64_t number = row.Integer(0);
            const std::string called = "feature " + Number(number);
            if (number < 1 || number > lastFeature_) {
                Find(Kind::Feature, called + " has a number that its document never gave", kRemoveFeature);
                continue;
            }
            if (row.Integer(1) < 1 || row.Integer(1) > names_) {
                Find(Kind::Feature, called + " is of a type without a name", kRemoveFeature);
            }
            if (row.Integer(2) < 0 || row.Integer(2) > containers_) {
                Find(Kind::Reference, called + " lies in a container that is not there",
                     "it would lie in the document's own");
            }
            auto& targets = features_[static_cast<std::uint32_t>(number)];
            if (!row.IsNull(2)) roots_.push_back(static_cast<std::uint32_t>(number));
            ReadAttributes(row.Bytes(3), called, targets);
        }
    }

    void ReadAttributes(std::string_view packed, const std::string& called,
                        std::vector<std::uint32_t>& targets) {
        KORUnpacker attributes(packed);
        while (!attributes.AtEnd()) {
            const std::uint64_t name = attributes.Count();
            const KORUnpackedValue value = KORUnpackValue(attributes, targets);
            const bool good =
                !attributes.Failed() && IsName(name) && value.value.State() != KORValueState::Absent;
            if (good) continue;
            Find(Kind::Feature, called + ": its attributes cannot be taken apart",
                 "those behind the place would go");
            break;
        }
        for (const std::uint32_t target : targets) Refer(called, target, false);
    }

    void ReadSteps() {
        KORSqliteStatement row(file_, "SELECT number, entries FROM steps ORDER BY number");
        while (row.Step()) {
            const std::string called = "step " + Number(row.Integer(0));
            if (row.Integer(0) < 1 || row.Integer(0) > lastStep_) {
                Find(Kind::History, called + " has a number that its document never gave", kForget);
            }
            if (!ReadEntries(row.Bytes(1), called)) {
                Find(Kind::History, called + ": its entries cannot be taken apart", kForget);
            }
        }
    }

    bool ReadEntries(std::string_view packed, const std::string& called) {
        KORUnpacker entries(packed);
        std::vector<std::uint32_t> targets;
        while (!entries.AtEnd()) {
            const std::uint64_t feature = entries.Count();
            const unsigned place = entries.Byte();
            if (feature == 0 || feature > UINT32_MAX || place > 4) return false;
            targets.push_back(static_cast<std::uint32_t>(feature));
            if (place == 0) {
                if (entries.Count() > static_cast<std::uint64_t>(containers_)) return false;
            } else {
                if (place >= 3 && !IsName(entries.Count())) return false;
                const KORValue value = KORUnpackValue(entries, targets).value;
                const bool absent = value.State() == KORValueState::Absent;
                if (place < 3 && (absent || value.Kind() != KORAttributeKind::String)) return false;
            }
        }
        for (const std::uint32_t target : targets) {
            Refer(called, target, true);
            roots_.push_back(target);
        }
        return !entries.Failed();
    }

    bool IsName(std::uint64_t name) const { return name >= 1 && name <= static_cast<std::uint64_t>(names_); }

    void Refer(const std::string& from, std::uint32_t to, bool fromStep) {
        if (to != 0) references_.push_back({from, to, fromStep});
    }

    void CheckReferences() {
        for (const Reference& reference : references_) {
            if (features_.contains(reference.to)) continue;
            Find(Kind::Reference,
                 reference.from + " references feature " + Number(reference.to) + ", which is not there",
                 reference.fromStep ? kForget : kEmpty);
        }
    }

    void CheckUnlisted() {
        std::unordered_set<std::uint32_t> reached(roots_.begin(), roots_.end());
        while (!roots_.empty()) {
            const auto from = features_.find(roots_.back());
            roots_.pop_back();
            if (from == features_.end()) continue;
            for (const std::uint32_t target : from->second) {
                if (reached.insert(target).second) roots_.push_back(target);
            }
        }
        for (const auto& [number, targets] : features_) {
            if (reached.contains(number)) continue;
            Find(Kind::Unlisted,
                 "feature " + Number(number) + " lies in no container and nothing leads to it",
                 "it would go, as it does with the next change");
        }
    }

    KORSqlite& file_;
    std::vector<KORDoctorFinding> findings_;
    std::int64_t lastFeature_ = 0;
    std::int64_t lastStep_ = 0;
    std::int64_t names_ = 0;
    std::int64_t containers_ = 0;
    std::int64_t catalogs_ = 0;
    std::map<std::uint32_t, std::vector<std::uint32_t>> features_;  ///< what each references
    std::vector<std::uint32_t> roots_;  ///< what lies in a container or is in the history
    std::vector<Reference> references_;
};

}  // namespace

std::optional<std::vector<KORDoctorFinding>> KORDoctor::Examine(const std::string& path,
                                                                KORFileError& error) {
    KORDiskFile file(path);
    bool newer = false;
    if (!file.Open(KORDiskFile::Use::Read, newer, error)) return std::nullopt;
    if (newer) {
        error = {path, 0, 0, "its format is newer than this program, which cannot judge it"};
        return std::nullopt;
    }
    auto findings = Examination(file.Connection()).Run();
    if (!file.Connection().Failed()) return findings;
    if (file.Connection().IsDamaged() && !findings.empty()) return findings;
    error = file.Error("cannot be read");
    return std::nullopt;
}
