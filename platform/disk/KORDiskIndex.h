#pragma once

#include <optional>

#include "platform/disk/KORDiskNames.h"

/// The one row of a document's own settings and counters.
struct KORDiskHead {
    std::uint32_t lastFeature = 0;      ///< the highest number ever given to a feature
    std::uint32_t lastStep = 0;         ///< the highest number ever given to a step
    std::uint32_t done = 0;             ///< the number of the last step that is done; 0: none
    std::int64_t mostSteps = 1000;      ///< how many steps are kept
    std::int64_t mostBytes = 64 << 20;  ///< how many bytes they may take
    std::string pressureUnit = {};      ///< symbol; empty: nobody chose one

    bool operator==(const KORDiskHead&) const = default;
};

/// A step of the history as users see it.
struct KORHistoryStep {
    std::uint32_t number = 0;  ///< never another step's of the document
    std::string name = {};     ///< what was done, as the program calls it
    std::string time = {};     ///< when it was saved: UTC, "2026-11-21T21:00:44Z"
    std::string user = {};     ///< who did it
    std::string command = {};  ///< the command line
    std::int64_t bytes = 0;    ///< about what it takes in the file
    bool done = true;          ///< false: it is undone and can be redone
};

/// What whoever reads or writes a document's file knows of it besides the features.
struct KORDiskIndex {
    KORDiskHead head;                      ///< with the bounds that hold from the next save on
    std::optional<KORDiskHead> savedHead;  ///< as it is in the file
    KORDiskNames names;
    std::size_t savedNames = 0;         ///< how many of them are in the file
    std::vector<std::string> catalogs;  ///< all in the file, also those that cannot be opened today
    std::size_t savedContainers = 0;    ///< of the document's applicative containers, in their order
    std::vector<KORHistoryStep> steps;  ///< in the file, oldest first
};
