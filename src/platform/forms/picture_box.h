#pragma once

#include "platform/forms/control.h"

namespace forms {

class Bitmap;

/// An area that shows a bitmap at its top left corner.
class PictureBox : public Control {
 public:
  PictureBox(Container& parent, const char* name, const Rect& place);

  /// Twips.
  int ScaleWidth() const;
  int ScaleHeight() const;
  void setSize(const Size& size);

  /// Clears the box.
  void Cls();
  /// Copies the top left `width` × `height` pixels of `bitmap`.
  void copy(const Bitmap& bitmap, int width, int height);
};

}  // namespace forms
