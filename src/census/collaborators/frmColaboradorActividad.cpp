#include "census/collaborators/frmColaboradorActividad.h"

#include <algorithm>
#include <iterator>

#include "census/Operaciones.h"
#include "core/dialogs/Guard.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;
using store::Recordset;

namespace {

constexpr const char* NOMBRE_ACTIVIDAD = "SELECT Nombre FROM Actividad WHERE IDActividad=";
constexpr const char* NOMBRE_INSTITUCION = "SELECT Nombre FROM Institucion WHERE IDInstitucion=";

/// Empty when there is no such record.
std::string nombreDe(FDAPI::Conexion& conexion, const char* sentencia, std::int64_t id) {
  const Recordset fila = conexion.Execute(sentencia + std::to_string(id));
  return fila.EOF_() ? std::string() : fila.text("Nombre");
}

struct Linea {
  std::string texto;
  std::int64_t clave;
  std::int64_t institucion = 0;  // of an activity
};

std::vector<Linea> leerLineas(Recordset filas, const char* clave, bool deInstitucion) {
  std::vector<Linea> lineas;
  for (; !filas.EOF_(); filas.MoveNext())
    lineas.push_back({filas.text("Nombre"), filas.integer(clave),
                      deInstitucion ? filas.integer("CodInstitucion") : 0});
  std::stable_sort(lineas.begin(), lineas.end(), [](const Linea& a, const Linea& b) {
    return text::compare(a.texto, b.texto) < 0;
  });
  return lineas;
}

/// Activities of several institutions may have the same name; those say whose they are.
void distinguir(FDAPI::Conexion& conexion, std::vector<Linea>& lineas) {
  const auto mismoNombre = [](const Linea& a, const Linea& b) {
    return text::compare(a.texto, b.texto) == 0;
  };
  for (auto desde = lineas.begin(); desde != lineas.end();) {
    const auto hasta = std::find_if_not(
        desde, lineas.end(), [&](const Linea& otra) { return mismoNombre(*desde, otra); });
    if (std::distance(desde, hasta) > 1)
      for (auto i = desde; i != hasta; ++i)
        i->texto += " (" + nombreDe(conexion, NOMBRE_INSTITUCION, i->institucion) + ")";
    desde = hasta;
  }
}

}  // namespace

frmColaboradorActividad::frmColaboradorActividad(Contexto& contexto)
    : DialogoConMemoria(contexto, "frmColaboradorActividad"),
      cboColaboraAct(*this, "cboColaboraAct"),
      cmdAgregar(*this, "cmdAgregar"),
      cmdColaboraAct(*this, "cmdColaboraAct") {
  crearLista(ACTIVIDAD, "ACTIVIDAD:", "Agregar Actividad");
  crearLista(GRUPO, "GRUPO:", "Agregar Grupo");
  crearLista(CARGO, "CARGO:", "Agregar Cargo");
  cboColaboraAct[ACTIVIDAD].onClick = [this] {
    procedimiento("cboColaboraAct_Click", [this] { cboActividad_Click(); });
  };
  cmdColaboraAct.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdColaboraAct.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdColaboraAct[ACEPTAR].onClick = [this] {
    procedimiento("cmdColaboraAct_Click", [this] { aceptar(); });
  };
  cmdColaboraAct[CANCELAR].onClick = [this] { Unload(); };
  const auto linea = [this](Lista lista) {
    return forms::item(cboColaboraAct[lista], {&cmdAgregar[lista]});
  };
  setLayout(forms::column({forms::fields(1, {linea(ACTIVIDAD), linea(GRUPO), linea(CARGO)}),
                           forms::stretch(),
                           forms::buttons({&cmdColaboraAct[ACEPTAR], &cmdColaboraAct[CANCELAR]})}));
}

void frmColaboradorActividad::crearLista(Lista lista, const char* etiqueta, const char* boton) {
  cboColaboraAct.add(lista, etiqueta).setWidthChars(50);
  cmdAgregar.add(lista, boton).onClick = [this, lista] {
    procedimiento("cmdColaboraAct_Click", [this, lista] { cmdAgregar_Click(lista); });
  };
}

void frmColaboradorActividad::Form_Load() {
  celdas.clear();
  const bool alta = Operacion == cCOperacion::ANADIR;
  setCaption(alta ? "Agregar colaborador - actividad" : "Propiedades colaborador - actividad");
  for (const Lista lista : {ACTIVIDAD, CARGO})
    cmdAgregar[lista].setVisible(Origen != cCOrigen::ACTIVIDAD);
  cmdAgregar[GRUPO].setEnabled(false);
  const bool cargado = procedimiento("Cargar_Listas", [this] {
    Cargar_Listas(ACTIVIDAD);
    Cargar_Listas(CARGO);
  });
  if (!cargado || (!alta && !procedimiento("Cargar_Datos", [this] { Cargar_Datos(); }))) Unload();
}

void frmColaboradorActividad::Cargar_Listas(Lista lista) {
  static constexpr const char* TABLAS[] = {"Actividad", "Grupo", "Cargo"};
  const std::string tabla = TABLAS[lista];
  std::string sentencia = "SELECT * FROM " + tabla;
  if (lista == GRUPO) sentencia += " WHERE CodActividad=" + std::to_string(clave(ACTIVIDAD));
  std::vector<Linea> lineas =
      leerLineas(conBaseDatos->Execute(sentencia), ("ID" + tabla).c_str(), lista == ACTIVIDAD);
  if (lista == ACTIVIDAD) distinguir(*conBaseDatos, lineas);
  cboColaboraAct[lista].clear();
  for (Linea& linea : lineas) cboColaboraAct[lista].addItem(std::move(linea.texto), linea.clave);
}

void frmColaboradorActividad::Cargar_Datos() {
  const cPadronActividad& actividad = colActividades->at(posicion);
  const Recordset grupo = conBaseDatos->Execute(
      "SELECT Nombre,CodActividad FROM Grupo WHERE IDGrupo=" + std::to_string(actividad.IDGrupo));
  const std::int64_t codActividad = grupo.EOF_() ? 0 : grupo.integer("CodActividad");
  if (!nombreDe(*conBaseDatos, NOMBRE_ACTIVIDAD, codActividad).empty())
    cboColaboraAct[ACTIVIDAD].selectData(codActividad);
  cboColaboraAct[GRUPO].selectData(actividad.IDGrupo);
  if (!nombreDe(*conBaseDatos, "SELECT Nombre FROM Cargo WHERE IDCargo=", actividad.IDCargo)
           .empty())
    cboColaboraAct[CARGO].selectData(actividad.IDCargo);
}

void frmColaboradorActividad::cboActividad_Click() {
  cboColaboraAct[GRUPO].clear();
  const std::int32_t actividad = clave(ACTIVIDAD);
  cmdAgregar[GRUPO].setEnabled(actividad != 0);
  if (!conBaseDatos
           ->Execute("SELECT IdGrupo FROM Grupo WHERE codActividad=" + std::to_string(actividad))
           .EOF_())
    Cargar_Listas(GRUPO);
}

std::int32_t frmColaboradorActividad::clave(Lista lista) const {
  return static_cast<std::int32_t>(cboColaboraAct[lista].data());
}

frmColaboradorActividad::Claves frmColaboradorActividad::claves(Lista lista) const {
  Claves todas;
  for (int i = 0; i < cboColaboraAct[lista].listCount(); ++i)
    todas.insert(cboColaboraAct[lista].itemData(i));
  return todas;
}

void frmColaboradorActividad::cmdAgregar_Click(Lista lista) {
  const Claves antes = claves(lista);
  agregar(lista);
  recargar();
  elegirNueva(lista, antes);
  if (refrescar) refrescar();
}

void frmColaboradorActividad::agregar(Lista lista) {
  constexpr cCOrigen DESDE_AQUI = cCOrigen::COLABORADOR;
  switch (lista) {
    case ACTIVIDAD:
      return censo::NuevaActividad(contexto_, *conBaseDatos, false, DESDE_AQUI);
    case GRUPO:
      return censo::EditaActividad(contexto_, *conBaseDatos, clave(ACTIVIDAD), false, DESDE_AQUI);
    case CARGO:
      return censo::NuevoCargo(contexto_, *conBaseDatos, true);
  }
}

/// All three anew, since any of them may have changed; what was chosen stays so.
void frmColaboradorActividad::recargar() {
  const std::int32_t actividad = clave(ACTIVIDAD), grupo = clave(GRUPO), cargo = clave(CARGO);
  Cargar_Listas(ACTIVIDAD);
  if (!cboColaboraAct[ACTIVIDAD].selectData(actividad)) cboActividad_Click();
  cboColaboraAct[GRUPO].selectData(grupo);
  Cargar_Listas(CARGO);
  cboColaboraAct[CARGO].selectData(cargo);
}

/// The one that was just added, if it is the only one that was not there before.
void frmColaboradorActividad::elegirNueva(Lista lista, const Claves& antes) {
  const Claves ahora = claves(lista);
  std::vector<std::int64_t> nuevas;
  std::set_difference(ahora.begin(), ahora.end(), antes.begin(), antes.end(),
                      std::back_inserter(nuevas));
  if (nuevas.size() == 1) cboColaboraAct[lista].selectData(nuevas.front());
}

void frmColaboradorActividad::aceptar() {
  if (faltaAlguna()) return;
  if (yaEnElGrupo()) return forms::warn(ui(), "¡El colaborador ya existe en este grupo!");
  const Recordset grupo = conBaseDatos->Execute("SELECT Dia,Hora,Sala FROM Grupo WHERE IDGrupo=" +
                                                std::to_string(clave(GRUPO)));
  if (grupo.EOF_()) {
    forms::warn(ui(), "¡El grupo elegido ya no existe!");
    return recargar();
  }
  celdas = {cboColaboraAct[GRUPO].text(),
            cboColaboraAct[CARGO].text(),
            nombreDe(*conBaseDatos, NOMBRE_ACTIVIDAD, clave(ACTIVIDAD)),
            grupo.text("Sala"),
            grupo.text("Dia"),
            grupo.text("Hora")};
  guardar();
  Unload();
}

bool frmColaboradorActividad::faltaAlguna() {
  static constexpr const char* MENSAJES[] = {"¡Debe seleccionar una actividad para el colaborador!",
                                             "¡Debe seleccionar un grupo para el colaborador!",
                                             "¡Debe seleccionar un cargo para el colaborador!"};
  for (const Lista lista : {ACTIVIDAD, GRUPO, CARGO}) {
    if (clave(lista) != 0) continue;
    forms::warn(ui(), MENSAJES[lista]);
    setFocus(cboColaboraAct[lista]);
    return true;
  }
  return false;
}

bool frmColaboradorActividad::yaEnElGrupo() const {
  for (std::size_t i = 0; i < colActividades->size(); ++i) {
    const cPadronActividad& otra = (*colActividades)[i];
    const bool esta = Operacion == cCOperacion::EDITAR && i == posicion;
    if (!esta && otra.Operacion != cCOperacion::Borrar && otra.IDGrupo == clave(GRUPO)) return true;
  }
  return false;
}

void frmColaboradorActividad::guardar() {
  if (Operacion == cCOperacion::ANADIR) {
    cPadronActividad nueva;
    nueva.IDPadron = IDPadron;
    nueva.Operacion = cCOperacion::ANADIR;
    colActividades->push_back(nueva);
    posicion = colActividades->size() - 1;
    std::vector<forms::Field> campos;
    for (const auto& [indice, lista] : cboColaboraAct.all())
      campos.push_back({lista->name(), {}, {}, lista->data()});
    recordar(std::move(campos));
  }
  cPadronActividad& actividad = colActividades->at(posicion);
  actividad.IDGrupo = clave(GRUPO);
  actividad.IDCargo = clave(CARGO);
  if (actividad.Estado) actividad.Operacion = cCOperacion::EDITAR;
}

}  // namespace fidaleon
