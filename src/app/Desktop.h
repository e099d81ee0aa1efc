#pragma once

#include <filesystem>
#include <memory>

#include "app/Desk.h"
#include "app/FormWatch.h"
#include "app/MainWindow.h"
#include "app/OpeningFault.h"
#include "app/Preferences.h"
#include "qt/QtUserInterface.h"
#include "support/Clocks.h"
#include "support/FileSettings.h"

namespace fidaleon::app {

/// The program with a window: finds the parish, or makes one with its user, and works on it until
/// the window is closed. Needs a running QApplication.
class Desktop {
 public:
  Desktop();
  /// `asked` is the directory given by the user; empty takes the one of the last run. The answer
  /// is the exit code.
  int run(const std::filesystem::path& asked);

 private:
  std::filesystem::path usualDirectory() const;
  bool isFirstRun(const ParishFiles& files) const;
  bool createFirst(ParishFiles& files);
  std::unique_ptr<Desk> open(ParishFiles& files);
  std::string user() const;
  void remember(const ParishFiles& files);
  void returnToCopy(const ParishFiles& files);
  bool tryRemedy(const OpeningFault& fault, ParishFiles& files);
  void chooseFolder(ParishFiles& files) const;
  Departure work(Desk& desk);

  support::FileSettings settings_;
  support::SystemClock clock_;
  Preferences preferences_;
  qt::QtUserInterface person_;
  FormWatch watch_{person_};
  bool returning_ = false;  // to a copy, before the parish is opened again
};

}  // namespace fidaleon::app
