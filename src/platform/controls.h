#pragma once

#include <cstdint>
#include <string>

#include "platform/control.h"

namespace forms {

/// How a label's text is laid out.
enum class LabelStyle {
  Fixed,     ///< keeps its size; text wraps and is cut
  AutoSize,  ///< as large as its text
  Bordered,  ///< fixed, with a border, for a path: wraps anywhere
  Heading,   ///< fixed, 12 point and bold
  Patch,     ///< fixed, with a border, for a colour
};

/// Plain text that the user can't change; `&` and `<` in it stand for themselves.
class Label : public Control {
 public:
  Label(Container& parent, const char* name, const char* caption, const Rect& place,
        LabelStyle style = LabelStyle::Fixed);

  std::string Caption() const;
  void setCaption(const std::string& caption);
  void setBackColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
};

/// A border around controls that belong together. Their places are relative to it.
class Frame : public Control, public Container {
 public:
  Frame(Container& parent, const char* name, const char* caption, const Rect& place);

  QWidget* host() override;
  Form& form() override { return form_; }
};

/// A push button. `&` in the caption marks its mnemonic.
class CommandButton : public Control {
 public:
  CommandButton(Container& parent, const char* name, const char* caption, const Rect& place,
                Handler click, Trait traits = Plain);
};

/// A tick that raises Click at every change of its value, by the user or by code.
class CheckBox : public Control {
 public:
  CheckBox(Container& parent, const char* name, const char* caption, const Rect& place,
           Handler click, Trait traits = Plain);

  /// 1 ticked, 0 unticked.
  int Value() const;
  void setValue(int value);
};

/// One line of text that raises Change whenever it becomes another.
class TextBox : public Control {
 public:
  TextBox(Container& parent, const char* name, const Rect& place, Handler change = {},
          Trait traits = Plain);

  std::string Text() const;
  void setText(const std::string& text);
};

}  // namespace forms
