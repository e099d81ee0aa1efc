#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"
#include "forms/Controls.h"

namespace fidaleon {

/// A baptism that a pair of surnames led to.
struct FilaBusqueda {
  std::int32_t IDBautismo = 0;
  std::string Nombre;
  std::string PrimerApellido;
  std::string SegundoApellido;
  std::string FechaBautismo;
  std::int32_t CodPadres = 0;
  std::int32_t CodMadres = 0;
  std::int32_t CodMatrimonio = 0;
};

/// The two surnames of one person in an entry dialog, and the search in the books of baptism that
/// leaving them starts. Each pair is looked for once.
class BusquedaPorApellidos {
 public:
  /// Controls and sacrament outlive it.
  BusquedaPorApellidos(const Sacramento& sacramento, const forms::TextBox& primero,
                       const forms::TextBox& segundo)
      : sacramento_(sacramento), primero_(primero), segundo_(segundo) {}

  /// No pair has been looked for, but the one that stands there if it came with the entry.
  void empezar() { buscados_.clear(); }
  void empezarConElPar() { buscados_ = {par()}; }

  /// True the first time for each pair with a first surname.
  bool toca();
  /// Whether going on to `siguiente` leaves the surnames.
  bool sale(const forms::Control* siguiente) const;
  /// As the caption of the look-up shows them.
  std::string apellidos() const;

  /// The baptisms with exactly these surnames that stand in books no younger than the entry's; in
  /// all books for a request, or when there is none so old. Never a request.
  std::vector<FilaBusqueda> buscar(FDAPI::Conexion& conexion, const forms::ComboBox& institucion,
                                   const forms::ComboBox& libro, bool solicitud) const;

 private:
  std::pair<std::string, std::string> par() const;

  const Sacramento& sacramento_;
  const forms::TextBox& primero_;
  const forms::TextBox& segundo_;
  std::set<std::pair<std::string, std::string>> buscados_;
};

}  // namespace fidaleon
