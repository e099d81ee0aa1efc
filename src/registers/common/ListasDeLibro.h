#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"
#include "core/contract/SesionBloqueos.h"
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
  /// The host's dialog for a new institution; what was added is chosen. Cancelled, it leaves the
  /// list as it is.
  void agregarInstitucion();
  /// Chooses a book that was added from inside, and holds it as long as the dialog lives: nobody
  /// deletes it before the entry is in it. Refused, as the user is told, none is chosen; a book
  /// that this list does not offer leaves `elegido` chosen.
  void elegirAgregado(const std::string& libro, std::int64_t elegido);

 private:
  void cargarLibros(const std::string& condicion);

  Contexto& contexto_;
  const Sacramento& sacramento_;
  forms::ComboBox& institucion_;
  forms::ComboBox& libro_;
  FDAPI::Conexion* conexion_ = nullptr;
  std::optional<SesionBloqueos> libros_;
};

}  // namespace fidaleon
