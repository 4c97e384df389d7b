#pragma once

#include "platform/forms/control.h"

namespace forms {

/// One of the program's own pictures, stretched to the control's size. `picture` is its name among
/// the pictures that are built into the program.
class Image : public Control {
 public:
  Image(Container& parent, const char* name, const Rect& place, const char* picture);
};

}  // namespace forms
