#pragma once

#include <QApplication>

namespace forms {

/// The application object, which must outlive all windows, with the style of this program.
class Desktop {
 public:
  explicit Desktop(char* programName);

 private:
  char* arguments_[2];
  int count_ = 1;
  QApplication application_;
};

}  // namespace forms
