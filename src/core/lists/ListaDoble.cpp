#include "core/lists/ListaDoble.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <unordered_set>

#include "core/dialogs/Guard.h"

namespace fidaleon {

namespace {

std::vector<int> todasLasFilas(const forms::ListBox& lista) {
  std::vector<int> filas(static_cast<std::size_t>(lista.listCount()));
  std::iota(filas.begin(), filas.end(), 0);
  return filas;
}

}  // namespace

ListaDoble::ListaDoble(Contexto& contexto, forms::Form& formulario, forms::ListBox& disponibles,
                       forms::ListBox& seleccionadas, forms::ControlArray<forms::Button>& mover,
                       Textos textos)
    : contexto_(contexto),
      formulario_(formulario),
      disponibles_(disponibles),
      seleccionadas_(seleccionadas),
      mover_(mover),
      textos_(textos) {
  const std::string todas = textos_.todas;
  const std::array<std::string, 4> rotulos{"&Agregar >", "Agregar &" + todas + " >>", "< &Quitar",
                                           "<< Quitar " + todas};
  for (const Movimiento m : {ELEGIR, ELEGIR_TODAS, QUITAR, QUITAR_TODAS}) {
    forms::Button& boton = mover_.add(m, rotulos[m]);
    boton.setToolTip(textos_.ayudas[m]);
    boton.onClick = [this, m] { this->mover(m); };
  }
  for (forms::ListBox* lista : {&disponibles_, &seleccionadas_}) {
    lista->setMultiSelect(true);
    lista->setRows(12);
    const Movimiento uno = lista == &disponibles_ ? ELEGIR : QUITAR;
    lista->onDblClick = [this, lista, uno] {
      if (mover_[uno].usable()) moverUna(*lista);
    };
  }
}

forms::LayoutNode ListaDoble::disposicion() const {
  return forms::row(
      {forms::item(disponibles_),
       forms::column({forms::item(mover_[ELEGIR]), forms::item(mover_[ELEGIR_TODAS]),
                      forms::item(mover_[QUITAR]), forms::item(mover_[QUITAR_TODAS])}),
       forms::item(seleccionadas_)});
}

void ListaDoble::llenar(std::vector<Elemento> orden, const Claves& elegidas) {
  lugares_.clear();
  std::erase_if(orden, [this](const Elemento& e) {
    return !lugares_.emplace(e.clave, lugares_.size()).second;
  });
  std::vector<Elemento> aparte;
  for (const std::int64_t clave : elegidas)
    if (const auto lugar = lugares_.find(clave); lugar != lugares_.end())
      aparte.push_back(orden[lugar->second]);
  const std::unordered_set<std::int64_t> fuera(elegidas.begin(), elegidas.end());
  std::erase_if(orden, [&](const Elemento& e) { return fuera.contains(e.clave); });
  poner(disponibles_, orden);
  poner(seleccionadas_, aparte);
}

ListaDoble::Claves ListaDoble::seleccionadas() const {
  Claves claves;
  for (int i = 0; i < seleccionadas_.listCount(); ++i) claves.push_back(seleccionadas_.itemData(i));
  return claves;
}

void ListaDoble::mover(Movimiento movimiento) {
  const bool marcadas = movimiento == ELEGIR || movimiento == QUITAR;
  const char* procedimiento = marcadas ? textos_.alMoverMarcados : textos_.alMoverTodos;
  guarded(contexto_, formulario_.name(), procedimiento, [&] {
    const bool elige = movimiento == ELEGIR || movimiento == ELEGIR_TODAS;
    forms::ListBox& de = elige ? disponibles_ : seleccionadas_;
    if (!comprobarSeleccion(de, marcadas)) return;
    std::vector<int> cuales = todasLasFilas(de);
    if (marcadas) contexto_.fidaleon()->ListarSeleccionados(de, cuales);
    pasar(de, cuales);
  });
}

bool ListaDoble::comprobarSeleccion(const forms::ListBox& de, bool marcadas) {
  const char* falta = nullptr;
  const bool comprobada = guarded(contexto_, formulario_.name(), "ComprobarSeleccion", [&] {
    if (de.listCount() == 0)
      falta = &de == &disponibles_ ? textos_.nadaQueElegir : textos_.nadaQueQuitar;
    else if (marcadas && !contexto_.fidaleon()->ComprobarSeleccion(de))
      falta = textos_.nadaMarcado;
  });
  if (falta) rehusar(falta);
  return comprobada && !falta;
}

void ListaDoble::moverUna(forms::ListBox& de) {
  guarded(contexto_, formulario_.name(), textos_.alMoverMarcados, [&] {
    if (de.listIndex() >= 0) pasar(de, {de.listIndex()});
  });
}

void ListaDoble::rehusar(const char* mensaje) {
  if (*mensaje)
    forms::warn(formulario_.ui(), mensaje);
  else
    formulario_.ui().beep();
}

// Both lists are written anew: taking thousands of lines out one by one is too slow.
void ListaDoble::pasar(forms::ListBox& de, const std::vector<int>& filas) {
  std::vector<Elemento> pasan, quedan;
  auto fila = filas.begin();
  int i = 0;
  for (Elemento& e : elementos(de)) {
    const bool pasa = fila != filas.end() && *fila == i++;
    if (pasa) ++fila;
    (pasa ? pasan : quedan).push_back(std::move(e));
  }
  Claves claves;
  for (const Elemento& e : pasan) claves.push_back(e.clave);
  const bool elige = &de == &disponibles_;
  if (elige && antesDeElegir && !antesDeElegir(claves)) return;
  poner(de, quedan);
  elige ? agregar(seleccionadas_, pasan) : devolver(std::move(pasan));
  // The line behind is the next to look at. It is not marked: nothing goes that nobody has marked.
  de.setListIndex(std::min(filas.front(), de.listCount() - 1));
  if (!elige && quitados) quitados(claves);
}

/// Each to its old place; what is not known of old goes to the end.
void ListaDoble::devolver(std::vector<Elemento> vuelven) {
  std::vector<Elemento> todas = elementos(disponibles_);
  std::move(vuelven.begin(), vuelven.end(), std::back_inserter(todas));
  const auto lugar = [this](const Elemento& e) {
    const auto conocido = lugares_.find(e.clave);
    return conocido == lugares_.end() ? lugares_.size() : conocido->second;
  };
  std::stable_sort(todas.begin(), todas.end(),
                   [&](const Elemento& a, const Elemento& b) { return lugar(a) < lugar(b); });
  poner(disponibles_, todas);
}

// Lines that stay keep their marks: whoever moves one with a double click has not given up the
// others.
void ListaDoble::poner(forms::ListBox& lista, const std::vector<Elemento>& elementos) {
  std::unordered_set<std::int64_t> marcadas;
  for (int i = 0; i < lista.listCount(); ++i)
    if (lista.selected(i)) marcadas.insert(lista.itemData(i));
  lista.clear();
  agregar(lista, elementos);
  for (int i = 0; i < lista.listCount(); ++i)
    if (marcadas.contains(lista.itemData(i))) lista.setSelected(i, true);
}

void ListaDoble::agregar(forms::ListBox& lista, const std::vector<Elemento>& elementos) {
  const bool anotada = &lista == &seleccionadas_ && anotacion;
  for (const Elemento& e : elementos)
    lista.addItem(anotada ? e.texto + anotacion(e.clave) : e.texto, e.clave);
}

std::vector<ListaDoble::Elemento> ListaDoble::elementos(const forms::ListBox& lista) const {
  const bool anotada = &lista == &seleccionadas_ && anotacion;
  std::vector<Elemento> todos;
  for (int i = 0; i < lista.listCount(); ++i) {
    Elemento e{lista.itemData(i), lista.list(i)};
    if (anotada)
      if (const std::string nota = anotacion(e.clave); e.texto.ends_with(nota))
        e.texto.resize(e.texto.size() - nota.size());
    todos.push_back(std::move(e));
  }
  return todos;
}

}  // namespace fidaleon
