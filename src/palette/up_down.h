#pragma once

#include <QAbstractSpinBox>
#include <QEvent>
#include <QLineEdit>

#include <algorithm>

#include "palette/number_text.h"
#include "platform/system/text.h"

namespace mill {

/// The arrows of a spin box that change the number in another text box, its buddy, between `min`
/// and `max`.
class UpDown final : public QAbstractSpinBox {
 public:
  UpDown(QWidget* parent, QLineEdit* buddy, int min, int max)
      : QAbstractSpinBox(parent), buddy_(buddy), min_(min), max_(max) {
    setAccessibleName(buddy->accessibleName());
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->hide();
  }

  void stepBy(int steps) override {
    // Qt asks for ten steps at once with Ctrl and for Page Up and Page Down.
    const int number =
        numberOf(sys::bytesOf(buddy_->text()), min_, max_) + std::clamp(steps, -1, 1);
    buddy_->setText(QString::number(std::clamp(number, min_, max_)));
  }

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
  /// The hidden text box would take the keys for undo and redo.
  bool event(QEvent* event) override {
    return event->type() != QEvent::ShortcutOverride && QAbstractSpinBox::event(event);
  }

 private:
  QLineEdit* const buddy_;
  const int min_;
  const int max_;
};

}  // namespace mill
