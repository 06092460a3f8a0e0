// Generator: what makes a web site of the open project, and what it keeps from one build to the next.
#pragma once

#include <cstdint>
#include <string>

#include "generator/state/build_log.h"

namespace varlo {

struct Program;

struct Generator {
  explicit Generator(Program& theProgram) : program(theProgram) {}
  Generator(const Generator&) = delete;
  Generator& operator=(const Generator&) = delete;

  Program& program;
  BuildLog log;

  std::uint32_t pageCounter = 0;  // goes up by one for each page, never back
  bool useSetTemplates = false;   // preview of a scheme: templates come from its set

  // The text composed last: a shelf block, an add link, $INDEX, a product table, a card list. Deliberate: a
  // shelf block that is too long for it is not taken, and what stands here becomes the block instead.
  std::string scratch;
};

}  // namespace varlo
