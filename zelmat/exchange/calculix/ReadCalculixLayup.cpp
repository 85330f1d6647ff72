#include "zelmat/exchange/calculix/ReadCalculixLayup.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "zelmat/exchange/DeckText.h"
#include "zelmat/exchange/calculix/DeckCards.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/properties/LaminateProperty.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// Where the axes of an orientation point: 1, and one in the plane 1-2.
struct Axes {
    int line;
    std::vector<double> points;  ///< six coordinates
    double turned = 0.0;         ///< degrees about the axis 3 behind them
    bool readable = true;
};

class LayupOfDeck {
public:
    LayupOfDeck(const std::string& path, std::string set, const DeckUnits& units, Findings& findings)
        : path_(path), set_(std::move(set)), units_(units), findings_(findings), cards_(path, findings) {}

    std::optional<LayupCard> Read(const std::vector<Material>& materials) {
        while (const auto card = cards_.NextKeyword()) {
            if (card->keyword == "*ORIENTATION") ReadOrientation(*card);
            const bool composite = card->keyword == "*SHELLSECTION" && card->Find("COMPOSITE");
            if (composite && !ReadSection(*card)) return std::nullopt;
        }
        if (findings_.HasErrors()) return std::nullopt;
        if (layup_.layers.empty()) {
            return Refuse(0, "no-layup", "there is no composite shell section of " + QuotedText(set_),
                          sets_.empty() ? "there is none at all" : "there are those of " + WordList(sets_));
        }
        return Finish(materials) ? std::optional(std::move(layup_)) : std::nullopt;
    }

private:
    std::nullopt_t Refuse(int line, const char* code, const std::string& text,
                          const std::string& detail = {}) {
        std::vector<std::string> details;
        if (!detail.empty()) details.push_back(detail);
        findings_.Add({FindingKind::ERROR, {ShownPath(path_), line}, code, text, std::move(details)});
        return std::nullopt;
    }

    void Warn(int line, const char* code, const std::string& text) {
        findings_.Add({FindingKind::WARNING, {ShownPath(path_), line}, code, text, {}});
    }

    void ReadOrientation(const DeckKeyword& card) {
        Axes axes{card.line, {}};
        const auto lines = cards_.Lines();
        const std::string* system = card.Find("SYSTEM");
        axes.readable = !lines.empty() && (!system || *system == "RECTANGULAR");
        for (std::size_t at = 0; axes.readable && at < 6; ++at) {
            const auto number = at < lines[0].words.size() ? ReadNumber(lines[0].words[at]) : ReadNumber("");
            axes.readable = static_cast<bool>(number);
            if (number) axes.points.push_back(*number);
        }
        if (axes.readable && lines.size() > 1 && lines[1].words.size() > 1) {
            const auto axis = ReadNumber(lines[1].words[0]), angle = ReadNumber(lines[1].words[1]);
            axes.readable = axis && angle && *axis == 3.0;
            if (axes.readable) axes.turned = *angle;
        }
        orientations_[InCapitals(card.name)] = std::move(axes);
    }

    bool ReadSection(const DeckKeyword& card) {
        if (card.set.empty()) return true;
        sets_.push_back(card.set);
        if (InCapitals(card.set) != InCapitals(set_)) return true;
        if (!layup_.layers.empty()) {
            Warn(card.line, "card-twice",
                 "a second composite section of " + QuotedText(card.set) + ": the last one counts");
            layup_.layers.clear();
        }
        if (card.Find("OFFSET")) {
            Warn(card.line, "not-imported",
                 "OFFSET: a layup lies in the middle of its elements, wherever they do");
        }
        layup_.file = ShownPath(path_);
        layup_.name = card.set;
        layup_.layersLine = card.line;
        const std::string* all = card.Find("ORIENTATION");
        for (const DeckWords& line : cards_.Lines()) {
            const auto word = [&](std::size_t at) {
                return at < line.words.size() ? line.words[at] : std::string();
            };
            const auto number = ReadNumber(word(0));
            const auto thickness = number ? units_.ToStored(*number, "length") : std::nullopt;
            if (!thickness || !(*thickness > 0.0)) {
                Refuse(line.line, "no-number", QuotedText(word(0)) + " is no thickness of a layer");
                return false;
            }
            CardLayer layer{line.line, word(2), *thickness, 0.0};
            const std::string orientation = word(3).empty() && all ? *all : InCapitals(word(3));
            if (!orientation.empty() && !TurnTo(layer, orientation)) return false;
            layup_.layers.push_back(std::move(layer));
        }
        if (layup_.layers.empty()) Refuse(card.line, "no-data", card.keyword + " has no data line");
        return !layup_.layers.empty();
    }

    /// The layer's angle, from an orientation whose axis 3 is z.
    bool TurnTo(CardLayer& layer, const std::string& orientation) {
        const auto found = orientations_.find(orientation);
        if (found == orientations_.end()) {
            Refuse(layer.line, "no-orientation",
                   "there is no *ORIENTATION " + QuotedText(orientation) + " before it");
            return false;
        }
        const Axes& axes = found->second;
        const auto& p = axes.points;
        const bool inPlane = axes.readable && p[2] == 0.0 && p[5] == 0.0 && p[0] * p[4] - p[1] * p[3] > 0.0;
        if (!inPlane) {
            Refuse(axes.line, "other-orientation",
                   QuotedText(orientation) +
                       " is no rectangular orientation in the plane x-y with its axis 3 along z");
            return false;
        }
        layer.angle = RoundedTo(std::atan2(p[1], p[0]) * 180.0 / std::numbers::pi + axes.turned, 12);
        return true;
    }

    bool Finish(const std::vector<Material>& materials) {
        for (CardLayer& layer : layup_.layers) {
            const auto found =
                std::find_if(materials.begin(), materials.end(), [&](const Material& material) {
                    return InCapitals(material.name) == InCapitals(*layer.material);
                });
            if (found == materials.end()) {
                Refuse(layer.line, "no-material", "there is no *MATERIAL " + QuotedText(*layer.material));
                return false;
            }
            layer.material = found->name;
            const bool known = std::any_of(layup_.materials.begin(), layup_.materials.end(),
                                           [&](const PlyMaterial& ply) { return ply.name == found->name; });
            if (!known) AddPly(*found, layer.line);
        }
        layup_.notes.emplace_back(
            "from a CalculiX deck, which names no units; they were given when it was read");
        return true;
    }

    /// Its stiffness may lie in a table over temperature or a law that is no ply's.
    void AddPly(const Material& material, int line) {
        layup_.materials.push_back({material.name, PlyConstantsOf(material), {}});
        const auto ply = PlyMaterialOf(layup_.materials.back().constants);
        if (ply.Ok()) return;
        Warn(line, "not-imported",
             QuotedText(material.name) + " brings no constant stiffness of a ply: " + ply.Why());
    }

    std::string path_;
    std::string set_;
    const DeckUnits& units_;
    Findings& findings_;
    DeckCards cards_;
    std::map<std::string, Axes> orientations_;  // by their names in capital letters
    std::vector<std::string> sets_;             // of composite sections
    LayupCard layup_;
};

}  // namespace

std::optional<LayupCard> ReadCalculixLayup(const std::string& path, const std::string& set,
                                           const std::vector<Material>& materials, const DeckUnits& units,
                                           Findings& findings) {
    return LayupOfDeck(path, set, units, findings).Read(materials);
}

}  // namespace zelmat
