#include "zelmat/layups/LayupDifferences.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// Goes through two layups side by side and collects what differs.
class Comparison {
public:
    explicit Comparison(const UnitChoice& units) : units_(units) {}

    std::vector<Difference> Take() { return std::move(found_); }

    void Texts(const std::string& key, const std::string& a, const std::string& b, std::size_t row = 0) {
        if (a != b) found_.push_back({key, row, {a, {}}, {b, {}}});
    }

    void Layers(const std::vector<CardLayer>& a, const std::vector<CardLayer>& b) {
        Texts("layers", std::to_string(a.size()), std::to_string(b.size()));
        for (std::size_t at = 0; at < std::min(a.size(), b.size()); ++at) {
            Texts("layers.material", a[at].material.value_or(""), b[at].material.value_or(""), at + 1);
            Numbers("layers.thickness", "length", a[at].thickness, b[at].thickness, at + 1);
            Numbers("layers.angle_deg", "angle", a[at].angle, b[at].angle, at + 1);
        }
    }

    /// By name.
    void Materials(const std::vector<PlyMaterial>& a, const std::vector<PlyMaterial>& b) {
        for (const PlyMaterial& material : a) Material(material, Named(b, material.name));
        for (const PlyMaterial& material : b) {
            if (!Named(a, material.name)) Texts("ply_materials." + material.name, "", "there");
        }
    }

    void Kept(const std::vector<KeptValue>& a, const std::vector<KeptValue>& b) {
        for (const KeptValue& kept : a) {
            const KeptValue* other = Named(b, kept.name);
            Texts(kept.name, kept.json, other ? other->json : "");
        }
        for (const KeptValue& kept : b) {
            if (!Named(a, kept.name)) Texts(kept.name, "", kept.json);
        }
    }

private:
    template <class Each>
    static const Each* Named(const std::vector<Each>& list, const std::string& name) {
        const auto found =
            std::find_if(list.begin(), list.end(), [&](const Each& each) { return each.name == name; });
        return found == list.end() ? nullptr : &*found;
    }

    void Material(const PlyMaterial& a, const PlyMaterial* b) {
        const std::string key = "ply_materials." + a.name;
        if (!b) return Texts(key, "there", "");
        for (const std::string& name : PlyConstants()) {
            Numbers(key + "." + name, PlyConstantQuantity(name), a.Constant(name), b->Constant(name));
        }
        Texts(key + ".source", a.source, b->source);
    }

    void Numbers(std::string key, const char* quantity, std::optional<double> a, std::optional<double> b,
                 std::size_t row = 0) {
        if (a == b) return;
        const ShownQuantity shown(quantity, units_);
        const bool alike = a && b && shown(*a) == shown(*b);
        const std::string& stored = FindQuantity(quantity)->stored.Spelling();
        const auto side = [&](const std::optional<double>& number) -> DifferenceSide {
            if (!number) return {};
            const std::string& unit = alike ? stored : shown.Unit();
            return {NumberText(alike ? *number : shown(*number)), unit == "-" ? std::string() : unit};
        };
        found_.push_back({std::move(key), row, side(a), side(b)});
    }

    const UnitChoice& units_;
    std::vector<Difference> found_;
};

}  // namespace

std::vector<Difference> LayupDifferences(const LayupCard& before, const LayupCard& after,
                                         const UnitChoice& units) {
    Comparison comparison(units);
    comparison.Texts("name", before.name, after.name);
    comparison.Texts("description", before.description, after.description);
    comparison.Texts("source", WordList(before.sources), WordList(after.sources));
    comparison.Texts("notes", WordList(before.notes), WordList(after.notes));
    comparison.Materials(before.materials, after.materials);
    comparison.Layers(before.layers, after.layers);
    comparison.Kept(before.kept, after.kept);
    return comparison.Take();
}

}  // namespace zelmat
