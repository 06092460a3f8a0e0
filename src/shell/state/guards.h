// Guards that go down by themselves.
#pragma once

namespace varlo {

// Raises a flag of the shell; it goes back to what it was before.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Raised() { flag_ = before_; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

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
