#pragma once

#include <QApplication>

namespace forms {

/// The program's application object: the look of its windows, which live no longer than it does.
class Desktop {
 public:
  explicit Desktop(char* programName);

 private:
  char* arguments_[2];
  int count_ = 1;
  QApplication application_;
};

}  // namespace forms
