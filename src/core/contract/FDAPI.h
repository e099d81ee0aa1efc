#pragma once
// What the library expects of the program around it: the support services, by the members it
// calls and what it relies on in each. The main program implements them; a test may hand in its
// own. Every member may throw a std::exception, which the caller's guard reports.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "store/Connection.h"

namespace FDAPI {

using Conexion = fidaleon::store::Connection;

/// The host's configuration. Values are read when they are needed, never cached.
struct cConfig {
  std::string AppTitle = "Fidaleon";  // title of message boxes, application key of settings
  std::string HelpPath;
  std::string Usuario;
  std::string Idioma = "Castellano";
  bool TrabajarConPesetas = false;
};

/// From where a dialog was opened. Never 0: a value-initialised one means that none was set.
enum class cCOrigen : std::uint8_t {
  PRINCIPAL = 1,
  LISTAPARTIDASBAUTISMO,
  LISTAPARTIDASCONFIRMACION,
  LISTAPARTIDASMatrimonio,
  LISTAPARTIDASDEFUNCION,
  SOLICITUDBAUTISMO,
  SOLICITUDCONFIRMACION,
  SOLICITUDMATRIMONIO,
  NOVIO,
  NOVIA,
  PADRON,
  COLABORADOR,
  COLABORADOREXT,
  ACTIVIDAD,
  NuevoLibro,
  ANTIGUOLIBRO,
};

/// What a dialog, or a record in memory, is to do. Never 0, as above.
enum class cCOperacion : std::uint8_t {
  ANADIR = 1,
  EDITAR,
  ANTIGUA,
  ANADIRSOLICITUD,
  EDITARSOLICITUD,
  Borrar,
};

/// Edition codes, compared with cConstante::Aplicacion.
struct cCAplicacion {
  static constexpr const char* APP_FIDALEON_MADRID = "0001";
  static constexpr const char* APP_FIDALEON_SANTIAGO = "0012";
  static constexpr const char* APP_FIDALEON_ZARAGOZA = "0020";
  static constexpr const char* APP_FIDALEON_MENORCA = "0050";
};

/// Names of setting groups and keys.
struct cCRegistry {
  static constexpr const char* ultimos = "ultimos";
  static constexpr const char* ultimos_Institucion = "ultimos_Institucion";
  static constexpr const char* documentos = "documentos";
  static constexpr const char* DOCUMENTOS_MAXPAGLIBRO = "DOCUMENTOS_MAXPAGLIBRO";
};

/// Messages, look-ups and small services.
class cFidaleon {
 public:
  virtual ~cFidaleon() = default;

  /// Shows the error being handled, under these labels. Call it from a catch block.
  virtual void vererror(const std::string& modulo, const std::string& objeto,
                        const std::string& procedimiento) = 0;
  virtual void vererror(const std::string& mensaje) = 0;
  /// Tells the user that the field of this label is missing.
  virtual void verfalta(const fidaleon::forms::Label& etiqueta) = 0;

  /// "dd/mm/yyyy" of "yyyymmdd"; "" gives "//" and "---" gives "---".
  virtual std::string stringdate(const std::string& fecha) = 0;
  /// Whole years from a birth date to a later date, both "yyyymmdd".
  virtual int Anos(const std::string& nacimiento, const std::string& fecha) = 0;
  /// Age in years today.
  virtual int Edad(const std::string& fecha) = 0;

  virtual void ProgresoLoad(std::int64_t cuenta, const std::string& mensaje, int modo) = 0;
  /// Throws forms::Cancelled when the user has asked to stop.
  virtual void ProgresoRefresh(std::int64_t posicion) = 0;
  virtual void ProgresoUnload() = 0;

  /// Names behind a key of Municipio; empty for 0 and for a key that does not exist.
  virtual std::string PROVINCIA(Conexion& conexion, std::int32_t idMunicipio) = 0;
  virtual std::string Poblacion(Conexion& conexion, std::int32_t idMunicipio) = 0;

  /// Double quotes in the field become two apostrophes.
  virtual void ComprobarComilla(fidaleon::forms::TextBox& campo) = 0;
  virtual std::string ObtenerLetraNIF(const std::string& numero) = 0;
  virtual bool CIF_NIF_Valido(const std::string& texto) = 0;
  /// On the delete key, empties the list's selection.
  virtual void Comprobar_borrarcombo(fidaleon::forms::KeyPress& tecla,
                                     fidaleon::forms::ListControl& lista) = 0;
  /// Puts the currency of the configuration into the labels around a money field.
  virtual void CambioEtiquetasMoneda(fidaleon::forms::Form& formulario,
                                     fidaleon::forms::TextBox& campo, const cConfig& config) = 0;

  virtual bool ComprobarSeleccion(const fidaleon::forms::ListBox& lista) = 0;
  /// Positions of the selected rows, from the top.
  virtual void ListarSeleccionados(const fidaleon::forms::ListBox& lista,
                                   std::vector<int>& seleccionados) = 0;
  /// "(columna=1 OR columna=7)" of the item data of the selected rows; empty when none is.
  virtual std::string sqlListbox(const fidaleon::forms::ListBox& lista,
                                 const std::string& columna) = 0;

  virtual void NuevaInstitucion(Conexion& conexion, const cConfig& config) = 0;
  /// `agregada` is true if one was added.
  virtual void NuevaProvincia(bool& agregada, Conexion& conexion, const cConfig& config) = 0;
  virtual void NuevoMunicipio(bool& agregado, Conexion& conexion, const cConfig& config) = 0;
};

/// Fills lists and sets up grids; the library's own class of this name builds on it.
class cIListas {
 public:
  virtual ~cIListas() = default;

  /// Institution names, keys as item data. 0 fills in all and chooses none; another key fills in
  /// that one alone and chooses it.
  virtual void fillInstituciones(fidaleon::forms::ListControl& lista, std::int32_t id,
                                 Conexion& conexion) = 0;
  /// Provinces by name, choosing `id`, or none for 0. `vacia` puts an empty line first.
  virtual void fillProvincias(fidaleon::forms::ListControl& lista, std::int32_t id,
                              Conexion& conexion, bool vacia = false, int modo = 0) = 0;
  /// Municipalities of the province by name, choosing `idMunicipio`, or none for 0.
  virtual void fillMunicipios(fidaleon::forms::ListControl& lista, std::int32_t idProvincia,
                              std::int32_t idMunicipio, bool vacia, Conexion& conexion) = 0;
  /// Applies the widths stored under the path, one value per column number; "-1", nothing and
  /// what is no number leave a column as it is.
  virtual void ConfigGrid(fidaleon::forms::Grid& rejilla, const std::string& ruta) = 0;
  virtual void SaveGrid(const fidaleon::forms::Grid& rejilla, const std::string& ruta) = 0;
};

/// A lock to be taken. Only strTabla: the whole table. With strRegistro and conBd: those records,
/// given by an id as text or by a statement, resolved when the lock is taken.
struct DefinicionBloqueo {
  std::string strTabla;
  bool blnBloqueoParcialTabla = false;     // shared use of the table
  bool blnBloqueoParcialRegistro = false;  // shared use of the records
  std::string strRegistro;
  Conexion* conBd = nullptr;
  bool blnComprobarExisteRegistro = false;
  std::string strSQLExisteRegistro;
  std::string strNoExiste;  // what the user is told then; empty: that it has been deleted
  std::int32_t lngContador = 0;
};

/// Kinds of failure of a lock session.
enum ErrorBloqueo : long {
  BloqueoNinguno = 0,
  BloqueoRegistroNoExiste = 1,
  BloqueoSesion = 2,
  BloqueoRegistro = 3,           // exclusive record, the session shares no parent record
  BloqueoRegistroConPadres = 4,  // exclusive record, the session shares one
  BloqueoTabla = 5,
  BloqueoCompartido = 6,  // shared table or shared record
};

/// A lock session. Dropping it gives everything back. A refusal is told to the user here: who has
/// what was wanted, and that it cannot be opened now, or what AlRehusar says instead.
class cProcesarBloqueos {
 public:
  virtual ~cProcesarBloqueos() = default;
  /// The directory where all workstations meet.
  virtual void Inicializar(const std::string& strDirectorioTemporal) = 0;
  virtual void DefinirBloqueo(DefinicionBloqueo definicion) = 0;
  /// Takes all that is defined and not yet held, as one step or not at all. 0 when all are held,
  /// otherwise the kind of failure. `blnSoloComprobar` tests and holds nothing.
  virtual long lngEfectuarBloqueos(bool blnSoloComprobar = false) = 0;
  virtual long lngUltimoBloqueoError() const = 0;
  /// "Solo se puede consultar": what a refusal of this kind means for the user who goes on all the
  /// same. Holds for the next lngEfectuarBloqueos alone.
  virtual void AlRehusar(ErrorBloqueo error, const std::string& strConsecuencia) {
    (void)error, (void)strConsecuencia;
  }
  /// Who has what was refused last: "luis, en el equipo SACRISTIA, desde el 22/11/2026 a las
  /// 10:30". Empty when nothing was refused, or nobody has it.
  virtual std::string strPoseedor() const { return {}; }
  /// Gives back the locks of one table, or of table plus lngContador ("Grupo3"), and forgets
  /// their definitions. An unknown name is ignored.
  virtual void LiberarBloqueo(const std::string& strTabla) = 0;
  virtual void LiberarBloqueos() = 0;
};

/// The names and people of an institution.
struct cInstitucion {
  std::int32_t IDInstitucion = 0;
  std::string Nombre;
  std::string Parroco;
  std::string EncargadoArchivo;
  std::string Diocesis;
  std::string Vicaria;
};

struct cAuxStringID {
  std::string Texto;
  std::int32_t ID = 0;
};

/// The progress display of a report, handed in by the main program. May throw forms::Cancelled.
class cProgreso {
 public:
  virtual ~cProgreso() = default;
  virtual void Cargar(std::int64_t cuenta, const std::string& mensaje, int modo, int minimo) = 0;
  virtual void setValue(std::int64_t valor) = 0;
};

/// Dates in words for documents. "" gives "", "---" gives "---".
class cInformes {
 public:
  virtual ~cInformes() = default;
  /// "doce de mayo de 2003" of "20030512": the year stays in digits.
  virtual std::string FechaNumAFechaLetra(const std::string& fecha) = 0;
  /// Catalan; takes "ddmmyyyy" as well as "yyyymmdd".
  virtual std::string FechaNumAFechaLetraMenorca(const std::string& fecha) = 0;
  virtual std::string FechaNumAFechaLetra1(const std::string& fecha) = 0;
  virtual std::string FechaNumAFechaLetraCastellano(const std::string& fecha) = 0;
};

}  // namespace FDAPI
