#include "conversion/frm_info.h"

#include <cstdint>
#include <string>

#include "picture/program_state.h"

namespace mill {

namespace {

/// With a leading blank in place of a missing minus sign.
std::string withSign(std::int32_t number) {
  const std::string digits = std::to_string(number);
  return number < 0 ? digits : ' ' + digits;
}

}  // namespace

InfoForm::InfoForm()
    : Form({.Name = "frmInfo",
            .Caption = "Picture Information",
            .Client = {3150, 2655},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {}

void InfoForm::Form_Load() {
  const PictureRecord& picture = state.PictureRecord;
  lblName->showText(state.PictureFileName);
  lblSize->showText(std::to_string(picture.bfSize));
  lblDimensions->showText(withSign(picture.biWidth) + " x" + withSign(picture.biHeight) +
                          " pixels");
  lblFormat->showText(state.RecordIsStandard ? "Windows Bitmap" : "Kestrel Bitmap");
  lblIndex->showText(state.RecordIsStandard ? "N/A" : std::to_string(picture.PaletteIndex));
}

}  // namespace mill
