#include "platform/forms/container.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

#include <cmath>

#include "platform/forms/combo_box.h"

namespace forms {

void Button::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  if (hasFocus()) option->features |= QStyleOptionButton::DefaultButton;
}

void Button::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  // Qt's button also reacts to Ctrl, Alt or Shift with Enter, and repeats while Enter is held.
  isEnter ? event->ignore() : QPushButton::keyPressEvent(event);
}

void Container::prepare(QWidget& widget, const char* name, const Place& place) {
  widget.setObjectName(QString::fromUtf8(name));
  widget.setGeometry(place.toPixels());
}

QLabel* Container::label(const char* name, const char* caption, const Place& place,
                         const Lettering& lettering) {
  auto* label = add<QLabel>(name, place);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(lettering.Alignment | Qt::AlignTop);
  label->setText(QString::fromUtf8(caption));
  // Clicking a label isn't clicking its container.
  label->setAttribute(Qt::WA_NoMousePropagation);
  QFont letters = label->font();
  letters.setPixelSize(static_cast<int>(std::lround(lettering.Points * 20 / 15)));
  letters.setBold(lettering.Bold);
  label->setFont(letters);
  return label;
}

QLabel* Container::autoLabel(const char* name, const char* caption, const Place& place,
                             const Lettering& lettering) {
  QLabel* made = label(name, caption, place, lettering);
  made->setWordWrap(false);
  made->adjustSize();
  if (lettering.Alignment == Qt::AlignRight) {
    made->move(place.toPixels().right() + 1 - made->width(), made->y());
  }
  return made;
}

Frame* Container::frame(const char* name, const char* caption, const Place& place) {
  return add<Frame>(name, place, QString::fromUtf8(caption));
}

QPushButton* Container::button(const char* name, const char* caption, const Place& place,
                               Handler click, Trait traits) {
  auto* button = add<Button>(name, place, QString::fromUtf8(caption));
  button->isCancel = (traits & Cancel) != 0;
  button->setDefault((traits & Default) != 0);
  button->setEnabled((traits & Disabled) == 0);
  QObject::connect(button, &QPushButton::clicked, button, std::move(click));
  return button;
}

QPushButton* Container::button(const char* name, const char* caption, const char* spoken,
                               const Place& place, Handler click, Trait traits) {
  QPushButton* made = button(name, caption, place, std::move(click), traits);
  made->setAccessibleName(QString::fromUtf8(spoken));
  return made;
}

QCheckBox* Container::checkBox(const char* name, const char* caption, const Place& place,
                               Handler click, Trait traits) {
  auto* box = add<QCheckBox>(name, place);
  box->setText(QString::fromUtf8(caption));
  box->setEnabled((traits & Disabled) == 0);
  QObject::connect(box, &QCheckBox::toggled, box, std::move(click));
  return box;
}

QLineEdit* Container::lineEdit(const char* name, const Place& place, QLabel* label, Handler change,
                               Trait traits) {
  auto* edit = add<QLineEdit>(name, place, label);
  edit->setReadOnly((traits & ReadOnly) != 0);
  if (change) QObject::connect(edit, &QLineEdit::textChanged, edit, std::move(change));
  return edit;
}

ComboBox* Container::comboBox(const char* name, const Place& place, QLabel* label, Handler change,
                              Handler click) {
  auto* box = add<ComboBox>(name, place, label, std::move(change), std::move(click));
  box->lineEdit()->setAccessibleName(label->text());
  return box;
}

}  // namespace forms
