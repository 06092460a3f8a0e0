// The Build Store command: the Store Build window.
#pragma once

namespace varlo {

struct Shell;

// Opens the window, or brings it to front when it is open. Nothing without a current node; tells the user
// when there is no order server.
void openBuildWindow(Shell& shell);

}  // namespace varlo
