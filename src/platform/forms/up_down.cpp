#include "platform/forms/up_down.h"

#include <QKeyEvent>
#include <QToolButton>

#include <algorithm>
#include <functional>

#include "platform/system/number_text.h"
#include "platform/system/text.h"

namespace forms {

namespace {

class Arrows final : public QWidget {
 public:
  explicit Arrows(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    prepare(up_, Qt::UpArrow, 1);
    prepare(down_, Qt::DownArrow, -1);
    showFocus(false);
  }

  std::function<void(int)> step;

 protected:
  void resizeEvent(QResizeEvent*) override {
    const int half = height() / 2;
    up_.setGeometry(0, 0, width(), half);
    down_.setGeometry(0, half, width(), height() - half);
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
      return step(event->key() == Qt::Key_Up ? 1 : -1);
    }
    QWidget::keyPressEvent(event);
  }

  void focusInEvent(QFocusEvent*) override { showFocus(true); }
  void focusOutEvent(QFocusEvent*) override { showFocus(false); }

 private:
  void prepare(QToolButton& button, Qt::ArrowType arrow, int by) {
    button.setArrowType(arrow);
    button.setAutoRepeat(true);
    button.setFocusPolicy(Qt::NoFocus);
    connect(&button, &QToolButton::clicked, this, [this, by] {
      setFocus(Qt::MouseFocusReason);
      step(by);
    });
  }

  /// The arrows look as under the mouse, so that one sees where the keys go.
  void showFocus(bool focused) {
    for (QToolButton* button : {&up_, &down_}) button->setAutoRaise(!focused);
  }

  QToolButton up_{this};
  QToolButton down_{this};
};

}  // namespace

UpDown::UpDown(Container& parent, const char* name, const Rect& place, TextBox& buddy, int min,
               int max)
    : Control(parent, name, new Arrows(parent.host()), place), buddy_(buddy), min_(min), max_(max) {
  as<Arrows>()->setAccessibleName(shown(buddy.AccessibleName()));
  as<Arrows>()->step = [this](int by) { step(by); };
}

void UpDown::step(int by) {
  const int number = numberOf(buddy_.Text(), min_, max_);
  buddy_.setText(std::to_string(std::clamp(number + by, min_, max_)));
}

}  // namespace forms
