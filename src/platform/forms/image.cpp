#include "platform/forms/image.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "platform/system/text.h"

namespace forms {

namespace {

class ImageWidget final : public QWidget {
 public:
  ImageWidget(QWidget* parent, const QString& file) : QWidget(parent), picture_(file) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), picture_);
  }

  /// A click on a picture isn't one on what it stands in.
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }

 private:
  const QPixmap picture_;
};

}  // namespace

Image::Image(Container& parent, const char* name, const Rect& place, const char* picture)
    : Control(parent, name, new ImageWidget(parent.host(), shown(std::string(":/") + picture)),
              place) {}

}  // namespace forms
