#pragma once

#include "platform/forms/control.h"

class QAction;
class QMenu;

namespace forms {

/// A menu of a form's menu bar.
class Menu {
 public:
  Menu(Form& form, const char* name, const char* caption);

 private:
  friend class MenuItem;
  Form& form_;
  QMenu* menu_;
};

/// A command in a menu; the caption "-" makes it a separator. `shortcut` is written as "Ctrl+O" or
/// empty.
class MenuItem {
 public:
  MenuItem(Menu& menu, const char* name, const char* caption, const char* shortcut = "",
           Handler click = {}, Trait traits = Plain);

  bool Enabled() const;
  void setEnabled(bool enabled);

 private:
  QAction* action_;
};

}  // namespace forms
