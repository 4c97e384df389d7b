#pragma once

#include "image.h"

namespace samples {

/// A bay at sunset: clouds, islands, a lighthouse, boats and their reflections.
Image harbour(int width, int height);
/// Snowy mountains over a forest by day.
Image summit(int width, int height);
/// A ringed planet before a nebula.
Image nebula(int width, int height);
/// A valley of the Mandelbrot set.
Image fractal(int width, int height);
/// An island from above, lit from the upper left, in a frame.
Image islandMap(int width, int height);
/// A coat of arms, transparent around it.
Image crest(int width, int height);
/// Eight columns of 32 x 32: coins, gems, potions and slimes in motion, transparent around them.
Image sprites();
/// A wall of stones that can be put side by side.
Image stones(int width, int height);
/// Slow waves of every colour.
Image plasma(int width, int height);

}  // namespace samples
