#pragma once

#include <string>

namespace zelmat {

/// What stands before the tables of docs/exchange.md.
inline const std::string kExchangeGuide = R"(# Exchange with solvers

```
zelmat export CARD|DOC... [MATERIAL] --to SOLVER [--units SYSTEM] --output FILE|FOLDER
zelmat import DECK --units SYSTEM [--output CARD]
zelmat prove CARD|DOC [MATERIAL] --solver ccx [--units SYSTEM]
```

This page is what `zelmat export --carries` prints, made from the tables that the writers work by.

**Export.** Numbers are in SI units, or those of `--units`; a deck knows none, so a comment at every material
names them, with absolute zero on their scale of temperature. Systems that do not fit together (`us`: lb/in^3
beside psi and in) are warned of. Whatever is lost or changed is a finding and a comment in the deck: `not-carried`,
`changed-in-deck`, `solver-limit`. The card's own checks run first (`--keep-going` goes on). A deck is written whole
or not at all; where a material has nothing that the solver takes, there is none, and the exit code is 1. Of
alternative hyperelastic fits the first is taken, or that of `--model` and `--variant`. Of a user material, a
hyperelastic and an elastic-plastic behavior that are all on, the first in this order is the deck's.

**Import** reads material cards of CalculiX back: several materials in one deck, continued lines, any case, blanks and
comments. Keywords that describe no material are skipped and named, once each. A deck is read line by line, however
large. What a card has no place for (an orthotropic `*ELASTIC`) is a finding with its line; a line that cannot be read
stops the import. Export, import and export give the same cards again, but for the comments.

**Prove** writes the material's CalculiX deck, runs the solver on models of one element in a temporary folder and holds
what it prints against the formulas: tension, shear, hardening, free expansion, mass, conduction; rubber in
four modes; at the temperatures of the tables, between and beyond them. Bounds, as parts of the value: 1e-6 (elastic,
expansion, mass, conduction), 1e-4 (isotropic hardening, linear step), 1e-3 (kinematic hardening to 1 % with NLGEOM;
rubber). User materials, specific heats and layups are exported and not proven. On Debian the solver is the package
`calculix-ccx`.

**What CalculiX (2.20) does and the writer heeds**: a number of more than 20 characters is cut off without a word, with
its exponent, so none is longer (which changes a number by less than 1e-12 of itself); names have up to 80 characters;
potentials end at order 3; D = 0 is replaced by a compressibility of its own, 4 to 7 % off, so 1e-4/mu0 is written;
`HARDENING=JOHNSON COOK` is run as isotropic; kinematic hardening is wrong in steps without NLGEOM; a hardening curve is
read at the plastic strains of the curve below it in temperature, so that all curves are written at the same ones; eight
constants of a user material stand on a line, and one more line follows a full last one; composite shells are S8R and S6.
)";

}  // namespace zelmat
