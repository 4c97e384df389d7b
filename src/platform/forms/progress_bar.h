#pragma once

#include <chrono>
#include <memory>

#include "platform/forms/control.h"

namespace forms {

/// A bar from 0 to 100. `Value` is exact after every store; the screen follows at most about 30
/// times a second, painted at once because a long run doesn't come back to the event loop, and a
/// last time when it does.
class ProgressBar : public Control {
 public:
  ProgressBar(Container& parent, const char* name, const Rect& place);
  ~ProgressBar();

  int Value() const { return value_; }
  /// Clamped to 0…100.
  void setValue(int value) {
    value_ = value < 0 ? 0 : value > 100 ? 100 : value;
    if (value_ != painted_) follow();
  }

  /// Paints the value now, at the end of a run.
  void Refresh();

  /// The time that all bars together have spent in painting during runs.
  static std::chrono::nanoseconds paintingTime();

 private:
  void follow();
  void paint();

  int value_ = 0;
  int painted_ = 0;
  struct Pending;
  std::unique_ptr<Pending> pending_;
};

}  // namespace forms
