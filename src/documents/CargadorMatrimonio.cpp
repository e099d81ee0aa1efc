#include "documents/CargadorMatrimonio.h"

#include <limits>
#include <stdexcept>

#include "core/contract/Sacramento.h"
#include "core/dialogs/Guard.h"
#include "documents/CargaDatosExhorto.h"
#include "documents/MatrimonioPartes.h"
#include "documents/Testigos.h"
#include "documents/frmInfFecha.h"
#include "setup/SelecEncargado.h"
#include "store/Error.h"
#include "store/Transaction.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

using Tipo = cCTipoDocumento;

constexpr std::size_t LARGO_JUZGADO = 50;

bool llevaEncargado(Tipo tipo) {
  return tipo == Tipo::CertificadoLiteralPartidaMatrimonio ||
         tipo == Tipo::CertificadoPartidaMatrimonio;
}

bool llevaFecha(Tipo tipo) {
  return tipo == Tipo::ExhortoAmonestaciones || tipo == Tipo::NotificacionMatrimonio ||
         tipo == Tipo::VolanteMatrimonio || tipo == Tipo::ComunicacionMatrimonio;
}

/// A typed double quote becomes two apostrophes, as in all fields. Nothing typed is one blank.
std::string nombreJuzgado(const std::string& tecleado) {
  if (tecleado.empty()) return " ";
  return text::left(text::replaceAll(text::sanitized(tecleado), "\"", "''"), LARGO_JUZGADO);
}

/// The operation of the exhorto takes no longer key.
std::int16_t claveCorta(std::int64_t id) {
  if (id > std::numeric_limits<std::int16_t>::max())
    throw std::overflow_error("El exhorto no admite la clave " + std::to_string(id) +
                              " de este expediente.");
  return static_cast<std::int16_t>(id);
}

/// One run of the loader.
class Carga {
 public:
  Carga(Contexto& contexto, const CargadorMatrimonio& cargador, store::Recordset& matrimonios,
        Tipo tipo, FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes)
      : contexto_(contexto),
        cargador_(cargador),
        matrimonios_(matrimonios),
        tipo_(tipo),
        conFidaleon_(conFidaleon),
        conInformes_(conInformes),
        lookups_(contexto, conFidaleon),
        fila_(matrimonios),
        principal_(cargador.matrimonio, SIN_FIRMA, lookups_, fila_),
        companeras_{{{cargador.companeras[0], SIN_FIRMA, lookups_, fila_},
                     {cargador.companeras[1], SIN_FIRMA, lookups_, fila_},
                     {cargador.companeras[2], SIN_FIRMA, lookups_, fila_}}},
        fecha_(contexto.hoy()) {}

  /// False when the user has cancelled.
  bool preguntar();
  void escribir(FDAPI::cProgreso* progreso);

 private:
  bool pedirEncargado();
  bool pedirExhorto();
  bool pedirFecha(const char* titulo = nullptr, const char* rotulo = nullptr);
  void pedirJuzgado();
  void leerMatrimonio();
  void calcular();
  std::string ano() const;
  void insertar();
  void insertarCursos(const std::string& clave);

  inline static const Signature SIN_FIRMA{};

  Contexto& contexto_;
  const CargadorMatrimonio& cargador_;
  store::Recordset& matrimonios_;
  const Tipo tipo_;
  FDAPI::Conexion& conFidaleon_;
  FDAPI::Conexion& conInformes_;
  Lookups lookups_;
  FilaCompuesta fila_;
  RowStatements principal_;
  std::array<RowStatements, 3> companeras_;
  std::string fecha_;
  std::string encargado_;
  std::string juzgado_;
  DatosExhorto exhorto_{BLANK, BLANK, BLANK, BLANK, BLANK, BLANK};
};

bool Carga::preguntar() {
  if (llevaEncargado(tipo_) && !pedirEncargado()) return false;
  if (tipo_ == Tipo::ExhortoAmonestaciones && !pedirExhorto()) return false;
  if (llevaFecha(tipo_) && !pedirFecha()) return false;
  if (cargador_.preguntaJuzgado && tipo_ == Tipo::NotificacionMatrimonio) pedirJuzgado();
  return true;
}

bool Carga::pedirEncargado() {
  SelecEncargado(contexto_, conFidaleon_, MATRIMONIO.palabra,
                 static_cast<std::int32_t>(matrimonios_.integer("IDMatrimonio")), fecha_,
                 encargado_);
  return !text::trim(encargado_).empty();
}

bool Carga::pedirExhorto() {
  bool cancelado = false;
  CargaDatosExhorto(contexto_, exhorto_, cancelado, conFidaleon_,
                    claveCorta(matrimonios_.integer("IDMatrimonio")));
  return !cancelado;
}

bool Carga::pedirFecha(const char* titulo, const char* rotulo) {
  frmInfFecha dialogo(contexto_);
  if (titulo) dialogo.setCaption(titulo);
  if (rotulo) dialogo.setRotulo(rotulo);
  dialogo.Show();
  if (dialogo.blnCancelar) return false;
  fecha_ = dialogo.strFecha;
  return true;
}

void Carga::pedirJuzgado() {
  juzgado_ = nombreJuzgado(contexto_.ui()
                               .inputBox("Especifique el nombre del juzgado del Registro Civil: \n"
                                         "Advertencia: Longitud maxima 50 caracteres.",
                                         "Introducir nombre de juzgado")
                               .value_or(""));
}

void Carga::escribir(FDAPI::cProgreso* progreso) {
  const auto fidaleon = contexto_.fidaleon();
  const bool libro = tipo_ == Tipo::LibroMatrimonio || tipo_ == Tipo::IndiceLibroMatrimonio;
  for (std::int32_t cuenta = 1; !matrimonios_.EOF_(); matrimonios_.MoveNext(), ++cuenta) {
    leerMatrimonio();
    insertar();
    if (progreso && tipo_ == Tipo::DuplicadasMatrimonio) progreso->setValue(cuenta);
    if (libro) fidaleon->ProgresoRefresh(cuenta);
  }
}

void Carga::leerMatrimonio() {
  fila_.quitarDatos();
  CargarMatrimonioCompleto(conFidaleon_, matrimonios_, fila_);
  if (cargador_.preguntaIncoado && tipo_ == Tipo::ExpedienteMatrimonioOtras &&
      contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_ZARAGOZA))
    pedirFecha("Fecha de INCOADO", "Seleccione una fecha");
  calcular();
}

void Carga::calcular() {
  fila_.ponerDato("Año", ano());
  fila_.ponerDato("Testigos", testigosDeBoda(fila_));
  fila_.ponerDato("Fecha", fecha_);
  fila_.ponerDato("Encargado", encargado_);
  fila_.ponerDato("NombreJuzgado", juzgado_);
  for (std::size_t i = 0; i < exhorto_.size(); ++i)
    fila_.ponerDato("Exhorto" + std::to_string(i + 1), exhorto_[i]);
}

/// A duplicate counts by the wedding, all else by the book.
std::string Carga::ano() const {
  if (tipo_ == Tipo::DuplicadasMatrimonio)
    return std::to_string(static_cast<int>(
        text::Val(text::left(fila_.text("Matrimonio_Compromiso.FechaMatrimonio"), 4))));
  return fila_.tiene("Libro_Matrimonio")
             ? text::left(fila_.text("Libro_Matrimonio.FechaCreacion"), 4)
             : "";
}

void Carga::insertar() {
  conInformes_.Execute(principal_.current());
  const std::string clave =
      conInformes_
          .Execute(
              "SELECT MAX(IDDocumentos_Matrimonio) AS IDDocumentos_Matrimonio FROM "
              "Documentos_Matrimonio")
          .text("IDDocumentos_Matrimonio");
  fila_.ponerDato("Clave", clave);
  for (RowStatements& companera : companeras_) conInformes_.Execute(companera.current());
  if (cargador_.conCursos && contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_MADRID))
    insertarCursos(clave);
}

void Carga::insertarCursos(const std::string& clave) {
  store::Recordset cursos = conFidaleon_.Execute(
      "SELECT * FROM Matrimonio_Cursos  WHERE CodMatrimonio=" + matrimonios_.text("IDMatrimonio"));
  FilaCompuesta curso(cursos);
  curso.ponerDato("Clave", clave);
  RowStatements filas(cursosMatrimonio(), SIN_FIRMA, lookups_, curso);
  for (; !cursos.EOF_(); cursos.MoveNext()) conInformes_.Execute(filas.current());
}

void decirError(Contexto& contexto, const std::exception& error) {
  const auto* deLaBase = dynamic_cast<const store::Error*>(&error);
  forms::warn(contexto.ui(),
              std::to_string(deLaBase ? deLaBase->number() : 0) + "  - " + error.what());
}

}  // namespace

bool cargarDocumentos(Contexto& contexto, const CargadorMatrimonio& cargador,
                      store::Recordset& matrimonios, cCTipoDocumento tipo,
                      FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                      FDAPI::cProgreso* progreso) {
  try {
    store::Transaction transaction(conInformes);
    try {
      matrimonios.MoveFirst();
      Carga carga(contexto, cargador, matrimonios, tipo, conFidaleon, conInformes);
      if (carga.preguntar()) carga.escribir(progreso);
      transaction.commit();
      return true;
    } catch (const forms::Cancelled&) {
      throw;
    } catch (const std::exception& error) {
      decirError(contexto, error);
    }
  } catch (const forms::Cancelled&) {
    throw;
  } catch (const std::exception& error) {
    decirError(contexto, error);  // the transaction could not be begun
  }
  return false;
}

}  // namespace fidaleon::documents
