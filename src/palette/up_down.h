#pragma once

#include <QAbstractSpinBox>
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
    const int number = numberOf(sys::bytesOf(buddy_->text()), min_, max_);
    buddy_->setText(QString::number(std::clamp(number + steps, min_, max_)));
  }

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }

 private:
  QLineEdit* const buddy_;
  const int min_;
  const int max_;
};

}  // namespace mill
