#include "core/facade/Informe.h"
#include "core/facade/cNucleo.h"
#include "documents/frmInfDuplicadas.h"

namespace fidaleon {

namespace {

void informeLibroBautismo(Contexto& contexto, const char* nombre, MiembroInforme<> miembro,
                          FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                          std::int32_t lngID) {
  informe(contexto, nombre, BAUTISMO.tablaLibros, BAUTISMO.claveLibro, miembro, conFidaleon,
          conInformes, lngID);
}

}  // namespace

void cNucleo::InformeLibroBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                   std::int32_t lngID) {
  informeLibroBautismo(contexto_, "InformeLibroBautismo", &cInformes::ImprimirLibroBautismo,
                       conFidaleon, conInformes, lngID);
}

void cNucleo::InformeLibroBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                          FDAPI::Conexion& conInformes, std::int32_t lngID) {
  informeLibroBautismo(contexto_, "InformeLibroBautismoMenorca",
                       &cInformes::ImprimirLibroBautismoMenorca, conFidaleon, conInformes, lngID);
}

void cNucleo::InformeIndiceLibroBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                         std::int32_t lngID) {
  informeLibroBautismo(contexto_, "InformeIndiceLibroBautismo",
                       &cInformes::ImprimirIndiceLibroBautismo, conFidaleon, conInformes, lngID);
}

void cNucleo::InformeIndiceLibroBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                                FDAPI::Conexion& conInformes, std::int32_t lngID) {
  informeLibroBautismo(contexto_, "InformeIndiceLibroBautismoMenorca",
                       &cInformes::ImprimirIndiceLibroBautismo, conFidaleon, conInformes, lngID);
}

void cNucleo::ImprimirDuplicadas(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conInformes,
                                 const std::string& strNodo, std::string& strOrden) {
  strOrden.clear();
  operacion(contexto_, "ImprimirDuplicadas", [&] {
    if (!documents::duplicadaDeNodo(strNodo)) return;
    frmInfDuplicadas dialogo(contexto_);
    dialogo.conBaseDatos = &conBaseDatos;
    dialogo.conInformes = &conInformes;
    dialogo.strNodo = strNodo;
    dialogo.Show();
    strOrden = dialogo.strOrden;
  });
}

}  // namespace fidaleon
