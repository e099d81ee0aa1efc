#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "files/PrivateFile.h"

namespace fidaleon::app {

/// The folder in which the programs of one account keep what is being typed, one file for each
/// running program. Folder and files are for their owner alone, and no link is followed. A draft
/// outlives its program, however that ends, and is then there for the next one.
class DraftFolder {
 public:
  explicit DraftFolder(std::filesystem::path folder);
  ~DraftFolder();
  DraftFolder(const DraftFolder&) = delete;
  DraftFolder& operator=(const DraftFolder&) = delete;

  /// Puts this in place of this program's draft; on the disk, whole, when it returns. Throws
  /// std::system_error, and the draft before it still stands.
  void keep(const std::string& content);
  /// Leaves this as if a program that has ended had left it. Throws as keep() does.
  void leave(const std::string& content);
  /// This program's draft goes, and with it what it has taken over.
  void drop();

  struct Left {
    std::filesystem::path file;
    std::string content;
  };
  /// What programs have left that have ended. Of a program of which that cannot be told nothing.
  std::vector<Left> left() const;
  /// Makes it this program's, to go with its draft. False when another program was quicker.
  bool take(Left& left);
  static void remove(const Left& left);

 private:
  void prepare();
  void write(const std::string& content, const std::string& session) const;
  bool hasEnded(const std::string& session) const;
  std::filesystem::path named(const std::string& session, const char* ending) const;

  std::filesystem::path folder_;
  std::string session_;
  files::Descriptor alive_;  // holds the sign of life
};

/// "fidaleon/borradores" where the account keeps the state of its programs ($XDG_STATE_HOME or
/// ~/.local/state).
std::filesystem::path draftDirectory();

}  // namespace fidaleon::app
