// The two plain lists of the installation: the known delivery regions and the known payment cards.
#pragma once

namespace varlo {

struct Program;

// Reads domain.dat, a region a line: code, white space, name. 1 when at least one region was read; 0,
// and nothing happens, when the catalogue has entries already; 0 with a message without the file.
int RegionCatalogueRead(Program& program);

// Reads cc.dat, a card a line; a line that starts with ";" is a comment. 1 when at least one card was
// read; 0 with a message without the file.
int CardCatalogueRead(Program& program);

}  // namespace varlo
