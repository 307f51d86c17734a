#include "output_file.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

#include "cli_error.h"
#include "unfinished_files.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::string SystemReason(int code) {
  return std::generic_category().message(code);
}

fs::path FollowLinks(const fs::path& target) {
  std::error_code fault;
  if (!fs::is_symlink(target, fault)) return target;
  const fs::path real = fs::weakly_canonical(target, fault);
  return fault ? target : real;
}

// Data on the disk before the name: a crash then leaves the old file or the new
// one, never an empty one.
void FlushToDisk(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return;
  fsync(file);
  close(file);
}

// Renames without ever replacing; file systems that cannot do this in one step
// get a link and an unlink instead.
int RenameAsNew(const char* from, const char* to) {
  if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  if (link(from, to) != 0) return errno;
  unlink(from);
  return 0;
}

[[noreturn]] void FailExists(const fs::path& shown) {
  FailInput(shown.string(), "is there already", "give --force to replace it");
}

}  // namespace

OutputFile::OutputFile(const fs::path& target, bool mayReplace)
    : shown_(target), target_(FollowLinks(target)), mayReplace_(mayReplace) {
  std::error_code fault;
  if (!mayReplace_ && fs::exists(fs::symlink_status(target_, fault))) FailExists(shown_);
  const std::string extension = target_.extension().string();
  constexpr int kTries = 100;
  for (int i = 0; i < kTries; ++i) {
    const std::string name =
        ".tarnwick-" + std::to_string(getpid()) + "-" + std::to_string(i) + extension;
    temporary_ = (target_.parent_path() / name).string();
    SetUnfinishedFile(temporary_);
    const int file = open(temporary_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
    if (file >= 0) {
      close(file);
      return;
    }
    const int reason = errno;
    SetUnfinishedFile({});
    if (reason != EEXIST) {
      FailInput(shown_.string(), "cannot be written: " + SystemReason(reason), "check the folder");
    }
  }
  FailInput(shown_.string(), "cannot be written: no temporary name is free",
            "remove old .tarnwick- files from the folder");
}

OutputFile::~OutputFile() {
  if (temporary_.empty()) return;
  unlink(temporary_.c_str());
  SetUnfinishedFile({});
}

void OutputFile::Commit() {
  struct stat old = {};
  const bool replaces = mayReplace_ && stat(target_.c_str(), &old) == 0;
  if (replaces) {
    chmod(temporary_.c_str(), old.st_mode & 07777);
    FlushToDisk(temporary_);
  }
  int reason = 0;
  if (mayReplace_) {
    if (rename(temporary_.c_str(), target_.c_str()) != 0) reason = errno;
  } else {
    reason = RenameAsNew(temporary_.c_str(), target_.c_str());
  }
  if (reason == EEXIST && !mayReplace_) FailExists(shown_);
  if (reason != 0) FailInput(shown_.string(), "cannot be written: " + SystemReason(reason));
  temporary_.clear();
  SetUnfinishedFile({});
}

void RequireWritableTarget(const fs::path& target) {
  std::error_code fault;
  if (target.filename().empty() || fs::is_directory(target, fault)) {
    FailUse(target.string(), "is a folder", "name a file");
  }
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  if (!fs::is_directory(folder, fault)) {
    FailUse(target.string(), "its folder does not exist", "make it first");
  }
}

}  // namespace tarnwick
