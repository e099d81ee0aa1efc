// The entries of the book: the grid and its four buttons.

#include <algorithm>
#include <ranges>

#include "core/statements/Sentencia.h"
#include "registers/books/VariantePropiedadesLibro.h"
#include "registers/common/Anulacion.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmPropiedadesLibro::CargarGridPartidasDColeccion() {
  procedimiento("CargarGridPartidasDColeccion()",
                [this] { refrescarRejilla(0, partidas_->cuenta()); });
}

/// Shows what has changed of these places of the working copy, or has come.
void frmPropiedadesLibro::refrescarRejilla(std::size_t desde, std::size_t hasta) {
  const auto fidaleon = contexto_.fidaleon();
  const std::size_t antes = elegida().value_or(0);
  msgPartidas.beginUpdate();
  for (std::size_t i = desde; i < hasta; ++i) ponerFila(i, *fidaleon);
  msgPartidas.endUpdate();
  trasAnular_ = false;
  permitirPartidas(msgPartidas.rowCount() != 0);
  msgPartidas.setRow(std::max(filaHasta(antes), std::min(1, msgPartidas.rowCount())));
}

void frmPropiedadesLibro::ponerFila(std::size_t posicion, FDAPI::cFidaleon& fidaleon) {
  const PartidaEnLista partida = partidas_->partida(posicion);
  const auto clave = static_cast<std::int64_t>(posicion);
  const int fila = filaHasta(posicion);
  const bool esta = fila != 0 && msgPartidas.rowKey(fila) == clave;
  if (partida.Operacion == cCOperacion::Borrar) {
    if (esta) msgPartidas.removeRow(fila);
    return;
  }
  std::vector<std::string> celdas = partidas_->celdas(posicion, fidaleon);
  celdas.push_back(partida.Anulada ? "SI" : "NO");
  if (!esta) {
    msgPartidas.addRow(std::move(celdas), clave);
    return;
  }
  for (int c = 0; c < msgPartidas.columns(); ++c)
    msgPartidas.setCell(fila, c, std::move(celdas[static_cast<std::size_t>(c)]));
}

/// The row of this place, or of the last one before it; 0 when there is none.
int frmPropiedadesLibro::filaHasta(std::size_t posicion) const {
  const auto clave = static_cast<std::int64_t>(posicion);
  int fila = msgPartidas.rowCount();
  if (fila == 0 || msgPartidas.rowKey(fila) <= clave) return fila;
  const auto filas = std::views::iota(1, fila + 1);
  return static_cast<int>(
      std::ranges::upper_bound(filas, clave, {}, [this](int f) { return msgPartidas.rowKey(f); }) -
      filas.begin());
}

void frmPropiedadesLibro::permitirPartidas(bool permitidas) {
  for (const Entrada boton : {PROPIEDADES, ANULAR, ELIMINAR})
    cmdPartidas[boton].setEnabled(permitidas);
}

std::optional<std::size_t> frmPropiedadesLibro::elegida() const {
  if (msgPartidas.row() == 0) return std::nullopt;
  return static_cast<std::size_t>(msgPartidas.rowKey(msgPartidas.row()));
}

void frmPropiedadesLibro::msgPartidas_RowChange() {
  const auto posicion = elegida();
  if (!posicion) return;
  cmdPartidas[ANULAR].setCaption(partidas_->partida(*posicion).Anulada ? "Validar" : "Anular");
  if (trasAnular_) cmdPartidas[ELIMINAR].setEnabled(sePuedeEliminar());
}

bool frmPropiedadesLibro::sePuedeEliminar() const {
  const bool ultima = msgPartidas.row() == msgPartidas.rowCount();
  return !nuevo_ || (ultima && !cerrado_);
}

void frmPropiedadesLibro::msgPartidas_DblClick() {
  if (cmdPartidas[PROPIEDADES].enabled() && elegida()) cmdPartidas_Click(PROPIEDADES);
}

void frmPropiedadesLibro::cmdPartidas_Click(Entrada boton) {
  procedimiento("cmdPartidas_Click()", [&] {
    cerrado_ = hayFilas(sentencia("SELECT * FROM {Libros} WHERE Cerrado = True AND Nuevo = True "
                                  "AND {IDLibro} = ") +
                        libro());
    if (boton == AGREGAR) return agregar();
    if (!elegida()) return;
    if (boton == PROPIEDADES) return propiedades();
    if (boton == ANULAR) return anular();
    eliminar();
  });
}

void frmPropiedadesLibro::agregar() {
  if (cerrado_) return forms::warn(ui(), "¡No se pueden añadir partidas a un libro nuevo cerrado!");
  if (!bloquearAlta()) return;
  const std::size_t antes = partidas_->cuenta();
  partidas_->abrir(apertura(std::nullopt));
  refrescarFecha();
  refrescarRejilla(antes, partidas_->cuenta());
  if (partidas_->cuenta() != antes) msgPartidas.setRow(msgPartidas.rowCount());
}

bool frmPropiedadesLibro::bloquearAlta() {
  sesion_->tablasCompartidas({"Provincia", "Municipio"});
  sesion_->tabla(sacramento_.tablaPartidas);
  return sesion_->efectuar();
}

std::string frmPropiedadesLibro::putBackOwnWork(const std::string& work) {
  std::string resto = work;
  procedimiento("putBackOwnWork()", [&] {
    resto = partidas_->reponer(*conBaseDatos, work, [this](const PartidaEnLista& partida) {
      return partida.guardada ? bloquear(partida) : !cerrado_ && bloquearAlta();
    });
    CargarGridPartidasDColeccion();
  });
  return resto;
}

AperturaDeLista frmPropiedadesLibro::apertura(std::optional<std::size_t> posicion) const {
  return {*conBaseDatos, institucion_, lngLibro, posicion};
}

// An old entry entered from here may have moved the book's date forward, at once and in the table:
// accepting the book must not put it back.
void frmPropiedadesLibro::refrescarFecha() {
  if (dtpFecha.stored() != fechaLeida_ || !dtpFecha.valid()) return;
  fechaEnTabla_ =
      conBaseDatos
          ->Execute(sentencia("SELECT Fechacreacion FROM {Libros} WHERE IdLibro{Palabra}=") +
                    libro())
          .text("Fechacreacion");
  dtpFecha.setStored(fechaEnTabla_);
  fechaLeida_ = dtpFecha.stored();
}

void frmPropiedadesLibro::definirBloqueos(const PartidaEnLista& partida) {
  sesion_->tablasCompartidas({"Provincia", "Municipio"});
  sesion_->registroPorClave(sacramento_.tablaPartidas, sacramento_.clavePartida, partida.id);
}

bool frmPropiedadesLibro::bloquear(const PartidaEnLista& partida) {
  if (!partida.guardada) return true;
  definirBloqueos(partida);
  return sesion_->intentar() == FDAPI::BloqueoNinguno;
}

long frmPropiedadesLibro::bloquearParaAbrir(const PartidaEnLista& partida) {
  if (!partida.guardada) return FDAPI::BloqueoNinguno;
  definirBloqueos(partida);
  return sesion_->intentarParaAbrir();
}

void frmPropiedadesLibro::propiedades() {
  const std::size_t posicion = *elegida();
  const long error = bloquearParaAbrir(partidas_->partida(posicion));
  if (error == FDAPI::BloqueoRegistroNoExiste || error == FDAPI::BloqueoSesion) return;
  AperturaDeLista como = apertura(posicion);
  if (error != FDAPI::BloqueoNinguno) como.aviso = sesion_->aviso();
  if (!partidas_->abrir(como)) avisarIlegible();
  refrescarRejilla(posicion, posicion + 1);
}

void frmPropiedadesLibro::avisarIlegible() {
  forms::warn(ui(), "¡No se han podido leer todos los datos de esta partida!");
}

void frmPropiedadesLibro::anular() {
  const std::size_t posicion = *elegida();
  const bool anulada = partidas_->partida(posicion).Anulada;
  if (!bloquear(partidas_->partida(posicion))) return;
  if (!partidas_->completar(*conBaseDatos, posicion)) return avisarIlegible();
  // The list may have been read before another desk did the same.
  if (partidas_->partida(posicion).Anulada != anulada) {
    avisarYaEsta(contexto_.ui(), !anulada);
    return refrescarRejilla(posicion, posicion + 1);
  }
  partidas_->anular(posicion, !anulada);
  msgPartidas.setCell(msgPartidas.row(), msgPartidas.columns() - 1, anulada ? "NO" : "SI");
  cmdPartidas[ANULAR].setCaption(anulada ? "Validar" : "Anular");
  permitirPartidas(true);
  cmdPartidas[ELIMINAR].setEnabled(false);
  trasAnular_ = true;
}

void frmPropiedadesLibro::eliminar() {
  const std::size_t posicion = *elegida();
  if (!bloquear(partidas_->partida(posicion))) return;
  if (sePuedeEliminar()) partidas_->eliminar(posicion);
  refrescarRejilla(posicion, posicion + 1);
}

}  // namespace fidaleon
