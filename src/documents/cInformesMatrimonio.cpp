// The members that write marriages: what each writes is its line in documents::miembrosMatrimonio.

#include <optional>

#include "core/dialogs/Guard.h"
#include "documents/EscribirFilas.h"
#include "documents/MiembrosMatrimonio.h"
#include "documents/ProgresoImpresion.h"
#include "documents/cInformes.h"
#include "documents/frmInfFormato3.h"

namespace fidaleon {

void cInformes::cargarMatrimonio(const char* miembro, FDAPI::Conexion& conFidaleon,
                                 FDAPI::Conexion& conInformes, std::int32_t lngID,
                                 const documents::CargadorMatrimonio* cargador) {
  guarded(contexto_, "cInformes", miembro, [&] {
    const documents::MiembroMatrimonio& escrito = documents::miembroMatrimonio(miembro);
    const forms::Hourglass hourglass(contexto_.ui());
    if (escrito.check && !documents::hayPartidas(conFidaleon, escrito.check, lngID)) return;
    store::Recordset matrimonios = conFidaleon.Execute(escrito.rows(lngID));
    if (matrimonios.RecordCount() == 0) return;
    const auto fidaleon = contexto_.fidaleon();
    std::optional<documents::ProgresoImpresion> progreso;
    if (escrito.check) progreso.emplace(*fidaleon, matrimonios.RecordCount());
    for (const cCTipoDocumento tipo : escrito.tipos)
      if (!documents::cargarDocumentos(contexto_, cargador ? *cargador : escrito.cargador,
                                       matrimonios, tipo, conFidaleon, conInformes))
        return;
  });
}

#define IMPRIMIR(nombre)                                                             \
  void cInformes::nombre(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes, \
                         std::int32_t lngID) {                                       \
    cargarMatrimonio(#nombre, conFidaleon, conInformes, lngID);                      \
  }

IMPRIMIR(ImprimirCertificadoLiteralPartidaMatrimonio)
IMPRIMIR(ImprimirCertificadoLiteralPartidaMatrimonioMenorca)
IMPRIMIR(ImprimirCertificadoPartidaMatrimonio)
IMPRIMIR(ImprimirCertificadoPartidaMatrimonioMenorca)
IMPRIMIR(ImprimirPartidaMatrimonio)
IMPRIMIR(ImprimirPartidaMatrimonioMenorca)
IMPRIMIR(ImprimirVolanteMatrimonio)
IMPRIMIR(ImprimirVolanteMatrimonioMenorca)
IMPRIMIR(ImprimirComunicacionMatrimonio)
IMPRIMIR(ImprimirComunicacionMatrimonioMenorca)
IMPRIMIR(ImprimirComunicacionMatrimonioSantiago)
IMPRIMIR(ImprimirEstadoExpMatr)
IMPRIMIR(ImprimirEstadoExpMatrMenorca)
IMPRIMIR(InformeExhortoMatrimonio)
IMPRIMIR(InformeExhortoMatrimonioMenorca)
IMPRIMIR(InformeAtestadoFueraDiocesis)
IMPRIMIR(ImprimirExpedienteFormato1)
IMPRIMIR(ImprimirExpedienteFormato2)
IMPRIMIR(ImprimirExpedienteMatrimonialMenorca)
IMPRIMIR(ImprimirExpedienteFormatoMadrid)
IMPRIMIR(ImprimirResumenMatrimonio)
IMPRIMIR(ImprimirResumenMatrimonio2)
IMPRIMIR(ImprimirLibroMatrimonio)
IMPRIMIR(ImprimirLibroMatrimonioMenorca)
IMPRIMIR(ImprimirIndiceLibroMatrimonio)

#undef IMPRIMIR

void cInformes::ImprimirNotificacionMatrimonio(FDAPI::Conexion& conFidaleon,
                                               FDAPI::Conexion& conInformes, std::int32_t lngID,
                                               const FDAPI::cConfig& gobjConfig) {
  contexto_.gobjConfig = &gobjConfig;
  const bool alJuzgado = contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO) ||
                         contexto_.edicion(documents::EDICION_CON_JUZGADO);
  cargarMatrimonio(__func__, conFidaleon, conInformes, lngID,
                   alJuzgado ? &documents::Cargar_Documentos_MatrimonioSantiago() : nullptr);
}

void cInformes::ImprimirNotificacionMatrimonioMenorca(FDAPI::Conexion& conFidaleon,
                                                      FDAPI::Conexion& conInformes,
                                                      std::int32_t lngID,
                                                      const FDAPI::cConfig& gobjConfig) {
  contexto_.gobjConfig = &gobjConfig;
  cargarMatrimonio(__func__, conFidaleon, conInformes, lngID);
}

void cInformes::ImprimirExpedienteFormato3(FDAPI::Conexion& conFidaleon,
                                           FDAPI::Conexion& conInformes, std::int32_t lngID,
                                           bool& blnTramitaParroquia, bool& blnEnviaCuria,
                                           bool& blnEnviaCuriaAntes) {
  InformeExpedienteFormato3Plantilla(blnTramitaParroquia, blnEnviaCuria, blnEnviaCuriaAntes);
  if (blnTramitaParroquia || blnEnviaCuria || blnEnviaCuriaAntes)
    cargarMatrimonio(__func__, conFidaleon, conInformes, lngID);
}

void cInformes::InformeExpedienteFormato3Plantilla(bool& blnTramitaParroquia, bool& blnEnviaCuria,
                                                   bool& blnEnviaCuriaAntes) {
  blnTramitaParroquia = blnEnviaCuria = blnEnviaCuriaAntes = false;
  guarded(contexto_, "cInformes", __func__, [&] {
    frmInfFormato3 dialogo(contexto_);
    dialogo.Show();
    blnTramitaParroquia = dialogo.blnTramitaParroquia;
    blnEnviaCuria = dialogo.blnEnviaCuria;
    blnEnviaCuriaAntes = dialogo.blnEnviaCuriaAntes;
  });
}

}  // namespace fidaleon
