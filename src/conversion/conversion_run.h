#pragma once

#include <string>
#include <vector>

#include "picture/find_palette.h"
#include "platform/forms/msg_box.h"

namespace mill {

/// What the user hears of one run over the selected pictures. Each message says which picture it is
/// about. From the second failure on it also asks whether to go on, and the user may ask to hear no
/// more; what was passed over then is summed up at the end.
class ConversionRun {
 public:
  /// Over `count` pictures in `directory`.
  ConversionRun(std::string directory, int count);

  /// Begins the next picture.
  void next(const std::string& name);
  /// False once the user has ended the run.
  bool goesOn() const { return goesOn_; }
  /// For the searches of this run.
  PaletteNames& paletteNames() { return paletteNames_; }

  /// Shows a message about the current picture. One with a choice of answers is a question, any
  /// other a failure.
  forms::Answer tell(forms::Message message);
  /// "3 of 20,000 – HARBOUR.BMP".
  std::string progressText() const;
  /// "3 of 20,000", and on a second line the path of the current picture.
  std::string whichPicture() const;
  /// The current picture has been converted.
  void succeed();
  /// Tells which messages weren't shown, if any.
  void sumUp() const;
  /// "1,990 of 2,000 pictures were converted."
  std::string result() const;

 private:
  const std::string directory_;
  const int count_;
  int current_ = 0;
  std::string name_;
  int failures_ = 0;
  int converted_ = 0;
  bool goesOn_ = true;
  bool isSilent_ = false;
  PaletteNames paletteNames_;
  std::vector<std::string> passedOver_;
  /// Converted although a message about them wasn't shown.
  std::vector<std::string> warnedOf_;
};

}  // namespace mill
