#pragma once

#include <QEventLoop>
#include <QPushButton>
#include <QWidget>

class QMenuBar;

namespace forms {

class Form;

/// The real window behind a form: a menu bar where the form has menus, and below it the client area
/// that the controls stand in.
class Shell final : public QWidget {
 public:
  Shell(Form& form, Qt::WindowFlags flags, QSize clientSize, bool fixedSize);

  QWidget* client() { return client_; }
  QMenuBar* menuBar();
  /// Whether `mnemonic` opens one of its menus.
  bool hasMenu(const QKeySequence& mnemonic) const;
  /// The size of the whole window that gives the client area its own.
  void fitToClient();
  void focusFirst();

  QPushButton* defaultButton = nullptr;
  QPushButton* cancelButton = nullptr;
  /// Runs while the form is shown modally.
  QEventLoop* loop = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  Form& form_;
  QWidget* client_;
  QMenuBar* menuBar_ = nullptr;
  const QSize clientSize_;
  const bool fixedSize_;
};

/// What all forms have in common about input: Enter and Escape go to the buttons that have these
/// roles, and to nothing else, but that a button with the focus takes the Enter that another one
/// would get; and a form that has been hidden takes no input that was meant for it before, such as
/// the second half of a double click on its button.
class FormInput final : public QObject {
 public:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  static bool takeKey(Shell& shell, QWidget& receiver, const QKeyEvent& key);
};

}  // namespace forms
