#include "zelmat/ShowReport.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using zelmat::CardTable;
using zelmat::FindCardBlock;
using zelmat::MaterialCard;
using zelmat::StoredTable;

MaterialCard SmallCard() {
    MaterialCard card;
    card.file = "small.json";
    card.name = "Small";
    card.description = "Two tables.";
    card.sources = {"Handbook", "Data sheet"};
    CardTable& density = card.tables.emplace_back();
    density.block = FindCardBlock("density");
    density.source = "page 7";
    card.notShown = {FindCardBlock("plastic"), FindCardBlock("gasket"), FindCardBlock("strength")};
    return card;
}

std::vector<StoredTable> SmallTables() {
    StoredTable density;
    density.block = FindCardBlock("density");
    density.enabled = true;
    density.temperatureDependent = true;
    density.rows = {{7850.0, 293.15}, {7700.5, 773.15}};
    StoredTable expansion;
    expansion.block = FindCardBlock("thermal_expansion");
    expansion.enabled = true;
    expansion.rows = {{1.2e-05}};
    expansion.referenceTemperature = 293.15;
    return {density, expansion};
}

TEST(ShowReport, PrintsEveryTableWithUnitsAndSource) {
    std::ostringstream out;
    zelmat::PrintMaterial(out, SmallCard(), SmallTables());

    EXPECT_EQ(out.str(),
              "Small\n"
              "Two tables.\n"
              "source: Handbook\n"
              "source: Data sheet\n"
              "\n"
              "Density, temperature dependent\n"
              "  density [kg/m3]  temperature [K]\n"
              "             7850           293.15\n"
              "           7700.5           773.15\n"
              "  source: page 7\n"
              "\n"
              "Thermal expansion, not temperature dependent, from 293.15 K\n"
              "  thermal expansion [1/K]\n"
              "                  1.2e-05\n"
              "\n"
              "not shown yet: plastic, gasket\n"
              "\n"
              "for information only, used by no behavior: strength\n");
}

TEST(ShowReport, SaysWhenTheValuesAreMadeUp) {
    MaterialCard card;
    card.name = "Small";
    card.illustrative = true;
    std::ostringstream out;
    zelmat::PrintMaterial(out, card, {});

    EXPECT_EQ(out.str(), "Small\nillustrative: the values are made up\n");
}

TEST(ShowReport, PrintsTheSameAsJson) {
    const MaterialCard card = SmallCard();
    zelmat::Findings findings;
    findings.Add({zelmat::FindingKind::WARNING, {"small.json", 4}, "table-cut", "cut", {"1 kept"}});
    std::ostringstream out;
    zelmat::PrintMaterialJson(out, &card, SmallTables(), findings);

    EXPECT_EQ(out.str(), R"({
  "material": {
    "name": "Small",
    "description": "Two tables.",
    "source": [
      "Handbook",
      "Data sheet"
    ],
    "illustrative": false,
    "tables": [
      {
        "block": "density",
        "temperature_dependent": true,
        "columns": [
          {
            "name": "density",
            "unit": "kg/m3"
          },
          {
            "name": "temperature",
            "unit": "K"
          }
        ],
        "rows": [
          [
            7850.0,
            293.15
          ],
          [
            7700.5,
            773.15
          ]
        ]
      },
      {
        "block": "thermal_expansion",
        "temperature_dependent": false,
        "columns": [
          {
            "name": "thermal_expansion",
            "unit": "1/K"
          }
        ],
        "rows": [
          [
            1.2e-05
          ]
        ],
        "reference_temperature": 293.15
      }
    ],
    "not_shown_yet": [
      "plastic",
      "gasket"
    ],
    "for_information": [
      "strength"
    ]
  },
  "findings": [
    {
      "kind": "warning",
      "file": "small.json",
      "line": 4,
      "code": "table-cut",
      "text": "cut",
      "details": [
        "1 kept"
      ]
    }
  ]
}
)");
}

TEST(ShowReport, HasANullMaterialForACardThatWasRefused) {
    std::ostringstream out;
    zelmat::PrintMaterialJson(out, nullptr, {}, {});

    EXPECT_EQ(out.str(), "{\n  \"material\": null,\n  \"findings\": []\n}\n");
}

}  // namespace
