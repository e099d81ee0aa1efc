#include "registers/common/RevisionFechas.h"

#include <algorithm>

#include "forms/Form.h"

namespace fidaleon {

namespace {

/// Before the books of the parishes began.
constexpr const char* PRIMER_DIA = "15000101";

bool cambia(const forms::KeyPress& tecla) {
  return tecla.character != 0 || tecla.key == forms::Key::Delete ||
         tecla.key == forms::Key::Backspace;
}

}  // namespace

void RevisionFechas::vigilar(forms::DateField& campo, std::string nombre, Hoy hoy) {
  Fecha& fecha = fechas_.emplace_back(Fecha{&campo, std::move(nombre), hoy, hoy == Hoy::FUTURO});
  campo.onChange = [&fecha] { fecha.tocada = true; };
  campo.onKeyPress = [&fecha](forms::KeyPress& tecla) {
    fecha.tocada = fecha.tocada || cambia(tecla);
  };
}

RevisionFechas::Fecha& RevisionFechas::de(const forms::DateField& campo) {
  return *std::find_if(fechas_.begin(), fechas_.end(),
                       [&](const Fecha& f) { return f.campo == &campo; });
}

void RevisionFechas::enEsteOrden(const forms::DateField& primero, const forms::DateField& despues) {
  ordenes_.push_back({&de(primero), &de(despues)});
}

void RevisionFechas::permitirFuturo(const forms::DateField& campo) {
  de(campo).futuro = true;
}

void RevisionFechas::proponerHoy(const forms::DateField& campo, Hoy hoy) {
  Fecha& f = de(campo);
  if (f.tocada) return;
  f.campo->setStored(contexto_.hoy());
  f.hoy = hoy;
  f.tocada = false;
}

void RevisionFechas::empezar(bool conHoy, const std::function<bool(const forms::Control&)>& queda) {
  for (Fecha& f : fechas_) {
    if (!queda || !queda(*f.campo))
      f.campo->setStored(conHoy && f.hoy != Hoy::NUNCA ? contexto_.hoy() : "");
    f.tocada = false;
  }
  reparosDichos_.clear();
}

bool RevisionFechas::aceptar() {
  return aceptarHoy() && aceptarImposibles();
}

bool RevisionFechas::aceptarHoy() {
  std::vector<Fecha*> dudosas;
  std::string nombres;
  for (Fecha& f : fechas_) {
    if (f.hoy != Hoy::DUDOSO || f.tocada || f.campo->stored() != contexto_.hoy()) continue;
    nombres += (nombres.empty() ? "La " : " y la ") + f.nombre;
    dudosas.push_back(&f);
  }
  if (dudosas.empty()) return true;
  const std::string pregunta = nombres +
                               (dudosas.size() == 1 ? " sigue siendo" : " siguen siendo") +
                               " la de hoy (" + dudosas.front()->campo->text() + "). ¿Es correcto?";
  if (!forms::ask(contexto_.ui(), pregunta, {}, forms::Stake::Loss)) return irA(*dudosas.front());
  for (Fecha* f : dudosas) f->tocada = true;
  return true;
}

RevisionFechas::Reparos RevisionFechas::imposibles() const {
  Reparos reparos;
  const auto reparar = [&](const Fecha& f, const std::string& porque) {
    if (!reparos.primera) reparos.primera = &f;
    reparos.texto += (reparos.texto.empty() ? "" : "\n") + ("La " + f.nombre) + " (" +
                     f.campo->text() + ") es " + porque + ".";
  };
  for (const Fecha& f : fechas_) {
    const std::string fecha = f.campo->stored();
    if (fecha.empty()) continue;
    if (fecha < PRIMER_DIA) reparar(f, "anterior al año 1500");
    if (!f.futuro && fecha > contexto_.hoy()) reparar(f, "posterior a hoy");
  }
  for (const auto& [primero, despues] : ordenes_)
    if (!despues->campo->stored().empty() && primero->campo->stored() > despues->campo->stored())
      reparar(*primero, "posterior a la " + despues->nombre + " (" + despues->campo->text() + ")");
  return reparos;
}

bool RevisionFechas::aceptarImposibles() {
  const Reparos reparos = imposibles();
  if (!reparos.primera || reparos.texto == reparosDichos_) return true;
  reparosDichos_ = reparos.texto;
  return forms::ask(contexto_.ui(), "Hay fechas que no pueden ser. ¿Desea guardarlas así?", {},
                    forms::Stake::Loss, reparos.texto) ||
         irA(*reparos.primera);
}

bool RevisionFechas::irA(const Fecha& fecha) {
  if (fecha.campo->strip()) fecha.campo->strip()->setTab(fecha.campo->page());
  fecha.campo->form().setFocus(*fecha.campo);
  return false;
}

}  // namespace fidaleon
