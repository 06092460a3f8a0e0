// Points and rectangles, in pixels.
#pragma once

namespace varlo {

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

struct Rectangle {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Rectangle&) const = default;
};

}  // namespace varlo
