#pragma once

#include <QProgressBar>

#include <algorithm>
#include <cstdint>
#include <functional>

namespace forms {

/// A bar from 0 to 100. `Value` is always exact; the screen is updated at most about 30 times a
/// second. A long run never returns to the event loop, so the bar repaints at once, and once more
/// when the loop resumes, for instance while a message is open.
class ProgressBar final : public QProgressBar {
 public:
  explicit ProgressBar(QWidget* parent);

  /// What the bar is about, asked for only when it is painted.
  std::function<QString()> subject = [] { return QString(); };
  QString text() const override;

  int Value() const { return value_; }
  /// Clamped to 0…100.
  void setValue(int percent) {
    pass(percent);
    follow();
  }
  /// Sets one of many values in a row; call `follow` after the last of them.
  void pass(int percent) { value_ = std::clamp(percent, 0, 100); }
  /// Brings the value to the screen, now or a little later.
  void follow();
  /// Shows the value now, at the end of a run.
  void paintNow();

 private:
  int value_ = 0;
  std::int64_t lastPaint_ = 0;  ///< nanoseconds
  bool isPending_ = false;      ///< a repaint has been asked of the event loop
};

}  // namespace forms
