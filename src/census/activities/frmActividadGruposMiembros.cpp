// The members of the group.

#include <algorithm>
#include <set>

#include "census/Operaciones.h"
#include "census/activities/frmActividadGrupos.h"
#include "census/activities/frmCargo.h"
#include "core/dialogs/Guard.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

std::int32_t persona(std::int64_t clave) {
  return static_cast<std::int32_t>(clave);
}

std::string nombreCompleto(const store::Recordset& fila) {
  return text::trim(fila.text("Nombre") + " " + fila.text("PrimerApellido") + " " +
                    fila.text("SegundoApellido"));
}

}  // namespace

std::vector<frmActividadGrupos::Persona> frmActividadGrupos::leerColaboradores() {
  const forms::Hourglass reloj(ui());
  std::vector<Persona> personas;
  for (store::Recordset rs = conBaseDatos->Execute(
           "SELECT * FROM Padron,Padron_TipoPersona WHERE Padron_TipoPersona.CodTipoPersona=3 AND "
           "Padron.IDPadron=Padron_TipoPersona.CodPadron");
       !rs.EOF_(); rs.MoveNext())
    personas.push_back({rs.integer("CodPadron"), nombreCompleto(rs)});
  std::stable_sort(personas.begin(), personas.end(), [](const Persona& a, const Persona& b) {
    return text::compare(a.texto, b.texto) < 0;
  });
  return personas;
}

bool frmActividadGrupos::CargarDatosGrupoColaborador(const cPadronActGrupos& grupo,
                                                     ListaDoble::Claves& elegidas) {
  return guarded(contexto_, name(), "CargarDatosGrupoColaborador", [&] {
    for (const cPadronActividad& miembro : grupo.miembros)
      if (miembro.Operacion != cCOperacion::Borrar && !cargos_.contains(miembro.IDPadron))
        cargarMiembro(miembro, elegidas);
    cargosAlCargar_ = cargos_;
  });
}

/// A member whose person is gone, or who was taken out of the group elsewhere, stays out; one who
/// is no collaborator any more is shown.
void frmActividadGrupos::cargarMiembro(const cPadronActividad& miembro,
                                       ListaDoble::Claves& elegidas) {
  if (miembro.Estado && conBaseDatos
                            ->Execute("SELECT CodPadron FROM Padron_Actividad WHERE CodPadron=" +
                                      std::to_string(miembro.IDPadron) +
                                      " AND CodGrupo=" + std::to_string(miembro.IDGrupo))
                            .EOF_())
    return;
  const store::Recordset fila = conBaseDatos->Execute(
      "SELECT Nombre,IDPadron,PrimerApellido,SegundoApellido FROM Padron WHERE IDPadron=" +
      std::to_string(miembro.IDPadron));
  if (fila.EOF_()) return;
  const std::int64_t clave = fila.integer("IDPadron");
  if (std::none_of(personas_.begin(), personas_.end(),
                   [&](const Persona& p) { return p.clave == clave; }))
    personas_.push_back({clave, nombreCompleto(fila)});
  elegidas.push_back(clave);
  cargos_[miembro.IDPadron] = miembro.IDCargo;
  if (!nombresCargo_.contains(miembro.IDCargo))
    nombresCargo_[miembro.IDCargo] = nombreCargo(miembro.IDCargo);
}

std::string frmActividadGrupos::nombreCargo(std::int32_t IDCargo) {
  const store::Recordset fila =
      conBaseDatos->Execute("SELECT Nombre FROM Cargo WHERE IDCargo=" + std::to_string(IDCargo));
  return fila.EOF_() ? std::string() : fila.text("Nombre");
}

bool frmActividadGrupos::pedirCargo(const ListaDoble::Claves& claves) {
  frmCargo dialogo(contexto_);
  dialogo.conBaseDatos = conBaseDatos;
  dialogo.Origen = FDAPI::cCOrigen::ACTIVIDAD;
  dialogo.Show();
  if (dialogo.lngCargo == 0) return false;
  // The first name read stays, also when another workstation changes it: lines already show it.
  nombresCargo_.emplace(dialogo.lngCargo, dialogo.strCargo);
  for (const std::int64_t clave : claves) cargos_[persona(clave)] = dialogo.lngCargo;
  return true;
}

std::string frmActividadGrupos::anotacion(std::int64_t clave) const {
  const auto cargo = cargos_.find(persona(clave));
  if (cargo == cargos_.end()) return {};
  const auto nombre = nombresCargo_.find(cargo->second);
  return nombre == nombresCargo_.end() || nombre->second.empty() ? "" : " (" + nombre->second + ")";
}

void frmActividadGrupos::anadirColaborador() {
  // Without the buttons of the memberships: the groups of this activity are not stored yet.
  censo::NuevoColaborador(contexto_, *conBaseDatos, true, FDAPI::cCOrigen::ACTIVIDAD);
  std::set<std::int64_t> conocidas;
  for (const Persona& p : personas_) conocidas.insert(p.clave);
  const ListaDoble::Claves elegidas = listas_.seleccionadas();
  std::set<std::int64_t> sinRol(elegidas.begin(), elegidas.end());
  std::vector<Persona> ahora = leerColaboradores();
  for (const Persona& p : ahora) sinRol.erase(p.clave);
  for (const Persona& p : personas_)
    if (sinRol.contains(p.clave)) ahora.push_back(p);
  personas_ = std::move(ahora);
  listas_.llenar(personas_, elegidas);
  forms::ListBox& lista = lstColaboradores[DISPONIBLES];
  for (int i = 0; i < lista.listCount(); ++i)
    if (!conocidas.contains(lista.itemData(i))) {
      lista.setListIndex(i);
      lista.setSelected(i, true);
    }
}

std::vector<cPadronActividad> frmActividadGrupos::miembros(const cPadronActGrupos& grupo) const {
  const ListaDoble::Claves elegidas = listas_.seleccionadas();
  const std::set<std::int64_t> dentro(elegidas.begin(), elegidas.end());
  const auto igual = [&](std::int32_t IDPadron) {
    const auto antes = cargosAlCargar_.find(IDPadron);
    return antes != cargosAlCargar_.end() && dentro.contains(IDPadron) &&
           cargos_.at(IDPadron) == antes->second;
  };
  std::vector<cPadronActividad> todos;
  std::set<std::int32_t> siguen;
  for (cPadronActividad m : grupo.miembros) {
    if (!m.Estado) continue;
    if (m.Operacion != cCOperacion::Borrar && igual(m.IDPadron))
      siguen.insert(m.IDPadron);
    else
      m.Operacion = cCOperacion::Borrar;
    todos.push_back(m);
  }
  for (const std::int64_t clave : elegidas)
    if (const std::int32_t id = persona(clave); siguen.insert(id).second)
      todos.push_back({0, grupo.IDGrupo, cargos_.at(id), false, cCOperacion::ANADIR, id});
  return todos;
}

}  // namespace fidaleon
