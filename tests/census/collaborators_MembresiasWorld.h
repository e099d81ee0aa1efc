#pragma once
// The groups of a collaborator: their tab, and the dialog of one of them in the hands of a user.

#include <string>
#include <vector>

#include "census/collaborators/frmColaboradorActividad.h"
#include "collaborators_World.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

inline constexpr const char* ACTIVIDAD = "cboColaboraAct(0)";
inline constexpr const char* GRUPO = "cboColaboraAct(1)";
inline constexpr const char* CARGO = "cboColaboraAct(2)";
inline constexpr const char* ALTA_ACTIVIDAD = "cmdAgregar(0)";
inline constexpr const char* ALTA_GRUPO = "cmdAgregar(1)";
inline constexpr const char* ALTA_CARGO = "cmdAgregar(2)";
inline constexpr const char* SI = "cmdColaboraAct(0)";
inline constexpr const char* NO = "cmdColaboraAct(1)";
inline constexpr const char* YA_ESTA = "¡El colaborador ya existe en este grupo!";

struct MembresiasWorld : ColaboradorWorld {
  void esperar(Act act) { user.expectForm("frmColaboradorActividad", std::move(act)); }
  /// The next of the dialogs takes this group and office.
  void esperarEleccion(std::int32_t grupo, std::int32_t cargo) {
    esperar([=, this](forms::FormDriver& a) {
      a.chooseData(ACTIVIDAD, catequesis);
      a.chooseData(GRUPO, grupo);
      a.chooseData(CARGO, cargo);
      a.click(SI);
    });
  }
  /// The tab of groups of a collaborator; the user leaves the dialog closed.
  void enActividades(std::int32_t id, Act act) {
    edita(id, [&](forms::FormDriver& u) {
      u.tab("mstColaborador", frmColaborador::TAB_ACTIVIDADES);
      act(u);
    });
  }
  static forms::Grid& rejilla(forms::FormDriver& u) { return u.get<forms::Grid>("msgActividades"); }
  static std::vector<std::string> fila(forms::FormDriver& u, int n) {
    std::vector<std::string> celdas;
    for (int c = 0; c < rejilla(u).columns(); ++c) celdas.push_back(rejilla(u).cell(n, c));
    return celdas;
  }
  /// "group/office" of each stored membership.
  std::vector<std::string> guardadas(std::int32_t id) {
    std::vector<std::string> todas;
    for (auto rs =
             con().Execute("SELECT CodGrupo, CodCargo FROM Padron_Actividad WHERE CodPadron=" +
                           std::to_string(id) + " ORDER BY IDActividadesPadron");
         !rs.EOF_(); rs.MoveNext())
      todas.push_back(rs.text("CodGrupo") + "/" + rs.text("CodCargo"));
    return todas;
  }
  static std::string par(std::int32_t grupo, std::int32_t cargo) {
    return std::to_string(grupo) + "/" + std::to_string(cargo);
  }
};

}  // namespace fidaleon::tests
