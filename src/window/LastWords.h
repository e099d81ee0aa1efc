#pragma once

#include <string>

#include "drafts/FormWatch.h"

namespace fidaleon::app {

/// While one of these lives, an error that nobody caught keeps what stands in the open forms as a
/// draft before the program ends. One at a time.
class LastWords {
 public:
  explicit LastWords(FormWatch& watch);
  ~LastWords();
  LastWords(const LastWords&) = delete;
  LastWords& operator=(const LastWords&) = delete;

  /// Tells the user what happened and that there is a draft, and ends the program. Fit for
  /// std::set_terminate and for a catch block.
  [[noreturn]] static void speakAndEnd();
  /// The same without the end: keeps the draft and gives the words.
  static std::string prepare();

 private:
  FormWatch& watch_;
};

}  // namespace fidaleon::app
