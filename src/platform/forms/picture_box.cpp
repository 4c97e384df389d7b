#include "platform/forms/picture_box.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

#include "platform/forms/bitmap.h"

namespace forms {

namespace {

class Canvas final : public QWidget {
 public:
  using QWidget::QWidget;

  void showImage(const QImage& image, const QSize& size) {
    image_ = image;
    size_ = size.boundedTo(image.size());
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    // Only what is exposed is copied, since painting converts all that it is given.
    const QRect exposed = event->rect().intersected(QRect({}, size_));
    if (!exposed.isEmpty()) QPainter(this).drawImage(exposed, image_.copy(exposed));
  }

 private:
  QImage image_;
  QSize size_;
};

}  // namespace

PictureBox::PictureBox(Container& parent, const char* name, const Rect& place)
    : Control(parent, name, new Canvas(parent.host()), place) {}

int PictureBox::ScaleWidth() const {
  return as<Canvas>()->width() * kTwipsPerPixel;
}

int PictureBox::ScaleHeight() const {
  return as<Canvas>()->height() * kTwipsPerPixel;
}

void PictureBox::setSize(const Size& size) {
  as<Canvas>()->resize(pixels(size.Width), pixels(size.Height));
}

void PictureBox::Cls() {
  as<Canvas>()->showImage({}, {});
}

void PictureBox::copy(const Bitmap& bitmap, int width, int height) {
  as<Canvas>()->showImage(bitmap.image(), {width, height});
}

}  // namespace forms
