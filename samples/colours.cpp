#include "colours.h"

#include <algorithm>

namespace samples {

namespace {

// Grey, wood, red, orange, gold, olive, green, teal, sky, blue, indigo, violet, rose, skin, slate
// and stone.
constexpr std::uint32_t kRamps[][3] = {
    {0x000000, 0x7A7A7A, 0xFFFFFF}, {0x1C0F08, 0x7B4A25, 0xE3BE8F}, {0x1F0406, 0xB01E22, 0xFF9C8C},
    {0x2A0E02, 0xD8641A, 0xFFC98A}, {0x2B1C02, 0xD9A21C, 0xFFF2A8}, {0x171A05, 0x7C8A25, 0xDDE69A},
    {0x05190A, 0x2F8A35, 0xA9EBA0}, {0x03191A, 0x1C8577, 0x9BECDC}, {0x05182B, 0x2E93C9, 0xC4EDFF},
    {0x060B2B, 0x2A55C0, 0xA6C6FF}, {0x0B0729, 0x4A3CA8, 0xBCB4FA}, {0x180625, 0x7E2F9E, 0xE2AEF5},
    {0x260517, 0xC22F76, 0xFFB3D2}, {0x2A120C, 0xC98162, 0xFFE3CF}, {0x0C1119, 0x55677F, 0xC9D6E6},
    {0x16130F, 0x857964, 0xE9E0CB}};

/// The eye tells greens apart best and blues worst.
double distance(Rgb a, Rgb b) {
  const Rgb d = a + b * -1;
  return 3 * d.red * d.red + 5 * d.green * d.green + 2 * d.blue * d.blue;
}

/// The index of the nearest colour.
std::size_t nearest(const Palette& colours, Rgb wanted) {
  std::size_t best = kTransparent + 1;
  double least = distance(colours[best], wanted);
  for (std::size_t i = best + 1; i < colours.size(); ++i) {
    const double far = distance(colours[i], wanted);
    if (far >= least) continue;
    best = i;
    least = far;
  }
  return best;
}

}  // namespace

Palette basePalette() {
  Palette colours;
  for (int i = 0; Rgb & colour : colours) {
    colour = shade(i / 16, i % 16 / 15.0);
    ++i;
  }
  return colours;
}

Rgb shade(int hue, double t) {
  const auto& [dark, middle, light] = kRamps[hue];
  return gradient({dark, middle, light}, t);
}

Palette fittedPalette(const std::vector<Pixel>& pixels) {
  constexpr int kRounds = 40000;
  Palette colours = basePalette();
  for (int round = 0; round < kRounds; ++round) {
    // A large prime stride samples the whole picture.
    const Pixel pixel = pixels[static_cast<std::size_t>(round) * 7919 % pixels.size()];
    if (!pixel) {
      colours[kTransparent] = rgb(0xFF00FF);
      continue;
    }
    const auto draw = [&](std::size_t i, double by) { colours[i] = mix(colours[i], *pixel, by); };
    const double pull = 0.15 * (kRounds - round) / kRounds;
    const std::size_t index = nearest(colours, *pixel);
    draw(index, pull);
    // Move its neighbours a little too, so that many entries are used.
    if (index % 16 < 15) draw(index + 1, pull * 0.05);
    if (index % 16 > 1) draw(index - 1, pull * 0.05);
  }
  return colours;
}

std::vector<std::uint8_t> quantised(const std::vector<Pixel>& pixels, int width,
                                    const Palette& colours) {
  const auto below = static_cast<std::size_t>(width);
  std::vector<std::uint8_t> indexes(pixels.size(), kTransparent);
  // Error diffusion. At the end of a row the error wraps to the other side, where it does no harm.
  std::vector<Rgb> errors(pixels.size() + below);
  for (std::size_t at = 0; at < pixels.size(); ++at) {
    if (!pixels[at]) continue;
    const Rgb wanted = *pixels[at] + errors[at];
    const std::size_t index = nearest(colours, wanted);
    indexes[at] = static_cast<std::uint8_t>(index);
    // Losing a little of the error keeps noise out of even areas.
    const Rgb missed = (wanted + colours[index] * -1) * 0.225;
    errors[at + 1] = errors[at + 1] + missed * 2;
    errors[at + below - 1] = errors[at + below - 1] + missed;
    errors[at + below] = errors[at + below] + missed;
  }
  return indexes;
}

}  // namespace samples
