#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace mill {

/// The five facts of the open picture. Reads the state once, while it loads, and changes nothing.
/// Only its button closes it.
class InfoForm final : public forms::Form {
 public:
  InfoForm();

 private:
  void Form_Load() override;
  void cmdOK_Click() { Unload(); }

  forms::Label Label2{*this, "Label2", "Picture Format:", {120, 120, 1215, 255}};
  forms::Label lblFormat{*this, "lblFormat", "", {1380, 120, 1695, 255}};
  forms::Label Label1{*this, "Label1", "Dimensions:", {120, 480, 1215, 255}};
  forms::Label lblDimensions{*this, "lblDimensions", "", {1380, 480, 1695, 255}};
  forms::Label Label4{*this, "Label4", "File Name:", {120, 840, 1215, 255}};
  forms::Label lblName{*this, "lblName", "", {1380, 840, 1695, 255}};
  forms::Label Label3{*this, "Label3", "File Size:", {120, 1200, 1215, 255}};
  forms::Label lblSize{*this, "lblSize", "", {1380, 1200, 1695, 255}};
  forms::Label Label6{*this, "Label6", "Palette Index:", {120, 1560, 1215, 255}};
  forms::Label lblIndex{*this, "lblIndex", "", {1380, 1560, 1695, 255}};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {1027, 2100, 1095, 375}, &InfoForm::cmdOK_Click, forms::Default};
};

inline forms::Global<InfoForm> frmInfo;

}  // namespace mill
