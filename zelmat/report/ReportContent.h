#pragma once

#include <deque>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/StoredMaterial.h"
#include "zelmat/pictures/Picture.h"

namespace zelmat {

/// A picture of a report with the block that it belongs to.
struct ReportPicture {
    std::string block;  ///< by its name
    Picture picture;
    std::string svg = {};  ///< as drawn
};

/// One of several facts that a sheet lists.
struct ReportFact {
    std::string name;
    std::string value;
};

/// Facts under a heading.
struct ReportFacts {
    std::string title;
    std::vector<ReportFact> facts;
};

/// A material of a report. `stored.given` points to `given`: it is neither copied nor moved.
struct ReportMaterial {
    ReportMaterial() = default;
    ReportMaterial(const ReportMaterial&) = delete;
    ReportMaterial& operator=(const ReportMaterial&) = delete;

    Material given;
    StoredMaterial stored;  ///< as a document holds it; without blocks where it could not be stored
    Findings findings;      ///< about it
    std::vector<ReportFacts> further;  ///< what no behavior uses
    std::vector<ReportPicture> pictures;
};

/// A layup of a report.
struct ReportLayup {
    LayupCard card;
    Findings findings;
    std::string stack;  ///< the SVG of its stack
    std::vector<ReportPicture> pictures;
};

/// What has changed in a document, in words.
struct ReportChange {
    std::string title;  ///< "Steps", or what has changed: "Material Steel"
    std::vector<std::string> lines;
};

/// All that a report tells.
struct ReportContent {
    std::string title;
    std::deque<ReportMaterial> materials;
    std::deque<ReportLayup> layups;
    std::string since = {};  ///< where changes begin, in words; empty: changes are not told
    std::vector<ReportChange> changes = {};
};

}  // namespace zelmat
