#pragma once

#include <stdexcept>

namespace fidaleon::dbase {

/// A table that cannot be read, or not without the risk of reading it wrongly. what() says why, in
/// Spanish, fit to be shown.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace fidaleon::dbase
