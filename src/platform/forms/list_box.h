#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

/// A list to choose one text from. Each gesture of the user's that chooses raises one Click.
class ListBox : public Control {
 public:
  ListBox(Container& parent, const char* name, const Rect& place, Handler click = {});

  void AddItem(const std::string& text);
  /// The chosen text; empty when there is none.
  std::string Text() const;
  /// How many are chosen, 0 or 1.
  int SelCount() const;
};

}  // namespace forms
