#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/contract/Entorno.h"
#include "locks/LockSet.h"
#include "locks/MeetingPlace.h"

namespace fidaleon::locks {

/// A lock session where the workstations of a parish meet. What it holds vanishes with it, and with
/// the process however that ends. Definitions that were refused are forgotten when the next one is
/// added, so that a dialog may go on to something else; asked again without a new one, they are
/// tried again.
class ProcesarBloqueos : public FDAPI::cProcesarBloqueos {
 public:
  /// `user` and `host` are shown to whoever is refused.
  ProcesarBloqueos(forms::UserInterface& ui, const Clock& clock, std::string user, std::string host,
                   Meet meet = meetingAt);

  void Inicializar(const std::string& strDirectorioTemporal) override;
  void DefinirBloqueo(FDAPI::DefinicionBloqueo definicion) override;
  long lngEfectuarBloqueos(bool blnSoloComprobar = false) override;
  long lngUltimoBloqueoError() const override { return lastError_; }
  void AlRehusar(FDAPI::ErrorBloqueo error, const std::string& strConsecuencia) override;
  std::string strPoseedor() const override { return lastHolder_; }
  void LiberarBloqueo(const std::string& strTabla) override;
  void LiberarBloqueos() override;

 private:
  struct Outcome {
    long error = FDAPI::BloqueoNinguno;
    std::string message;
    std::string holder;
  };
  Outcome attempt(bool onlyTest);
  Outcome refused(const MeetingPlace::Clash& clash) const;
  Outcome tryAll(bool onlyTest, LockSet& taken);
  std::optional<MeetingPlace::Clash> take(const LockSet& wanted, LockSet& taken);
  bool extend(LockSet& wanted) const;
  Outcome whatIsGone() const;
  bool missing(const FDAPI::DefinicionBloqueo& definition) const;
  std::vector<LockEntry> resolve(const FDAPI::DefinicionBloqueo& definition) const;
  long errorFor(Kind kind) const;
  bool sharesRecord() const;
  void giveBack(const std::function<bool(const LockEntry&)>& which);
  Holder self() const;

  forms::UserInterface& ui_;
  const Clock& clock_;
  std::string user_;
  std::string host_;
  Meet meet_;
  std::unique_ptr<MeetingPlace> meeting_;
  std::vector<FDAPI::DefinicionBloqueo> pending_;
  bool pendingRefused_ = false;
  LockSet held_;
  std::map<long, std::string> consequences_;  // of a refusal, by its kind
  long lastError_ = FDAPI::BloqueoNinguno;
  std::string lastHolder_;
};

}  // namespace fidaleon::locks
