// The commands that make pages: Preview, and Build Store with its window.
#pragma once

namespace varlo {

struct Shell;

// Makes the page of the current node and shows it in the browser. The project stays unsaved and `dirty` as it is.
void previewCurrent(Shell& shell);

// The same with the current scheme instead of the one that the store uses.
void previewScheme(Shell& shell);

// Opens the Store Build window, or brings it to front when it is open. Nothing without a current node; tells the
// user when there is no order server.
void openBuildWindow(Shell& shell);

}  // namespace varlo
