#include "layout/preview_picture.h"

namespace varlo {

std::string_view PreviewPicture(const Scheme* scheme) {
  return scheme != nullptr && scheme->preview.isSet() ? scheme->preview.view() : "s0.bmp";
}

Rectangle CentredIn(const Rectangle& frame, Size picture) {
  return {frame.left + (frame.width - picture.width) / 2, frame.top + (frame.height - picture.height) / 2,
          picture.width, picture.height};
}

}  // namespace varlo
