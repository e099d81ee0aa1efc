#include "documents/cInformes.h"

namespace fidaleon {

void cInformes::SelInfActividad(FDAPI::Conexion&, FDAPI::Conexion&) {}
void cInformes::SelInfColaborador(FDAPI::Conexion&, FDAPI::Conexion&) {}
void cInformes::SelInfColaboradorExt(FDAPI::Conexion&, FDAPI::Conexion&) {}
void cInformes::InformeActividad(FDAPI::Conexion&, FDAPI::Conexion&, FDAPI::cProgreso&) {}
void cInformes::InformeColaborador(FDAPI::Conexion&, FDAPI::Conexion&, FDAPI::cProgreso&) {}
void cInformes::InformeColaboradorExt(FDAPI::Conexion&, FDAPI::Conexion&, FDAPI::cProgreso&) {}
void cInformes::SelInfTareasAgenda(FDAPI::Conexion&, FDAPI::Conexion&) {}
void cInformes::InformeAgenda(FDAPI::Conexion&, FDAPI::Conexion&, FDAPI::cProgreso&) {}

}  // namespace fidaleon
