// Guards that go down by themselves.
#pragma once

#include "core/forms/raised.h"  // for those that use this file

namespace varlo {

// Holds the painting of the tree or of the item list, which makes filling fast.
template <typename Window>
class HeldPainting {
 public:
  explicit HeldPainting(Window& window) : window_(window) { window_.holdPainting(true); }
  ~HeldPainting() { window_.holdPainting(false); }
  HeldPainting(const HeldPainting&) = delete;
  HeldPainting& operator=(const HeldPainting&) = delete;

 private:
  Window& window_;
};

}  // namespace varlo
