#include "scenes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace samples {

namespace {

double length(double x, double y) {
  return std::sqrt(x * x + y * y);
}

/// The colour that stands at `t` (0 to 1) of a row of colours at equal distances.
template <std::size_t kCount>
Rgb gradient(const std::uint32_t (&codes)[kCount], double t) {
  const double place = std::clamp(t, 0.0, 1.0) * (kCount - 1);
  const auto left = std::min(static_cast<std::size_t>(place), kCount - 2);
  return mix(rgb(codes[left]), rgb(codes[left + 1]), place - static_cast<double>(left));
}

/// Sharp crests instead of round bumps; 0 to 1.
double ridges(double x, double y, int octaves, int seed) {
  double sum = 0;
  double whole = 0;
  double strength = 1;
  for (int octave = 0; octave < octaves; ++octave) {
    const double crest = 1 - std::abs(2 * noise(x, y, seed + octave) - 1);
    sum += strength * crest * crest;
    whole += strength;
    strength /= 2;
    x = x * 2 + 9.1;
    y = y * 2 + 4.7;
  }
  return sum / whole;
}

/// The binary logarithm, good to a hundredth.
double log2(double value) {
  int exponent = 0;
  const double m = 2 * std::frexp(value, &exponent) - 1;
  return exponent - 1 + m + 0.346 * m * (1 - m);
}

// --- harbour. u runs from 0 at the left to the ratio of the sides, v from 0 at the top to 1. ---

constexpr double kHorizon = 0.6;
constexpr double kSunX = 1.02;
constexpr double kSunY = 0.485;

Rgb sunsetSky(double u, double v) {
  static constexpr std::uint32_t kSky[] = {0x1B1B4B, 0x3A2C6B, 0x7B3F7D, 0xC8586C,
                                           0xF0875A, 0xFBB96B, 0xFFE3A0};
  const double sun = length(u - kSunX, (v - kSunY) * 1.15);
  Rgb colour = gradient(kSky, v / kHorizon * 0.94);
  colour = mix(colour, rgb(0xFFD98C), 0.65 * step(0.5, 0.02, sun));
  // Clouds in long bands, dark above and lit from below.
  const double high = clouds(u * 2.2 + 5, v * 11, 6, 11);
  const double cover = step(0.48, 0.72, high) * step(0.0, 0.12, v) * step(kHorizon, 0.42, v);
  const double lit = step(0.1, -0.06, clouds(u * 2.2 + 5, (v + 0.022) * 11, 4, 11) - high + 0.04);
  const Rgb cloud = mix(rgb(0x54336F), gradient({0xD86A72, 0xFF9E62, 0xFFE0A0}, v * 1.9), lit);
  colour = mix(colour, cloud, 0.85 * cover);
  const double disc = length(u - kSunX, v - kSunY);
  return mix(colour, rgb(0xFFF6D8), step(0.050, 0.046, disc));
}

/// What stands in the bay. Nothing where the sky is seen.
Pixel islands(double u, double v) {
  struct Layer {
    double foot, height, scale;
    std::uint32_t colour, haze;
    int seed;
  };
  static constexpr Layer kLayers[] = {
      {0.600, 0.26, 4.6, 0x2C1F45, 0x5A3560, 31},
      {0.600, 0.23, 3.1, 0x5B3767, 0x9A5370, 29},
      {0.595, 0.21, 2.2, 0x8F4C73, 0xE0806C, 24},
  };
  for (const Layer& layer : kLayers) {
    // The nearest range stands on the right only.
    const double open = &layer == kLayers ? step(1.05, 1.65, u) : 0.75;
    const double top =
        layer.foot - layer.height * open * ridges(u * layer.scale, 3.5, 6, layer.seed) + 0.035;
    if (v < top || v > kHorizon) continue;
    const double depth = (v - top) / (kHorizon - top + 0.001);
    const double rock = clouds(u * 26, v * 60, 4, 7) - 0.5;
    return mix(rgb(layer.colour), rgb(layer.haze), depth * 0.8 + rock * 0.35);
  }
  return {};
}

Pixel lighthouse(double u, double v) {
  constexpr double kAxis = 0.235;
  constexpr double kTop = 0.335;
  constexpr double kFoot = 0.575;
  const double x = u - kAxis;
  const double cliff = 0.6 - 0.05 * step(0.36, 0.20, u) - 0.012 * clouds(u * 30, 1, 3, 5);
  if (v > cliff && v <= kHorizon && u < 0.37) {
    return mix(rgb(0x1B1430), rgb(0x6B4A62), clouds(u * 40, v * 70, 4, 8) * step(0.37, 0.2, u));
  }
  const double half = 0.012 + 0.012 * (v - kTop) / (kFoot - kTop);
  const double light = step(-half, half, x);
  if (v > kTop && v < kFoot && std::abs(x) < half) {
    const bool red = static_cast<int>((v - kTop) * 26) % 2 != 0;
    return mix(rgb(red ? 0x4A1226 : 0x54456B), rgb(red ? 0xE8564A : 0xFFE3C4), light);
  }
  if (v > kTop - 0.008 && v <= kTop && std::abs(x) < 0.019) return rgb(0x241A38);
  if (v > kTop - 0.036 && v <= kTop - 0.008 && std::abs(x) < 0.009) return rgb(0xFFF3B0);
  if (v > kTop - 0.058 && v <= kTop - 0.036 && std::abs(x) < (v - kTop + 0.058) * 0.65) {
    return mix(rgb(0x3A1026), rgb(0xC43F42), light);
  }
  return {};
}

Pixel boat(double u, double v, double x, double y, double size) {
  const double dx = (u - x) / size;
  const double dy = (y - v) / size;
  if (dy >= 0 && dy < 0.16 && std::abs(dx) < 0.42 + dy * 0.7)
    return rgb(dy > 0.11 ? 0x8C4A3C : 0x1E1226);
  if (dy >= 0.16 && dy < 1.25 && std::abs(dx) < 0.012) return rgb(0x1E1226);
  if (dy >= 0.22 && dy < 1.2 && dx > 0.03 && dx < (1.2 - dy) * 0.5) {
    return mix(rgb(0xFFE9C0), rgb(0xB8646A), dx * 1.7 + 0.1);
  }
  if (dy >= 0.26 && dy < 1.1 && dx < -0.03 && -dx < (1.1 - dy) * 0.42) {
    return mix(rgb(0xE89A7A), rgb(0x8A4868), -dx * 2.4);
  }
  return {};
}

struct Ship {
  double x, y, size;
};
constexpr Ship kShips[] = {{0.62, 0.655, 0.105}, {1.30, 0.622, 0.05}, {0.86, 0.612, 0.028}};

Pixel ships(double u, double v) {
  for (const Ship& ship : kShips) {
    if (const Pixel pixel = boat(u, v, ship.x, ship.y, ship.size)) return pixel;
  }
  return {};
}

/// The ships upside down below their water lines, v moved by `offset`.
Pixel mirroredShips(double u, double v, double offset) {
  for (const Ship& ship : kShips) {
    const double above = std::min(2 * ship.y - v + offset, ship.y);
    if (v <= ship.y) continue;
    if (const Pixel pixel = boat(u, above, ship.x, ship.y, ship.size)) return pixel;
  }
  return {};
}

Rgb overWater(double u, double v) {
  if (const Pixel tower = lighthouse(u, v)) return *tower;
  if (const Pixel land = islands(u, v)) return *land;
  const double lamp = length(u - 0.235, v - 0.313);
  return mix(sunsetSky(u, v), rgb(0xFFF0B0), 0.6 * step(0.07, 0.0, lamp));
}

Rgb water(double u, double v) {
  const double near = (v - kHorizon) / (1 - kHorizon);
  // Waves grow shorter and lower towards the horizon.
  const double depth = 1 / (near + 0.04);
  const double swell = clouds(u * depth * 1.3, depth * 9, 4, 61) - 0.5;
  const double ripple = clouds(u * depth * 4, depth * 26, 3, 67) - 0.5;
  const double offset = (swell * 0.10 + ripple * 0.07) * (0.15 + near);
  const double mirrored = std::clamp(2 * kHorizon - v + offset, 0.0, kHorizon - 0.001);
  Rgb colour = overWater(u + offset * 0.35, mirrored);
  if (const Pixel hull = mirroredShips(u + offset * 0.4, v, offset * 0.7)) colour = *hull * 0.85;
  colour = mix(colour * Rgb{0.96, 0.76, 0.66}, rgb(0x161843), 0.10 + 0.55 * near);
  const double path = step(0.10 + 0.2 * near, 0.0, std::abs(u - kSunX + offset * 0.9));
  const double glitter = step(0.02, 0.20, ripple + swell * 0.6 + 0.06);
  return mix(colour, rgb(0xFFD58A), path * glitter * (0.95 - 0.35 * near));
}

}  // namespace

Image harbour(int width, int height) {
  return Image::paint(width, height, [&](int x, int y) -> Pixel {
    const double u = (x + 0.5) / height;
    const double v = (y + 0.5) / height;
    if (const Pixel ship = ships(u, v)) return ship;
    return v < kHorizon ? overWater(u, v) : water(u, v);
  });
}

namespace {

Rgb daySky(double u, double v) {
  const Rgb sky = gradient({0x2B6CC4, 0x5FA3E6, 0xA9D5F5, 0xE3F1F8}, v * 1.7);
  const double high = clouds(u * 3.1 + 2, v * 6.5, 6, 91);
  const double cover = step(0.52, 0.72, high);
  const double under = step(0.0, 0.14, high - clouds(u * 3.1 + 2, (v + 0.03) * 6.5, 4, 91) + 0.03);
  return mix(sky, mix(rgb(0xFFFFFF), rgb(0xA9B9D0), under * 0.8), cover);
}

/// A range of mountains; nothing above its crest.
Pixel mountains(double u, double v, double top, double scale, int seed, double haze) {
  const auto height = [&](double x) { return top - 0.42 * ridges(x * scale, 1.7, 7, seed) + 0.2; };
  const double crest = height(u);
  if (v < crest) return {};
  // The slopes run down from the crest, lit from the left.
  const auto relief = [&](double x, double y) {
    return ridges(x * scale * 3 + (y - crest) * 2.2, y * scale * 1.6, 6, seed + 40);
  };
  const double slope = (relief(u + 0.006, v) - relief(u - 0.006, v)) * 2.6 +
                       (height(u + 0.012) - height(u - 0.012)) * -6;
  const double light = std::clamp(0.56 - slope, 0.0, 1.0);
  const double patches = clouds(u * 16, v * 16, 5, seed + 3);
  const double snow = step(0.07, -0.06, v - crest - 0.13 + (patches - 0.5) * 0.34 + slope * 0.12);
  const Rgb rock =
      gradient({0x2B3040, 0x5A5660, 0x94887F, 0xC0B19C}, light * 0.9 + patches * 0.2 - 0.1);
  const Rgb white = gradient({0x6F8FC0, 0xB5CBE8, 0xF3F7FC, 0xFFFFFF}, light * 1.15);
  return mix(mix(rock, white, snow), rgb(0xB5D2EC), haze + 0.35 * step(0.4, 0.75, v));
}

/// Firs on a hill, one beside the other.
Pixel forest(double u, double v, double foot, double size, int seed, Rgb dark, Rgb light) {
  const double hill = foot - 0.09 * clouds(u * 2.3, 0.5, 3, seed);
  for (int near = 1; near >= -1; --near) {
    const double place = u / size;
    const int tree = static_cast<int>(std::floor(place)) + near;
    const double axis = tree + 0.5 + 0.5 * (hash(tree, 1, seed) - 0.5);
    const double tall = size * (2.1 + 1.6 * hash(tree, 2, seed));
    const double down = (v - (hill - tall)) / tall;
    if (down < 0 || down > 1) continue;
    const double tiers = down * 5 - std::floor(down * 5);
    const double half = (0.08 + 0.62 * down) * (0.72 + 0.34 * tiers);
    const double dx = place - axis;
    if (std::abs(dx) > half) continue;
    const double lit = step(0.5, -0.7, dx / half) * (0.45 + 0.55 * (1 - tiers));
    return mix(dark, light,
               lit * 0.9 +
                   0.25 * (hash(static_cast<int>(u * 900), static_cast<int>(v * 900), seed) - 0.5));
  }
  if (v < hill) return {};
  return mix(dark, light, 0.2 + 0.3 * clouds(u * 60, v * 120, 3, seed));
}

Rgb meadow(double u, double v) {
  const double blades = clouds(u * 70, v * 34, 4, 17);
  const double patches = clouds(u * 5, v * 14, 4, 19);
  const Rgb grass =
      gradient({0x1F4A1C, 0x3F7A26, 0x76A436, 0xBFCB5A}, patches * 0.75 + blades * 0.45 - 0.1);
  const double flowers = hash(static_cast<int>(u * 170), static_cast<int>(v * 150), 23);
  if (flowers > 0.985)
    return gradient({0xFFF2A0, 0xF6D33C, 0xF0F0FF, 0xE05A78}, (flowers - 0.985) * 66);
  return grass;
}

}  // namespace

Image summit(int width, int height) {
  return Image::paint(width, height, [&](int x, int y) -> Pixel {
    const double u = (x + 0.5) / height;
    const double v = (y + 0.5) / height;
    if (v > 0.90 - 0.035 * clouds(u * 3, 2, 3, 55)) return meadow(u, v);
    if (const Pixel p = forest(u, v, 0.93, 0.032, 71, rgb(0x0B2415), rgb(0x3F7A35))) return p;
    if (const Pixel p = forest(u, v, 0.80, 0.016, 73, rgb(0x1C4034), rgb(0x5A8F5A))) return p;
    if (const Pixel p = mountains(u, v, 0.50, 1.55, 83, 0.0)) return p;
    if (const Pixel p = mountains(u, v, 0.42, 2.3, 87, 0.34)) return p;
    return daySky(u, v);
  });
}

namespace {

/// The light that a planet at the origin with radius 1 gives back at x, y.
Pixel planet(double x, double y) {
  const double square = x * x + y * y;
  if (square >= 1) return {};
  const double z = std::sqrt(1 - square);
  const double light = std::max(0.0, -0.62 * x - 0.38 * y + 0.68 * z);
  // Bands across the tilted axis, stirred by storms.
  const double tilt = y * 0.94 + x * 0.34;
  const double bands = clouds(tilt * 5 + clouds(x * 3, y * 3, 4, 3) * 0.7, 0.3, 4, 5);
  const Rgb ground = gradient({0x7A3F2A, 0xC98850, 0xF2D8A0, 0xE8B070, 0xA85A3C, 0xF6E6C4}, bands);
  const double rim = step(0.35, 0.0, z);
  return mix(ground * (0.03 + light * 1.1), rgb(0xFFC890) * light, rim * 0.5);
}

/// How much of the ring stands at x, y; 0 to 1.
double ring(double x, double y) {
  const double along = x * 0.94 - y * 0.34;
  const double across = (y * 0.94 + x * 0.34) * 3.6;
  const double radius = length(along, across);
  if (radius < 1.3 || radius > 2.25) return 0;
  const double gap = step(0.02, 0.05, std::abs(radius - 1.86));
  return gap * step(1.3, 1.42, radius) * step(2.25, 2.15, radius) *
         (0.35 + 0.65 * noise(radius * 26, 0.5, 77));
}

Rgb deepSky(double u, double v, int x, int y) {
  const double warpX = clouds(u * 2, v * 2, 5, 201);
  const double warpY = clouds(u * 2 + 7, v * 2, 5, 203);
  const double gas = clouds(u * 2.2 + warpX * 2.4, v * 2.2 + warpY * 2.4, 6, 207);
  const double dust = ridges(u * 1.6 + warpY * 1.5, v * 1.6 + warpX, 6, 211);
  Rgb colour = gradient({0x05040F, 0x0B0A26, 0x2A1A5E, 0x7A2C86, 0xD8508C, 0xFFB08A, 0xFFF0D0},
                        step(0.30, 0.86, gas) * 1.05);
  colour = colour + rgb(0x1C6AA0) * (step(0.35, 0.8, dust) * step(0.75, 0.3, gas) * 0.75);
  const double star = hash(x, y, 5);
  if (star > 0.9975) colour = mix(colour, rgb(0xFFFFFF), (star - 0.9975) * 400);
  return colour;
}

}  // namespace

Image nebula(int width, int height) {
  struct Star {
    double u, v, size;
  };
  static constexpr Star kBright[] = {{0.21, 0.22, 0.011}, {1.05, 0.14, 0.014}, {0.13, 0.74, 0.008},
                                     {1.22, 0.83, 0.010}, {0.48, 0.10, 0.007}, {0.95, 0.42, 0.006}};
  return Image::paint(width, height, [&](int x, int y) -> Pixel {
    const double u = (x + 0.5) / height;
    const double v = (y + 0.5) / height;
    const double px = (u - 0.60) / 0.235;
    const double py = (v - 0.55) / 0.235;
    Rgb colour = deepSky(u, v, x, y);
    for (const Star& star : kBright) {
      const double dx = std::abs(u - star.u);
      const double dy = std::abs(v - star.v);
      const double flare =
          star.size * star.size * 0.05 / (dx * dy * 30 + 0.02 * (dx * dx + dy * dy) + 1e-7);
      const double fade = step(star.size * 7, 0, length(dx, dy));
      colour = mix(colour, rgb(0xF4F4FF), std::min(1.0, flare * fade * 1.6));
    }
    const Pixel body = planet(px, py);
    if (body) colour = *body;
    const double front = py * 0.94 + px * 0.34;
    const double band = ring(px, py);
    // The half behind the planet is hidden by it, and its shadow falls on the far right.
    if (band > 0 && (front > 0 || !body)) {
      const double shadow =
          px > 0.2 && front < 0.12 && std::abs(py - px * 0.45) < 0.75 && px < 1.9 ? 0.25 : 1;
      colour = mix(colour, rgb(0xE8CFA4) * shadow, band * 0.9);
    } else if (body) {
      // ... and the ring throws one on the planet.
      colour = colour * (1 - 0.45 * ring(px + 0.12, py + 0.22));
    }
    return colour;
  });
}

Image fractal(int width, int height) {
  static constexpr std::uint32_t kColours[] = {0x0A0F3C, 0x1B4FA8, 0x5CC0E8, 0xF4FBE4, 0xFFD25A,
                                               0xE07A1E, 0x7A1F2E, 0x2A0B3A, 0x0A0F3C};
  constexpr int kLimit = 700;
  constexpr int kFarBits = 16;
  constexpr double kFar = 1 << kFarBits;
  return Image::paint(width, height, [&](int px, int py) -> Pixel {
    const double span = 0.0075;
    const double cx = -0.74529 + (px - width / 2.0) / width * span;
    const double cy = 0.11307 + (py - height / 2.0) / width * span;
    double x = 0;
    double y = 0;
    int count = 0;
    for (; count < kLimit && x * x + y * y < kFar; ++count) {
      const double next = x * x - y * y + cx;
      y = 2 * x * y + cy;
      x = next;
    }
    if (count == kLimit) return rgb(0x04050F);
    // How far beyond kFar the last step went, in steps: the difference is what makes bands visible.
    const double logarithm = log2(x * x + y * y) / kFarBits;
    const double smooth = count - log2(logarithm);
    const double t = smooth / 96 + 0.12 * wave(smooth / 31);
    return gradient(kColours, t - std::floor(t));
  });
}

Image islandMap(int width, int height) {
  const auto heightAt = [&](double x, double y) {
    const double u = x / width - 0.5;
    const double v = y / height - 0.5;
    const double bay = 0.25 * (clouds(u * 4, v * 4, 4, 303) - 0.5);
    return ridges(u * 2.6 + 4, v * 2.6 + 1, 6, 301) * 0.55 +
           clouds(u * 5 + 3, v * 5, 6, 307) * 0.75 - 1.75 * length(u * 1.05 + bay, v * 1.15 + bay) -
           0.12;
  };
  return Image::paint(width, height, [&](int x, int y) -> Pixel {
    const int edge = std::min({x, y, width - 1 - x, height - 1 - y});
    if (edge < 10) {
      const bool dark = (x / 20 + y / 20) % 2 == 0;
      if (edge == 0 || edge == 9) return rgb(0x2A1A0C);
      if (edge < 3 || edge > 6) return rgb(0xE8D6A8) * (0.92 + 0.1 * noise(x / 5.0, y / 5.0, 3));
      return dark ? rgb(0x5A3A1C) : rgb(0xE8D6A8);
    }
    const double h = heightAt(x, y);
    if (h < 0) {
      const double surf = step(-0.035, 0.0, h) * (0.6 + 0.4 * wave(h * 60));
      const Rgb sea = gradient({0x5FB8C4, 0x2F86B0, 0x1F5A92, 0x17407A}, -h * 2.6);
      const bool grid = x % 50 == 25 || y % 50 == 25;
      return mix(mix(sea, rgb(0xD8F0EC), surf * 0.55), rgb(0xBFE0EE), grid ? 0.22 : 0);
    }
    const double slope = heightAt(x + 1.5, y + 1.5) - heightAt(x - 1.5, y - 1.5);
    const double light = std::clamp(1 + slope * 9, 0.45, 1.45);
    const double patches = 0.05 * (clouds(x / 9.0, y / 9.0, 3, 311) - 0.5);
    const Rgb land =
        gradient({0xE8D8A0, 0xA8B860, 0x5F9A44, 0x3A7A38, 0x4A6A38, 0x8A7A5A, 0xA89A88, 0xF4F4F8},
                 (h + patches) * 2.4);
    return land * light;
  });
}

Image crest(int width, int height) {
  return Image::paint(width, height, [&](int px, int py) -> Pixel {
    const double x = (px + 0.5 - width / 2.0) / (width * 0.47);
    const double y = (py + 0.5) / height * 1.06 - 0.03;
    // A shield: straight sides above, two arcs that meet in a point below.
    const double half =
        y < 0.42 ? 1 : std::sqrt(std::max(0.0, 1 - (y - 0.42) * (y - 0.42) / 0.3364));
    const double inside = std::min({half - std::abs(x), y * 1.8, (1.0 - y) * 2.5});
    if (y < 0 || y > 1 || inside < 0) return {};
    const double gloss = 0.86 + 0.3 * step(0.9, -0.9, x + y * 0.8 - 0.5) +
                         0.06 * (noise(px / 3.0, py / 3.0, 2) - 0.5);
    if (inside < 0.13) {
      const double round = 1 - std::abs(inside - 0.065) / 0.065;
      return gradient({0x4A2E08, 0xB07A18, 0xF2C84A, 0xFFF4B8},
                      round * 0.75 + step(0.25, -0.25, x) * 0.25 - 0.05);
    }
    const bool left = x < 0;
    const bool upper = y < 0.46;
    if (std::abs(x) < 0.035 || std::abs(y - 0.46) < 0.014) return rgb(0xE0B03C) * gloss;
    const double cx = x - (left ? -0.45 : 0.45);
    const double cy = (y - (upper ? 0.27 : 0.64)) * 1.25;
    if (left == upper) {
      // A sun with sixteen rays.
      const double radius = length(cx, cy * 1.5);
      const double along = std::abs(cx) > std::abs(cy * 1.5) ? cy * 1.5 / (cx == 0 ? 1 : cx)
                                                             : cx / (cy == 0 ? 1 : cy * 1.5);
      const double ray = 0.24 + 0.11 * wave(std::abs(along) * 2.0 + 0.25);
      if (radius < 0.17) return gradient({0xFFF8D0, 0xFFD850, 0xE89A20}, radius * 6);
      if (radius < ray) return rgb(0xF6C240) * gloss;
      return rgb(0x2344A0) * gloss;
    }
    // A tower with battlements.
    const bool body = std::abs(cx) < 0.2 && cy > -0.12 && cy < 0.27;
    const bool head = std::abs(cx) < 0.26 && cy > -0.2 && cy <= -0.1;
    const bool merlon = std::abs(cx) < 0.26 && cy > -0.26 && cy <= -0.2 &&
                        static_cast<int>((cx + 0.26) * 9.7) % 2 == 0;
    const bool gate = std::abs(cx) < 0.07 && cy > 0.06 + 2 * cx * cx * 6;
    if (gate && body) return rgb(0x2A0E12);
    if (body || head || merlon)
      return mix(rgb(0x8E94A8), rgb(0xF4F2EC), step(0.2, -0.2, cx)) * gloss;
    return rgb(0xB0202C) * gloss;
  });
}

namespace {

constexpr int kCell = 32;
constexpr double kMiddle = (kCell - 1) / 2.0;

Pixel coin(double x, double y, int frame) {
  static constexpr double kTurn[] = {1, 0.86, 0.55, 0.2, 0.12, 0.2, 0.55, 0.86};
  const double squeeze = kTurn[frame];
  const double dx = x / squeeze;
  const double radius = length(dx, y);
  if (radius > 12)
    return x > 0 && length((x - 2) / squeeze, y) < 12 ? Pixel(rgb(0x8A5A10)) : Pixel();
  const double light = 0.62 - (x + y) / 36;
  if (radius > 9.4) return gradient({0x7A4A08, 0xD89A1C, 0xFFE680}, light + 0.1);
  const bool mark = std::abs(dx) < 2 && std::abs(y) < 5.5;
  return gradient({0x9A6410, 0xF0B82C, 0xFFF2A0}, mark ? light - 0.35 : light);
}

Pixel gem(double x, double y, int frame) {
  static constexpr std::uint32_t kGems[][3] = {
      {0x5A0812, 0xE02838, 0xFFC0B8}, {0x063A14, 0x20B048, 0xC0FFC8},
      {0x081A5A, 0x2A6AE8, 0xC8E4FF}, {0x3A0A52, 0xA03CD8, 0xF0C8FF},
      {0x5A3406, 0xF09A1C, 0xFFECB0}, {0x064048, 0x20B8C0, 0xD0FFFC},
      {0x52083A, 0xE8409A, 0xFFD0E8}, {0x3A3E4A, 0xA8B4C8, 0xFFFFFF}};
  const double ax = std::abs(x);
  if (y < -9 || (y < -3 ? ax > 8 + (y + 9) * 0.66 : ax > 12 - (y + 3) * 0.86)) return {};
  double light = y < -3 ? (ax < 6 ? 0.95 : (x < 0 ? 0.75 : 0.4))
                        : (ax < 5 - y * 0.3 ? 0.55 : (x < 0 ? 0.42 : 0.12));
  if (std::abs(y + 3) < 0.6) light = 1;
  light += 0.25 * step(2.5, 0, length(x + 5, y + 6));
  return gradient(kGems[frame], light);
}

Pixel potion(double x, double y, int frame) {
  static constexpr std::uint32_t kDrinks[][2] = {
      {0x7A0A18, 0xFF5A5A}, {0x0A2A7A, 0x5AA8FF}, {0x0A5A1C, 0x6AF07A}, {0x5A4A06, 0xFFE85A},
      {0x4A0A6A, 0xD87AFF}, {0x064A4A, 0x5AF0E0}, {0x6A2A06, 0xFFA04A}, {0x3A3A42, 0xD8D8E0}};
  const double radius = length(x, y - 4);
  if (std::abs(x) < 2.6 && y > -15 && y < -11)
    return mix(rgb(0x5A3414), rgb(0xC89058), step(2, -2, x));
  if (std::abs(x) < 4.4 && y >= -11 && y < -9) return rgb(x < 0 ? 0xF0F8FF : 0x9AB0C8);
  if (std::abs(x) < 3 && y >= -9 && y < -4) return rgb(x < -1 ? 0xF0F8FF : 0xA8C0D8);
  if (radius > 10.5) return {};
  if (radius > 9.2) return rgb(x + y < 4 ? 0xDCECF8 : 0x7088A8);
  const double level = wave(x / 18 + frame / 8.0);
  if (y < level) return rgb(length(x + 4, y) < 2 ? 0xFFFFFF : 0xB8CCE0);
  const double bubble = hash(static_cast<int>(x + 40) / 2, static_cast<int>(y + 40) / 2, frame);
  const double light = 0.75 - (x + y) / 26 + (bubble > 0.9 ? 0.3 : 0);
  return length(x + 4.5, y - 1.5) < 1.8 ? rgb(0xFFFFFF) : gradient(kDrinks[frame], light);
}

Pixel slime(double x, double y, int frame) {
  const double jump = 0.5 + 0.5 * wave(frame / 8.0);
  const double wide = 13 - 3 * jump;
  const double tall = 13 + 7 * jump;
  const double foot = 13 - 3 * jump;
  const double up = (foot - y) / tall;
  if (up < 0 || up > 1) return {};
  const double half = wide * std::sqrt(1 - up * up);
  if (std::abs(x) > half) return {};
  const double rim = (half - std::abs(x)) / wide;
  const double eyeX = std::abs(x) - 4;
  const double eyeY = y - (foot - tall * 0.52);
  if (length(eyeX, eyeY * 0.8) < 1.5) return rgb(0x06180A);
  if (length(eyeX, eyeY * 0.8) < 2.8) return rgb(0xF8FFF0);
  if (length(x + wide * 0.35, y - (foot - tall * 0.8)) < 1.6) return rgb(0xF0FFE0);
  return gradient({0x0C3A18, 0x2A8A38, 0x62CC52, 0xC0F088}, 0.18 + rim * 0.5 + up * 0.45 - x / 60);
}

}  // namespace

Image sprites() {
  return Image::paint(8 * kCell, 4 * kCell, [](int px, int py) -> Pixel {
    const int frame = px / kCell;
    const double x = px % kCell - kMiddle;
    const double y = py % kCell - kMiddle;
    switch (py / kCell) {
      case 0:
        return coin(x, y, frame);
      case 1:
        return gem(x, y, frame);
      case 2:
        return potion(x, y, frame);
      default:
        return slime(x, y, frame);
    }
  });
}

Image stones(int width, int height) {
  constexpr int kRows = 8;
  constexpr int kColumns = 5;
  // Wraps around at the edges, so that the picture continues itself.
  const auto stoneHeight = [&](int px, int py) {
    const int x = (px + width) % width;
    const int y = (py + height) % height;
    const double row = static_cast<double>(y) * kRows / height;
    const int course = static_cast<int>(row);
    const double shift = course % 2 * 0.5 + 0.3 * hash(course, 0, 401);
    const double place = static_cast<double>(x) * kColumns / width + shift;
    const double inX = place - std::floor(place);
    const double inY = row - course;
    const double edge = std::min({inX * 1.5, (1 - inX) * 1.5, inY, 1 - inY});
    const double grain = clouds(x / 9.0, y / 9.0, 4, 405);
    return step(0.02, 0.20 + 0.08 * grain, edge) + 0.35 * grain;
  };
  return Image::paint(width, height, [&](int x, int y) -> Pixel {
    const int course = y * kRows / height;
    const double shift = course % 2 * 0.5 + 0.3 * hash(course, 0, 401);
    const int stone =
        static_cast<int>(static_cast<double>(x) * kColumns / width + shift) % kColumns;
    const double slope = stoneHeight(x + 1, y + 1) - stoneHeight(x - 1, y - 1);
    const double h = stoneHeight(x, y);
    const double tone = hash(stone, course, 409);
    const Rgb face = mix(gradient({0x6A6458, 0x8A8070, 0x74808A, 0x98866C}, tone), rgb(0x5A7040),
                         0.5 * step(0.6, 0.8, clouds(x / 40.0, y / 40.0, 3, 411)));
    return mix(rgb(0x2E2A26), face, std::clamp(h, 0.0, 1.0)) *
           std::clamp(1 + slope * 0.9, 0.4, 1.7) * (0.85 + 0.3 * noise(x / 2.0, y / 2.0, 413));
  });
}

Image plasma(int width, int height) {
  static constexpr std::uint32_t kColours[] = {0x1A0A4A, 0x6A1A9A, 0xE02A7A, 0xFF8A3A,
                                               0xFFE86A, 0x4AD07A, 0x1A8AC8, 0x1A0A4A};
  return Image::paint(width, height, [&](int x, int y) -> Pixel {
    const double u = static_cast<double>(x) / height;
    const double v = static_cast<double>(y) / height;
    const double field = wave(u * 1.1 + 0.3 * wave(v * 0.9)) + wave(v * 1.3 + 0.1) +
                         wave((u + v) * 0.8) + wave(length(u - 0.9, v - 0.35) * 1.9);
    const double t = field / 5 + 0.5;
    const double light = 0.85 + 0.25 * wave(field * 1.5);
    return gradient(kColours, t - std::floor(t)) * light;
  });
}

}  // namespace samples
