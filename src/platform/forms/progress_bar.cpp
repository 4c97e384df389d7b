#include "platform/forms/progress_bar.h"

#include <ctime>
#include <utility>

namespace forms {

namespace {

constexpr std::int64_t kPaintGap = 33'000'000;  // nanoseconds, for 30 repaints a second

/// A clock that takes nanoseconds to read and ticks every few milliseconds.
std::int64_t coarseNow() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

}  // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
  setRange(0, 100);
  QProgressBar::setValue(0);
}

QString ProgressBar::text() const {
  constexpr int kMargins = 8;
  return fontMetrics().elidedText(subject(), Qt::ElideMiddle, width() - kMargins);
}

void ProgressBar::follow() {
  if (value_ != value() && coarseNow() - lastPaint_ >= kPaintGap) {
    paintNow();
  } else if (!std::exchange(isPending_, true)) {
    const auto paint = [this] {
      isPending_ = false;
      paintNow();
    };
    QMetaObject::invokeMethod(this, paint, Qt::QueuedConnection);
  }
}

void ProgressBar::paintNow() {
  QProgressBar::setValue(value_);  // repaints at once if the bar is visible
  setAccessibleDescription(subject());
  update();  // the subject may be another one at the same value
  lastPaint_ = coarseNow();
}

}  // namespace forms
