// The members that write entries and books: what each writes is its line in documents::miembros.

#include "core/contract/Sacramento.h"
#include "documents/cInformes.h"

namespace fidaleon {

#define IMPRIMIR(nombre)                                                             \
  void cInformes::nombre(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes, \
                         std::int32_t lngID) {                                       \
    escribir(#nombre, conFidaleon, conInformes, lngID);                              \
  }
#define IMPRIMIR_FIRMADO(nombre)                                                     \
  void cInformes::nombre(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes, \
                         std::int32_t lngID, const std::string& strEncargado,        \
                         const std::string& strFecha) {                              \
    escribir(#nombre, conFidaleon, conInformes, lngID, {strEncargado, strFecha});    \
  }

IMPRIMIR_FIRMADO(ImprimirCertificadoPartidaBautismo)
IMPRIMIR_FIRMADO(ImprimirCertificadoPartidaBautismoMenorca)
IMPRIMIR_FIRMADO(ImprimirCertificadoLiteralPartidaBautismo)
IMPRIMIR_FIRMADO(ImprimirCertificadoLiteralPartidaBautismoMenorca)
IMPRIMIR(ImprimirPartidaBautismo)
IMPRIMIR(ImprimirPartidaBautismoMenorca)
IMPRIMIR(ImprimirVolanteBautismo)
IMPRIMIR(ImprimirSolicitudPartidaBautismoDatos)
IMPRIMIR(ImprimirSolicitudPartidaBautismoDatosMenorca)
IMPRIMIR(ImprimirSolicitudPartidaBautismoDatosSantiago)
IMPRIMIR(ImprimirLibroBautismo)
IMPRIMIR(ImprimirLibroBautismoMenorca)
IMPRIMIR(ImprimirIndiceLibroBautismo)

IMPRIMIR_FIRMADO(ImprimirCertificadoPartidaConfirmacion)
IMPRIMIR_FIRMADO(ImprimirCertificadoPartidaConfirmacionMenorca)
IMPRIMIR_FIRMADO(ImprimirCertificadoLiteralPartidaConfirmacion)
IMPRIMIR_FIRMADO(ImprimirCertificadoLiteralPartidaConfirmacionMenorca)
IMPRIMIR(ImprimirPartidaConfirmacion)
IMPRIMIR(ImprimirPartidaConfirmacionMenorca)
IMPRIMIR(ImprimirNotificacionConfirmacion)
IMPRIMIR(ImprimirNotificacionConfirmacionMenorca)
IMPRIMIR(ImprimirSolicitudConfirmacion)
IMPRIMIR(ImprimirLibroConfirmacion)
IMPRIMIR(ImprimirLibroConfirmacionMenorca)
IMPRIMIR(ImprimirIndiceLibroConfirmacion)

IMPRIMIR_FIRMADO(ImprimirCertificadoPartidaDefuncion)
IMPRIMIR_FIRMADO(ImprimirCertificadoPartidaDefuncionMenorca)
IMPRIMIR_FIRMADO(ImprimirCertificadoLiteralPartidaDefuncion)
IMPRIMIR_FIRMADO(ImprimirCertificadoLiteralPartidaDefuncionMenorca)
IMPRIMIR(ImprimirLibroDefuncion)
IMPRIMIR(ImprimirLibroDefuncionMenorca)
IMPRIMIR(ImprimirIndiceLibroDefuncion)

#undef IMPRIMIR
#undef IMPRIMIR_FIRMADO

void cInformes::ImprimirPartidaDefuncion(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                         std::int32_t lngID) {
  escribirConFecha(__func__, DEFUNCION.palabra, conFidaleon, conInformes, lngID);
}

void cInformes::ImprimirPartidaDefuncionMenorca(FDAPI::Conexion& conFidaleon,
                                                FDAPI::Conexion& conInformes, std::int32_t lngID) {
  escribirConFecha(__func__, DEFUNCION.palabra, conFidaleon, conInformes, lngID);
}

}  // namespace fidaleon
