#pragma once

#include <stdexcept>
#include <string>

namespace fidaleon::store {

/// Kinds that callers tell apart; what() is a message in Spanish, fit to be shown.
enum class ErrorKind {
  Syntax,       // the statement cannot be understood
  UnknownName,  // no such table or column
  Constraint,   // a key, a range or a type refuses the value
  TooLong,      // text longer than its column
  Busy,         // another program holds the database
  ReadOnly,
  DiskFull,
  NotADatabase,
  Missing,      // the file does not exist
  NewerSchema,  // written by a newer version of the program
  Connection,   // the file or the server cannot be reached
  Cancelled,    // the user has given it up
  Misuse,       // a record set used after Close or beyond its ends
  Other,
};

class Error : public std::runtime_error {
 public:
  Error(ErrorKind kind, const std::string& message, int number = 0)
      : std::runtime_error(message), kind_(kind), number_(number) {}
  ErrorKind kind() const { return kind_; }
  /// The engine's own number, 0 when there is none.
  int number() const { return number_; }

 private:
  ErrorKind kind_;
  int number_;
};

}  // namespace fidaleon::store
