// The groups that a collaborator works in, and their locks.

#include <algorithm>

#include "census/collaborators/frmColaborador.h"
#include "census/collaborators/frmColaboradorActividad.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"
#include "core/statements/Apunte.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr const char* TABLA = "Padron_Actividad";

const Rejilla& rejillaActividades() {
  static const Rejilla r{"Grids\\Colaborador\\Colaborador",
                         {{"Grupo", 2250}, {"Cargo"}, {"Actividad"}, {"Sala"}, {"Día"}, {"Hora"}}};
  return r;
}

bool quitada(const cPadronActividad& actividad) {
  return actividad.Operacion == cCOperacion::Borrar;
}

}  // namespace

void frmColaborador::ConfigGridActividadColaborador() {
  cIListas(contexto_).ConfigGrid(msgActividades, rejillaActividades(),
                                 "ConfigGridActividadColaborador", "frmColaborador");
}

void frmColaborador::guardarAnchos() {
  cIListas(contexto_).SaveGrid(msgActividades, rejillaActividades());
}

bool frmColaborador::LlenaColeccionActividad() {
  return procedimiento("LlenaColeccionActividad", [this] {
    store::Recordset filas = conBaseDatos->Execute(
        "SELECT DISTINCT * FROM Padron_Actividad WHERE CodPadron=" + std::to_string(IDPadron));
    const auto entero = [&](const char* columna) {
      return static_cast<std::int32_t>(filas.integer(columna));
    };
    for (; !filas.EOF_(); filas.MoveNext()) {
      cPadronActividad actividad;
      actividad.IDActividadesPadron = entero("IDActividadesPadron");
      actividad.IDGrupo = entero("CodGrupo");
      actividad.IDCargo = entero("CodCargo");
      actividad.IDPadron = IDPadron;
      actividad.Estado = true;
      actividades_.push_back(actividad);
    }
  });
}

bool frmColaborador::CargaGridActividadColaborador() {
  return procedimiento("CargaGridActividadColaborador", [this] {
    const forms::Hourglass reloj(ui());
    msgActividades.clearRows();
    // A row stands for a membership by its place, so each has one even if its names cannot be read.
    for (std::size_t i = 0; i < actividades_.size(); ++i)
      if (!quitada(actividades_[i])) msgActividades.addRow({}, claveDeFila(i));
    int fila = 0;
    for (const cPadronActividad& a : actividades_)
      if (!quitada(a)) mostrarCeldas(++fila, celdas(a));
  });
}

void frmColaborador::mostrarCeldas(int fila, const std::vector<std::string>& textos) {
  for (std::size_t c = 0; c < textos.size(); ++c)
    msgActividades.setCell(fila, static_cast<int>(c), textos[c]);
}

std::int64_t frmColaborador::claveDeFila(std::size_t posicion) const {
  const cPadronActividad& a = actividades_[posicion];
  return a.Estado ? a.IDActividadesPadron : static_cast<std::int64_t>(posicion);
}

std::vector<std::string> frmColaborador::celdas(const cPadronActividad& actividad) {
  const store::Recordset grupo = conBaseDatos->Execute(
      "SELECT * FROM Grupo,Actividad WHERE Grupo.CodActividad=Actividad.IDActividad AND IDGrupo=" +
      std::to_string(actividad.IDGrupo));
  const store::Recordset cargo = conBaseDatos->Execute("SELECT Nombre FROM Cargo WHERE IDCargo=" +
                                                       std::to_string(actividad.IDCargo));
  const std::string nombreCargo = cargo.EOF_() ? std::string() : cargo.text("Nombre");
  // A group that somebody has removed leaves a row that can still be taken away.
  if (grupo.EOF_()) return {"---", nombreCargo};
  return {grupo.text("Grupo.Nombre"), nombreCargo,       grupo.text("Actividad.Nombre"),
          grupo.text("Sala"),         grupo.text("Dia"), grupo.text("Hora")};
}

std::string frmColaborador::ownWork() const {
  std::string texto;
  int fila = 0;
  for (const cPadronActividad& a : actividades_) {
    if (!quitada(a)) ++fila;
    if (a.Operacion == cCOperacion{}) continue;
    Apunte apunte;
    apunte.poner("Grupo", std::string(quitada(a) ? "quitado" : a.Estado ? "cambiado" : "nuevo"));
    for (int c = 0;
         !quitada(a) && fila <= msgActividades.rowCount() && c < msgActividades.columns(); ++c)
      apunte.poner(msgActividades.header(c), msgActividades.cell(fila, c));
    if (quitada(a)) apunte.poner("Clave", a.IDGrupo);
    texto += apunte.texto();
  }
  return texto;
}

std::optional<std::size_t> frmColaborador::elegida() const {
  int fila = 0;
  for (std::size_t i = 0; i < actividades_.size(); ++i)
    if (!quitada(actividades_[i]) && ++fila == msgActividades.row()) return i;
  return std::nullopt;
}

BloqueosDeLista& frmColaborador::bloqueos() {
  if (!bloqueos_) bloqueos_.emplace(contexto_, *conBaseDatos, TABLA, "IdActividadesPadron");
  return *bloqueos_;
}

void frmColaborador::agregarActividad() {
  if (!bloqueos().tomarTabla()) return;
  if (!mostrarActividad(cCOperacion::ANADIR, actividades_.size())) bloqueos().unaMenos();
}

void frmColaborador::modificarActividad() {
  const std::optional<std::size_t> posicion = elegida();
  if (!posicion) return ui().beep();
  if (tomar(*posicion)) mostrarActividad(cCOperacion::EDITAR, *posicion);
}

bool frmColaborador::tomar(std::size_t posicion) {
  const cPadronActividad& actividad = actividades_[posicion];
  if (!actividad.Estado) return true;
  const auto tomado = bloqueos().tomarRegistro(actividad.IDActividadesPadron);
  if (tomado == BloqueosDeLista::Registro::NO_EXISTE) olvidar(posicion);
  return tomado == BloqueosDeLista::Registro::TOMADO;
}

void frmColaborador::olvidar(std::size_t posicion) {
  actividades_.erase(actividades_.begin() + static_cast<std::ptrdiff_t>(posicion));
  volverACargarActividades();
}

void frmColaborador::volverACargarActividades() {
  const int fila = msgActividades.row();
  CargaGridActividadColaborador();
  msgActividades.setRow(std::min(fila, msgActividades.rowCount()));
}

// Those that have been changed here are stored anew, whoever took them away.
void frmColaborador::olvidarQuitadasFuera() {
  const auto fuera = [this](const cPadronActividad& a) {
    return a.Estado && a.Operacion == cCOperacion{} &&
           !hay("SELECT IDActividadesPadron FROM Padron_Actividad WHERE IDActividadesPadron=" +
                std::to_string(a.IDActividadesPadron));
  };
  if (std::erase_if(actividades_, fuera) > 0) volverACargarActividades();
}

bool frmColaborador::mostrarActividad(cCOperacion operacion, std::size_t posicion) {
  frmColaboradorActividad dialogo(contexto_);
  dialogo.conBaseDatos = conBaseDatos;
  dialogo.Operacion = operacion;
  dialogo.Origen = Origen;
  dialogo.IDPadron = IDPadron;
  dialogo.colActividades = &actividades_;
  dialogo.posicion = posicion;
  const int fila = msgActividades.row();
  dialogo.refrescar = [this, fila] {
    CargaGridActividadColaborador();
    msgActividades.setRow(fila);
  };
  dialogo.Show();
  if (dialogo.celdas.empty()) return false;
  if (operacion == cCOperacion::ANADIR)
    msgActividades.setRow(msgActividades.addRow(dialogo.celdas, claveDeFila(posicion)));
  else
    mostrarCeldas(fila, dialogo.celdas);
  return true;
}

void frmColaborador::quitarActividad() {
  const std::optional<std::size_t> posicion = elegida();
  if (!posicion) return ui().beep();
  if (!tomar(*posicion)) return;
  if (!actividades_[*posicion].Estado) {
    bloqueos().unaMenos();
    return olvidar(*posicion);
  }
  actividades_[*posicion].Operacion = cCOperacion::Borrar;
  volverACargarActividades();
}

bool frmColaborador::hay(const std::string& sentencia) {
  return !conBaseDatos->Execute(sentencia).EOF_();
}

// Groups can be removed while this dialog is open, also from here.
bool frmColaborador::faltaGrupoOCargo() {
  int fila = 0;
  for (const cPadronActividad& a : actividades_) {
    if (!quitada(a)) ++fila;
    if (a.Operacion != cCOperacion::ANADIR && a.Operacion != cCOperacion::EDITAR) continue;
    const bool grupo = hay("SELECT IDGrupo FROM Grupo WHERE IDGrupo=" + std::to_string(a.IDGrupo));
    if (grupo && hay("SELECT IDCargo FROM Cargo WHERE IDCargo=" + std::to_string(a.IDCargo)))
      continue;
    forms::warn(ui(), std::string("¡El ") + (grupo ? "cargo" : "grupo") +
                          " de esta actividad ya no existe! Elija otro o quite la actividad.");
    mstColaborador.setTab(TAB_ACTIVIDADES);
    CargaGridActividadColaborador();
    msgActividades.setRow(fila);
    setFocus(msgActividades);
    return true;
  }
  return false;
}

store::Removes frmColaborador::quitaActividades() const {
  return std::ranges::any_of(actividades_, quitada) ? store::Removes::Yes : store::Removes::No;
}

void frmColaborador::guardarActividades(std::int32_t idPadron) {
  for (const cPadronActividad& a : actividades_)
    if (Operacion == cCOperacion::EDITAR || a.Operacion == cCOperacion::ANADIR)
      guardarActividad(a, idPadron);
}

void frmColaborador::guardarActividad(const cPadronActividad& actividad, std::int32_t idPadron) {
  const std::string cual =
      " WHERE IDActividadesPadron=" + std::to_string(actividad.IDActividadesPadron);
  if (actividad.Operacion == cCOperacion::ANADIR) {
    insertarActividad(actividad, idPadron);
  } else if (actividad.Operacion == cCOperacion::EDITAR) {
    // Whoever takes a member out of a group does not lock the membership.
    if (!hay("SELECT IDActividadesPadron FROM Padron_Actividad" + cual))
      return insertarActividad(actividad, idPadron);
    conBaseDatos->Execute("UPDATE Padron_Actividad SET CodPadron=" + std::to_string(idPadron) +
                          ",CodGrupo=" + std::to_string(actividad.IDGrupo) +
                          ",CodCargo=" + std::to_string(actividad.IDCargo) + cual);
  } else if (quitada(actividad) && actividad.Estado) {
    conBaseDatos->Execute("DELETE * FROM Padron_Actividad" + cual);
  }
}

void frmColaborador::insertarActividad(const cPadronActividad& actividad, std::int32_t idPadron) {
  const std::string p = std::to_string(idPadron);
  const std::string g = std::to_string(actividad.IDGrupo);
  if (Operacion == cCOperacion::EDITAR &&
      hay("SELECT * FROM Padron_Actividad WHERE CodPadron=" + p + " AND CodGrupo=" + g))
    return;
  conBaseDatos->Execute("INSERT INTO Padron_Actividad (CodPadron,CodGrupo,CodCargo) VALUES (" + p +
                        "," + g + "," + std::to_string(actividad.IDCargo) + ");");
}

}  // namespace fidaleon
