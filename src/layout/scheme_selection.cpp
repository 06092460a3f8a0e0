#include "layout/scheme_selection.h"

#include "core/program/program.h"
#include "persist/installation/scheme_catalogue.h"

namespace varlo {
namespace {

Scheme* makeDefaultScheme(SchemeStyle& style) {
  Scheme* scheme = SchemeInit(nullptr);
  scheme->name.assign("Default");
  SchemeDefaults(*scheme);
  scheme->prev = &style;
  return scheme;
}

}  // namespace

void StyleSelect(Program& program, SchemeStyle& style) {
  program.config.currentStyle = &style;
  if (style.schemes == nullptr) style.schemes = makeDefaultScheme(style);
  program.config.currentScheme = style.schemes;
}

}  // namespace varlo
