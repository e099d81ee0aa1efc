#include "core/lists/Elecciones.h"

#include <algorithm>
#include <map>

#include "forms/Form.h"

namespace fidaleon {

namespace {

std::string nombrar(const Eleccion& e) {
  return std::string(e.que) + " «" + e.lista->text() + "»";
}

void mostrar(forms::ListControl& lista) {
  if (lista.strip()) lista.strip()->setTab(lista.page());
  lista.form().setFocus(lista);
}

}  // namespace

bool Elecciones::siguen() const {
  const std::vector<const Eleccion*> faltan = perdidas();
  if (faltan.empty()) return true;
  std::vector<std::string> cuales;
  bool puedeElegirOtro = true;
  for (const Eleccion* e : faltan) {
    const std::string cual = nombrar(*e);
    if (std::ranges::find(cuales, cual) == cuales.end()) cuales.push_back(cual);
    puedeElegirOtro = puedeElegirOtro && !e->lista->locked();
  }
  avisarEliminados(contexto_.ui(), cuales, puedeElegirOtro);
  for (const Eleccion* e : faltan)
    if (!e->lista->locked()) e->renovar();
  mostrar(*faltan.front()->lista);
  return false;
}

std::vector<const Eleccion*> Elecciones::perdidas() const {
  std::map<std::string, std::set<std::int64_t>> vivas;
  std::vector<const Eleccion*> faltan;
  for (const Eleccion& e : elecciones_) {
    if (e.lista->data() == 0) continue;
    const auto [tabla, nueva] = vivas.try_emplace(e.tabla);
    if (nueva) tabla->second = existentes(e);
    if (!tabla->second.contains(e.lista->data())) faltan.push_back(&e);
  }
  return faltan;
}

/// Of all that is chosen of this table.
std::set<std::int64_t> Elecciones::existentes(const Eleccion& de) const {
  std::string condicion;
  for (const Eleccion& e : elecciones_)
    if (std::string(e.tabla) == de.tabla && e.lista->data() != 0)
      condicion += (condicion.empty() ? "" : " OR ") + std::string(de.clave) + "=" +
                   std::to_string(e.lista->data());
  store::Recordset filas = conexion_.Execute(std::string("SELECT ") + de.clave + " FROM " +
                                             de.tabla + " WHERE " + condicion);
  std::set<std::int64_t> claves;
  for (; !filas.EOF_(); filas.MoveNext()) claves.insert(filas.Fields(0).Value().integer());
  return claves;
}

void avisarEliminados(forms::UserInterface& ui, const std::vector<std::string>& cuales,
                      bool puedeElegirOtro) {
  std::string texto = "Ya no existe, porque se ha eliminado desde otro puesto:\n";
  for (const std::string& cual : cuales) texto += "\n" + cual;
  forms::warn(ui, texto + "\n\nLo que ha escrito sigue aquí. " +
                      (puedeElegirOtro ? "Elija otro y acepte de nuevo."
                                       : "Sin ello no se puede guardar."));
}

}  // namespace fidaleon
