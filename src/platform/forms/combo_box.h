#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

/// Text to type into, with a list of entries to pick from. Typing, and setting `Text` to another
/// text, raise Change; picking an entry raises Click and no Change. Typing never adds an entry.
class ComboBox : public Control {
 public:
  ComboBox(Container& parent, const char* name, const Rect& place, Handler change = {},
           Handler click = {});

  std::string Text() const;
  void setText(const std::string& text);
  /// Adds an entry at the end; the text stays as it is.
  void AddItem(const std::string& entry);
  /// Makes `entry` the text, and one of the entries at the end if it isn't one yet.
  void pick(const std::string& entry);
  int ListCount() const;
  /// The entry at `index`, from 0.
  std::string List(int index) const;

 private:
  Handler change_;
};

}  // namespace forms
