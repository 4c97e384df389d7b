#pragma once

#include <QBasicTimer>
#include <QProgressBar>

#include <algorithm>
#include <cstdint>

namespace forms {

/// A bar from 0 to 100. `Value` is exact after every store; the screen follows at most about 30
/// times a second, painted at once because a long run doesn't come back to the event loop, and a
/// last time when it does.
class ProgressBar final : public QProgressBar {
 public:
  explicit ProgressBar(QWidget* parent);

  int Value() const { return value_; }
  /// Clamped to 0…100.
  void setValue(int percent) {
    value_ = std::clamp(percent, 0, 100);
    if (value_ != value()) follow();
  }
  /// Shows the value now, at the end of a run.
  void paintNow();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void follow();

  int value_ = 0;
  std::int64_t lastPaint_ = 0;  ///< nanoseconds
  QBasicTimer timer_;
};

}  // namespace forms
