#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"
#include "documents/CargaDatosExhorto.h"
#include "import/Etiquetas.h"
#include "import/ResultadoImportacion.h"
#include "registers/common/Anulacion.h"

namespace fidaleon {

/// The library's one public class. The main program creates it once and calls one operation per
/// user command. Every operation blocks until its dialog is closed or its document is written,
/// and holds no lock when it returns; afterwards the main program refreshes its own tree and list.
///
/// - Refused locks end an operation silently: the lock service has told the user. So does a node
///   name that the operation does not know.
/// - An error inside an operation is told to the user; nothing is thrown.
/// - Connections stay the caller's. The configuration is kept by reference until another call
///   hands in its own, and must live as long.
/// - Node names: "PartidasBautismo" and its like for entries, "SolicitudesBautismo" for requests,
///   "LibrosBautismo" for books.
class cNucleo {
 public:
  /// Sets the application's title and help file. `entorno` must outlive this object.
  explicit cNucleo(Entorno& entorno);

  // Entries
  void NuevaPartida(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                    const std::string& strNodo);
  void AntiguaPartida(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                      const std::string& strNodo);
  /// Opens the entry read-only, with nothing but the cancel button, while another works on it.
  void PropiedadesPartida(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                          const FDAPI::cConfig& objConfig, const std::string& strNodo);
  /// Annuls the entry, or validates an annulled one. `preguntar` may be empty.
  void AnularPartidas(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                      const FDAPI::cConfig& objConfig, const std::string& strTextDescription,
                      const PreguntaAnulacion& preguntar = {});
  /// Any entry of an old book, only the last one of an open new book, none of a closed one. Asks.
  void EliminarPartida(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                       const FDAPI::cConfig& objConfig, const std::string& strNodo);
  /// Each asks, then deletes the entry with all its rows, those of a baptism's parents and of their
  /// marriage whoever shares them, and resets the counters of its book.
  void BorrarPartidaBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);
  void BorrarPartidaConfirmacion(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);
  void BorrarPartidaMatrimonio(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);
  void BorrarPartidaDefuncion(FDAPI::Conexion& conBaseDatos, std::int32_t lngID);

  /// Entries and requests that lack one of their rows, to be completed or removed.
  void PartidasIncompletas(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig);
  /// How many there are; 0 when that could not be found out, and the user knows.
  std::int64_t CuentaPartidasIncompletas(FDAPI::Conexion& conBaseDatos);

  // Requests
  void NuevaSolicitud(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                      const std::string& strNodo);
  void PropiedadesSolicitudes(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                              const FDAPI::cConfig& objConfig, const std::string& strNodo);
  /// Deletes without asking.
  void EliminarSolicitud(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                         const FDAPI::cConfig& objConfig, const std::string& strNodo);
  /// Moves requests into the open new book of an institution; says so when there are none, and
  /// where they stand afterwards. `lngElegida` is the request that is offered first; 0 for none.
  void ImportarSolicitudes(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                           const std::string& strNodo, std::int32_t lngElegida = 0);

  // Books
  void NuevoLibro(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                  const std::string& strNodoPadre);
  /// The book with the list of its entries. While another works on the book nothing in it can be
  /// changed; while another holds what its name rests on, all but the name can.
  void PropiedadesLibro(FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro,
                        const FDAPI::cConfig& objConfig, const std::string& strNodoPadre);
  /// Each asks, and refuses an old book and one that is closed already.
  void cerrarLiBautismo(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                        const FDAPI::cConfig& objConfig);
  void cerrarLiconfirmacion(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                            const FDAPI::cConfig& objConfig);
  void cerrarLiMatrimonio(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                          const FDAPI::cConfig& objConfig);
  void cerrarLiDefuncion(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                         const FDAPI::cConfig& objConfig);
  /// Asks, and refuses a book that holds entries.
  void EliminarLibro(FDAPI::Conexion& conBaseDatos, std::int32_t IDlng,
                     const FDAPI::cConfig& objConfig, const std::string& strNodoPadre);

  // The older program
  /// Reads its four registers into old books (import/cImportarInpar.h): each whose folder is given.
  /// Nothing is locked and nothing is asked. A flag says whether the parish behind it is used;
  /// `lngFolio...` is the key of the books' format, `bytOrdenNombre` 0 when the given name stands
  /// first in a full name, `strAno00` what stands in front of a year "00".
  void ImportarInparGP(
      FDAPI::Conexion& conBaseDatos, const FDAPI::ColEtiqueta& colEtiqueta,
      const std::string& strRuta1, const std::string& strRuta2, const std::string& strRuta3,
      const std::string& strRuta4, std::int32_t lngIDInstitucion, const std::string& strAno00,
      FDAPI::cProgreso& abpProgreso, bool blnBautismo, const std::string& strParroquiaBaut,
      const std::string& strDiocesisBaut, std::int32_t lngMunicipioBaut, bool blnConfirmacion,
      const std::string& strParroquiaConf, const std::string& strDiocesisConf,
      std::int32_t lngMunicipioConf, bool blnMatrimonio, const std::string& strParroquiaMatr,
      const std::string& strDiocesisMatr, std::int32_t lngMunicipioMatr, bool blnDefuncion,
      const std::string& strParroquiaDefn, const std::string& strDiocesisDefn,
      std::int32_t lngMunicipioDefn, std::uint8_t bytOrdenNombre, std::int32_t lngFolioBaut,
      std::int32_t lngFolioConf, std::int32_t lngFolioMatr, std::int32_t lngFolioDefn);
  /// What the user has said besides, for the imports that follow: the code page, empty for what the
  /// tables say; whether everything is only counted and nothing written.
  void OpcionesImportacion(const std::string& strCodigos, bool blnEnsayo);
  /// What came of the last one.
  const ResultadoImportacion& UltimaImportacion() const { return ultimaImportacion_; }

  // Setup
  /// Asks for the data that documents need of every institution. False when the user gave up
  /// before they were complete; the main program then ends.
  void DatosSetup(FDAPI::Conexion& conFidaleon, bool& result);
  /// Who signs a document, and its date as "yyyymmdd". `Sacramento` is the word of the entry's
  /// table ("Bautismo"). Cancelled: an empty keeper and today's date.
  void SelecEncargado(FDAPI::Conexion& conBaseDatos, const std::string& Sacramento,
                      std::int32_t IDPartida, std::string& strFechaInf, std::string& result);

  // Documents of the registers (core/facade/Documentos.h): each adds one finished row to the table
  // of its sacrament, or none when the entry is gone or held by another. `strEncargado` signs, and
  // `strFecha` is the date as "yyyymmdd". The caller empties the table before.
  using Informe = void(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                       std::int32_t lngID);
  using InformeFirmado = void(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                              std::int32_t lngID, const std::string& strEncargado,
                              const std::string& strFecha);

  InformeFirmado InformeCertificadoPartidaBautismo, InformeCertificadoPartidaBautismoMenorca;
  InformeFirmado InformeCertificadoLiteralPartidaBautismo,
      InformeCertificadoLiteralPartidaBautismoMenorca;
  Informe InformePartidaBautismo, InformePartidaBautismoMenorca;
  /// Both write the columns of both editions.
  Informe InformeVolanteBautismo, InformeVolanteBautismoMenorca;
  Informe InformeSolicitudPartidaBautismoDatos, InformeSolicitudPartidaBautismoDatosMenorca,
      InformeSolicitudPartidaBautismoDatosSantiago;

  // A whole book by its key: one row for each entry, in the order of the pages, annulled ones too.
  // No row for a book without entries.
  Informe InformeLibroBautismo, InformeLibroBautismoMenorca;
  Informe InformeLibroConfirmacion, InformeLibroConfirmacionMenorca;
  Informe InformeLibroMatrimonio, InformeLibroMatrimonioMenorca;
  Informe InformeLibroDefuncion, InformeLibroDefuncionMenorca;
  // By name, with the letter of each surname and the year of the book; the same in all editions.
  Informe InformeIndiceLibroBautismo, InformeIndiceLibroBautismoMenorca;
  Informe InformeIndiceLibroConfirmacion, InformeIndiceLibroMatrimonio, InformeIndiceLibroDefuncion;

  /// Asks for institution, year and order, and writes the rows of the year's duplicate of a
  /// sacrament. `strNodo` is "Duplicadas de bautismo" and its like, or the node of the entries.
  /// `strOrden` is the order in which the report engine is to print the rows; it is set also when
  /// the year has no entries, and empty when the user cancelled. Takes no lock.
  /// A failed row leaves the transaction on `conInformes` open: the main program must look at
  /// inTransaction() after the call and roll back before it prints or runs anything else there,
  /// or later rows stay in a transaction that nobody ends.
  void ImprimirDuplicadas(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conInformes,
                          const std::string& strNodo, std::string& strOrden);

  // Confirmation and death: the same in Documentos_Confirmacion and Documentos_Defuncion.
  void InformeCertificadoPartidaConfirmacion(FDAPI::Conexion& conFidaleon,
                                             FDAPI::Conexion& conInformes, std::int32_t lngID,
                                             const std::string& strEncargado,
                                             const std::string& strFecha);
  void InformeCertificadoPartidaConfirmacionMenorca(FDAPI::Conexion& conFidaleon,
                                                    FDAPI::Conexion& conInformes,
                                                    std::int32_t lngID,
                                                    const std::string& strEncargado,
                                                    const std::string& strFecha);
  void InformeCertificadoLiteralPartidaConfirmacion(FDAPI::Conexion& conFidaleon,
                                                    FDAPI::Conexion& conInformes,
                                                    std::int32_t lngID,
                                                    const std::string& strEncargado,
                                                    const std::string& strFecha);
  void InformeCertificadoLiteralPartidaConfirmacionMenorca(FDAPI::Conexion& conFidaleon,
                                                           FDAPI::Conexion& conInformes,
                                                           std::int32_t lngID,
                                                           const std::string& strEncargado,
                                                           const std::string& strFecha);
  void InformePartidaConfirmacion(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                  std::int32_t lngID);
  void InformePartidaConfirmacionMenorca(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                         std::int32_t lngID);
  /// To the parish of baptism.
  void InformeNotificacionConfirmacion(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                       std::int32_t lngID);
  void InformeNotificacionConfirmacionMenorca(FDAPI::Conexion& conFidaleon,
                                              FDAPI::Conexion& conInformes, std::int32_t lngID);
  /// Takes no lock, and the first book and institution of the store: no row without a book.
  void InformeSolicitudConfirmacion(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                    std::int32_t lngID);
  void InformeCertificadoPartidaDefuncion(FDAPI::Conexion& conFidaleon,
                                          FDAPI::Conexion& conInformes, std::int32_t lngID,
                                          const std::string& strEncargado,
                                          const std::string& strFecha);
  void InformeCertificadoPartidaDefuncionMenorca(FDAPI::Conexion& conFidaleon,
                                                 FDAPI::Conexion& conInformes, std::int32_t lngID,
                                                 const std::string& strEncargado,
                                                 const std::string& strFecha);
  void InformeCertificadoLiteralPartidaDefuncion(FDAPI::Conexion& conFidaleon,
                                                 FDAPI::Conexion& conInformes, std::int32_t lngID,
                                                 const std::string& strEncargado,
                                                 const std::string& strFecha);
  void InformeCertificadoLiteralPartidaDefuncionMenorca(FDAPI::Conexion& conFidaleon,
                                                        FDAPI::Conexion& conInformes,
                                                        std::int32_t lngID,
                                                        const std::string& strEncargado,
                                                        const std::string& strFecha);
  /// Asks for keeper and date, and prints the date; today's when the user gave up.
  void InformePartidaDefuncion(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                               std::int32_t lngID);
  void InformePartidaDefuncionMenorca(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                      std::int32_t lngID);

  // Marriage: Documentos_Matrimonio and the tables beside it. Each asks by itself for what it needs
  // (keeper, exhorto, date, court), and writes nothing when the user gives up.
  Informe InformeCertificadoLiteralPartidaMatrimonio,
      InformeCertificadoLiteralPartidaMatrimonioMenorca, InformeCertificadoPartidaMatrimonio,
      InformeCertificadoPartidaMatrimonioMenorca;
  Informe InformePartidaMatrimonio, InformePartidaMatrimonioMenorca, InformeVolanteMatrimonio,
      InformeVolanteMatrimonioMenorca;
  /// To the parishes of baptism.
  Informe InformeComunicacionMatrimonio, InformeComunicacionMatrimonioMenorca,
      InformeComunicacionMatrimonioSantiago;
  /// To the civil registry.
  using InformeConConfig = void(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                std::int32_t lngID, const FDAPI::cConfig& gobjConfig);
  InformeConConfig InformeNotificacionMatrimonio, InformeNotificacionMatrimonioMenorca;
  /// Take no lock.
  Informe InformeEstadoExpMatr, InformeEstadoExpMatrMenorca;
  // The dossier, of a marriage that names the institution of its request.
  Informe InformeExhortoMatrimonio, InformeExhortoMatrimonioMenorca, InformeAtestadoFueraDiocesis;
  /// Both write the same two rows: the dossier, then its state.
  Informe InformeExpedienteFormato1, InformeExpedienteFormato2;
  Informe InformeExpedienteMatrimonialMenorca, InformeExpedienteFormatoMadrid;
  /// Asks by which way the dossier goes, which decides what the template shows. All three are
  /// false when the user gives up.
  void InformeExpedienteFormato3(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                 std::int32_t lngID, bool& blnTramitaParroquia, bool& blnEnviaCuria,
                                 bool& blnEnviaCuriaAntes);
  /// The question alone, without a lock.
  void InformeExpedienteFormato3Plantilla(bool& blnTramitaParroquia, bool& blnEnviaCuria,
                                          bool& blnEnviaCuriaAntes);
  Informe InformeResumenMatrimonio, InformeResumenMatrimonio2;
  /// Asks for the parishes that an exhorto goes to, and stores them with the spouses when the user
  /// says so and nobody else holds the marriage. `strDatos` is filled also when the user cancels.
  void CargaDatosExhorto(DatosExhorto& strDatos, bool& blnCancelar, FDAPI::Conexion& conFidaleon,
                         std::int16_t lngID);

  /// Notices to parishes of baptism that stand in no book: asks for them and writes one row of
  /// Documentos_Confirmacion for each, none when the user gave up.
  void ImprimirPartidaSinLibro(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes,
                               const FDAPI::cConfig& objConfig);

  // People, groups and offices of the parish. Each dialog opens read-only while another works on
  // the record. "Elimina..." asks first.
  void NuevoEmpadronado(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig);
  /// A person whom the census does not have yet, such as a collaborator, enters it on acceptance.
  void EditaEmpadronado(FDAPI::Conexion& conBaseDatos, std::int32_t mlngRegistroPadron,
                        const FDAPI::cConfig& objConfig);
  /// A person who is a collaborator too stays as one. In that case the dates and parishes of
  /// first communion, confirmation, marriage and death of all persons are emptied.
  void EliminaEmpadronado(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                          const FDAPI::cConfig& objConfig);
  /// `blnOcultar` hides the buttons of the memberships.
  void NuevoColaborador(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                        bool blnOcultar = false);
  void EditaColaborador(FDAPI::Conexion& conBaseDatos, std::int32_t mlngRegistroPadron,
                        const FDAPI::cConfig& objConfig);
  /// With all memberships. A person of the census stays there.
  void EliminaColaborador(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                          const FDAPI::cConfig& objConfig);
  /// `blnOcultar` hides the buttons of the groups.
  void NuevaActividad(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                      bool blnOcultar = false);
  void EditaActividad(FDAPI::Conexion& conBaseDatos, std::int32_t mlngRegistroActividad,
                      const FDAPI::cConfig& objConfig, bool blnOcultar = false);
  /// With its groups and their memberships.
  void EliminaActividad(FDAPI::Conexion& conBaseDatos, std::int32_t lngIDActividad,
                        const FDAPI::cConfig& objConfig);
  /// `blnNuevaInstancia` opens it over another dialog that may be of the same kind.
  void NuevoCargo(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                  bool blnNuevaInstancia = false);
  void EditaCargo(FDAPI::Conexion& conBaseDatos, std::int32_t lngIDCargo,
                  const FDAPI::cConfig& objConfig);
  /// With the memberships that hold it.
  void EliminaCargo(FDAPI::Conexion& conBaseDatos, std::int32_t lngIDCargo,
                    const FDAPI::cConfig& objConfig);

  // Reports on them, in Informe_Colaboradores and Tareas_Agenda. They take no lock. "SelInf..."
  // asks what to print; "Informe..." writes all there is. The caller empties the table before.
  void SelInfActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes);
  void SelInfColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes);
  void SelInfColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes);
  void InformeActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                        FDAPI::cProgreso& abpInformes);
  void InformeColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                          FDAPI::cProgreso& abpInformes);
  void InformeColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                             FDAPI::cProgreso& abpInformes);
  void SelInfTareasAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes);
  /// The tasks of the current year.
  void InformeAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes,
                     FDAPI::cProgreso& abpProgreso);

 private:
  void InicializaConfiguracion(const FDAPI::cConfig& objConfig);
  /// `cuales` chooses the books that may take the entry.
  void altaPartida(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                   const std::string& strNodo, FDAPI::cCOperacion operacion, const char* cuales);

  Contexto contexto_;
  std::string codigosImportacion_;
  bool ensayoImportacion_ = false;
  ResultadoImportacion ultimaImportacion_;
};

}  // namespace fidaleon
