#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace samples {

/// A colour of three parts from 0 to 1. Arithmetic may leave that range; quantising comes back to
/// it.
struct Rgb {
  double red = 0;
  double green = 0;
  double blue = 0;
};

constexpr Rgb operator+(Rgb a, Rgb b) {
  return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}
constexpr Rgb operator*(Rgb a, double k) {
  return {a.red * k, a.green * k, a.blue * k};
}
constexpr Rgb operator*(Rgb a, Rgb b) {
  return {a.red * b.red, a.green * b.green, a.blue * b.blue};
}
/// `a` at 0, `b` at 1.
constexpr Rgb mix(Rgb a, Rgb b, double t) {
  return a * (1 - t) + b * t;
}
/// From 0xRRGGBB.
constexpr Rgb rgb(std::uint32_t code) {
  return {(code >> 16 & 255) / 255.0, (code >> 8 & 255) / 255.0, (code & 255) / 255.0};
}

/// Pixels without a colour are transparent.
using Pixel = std::optional<Rgb>;

/// A picture in full colour, the top row first.
struct Image {
  int width = 0;
  int height = 0;
  std::vector<Pixel> pixels;

  /// The picture in which the pixel at x, y has the colour `shade(x, y)`.
  template <typename Shade>
  static Image paint(int width, int height, Shade shade) {
    Image image{width, height, {}};
    image.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) image.pixels.push_back(shade(x, y));
    }
    return image;
  }
};

// What follows gives the same numbers on every machine: whole numbers, the four operations and
// square roots, and no function of the mathematical library that machines round differently.

/// 0 to 1, without a pattern, always the same for the same numbers.
double hash(int x, int y, int seed);
/// Smooth noise from 0 to 1 with one bump per unit.
double noise(double x, double y, int seed);
/// `octaves` layers of noise, each twice as fine and half as strong as the one before; 0 to 1.
double clouds(double x, double y, int octaves, int seed);
/// A sine of period 1, from -1 to 1.
double wave(double turns);
/// 0 below `from`, 1 above `to`, smooth between them.
double step(double from, double to, double value);

}  // namespace samples
