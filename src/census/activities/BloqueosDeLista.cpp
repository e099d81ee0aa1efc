#include "census/activities/BloqueosDeLista.h"

namespace fidaleon {

BloqueosDeLista::BloqueosDeLista(Contexto& contexto, FDAPI::Conexion& conexion, const char* tabla,
                                 const char* clave)
    : sesion_(contexto, conexion), tabla_(tabla), clave_(clave) {}

bool BloqueosDeLista::tomarTabla() {
  sesion_.tabla(tabla_, lngContador_);
  if (!sesion_.efectuar()) return false;
  ++lngContador_;
  return true;
}

void BloqueosDeLista::unaMenos() {
  if (--lngContador_ == 1) liberar(tabla_);
}

BloqueosDeLista::Registro BloqueosDeLista::tomarRegistro(std::int32_t id) {
  sesion_.registroPorClave(tabla_, clave_, id);
  const long error = sesion_.intentar();
  if (error == FDAPI::BloqueoRegistroNoExiste) return Registro::NO_EXISTE;
  if (error != FDAPI::BloqueoNinguno) return Registro::OCUPADO;
  registros_.insert(id);
  return Registro::TOMADO;
}

void BloqueosDeLista::soltarRegistro(std::int32_t id) {
  registros_.erase(id);
  liberar(tabla_ + std::to_string(id));
}

/// The name of the table stands for its records too, and that of a record may be that of a counter:
/// what went with it by its name alone is taken again.
void BloqueosDeLista::liberar(const std::string& nombre) {
  sesion_.liberar(nombre);
  for (const std::int32_t id : registros_) sesion_.registroPorClave(tabla_, clave_, id);
  if (lngContador_ > 1) sesion_.tabla(tabla_, lngContador_ - 1);
  if (lngContador_ > 1 || !registros_.empty()) sesion_.efectuar();
}

}  // namespace fidaleon
