#pragma once

#include <filesystem>
#include <memory>

#include "drafts/FormWatch.h"
#include "parish/Desk.h"
#include "parish/OpeningFault.h"
#include "parish/Preferences.h"
#include "qt/QtUserInterface.h"
#include "support/Clocks.h"
#include "support/FileSettings.h"
#include "window/MainWindow.h"
#include "window/ParishDoor.h"
#include "window/help/Help.h"

namespace fidaleon::app {

/// The program with a window: finds the parish, or makes one with its user, and works on it until
/// the window is closed or the user goes over to another. Of a parish that is left nothing stays
/// open. Needs a running QApplication.
class Desktop {
 public:
  Desktop();
  /// `asked` is the directory given by the user; empty takes the one of the last run. The answer
  /// is the exit code.
  int run(const std::filesystem::path& asked);

 private:
  std::filesystem::path usualDirectory() const;
  bool isFirstRun(const ParishFiles& files) const;
  std::optional<ParishFiles> first(const std::filesystem::path& asked);
  std::optional<ParishFiles> start();
  std::unique_ptr<Desk> open(ParishFiles& files);
  std::string user() const;
  void remember(Desk& desk);
  void returnToCopy(const ParishFiles& files);
  bool tryRemedy(const OpeningFault& fault, ParishFiles& files);
  Departure work(Desk& desk);
  /// The folder to work on then.
  std::filesystem::path move(const MoveOrder& order);

  support::FileSettings settings_;
  support::SystemClock clock_;
  ParishDoor door_{settings_, clock_};
  qt::QtUserInterface person_;
  DraftFolder drafts_{draftDirectory()};
  FormWatch watch_{person_, drafts_, clock_};
  Help help_;
  bool returning_ = false;  // to a copy, before the parish is opened again
  bool settled_ = false;    // that it is this one, of two that a move has left
};

}  // namespace fidaleon::app
