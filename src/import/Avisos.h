#pragma once

#include "core/contract/Contexto.h"

namespace fidaleon {

/// Tells the user what could not be written. Where that is much, the user may leave the rest to the
/// report, which names all of it.
class Avisos {
 public:
  explicit Avisos(Contexto& contexto) : contexto_(contexto) {}

  /// `porque` stands in lines of its own below the text.
  void avisar(const std::string& texto, const std::string& porque = {}) {
    if (callar_) return;
    forms::warn(contexto_.ui(), texto, forms::MsgIcon::Exclamation, porque);
    if (++dados_ % SEGUIDOS == 0)
      callar_ = forms::ask(
          contexto_.ui(), "¿Seguir sin avisar de cada error?", {}, forms::Stake::Little,
          "Ya ha habido " + std::to_string(dados_) + ". El informe del final los nombra todos.");
  }

 private:
  static constexpr int SEGUIDOS = 3;

  Contexto& contexto_;
  int dados_ = 0;
  bool callar_ = false;
};

}  // namespace fidaleon
