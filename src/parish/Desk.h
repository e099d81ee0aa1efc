#pragma once

#include <string>

#include "core/facade/cNucleo.h"
#include "forms/PassedOn.h"
#include "parish/ParishFiles.h"
#include "parish/Presence.h"
#include "support/HostSupport.h"

namespace fidaleon::app {

/// An open parish with everything the library needs of the world around it. This is the one place
/// where they are put together; a window and a scripted walk-through use it alike.
class Desk {
 public:
  /// The user interface, the settings and the clock stay the caller's and must outlive the desk.
  /// Throws store::Error as openParish does, and what Presence throws.
  Desk(const ParishFiles& files, const std::string& user, forms::UserInterface& ui,
       Settings& settings, Clock& clock);
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  cNucleo& nucleo() { return nucleo_; }
  Entorno& entorno() { return entorno_; }
  const FDAPI::cConfig& config() const { return config_; }
  /// Whom all questions and messages of the library reach first: the user interface stands behind
  /// it, or who relieves that for a while.
  forms::PassedOn& front() { return front_; }
  store::Connection& parish() { return *open_.parish; }
  store::Connection& reports() { return *open_.reports; }
  const ParishFiles& files() const { return files_; }
  Presence& presence() { return *presence_; }
  /// What the user has been told of since the parish was opened.
  support::ErrorLog& errors() { return support_.errors(); }
  /// Short name of the first institution.
  std::string parishName();
  /// The same, and that it is a sample where it is one.
  std::string parishTitle();
  std::string edition() const { return editionName(entorno_.installation.Aplicacion); }

  /// Anything but None is for the user to hear, and all but NoteRestored to settle.
  EditionDoubt editionDoubt() const { return open_.doubt; }
  /// From now on, and on the disk. Throws store::Error.
  void setEdition(const std::string& code);

  /// Asks for what the documents need of each institution. False when the user gave up: the
  /// program then ends.
  bool setUp();

 private:
  ParishFiles files_;
  std::unique_ptr<Presence> presence_;  // before anything of the parish is touched
  OpenParish open_;
  FDAPI::cConfig config_;
  forms::PassedOn front_;
  support::HostSupport support_;
  Entorno entorno_;
  cNucleo nucleo_;
};

}  // namespace fidaleon::app
