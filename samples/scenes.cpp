#include "scenes.h"

#include <algorithm>
#include <cmath>

#include "colours.h"

namespace samples {

namespace {

constexpr double kHorizon = 0.6;
constexpr double kSunX = 1.02;

Rgb sunsetSky(double u, double v) {
  const double sun = length(u - kSunX, v - 0.485);
  const Rgb dusk = gradient({0x1B1B4B, 0x41306E, 0x9A4A76, 0xF0875A, 0xFBBF70}, v / kHorizon);
  const Rgb glow = mix(dusk, rgb(0xFFD98C), 0.6 * step(0.4, 0.02, sun));
  // Clouds in long bands, lit from below.
  const double high = clouds(u * 2.2 + 5, v * 11, 11);
  const double lit = step(0.14, -0.02, clouds(u * 2.2 + 5, v * 11 + 0.24, 11) - high);
  const Rgb cloud = mix(rgb(0x54336F), gradient({0xD86A72, 0xFF9E62, 0xFFE0A0}, v * 1.9), lit);
  const double cover = 0.85 * step(0.48, 0.72, high) * step(kHorizon, 0.42, v);
  return mix(mix(glow, cloud, cover), rgb(0xFFF6D8), step(0.05, 0.046, sun));
}

/// The ranges around the bay; nothing where the sky is seen.
Pixel shores(double u, double v) {
  // The nearest one leaves the middle open.
  const double open = std::max(step(1.05, 1.65, u), 0.5 * step(0.45, 0.2, u));
  for (int range = 0; range < 3; ++range) {
    const double height = range == 0 ? 0.26 * open : 0.165;
    const double crest = kHorizon + 0.035 - height * ridges(u * (4.6 - 1.3 * range), 3.5, 31);
    if (v < crest) continue;
    const Rgb rock = mix(rgb(0x2C1F45), rgb(0x8F4C73), range / 2.0);
    const double haze = 0.5 * (v - crest) / (kHorizon - crest) + 0.35 * clouds(u * 26, v * 60, 7);
    return mix(rock, rgb(0xC06870), haze - 0.15);
  }
  return {};
}

// The lighthouse and a boat, with the origin at their feet and y upwards.
Pixel lighthouse(double x, double y) {
  const double side = std::abs(x);
  const bool red = y > 0.3 || whole(y * 26) % 2 == 1;
  const Rgb wall = shade(red ? kRed : kSkin, 0.15 + 0.6 * step(-0.02, 0.02, x));
  if (y < 0.27) return side < 0.025 - y * 0.05 ? Pixel(wall) : Pixel();
  if (y < 0.278) return side < 0.019 ? Pixel(rgb(0x241A38)) : Pixel();
  if (y < 0.306) return side < 0.009 ? Pixel(rgb(0xFFF3B0)) : Pixel();
  return side < (0.328 - y) * 0.65 ? Pixel(wall) : Pixel();
}

Pixel boat(double x, double y) {
  if (y < 0.16 && std::abs(x) < 0.42 + y * 0.7) return rgb(y > 0.11 ? 0x8C4A3C : 0x1E1226);
  if (y < 1.25 && std::abs(x) < 0.012) return rgb(0x1E1226);
  const double sail = x > 0 ? (1.2 - y) * 0.5 : (y - 1.1) * 0.42;
  if (y < 0.24 || std::abs(x) < 0.03 || x / sail < 0 || x / sail > 1) return {};
  return mix(rgb(0xFFE9C0), rgb(0xB8646A), std::abs(x) * 1.7);
}

/// The boats, and below their water lines the same boats upside down.
Pixel boats(double u, double v, double sway) {
  constexpr double kPlaces[][3] = {{0.62, 0.655, 0.105}, {1.3, 0.622, 0.05}, {0.86, 0.612, 0.028}};
  for (const auto& [x, y, size] : kPlaces) {
    const double shift = v > y ? sway : 0;
    const Pixel pixel = boat((u + shift - x) / size, std::abs(v - y) / size + shift);
    if (pixel) return v > y ? mix(*pixel, rgb(0x161843), 0.4) : *pixel;
  }
  return {};
}

Rgb overWater(double u, double v) {
  const Pixel tower = lighthouse(u - 0.235, kHorizon - v);
  const double lamp = 0.6 * step(0.07, 0, length(u - 0.235, v - 0.308));
  return tower.value_or(mix(shores(u, v).value_or(sunsetSky(u, v)), rgb(0xFFF0B0), lamp));
}

Pixel harbour(double u, double v) {
  // Waves grow shorter and lower towards the horizon.
  const double near = std::max(0.0, v - kHorizon) / (1 - kHorizon);
  const double depth = 1 / (near + 0.04);
  const double ripple = clouds(u * depth * 2, depth * 14, 61) - 0.5;
  const double sway = ripple * 0.15 * (0.15 + near);
  if (const Pixel pixel = boats(u, v, sway * 0.4)) return pixel;
  if (v < kHorizon) return overWater(u, v);
  const Rgb mirrored = overWater(u + sway * 0.35, std::min(2 * kHorizon - v + sway, 0.599));
  const Rgb water = mix(mirrored * 0.85, rgb(0x2A1440), 0.1 + 0.55 * near);
  const double path = step(0.1 + 0.2 * near, 0, std::abs(u - kSunX + sway * 0.9));
  return mix(water, rgb(0xFFD58A), path * step(-0.04, 0.14, ripple) * (0.95 - 0.35 * near));
}

/// A range of mountains under snow; nothing above its crest.
Pixel mountains(double u, double v, double foot, double scale, int seed) {
  const double crest = foot - 0.42 * ridges(u * scale, 1.7, seed);
  if (v < crest) return {};
  // The slopes run down from the crest, lit from the left.
  const auto relief = [&](double x) {
    return ridges(x * scale * 3 + (v - crest) * 2.2, v * scale * 1.6, seed + 40);
  };
  const double light = 0.56 - (relief(u + 0.006) - relief(u - 0.006)) * 2.6;
  const double patches = clouds(u * 16, v * 16, seed + 3);
  const double snow = step(0.07, -0.06, v - crest - 0.24 + patches * 0.34 - light * 0.12);
  const Rgb rock = gradient({0x2B3040, 0x5A5660, 0x94887F, 0xC0B19C}, light * 0.9 + patches * 0.1);
  return mix(rock, gradient({0x6F8FC0, 0xB5CBE8, 0xF3F7FC, 0xFFFFFF}, light * 1.15), snow);
}

/// A row of firs with the meadow before them; nothing above the trees.
Pixel firs(double u, double v, double foot, double size, int seed) {
  const int tree = whole(u / size);
  const double down = (v - foot) / (size * (2.1 + 1.6 * hash(tree, 2, seed))) + 1;
  const double tier = down * 5 - std::floor(down * 5);
  const double half = (0.05 + 0.4 * down) * (0.7 + 0.3 * tier);
  const double x = u / size - tree - 0.4 - 0.2 * hash(tree, 1, seed);
  if (down > 1)
    return mix(rgb(0x2C641E), rgb(0x94B848), v - 0.8 + clouds(u * 40, v * 90, seed) * 0.6);
  if (down < 0 || std::abs(x) > half) return {};
  return shade(kGreen, step(half, -1.4 * half, x) * (0.55 - 0.3 * tier));
}

Pixel summit(double u, double v) {
  const double hill = 0.05 * clouds(u * 2.3, 0.5, 71);
  if (const Pixel p = firs(u, v, 0.95 - hill, 0.036, 71)) return p;
  if (const Pixel p = firs(u + 0.01, v, 0.86 - hill, 0.024, 73)) return mix(*p, rgb(0x5A8F8A), 0.2);
  if (const Pixel p = firs(u, v, 0.79 - hill, 0.016, 75)) return mix(*p, rgb(0x5A8F8A), 0.4);
  if (const Pixel p = mountains(u, v, 0.70, 1.55, 83)) return p;
  if (const Pixel p = mountains(u, v, 0.62, 2.3, 87)) return mix(*p, rgb(0xB5D2EC), 0.34);
  const Rgb sky = gradient({0x2B6CC4, 0x5FA3E6, 0xA9D5F5, 0xE3F1F8}, v * 1.7);
  const double high = clouds(u * 3.1 + 2, v * 6.5, 91);
  const double under = step(-0.03, 0.11, high - clouds(u * 3.1 + 2, v * 6.5 + 0.2, 91));
  return mix(sky, mix(rgb(0xFFFFFF), rgb(0xA9B9D0), under * 0.8), step(0.52, 0.72, high));
}

/// How dense a planet's ring is at x, y; 0 to 1.
double ring(double x, double y) {
  const double radius = length(x, y * 3.6);
  const double gap = step(0.02, 0.05, std::abs(radius - 1.86));
  const double grooves = 0.2 + 0.9 * clouds(radius * 18, 0.5, 77);
  return gap * grooves * step(1.3, 1.42, radius) * step(2.25, 2.15, radius);
}

Rgb deepSky(double u, double v) {
  const double warpX = clouds(u * 2, v * 2, 201) * 2.4;
  const double warpY = clouds(u * 2 + 7, v * 2, 203) * 2.4;
  const double gas = step(0.3, 0.8, clouds(u * 2.2 + warpX, v * 2.2 + warpY, 207));
  const double dust = step(0.5, 1.1, ridges(u * 1.6 + warpY * 0.6, v * 1.6 + warpX * 0.4, 211));
  const Rgb glow = gradient({0x05040F, 0x140E36, 0x54237A, 0xD8508C, 0xFFB08A, 0xFFF0D0}, gas);
  const double star = step(0.9975, 1, hash(whole(u * 600), whole(v * 600), 5));
  return mix(glow + rgb(0x1C6AA0) * (dust * (1 - gas) * 0.75), rgb(0xFFFFFF), star);
}

Pixel nebula(double u, double v) {
  // The planet's axis is tilted; its radius is 1.
  const double x = (u - 0.6) * 4 - (v - 0.55) * 1.45;
  const double y = (v - 0.55) * 4 + (u - 0.6) * 1.45;
  const double z = std::sqrt(std::max(0.0, 1 - x * x - y * y));
  Rgb colour = deepSky(u, v);
  if (z > 0) {
    const double light = 0.03 + 1.1 * std::max(0.0, -0.71 * x - 0.15 * y + 0.68 * z);
    const double bands = clouds(y * 5 + clouds(x * 3, y * 3, 3) * 0.7, 0.3, 5);
    const Rgb ground = gradient({0x7A3F2A, 0xD89A60, 0xF2D8A0, 0xB86A44, 0xF6E6C4}, bands);
    colour = ground * (light * (1 - 0.45 * ring(x + 0.2, y + 0.17)));
  }
  // The planet hides the far half of its ring.
  return z > 0 && y < 0 ? colour : mix(colour, rgb(0xE8CFA4), 0.9 * ring(x, y));
}

/// A valley of the Mandelbrot set.
Pixel seahorse(double u, double v) {
  const double startX = (u - 0.667) * 0.0056 - 0.74529;
  const double startY = (v - 0.5) * 0.0056 + 0.11307;
  double x = 0, y = 0;
  int count = 0;
  while (count < 700 && length(x, y) < 256) {
    const double next = x * x - y * y + startX;
    y = 2 * x * y + startY;
    x = next;
    ++count;
  }
  if (count == 700) return rgb(0x04050F);
  // Count the last step in proportion; whole steps would show as bands.
  const double steps = count + 16 / std::sqrt(length(x, y));
  const double t = 0.5 + 0.5 * wave(steps / 110 - 0.25);
  return gradient({0x3A1A10, 0xE07A1E, 0xFFD25A, 0xF4FBE4, 0x5CC0E8, 0x1B4FA8, 0x0A0F3C}, t);
}

/// Negative below the sea.
double altitude(double u, double v) {
  return ridges(u * 2 + 3, v * 2.6, 301) * 0.55 + clouds(u * 4 + 3, v * 5, 307) * 0.75 - 0.12 -
         1.75 * length(u * 0.78 - 0.525, v * 1.15 - 0.575);
}

/// An island from above, lit from the upper left, in a frame.
Pixel islandMap(double u, double v) {
  if (std::min({u, v, 1.34 - u, 1 - v}) < 1 / 30.0) {
    return rgb(whole(u / 0.067) % 2 == whole(v * 15) % 2 ? 0x5A3A1C : 0xE8D6A8);
  }
  const double height = altitude(u, v);
  if (height < 0) return gradient({0xA8E0DC, 0x4FA8BC, 0x2F80AC, 0x1F5A92, 0x17407A}, height * -3);
  const double slope = altitude(u + 0.005, v + 0.005) - altitude(u - 0.005, v - 0.005);
  const Rgb land = gradient({0xE8D8A0, 0x5F9A44, 0x3A7A38, 0x8A7A64, 0xF4F4F8}, height * 2);
  return land * std::clamp(1 + slope * 9, 0.45, 1.45);
}

Pixel crest(double u, double v) {
  const double x = (u - 0.413) / 0.39;
  const double y = v * 1.06 - 0.03;
  // Straight sides above, two arcs that meet in a point below.
  const double low = std::clamp((y - 0.42) / 0.58, 0.0, 1.0);
  const double inside = std::min({std::sqrt(1 - low * low) - std::abs(x), y * 1.8, (1 - y) * 2.5});
  if (inside < 0) return {};
  if (inside < 0.13) return shade(kGold, 0.9 - std::abs(inside - 0.065) * 9 - x * 0.1);
  // A star of two crossed ones.
  const auto root = [](double side) { return std::sqrt(std::abs(side)); };
  const double down = (y - 0.44) * 1.9;
  const double ray = std::min(root(x) + root(down), 0.95 * (root(x + down) + root(x - down)));
  if (ray < 0.8) return shade(kGold, 0.95 - ray * 0.5);
  return shade((x < 0) == (y < 0.46) ? kBlue : kRed, 0.5 - 0.1 * (x + y * 0.8));
}

Pixel coin(double x, double y, int frame) {
  const double turn = 0.12 + 0.88 * std::abs(wave(frame / 16.0));
  const double radius = length(x / turn, y);
  if (radius > 12) return {};
  const bool raised = radius > 9.4 || length(x / turn, y * 0.5) < 2;
  return shade(kGold, (raised ? 0.5 : 0.75) - (x + y) / 40);
}

Pixel gem(double x, double y, int frame) {
  const double side = std::abs(x);
  const double half = y < -3 ? 14 + y * 0.66 : 9.4 - y * 0.86;
  if (y < -9 || side > half) return {};
  const double facet = side < half / 2 ? 0.3 : x < 0 ? 0.15 : -0.1;
  return shade(kRed + frame, (y < -3 ? 0.7 : 0.3) + facet);
}

Pixel potion(double x, double y, int frame) {
  const double side = std::abs(x);
  const double radius = length(x, y - 4);
  if (length(x + 4, y - 2) < 2) return rgb(0xFFFFFF);
  if (radius < 9.2 && y > wave(x / 18 + frame / 8.0))
    return shade(kRose - frame, 0.65 - (x + y) / 30);
  if (radius < 10.5 || (y > -11 && y < 0 && side < 4)) return shade(kSlate, 0.85 - x / 20);
  return y > -15 && y < 0 && side < 2.6 ? Pixel(shade(kWood, 0.6 - x / 6)) : Pixel();
}

Pixel slime(double x, double y, int frame) {
  const double jump = 0.5 + 0.5 * wave(frame / 8.0);
  const double up = (13 - 3 * jump - y) / (13 + 7 * jump);
  const double half = (13 - 3 * jump) * std::sqrt(std::max(0.0, 1 - up * up));
  if (up < 0 || std::abs(x) > half) return {};
  const double eye = length(std::abs(x) - 4, (up - 0.52) * 14);
  if (eye < 2.8) return rgb(eye < 1.5 ? 0x06180A : 0xF8FFF0);
  const double light = 0.15 + (half - std::abs(x)) / 24 + up * 0.45 - x / 60;
  return gradient({0x0C3A18, 0x2A8A38, 0x62CC52, 0xC0F088}, light);
}

/// Eight columns of coins, gems, potions and slimes in motion.
Pixel sprites(double u, double v) {
  constexpr Pixel (*kRows[])(double, double, int) = {coin, gem, potion, slime};
  const int frame = whole(u * 4);
  const int row = whole(v * 4);
  return kRows[row]((u * 4 - frame) * 32 - 16, (v * 4 - row) * 32 - 16, frame);
}

double stoneHeight(double u, double v) {
  const double across = u * 5 + whole(v * 8) * 0.37;
  const double x = 0.5 - std::abs(across - std::floor(across) - 0.5);
  const double y = 0.5 - std::abs(v * 8 - std::floor(v * 8) - 0.5);
  return step(0.02, 0.24, std::min(x * 1.5, y)) + 0.35 * clouds(u * 28, v * 28, 405);
}

Pixel stones(double u, double v) {
  const int course = whole(v * 8);
  const int column = whole(u * 5 + course * 0.37) % 5;
  const Rgb face = gradient({0x6A6458, 0x8A8070, 0x74808A, 0x98866C}, hash(column, course, 409));
  const double slope = stoneHeight(u + 0.004, v + 0.004) - stoneHeight(u - 0.004, v - 0.004);
  const double light = (1 + slope * 0.9) * (0.85 + 0.3 * clouds(u * 128, v * 128, 413));
  return mix(rgb(0x2E2A26), face, std::min(1.0, stoneHeight(u, v))) * light;
}

Pixel plasma(double u, double v) {
  const double field = wave(u * 1.1 + 0.3 * wave(v * 0.9)) + wave(v * 1.3 + 0.1) +
                       wave((u + v) * 0.8) + wave(length(u - 0.9, v - 0.35) * 1.9);
  const double t = field / 5 + 0.5 - std::floor(field / 5 + 0.5);
  const Rgb colour = gradient({0x1A0A4A, 0xB0208A, 0xFF6A4A, 0xFFE86A, 0x2AA0A0, 0x1A0A4A}, t);
  return colour * (0.85 + 0.25 * wave(field * 1.5));
}

}  // namespace

const std::array<Sample, 9> kSamples = {{
    {"HARBOUR.BMP", "dusk", harbour, 1280, 800, 25},
    {"Summit.bmp", "day", summit, 800, 600, 31, "ks"},
    {"Nebula.bmp", "space", nebula, 800, 600, 40},
    {"islemap.bmp", "day", islandMap, 402, 300, 44, "KS", 2},
    {"Seahorse.bmp", "space", seahorse, 640, 480, 52},
    {"ITEMS01.BMP", "items", sprites, 256, 128, 60, "ks"},
    {"crest.bmp", "items", crest, 190, 230, 64, "KS", 2},
    {"stonewal.bmp", "day", stones, 256, 256, 70, "KS", 0, 4096},
    {"Plasma.bmp", "space", plasma, 320, 240, 77},
}};

}  // namespace samples
