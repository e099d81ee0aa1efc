#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// The locks of one operation. Define them all, take them as one step; what is held is given back
/// at the end of the block. After a refusal there is nothing to give back.
class SesionBloqueos {
 public:
  SesionBloqueos(Contexto& contexto, FDAPI::Conexion& conexion)
      : conexion_(conexion), sesion_(abrirSesion(contexto, conexion)) {}
  ~SesionBloqueos();
  SesionBloqueos(const SesionBloqueos&) = delete;
  SesionBloqueos& operator=(const SesionBloqueos&) = delete;

  void definir(FDAPI::DefinicionBloqueo bloqueo) { sesion_->DefinirBloqueo(std::move(bloqueo)); }
  void tabla(const char* nombre);
  void tablasCompartidas(std::initializer_list<const char*> nombres);
  /// `cuales` is a statement that gives their keys.
  void registros(const char* nombreTabla, const std::string& cuales);
  void registrosCompartidos(const char* nombreTabla, const std::string& cuales);
  /// `existe` is a statement that gives a row as long as the record is there.
  void registro(const char* nombreTabla, std::int32_t id, const std::string& existe);

  /// False when the operation has to end here; the user knows why.
  bool efectuar();
  /// The same without holding anything.
  bool comprobar();

  /// For those who go on with what they got: 0 or what could not be had (FDAPI::ErrorBloqueo).
  long intentar();

  enum class Apertura { NINGUNA, SOLO_LECTURA, NORMAL };
  /// For an entry that may also be looked at while another works on it.
  Apertura efectuarParaAbrir();

 private:
  FDAPI::Conexion& conexion_;
  std::unique_ptr<FDAPI::cProcesarBloqueos> sesion_;
  bool rehusado_ = false;
};

}  // namespace fidaleon
