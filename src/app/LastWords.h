#pragma once

#include <filesystem>

#include "app/FormWatch.h"

namespace fidaleon::app {

/// While one of these lives, an error that nobody caught saves what stands in the open forms into
/// the directory before the program ends. One at a time.
class LastWords {
 public:
  LastWords(const FormWatch& watch, std::filesystem::path directory);
  ~LastWords();
  LastWords(const LastWords&) = delete;
  LastWords& operator=(const LastWords&) = delete;

  /// Tells the user what happened and where the draft is, and ends the program. Fit for
  /// std::set_terminate and for a catch block.
  [[noreturn]] static void speakAndEnd();
  /// The same without the end: saves the draft and gives the words.
  static std::string prepare();

 private:
  const FormWatch& watch_;
  std::filesystem::path directory_;
};

}  // namespace fidaleon::app
