#include "platform/bitmap.h"

#include <QFile>
#include <QImage>
#include <QImageReader>

#include "platform/paths.h"

namespace forms {

namespace {

/// Qt refuses images above a size that a large picture exceeds; the file is one of our own.
class NoLimit {
 public:
  NoLimit() : before_(QImageReader::allocationLimit()) { QImageReader::setAllocationLimit(0); }
  ~NoLimit() { QImageReader::setAllocationLimit(before_); }
  NoLimit(const NoLimit&) = delete;
  NoLimit& operator=(const NoLimit&) = delete;

 private:
  const int before_;
};

}  // namespace

Bitmap::Bitmap(std::unique_ptr<QImage> image) : image_(std::move(image)) {}

Bitmap::~Bitmap() = default;

std::unique_ptr<Bitmap> Bitmap::load(const std::string& path, int width, int height) {
  const NoLimit noLimit;
  QImageReader reader(QFile::decodeName(nativePath(path).c_str()), "BMP");
  QImage image = reader.read();
  if (image.isNull()) return nullptr;
  if (width != 0 || height != 0) {
    image = image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (image.isNull()) return nullptr;
  }
  return std::make_unique<Bitmap>(std::make_unique<QImage>(std::move(image)));
}

}  // namespace forms
