// The operations that write a document: what each does is its line in the catalogue.

#include "core/facade/Informe.h"
#include "core/facade/cNucleo.h"
#include "documents/frmInfDuplicadas.h"

namespace fidaleon {

bool bloquearOrigen(SesionBloqueos& sesion, const Documento& documento, std::int32_t lngID) {
  const Sacramento& s = *documento.sacramento;
  if (documento.clase == ClaseDocumento::Libro)
    sesion.registroPorClave(s.tablaLibros, s.claveLibro, lngID);
  else
    sesion.registroPorClave(s.tablaPartidas, ("Id" + std::string(s.clavePartida + 2)).c_str(),
                            lngID);
  return sesion.efectuar();
}

#define INFORME(nombre)                                                            \
  void cNucleo::nombre(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes, \
                       std::int32_t lngID) {                                       \
    informe(contexto_, &cNucleo::nombre, conFidaleon, conInformes, lngID);         \
  }
#define INFORME_FIRMADO(nombre)                                                                    \
  void cNucleo::nombre(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,                 \
                       std::int32_t lngID, const std::string& strEncargado,                        \
                       const std::string& strFecha) {                                              \
    informe(contexto_, &cNucleo::nombre, conFidaleon, conInformes, lngID, strEncargado, strFecha); \
  }

INFORME_FIRMADO(InformeCertificadoPartidaBautismo)
INFORME_FIRMADO(InformeCertificadoPartidaBautismoMenorca)
INFORME_FIRMADO(InformeCertificadoLiteralPartidaBautismo)
INFORME_FIRMADO(InformeCertificadoLiteralPartidaBautismoMenorca)
INFORME(InformePartidaBautismo)
INFORME(InformePartidaBautismoMenorca)
INFORME(InformeVolanteBautismo)
INFORME(InformeVolanteBautismoMenorca)
INFORME(InformeSolicitudPartidaBautismoDatos)
INFORME(InformeSolicitudPartidaBautismoDatosMenorca)
INFORME(InformeSolicitudPartidaBautismoDatosSantiago)
INFORME(InformeLibroBautismo)
INFORME(InformeLibroBautismoMenorca)
INFORME(InformeIndiceLibroBautismo)
INFORME(InformeIndiceLibroBautismoMenorca)

INFORME(InformeLibroConfirmacion)
INFORME(InformeLibroConfirmacionMenorca)
INFORME(InformeIndiceLibroConfirmacion)

INFORME(InformeLibroMatrimonio)
INFORME(InformeLibroMatrimonioMenorca)
INFORME(InformeIndiceLibroMatrimonio)

INFORME(InformeLibroDefuncion)
INFORME(InformeLibroDefuncionMenorca)
INFORME(InformeIndiceLibroDefuncion)

INFORME_FIRMADO(InformeCertificadoPartidaConfirmacion)
INFORME_FIRMADO(InformeCertificadoPartidaConfirmacionMenorca)
INFORME_FIRMADO(InformeCertificadoLiteralPartidaConfirmacion)
INFORME_FIRMADO(InformeCertificadoLiteralPartidaConfirmacionMenorca)
INFORME(InformePartidaConfirmacion)
INFORME(InformePartidaConfirmacionMenorca)
INFORME(InformeNotificacionConfirmacion)
INFORME(InformeNotificacionConfirmacionMenorca)
INFORME(InformeSolicitudConfirmacion)

INFORME_FIRMADO(InformeCertificadoPartidaDefuncion)
INFORME_FIRMADO(InformeCertificadoPartidaDefuncionMenorca)
INFORME_FIRMADO(InformeCertificadoLiteralPartidaDefuncion)
INFORME_FIRMADO(InformeCertificadoLiteralPartidaDefuncionMenorca)
INFORME(InformePartidaDefuncion)
INFORME(InformePartidaDefuncionMenorca)

INFORME(InformeCertificadoLiteralPartidaMatrimonio)
INFORME(InformeCertificadoLiteralPartidaMatrimonioMenorca)
INFORME(InformeCertificadoPartidaMatrimonio)
INFORME(InformeCertificadoPartidaMatrimonioMenorca)
INFORME(InformePartidaMatrimonio)
INFORME(InformePartidaMatrimonioMenorca)
INFORME(InformeVolanteMatrimonio)
INFORME(InformeVolanteMatrimonioMenorca)
INFORME(InformeComunicacionMatrimonio)
INFORME(InformeComunicacionMatrimonioMenorca)
INFORME(InformeComunicacionMatrimonioSantiago)
INFORME(InformeEstadoExpMatr)
INFORME(InformeEstadoExpMatrMenorca)
INFORME(InformeExhortoMatrimonio)
INFORME(InformeExhortoMatrimonioMenorca)
INFORME(InformeAtestadoFueraDiocesis)
INFORME(InformeExpedienteFormato1)
INFORME(InformeExpedienteFormato2)
INFORME(InformeExpedienteMatrimonialMenorca)
INFORME(InformeExpedienteFormatoMadrid)
INFORME(InformeResumenMatrimonio)
INFORME(InformeResumenMatrimonio2)

#undef INFORME
#undef INFORME_FIRMADO

void cNucleo::InformeNotificacionMatrimonio(FDAPI::Conexion& conFidaleon,
                                            FDAPI::Conexion& conInformes, std::int32_t lngID,
                                            const FDAPI::cConfig& gobjConfig) {
  informe(contexto_, &cNucleo::InformeNotificacionMatrimonio, conFidaleon, conInformes, lngID,
          gobjConfig);
}

void cNucleo::InformeNotificacionMatrimonioMenorca(FDAPI::Conexion& conFidaleon,
                                                   FDAPI::Conexion& conInformes, std::int32_t lngID,
                                                   const FDAPI::cConfig& gobjConfig) {
  informe(contexto_, &cNucleo::InformeNotificacionMatrimonioMenorca, conFidaleon, conInformes,
          lngID, gobjConfig);
}

void cNucleo::InformeExpedienteFormato3(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                        std::int32_t lngID, bool& blnTramitaParroquia,
                                        bool& blnEnviaCuria, bool& blnEnviaCuriaAntes) {
  blnTramitaParroquia = blnEnviaCuria = blnEnviaCuriaAntes = false;
  informe(contexto_, &cNucleo::InformeExpedienteFormato3, conFidaleon, conInformes, lngID,
          blnTramitaParroquia, blnEnviaCuria, blnEnviaCuriaAntes);
}

void cNucleo::InformeExpedienteFormato3Plantilla(bool& blnTramitaParroquia, bool& blnEnviaCuria,
                                                 bool& blnEnviaCuriaAntes) {
  cInformes(contexto_).InformeExpedienteFormato3Plantilla(blnTramitaParroquia, blnEnviaCuria,
                                                          blnEnviaCuriaAntes);
}

void cNucleo::CargaDatosExhorto(DatosExhorto& strDatos, bool& blnCancelar,
                                FDAPI::Conexion& conFidaleon, std::int16_t lngID) {
  blnCancelar = true;
  operacion(contexto_, "CargaDatosExhorto", [&] {
    SesionBloqueos sesion(contexto_, conFidaleon);
    fidaleon::CargaDatosExhorto(contexto_, strDatos, blnCancelar, conFidaleon, lngID, [&] {
      sesion.registroPorClave(MATRIMONIO.tablaPartidas, "IdMatrimonio", lngID);
      return sesion.efectuar();
    });
  });
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
