// The group itself: loading and acceptance.

#include "census/activities/frmActividadGrupos.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/dialogs/Guard.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr int MAXIMO_TEXTO = 255;
/// Of both together: long names with their offices are to be read whole.
constexpr int ANCHO_LISTAS = 120;

struct DatoGrupo {
  const char* etiqueta;
  std::string cPadronActGrupos::*miembro;
  Voz voz = Voz::Ninguna;
};

// By frmActividadGrupos::Campo.
constexpr std::array<DatoGrupo, 6> DATOS{{{"NOMBRE:", &cPadronActGrupos::Nombre},
                                          {"AÑO:", &cPadronActGrupos::Año, Voz::Curso},
                                          {"DIA:", &cPadronActGrupos::Dia, Voz::Dia},
                                          {"HORA:", &cPadronActGrupos::Hora, Voz::Hora},
                                          {"SALA:", &cPadronActGrupos::Sala, Voz::Sala},
                                          {"COMENTARIOS:", &cPadronActGrupos::Comentarios}}};

ListaDoble::Textos textos() {
  ListaDoble::Textos t;
  t.todas = "todos";
  t.ayudas = {"Pasa al grupo los colaboradores marcados, con el cargo que se elija",
              "Pasa al grupo todos los colaboradores, con el cargo que se elija",
              "Saca del grupo los colaboradores marcados",
              "Saca del grupo todos los colaboradores"};
  t.nadaQueElegir = "¡No existen colaboradores para agregar!";
  t.nadaQueQuitar = "¡No existen colaboradores para quitar!";
  return t;
}

}  // namespace

frmActividadGrupos::frmActividadGrupos(Contexto& contexto)
    : DialogoConMemoria(contexto, "frmActividadGrupos"),
      mstGrupo(*this, "mstGrupo", {"GRUPO", "COLABORADORES"}),
      txtGrupo(*this, "txtGrupo"),
      lstColaboradores(*this, "lstColaboradores"),
      cmdMover(*this, "cmdMover"),
      cmdGrupo(*this, "cmdGrupo"),
      listas_(contexto, *this, lstColaboradores.add(DISPONIBLES, "DISPONIBLES:"),
              lstColaboradores.add(SELECCIONADAS, "SELECCIONADAS:"), cmdMover, textos()) {
  prepararControles();
  ponerDisposicion();
}

void frmActividadGrupos::prepararControles() {
  for (int campo = NOMBRE; campo <= COMENTARIOS; ++campo) {
    const DatoGrupo& dato = DATOS[static_cast<std::size_t>(campo)];
    txtGrupo.add(campo, dato.etiqueta).setMaxLength(campo == COMENTARIOS ? 0 : MAXIMO_TEXTO);
    ofrecer(txtGrupo[campo], dato.voz);
    if (dato.voz == Voz::Ninguna) deCadaUno(txtGrupo[campo]);
  }
  txtGrupo[COMENTARIOS].setLines(5);
  for (const auto& [indice, lista] : lstColaboradores.all()) lista->setWidthChars(ANCHO_LISTAS);
  cmdGrupo.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdGrupo.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdGrupo.add(ANADIR, "AÑADIR...").setToolTip("Crea un colaborador nuevo");
  for (const auto& [indice, boton] : cmdGrupo.all())
    boton->onClick = [this, indice = indice] { cmdGrupo_Click(Boton(indice)); };
  listas_.antesDeElegir = [this](const ListaDoble::Claves& claves) { return pedirCargo(claves); };
  listas_.anotacion = [this](std::int64_t persona) { return anotacion(persona); };
}

void frmActividadGrupos::ponerDisposicion() {
  setLayout(forms::column(
      {forms::tabs(mstGrupo,
                   {forms::page({forms::fields(
                        2, {forms::item(txtGrupo[NOMBRE], 2), forms::item(txtGrupo[ANO]),
                            forms::item(txtGrupo[DIA]), forms::item(txtGrupo[HORA]),
                            forms::item(txtGrupo[SALA]), forms::item(txtGrupo[COMENTARIOS], 2)})}),
                    forms::page({listas_.disposicion(), forms::item(cmdGrupo[ANADIR])})}),
       forms::buttons({&cmdGrupo[ACEPTAR], &cmdGrupo[CANCELAR]})}));
}

void frmActividadGrupos::Form_Load() {
  cmdGrupo[ANADIR].setVisible(Origen != FDAPI::cCOrigen::COLABORADOR);
  if (!procedimiento("Form_Load", [this] { cargar(); })) Unload();
}

void frmActividadGrupos::cargar() {
  setCaption("Agregar grupo");
  refrescarMemoria();
  personas_ = leerColaboradores();
  ListaDoble::Claves elegidas;
  if (Operacion == cCOperacion::EDITAR) {
    const cPadronActGrupos* grupo = buscarGrupo(*colGrupos, IDGrupo);
    if (!grupo) throw std::logic_error("El grupo no está en la actividad.");
    mostrarGrupo(*grupo);
    // Members that are not all there must never be accepted over those that are stored.
    if (!CargarDatosGrupoColaborador(*grupo, elegidas)) return Unload();
  }
  listas_.llenar(personas_, elegidas);
}

void frmActividadGrupos::mostrarGrupo(const cPadronActGrupos& grupo) {
  setCaption("Propiedades del grupo " + grupo.Nombre);
  for (const auto& [indice, campo] : txtGrupo.all())
    campo->setText(grupo.*DATOS[static_cast<std::size_t>(indice)].miembro);
}

void frmActividadGrupos::cmdGrupo_Click(Boton boton) {
  procedimiento("cmdGrupo_Click", [&] {
    if (boton == ANADIR) return anadirColaborador();
    if (boton == CANCELAR) return Unload();
    aceptar();
  });
}

void frmActividadGrupos::aceptar() {
  if (!validar()) return;
  if (Operacion == cCOperacion::ANADIR) {
    cPadronActGrupos nuevo;
    nuevo.IDGrupo = claveTemporal(*colGrupos);
    nuevo.IDActividad = IDActividad;
    nuevo.Operacion = cCOperacion::ANADIR;
    guardar(nuevo);
    recordar(campos(nuevo));
    colGrupos->push_back(std::move(nuevo));
  } else {
    cPadronActGrupos& grupo = *buscarGrupo(*colGrupos, IDGrupo);
    if (grupo.Estado) grupo.Operacion = cCOperacion::EDITAR;
    guardar(grupo);
  }
  blnAceptado = true;
  Unload();
}

std::vector<forms::Field> frmActividadGrupos::campos(const cPadronActGrupos& grupo) const {
  std::vector<forms::Field> todos;
  for (const auto& [indice, campo] : txtGrupo.all())
    todos.push_back({campo->name(), {}, grupo.*DATOS[static_cast<std::size_t>(indice)].miembro});
  return todos;
}

/// Of the activity.
const std::vector<forms::Field>& frmActividadGrupos::ultima() const {
  ultima_.clear();
  for (const cPadronActGrupos& grupo : *colGrupos)
    if (grupo.Operacion != cCOperacion::Borrar) ultima_ = campos(grupo);
  return ultima_;
}

bool frmActividadGrupos::validar() {
  const std::string nombre = text::trim(txtGrupo[NOMBRE].text());
  if (nombre.empty()) return rehusar("¡Debe introducir un nombre para el grupo!");
  if (repetido(nombre)) return rehusar("¡Ya existe un grupo con ese nombre!");
  return true;
}

bool frmActividadGrupos::rehusar(const char* mensaje) {
  forms::warn(ui(), mensaje);
  mstGrupo.setTab(TAB_GRUPO);
  setFocus(txtGrupo[NOMBRE]);
  return false;
}

bool frmActividadGrupos::repetido(const std::string& nombre) const {
  return std::any_of(colGrupos->begin(), colGrupos->end(), [&](const cPadronActGrupos& otro) {
    return (Operacion == cCOperacion::ANADIR || otro.IDGrupo != IDGrupo) &&
           otro.Operacion != cCOperacion::Borrar &&
           text::equalsNoCase(text::trim(otro.Nombre), nombre);
  });
}

void frmActividadGrupos::guardar(cPadronActGrupos& grupo) {
  for (const auto& [indice, campo] : txtGrupo.all())
    grupo.*DATOS[static_cast<std::size_t>(indice)].miembro = campo->text();
  grupo.Nombre = text::trim(grupo.Nombre);
  grupo.miembros = miembros(grupo);
}

}  // namespace fidaleon
