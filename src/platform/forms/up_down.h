#pragma once

#include "platform/forms/control.h"
#include "platform/forms/controls.h"

namespace forms {

/// Two arrows that step the number in a text box, their buddy, up and down by 1 within a range.
/// They repeat while they are held, and follow the arrow keys when they have the focus.
class UpDown : public Control {
 public:
  UpDown(Container& parent, const char* name, const Rect& place, TextBox& buddy, int min, int max);

 private:
  void step(int by);

  TextBox& buddy_;
  const int min_;
  const int max_;
};

}  // namespace forms
