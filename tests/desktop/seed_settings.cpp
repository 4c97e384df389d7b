// Writes settings of Raster Mill before it starts, through the program's own code:
//   seed-settings KEY=VALUE...
// An absolute path is stored as the program writes paths.

#include <iostream>
#include <string>

#include "platform/system/paths.h"
#include "platform/system/settings.h"

int main(int count, char** arguments) {
  for (int i = 1; i < count; ++i) {
    const std::string word = arguments[i];
    const std::size_t sign = word.find('=');
    if (sign == std::string::npos || sign == 0) {
      std::cerr << "seed-settings KEY=VALUE...\n";
      return 2;
    }
    const std::string value = forms::drivePath(word.substr(sign + 1));
    if (!forms::SaveSetting("RasterMill", "Settings", word.substr(0, sign), value)) {
      std::cerr << "seed-settings: can't write " << forms::settingsFile("RasterMill") << '\n';
      return 1;
    }
  }
  return 0;
}
