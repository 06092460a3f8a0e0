// The layout of the main window: where its controls belong at a size.
#pragma once

#include <vector>

#include "platform/dialog.h"
#include "platform/geometry.h"

namespace varlo {

struct Shell;

// What is in the main window, in the order of the Tab key; the page of the open tab comes before the tabs.
[[nodiscard]] const DialogShape& MainWindowShape();

// What the layout depends on; all in pixels of the screen but `scale`, which is pixels for each pixel of an
// ordinary screen in percent.
struct LayoutFacts {
  Size client;
  int rowHeight = 0;  // of an edit field
  int leftWidth = 0;  // left edge of the tab control as designed
  int scale = 100;
  bool toolbarShown = true;
  bool buttonsShown = true;
};

struct MainLayout {
  std::vector<Placement> controls;  // of the main window
  Rectangle page;                   // of the tab page
};

[[nodiscard]] MainLayout layOutMainWindow(const LayoutFacts& facts);

// The facts of the window that is open.
[[nodiscard]] LayoutFacts layoutFactsOf(const Shell& shell);

// Moves the page of the open tab to its place.
void placeTabPage(Shell& shell);

// Lays the window out for its size, with the parts of its status bar, and paints it anew. Tells the user when
// there is no page.
void resizeMainWindow(Shell& shell);

}  // namespace varlo
