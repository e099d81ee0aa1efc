#include "core/contract/SesionBloqueos.h"

namespace fidaleon {

SesionBloqueos::~SesionBloqueos() {
  try {
    if (!rehusado_) sesion_->LiberarBloqueos();
  } catch (const std::exception&) {
    // Dropping the session gives back what could not be given back here.
  }
}

void SesionBloqueos::tabla(const char* nombre) {
  FDAPI::DefinicionBloqueo bloqueo;
  bloqueo.strTabla = nombre;
  sesion_->DefinirBloqueo(bloqueo);
}

void SesionBloqueos::tablasCompartidas(std::initializer_list<const char*> nombres) {
  for (const char* nombre : nombres) {
    FDAPI::DefinicionBloqueo bloqueo;
    bloqueo.strTabla = nombre;
    bloqueo.blnBloqueoParcialTabla = true;
    sesion_->DefinirBloqueo(bloqueo);
  }
}

void SesionBloqueos::registros(const char* nombreTabla, const std::string& cuales) {
  FDAPI::DefinicionBloqueo bloqueo;
  bloqueo.strTabla = nombreTabla;
  bloqueo.strRegistro = cuales;
  bloqueo.conBd = &conexion_;
  sesion_->DefinirBloqueo(bloqueo);
}

void SesionBloqueos::registrosCompartidos(const char* nombreTabla, const std::string& cuales) {
  FDAPI::DefinicionBloqueo bloqueo;
  bloqueo.strTabla = nombreTabla;
  bloqueo.blnBloqueoParcialRegistro = true;
  bloqueo.strRegistro = cuales;
  bloqueo.conBd = &conexion_;
  sesion_->DefinirBloqueo(bloqueo);
}

void SesionBloqueos::registro(const char* nombreTabla, std::int32_t id, const std::string& existe) {
  FDAPI::DefinicionBloqueo bloqueo;
  bloqueo.strTabla = nombreTabla;
  bloqueo.strRegistro = std::to_string(id);
  bloqueo.conBd = &conexion_;
  bloqueo.blnComprobarExisteRegistro = true;
  bloqueo.strSQLExisteRegistro = existe;
  sesion_->DefinirBloqueo(bloqueo);
}

bool SesionBloqueos::efectuar() {
  rehusado_ = sesion_->lngEfectuarBloqueos() != FDAPI::BloqueoNinguno;
  return !rehusado_;
}

bool SesionBloqueos::comprobar() {
  rehusado_ = sesion_->lngEfectuarBloqueos(true) != FDAPI::BloqueoNinguno;
  return !rehusado_;
}

long SesionBloqueos::intentar() {
  sesion_->lngEfectuarBloqueos();
  const long error = sesion_->lngUltimoBloqueoError();
  rehusado_ = error == FDAPI::BloqueoRegistroNoExiste || error == FDAPI::BloqueoSesion;
  return error;
}

SesionBloqueos::Apertura SesionBloqueos::efectuarParaAbrir() {
  const long error = intentar();
  if (rehusado_) return Apertura::NINGUNA;
  return error == FDAPI::BloqueoNinguno ? Apertura::NORMAL : Apertura::SOLO_LECTURA;
}

}  // namespace fidaleon
