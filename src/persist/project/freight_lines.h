// Reading freight lines, as they stand in project files: "$" code digit "," twelve values ",|" flag,
// and the RULE= line behind.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/store/freight_record.h"

namespace varlo {

struct Program;

// Reads freight lines into the regions of the project. The object remembers the codes it met, so that
// many regions cost no search each; nothing else may add regions while it is in use.
class FreightLineReader {
 public:
  // `withRegionValue`: take the thirteenth value of each line.
  FreightLineReader(Program& program, bool withRegionValue) : program_(program), withRegionValue_(withRegionValue) {}

  // Reads a line that begins with "$". Gives the region it belongs to, made when it is not known, or
  // null for a line without a region code and method digit, which is ignored.
  FreightRegion* read(std::string_view line);

 private:
  using Index = std::unordered_map<std::string, FreightRegion*>;
  static void addAll(Index& index, FreightRegion* head);
  void indexOnce();
  FreightRegion* findOrMake(std::string_view code);
  void nameFromCatalogue(FreightRegion& region, std::string_view code) const;

  Program& program_;
  bool withRegionValue_;
  bool indexed_ = false;
  Index regions_;
  Index catalogue_;
};

// Reads the value of a RULE= line, "index,rule", into a method of `region`; ignored without a region, a
// comma or an index 0 to 2.
void ReadFreightRule(FreightRegion* region, std::string_view value);

// Reads the value of a FNAME= line, "index,name", into the project's method names; ignored without a
// comma or an index 0 to 2.
void ReadMethodName(Program& program, std::string_view value);

}  // namespace varlo
