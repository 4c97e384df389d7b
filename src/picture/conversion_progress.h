#pragma once

#include "formats/byte_stream.h"

namespace mill {

/// What a running conversion shows of opening and writing pictures. The convert dialog puts itself
/// here when it is loaded.
class ConversionProgress {
 public:
  virtual ~ConversionProgress() = default;

  /// True while the dialog is the active form; nobody reports otherwise.
  virtual bool isActive() const = 0;
  virtual Progress& opening() = 0;
  virtual Progress& writing() = 0;
};

inline ConversionProgress* conversionProgress = nullptr;

inline bool isConverting() {
  return conversionProgress && conversionProgress->isActive();
}

/// The one to report to at this moment, which may be one that listens to nothing.
inline Progress& openingProgress() {
  static Progress nobody;
  return isConverting() ? conversionProgress->opening() : nobody;
}
inline Progress& writingProgress() {
  static Progress nobody;
  return isConverting() ? conversionProgress->writing() : nobody;
}

}  // namespace mill
