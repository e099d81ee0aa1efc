// Services to the fields and lists of a dialog, and the dialogs of the catalogues.

#include <array>

#include "support/Fidaleon.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "text/Names.h"
#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

constexpr const char* PESETAS = "Pts";
constexpr const char* EUROS = "€";
// In brackets first: it holds the plain one.
constexpr std::array<const char*, 2> BRACKETED{"(Pts)", "(€)"};
// A long row of alternatives is nested as deep as it is long, which engines refuse.
constexpr std::size_t ALTERNATIVES = 500;

bool isUnit(const std::string& caption) {
  const std::string c = text::lower(text::trim(caption));
  return c == "pts" || c == "pts." || c == "ptas" || c == "ptas." || c == "€" || c == "euros";
}

}  // namespace

void Fidaleon::ComprobarComilla(forms::TextBox& campo) {
  const std::string safe =
      text::withoutQuotes(campo.text(), static_cast<std::size_t>(campo.maxLength()));
  if (safe == campo.text()) return;
  const std::string before = text::left(campo.text(), static_cast<std::size_t>(campo.selStart()));
  campo.setText(safe);
  campo.setSelection(static_cast<int>(text::length(text::withoutQuotes(before))), 0);
}

void Fidaleon::Comprobar_borrarcombo(forms::KeyPress& tecla, forms::ListControl& lista) {
  if (tecla.key != forms::Key::Delete || lista.locked() || !lista.usable()) return;
  lista.setListIndex(-1);
  tecla.swallow();
}

// The unit stands in a label of its own beside the field, or in brackets in the field's label.
void Fidaleon::CambioEtiquetasMoneda(forms::Form& formulario, forms::TextBox& campo,
                                     const FDAPI::cConfig& config) {
  const std::string unit = config.TrabajarConPesetas ? PESETAS : EUROS;
  for (forms::Control* control : formulario.controls()) {
    auto* label = dynamic_cast<forms::Label*>(control);
    if (label && isUnit(label->caption()) && label->frame() == campo.frame() &&
        label->page() == campo.page())
      label->setCaption(unit);
  }
  if (!campo.label()) return;
  std::string caption = campo.label()->caption();
  for (const char* old : BRACKETED) caption = text::replaceAll(caption, old, "(" + unit + ")");
  campo.label()->setCaption(caption);
}

bool Fidaleon::ComprobarSeleccion(const forms::ListBox& lista) {
  std::vector<int> rows;
  ListarSeleccionados(lista, rows);
  return !rows.empty();
}

void Fidaleon::ListarSeleccionados(const forms::ListBox& lista, std::vector<int>& seleccionados) {
  seleccionados.clear();
  for (int i = 0; i < lista.listCount(); ++i)
    if (lista.multiSelect() ? lista.selected(i) : i == lista.listIndex())
      seleccionados.push_back(i);
}

std::string Fidaleon::sqlListbox(const forms::ListBox& lista, const std::string& columna) {
  std::vector<int> rows;
  ListarSeleccionados(lista, rows);
  if (rows.empty()) return {};
  std::string sql = "(";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0) sql += i % ALTERNATIVES == 0 ? ") OR (" : " OR ";
    sql += columna + "=" + std::to_string(lista.itemData(rows[i]));
  }
  return rows.size() > ALTERNATIVES ? "(" + sql + "))" : sql + ")";
}

void Fidaleon::NuevaInstitucion(FDAPI::Conexion& conexion, const FDAPI::cConfig& config) {
  frmInstitucion dialog(ui_, settings_, clock_, conexion, config);
  dialog.Show();
}

void Fidaleon::NuevaProvincia(bool& agregada, FDAPI::Conexion& conexion,
                              const FDAPI::cConfig& config) {
  frmProvincia dialog(ui_, settings_, clock_, conexion, config);
  dialog.Show();
  agregada = dialog.aceptado();
}

void Fidaleon::NuevoMunicipio(bool& agregado, FDAPI::Conexion& conexion,
                              const FDAPI::cConfig& config) {
  frmMunicipio dialog(ui_, settings_, clock_, conexion, config);
  dialog.Show();
  agregado = dialog.aceptado();
}

}  // namespace fidaleon::support
