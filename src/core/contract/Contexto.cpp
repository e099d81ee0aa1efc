#include "core/contract/Contexto.h"

namespace fidaleon {

cConstante Contexto::constante() const {
  cConstante c;
  c.Aplicacion = entorno.installation.Aplicacion;
  c.INF_TipoAplicacion = entorno.installation.INF_TipoAplicacion;
  return c;
}

bool Contexto::edicion(const char* aplicacion) const {
  return constante().Aplicacion == aplicacion;
}

const FDAPI::cConfig& Contexto::config() const {
  static const FDAPI::cConfig defaults;
  return gobjConfig ? *gobjConfig : defaults;
}

std::string Contexto::seccion(const std::string& grupo) const {
  return config().Usuario + "\\" + config().Idioma + "\\" + grupo;
}

std::string Contexto::leerAjuste(const std::string& grupo, const std::string& clave) const {
  return entorno.settings.read(config().AppTitle, seccion(grupo), clave);
}

void Contexto::guardarAjuste(const std::string& grupo, const std::string& clave,
                             const std::string& valor) {
  entorno.settings.write(config().AppTitle, seccion(grupo), clave, valor);
}

std::string Contexto::hoy() const {
  return text::toStored(entorno.clock.today());
}

std::string directorioDe(const FDAPI::Conexion& conexion) {
  const std::string source = conexion.Properties("DATA SOURCE").Value;
  return source.substr(0, source.find_last_of("\\/"));
}

std::unique_ptr<FDAPI::cProcesarBloqueos> abrirSesion(Contexto& contexto,
                                                      const FDAPI::Conexion& conexion) {
  auto session = contexto.entorno.support.create_cProcesarBloqueos();
  session->Inicializar(directorioDe(conexion));
  return session;
}

}  // namespace fidaleon
