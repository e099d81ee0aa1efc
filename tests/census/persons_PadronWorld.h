#pragma once
// The dialog of a census person, opened through its operations.

#include "census/CensoWorld.h"
#include "census/Operaciones.h"
#include "census/persons/frmPadron.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

using forms::Answer;
using forms::FormDriver;
using Padron = frmPadron;

inline std::string txt(Padron::Texto indice) {
  return "txtPadron(" + std::to_string(indice) + ")";
}
inline std::string cbo(int indice) {
  return "cboPadron(" + std::to_string(indice) + ")";
}
inline std::string fecha(Padron::Fecha indice) {
  return "adtpPadron(" + std::to_string(indice) + ")";
}
inline std::string boton(Padron::Boton indice) {
  return "cmdPadron(" + std::to_string(indice) + ")";
}
inline std::string botonNota(Padron::BotonNota indice) {
  return "cmdNotas(" + std::to_string(indice) + ")";
}
inline constexpr const char* MST = "mstPadron";

struct PadronWorld : CensoWorld {
  void alta(forms::ScriptedUser::Act act) {
    user.expectForm("frmPadron", std::move(act));
    censo::NuevoEmpadronado(contexto, con());
    EXPECT_SCRIPT_DONE(user);
  }
  void editar(std::int32_t id, forms::ScriptedUser::Act act) {
    user.expectForm("frmPadron", std::move(act));
    censo::EditaEmpadronado(contexto, con(), id);
    EXPECT_SCRIPT_DONE(user);
  }
  /// All fields of the first row, with "|" between them; "-" when there is no row.
  std::string fila(const std::string& sql) {
    const store::Recordset rs = con().Execute(sql);
    if (rs.EOF_()) return "-";
    std::string todo;
    for (int i = 0; i < rs.FieldCount(); ++i) todo += (i ? "|" : "") + rs.Fields(i).Value().text();
    return todo;
  }
  std::string satelite(const std::string& tabla, std::int32_t id) {
    return fila("SELECT * FROM Padron_" + tabla + " WHERE CodPadron=" + std::to_string(id));
  }
  store::FailingEngine& fallos() {
    if (!fallos_) fallos_ = store::FailingEngine::wrap(con());
    return *fallos_;
  }
  /// What was written since the last call, in order: the words up to the name of the table.
  std::vector<std::string> escrito() {
    std::vector<std::string> lista;
    const auto& todo = fallos().executed();
    for (; vistos_ < todo.size(); ++vistos_) {
      const std::string& s = todo[vistos_];
      if (s.starts_with("SELECT")) continue;
      lista.push_back(s.substr(0, s.find_first_of(" ", s.find("Padron"))));
    }
    return lista;
  }

 private:
  store::FailingEngine* fallos_ = nullptr;
  std::size_t vistos_ = 0;
};

/// The least that is accepted.
inline void rellenarMinimo(FormDriver& u) {
  u.choose(cbo(Padron::Institucion), "San Ginés");
  u.type(txt(Padron::Nombre), "Elena");
  u.type(txt(Padron::PrimerApellido), "Sanz");
  u.type(txt(Padron::SegundoApellido), "Mora");
}

}  // namespace fidaleon::tests
