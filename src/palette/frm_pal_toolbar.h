#pragma once

#include "platform/forms/form.h"
#include "platform/forms/swatches.h"

namespace mill {

/// Shows the current palette as swatches, with its file name in the title. Updated by every load
/// while `ShowPal` is on, and whenever it is activated.
class PalToolbarForm final : public forms::Form {
 public:
  PalToolbarForm();

  void update();

 private:
  void Form_Load() override;
  void Form_Activate() override { update(); }

  forms::Swatches* palette1 = add<forms::Swatches>("palette1", {0, 0, 1935, 1935});
};

inline forms::Global<PalToolbarForm> frmPalToolbar;

}  // namespace mill
