#pragma once

#include <string>
#include <vector>

#include "zelmat/exchange/ExportDeck.h"

/// What exporting cards gives.
struct ExportedDeck {
    std::string text;  ///< of the only file; empty: none
    std::vector<zelmat::DeckFile> files;
    std::vector<std::string> findings;  ///< one line each, without the file's name
    bool errors = false;
};

/// `units`: as --units takes them.
ExportedDeck Exported(const std::string& form, const std::vector<zelmat::Material>& materials,
                      const std::string& units = "", const zelmat::FitChoice& fit = {});

/// The lines that are no comments: those that do not begin with `lead`.
std::string WithoutComments(const std::string& deck, const std::string& lead = "**");

/// A card of the material "Stuff" with these blocks, JSON objects by their names, as in `"density": {...}`.
zelmat::Material StuffWith(const std::string& blocks);

/// Some blocks for it.
extern const char* const kSomeElastic;  ///< 200 GPa, 0.3
extern const char* const kSomeDensity;  ///< 8000 kg/m3
