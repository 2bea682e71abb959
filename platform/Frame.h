#pragma once

// Points, y up: the origin is the parent's lower left corner.
struct Size {
  double width = 0;
  double height = 0;

  bool operator==(const Size&) const = default;
};

struct Frame {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  double maxX() const { return x + width; }
  double maxY() const { return y + height; }
  Size size() const { return {width, height}; }
  bool operator==(const Frame&) const = default;
};
