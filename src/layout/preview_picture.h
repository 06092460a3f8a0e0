// The sample picture of a scheme, as the Layout tab and the store wizard show it in a frame.
#pragma once

#include <string_view>

#include "core/program/scheme.h"
#include "platform/geometry.h"

namespace varlo {

// The bitmap file that shows a scheme, below the working folder: its own, or a common one for a scheme without any
// and for null. The file need not be there; then nothing is drawn.
[[nodiscard]] std::string_view PreviewPicture(const Scheme* scheme);

// Where a picture belongs in its frame: in the middle. What is larger than the frame stands out on both sides, and
// the frame cuts it.
[[nodiscard]] Rectangle CentredIn(const Rectangle& frame, Size picture);

}  // namespace varlo
