// Searching a long text, place by place.
#pragma once

#include <string_view>

#include "platform/rich_text.h"

namespace varlo {

// Selects the first `what`, in whatever case, from `start` on, shows it, and moves `start` behind it. False when
// there is none: `start` is 0 then, so that the next search begins at the top again. An empty text is not found.
[[nodiscard]] bool findNext(RichText& text, std::string_view what, int& start);

}  // namespace varlo
