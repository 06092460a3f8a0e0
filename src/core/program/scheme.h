// The layout catalogue: styles, each with its schemes. One record type serves both levels.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/text/text.h"
#include "platform/screen.h"

namespace varlo {

struct AppConfig;
struct Program;
struct StringItem;

inline constexpr std::size_t kSchemeSlots = 31;

// Who made a record; the numbers stand in the catalogue files.
inline constexpr std::int32_t kSchemeShipped = 0;
inline constexpr std::int32_t kSchemeOwn = 1;  // the user's; the only kind written back

struct SchemeRecord {
  SchemeRecord* next = nullptr;
  SchemeRecord* prev = nullptr;     // in the first scheme of a style, the style
  SchemeRecord* schemes = nullptr;  // first scheme of a style; null in a scheme
  StringItem* files = nullptr;      // to copy into the web directory
  CustomColours customColours{};
  std::int32_t listItem = 0;
  std::int32_t type = kSchemeShipped;
  Text name;
  Text preview;                         // picture shown for the record
  Text directory;                       // template set: a directory below "template"
  std::array<Text, kSchemeSlots> slot;  // colours, HTML fragments and image files
};

using SchemeStyle = SchemeRecord;
using Scheme = SchemeRecord;

// A zeroed record: a new one for null, else the given one with its texts and its files released.
SchemeRecord* SchemeInit(SchemeRecord* record);

// Copies name, preview, directory, type, the slots and, as a list of its own, the files. The rest of
// an existing destination stays. A null source gives a zeroed record.
SchemeRecord* SchemeCopy(SchemeRecord* destination, const SchemeRecord* source);

// Releases the records from `head` along next, each with its schemes and files, and clears each of
// schemeStyles, currentStyle, projectScheme and currentScheme that names a released one.
void SchemeListFree(Program& program, SchemeRecord* head);

// Searches the two-level list for the record `scheme`; 1 when found. A hit in the schemes of a style
// makes that style current, and at `level` 1 the record becomes the current scheme. Call it with 0.
int SchemeLocate(AppConfig& config, SchemeRecord* list, const SchemeRecord* scheme, int level);

// Finds the scheme that SchemePath names, comparing with case, and makes it and its style current; 1
// when found, else 0 and both stay.
int SchemeFindByPath(AppConfig& config, SchemeStyle* styles, std::string_view path);

// "style/scheme" by the names of both; without a style the left part is empty. Empty for null.
[[nodiscard]] std::string SchemePath(const Scheme* scheme);

}  // namespace varlo
