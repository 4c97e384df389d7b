#include "platform/forms/window_font.h"

#include <QAbstractButton>
#include <QLabel>

#include "platform/forms/elided_label.h"

namespace forms {

namespace {

constexpr int kSmallest = 7;  // pixels

bool fits(const QLabel& label) {
  if (label.hasHeightForWidth()) return label.heightForWidth(label.width()) <= label.height();
  return label.fontMetrics().size(Qt::TextShowMnemonic, label.text()).width() <= label.width();
}

bool fits(const QAbstractButton& button) {
  constexpr int kIndicator = 17, kFrame = 4;
  const int aside = button.isCheckable() ? kIndicator : kFrame;
  const int letters = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
  return letters + aside <= button.width();
}

template <class Control>
void fit(Control& control) {
  QFont font = control.font();
  while (!fits(control) && font.pixelSize() > kSmallest) {
    font.setPixelSize(font.pixelSize() - 1);
    control.setFont(font);
  }
}

}  // namespace

QFont windowFont() {
  QFont font;
  font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"),
                    QStringLiteral("Nimbus Sans"), QStringLiteral("Arial"),
                    QStringLiteral("Helvetica")});
  font.setPixelSize(11);
  font.setWeight(QFont::Normal);
  font.setStyle(QFont::StyleNormal);
  return font;
}

void fitCaptions(const QWidget& window) {
  for (auto* label : window.findChildren<QLabel*>()) {
    if (label && !dynamic_cast<ElidedLabel*>(label)) fit(*label);
  }
  for (auto* button : window.findChildren<QAbstractButton*>()) fit(*button);
}

}  // namespace forms
