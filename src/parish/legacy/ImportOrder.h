#pragma once

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace fidaleon::app {

/// What somebody wants to have imported from the older program.
struct ImportOrder {
  struct Register {
    std::filesystem::path folder;  // of its table; empty: it is left out
    bool useParish = false;        // the three that follow are used
    std::string parish, diocese, town, province;
    int format = 0;  // key of the books' format
  };
  std::filesystem::path parish;       // folder of the parish that gets it
  std::array<Register, 4> registers;  // baptism, confirmation, marriage, death
  std::string institution;            // short name or key; empty: the only one
  std::string year00 = "20";          // what stands in front of the year "00"
  bool nameFirst = true;              // in a full name
  std::string codePage;               // empty: what the tables say
  bool trial = false;                 // count everything, write nothing
  std::filesystem::path report;       // where it is saved; empty: beside the parish
};

/// The file or what it asks for cannot be understood or done. what() is in Spanish.
class WrongOrder : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the lines "clave = valor" of a text file in UTF-8; "#" begins a remark. Paths count from
/// the folder of the file. Throws WrongOrder.
ImportOrder readOrder(const std::filesystem::path& file);

}  // namespace fidaleon::app
