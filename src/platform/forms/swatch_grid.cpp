#include "platform/forms/swatch_grid.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <array>

namespace forms {

namespace {

constexpr int kColumns = 16;

/// Paints all swatches. Each is also a widget of its own, with a name and a place for whoever looks
/// for it, but without any painting.
class Grid final : public QWidget {
 public:
  Grid(QWidget* parent, const char* name, int pitch) : QWidget(parent), pitch_(pitch) {
    colours_.fill(palette().color(QPalette::Window).rgb());
    for (int i = 0; i < SwatchGrid::kSwatches; ++i) {
      auto* swatch = new QWidget(this);
      swatch->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i));
      swatch->setGeometry(placeOf(i));
    }
  }

  void setColour(int index, QRgb colour) {
    QRgb& mine = colours_[static_cast<std::size_t>(index)];
    if (mine == colour) return;
    mine = colour;
    if (!std::exchange(stale_, true)) update();
  }

  std::function<void(int)> clicked;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) clicked(indexAt(event->position().toPoint()));
  }

  void paintEvent(QPaintEvent*) override {
    stale_ = false;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    for (int i = 0; i < SwatchGrid::kSwatches; ++i) {
      painter.setBrush(QColor(colours_[static_cast<std::size_t>(i)]));
      painter.drawRect(placeOf(i).adjusted(0, 0, -1, -1));
    }
  }

 private:
  /// The line between two swatches belongs to the second, which lies over the first.
  int indexAt(const QPoint& point) const {
    const auto step = [this](int at) { return std::clamp(at / pitch_, 0, kColumns - 1); };
    return step(point.y()) * kColumns + step(point.x());
  }

  QRect placeOf(int index) const {
    return {index % kColumns * pitch_, index / kColumns * pitch_, pitch_ + 1, pitch_ + 1};
  }

  const int pitch_;
  bool stale_ = false;
  std::array<QRgb, SwatchGrid::kSwatches> colours_{};
};

}  // namespace

SwatchGrid::SwatchGrid(Container& parent, const char* name, int left, int top, int pitch,
                       IndexHandler click)
    : Control(parent, name, new Grid(parent.host(), name, pixels(pitch)),
              {left, top, kColumns * pitch + kTwipsPerPixel, kColumns * pitch + kTwipsPerPixel}) {
  as<Grid>()->clicked = [this, click = std::move(click)](int index) { click(form_, index); };
}

void SwatchGrid::setBackColor(int index, std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  as<Grid>()->setColour(index, qRgb(red, green, blue));
}

}  // namespace forms
