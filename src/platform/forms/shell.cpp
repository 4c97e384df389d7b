#include "platform/forms/shell.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>

#include <algorithm>

#include "platform/forms/form.h"

namespace forms {

Shell::Shell(Form& form, Qt::WindowFlags flags, QSize clientSize, bool fixedSize)
    : QWidget(nullptr, flags),
      form_(form),
      client_(new QWidget(this)),
      clientSize_(clientSize),
      fixedSize_(fixedSize) {
  fitToClient();
}

QMenuBar* Shell::menuBar() {
  if (!menuBar_) {
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
  }
  return menuBar_;
}

bool Shell::hasMenu(const QKeySequence& mnemonic) const {
  if (!menuBar_ || mnemonic.isEmpty()) return false;
  const auto menus = menuBar_->actions();
  return std::any_of(menus.begin(), menus.end(), [&](const QAction* menu) {
    return QKeySequence::mnemonic(menu->text()) == mnemonic;
  });
}

void Shell::fitToClient() {
  const QSize whole = clientSize_ + QSize(0, menuBar_ ? menuBar_->sizeHint().height() : 0);
  if (fixedSize_) setFixedSize(whole);
  resize(whole);
}

void Shell::focusFirst() {
  // Opened by the keyboard, it shows where the focus is.
  const QWidget* before = QApplication::activeWindow();
  setAttribute(Qt::WA_KeyboardFocusChange,
               before && before->testAttribute(Qt::WA_KeyboardFocusChange));
  if (QWidget* last = focusWidget()) last->clearFocus();
  focusNextPrevChild(true);
  // A window of buttons starts at the one that Enter presses.
  if (defaultButton && qobject_cast<QPushButton*>(focusWidget())) defaultButton->setFocus();
}

void Shell::closeEvent(QCloseEvent* event) {
  event->ignore();
  form_.closeBox();
}

void Shell::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && form_.loaded_) form_.Form_Resize();
}

void Shell::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int top = menuBar_ ? menuBar_->sizeHint().height() : 0;
  if (menuBar_) menuBar_->setGeometry(0, 0, width(), top);
  client_->setGeometry(0, top, width(), height() - top);
  if (form_.loaded_) form_.Form_Resize();
}

bool Shell::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) form_.activated();
  return QWidget::event(event);
}

namespace {

bool isInput(const QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool FormInput::eventFilter(QObject* receiver, QEvent* event) {
  if (!isInput(event)) return false;
  auto* widget = qobject_cast<QWidget*>(receiver);
  // Lists that drop down are windows of their own, and an open menu bar leaves with Escape.
  auto* shell = widget ? dynamic_cast<Shell*>(widget->window()) : nullptr;
  if (!shell) return false;
  if (!shell->isVisible()) return true;
  return event->type() == QEvent::KeyPress && !qobject_cast<QMenuBar*>(widget) &&
         takeKey(*shell, *widget, *static_cast<QKeyEvent*>(event));
}

bool FormInput::takeKey(Shell& shell, QWidget& receiver, const QKeyEvent& key) {
  const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (!enter && key.key() != Qt::Key_Escape) return false;
  QPushButton* button = enter ? shell.defaultButton : shell.cancelButton;
  // Enter on "Cancel" mustn't mean OK. Where both keys mean the same button, that is what they
  // mean.
  auto* focused = qobject_cast<QPushButton*>(&receiver);
  if (enter && button != shell.cancelButton && focused) button = focused;
  const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == 0;
  if (button && plain && !key.isAutoRepeat()) button->click();
  return true;
}

}  // namespace forms
