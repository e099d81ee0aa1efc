#pragma once

#include <stdexcept>
#include <string>

namespace fidaleon::paper {

/// Kinds that callers tell apart; what() is a message in Spanish, fit to be shown.
enum class ErrorKind {
  MissingTemplate,  // no such file, or it cannot be read
  BrokenTemplate,   // it cannot be understood; the message names file and line
  MissingColumn,    // it asks for a column that its table does not have
  BadOrder,         // an order string that cannot be understood, or that names an unknown formula
  CannotWrite,      // the PDF cannot be written there
  NoPrinter,
  Cancelled,
};

class Error : public std::runtime_error {
 public:
  Error(ErrorKind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}
  ErrorKind kind() const { return kind_; }

 private:
  ErrorKind kind_;
};

}  // namespace fidaleon::paper
