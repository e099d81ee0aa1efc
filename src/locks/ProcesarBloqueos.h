#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/contract/Entorno.h"
#include "locks/LockSet.h"
#include "locks/SharedDirectory.h"

namespace fidaleon::locks {

/// A lock session on a shared directory. What it holds vanishes with it, and with the process
/// however that ends. Definitions that were refused are forgotten when the next one is added, so
/// that a dialog may go on to something else; asked again without a new one, they are tried again.
class ProcesarBloqueos : public FDAPI::cProcesarBloqueos {
 public:
  /// `user` and `host` are shown to whoever is refused.
  ProcesarBloqueos(forms::UserInterface& ui, const Clock& clock, std::string user,
                   std::string host);
  ~ProcesarBloqueos() override;

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
  Outcome refused(const LockEntry& wanted, const HeldEntry& held) const;
  Outcome tryAll(const SharedDirectory::Guard& guard, LockSet& wanted);
  bool missing(const FDAPI::DefinicionBloqueo& definition) const;
  std::vector<LockEntry> resolve(const FDAPI::DefinicionBloqueo& definition) const;
  long errorFor(Kind kind) const;
  bool sharesRecord() const;
  void keep(const SharedDirectory::Guard& guard, std::vector<HeldEntry> wanted);
  Holder self() const;

  forms::UserInterface& ui_;
  const Clock& clock_;
  std::string user_;
  std::string host_;
  std::optional<SharedDirectory> directory_;
  std::vector<FDAPI::DefinicionBloqueo> pending_;
  bool pendingRefused_ = false;
  LockSet held_;
  std::map<long, std::string> consequences_;  // of a refusal, by its kind
  long lastError_ = FDAPI::BloqueoNinguno;
  std::string lastHolder_;
};

}  // namespace fidaleon::locks
