#include "registers/repair/frmPartidasIncompletas.h"

#include <algorithm>

#include "core/contract/SesionBloqueos.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"
#include "core/statements/Sentencia.h"
#include "core/statements/TransaccionSinVuelta.h"

namespace fidaleon {

namespace {

constexpr int MAYOR_DE_SOLICITUD = 255;  // requests keep the institution in one byte

const Rejilla REJILLA{"Grids\\PartidasIncompletas\\PartidasIncompletas",
                      {{"Registro", 1100},
                       {"Libro", 1300},
                       {"Folio", 700},
                       {"Número", 900},
                       {"Fecha", 1200},
                       {"Le falta", 1900},
                       {"Lo que queda", 5500}}};

std::string loQueFalta(const PartidaIncompleta& p) {
  std::string nombres;
  const auto falta = [&](const char* que) {
    nombres += (nombres.empty() ? "" : ", ") + std::string(que);
  };
  for (const FilaDePartida* f : p.faltan) falta(f->nombre);
  if (p.sinLibro) falta("libro");
  if (p.sinInstitucion) falta("institución");
  return nombres;
}

std::string descripcion(const PartidaIncompleta& p) {
  std::string texto = p.codLibro == 0
                          ? "Solicitud"
                          : "Libro " + p.libro + ", folio " + p.folio + ", número " + p.numero;
  texto += ". Le falta: " + loQueFalta(p) + ".";
  return p.queda.empty() ? texto : texto + "\nSe perderá lo que queda de ella: " + p.queda + ".";
}

}  // namespace

frmPartidasIncompletas::frmPartidasIncompletas(Contexto& contexto)
    : Dialogo(contexto, "frmPartidasIncompletas"),
      lblExplicacion(
          *this, "lblExplicacion",
          "A estas partidas les falta alguna de sus fichas: ocupan su folio y su número, "
          "pero puede que no aparezcan en las listas.\n"
          "«Completar» les da las que faltan, en blanco, y abre la partida para "
          "rellenarlas. «Eliminar» la quita del libro.\n"
          "Un libro o una solicitud que se ha quedado sin institución recibe la que se elija."),
      msgPartidas(*this, "msgPartidas"),
      cboInstitucion(*this, "cboInstitucion", "Institución que recibe:"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Partidas incompletas");
  cmdBoton.add(COMPLETAR, "C&ompletar").setDefault(true);
  cmdBoton.add(ELIMINAR, "&Eliminar");
  cmdBoton.add(CERRAR, "&Cerrar").setCancel(true);
  cmdBoton[COMPLETAR].onClick = [this] { completar(); };
  cmdBoton[ELIMINAR].onClick = [this] { eliminar(); };
  cmdBoton[CERRAR].onClick = [this] { Unload(); };
  msgPartidas.onDblClick = [this] { completar(); };
  msgPartidas.onRowChange = [this] { mostrarInstitucion(); };
  setLayout(forms::column(
      {forms::item(lblExplicacion), forms::item(msgPartidas),
       forms::fields(1, {forms::item(cboInstitucion)}),
       forms::buttons({&cmdBoton[COMPLETAR], &cmdBoton[ELIMINAR], &cmdBoton[CERRAR]})}));
}

void frmPartidasIncompletas::Form_Load() {
  cIListas(contexto_).ConfigGrid(msgPartidas, REJILLA, "Form_Load()", name().c_str());
  const bool cargado = procedimiento("Form_Load()", [this] {
    elecciones_.emplace(contexto_, *conBaseDatos);
    elecciones_->vigilar({&cboInstitucion, "Institucion", "IDInstitucion", "la institución",
                          [this] { cargarInstituciones(); }});
    cargarInstituciones();
    CargarGrid();
  });
  if (!cargado) return Unload();
  if (partidas_.empty())
    ui().msgBox("No hay partidas incompletas.", forms::MsgButtons::Ok, forms::MsgIcon::Information);
  if (partidas_.empty()) Unload();
}

void frmPartidasIncompletas::Form_Unload() {
  procedimiento("Form_Unload()", [this] { cIListas(contexto_).SaveGrid(msgPartidas, REJILLA); });
}

/// Where there is one alone, it is that one.
void frmPartidasIncompletas::cargarInstituciones() {
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0, *conBaseDatos);
  if (cboInstitucion.listCount() == 1) cboInstitucion.setListIndex(0);
}

void frmPartidasIncompletas::mostrarInstitucion() {
  const auto fila = static_cast<std::size_t>(msgPartidas.row());
  cboInstitucion.setEnabled(fila != 0 && fila <= partidas_.size() &&
                            partidas_[fila - 1].sinInstitucion);
}

void frmPartidasIncompletas::CargarGrid() {
  const forms::Hourglass reloj(ui());
  partidas_ = partidasIncompletas(*conBaseDatos);
  const auto fidaleon = contexto_.fidaleon();
  const int fila = msgPartidas.row();
  msgPartidas.beginUpdate();
  msgPartidas.clearRows();
  for (const PartidaIncompleta& p : partidas_)
    msgPartidas.addRow(
        {p.clase->registro, p.libro, p.folio, p.numero,
         p.fecha.empty() ? "" : fidaleon->stringdate(p.fecha), loQueFalta(p), p.queda},
        p.id);
  msgPartidas.endUpdate();
  if (!partidas_.empty())
    msgPartidas.setRow(std::clamp(fila, 1, static_cast<int>(partidas_.size())));
  mostrarInstitucion();
}

bool frmPartidasIncompletas::sigueIncompleta(const PartidaIncompleta& elegida,
                                             PartidaIncompleta& ahora) {
  ahora = releida(*conBaseDatos, elegida);
  if (ahora.clase) return true;
  ui().msgBox(elegida.esLibro()
                  ? "A este libro ya no le falta nada: alguien lo ha completado o eliminado."
                  : "Esta partida ya no está incompleta: alguien la ha completado o eliminado.",
              forms::MsgButtons::Ok, forms::MsgIcon::Information);
  return false;
}

bool frmPartidasIncompletas::hayInstitucion(const PartidaIncompleta& para) {
  if (!para.sinInstitucion) return true;
  if (cboInstitucion.listIndex() < 0) {
    contexto_.fidaleon()->verfalta(*cboInstitucion.label());
    return false;
  }
  if (!elecciones_->siguen()) return false;
  if (!para.esLibro() && cboInstitucion.data() > MAYOR_DE_SOLICITUD) {
    forms::warn(ui(), "Una solicitud no puede guardar la clave de esa institución (" +
                          std::to_string(cboInstitucion.data()) +
                          "): la mayor es 255. Elija otra.");
    return false;
  }
  if (!para.esLibro() || !hayOtroLibro(*conBaseDatos, para, cboInstitucion.data())) return true;
  forms::warn(ui(),
              "La institución ya tiene otro libro con ese nombre. Elija otra, o cambie antes el "
              "nombre de ese libro.");
  return false;
}

void frmPartidasIncompletas::conElegida(const char* nombre,
                                        const std::function<void(const PartidaIncompleta&)>& acto) {
  if (msgPartidas.row() == 0) return;
  const PartidaIncompleta elegida = partidas_.at(static_cast<std::size_t>(msgPartidas.row()) - 1);
  procedimiento(nombre, [&] { acto(elegida); });
  procedimiento("CargarGrid", [this] { CargarGrid(); });
  if (partidas_.empty()) return Unload();
  setFocus(msgPartidas);
}

void frmPartidasIncompletas::completar() {
  conElegida("Completar", [this](const PartidaIncompleta& elegida) {
    PartidaIncompleta ahora;
    {
      const Sacramento& s = elegida.clase->sacramento;
      SesionBloqueos bloqueos(contexto_, *conBaseDatos);
      bloqueos.tablasCompartidas({"Institucion"});
      bloqueos.tabla(elegida.esLibro() ? s.tablaLibros : s.tablaPartidas);
      if (!bloqueos.efectuar() || !sigueIncompleta(elegida, ahora) || !hayInstitucion(ahora))
        return;
      completarPartida(*conBaseDatos, ahora, cboInstitucion.data());
    }
    if (abrir) abrir(ahora);
  });
}

void frmPartidasIncompletas::eliminar() {
  conElegida("Eliminar", [this](const PartidaIncompleta& elegida) {
    if (elegida.esLibro())
      return forms::warn(ui(),
                         "Es un libro entero. Complételo primero: después puede verlo, y "
                         "eliminarlo, en la lista de libros.");
    if (!forms::ask(ui(), "¿Está seguro que desea eliminar la partida?", {}, forms::Stake::Loss,
                    descripcion(elegida)))
      return;
    const Sacramento& s = elegida.clase->sacramento;
    SesionBloqueos bloqueos(contexto_, *conBaseDatos);
    bloqueos.tabla(s.tablaPartidas);
    if (elegida.codLibro != 0)
      bloqueos.registros(s.tablaLibros,
                         sentencia(s, "SELECT codLibro FROM {Partidas} WHERE {IDPartida}=") +
                             std::to_string(elegida.id));
    PartidaIncompleta ahora;
    if (!bloqueos.efectuar() || !sigueIncompleta(elegida, ahora)) return;
    TransaccionSinVuelta transaccion(contexto_, *conBaseDatos, store::Removes::Yes);
    borrarPartida(*conBaseDatos, *ahora.clase, ahora.id, Compartidas::Respetar);
    transaccion.terminar();
  });
}

}  // namespace fidaleon
