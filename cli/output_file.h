#pragma once
#include <filesystem>
#include <string>

namespace tarnwick {

// A file that comes into being whole or not at all: it is written under another
// name in the same folder and renamed by Commit.
//
// The temporary name has the target's extension, by which picture writers go.
// It is removed by the destructor without a Commit, and by a signal that ends
// the program. A target that is a link is followed: the file it leads to is
// replaced, with its permissions kept.
//
// Errors  CliError (input failed) when the folder cannot be written to, when
//         the target exists and must not be replaced, when the rename fails.
class OutputFile {
 public:
  OutputFile(const std::filesystem::path& target, bool mayReplace);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // An empty file, to be written over.
  [[nodiscard]] const std::string& TemporaryPath() const { return temporary_; }

  void Commit();

 private:
  std::filesystem::path shown_;   // as the user wrote it, for messages
  std::filesystem::path target_;  // links followed
  std::string temporary_;
  bool mayReplace_;
};

// Wrong use, without touching anything, when `target` cannot be a result: a
// folder, or in a folder that does not exist.
void RequireWritableTarget(const std::filesystem::path& target);

}  // namespace tarnwick
