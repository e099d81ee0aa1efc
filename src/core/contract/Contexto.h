#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/contract/Entorno.h"
#include "core/contract/cConstante.h"

namespace fidaleon {

inline constexpr const char* MODULO = "FidaleonNucleo";

class Memoria;
class TransaccionSinVuelta;

/// What the operations and dialogs of the library share: the environment, and the one slot that
/// keeps the host's configuration from call to call. Owned by cNucleo; dialogs hold a reference.
struct Contexto {
  explicit Contexto(Entorno& environment) : entorno(environment) {}

  Entorno& entorno;
  /// Not owned; null until the first operation has set it.
  const FDAPI::cConfig* gobjConfig = nullptr;
  std::string tituloAplicacion;
  std::string ficheroAyuda;
  /// Those that stand open, the innermost last; kept by themselves.
  mutable std::vector<TransaccionSinVuelta*> transacciones;
  /// What has been written at this desk; made by who first asks for it.
  mutable std::shared_ptr<Memoria> memoria;

  forms::UserInterface& ui() const { return entorno.ui; }
  std::unique_ptr<FDAPI::cFidaleon> fidaleon() const { return entorno.support.create_cFidaleon(); }
  cConstante constante() const;
  bool edicion(const char* aplicacion) const;
  /// The configuration, or the defaults while no operation has set one.
  const FDAPI::cConfig& config() const;
  /// Usuario, backslash, Idioma, backslash, group: the section of a setting.
  std::string seccion(const std::string& grupo) const;
  std::string leerAjuste(const std::string& grupo, const std::string& clave) const;
  void guardarAjuste(const std::string& grupo, const std::string& clave, const std::string& valor);
  /// Today as "yyyymmdd".
  std::string hoy() const;
};

/// The directory of a database: its "DATA SOURCE" up to and without the last separator.
std::string directorioDe(const FDAPI::Conexion& conexion);
/// A lock session opened on the directory of the database.
std::unique_ptr<FDAPI::cProcesarBloqueos> abrirSesion(Contexto& contexto,
                                                      const FDAPI::Conexion& conexion);

}  // namespace fidaleon
