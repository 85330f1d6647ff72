#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "zelmat/files/PlacedJson.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// Takes an FCMat card apart and puts it into the tree that the JSON form has. There are three generations:
/// one section `[FCMat]` of an ini file, where bare numbers have units of their own (MPa, 1/K, percent);
/// sections `[General]`, `[Mechanical]`, ...; and YAML with models. What no behavior uses goes into
/// `other_properties`, text by text; what belongs to the form alone (authors, licence, appearance, models
/// that are not known) into `fcmat`. A property that cannot be used as it stands is a warning, and kept.
class FcmatCardReader {
public:
    /// `name`: what findings call the file.
    FcmatCardReader(std::string name, Findings& findings) : name_(std::move(name)), findings_(findings) {}

    /// Null, and findings, when the text makes no sense.
    std::shared_ptr<const PlacedJson> ReadIni(std::string_view text);
    std::shared_ptr<const PlacedJson> ReadYaml(const std::string& text);

private:
    using Json = nlohmann::json;

    void ReadGeneral(const std::string& key, const Json& value, int line);
    void ReadModel(const PlacedJson& yaml, const std::string& name, const Json& model);

    /// A property of any model or section.
    void ReadProperty(const std::string& name, const std::string& text, int line);
    /// False when the text is no value of the property.
    bool ReadMeasuredProperty(const struct FcmatProperty& property, const std::string& text, int line);
    void KeepProperty(const std::string& name, const std::string& text, int line);
    std::string WithFlatUnit(const std::string& name, const std::string& text) const;
    void AddNumber(const struct FcmatProperty& property, double number, const std::string& unit, int line);
    void KeepHalfOfElastic();

    void Report(FindingKind kind, const char* code, std::string text, int line,
                std::vector<std::string> details = {});
    std::shared_ptr<const PlacedJson> Tree();

    std::string name_;
    Findings& findings_;
    Json card_ = Json::object();
    PlacedJson::Lines lines_;
    bool flat_ = false;  ///< bare numbers have the units of the oldest form
    bool good_ = true;
};

}  // namespace zelmat
