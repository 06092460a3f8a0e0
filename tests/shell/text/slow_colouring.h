// The colouring of a text told once more, apart from the program: by looking at every character, without any notion
// of segments or of what can be left out.
#pragma once

#include <string>
#include <vector>

#include "platform/colour.h"

namespace varlo::test {

// The colours that `text` has after a pass, when it had `colours` before and its selection begins at `position`.
[[nodiscard]] std::vector<Colour> ColouredSlowly(const std::string& text, std::vector<Colour> colours, int position,
                                                 bool wholeText);

}  // namespace varlo::test
