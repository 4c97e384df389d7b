#pragma once

#include <functional>
#include <string>

#include "platform/forms/form.h"

class QWidget;

namespace forms {

/// The method of a form that answers an event of one of its controls, written as
/// `&ConvertForm::cmdYes_Click`. The default answers nothing.
template <class... Args>
class BasicHandler {
 public:
  BasicHandler() = default;
  template <class F>
  BasicHandler(void (F::*method)(Args...))
      : call_([method](Form& form, Args... args) { (static_cast<F&>(form).*method)(args...); }) {}

  void operator()(Form& form, Args... args) const {
    if (call_) call_(form, args...);
  }

 private:
  std::function<void(Form&, Args...)> call_;
};

using Handler = BasicHandler<>;
/// For an event of one control of many, by its index.
using IndexHandler = BasicHandler<int>;

/// What a control is at the start beyond its caption and place.
enum Trait : unsigned {
  Plain = 0,
  Default = 1,   ///< command buttons: Enter presses it
  Cancel = 2,    ///< command buttons: Escape presses it
  Disabled = 4,  ///< can't be used until code enables it
  ReadOnly = 8,  ///< text boxes: shows text that only code changes
};
constexpr Trait operator|(Trait a, Trait b) {
  return static_cast<Trait>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

/// What all controls share: a name, a place in a container, and whether they can be used.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// What a screen reader calls it, where that isn't its caption.
  std::string AccessibleName() const;
  bool Enabled() const;
  void setEnabled(bool enabled);

 protected:
  /// Takes `widget`, which is a child of the container already.
  Control(Container& parent, const char* name, QWidget* widget, const Rect& place,
          Trait traits = Plain);
  ~Control();

  /// Takes the caption that a label has lent as accessible name.
  void borrowLabel(Container& parent);

  /// The widget by the type that the derived class made it.
  template <class W>
  W* as() const {
    return static_cast<W*>(widget_);
  }

  Form& form_;

 private:
  QWidget* widget_;
  /// Where the focus went when this control was disabled under it.
  QWidget* focusLeftFor_ = nullptr;
};

}  // namespace forms
