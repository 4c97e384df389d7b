#include "image.h"

#include <algorithm>
#include <cmath>

namespace samples {

double hash(int x, int y, int seed) {
  auto h = static_cast<std::uint32_t>(x) * 0x8DA6B343U ^
           static_cast<std::uint32_t>(y) * 0xD8163841U ^
           static_cast<std::uint32_t>(seed) * 0xCB1AB31FU;
  h = (h ^ h >> 15) * 0x2C1B3C6DU;
  h = (h ^ h >> 12) * 0x297A2D39U;
  h ^= h >> 15;
  return h / 4294967296.0;
}

double noise(double x, double y, int seed) {
  const double left = std::floor(x);
  const double top = std::floor(y);
  const auto ease = [](double t) { return t * t * t * (t * (t * 6 - 15) + 10); };
  const double across = ease(x - left);
  const double down = ease(y - top);
  const auto column = static_cast<int>(left);
  const auto row = static_cast<int>(top);
  const double above = std::lerp(hash(column, row, seed), hash(column + 1, row, seed), across);
  const double below =
      std::lerp(hash(column, row + 1, seed), hash(column + 1, row + 1, seed), across);
  return std::lerp(above, below, down);
}

double clouds(double x, double y, int octaves, int seed) {
  double sum = 0;
  double whole = 0;
  double strength = 1;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += strength * noise(x, y, seed + octave);
    whole += strength;
    strength /= 2;
    // Shifted a little, so that the corners of the layers don't fall on each other.
    x = x * 2 + 17.3;
    y = y * 2 + 31.7;
  }
  return sum / whole;
}

double wave(double turns) {
  const double t = turns - std::floor(turns);
  const double arch = t < 0.5 ? 16 * t * (0.5 - t) : -16 * (t - 0.5) * (1 - t);
  return arch * (0.775 + 0.225 * std::abs(arch));
}

double step(double from, double to, double value) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

}  // namespace samples
