// DialogPaint: what a dialog paints itself: pictures, swatches, and texts with colours of their own.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>

#include "platform/dialog.h"

namespace varlo {

struct DeleteHandle {
  void operator()(HGDIOBJ handle) const { ::DeleteObject(handle); }
};
template <typename Handle>
using OwnedHandle = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteHandle>;

class DialogPaint {
 public:
  void setPicture(ControlId control, std::string_view path);
  void setSwatch(ControlId control, std::optional<Colour> colour);
  void setTextColours(ControlId control, Colour text, Colour background);
  void clear();

  // Paints an owner-drawn control: a picture in its middle, or a swatch.
  void draw(const DRAWITEMSTRUCT& item) const;
  // Sets the colours of a text on its canvas and gives the brush behind it; null for a text without.
  [[nodiscard]] HBRUSH coloursOf(ControlId control, HDC canvas) const;

 private:
  struct TextColours {
    Colour text = 0;
    Colour background = 0;
    OwnedHandle<HBRUSH> brush;
  };
  void drawSwatch(const DRAWITEMSTRUCT& item) const;
  void drawPicture(const DRAWITEMSTRUCT& item) const;

  std::map<ControlId, OwnedHandle<HBITMAP>> pictures_;
  std::map<ControlId, std::optional<Colour>> swatches_;
  std::map<ControlId, TextColours> texts_;
};

}  // namespace varlo
