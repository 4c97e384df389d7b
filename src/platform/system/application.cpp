#include "platform/system/application.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace sys {

std::string Application::Path() const {
  return drivePath(bytesOf(QCoreApplication::applicationDirPath()));
}

bool openWithViewer(const std::string& path) {
  return QProcess::startDetached(QStringLiteral("xdg-open"),
                                 {QFile::decodeName(nativePath(path).c_str())});
}

}  // namespace sys
