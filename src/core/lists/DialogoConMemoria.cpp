#include "core/lists/DialogoConMemoria.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "core/contract/Teclado.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

/// At once; a key that comes meanwhile waits no longer.
constexpr std::chrono::milliseconds PLAZO{8};

bool mismaPagina(const forms::Control& a, const forms::Control& b) {
  return a.strip() == b.strip() && a.page() == b.page();
}

bool sinTexto(const std::string& valor) {
  const std::string texto = text::trim(valor);
  return texto.empty() || texto == forms::DASHES;
}

}  // namespace

const forms::Field* buscarCampo(const std::vector<forms::Field>& campos,
                                const std::string& nombre) {
  const auto it = std::find_if(campos.begin(), campos.end(),
                               [&](const forms::Field& f) { return f.control == nombre; });
  return it == campos.end() ? nullptr : &*it;
}

DialogoConMemoria::DialogoConMemoria(Contexto& contexto, std::string nombre)
    : Dialogo(contexto, std::move(nombre)) {
  setEntersFields(introPasaDeCampo(contexto.entorno.settings));
}

void DialogoConMemoria::ofrecer(forms::TextBox& campo, Voz voz) {
  if (voz == Voz::Ninguna) return;
  campo.offers = [this, voz](const std::string& tecleado) {
    return Memoria::de(contexto_).vocabulario.proponer(voz, tecleado);
  };
}

void DialogoConMemoria::refrescarMemoria() {
  Memoria::de(contexto_).ponerAlDia();
}

bool DialogoConMemoria::workBeside() {
  if (!leeAlLado_ || !conBaseDatos || conBaseDatos->inTransaction()) return false;
  try {
    return Memoria::de(contexto_).leer(*conBaseDatos, PLAZO);
  } catch (const std::exception&) {
    // Nobody has asked for it: there is less to be offered, and what is typed goes on.
    return leeAlLado_ = false;
  }
}

void DialogoConMemoria::elegirUnico(forms::ComboBox& lista) {
  if (lista.listIndex() >= 0 || lista.listCount() != 1 || lista.locked()) return;
  unicos_.insert(&lista);
  lista.setListIndex(0);
}

bool DialogoConMemoria::settled(const forms::Control& campo) const {
  if (Form::settled(campo)) return true;
  const auto* lista = dynamic_cast<const forms::ListControl*>(&campo);
  return lista && unicos_.contains(&campo) && !visited(campo) && lista->listIndex() >= 0;
}

/// What can only be one need not be looked at.
bool DialogoConMemoria::beginsSettled() const {
  return activeControl() && unicos_.contains(activeControl());
}

void DialogoConMemoria::recordar(std::vector<forms::Field> campos) const {
  Memoria& memoria = Memoria::de(contexto_);
  memoria.anteriores[name()] = std::move(campos);
  memoria.hayNuevas();
}

const std::vector<forms::Field>& DialogoConMemoria::ultima() const {
  static const std::vector<forms::Field> NINGUNA;
  return NINGUNA;
}

const std::vector<forms::Field>& DialogoConMemoria::anterior() const {
  const auto& anteriores = Memoria::de(contexto_).anteriores;
  const auto enEsteRato = anteriores.find(name());
  return enEsteRato == anteriores.end() ? ultima() : enEsteRato->second;
}

/// Through the control, as the user would. False when there is nothing to be taken.
bool DialogoConMemoria::tomar(forms::Control& campo) {
  for (ParProvinciaPoblacion& par : pares_) {
    if (!par.tiene(campo)) continue;
    const forms::Field* de = buscarCampo(anterior(), par.poblacion().name());
    if (!de || de->data == 0) return false;
    par.elegir(de->data);
    return true;
  }
  const forms::Field* de = buscarCampo(anterior(), campo.name());
  if (!de || (de->data == 0 && sinTexto(de->text))) return false;
  if (auto* texto = dynamic_cast<forms::TextBox*>(&campo)) texto->enterText(de->text);
  if (auto* lista = dynamic_cast<forms::ComboBox*>(&campo))
    for (int i = 0; i < lista->listCount(); ++i)
      if (de->data == 0 ? lista->list(i) == de->text : lista->itemData(i) == de->data)
        lista->userSelect(i);
  return true;
}

/// Blank, or as the program proposed it.
bool DialogoConMemoria::sinTocar(const forms::Control& campo) const {
  const auto* texto = dynamic_cast<const forms::TextBox*>(&campo);
  const auto* lista = dynamic_cast<const forms::ListControl*>(&campo);
  const std::string ahora = texto ? texto->text() : lista ? lista->text() : "?";
  const forms::Field* era = buscarCampo(saved().fields, campo.name());
  return text::trim(ahora).empty() || (era && era->text == ahora);
}

void DialogoConMemoria::takeFormer(forms::Control& campo, bool pagina) {
  if (!takesFormer()) return;
  bool tomado = false;
  if (!pagina) {
    tomado = tomar(campo);
    if (auto* texto = dynamic_cast<forms::TextBox*>(&campo)) texto->selectAll();
  } else {
    for (forms::Control* otro : tabOrder())
      if (mismaPagina(*otro, campo) && !deCadaUno_.contains(otro) && !otro->passedByEnter() &&
          otro->usable() && sinTocar(*otro) && tomar(*otro))
        tomado = true;
    if (tomado && !sinTocar(campo)) goOn();
  }
  if (!tomado) ui().beep();
}

}  // namespace fidaleon
