#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"
#include "forms/Controls.h"

namespace fidaleon {

/// The lists of institutions and books at the head of an entry dialog, which owns them. Errors
/// are thrown to the guard of the dialog's procedure.
class ListasDeLibro {
 public:
  ListasDeLibro(Contexto& contexto, const Sacramento& sacramento, forms::ComboBox& institucion,
                forms::ComboBox& libro);

  /// The connection is not owned.
  void abrir(FDAPI::Conexion& conexion) { conexion_ = &conexion; }
  /// All institutions, or the one alone and chosen.
  void cargarInstituciones(std::int32_t id);
  /// The books of the chosen institution: new ones that are open, or old ones.
  void CargarComboLibrosNuevos();
  void CargarComboLibrosAntiguos();
  /// Puts one book alone into the list and chooses it.
  void fijarLibro(std::int32_t id, const std::string& nombre);

  /// Chooses the institution used last, if the list holds it.
  void elegirUltimaInstitucion();
  void guardarUltimaInstitucion();
  /// The host's dialog for a new institution; what was added is chosen.
  void agregarInstitucion();

 private:
  void cargarLibros(const std::string& condicion);

  Contexto& contexto_;
  const Sacramento& sacramento_;
  forms::ComboBox& institucion_;
  forms::ComboBox& libro_;
  FDAPI::Conexion* conexion_ = nullptr;
};

}  // namespace fidaleon
