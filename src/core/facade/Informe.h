#pragma once

#include <optional>
#include <stdexcept>
#include <utility>

#include "core/facade/Documentos.h"
#include "core/facade/Operacion.h"

namespace fidaleon {

/// The line of the catalogue that an operation stands in.
template <class... Argumentos>
const Documento& lineaDe(void (cNucleo::*operacion)(FDAPI::Conexion&, FDAPI::Conexion&,
                                                    std::int32_t, Argumentos...)) {
  for (const Documento& d : documentos())
    if (const auto* paso = std::get_if<PasoDocumento<Argumentos...>>(&d.paso))
      if (paso->operacion == operacion) return d;
  throw std::logic_error("Operación sin documento en el catálogo");
}

/// Takes the lock on the entry or the book that the document is of. False when it is refused.
bool bloquearOrigen(SesionBloqueos& sesion, const Documento& documento, std::int32_t lngID);

/// Passes a command on to cInformes while the record is locked, for as long as the document is
/// being written.
template <class... Argumentos, class... Dados>
void informe(Contexto& contexto,
             void (cNucleo::*cual)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t, Argumentos...),
             FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes, std::int32_t lngID,
             Dados&&... argumentos) {
  const Documento& documento = lineaDe(cual);
  operacion(contexto, documento.operacion, [&] {
    std::optional<SesionBloqueos> sesion;
    if (documento.bloquea &&
        !bloquearOrigen(sesion.emplace(contexto, conFidaleon), documento, lngID))
      return;
    cInformes informes(contexto);
    const auto miembro = std::get<PasoDocumento<Argumentos...>>(documento.paso).miembro;
    (informes.*miembro)(conFidaleon, conInformes, lngID, std::forward<Dados>(argumentos)...);
  });
}

}  // namespace fidaleon
