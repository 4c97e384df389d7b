#include "colours.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace samples {

namespace {

constexpr std::size_t kShades = 16;

struct Ramp {
  std::uint32_t dark, middle, light;
};

constexpr Ramp kRamps[] = {
    {0x000000, 0x7A7A7A, 0xFFFFFF},  // grey
    {0x1C0F08, 0x7B4A25, 0xE3BE8F},  // wood
    {0x1F0406, 0xB01E22, 0xFF9C8C},  // red
    {0x2A0E02, 0xD8641A, 0xFFC98A},  // orange
    {0x2B1C02, 0xD9A21C, 0xFFF2A8},  // gold
    {0x171A05, 0x7C8A25, 0xDDE69A},  // olive
    {0x05190A, 0x2F8A35, 0xA9EBA0},  // green
    {0x03191A, 0x1C8577, 0x9BECDC},  // teal
    {0x05182B, 0x2E93C9, 0xC4EDFF},  // sky
    {0x060B2B, 0x2A55C0, 0xA6C6FF},  // blue
    {0x0B0729, 0x4A3CA8, 0xBCB4FA},  // indigo
    {0x180625, 0x7E2F9E, 0xE2AEF5},  // violet
    {0x260517, 0xC22F76, 0xFFB3D2},  // rose
    {0x2A120C, 0xC98162, 0xFFE3CF},  // skin
    {0x0C1119, 0x55677F, 0xC9D6E6},  // slate
    {0x16130F, 0x857964, 0xE9E0CB},  // stone
};

Rgb toRgb(mill::ColourEntry colour) {
  return {colour.Red / 255.0, colour.Green / 255.0, colour.Blue / 255.0};
}

mill::ColourEntry toEntry(Rgb colour) {
  const auto part = [](double value) {
    return static_cast<std::uint8_t>(std::floor(std::clamp(value, 0.0, 1.0) * 255 + 0.5));
  };
  return {.Red = part(colour.red), .Green = part(colour.green), .Blue = part(colour.blue)};
}

/// The eye tells greens apart best and blues worst.
double distance(Rgb a, Rgb b) {
  const Rgb d = a + b * -1;
  return 3 * d.red * d.red + 5 * d.green * d.green + 2 * d.blue * d.blue;
}

/// Finds the nearest colour of a palette, and remembers what it found for each of 64 x 64 x 64
/// small cubes of colour.
class Nearest {
 public:
  explicit Nearest(const mill::ColourTable& colours)
      : known_(kCells * kCells * kCells, kTransparent) {
    std::transform(colours.begin(), colours.end(), colours_.begin(), toRgb);
  }

  std::uint8_t find(Rgb colour) {
    const auto cell = [](double part) {
      return static_cast<std::size_t>(std::lround(std::clamp(part, 0.0, 1.0) * (kCells - 1)));
    };
    std::uint8_t& index =
        known_[(cell(colour.red) * kCells + cell(colour.green)) * kCells + cell(colour.blue)];
    if (index == kTransparent) index = search(colour);
    return index;
  }

  Rgb colour(std::uint8_t index) const { return colours_[index]; }

 private:
  std::uint8_t search(Rgb colour) const {
    std::size_t best = kTransparent + 1;
    for (std::size_t i = best; i < colours_.size(); ++i) {
      if (distance(colours_[i], colour) < distance(colours_[best], colour)) best = i;
    }
    return static_cast<std::uint8_t>(best);
  }

  static constexpr std::size_t kCells = 64;

  std::array<Rgb, mill::kColours> colours_;
  std::vector<std::uint8_t> known_;
};

/// `colour`, or what comes nearest to it in a cube around `middle`.
Rgb within(double reach, Rgb middle, Rgb colour) {
  const auto part = [reach](double m, double c) { return std::clamp(c, m - reach, m + reach); };
  return {part(middle.red, colour.red), part(middle.green, colour.green),
          part(middle.blue, colour.blue)};
}

struct Mean {
  Rgb sum;
  double weight = 0;

  void add(Rgb colour, double by) {
    sum = sum + colour * by;
    weight += by;
  }
};

}  // namespace

mill::ColourTable basePalette() {
  mill::ColourTable colours;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const Ramp& ramp = kRamps[i / kShades];
    const double t = static_cast<double>(i % kShades) / (kShades - 1) * 2;
    colours[i] = toEntry(t < 1 ? mix(rgb(ramp.dark), rgb(ramp.middle), t)
                               : mix(rgb(ramp.middle), rgb(ramp.light), t - 1));
  }
  return colours;
}

mill::ColourTable fittedPalette(const mill::ColourTable& start, const Image& image) {
  constexpr int kRounds = 12;
  constexpr double kInertia = 4;
  constexpr double kReach = 0.17;
  constexpr std::size_t kSamples = 60000;
  mill::ColourTable colours = start;
  const std::size_t stride = image.pixels.size() / kSamples + 1;
  for (int round = 0; round < kRounds; ++round) {
    Nearest nearest(colours);
    std::array<Mean, mill::kColours> means;
    const double pull = 0.3 * (kRounds - round) / kRounds;
    for (std::size_t i = 0; i < image.pixels.size(); i += stride) {
      if (!image.pixels[i]) continue;
      const Rgb pixel = *image.pixels[i];
      const std::size_t index = nearest.find(pixel);
      means[index].add(pixel, 1);
      // Entries that nothing is near to are drawn along by their neighbours in the ramp.
      if (index % kShades > 0) means[index - 1].add(pixel, pull * 0.05);
      if (index % kShades < kShades - 1) means[index + 1].add(pixel, pull * 0.05);
    }
    for (std::size_t i = kTransparent + 1; i < colours.size(); ++i) {
      const Rgb old = toRgb(colours[i]);
      const Rgb mean = (means[i].sum + old * kInertia) * (1 / (means[i].weight + kInertia));
      colours[i] = toEntry(within(kReach, toRgb(start[i]), mean));
    }
  }
  return colours;
}

mill::ColourTable tinted(mill::ColourTable colours, Rgb tint, double grey) {
  for (mill::ColourEntry& entry : colours) {
    const Rgb colour = toRgb(entry);
    const double light = 0.3 * colour.red + 0.59 * colour.green + 0.11 * colour.blue;
    entry = toEntry(mix(colour, {light, light, light}, grey) * tint);
  }
  return colours;
}

std::vector<std::uint8_t> quantised(const Image& image, const mill::ColourTable& colours) {
  // A little is lost on the way, which keeps noise out of even areas.
  constexpr double kHandedOn = 0.9 / 16;
  constexpr double kMostMissed = 0.25;
  const auto width = static_cast<std::size_t>(image.width);
  Nearest nearest(colours);
  std::vector<std::uint8_t> indexes;
  indexes.reserve(image.pixels.size());
  // One place more at either end, for what leaves the picture.
  std::vector<Rgb> row(width + 2);
  for (std::size_t at = 0; at < image.pixels.size();) {
    std::vector<Rgb> next(width + 2);
    for (std::size_t x = 1; x <= width; ++x, ++at) {
      if (!image.pixels[at]) {
        indexes.push_back(kTransparent);
        continue;
      }
      const Rgb wanted = *image.pixels[at] + row[x];
      const std::uint8_t index = nearest.find(wanted);
      indexes.push_back(index);
      const Rgb missed = wanted + nearest.colour(index) * -1;
      const Rgb error = within(kMostMissed, {}, missed) * kHandedOn;
      row[x + 1] = row[x + 1] + error * 7;
      next[x - 1] = next[x - 1] + error * 3;
      next[x] = next[x] + error * 5;
      next[x + 1] = next[x + 1] + error;
    }
    row.swap(next);
  }
  return indexes;
}

}  // namespace samples
