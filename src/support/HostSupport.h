#pragma once

#include <memory>
#include <string>

#include "core/contract/Entorno.h"
#include "locks/MeetingPlace.h"
#include "support/ErrorLog.h"

namespace fidaleon::support {

/// Makes the support objects of one installation. Nothing handed in is owned; all of it must
/// outlive the factory and what it made.
class HostSupport : public SupportFactory {
 public:
  /// `config` is read when an object is made, so a change of user counts from the next one.
  /// `host` names this machine to users of others; empty takes the system's own name. `meet` makes
  /// what lock sessions meet at.
  HostSupport(forms::UserInterface& ui, Settings& settings, const Clock& clock,
              const FDAPI::cConfig& config, std::string host = {},
              locks::Meet meet = locks::meetingAt);

  std::unique_ptr<FDAPI::cFidaleon> create_cFidaleon() override;
  std::unique_ptr<FDAPI::cIListas> create_cIListas() override;
  std::unique_ptr<FDAPI::cProcesarBloqueos> create_cProcesarBloqueos() override;
  std::unique_ptr<FDAPI::cInformes> create_cInformes() override;

  /// Those that its objects have told the user of.
  ErrorLog& errors() { return errors_; }

 private:
  forms::UserInterface& ui_;
  Settings& settings_;
  const Clock& clock_;
  const FDAPI::cConfig& config_;
  std::string host_;
  locks::Meet meet_;
  ErrorLog errors_;
};

}  // namespace fidaleon::support
