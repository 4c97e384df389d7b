#include "platform/system/temp_directory.h"

#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/system/paths.h"

namespace sys {

namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// If others can write to a directory, they could plant a file under a known name.
bool isPrivate(const std::filesystem::path& directory) {
  struct stat status {};
  return ::stat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == ::getuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// A new directory with a random name, used until the program ends.
std::string freshDirectory() {
  static const std::string fresh = [] {
    std::error_code error;
    std::filesystem::path base = std::filesystem::temp_directory_path(error);
    if (error) base = "/tmp";
    std::string pattern = (base / "raster-mill-XXXXXX").string();
    return std::string(::mkdtemp(pattern.data()) ? pattern : "");
  }();
  return fresh;
}

std::string ownDirectory() {
  std::string base = variable("XDG_CACHE_HOME");
  if (base.empty()) base = variable("HOME").append("/.cache");
  const std::filesystem::path own = std::filesystem::path(base) / "raster-mill";
  std::error_code error;
  std::filesystem::create_directories(own, error);
  if (isPrivate(own)) std::filesystem::permissions(own, std::filesystem::perms::owner_all, error);
  return drivePath(isPrivate(own) && !std::filesystem::is_symlink(own, error) ? own.string()
                                                                              : freshDirectory());
}

}  // namespace

std::string tempDirectory() {
  if (std::string given = variable("temp"); !given.empty()) return given;
  for (const char* name : {"TEMP", "TMPDIR"}) {
    const std::string given = variable(name);
    if (!given.empty() && isPrivate(nativePath(given))) return drivePath(given);
  }
  return ownDirectory();
}

}  // namespace sys
