#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/form.h"

namespace forms {

/// The program itself.
class Application {
 public:
  static constexpr const char* Title = "RasterMill";
  /// The directory of the program's own file, in drive form.
  std::string Path() const;
  int Major() const;
  int Minor() const;
  int Revision() const;

  /// Creates the start-up window, shows it, and returns when it has been unloaded.
  template <class F>
  int run(Global<F>& startUp) {
    return run([&]() -> Form& { return *startUp; });
  }

 private:
  int run(const std::function<Form&()>& load);
};

inline Application App;

/// Readies the window system; lives as long as the program uses windows.
class Desktop {
 public:
  explicit Desktop(char* programName);
  ~Desktop();

 private:
  struct Private;
  std::unique_ptr<Private> private_;
};

/// The screen, as far as windows ask it.
class ScreenInfo {
 public:
  /// The window of this program that was active last; null before the first one. While a modal
  /// window is open, that window.
  Form* ActiveForm() const { return active_; }
  int TwipsPerPixelX() const { return kTwipsPerPixel; }
  int TwipsPerPixelY() const { return kTwipsPerPixel; }

 private:
  friend class Form;
  void show(Form& form);
  void activate(Form& form);
  void forget(Form& form);

  Form* active_ = nullptr;
  std::vector<Form*> modal_;
};

inline ScreenInfo Screen;

/// Drops what was clicked and typed while the program was busy with a modal window open, which
/// keeps it from the others.
void dropInput();

/// Shows the hourglass on the active form as long as it lives.
class Hourglass {
 public:
  Hourglass() { set(vbHourglass); }
  ~Hourglass() { set(vbDefault); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  static void set(Pointer pointer) {
    if (Form* form = Screen.ActiveForm()) form->setMousePointer(pointer);
  }
};

}  // namespace forms
