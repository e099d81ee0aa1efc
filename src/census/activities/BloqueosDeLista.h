#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "core/contract/SesionBloqueos.h"

namespace fidaleon {

/// The locks of a dialog that adds to and takes from the rows of another table, held until it
/// closes: the whole table while rows wait to be stored, and each stored row that is to go. The
/// session is the dialog's own.
class BloqueosDeLista {
 public:
  BloqueosDeLista(Contexto& contexto, FDAPI::Conexion& conexion, const char* tabla,
                  const char* clave);

  /// Before a row is added. False: another has the table, and the user knows.
  bool tomarTabla();
  /// A row that was added is not to be after all. The table is given back with the last.
  void unaMenos();
  enum class Registro { TOMADO, OCUPADO, NO_EXISTE };
  /// Before a stored row is changed or marked as gone. The user knows why it is not taken.
  Registro tomarRegistro(std::int32_t id);
  void soltarRegistro(std::int32_t id);

 private:
  void liberar(const std::string& nombre);

  SesionBloqueos sesion_;
  const char* tabla_;
  const char* clave_;
  std::int32_t lngContador_ = 1;  // 1 stands for the dialog itself
  std::set<std::int32_t> registros_;
};

}  // namespace fidaleon
