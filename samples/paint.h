#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <optional>

// What scenes are painted with. The results are the same on every machine: integers, the four
// basic operations and square roots, and no function whose rounding may differ.

namespace samples {

/// A colour of three parts from 0 to 1. Arithmetic may leave that range.
struct Rgb {
  double red = 0, green = 0, blue = 0;

  constexpr Rgb operator+(Rgb b) const { return {red + b.red, green + b.green, blue + b.blue}; }
  constexpr Rgb operator*(double k) const { return {red * k, green * k, blue * k}; }
};

/// From 0xRRGGBB.
constexpr Rgb rgb(std::uint32_t code) {
  return {(code >> 16 & 255) / 255.0, (code >> 8 & 255) / 255.0, (code & 255) / 255.0};
}
/// `a` at 0, `b` at 1.
template <typename T>
constexpr T mix(T a, T b, double t) {
  return a * (1 - t) + b * t;
}
/// The colour at `t` (0 to 1) in a row of colours at equal distances.
constexpr Rgb gradient(std::initializer_list<std::uint32_t> codes, double t) {
  const int last = static_cast<int>(codes.size()) - 1;
  const double place = std::clamp(t, 0.0, 1.0) * last;
  const int left = std::min(static_cast<int>(place), last - 1);
  return mix(rgb(codes.begin()[left]), rgb(codes.begin()[left + 1]), place - left);
}

/// Pixels without a colour are transparent.
using Pixel = std::optional<Rgb>;

inline int whole(double value) {
  return static_cast<int>(std::floor(value));
}

inline double length(double x, double y) {
  return std::sqrt(x * x + y * y);
}

/// 0 below `from`, 1 above `to`, smooth between them.
inline double step(double from, double to, double value) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

/// Like a cosine: from 1 to -1 and back in every turn.
inline double wave(double turns) {
  return 2 * step(0, 0.5, std::abs(turns - std::floor(turns) - 0.5)) - 1;
}

/// A hash of the numbers, 0 to 1.
inline double hash(int x, int y, int seed) {
  auto h = static_cast<std::uint32_t>(x * 0x8DA6B343LL ^ y * 0xD8163841LL ^ seed * 0xCB1AB31FLL);
  h = (h ^ h >> 15) * 0x2C1B3C6DU;
  h = (h ^ h >> 12) * 0x297A2D39U;
  return (h ^ h >> 15) / 4294967296.0;
}

/// Smooth from 0 to 1, with one bump per unit.
inline double noise(double x, double y, int seed) {
  const int column = whole(x);
  const int row = whole(y);
  const double across = step(0, 1, x - column);
  const double above = mix(hash(column, row, seed), hash(column + 1, row, seed), across);
  const double below = mix(hash(column, row + 1, seed), hash(column + 1, row + 1, seed), across);
  return mix(above, below, step(0, 1, y - row));
}

/// Layers of noise, each twice as fine and half as strong as the one before; 0 to 1.
inline double clouds(double x, double y, int seed) {
  double sum = 0;
  for (double strength = 0.5; strength > 0.01; strength /= 2) {
    sum += strength * noise(x, y, seed++);
    // Shifted, so that the layers' corners don't coincide.
    x = x * 2 + 17.3;
    y = y * 2 + 31.7;
  }
  return sum;
}

/// Sharp crests in a plain; 0 to 1.
inline double ridges(double x, double y, int seed) {
  const double crest = std::max(0.0, 1 - 3.5 * std::abs(clouds(x, y, seed) - 0.5));
  return crest * crest;
}

}  // namespace samples
