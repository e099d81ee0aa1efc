#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "documents/cInformes.h"

namespace fidaleon {

namespace {

/// Passes a command that needs no lock on to cInformes.
template <class... Parametros, class... Dados>
void reenviar(Contexto& contexto, const char* nombre, void (cInformes::*miembro)(Parametros...),
              Dados&... argumentos) {
  operacion(contexto, nombre, [&] {
    cInformes informes(contexto);
    (informes.*miembro)(argumentos...);
  });
}

}  // namespace

void cNucleo::SelInfActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes) {
  reenviar(contexto_, "SelInfActividad", &cInformes::SelInfActividad, conFidaleon, conInformes);
}

void cNucleo::SelInfColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes) {
  reenviar(contexto_, "SelInfColaborador", &cInformes::SelInfColaborador, conFidaleon, conInformes);
}

void cNucleo::SelInfColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes) {
  reenviar(contexto_, "SelInfColaboradorExt", &cInformes::SelInfColaboradorExt, conFidaleon,
           conInformes);
}

void cNucleo::InformeActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                               FDAPI::cProgreso& abpInformes) {
  reenviar(contexto_, "InformeActividad", &cInformes::InformeActividad, conFidaleon, conInformes,
           abpInformes);
}

void cNucleo::InformeColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                 FDAPI::cProgreso& abpInformes) {
  reenviar(contexto_, "InformeColaborador", &cInformes::InformeColaborador, conFidaleon,
           conInformes, abpInformes);
}

void cNucleo::InformeColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                    FDAPI::cProgreso& abpInformes) {
  reenviar(contexto_, "InformeColaboradorExt", &cInformes::InformeColaboradorExt, conFidaleon,
           conInformes, abpInformes);
}

void cNucleo::SelInfTareasAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes) {
  reenviar(contexto_, "SelInfTareasAgenda", &cInformes::SelInfTareasAgenda, conBaseDatos,
           conBaseInformes);
}

void cNucleo::InformeAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes,
                            FDAPI::cProgreso& abpProgreso) {
  reenviar(contexto_, "InformeAgenda", &cInformes::InformeAgenda, conBaseDatos, conBaseInformes,
           abpProgreso);
}

}  // namespace fidaleon
