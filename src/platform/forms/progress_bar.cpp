#include "platform/forms/progress_bar.h"

#include <QProgressBar>
#include <QTimer>

#include <ctime>

namespace forms {

namespace {

constexpr std::int64_t kPaintGap = 33'000'000;  // nanoseconds, 30 paintings a second

std::int64_t totalPainting = 0;

/// A clock that is read in a few nanoseconds and ticks every few milliseconds.
std::int64_t coarseNow() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

}  // namespace

struct ProgressBar::Pending {
  std::int64_t lastPaint = 0;
  QTimer timer;
};

ProgressBar::ProgressBar(Container& parent, const char* name, const Rect& place)
    : Control(parent, name, new QProgressBar(parent.host()), place),
      pending_(std::make_unique<Pending>()) {
  borrowLabel(parent);
  auto* bar = as<QProgressBar>();
  bar->setRange(0, 100);
  bar->setValue(0);
  bar->setTextVisible(false);
  pending_->timer.setSingleShot(true);
  QObject::connect(&pending_->timer, &QTimer::timeout, [this] { paint(); });
}

ProgressBar::~ProgressBar() = default;

void ProgressBar::follow() {
  if (coarseNow() - pending_->lastPaint >= kPaintGap) {
    paint();
  } else if (!pending_->timer.isActive()) {
    pending_->timer.start(0);
  }
}

void ProgressBar::Refresh() {
  if (value_ != painted_) paint();
}

void ProgressBar::paint() {
  const auto begin = std::chrono::steady_clock::now();
  painted_ = value_;
  as<QProgressBar>()->setValue(value_);  // paints at once where the bar is visible
  pending_->lastPaint = coarseNow();
  totalPainting += (std::chrono::steady_clock::now() - begin).count();
}

std::chrono::nanoseconds ProgressBar::paintingTime() {
  return std::chrono::nanoseconds(totalPainting);
}

}  // namespace forms
