#include "core/contract/SesionBloqueos.h"

#include "core/contract/Bloqueos.h"

namespace fidaleon {

namespace {

/// What is refused can still be looked at, and the message says so. Asked for before each attempt.
void soloConsultaAlRehusar(FDAPI::cProcesarBloqueos& sesion) {
  for (const auto error :
       {FDAPI::BloqueoRegistro, FDAPI::BloqueoRegistroConPadres, FDAPI::BloqueoTabla})
    sesion.AlRehusar(error, SesionBloqueos::SOLO_CONSULTA);
}

}  // namespace

SesionBloqueos::~SesionBloqueos() {
  try {
    if (!rehusado_) sesion_->LiberarBloqueos();
  } catch (const std::exception&) {
    // Dropping the session gives back what could not be given back here.
  }
}

void SesionBloqueos::tabla(const char* nombre) {
  definir(bloqueoDeTabla(nombre));
}

void SesionBloqueos::tabla(const char* nombre, std::int32_t contador) {
  FDAPI::DefinicionBloqueo bloqueo = bloqueoDeTabla(nombre);
  bloqueo.lngContador = contador;
  definir(std::move(bloqueo));
}

void SesionBloqueos::tablasCompartidas(std::initializer_list<const char*> nombres) {
  for (const char* nombre : nombres) definir(bloqueoDeTablaCompartida(nombre));
}

void SesionBloqueos::registros(const char* nombreTabla, const std::string& cuales) {
  FDAPI::DefinicionBloqueo bloqueo = bloqueoDeTabla(nombreTabla);
  bloqueo.strRegistro = cuales;
  bloqueo.conBd = &conexion_;
  definir(std::move(bloqueo));
}

void SesionBloqueos::registrosCompartidos(const char* nombreTabla, const std::string& cuales) {
  FDAPI::DefinicionBloqueo bloqueo = bloqueoDeTabla(nombreTabla);
  bloqueo.blnBloqueoParcialRegistro = true;
  bloqueo.strRegistro = cuales;
  bloqueo.conBd = &conexion_;
  definir(std::move(bloqueo));
}

void SesionBloqueos::registro(const char* nombreTabla, std::int32_t id, const std::string& existe,
                              const std::string& siNoExiste) {
  FDAPI::DefinicionBloqueo bloqueo = bloqueoDeRegistro(conexion_, nombreTabla, id, existe);
  bloqueo.strNoExiste = siNoExiste;
  definir(std::move(bloqueo));
}

void SesionBloqueos::registroPorClave(const char* nombreTabla, const char* clave, std::int32_t id) {
  definir(bloqueoDeRegistro(conexion_, nombreTabla, clave, id));
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

long SesionBloqueos::intentarParaAbrir(const char* sinLoCompartido) {
  soloConsultaAlRehusar(*sesion_);
  sesion_->AlRehusar(FDAPI::BloqueoCompartido, sinLoCompartido);
  return intentar();
}

std::string SesionBloqueos::motivo() const {
  const std::string quien = poseedor();
  return SOLO_CONSULTA + std::string(": ") +
         (quien.empty() ? "los datos no se han podido reservar." : "lo tiene " + quien + ".");
}

forms::ReadOnly SesionBloqueos::aviso() {
  return {motivo(), [this]() -> std::optional<std::string> {
            try {
              soloConsultaAlRehusar(*sesion_);
              if (efectuar()) return std::nullopt;
            } catch (const std::exception&) {
              // The bar says that it could not be had.
            }
            return motivo();
          }};
}

SesionBloqueos::Apertura SesionBloqueos::efectuarParaAbrir() {
  const long error = intentarParaAbrir();
  if (rehusado_) return Apertura::NINGUNA;
  return error == FDAPI::BloqueoNinguno ? Apertura::NORMAL : Apertura::SOLO_LECTURA;
}

SesionBloqueos::Apertura SesionBloqueos::efectuarParaFicha() {
  sesion_->AlRehusar(FDAPI::BloqueoRegistro, SOLO_CONSULTA);
  const long error = intentar();
  if (error == FDAPI::BloqueoNinguno) return Apertura::NORMAL;
  rehusado_ = true;
  return error == FDAPI::BloqueoRegistro || error == FDAPI::BloqueoSesion ? Apertura::SOLO_LECTURA
                                                                          : Apertura::NINGUNA;
}

}  // namespace fidaleon
