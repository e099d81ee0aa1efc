#pragma once
// Two activities with groups and offices, and the collaborator's dialogs in the hands of a user.

#include <string>

#include "CensoWorld.h"
#include "census/Operaciones.h"
#include "census/collaborators/frmColaborador.h"

namespace fidaleon::tests {

struct ColaboradorWorld : CensoWorld {
  using Act = forms::ScriptedUser::Act;

  void nuevo(Act act, bool blnOcultar = false) {
    user.expectForm("frmColaborador", std::move(act));
    censo::NuevoColaborador(contexto, con(), blnOcultar);
  }
  void edita(std::int32_t id, Act act, FDAPI::cCOrigen origen = FDAPI::cCOrigen::PRINCIPAL) {
    user.expectForm("frmColaborador", std::move(act));
    censo::EditaColaborador(contexto, con(), id, origen);
  }
  std::int32_t colaborador(const std::string& nombre = "Ana") {
    return persona(nombre, "Gil", "Sanz", "", {COLABORADOR});
  }
  std::string columna(const std::string& tabla, const std::string& columna, std::int32_t id) {
    return value("SELECT " + columna + " FROM " + tabla + " WHERE " +
                 (tabla == "Padron" ? "IDPadron=" : "CodPadron=") + std::to_string(id));
  }
  std::string de(const char* tabla, std::int32_t id) {
    return std::string(tabla) + " WHERE CodPadron=" + std::to_string(id);
  }

  std::int32_t catequesis = actividad("Catequesis");
  std::int32_t lunes = grupo(catequesis, "Lunes", "Aula 1");
  std::int32_t martes = grupo(catequesis, "Martes", "Aula 2");
  std::int32_t coro = actividad("Coro");
  std::int32_t catequista = cargo("Catequista");
  std::int32_t ayudante = cargo("Ayudante");
};

// Controls by what they are for.
inline std::string texto(frmColaborador::Texto indice) {
  return "txtColaborador(" + std::to_string(indice) + ")";
}
inline constexpr const char* ACEPTAR = "cmdColaborador(0)";
inline constexpr const char* CANCELAR = "cmdColaborador(1)";
inline constexpr const char* IMPORTAR = "cmdColaborador(2)";
inline constexpr const char* AGREGAR = "cmdActividad(0)";
inline constexpr const char* MODIFICAR = "cmdActividad(1)";
inline constexpr const char* QUITAR = "cmdActividad(2)";

inline void ponerNombre(forms::FormDriver& u, const std::string& nombre = "Ana",
                        const std::string& primero = "Gil", const std::string& segundo = "Sanz") {
  u.type(texto(frmColaborador::Nombre), nombre);
  u.type(texto(frmColaborador::PrimerApellido), primero);
  u.type(texto(frmColaborador::SegundoApellido), segundo);
}

}  // namespace fidaleon::tests
