#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/catalog/KORFileError.h"

/// Something that is wrong inside a document's file.
struct KORDoctorFinding {
    enum class Kind {
        Integrity,  ///< SQLite finds its own structure broken
        Table,      ///< a row of names, containers or counters makes no sense
        Feature,    ///< a feature's row makes no sense
        Reference,  ///< a feature or a step references what is not there
        Unlisted,   ///< a feature lies in no container and nothing leads to it
        History,    ///< a step's row makes no sense
    };

    Kind kind;
    std::string text;    ///< what is wrong, and where
    std::string repair;  ///< what a repair would do about it
};

/// Examines documents in files and changes nothing, other than that an interrupted save is rolled back. Every
/// row is looked at, so it finds what a reader would stumble over, all of it at once, and what a reader
/// overlooks.
class KORDoctor {
public:
    /// What is wrong inside, empty when nothing is. Nothing, and `error` filled, when the file is no
    /// document, is cut short, or cannot be read at all.
    [[nodiscard]] static std::optional<std::vector<KORDoctorFinding>> Examine(const std::string& path,
                                                                              KORFileError& error);
};
