#include "platform/system/application.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <filesystem>
#include <system_error>

#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace sys {

std::string Application::Path() const {
  // Qt's own function can't tell a name that isn't UTF-8.
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return drivePath(error ? bytesOf(QCoreApplication::applicationDirPath())
                         : program.parent_path().string());
}

bool openWithViewer(const std::string& path) {
  return QProcess::startDetached(QStringLiteral("xdg-open"),
                                 {QFile::decodeName(nativePath(path).c_str())});
}

}  // namespace sys
