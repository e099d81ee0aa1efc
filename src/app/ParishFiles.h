#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "store/Connection.h"

namespace fidaleon::app {

/// The files of one parish: they lie together in one directory, which several workstations may
/// share.
struct ParishFiles {
  explicit ParishFiles(std::filesystem::path dir) : directory(std::move(dir)) {}

  std::filesystem::path directory;
  std::filesystem::path parish() const { return directory / "parroquia.fidaleon"; }
  std::filesystem::path note() const { return directory / "edicion.txt"; }
  /// Scratch tables belong to one user of one workstation, who keeps them beside the parish.
  std::filesystem::path reports() const;

  /// Also false for a directory that cannot be read.
  bool exists() const {
    std::error_code ignored;
    return std::filesystem::exists(parish(), ignored);
  }
};

/// Edition code of a parish; Madrid's when the note is missing or says something unknown.
std::string readEdition(const ParishFiles& files);
void writeEdition(const ParishFiles& files, const std::string& edition);

/// Name people know an edition by ("Madrid"); its code for one that is unknown.
std::string editionName(const std::string& code);

struct OpenParish {
  std::unique_ptr<store::Connection> parish;
  std::unique_ptr<store::Connection> reports;
  /// Set when the reports database was unusable: where the bad one was put aside.
  std::filesystem::path reportsPutAside;
};

/// Opens both databases. The reports database holds nothing that lasts: a missing one is made, a
/// bad one is put aside under another name and made anew. Throws store::Error for the parish's.
OpenParish openParish(const ParishFiles& files);

}  // namespace fidaleon::app
