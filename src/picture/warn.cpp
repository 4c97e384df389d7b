#include "picture/warn.h"

#include "picture/hooks.h"

namespace mill {

void warn(const std::string& text) {
  hooks.tell({.text = text, .title = kWarning, .icon = forms::Icon::Critical});
}

void warn(Fault fault, const std::string& path) {
  std::string text(message(fault));
  if (!path.empty()) text += "\n" + path;
  // Using one directory for both is a slip of the user; everything else is a failure.
  if (fault != Fault::SameDirectory) return warn(text);
  hooks.tell({.text = text, .title = kWarning, .icon = forms::Icon::Information});
}

}  // namespace mill
