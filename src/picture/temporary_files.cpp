#include "picture/temporary_files.h"

#include "picture/hooks.h"
#include "picture/program_state.h"
#include "platform/system/temp_directory.h"

namespace mill {

std::string temporaryDirectory() {
  return sys::tempDirectory({hooks.sourceDirectory(),
                             std::string(sys::directoryOf(state.PictureSourceFile)), state.PalDir});
}

}  // namespace mill
