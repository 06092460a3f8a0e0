// DragImage: the picture that follows the mouse while something is dragged.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "platform/geometry.h"

namespace varlo {

class DragImage {
 public:
  DragImage() = default;
  ~DragImage() { end(); }
  DragImage(const DragImage&) = delete;
  DragImage& operator=(const DragImage&) = delete;

  // Shows `images`, which it takes, at the mouse over `window`, held at `grabbed` inside the picture. False when
  // there is no picture to show.
  bool begin(HWND window, HIMAGELIST images, POINT grabbed, Point mouse);
  void move(Point mouse);
  void end();
  [[nodiscard]] bool isShown() const { return images_ != nullptr; }

  // What lies below the picture can only be painted while it is hidden.
  class Hidden {
   public:
    explicit Hidden(const DragImage& image) : image_(image) { show(FALSE); }
    ~Hidden() { show(TRUE); }
    Hidden(const Hidden&) = delete;
    Hidden& operator=(const Hidden&) = delete;

   private:
    void show(BOOL on) const {
      if (image_.isShown()) ::ImageList_DragShowNolock(on);
    }
    const DragImage& image_;
  };

 private:
  [[nodiscard]] POINT inWindow(Point screen) const;

  HWND window_ = nullptr;
  HIMAGELIST images_ = nullptr;
};

// A picture of an icon with a label beside it, in the font and colours of `control`; the caller owns it. Null when it
// can't be drawn.
[[nodiscard]] HIMAGELIST DrawDragImage(HWND control, HIMAGELIST icons, int icon, const char* label);

}  // namespace varlo
