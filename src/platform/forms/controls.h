#pragma once

#include <cstdint>
#include <string>

#include "platform/forms/control.h"

namespace forms {

/// How a label's text is laid out.
enum class LabelStyle {
  Fixed,     ///< keeps its size; text wraps, and loses its middle where there isn't room for it
  AutoSize,  ///< as large as its text; the edge that the text is aligned to stays
  Bordered,  ///< fixed, with a border, for a path: wraps anywhere
  Patch,     ///< fixed, with a border, for a colour
};

enum class Alignment { Left, Centre, Right };

/// What a label's text looks like.
struct Lettering {
  double Points = 8.25;
  bool Bold = false;
  forms::Alignment Alignment = forms::Alignment::Left;
};

/// Plain text that the user can't change; `&` and `<` in it stand for themselves. What there
/// is no room for, and a path, can be read in a tool tip.
class Label : public Control {
 public:
  Label(Container& parent, const char* name, const char* caption, const Rect& place,
        LabelStyle style = LabelStyle::Fixed, const Lettering& lettering = {});

  std::string Caption() const;
  void setCaption(const std::string& caption);
  void setBackColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
};

/// A border around controls that belong together. Their places are relative to it. Click comes for
/// the frame itself, not for what stands in it.
class Frame : public Control, public Container {
 public:
  Frame(Container& parent, const char* name, const char* caption, const Rect& place,
        Handler click = {});

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
