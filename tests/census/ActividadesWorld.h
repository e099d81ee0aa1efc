#pragma once
// A parish with collaborators, offices and hands on the dialogs of activities.

#include "CensoWorld.h"
#include "census/Operaciones.h"
#include "census/activities/frmActividad.h"
#include "census/activities/frmActividadGrupos.h"
#include "census/activities/frmCargo.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

using forms::FormDriver;

/// "San Ginés" with three collaborators, two offices and the activity "Catequesis" with the groups
/// "Primero" (Ana and Blas catechists) and "Segundo" (nobody).
struct ActividadesWorld : CensoWorld {
  ActividadesWorld() {
    ana = colaborador("Ana", "García");
    blas = colaborador("Blas", "Pérez");
    carmen = colaborador("Carmen", "Sanz");
    persona("Zoilo", "Vecino", "Sinrol");
    catequista = cargo("Catequista");
    monitor = cargo("Monitor");
    catequesis = actividad("Catequesis");
    primero = grupo(catequesis, "Primero");
    segundo = grupo(catequesis, "Segundo", "Aula 2");
    miembro(ana, primero, catequista);
    miembro(blas, primero, catequista);
  }
  std::int32_t colaborador(const std::string& nombre, const std::string& apellido) {
    return persona(nombre, apellido, "Ruiz", {}, {COLABORADOR});
  }

  void editar(forms::ScriptedUser::Act act, bool blnOcultar = false,
              FDAPI::cCOrigen origen = FDAPI::cCOrigen::PRINCIPAL) {
    user.expectForm("frmActividad", std::move(act));
    censo::EditaActividad(contexto, con(), catequesis, blnOcultar, origen);
  }
  void nueva(forms::ScriptedUser::Act act) {
    user.expectForm("frmActividad", std::move(act));
    censo::NuevaActividad(contexto, con());
  }
  /// Opens a group of the activity from its grid (0: a new one).
  void abrirGrupo(FormDriver& d, int fila, forms::ScriptedUser::Act act) {
    d.tab("mstActividad", frmActividad::TAB_GRUPOS);
    user.expectForm("frmActividadGrupos", std::move(act));
    if (fila > 0) d.row("msgGrupos", fila);
    d.click(fila == 0 ? AGREGAR : MODIFICAR);
  }
  void grupoNuevo(FormDriver& d, const std::string& nombre) {
    abrirGrupo(d, 0, [&](FormDriver& g) {
      g.type(NOMBRE_GRUPO, nombre);
      g.click(ACEPTAR_GRUPO);
    });
  }
  /// Moves marked lines of a group to the selected ones with this office; empty cancels.
  void elegir(FormDriver& g, std::initializer_list<int> filas, const std::string& cargo) {
    g.tab("mstGrupo", frmActividadGrupos::TAB_COLABORADORES);
    marcar(g, DISPONIBLES, filas);
    user.expectForm("frmCargo", [cargo](FormDriver& c) {
      if (cargo.empty()) return c.escape();
      c.choose("cboCargo", cargo);
      c.click("cmdCargo(0)");
    });
    g.click("cmdMover(0)");
  }
  void quitar(FormDriver& g, std::initializer_list<int> filas) {
    g.tab("mstGrupo", frmActividadGrupos::TAB_COLABORADORES);
    marcar(g, SELECCIONADAS, filas);
    g.click("cmdMover(2)");
  }
  static void marcar(FormDriver& g, const char* lista, std::initializer_list<int> filas) {
    auto& box = g.get<forms::ListBox>(lista);
    for (int i = 0; i < box.listCount(); ++i) box.setSelected(i, false);
    for (const int fila : filas) box.setSelected(fila, true);
  }
  static std::vector<std::string> lineas(FormDriver& d, const char* lista) {
    auto& box = d.get<forms::ListControl>(lista);
    std::vector<std::string> todas;
    for (int i = 0; i < box.listCount(); ++i) todas.push_back(box.list(i));
    return todas;
  }
  static std::vector<std::string> nombres(FormDriver& d) {
    auto& grid = d.get<forms::Grid>("msgGrupos");
    std::vector<std::string> todos;
    for (int fila = 1; fila <= grid.rowCount(); ++fila) todos.push_back(grid.cell(fila, 0));
    return todos;
  }
  /// "Primero: Ana Catequista" of every membership, in the order of their keys.
  std::vector<std::string> membresias() {
    std::vector<std::string> todas;
    for (auto rs =
             con().Execute("SELECT Grupo.Nombre AS G, Padron.Nombre AS P, Cargo.Nombre AS C FROM "
                           "Padron_Actividad, Padron, Grupo, Cargo WHERE CodPadron=IDPadron AND "
                           "CodGrupo=IDGrupo AND CodCargo=IDCargo ORDER BY IDActividadesPadron");
         !rs.EOF_(); rs.MoveNext())
      todas.push_back(rs.text("G") + ": " + rs.text("P") + " " + rs.text("C"));
    return todas;
  }

  static constexpr const char* ACEPTAR = "cmdActividad(0)";
  static constexpr const char* CANCELAR = "cmdActividad(1)";
  static constexpr const char* AGREGAR = "cmdActividad(2)";
  static constexpr const char* MODIFICAR = "cmdActividad(3)";
  static constexpr const char* QUITAR = "cmdActividad(4)";
  static constexpr const char* NOMBRE = "txtActividad(0)";
  static constexpr const char* NOMBRE_GRUPO = "txtGrupo(0)";
  static constexpr const char* ACEPTAR_GRUPO = "cmdGrupo(0)";
  static constexpr const char* CANCELAR_GRUPO = "cmdGrupo(1)";
  static constexpr const char* DISPONIBLES = "lstColaboradores(0)";
  static constexpr const char* SELECCIONADAS = "lstColaboradores(1)";

  std::int32_t ana, blas, carmen, catequista, monitor, catequesis, primero, segundo;
};

}  // namespace fidaleon::tests
