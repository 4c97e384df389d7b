#pragma once

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace mill {

/// An area that shows an image at its top left corner.
class PictureBox final : public QWidget {
 public:
  using QWidget::QWidget;

  /// Shows the top left `part` of `image`; a null image clears the box.
  void showImage(const QImage& image, const QSize& part) {
    image_ = image;
    part_ = part.boundedTo(image.size());
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    // Painting converts the whole image it is given, so pass only the exposed part.
    const QRect exposed = event->rect().intersected(QRect({}, part_));
    if (!exposed.isEmpty()) QPainter(this).drawImage(exposed, image_.copy(exposed));
  }

 private:
  QImage image_;
  QSize part_;
};

}  // namespace mill
