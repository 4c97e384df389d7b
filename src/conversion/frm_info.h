#pragma once

#include "platform/forms/elided_label.h"
#include "platform/forms/form.h"

namespace mill {

/// Five facts about the open picture, read once when the window loads. Only its button closes it.
class InfoForm final : public forms::Form {
 public:
  InfoForm();

 private:
  void Form_Load() override;

  // clang-format off
  QLabel*             Label2        = label("Label2", "Picture Format:",       { 120,  120, 1215, 255});
  forms::ElidedLabel* lblFormat     = add<forms::ElidedLabel>("lblFormat",     {1380,  120, 1695, 255}, Label2);
  QLabel*             Label1        = label("Label1", "Dimensions:",           { 120,  480, 1215, 255});
  forms::ElidedLabel* lblDimensions = add<forms::ElidedLabel>("lblDimensions", {1380,  480, 1695, 255}, Label1);
  QLabel*             Label4        = label("Label4", "File Name:",            { 120,  840, 1215, 255});
  forms::ElidedLabel* lblName       = add<forms::ElidedLabel>("lblName",       {1380,  840, 1695, 255}, Label4);
  QLabel*             Label3        = label("Label3", "File Size:",            { 120, 1200, 1215, 255});
  forms::ElidedLabel* lblSize       = add<forms::ElidedLabel>("lblSize",       {1380, 1200, 1695, 255}, Label3);
  QLabel*             Label6        = label("Label6", "Palette Index:",        { 120, 1560, 1215, 255});
  forms::ElidedLabel* lblIndex      = add<forms::ElidedLabel>("lblIndex",      {1380, 1560, 1695, 255}, Label6);
  QPushButton*        cmdOK         = button("cmdOK", "OK",                    {1027, 2100, 1095, 375}, [this] { Unload(); }, forms::Default);
  // clang-format on
};

inline forms::Global<InfoForm> frmInfo;

}  // namespace mill
