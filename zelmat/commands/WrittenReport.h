#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "zelmat/files/OutputFile.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

/// Says that a file was written, and where what stood there before is kept, if it is. `what`: "written".
inline void PrintWritten(std::ostream& out, const std::string& what, const WrittenFile& file) {
    out << '\n' << what << ": " << (file.path == "-" ? "standard output" : Printable(file.path)) << '\n';
    if (!file.backup.empty()) out << "what was there is kept as: " << Printable(file.backup) << '\n';
}

/// The same as keys of an object: `what`, and "backup" where there is one.
inline void AddWritten(nlohmann::ordered_json& json, const std::string& what, const WrittenFile& file) {
    json[what] = file.path;
    if (!file.backup.empty()) json["backup"] = file.backup;
}

}  // namespace zelmat
