// The wizard's page on which a style and a scheme are chosen.
#pragma once

#include <string>
#include <vector>

#include "core/program/scheme.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

struct LayoutPage {
  explicit LayoutPage(Program& theProgram) : program(theProgram) {}

  Program& program;
  std::vector<SchemeStyle*> styles;  // the rows of the lists
  std::vector<Scheme*> schemes;
  bool muted = false;  // rows are being marked
};

// Shows all styles, and the schemes of the first. A choice of an earlier run is marked where it is on show.
void LayoutPageOpen(LayoutPage& page, Dialog& dialog);

// What happens in its controls: choosing makes a style or scheme current at once.
void LayoutPageControl(LayoutPage& page, Dialog& dialog, const ControlEvent& event);

[[nodiscard]] std::string LayoutPageText(const LayoutPage& page, ControlId list, int row);
[[nodiscard]] int LayoutPageMark(const LayoutPage& page, ControlId list, int row);

}  // namespace varlo
