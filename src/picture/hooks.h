#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "formats/byte_stream.h"
#include "platform/forms/msg_box.h"

namespace mill {

/// What the shared routines ask of the windows above them. Each hook does nothing until a window
/// registers itself when it is loaded; the main window resets all of them when it is unloaded.
struct Hooks {
  /// The directory whose pictures the main window lists; empty before there is a window.
  std::function<std::string()> sourceDirectory = [] { return std::string(); };

  /// Whether the convert dialog is the active window. Only then is progress reported.
  std::function<bool()> isConverting = [] { return false; };
  /// `total` bytes are 100 percent of what is reported from now on.
  std::function<void(std::int32_t total)> startProgress = [](std::int32_t) {};
  /// Reports `num` bytes read, `times` times.
  std::function<void(std::int16_t num, std::int32_t times)> incOpenProgress = [](int, int) {};
  /// Reports `num` bytes written, `times` times.
  std::function<void(std::int16_t num, std::int32_t times)> incProgress = [](int, int) {};

  /// Shows a message. A run adds which picture it is about.
  std::function<forms::Answer(const forms::Message&)> tell = forms::MsgBox;
  /// Which picture of how many a run has come to, with its path; empty outside of a run.
  std::function<std::string()> whichPicture = [] { return std::string(); };

  /// Gives the preview window the size of a picture of `width` × `height` pixels.
  std::function<void(std::int32_t width, std::int32_t height)> fitPreview = [](int, int) {};
  /// Shows the current palette as swatches.
  std::function<void()> updateSwatches = [] {};
  /// Shows the path of the current palette.
  std::function<void()> showPaletteFile = [] {};
  /// Lets the user choose one of several palette files and stores the choice in
  /// `CurrentPaletteFile`.
  std::function<void(const std::vector<std::string>& paths)> choosePalette = [](const auto&) {};
};

inline Hooks hooks;

/// Passes the progress of one read or write on to its hook, if a conversion is running when it
/// starts.
class Reports final : public Progress {
 public:
  explicit Reports(const std::function<void(std::int16_t, std::int32_t)>& inc) : inc_(inc) {}

  void start(std::int32_t total) override {
    if (isHeard_) hooks.startProgress(total);
  }
  void report(std::int16_t num, std::int32_t times) override {
    if (isHeard_) inc_(num, times);
  }

 private:
  const std::function<void(std::int16_t, std::int32_t)>& inc_;
  const bool isHeard_ = hooks.isConverting();
};

}  // namespace mill
