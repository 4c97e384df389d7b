#pragma once

#include <memory>
#include <string>

class QImage;

namespace forms {

/// A bitmap file held in memory, ready to be copied to picture boxes. Released with the object.
class Bitmap {
 public:
  /// Loads the file at its own size, or stretched to `width` × `height` pixels where these aren't
  /// both 0, each axis by itself and without mixing colours. Null where the file can't be loaded.
  static std::unique_ptr<Bitmap> load(const std::string& path, int width, int height);

  explicit Bitmap(std::unique_ptr<QImage> image);
  ~Bitmap();

  const QImage& image() const { return *image_; }

 private:
  std::unique_ptr<QImage> image_;
};

}  // namespace forms
