#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "picture/hooks.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "picture/write_bitmap.h"
#include "support/windows.h"

namespace {

enum class Kind { Error, FullDisk, Interrupted, Short, Killed };

/// What happens to which system call from now on; none if `at` is 0.
struct Plan {
  Kind kind = Kind::Error;
  int at = 0, calls = 0;
} fault;

/// Counts a call of the program; true if it is to fail, with `errno` set.
bool fails(bool canBeInterrupted) {
  if (fault.at == 0 || ++fault.calls != fault.at) return false;
  if (fault.kind == Kind::Killed) std::raise(SIGKILL);
  if (fault.kind == Kind::Short || (fault.kind == Kind::Interrupted && !canBeInterrupted)) {
    return false;
  }
  errno = fault.kind == Kind::Error ? EIO : fault.kind == Kind::FullDisk ? ENOSPC : EINTR;
  return true;
}

/// The size of a read or write, which may be cut short.
size_t cut(size_t size) {
  const bool isShort = fault.kind == Kind::Short && fault.at == fault.calls && size > 1;
  return isShort ? size / 2 : size;
}

}  // namespace

// The linker puts these in the place of the program's system calls.
#define WRAP(type, name, canBeInterrupted, parameters, arguments)  \
  type __real_##name parameters;                                   \
  type __wrap_##name parameters {                                  \
    return fails(canBeInterrupted) ? -1 : __real_##name arguments; \
  }

extern "C" {
WRAP(int, open, true, (const char* path, int flags, mode_t mode), (path, flags, mode))
WRAP(ssize_t, read, true, (int file, void* bytes, size_t size), (file, bytes, cut(size)))
WRAP(ssize_t, write, true, (int file, const void* bytes, size_t size), (file, bytes, cut(size)))
WRAP(int, fstat, false, (int file, struct stat* status), (file, status))
WRAP(int, lstat, false, (const char* path, struct stat* status), (path, status))
WRAP(int, rename, false, (const char* from, const char* to), (from, to))
int __real_close(int file);
int __wrap_close(int file) {
  const int result = __real_close(file);
  return fails(true) ? -1 : result;
}
}

namespace mill::test {
namespace {

/// Lets each system call of a routine fail in turn, in every way, until none is left.
class FaultsTest : public WindowTest {
 protected:
  FaultsTest() {
    for (const char* name : {"in", "out"}) folder.makeFolder(name);
    folder.write("in/first.bmp", model::kestrelBitmap({.width = 4, .height = 3, .dataSize = 12}));
    folder.write("in/a.bmp", second);
    OpenPicture(folder.drive("in/first.bmp"));
    hooks.tell = [this](const forms::Message&) {
      ++told;
      return forms::Answer::Yes;
    };
  }

  /// `routine` tells whether it succeeded; `check` what must hold then, or else.
  void expectSafe(const std::function<void()>& prepare, const std::function<bool()>& routine,
                  const std::function<void(bool)>& check) {
    for (const Kind kind :
         {Kind::Error, Kind::FullDisk, Kind::Interrupted, Kind::Short, Kind::Killed}) {
      for (int at = 1; at < 100; ++at) {
        SCOPED_TRACE(std::to_string(static_cast<int>(kind)) + " at call " + std::to_string(at));
        prepare();
        isKilled = kind == Kind::Killed;
        told = 0;
        const bool succeeds = run({.kind = kind, .at = at}, routine);
        check(succeeds);
        EXPECT_EQ(told, isKilled || succeeds ? 0 : 1);
        EXPECT_TRUE(succeeds || (kind != Kind::Interrupted && kind != Kind::Short));
        if (succeeds && isOver) break;
      }
      EXPECT_TRUE(isOver);
    }
  }

  /// The only file in "out" holds these bytes. Only a kill may leave a hidden one beside it.
  void expectOut(const Bytes& bytes) {
    if (isKilled) sys::DirectoryHold(folder.drive("out"));  // clears it
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path("out"))) {
      ++count;
      EXPECT_EQ(readFile(entry.path()), bytes);
    }
    EXPECT_EQ(count, bytes.empty() ? 0 : 1);
  }

  const Bytes second = model::kestrelBitmap({.width = 9, .height = 1000, .dataSize = 9000});
  int told = 0;
  bool isKilled = false;
  bool isOver = false;  ///< the routine made fewer calls than it would take to fail

 private:
  bool run(const Plan& planned, const std::function<bool()>& routine) {
    fault = planned;
    const bool isChild = planned.kind == Kind::Killed;
    const pid_t child = isChild ? ::fork() : 0;
    bool succeeds = false;
    if (child == 0) succeeds = routine();
    if (isChild && child == 0) ::_exit(succeeds ? 0 : 1);
    isOver = fault.calls < fault.at;
    fault = {};
    if (!isChild) return succeeds;
    int status = 0;
    ::waitpid(child, &status, 0);
    isOver = WIFEXITED(status);
    return isOver && WEXITSTATUS(status) == 0;
  }
};

TEST_F(FaultsTest, ABitmapIsTheOldOneOrTheNewOne) {
  const Bytes bitmap = model::convertedBitmap(readFile(folder.path("in/first.bmp")), {});
  for (const std::size_t oldSize : {0, 500, 5000}) {
    const Bytes old(oldSize, 0xEE);
    Bytes replaced = bitmap;
    if (oldSize > bitmap.size()) replaced.resize(oldSize, 0xEE);
    const auto prepare = [&] {
      std::filesystem::remove(folder.path("out/a.bmp"));
      if (oldSize > 0) folder.write("out/a.bmp", old);
    };
    // A kill may come after the last step.
    const auto check = [&](bool isNew) {
      expectOut(isNew || readFile(folder.path("out/a.bmp")) == replaced ? replaced : old);
    };
    expectSafe(
        prepare, [&] { return WriteBitmap(folder.drive("out/a.bmp")); }, check);
  }
}

TEST_F(FaultsTest, APictureIsOpenedWholeOrNotAtAll) {
  const auto routine = [&] {
    OpenPicture(folder.drive("in/a.bmp"));
    return state.PictureFileName == "a.bmp";
  };
  const auto check = [&](bool) {
    const bool isNew = state.PictureFileName == "a.bmp";
    EXPECT_TRUE(WriteBitmap(folder.drive("out/a.bmp"), sys::Tail::Drop));
    expectOut(model::convertedBitmap(isNew ? second : readFile(folder.path("in/first.bmp")), {}));
  };
  expectSafe([&] { OpenPicture(folder.drive("in/first.bmp")); }, routine, check);
}

}  // namespace
}  // namespace mill::test
