#pragma once
// The hands of a user on the cards of the census, and what a test must leave behind.

#include <algorithm>
#include <sstream>
#include <utility>

#include "census/CensoWorld.h"
#include "census/Operaciones.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

/// Names of controls, with what is typed or chosen in them or seen there.
using Campos = std::vector<std::pair<std::string, std::string>>;
using Sentencias = std::vector<std::string>;

/// "txtPadron(3)"
inline std::string control(const char* nombre, int indice) {
  return std::string(nombre) + "(" + std::to_string(indice) + ")";
}
/// Control and text, control and text...
template <class... Textos>
Campos campos(const Textos&... textos) {
  const std::vector<std::string> todos{textos...};
  Campos pares;
  for (std::size_t i = 0; i + 1 < todos.size(); i += 2) pares.emplace_back(todos[i], todos[i + 1]);
  return pares;
}

struct ManosWorld : CensoWorld {
  store::FailingEngine& fallos() {
    if (!fallos_) fallos_ = store::FailingEngine::wrap(con());
    return *fallos_;
  }
  /// What was written since the last call, in order: "BEGIN +Padron ~Grupo -Cargo COMMIT" for a row
  /// added, changed and removed.
  std::string escrito() {
    std::string lista;
    const auto& todo = fallos().executed();
    for (; vistos_ < todo.size(); ++vistos_) {
      std::istringstream palabras(todo[vistos_]);
      std::string verbo, tabla;
      palabras >> verbo >> tabla;
      if (verbo == "SELECT") continue;
      if (verbo == "DELETE") palabras >> tabla;
      if (verbo != "UPDATE") palabras >> tabla;
      const char* signo = verbo == "INSERT" ? "+" : verbo == "UPDATE" ? "~" : "-";
      lista += (lista.empty() ? "" : " ") + (tabla.empty() ? verbo : signo + tabla);
    }
    return lista;
  }

  void espera(const std::string& formulario, Act act) {
    user.expectForm(formulario, std::move(act));
  }
  void altaPersona(Act act) {
    espera("frmPadron", std::move(act));
    censo::NuevoEmpadronado(contexto, con());
  }
  void editaPersona(std::int32_t id, Act act) {
    espera("frmPadron", std::move(act));
    censo::EditaEmpadronado(contexto, con(), id);
  }
  void altaColaborador(Act act, bool blnOcultar = false) {
    espera("frmColaborador", std::move(act));
    censo::NuevoColaborador(contexto, con(), blnOcultar);
  }
  void editaColaborador(std::int32_t id, Act act, cCOrigen origen = cCOrigen::PRINCIPAL) {
    espera("frmColaborador", std::move(act));
    censo::EditaColaborador(contexto, con(), id, origen);
  }
  /// Hands that type or choose these and press the button.
  template <class... Textos>
  static Act pone(const std::string& boton, const Textos&... textos) {
    return [c = campos(textos...), boton](FormDriver& u) {
      poner(u, c);
      u.click(boton);
    };
  }
  template <class... Textos>
  void contesta(const char* formulario, const std::string& boton, const Textos&... textos) {
    espera(formulario, pone(boton, textos...));
  }
  void cierra(const char* formulario) {
    user.expectForm(formulario, [](FormDriver& u) { u.close(); });
  }

  /// Brings the page of each to the front and types into texts or chooses in lists.
  static void poner(FormDriver& u, const Campos& tecleados) {
    for (const auto& [nombre, valor] : tecleados) {
      verPagina(u, nombre);
      dynamic_cast<forms::ListControl*>(u.form().find(nombre)) ? u.choose(nombre, valor)
                                                               : u.type(nombre, valor);
    }
  }
  template <class... Textos>
  static void poner(FormDriver& u, const std::string& nombre, const Textos&... textos) {
    poner(u, campos(nombre, textos...));
  }
  static void comprobar(FormDriver& u, const Campos& vistos) {
    for (const auto& [nombre, valor] : vistos) EXPECT_EQ(u.text(nombre), valor) << nombre;
  }
  template <class... Textos>
  static void comprobar(FormDriver& u, const std::string& nombre, const Textos&... textos) {
    comprobar(u, campos(nombre, textos...));
  }
  static void verPagina(FormDriver& u, const std::string& nombre) {
    const auto& c = u.get<forms::Control>(nombre);
    if (c.strip() && c.strip()->tab() != c.page()) u.tab(c.strip()->name(), c.page());
  }
  /// The button tells this, with a beep, and the field comes to the front.
  void rehusa(FormDriver& u, const std::string& boton, const std::string& mensaje,
              const std::string& campo) {
    const int pitidos = user.beeps();
    user.expectMessage(mensaje);
    u.click(boton);
    EXPECT_EQ(u.focused(), campo) << mensaje;
    EXPECT_EQ(user.beeps(), pitidos + 1) << mensaje;
    const auto& c = u.get<forms::Control>(campo);
    EXPECT_TRUE(!c.strip() || c.strip()->tab() == c.page()) << mensaje;
  }
  /// The cells of a row, those of a column below its header, and the lines of a list, with "|"
  /// between them.
  static std::string celdas(FormDriver& u, const char* rejilla, int fila) {
    const auto& grid = u.get<forms::Grid>(rejilla);
    return unir(grid.columns(), [&](int c) { return grid.cell(fila, c); });
  }
  static std::string columna(FormDriver& u, const char* rejilla, int cual = 0) {
    const auto& grid = u.get<forms::Grid>(rejilla);
    return unir(grid.rowCount(), [&](int fila) { return grid.cell(fila + 1, cual); });
  }
  static std::string lineas(FormDriver& u, const std::string& lista) {
    const auto& box = u.get<forms::ListControl>(lista);
    return unir(box.listCount(), [&](int i) { return box.list(i); });
  }

  /// All that a test must leave behind.
  void comprobarFinal() {
    EXPECT_FALSE(con().inTransaction());
    if (!std::filesystem::exists(directory.path())) return;
    for (const char* tabla : {"Padron", "Padron_Actividad", "Actividad", "Grupo", "Cargo", "Tareas",
                              "Institucion", "Provincia", "Municipio"})
      EXPECT_TRUE(isFree(tabla)) << tabla;
  }

 private:
  template <class Parte>
  static std::string unir(int cuantas, Parte parte) {
    std::string todas;
    for (int i = 0; i < cuantas; ++i) todas += (i ? "|" : "") + parte(i);
    return todas;
  }
  store::FailingEngine* fallos_ = nullptr;
  std::size_t vistos_ = 0;
};

/// Collaborators Ana, Blas and Carmen, and Zoilo of the census; the activities "Coro", without
/// groups, and "Catequesis" with "Primero" (Ana and Blas catechists) and "Segundo" (nobody).
struct GruposWorld : ManosWorld {
  std::int32_t ana = colaborador("Ana", "García"), blas = colaborador("Blas", "Pérez"),
               carmen = colaborador("Carmen", "Sanz"), zoilo = persona("Zoilo", "Vecino", "Sinrol");
  std::int32_t catequista = cargo("Catequista"), monitor = cargo("Monitor");
  std::int32_t catequesis = actividad("Catequesis"), coro = actividad("Coro");
  std::int32_t primero = grupo(catequesis, "Primero"),
               segundo = grupo(catequesis, "Segundo", "Aula 2");
  std::int32_t deAna = miembro(ana, primero, catequista),
               deBlas = miembro(blas, primero, catequista);
};

/// A test in one of these worlds; it leaves nothing unanswered and nothing locked.
template <class World>
struct En : ::testing::Test, World {
  void TearDown() override { this->comprobarFinal(); }
};

}  // namespace fidaleon::tests
