#include "platform/forms/elided_label.h"

#include <QPainter>

#include "platform/forms/plain_text.h"
#include "platform/system/text.h"

namespace forms {

namespace {

constexpr int kLayout = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;

/// The text without its middle, keeping `length` characters in all.
QString withoutMiddle(const QString& text, qsizetype length) {
  return text.left(length - length / 2) + QChar(0x2026) + text.right(length / 2);
}

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent, int frameStyle) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setFrameStyle(frameStyle);
}

void ElidedLabel::showText(const std::string& text) {
  setText(sys::shown(text));
  const bool isWhole = frameWidth() == 0 && fits(this->text());
  setToolTip(isWhole ? QString() : plainToolTip(this->text()));
  setAccessibleDescription(this->text());
}

QRect ElidedLabel::room() const {
  const int gap = frameWidth() > 0 ? 2 : 0;
  return contentsRect().adjusted(gap, 0, -gap, 0);
}

bool ElidedLabel::fits(const QString& text) const {
  return fontMetrics().boundingRect(room(), kLayout, text).height() <= room().height();
}

/// The text, or as much of its beginning and end as fits.
QString ElidedLabel::fitting() const {
  if (fits(text())) return text();
  qsizetype most = 0;
  for (qsizetype beyond = text().size(); beyond - most > 1;) {
    const qsizetype length = (most + beyond) / 2;
    (fits(withoutMiddle(text(), length)) ? most : beyond) = length;
  }
  return withoutMiddle(text(), most);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(room(), kLayout, fitting());
}

}  // namespace forms
