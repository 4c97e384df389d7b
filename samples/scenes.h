#pragma once

#include <array>
#include <string_view>

#include "paint.h"

namespace samples {

/// A picture and the properties of its file.
struct Sample {
  const char* name;
  const char* folder;                  ///< where its palette goes
  Pixel (*scene)(double u, double v);  ///< in heights of the picture, from its upper left corner
  int width, height, palette;
  std::string_view magic = "KS";
  int padding = 0;  ///< bytes behind each row
  int surplus = 0;  ///< bytes behind the picture
};

extern const std::array<Sample, 9> kSamples;

}  // namespace samples
