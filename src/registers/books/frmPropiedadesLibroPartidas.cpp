// The entries of the book: the grid and its four buttons.

#include "core/statements/Sentencia.h"
#include "registers/books/VariantePropiedadesLibro.h"
#include "registers/common/Anulacion.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmPropiedadesLibro::CargarGridPartidasDColeccion() {
  procedimiento("CargarGridPartidasDColeccion()", [this] { llenarRejilla(); });
}

void frmPropiedadesLibro::llenarRejilla() {
  const auto fidaleon = contexto_.fidaleon();
  const std::size_t antes = elegida().value_or(0);
  int fila = 0;
  msgPartidas.beginUpdate();
  msgPartidas.clearRows();
  for (std::size_t i = 0; i < partidas_->cuenta(); ++i) {
    const PartidaEnLista partida = partidas_->partida(i);
    if (partida.Operacion == cCOperacion::Borrar) continue;
    std::vector<std::string> celdas = partidas_->celdas(i, *fidaleon);
    celdas.push_back(partida.Anulada ? "SI" : "NO");
    const int nueva = msgPartidas.addRow(std::move(celdas), static_cast<std::int64_t>(i));
    if (i <= antes || fila == 0) fila = nueva;
  }
  msgPartidas.endUpdate();
  trasAnular_ = false;
  permitirPartidas(fila != 0);
  msgPartidas.setRow(fila);
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
  CargarGridPartidasDColeccion();
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
  CargarGridPartidasDColeccion();
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
    return CargarGridPartidasDColeccion();
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
  CargarGridPartidasDColeccion();
}

}  // namespace fidaleon
