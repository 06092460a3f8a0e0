// The Preview command.
#pragma once

namespace varlo {

struct Shell;

// Makes the page of the current node and shows it in the browser. The project stays unsaved and `dirty` as it is.
void previewCurrent(Shell& shell);

}  // namespace varlo
