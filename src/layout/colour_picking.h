// Picking the colour of a slot: what happens when the swatch beside its text field gets the focus.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "core/program/scheme.h"
#include "layout/colour_value.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;
class SwatchCache;

// A colour slot in a window: its text field, the swatch beside it, and its number in the scheme.
struct ColourSlot {
  ControlId field = 0;
  ControlId swatch = 0;
  std::size_t number = 0;
};

// Makes a copy of the current scheme, which is a shipped one, and gives the copy, current by then; null
// when the owner refuses.
using EditableScheme = std::function<Scheme*()>;

// Shows the colour chooser, starting from `start`, with the custom colours of the current scheme. Gives
// the chosen colour as text; none when the owner cancelled or there is no scheme.
std::optional<std::string> ChooseColour(Program& program, RgbValue start);

// The colour choosers of one window, of which only one can be open.
class ColourPicking {
 public:
  ColourPicking(Program& program, SwatchCache& swatches, EditableScheme editableScheme)
      : program_(program), swatches_(swatches), editableScheme_(std::move(editableScheme)) {}

  // Lets the owner choose a colour, puts it into the slot of the current scheme and into the field, and
  // moves on to the field. Nothing happens while a former call still runs.
  void pick(Dialog& dialog, const ColourSlot& slot);

 private:
  enum class Outcome { Done, Refused };
  Outcome store(Dialog& dialog, const ColourSlot& slot, const std::string& colour);

  Program& program_;
  SwatchCache& swatches_;
  EditableScheme editableScheme_;
  bool busy_ = false;
};

}  // namespace varlo
