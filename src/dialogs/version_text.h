#pragma once

#include <string>

#include "platform/forms/application.h"

namespace mill {

/// The version as windows show it: "Version 1.3.10".
inline std::string versionText() {
  return "Version " + std::to_string(forms::App.Major()) + "." +
         std::to_string(forms::App.Minor()) + "." + std::to_string(forms::App.Revision());
}

}  // namespace mill
