#pragma once

#include <string>

namespace zelmat {

/// What stands before the tables of docs/exchange.md.
inline const std::string kExchangeGuide = R"(# Exchange with solvers

```
zelmat export CARD|DOC... [MATERIAL|LAYUP] --to SOLVER [--units SYSTEM] --output FILE|FOLDER
zelmat import DECK --units SYSTEM [--layup ELSET] [--output CARD]
zelmat prove CARD|DOC [MATERIAL] --solver ccx [--units SYSTEM] [--deck DECK] [--keep-deck FOLDER]
```

This page is what `zelmat export --carries` prints, made from the tables that the writers work by.

**Export.** Numbers are in SI units, or those of `--units`; a deck knows none, so a comment at every material
names them, with absolute zero on their scale of temperature. Systems that do not fit together (`us`: lb/in^3
beside psi and in) are warned of. Whatever is lost or changed is a finding and a comment in the deck: `not-carried`,
`changed-in-deck`, `solver-limit`. The card's own checks run first (`--keep-going` goes on). A deck is written whole
or not at all, files of a folder together; where a material has nothing that the solver takes, there is none, and
the exit code is 1. A switched-off behavior is not exported. Of alternative hyperelastic fits the first is taken, or that
of `--model` and `--variant`. Of a user material, a hyperelastic and an elastic-plastic behavior that are all on, the first
in this order is the deck's.

Ply constants (E1, E2, nu12, G12, ...) stand among a card's `other_properties`; they are the deck's law where no behavior
is one. nu12 is the strain along 2 that a stress along 1 causes, so that nu21 = nu12 E2/E1. Layups are those of layup
cards and of documents. For CalculiX a ply whose material is in the deck with the same constants refers to it; any other
one gets a material of its own there. A material that says nothing but what a layup takes from it needs no deck.

**Import** reads material cards of CalculiX back: several materials in one deck, continued lines, any case, blanks and
comments. Keywords that describe no material are skipped and named, once each. A deck is read line by line, however
large. Numbers may be Fortran's (`2.1D5`, `2.1+5`). Constants with directions (`*ELASTIC, TYPE=ENGINEERING CONSTANTS` or
`ORTHO`, `*EXPANSION, TYPE=ORTHO`, for one temperature) become ply constants. `--layup ELSET` makes a layup card of that
set's `*SHELL SECTION, COMPOSITE`, whose orientations lie in the plane x-y. What a card has no place for is a finding with
its line, as is a parameter that is not heeded (`MODULI`), a potential that CalculiX does not know (and would run as a
polynomial), a file of `*INCLUDE`, a number that CalculiX cuts off or takes for 0; a line that cannot be read stops the
import. Export, import and export give the same cards again, but for the comments.

**Prove** writes the material's CalculiX deck, runs the solver on models of one or two elements in a temporary folder and
holds what it prints against the formulas: tension, shear, hardening, free expansion, mass, conduction, a bar that is
heated at a constant rate; ply constants in three directions and planes; rubber in four modes; at the temperatures of
the tables, between and beyond them. Bounds, as parts of the value: 1e-6 (elastic, ply constants, expansion, mass,
conduction), 1e-5 (specific heat, where a table may bend sharply), 1e-4 (isotropic hardening, linear step), 1e-3
(kinematic hardening to 1 % with NLGEOM; rubber). User materials are exported and not proven; layups are held against
laminate theory in the tests alone. `--keep-deck` leaves the models in a folder, also those of a run that fails; `--deck`
proves the material cards of a deck that somebody has written or changed, in place of those of `export`. A run may take
60 s, or `--timeout`, and write 512 MB; it leaves nothing behind, no process either, also when it is interrupted. On
Debian the solver is the package `calculix-ccx`.

**The other forms** have no solver here. Their keywords and columns are those of the solvers' manuals as we know them, which
were not at hand (`/MAT/PLAS_TAB` and `/MAT/OGDEN` above all); tests hold the decks against that grammar and their numbers
against the material's. None has been run: try a deck on one element before an analysis stands on it.

**What CalculiX (2.20) does and the writer heeds**: a number of more than 20 characters is cut off without a word, with
its exponent, so none is longer (which changes a number by less than 1e-12 of itself); names have up to 80 characters;
potentials end at order 3; D = 0 is replaced by a compressibility of its own, 4 to 7 % off, so 1e-4/mu0 is written;
`HARDENING=JOHNSON COOK` is run as isotropic; kinematic hardening is wrong in steps without NLGEOM; a hardening curve is
read at the plastic strains of the curve below it in temperature, so that all curves are written at the same ones; eight
constants of a user material stand on a line, and one more line follows a full last one; it finds the routine of a
mechanical one by the beginning of the material's name (USER), without which it stops; an initial temperature above
2147.48 becomes -2147.48 without a word, so that hotter ones are warned of; composite shells are S8R and S6.
)";

}  // namespace zelmat
