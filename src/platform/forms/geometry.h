#pragma once

namespace forms {

/// Lengths on windows are twips. 15 of them are one device-independent pixel on every screen.
inline constexpr int kTwipsPerPixel = 15;

struct Size {
  int Width = 0;
  int Height = 0;
};

/// Where a control stands in its container's client area.
struct Rect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

/// Whole pixels of a length in twips.
constexpr int pixels(int twips) {
  return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

}  // namespace forms
