#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRect>

#include <functional>
#include <utility>

namespace forms {

/// Lengths on windows are twips. 15 of them are one device-independent pixel on every screen.
constexpr int pixels(int twips) {
  return (twips + 7) / 15;
}

/// Where a control stands in its container, in twips.
struct Place {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  QRect toPixels() const { return {pixels(Left), pixels(Top), pixels(Width), pixels(Height)}; }
};

/// What a control is at the start beyond its caption and place.
enum Trait : unsigned {
  Plain = 0,
  Default = 1,   ///< buttons: Enter presses it where no other button has the focus
  Cancel = 2,    ///< buttons: Escape presses it
  Disabled = 4,  ///< can't be used until code enables it
  ReadOnly = 8,  ///< line edits: shows text that only code changes
};
constexpr Trait operator|(Trait a, Trait b) {
  return static_cast<Trait>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

/// What a label's text looks like. It is at the top of its place.
struct Lettering {
  double Points = 8.25;
  bool Bold = false;
  Qt::AlignmentFlag Alignment = Qt::AlignLeft;
};

using Handler = std::function<void()>;

/// Looks like the default button while it has the focus, since Enter then presses it; that and
/// Escape are the form's to see to.
class Button final : public QPushButton {
 public:
  Button(QWidget* parent, const QString& caption) : QPushButton(caption, parent) {}

  bool isCancel = false;  ///< Escape presses it

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void keyPressEvent(QKeyEvent* event) override;
};

class ComboBox;
class Frame;

/// What controls stand in: a form or a frame. Its functions make one control each, with its name,
/// its caption and its place, so that a window declares a control in one line. The Tab key reaches
/// controls in the order in which they are made. A control that has no caption is named, for who
/// doesn't see it, by the label given with it.
class Container {
 public:
  /// Any widget that is made from its parent and `rest`.
  template <class Widget, class... Rest>
  Widget* add(const char* name, const Place& place, Rest&&... rest) {
    auto* widget = new Widget(host_, std::forward<Rest>(rest)...);
    prepare(*widget, name, place);
    return widget;
  }
  template <class Widget, class... Rest>
  Widget* add(const char* name, const Place& place, QLabel* label, Rest&&... rest) {
    auto* widget = add<Widget>(name, place, std::forward<Rest>(rest)...);
    label->setBuddy(widget);
    // Another label is read out by its own text.
    if (!qobject_cast<QLabel*>(widget)) widget->setAccessibleName(label->text());
    return widget;
  }

  /// Text that the user can't change, wrapped between words. `&` stands for itself.
  QLabel* label(const char* name, const char* caption, const Place& place,
                const Lettering& lettering = {});
  /// A label as large as its text. `place` gives it the edge that the text is aligned to.
  QLabel* autoLabel(const char* name, const char* caption, const Place& place,
                    const Lettering& lettering = {});
  /// A border around controls that belong together.
  Frame* frame(const char* name, const char* caption, const Place& place);

  /// `&` marks the mnemonic.
  QPushButton* button(const char* name, const char* caption, const Place& place, Handler click,
                      Trait traits = Plain);
  /// A button whose caption alone doesn't tell what it does; `spoken` is its accessible name.
  QPushButton* button(const char* name, const char* caption, const char* spoken, const Place& place,
                      Handler click, Trait traits = Plain);
  /// `click` comes at every change, by the user or by code.
  QCheckBox* checkBox(const char* name, const char* caption, const Place& place, Handler click,
                      Trait traits = Plain);
  /// `change` comes whenever the text becomes another.
  QLineEdit* lineEdit(const char* name, const Place& place, QLabel* label, Handler change = {},
                      Trait traits = Plain);
  /// Text to type into with a list to pick from; see `ComboBox`. Without `click`, picking an entry
  /// does what `change` does.
  ComboBox* comboBox(const char* name, const Place& place, QLabel* label, Handler change = {},
                     Handler click = {});

 protected:
  Container() = default;
  ~Container() = default;
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  QWidget* host_ = nullptr;  ///< the parent of the controls

 private:
  static void prepare(QWidget& widget, const char* name, const Place& place);
};

/// The places of the controls in it are relative to it.
class Frame final : public QGroupBox, public Container {
 public:
  Frame(QWidget* parent, const QString& caption) : QGroupBox(caption, parent) { host_ = this; }
};

}  // namespace forms
