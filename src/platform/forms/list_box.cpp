#include "platform/forms/list_box.h"

#include <utility>

#include "platform/forms/file_view.h"

namespace forms {

ListBox::ListBox(Container& parent, const char* name, const Rect& place, Handler click)
    : Control(parent, name, new FileView(parent.host(), false), place) {
  borrowLabel(parent);
  auto* view = as<FileView>();
  view->clicked = [this, click = std::move(click)] { click(form_); };
  view->doubleClicked = [] {};
  view->setUniformItemSizes(false);  // few enough to be measured, and long ones can be scrolled
}

void ListBox::AddItem(const std::string& text) {
  as<FileView>()->addName(text);
}

std::string ListBox::Text() const {
  const int row = as<FileView>()->chosenRow();
  return row < 0 ? std::string() : as<FileView>()->names()[static_cast<std::size_t>(row)];
}

int ListBox::SelCount() const {
  return as<FileView>()->selectionModel()->hasSelection() ? 1 : 0;
}

}  // namespace forms
