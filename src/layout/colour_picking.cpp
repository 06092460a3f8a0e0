#include "layout/colour_picking.h"

#include "core/program/program.h"
#include "core/text/text_search.h"
#include "layout/named_colours.h"
#include "layout/swatch.h"

namespace varlo {
namespace {

// What is read of a colour field.
constexpr std::size_t kColourField = 500;

RgbValue startingColour(std::string_view field) {
  const std::string_view text = field.substr(0, kColourField);
  return ParseColourValue(ColourByName(text).value_or(text));
}

}  // namespace

std::optional<std::string> ChooseColour(Program& program, RgbValue start) {
  Scheme* scheme = program.config.currentScheme;
  if (scheme == nullptr) return std::nullopt;
  CustomColours custom = scheme->customColours;
  const std::optional<RgbValue> chosen = program.screen.chooseColour(start, custom);
  // Beside the open chooser another scheme may have become current, and this one may be gone.
  if (program.config.currentScheme != scheme) return std::nullopt;
  // Custom colours that the owner made stay also when he then cancels.
  scheme->customColours = custom;
  if (!chosen) return std::nullopt;
  return FormatColourValue(*chosen);
}

void ColourPicking::pick(Dialog& dialog, const ColourSlot& slot) {
  // Closing a chooser or a box gives the focus back to the swatch, which asks for a chooser again.
  if (busy_) return;
  busy_ = true;
  const std::optional<std::string> colour = ChooseColour(program_, startingColour(dialog.text(slot.field)));
  const Outcome outcome = colour ? store(dialog, slot, *colour) : Outcome::Done;
  // Also after a cancel: a swatch that kept the focus would open its chooser whenever the window is
  // brought to the front.
  dialog.focus(slot.field);
  if (outcome == Outcome::Done) dialog.caretToEnd(slot.field);
  busy_ = false;
}

ColourPicking::Outcome ColourPicking::store(Dialog& dialog, const ColourSlot& slot, const std::string& colour) {
  Scheme* scheme = program_.config.currentScheme;
  if (EqualsNoCase(scheme->slot[slot.number].view(), colour)) return Outcome::Done;
  if (scheme->type == kSchemeShipped) scheme = editableScheme_();
  if (scheme == nullptr) return Outcome::Refused;
  // The slot first: the field tells its change, and then finds the text stored already.
  scheme->slot[slot.number].assign(colour);
  dialog.setText(slot.field, colour);
  swatches_.drop(slot.number);
  dialog.repaint(slot.swatch);
  return Outcome::Done;
}

}  // namespace varlo
