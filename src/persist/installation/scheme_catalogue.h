// The files of the layout catalogue: scheme.dat, shipped and only read, and scheme.ini, the user's own
// records. Both go through one reader into one list.
#pragma once

#include <string_view>

#include "core/program/scheme.h"

namespace varlo {

struct Program;

// Appends the records of a catalogue file, behind those read before. 1 when read, 0 when the file can't
// be opened; no message either way.
int SchemeCatalogueRead(Program& program, std::string_view path);

// Writes scheme.ini: the user's records, and the schemes of the user's styles. Deliberate: a user's
// scheme below a shipped style is not written; it lives until the program ends. 1 done, 0 with a
// message.
int SchemeCatalogueSave(Program& program);

// Sets the slots and the files of a new scheme. Slot 23 has no default and stays.
void SchemeDefaults(Scheme& scheme);

// Reads the two numbers of version.ini. 1, or 0 and both are 0 without the file.
int TemplateVersionsRead(Program& program);

// What the lines of a scheme have in common in every file: "number=text" into a slot, ignored without
// "=" or above the last slot.
void ReadSchemeSlot(Scheme& scheme, std::string_view line);

// The value of a CLR= line: pairs of hexadecimal digits; what they do not reach is 0.
void ReadCustomColours(Scheme& scheme, std::string_view digits);

// Appends a file to the scheme's list.
void AppendSchemeFile(Scheme& scheme, std::string_view file);

}  // namespace varlo
