#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QWheelEvent>

namespace forms {

/// A wheel that turns over a closed box scrolls nothing away under the user's hand.
class CalmComboBox final : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus() && view()->isVisible()) return QComboBox::wheelEvent(event);
    event->ignore();
  }
};

}  // namespace forms
