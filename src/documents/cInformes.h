#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"
#include "documents/DocumentRow.h"

namespace fidaleon {

namespace documents {
struct CargadorMatrimonio;
}

/// Writes the finished rows that the main program's templates print: one member per document and
/// edition. Each reads an entry of `conFidaleon` by its key and adds one row to a table of
/// `conInformes`, within a transaction; an entry that is not there adds none and is no error.
/// Rows of earlier runs stay: the caller empties the table. An error is told to the user and
/// leaves the table as it was. `strFecha` is the date of issue as "yyyymmdd".
class cInformes {
 public:
  /// `contexto` must outlive this object.
  explicit cInformes(Contexto& contexto) : contexto_(contexto) {}

  using Documento = void(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                         std::int32_t lngID);
  using DocumentoFirmado = void(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                std::int32_t lngID, const std::string& strEncargado,
                                const std::string& strFecha);

  // Baptism: Documentos_Bautismo. Those without a date of issue bear today's, here and below.
  DocumentoFirmado ImprimirCertificadoPartidaBautismo, ImprimirCertificadoPartidaBautismoMenorca,
      ImprimirCertificadoLiteralPartidaBautismo, ImprimirCertificadoLiteralPartidaBautismoMenorca;
  Documento ImprimirPartidaBautismo, ImprimirPartidaBautismoMenorca;
  /// Fills the columns of both editions.
  Documento ImprimirVolanteBautismo;
  /// For a request: an entry of a book has no row here.
  Documento ImprimirSolicitudPartidaBautismoDatos, ImprimirSolicitudPartidaBautismoDatosMenorca,
      ImprimirSolicitudPartidaBautismoDatosSantiago;

  // Confirmation: Documentos_Confirmacion
  DocumentoFirmado ImprimirCertificadoPartidaConfirmacion,
      ImprimirCertificadoPartidaConfirmacionMenorca, ImprimirCertificadoLiteralPartidaConfirmacion,
      ImprimirCertificadoLiteralPartidaConfirmacionMenorca;
  Documento ImprimirPartidaConfirmacion, ImprimirPartidaConfirmacionMenorca;
  /// To the parish of baptism.
  Documento ImprimirNotificacionConfirmacion, ImprimirNotificacionConfirmacionMenorca;
  /// For all editions. The institution is the first of the store, whichever the request names.
  Documento ImprimirSolicitudConfirmacion;

  // Death: Documentos_Defuncion
  DocumentoFirmado ImprimirCertificadoPartidaDefuncion, ImprimirCertificadoPartidaDefuncionMenorca,
      ImprimirCertificadoLiteralPartidaDefuncion, ImprimirCertificadoLiteralPartidaDefuncionMenorca;
  /// Asks for keeper and date first and prints the date alone; today's when the user gave up.
  Documento ImprimirPartidaDefuncion, ImprimirPartidaDefuncionMenorca;

  // Marriage: Documentos_Matrimonio and the three tables beside it, one row in each for each
  // marriage, in Madrid also Documentos_Matrimonio_Cursos. The loader asks by itself for what the
  // document needs (keeper, exhorto, date, court); a dialog that is cancelled leaves no rows. An
  // error while rows are being written is told as "number  - description".
  Documento ImprimirCertificadoLiteralPartidaMatrimonio,
      ImprimirCertificadoLiteralPartidaMatrimonioMenorca, ImprimirCertificadoPartidaMatrimonio,
      ImprimirCertificadoPartidaMatrimonioMenorca;
  Documento ImprimirPartidaMatrimonio, ImprimirPartidaMatrimonioMenorca, ImprimirVolanteMatrimonio,
      ImprimirVolanteMatrimonioMenorca;
  Documento ImprimirComunicacionMatrimonio, ImprimirComunicacionMatrimonioMenorca,
      ImprimirComunicacionMatrimonioSantiago;
  /// To the civil registry. The base one is Santiago's in the editions that address it to a court.
  void ImprimirNotificacionMatrimonio(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                      std::int32_t lngID, const FDAPI::cConfig& gobjConfig);
  void ImprimirNotificacionMatrimonioMenorca(FDAPI::Conexion& conFidaleon,
                                             FDAPI::Conexion& conInformes, std::int32_t lngID,
                                             const FDAPI::cConfig& gobjConfig);
  Documento ImprimirEstadoExpMatr, ImprimirEstadoExpMatrMenorca;
  // Of the dossier: a marriage that names no institution of its request has no row here.
  Documento InformeExhortoMatrimonio, InformeExhortoMatrimonioMenorca, InformeAtestadoFueraDiocesis;
  /// These three leave two rows: the dossier, then its state.
  Documento ImprimirExpedienteFormato1, ImprimirExpedienteFormato2,
      ImprimirExpedienteMatrimonialMenorca;
  Documento ImprimirExpedienteFormatoMadrid;
  /// Asks by which way the dossier goes, and hands that back for the choice of the template.
  void ImprimirExpedienteFormato3(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                  std::int32_t lngID, bool& blnTramitaParroquia,
                                  bool& blnEnviaCuria, bool& blnEnviaCuriaAntes);
  /// The question alone; all are false when the user has cancelled.
  void InformeExpedienteFormato3Plantilla(bool& blnTramitaParroquia, bool& blnEnviaCuria,
                                          bool& blnEnviaCuriaAntes);
  Documento ImprimirResumenMatrimonio, ImprimirResumenMatrimonio2;

  // A whole book by its key, one row for each entry, annulled ones too. A book without entries has
  // none and is told to nobody. The host's progress display is open while rows are being written; a
  // user who stops it there leaves the table as it was.
  Documento ImprimirLibroBautismo, ImprimirLibroBautismoMenorca;
  Documento ImprimirLibroConfirmacion, ImprimirLibroConfirmacionMenorca;
  Documento ImprimirLibroMatrimonio, ImprimirLibroMatrimonioMenorca;
  Documento ImprimirLibroDefuncion, ImprimirLibroDefuncionMenorca;
  /// The same for all editions. Año is the year of the book on every row.
  Documento ImprimirIndiceLibroBautismo, ImprimirIndiceLibroConfirmacion,
      ImprimirIndiceLibroMatrimonio, ImprimirIndiceLibroDefuncion;

  // People and groups of the parish: Informe_Colaboradores. SelInf... asks what to print and writes
  // it; it says so when the table stays empty. Informe... writes all there is. An error, or a user
  // who stops the work, takes back the rows of the call.
  void SelInfActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes);
  void SelInfColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes);
  void SelInfColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes);
  /// One row for each group, with the number of its collaborators.
  void InformeActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                        FDAPI::cProgreso& abpInformes);
  /// One row for each collaborator of each group, and those of no activity of the institution.
  void InformeColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                          FDAPI::cProgreso& abpInformes);
  /// The same rows: the template shows more of them.
  void InformeColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                             FDAPI::cProgreso& abpInformes);

  // The rows of these reports, for their dialog too. False when an error, which has been told, has
  // taken them back.
  /// One row for each record of documents::sentenciaActividades.
  bool RellenarInformeActividad(FDAPI::Conexion& conInformes, store::Recordset& grupos,
                                FDAPI::cProgreso& progreso);
  /// For each record of documents::sentenciaInstituciones the people that `sqlPersonas`, one of
  /// documents::sentenciaPersonas, finds there, with `blnSinActividad` then those of no activity.
  bool RellenarInformeColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                  store::Recordset& instituciones, const std::string& sqlPersonas,
                                  bool blnSinActividad, FDAPI::cProgreso& progreso);

  // Tareas_Agenda: the tasks between two days, each in a transaction of its own, or those of the
  // current year. An error within the year leaves the transaction on conBaseInformes open for its
  // owner to roll back; a user who stops the work has the rows taken back.
  void SelInfTareasAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes);
  void InformeAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes,
                     FDAPI::cProgreso& abpProgreso);

 private:
  /// The life of one document: one row for each record that the member's line in
  /// documents::miembros reads. Unsigned ones bear today's date.
  void escribir(const char* miembro, FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                std::int32_t lngID, const documents::Signature& signature);
  void escribir(const char* miembro, FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                std::int32_t lngID);
  /// With the date that the user chooses with the keeper of the entry's institution.
  void escribirConFecha(const char* miembro, const char* sacramento, FDAPI::Conexion& conFidaleon,
                        FDAPI::Conexion& conInformes, std::int32_t lngID);
  /// The same of a marriage, with the loader of documents::miembrosMatrimonio or another.
  void cargarMatrimonio(const char* miembro, FDAPI::Conexion& conFidaleon,
                        FDAPI::Conexion& conInformes, std::int32_t lngID,
                        const documents::CargadorMatrimonio* cargador = nullptr);
  /// Asks what to print.
  void elegirInforme(const char* miembro, FDAPI::Conexion& conFidaleon,
                     FDAPI::Conexion& conInformes, FDAPI::cCOrigen modo);
  void informarColaboradores(const char* miembro, FDAPI::Conexion& conFidaleon,
                             FDAPI::Conexion& conInformes, FDAPI::cProgreso& progreso);

  Contexto& contexto_;
};

}  // namespace fidaleon
