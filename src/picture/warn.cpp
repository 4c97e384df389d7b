#include "picture/warn.h"

#include "platform/msg_box.h"

namespace mill {

void warn(Fault fault, const std::string& path) {
  std::string text(message(fault));
  if (!path.empty()) text += "\n" + path;
  // One directory for both is a slip of the user's; the rest are failures.
  const bool slip = fault == Fault::SameDirectory;
  forms::MsgBox({.text = text,
                 .title = kWarning,
                 .icon = slip ? forms::Icon::Information : forms::Icon::Critical});
}

}  // namespace mill
