#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "zelmat/files/OutputFile.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

/// One of several files that were written, without a blank line before.
inline void PrintWrittenLine(std::ostream& out, const std::string& what, const WrittenFile& file) {
    out << what << ": " << (file.path == "-" ? "standard output" : Printable(file.path)) << '\n';
    if (!file.backup.empty()) out << "what was there is kept as: " << Printable(file.backup) << '\n';
}

/// Says that a file was written, and where what stood there before is kept, if it is. `what`: "written".
inline void PrintWritten(std::ostream& out, const std::string& what, const WrittenFile& file) {
    out << '\n';
    PrintWrittenLine(out, what, file);
}

/// The same as keys of an object: `what`, and "backup" where there is one.
inline void AddWritten(nlohmann::ordered_json& json, const std::string& what, const WrittenFile& file) {
    json[what] = file.path;
    if (!file.backup.empty()) json["backup"] = file.backup;
}

/// What a command makes that writes materials in another form: the text when it goes to no file, else files.
struct WrittenForm {
    std::optional<std::string> text;
    std::vector<WrittenFile> files;

    void Print(std::ostream& out) const {
        if (text) out << *text;
        for (const WrittenFile& file : files) PrintWritten(out, "written", file);
    }

    nlohmann::ordered_json Json(const std::string& form) const {
        nlohmann::ordered_json json = {
            {"form", form}, {"text", nullptr}, {"written", nlohmann::ordered_json::array()}};
        for (const WrittenFile& file : files) {
            AddWritten(json["written"].emplace_back(nlohmann::ordered_json::object()), "file", file);
        }
        if (text) json["text"] = *text;
        return json;
    }
};

}  // namespace zelmat
