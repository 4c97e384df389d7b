#include "platform/forms/menu.h"

#include <QMenu>
#include <QMenuBar>

#include <utility>

#include "platform/system/text.h"

namespace forms {

Menu::Menu(Form& form, const char* name, const char* caption)
    : form_(form), menu_(form.menuBar()->addMenu(shown(caption))) {
  menu_->setObjectName(name);
}

MenuItem::MenuItem(Menu& menu, const char* name, const char* caption, const char* shortcut,
                   Handler click, Trait traits)
    : action_(std::string_view(caption) == "-" ? menu.menu_->addSeparator()
                                               : menu.menu_->addAction(shown(caption))) {
  action_->setObjectName(name);
  action_->setShortcut(QKeySequence(shown(shortcut)));
  action_->setEnabled((traits & Disabled) == 0);
  QObject::connect(action_, &QAction::triggered,
                   [&form = menu.form_, click = std::move(click)] { click(form); });
}

bool MenuItem::Enabled() const {
  return action_->isEnabled();
}

void MenuItem::setEnabled(bool enabled) {
  action_->setEnabled(enabled);
}

}  // namespace forms
