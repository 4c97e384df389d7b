#pragma once

#include <QApplication>
#include <QWidget>

#include <filesystem>
#include <string>
#include <vector>

namespace mill::bench {

/// What a measured action costs, in seconds.
struct Cost {
  double processor = 0;
  double elapsed = 0;
};

/// Reads both clocks.
Cost now();

template <class Act>
Cost measure(Act act) {
  const Cost begin = now();
  act();
  const Cost end = now();
  return {end.processor - begin.processor, end.elapsed - begin.elapsed};
}

double median(std::vector<double> values);
double largest(const std::vector<double>& values);

/// Ends the program with a message.
[[noreturn]] void fail(const std::string& what);
void require(bool holds, const std::string& what);

/// Processes all pending events.
void settle();

/// Makes a folder empty, or creates it.
void empty(const std::filesystem::path& folder);

QWidget* window(const char* form);
/// Waits until a window is on the screen; before that, nothing is painted.
void waitUntilShown(const char* form);

template <class W>
W* control(const char* form, const char* name) {
  W* found = window(form)->findChild<W*>(QLatin1String(name));
  require(found, std::string(form) + " has a " + name);
  return found;
}

/// The main window's settings.
struct Folders {
  std::filesystem::path source;
  std::filesystem::path target;
  std::filesystem::path palettes;  ///< no search if empty
};

/// Loads and shows the main window on these folders; `unload` ends it.
void showMainWindow(const Folders& folders);
void unloadMainWindow();

std::vector<std::string> namesOfPictures(int count);
/// Writes `count` pictures of palette index 1 and returns their names.
std::vector<std::string> makePictures(const std::filesystem::path& folder, int count, int width,
                                      int height);

/// Makes `count` sub-directories with one palette each; the last has index 1.
void makePalettes(const std::filesystem::path& folder, int directories);

}  // namespace mill::bench
