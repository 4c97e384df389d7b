#include "dialogs/browse.h"

#include "dialogs/frm_browse.h"
#include "dialogs/frm_file_browse.h"
#include "picture/program_state.h"

namespace mill {

void browseForDirectory(const char* caption, const std::string& start, forms::Form& owner) {
  frmBrowse->setCaption(caption);
  state.BrowseResult = start;
  frmBrowse->showModal(&owner);
}

void browseForPalette(const std::string& start, forms::Form& owner) {
  frmFileBrowse->setCaption("Browse for Palette File");
  state.BrowseResult = start;
  state.FileResult.clear();
  state.FilePattern = "*.pal";
  frmFileBrowse->showModal(&owner);
}

}  // namespace mill
