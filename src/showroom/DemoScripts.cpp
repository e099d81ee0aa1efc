#include "showroom/DemoScripts.h"

#include "documents/frmInfDuplicadas.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/entry/frmPartida.h"
#include "registers/requests/frmSolicitudes.h"

namespace fidaleon::app::demo {

using forms::FormDriver;

namespace {

constexpr std::int64_t NAME_AS_TYPED = 4;

}  // namespace

std::string at(const std::string& name, int index) {
  return name + "(" + std::to_string(index) + ")";
}

void chooseFirst(FormDriver& d, const std::string& list) {
  auto& combo = d.get<forms::ComboBox>(list);
  if (combo.listIndex() < 0 && combo.listCount() > 0) d.choose(list, combo.list(0));
}

void EntryHands::texts(std::initializer_list<std::pair<int, const char*>> fields) {
  for (const auto& [field, what] : fields) text(field, what);
}

void EntryHands::place(int province) {
  choose(province, "Madrid");
  choose(province + 1, TOWN);
}

void EntryHands::accept() {
  dialog_.click(at("cmd" + word_, frmPartida::ACEPTAR));
}

void createBook(FormDriver& d) {
  chooseFirst(d, "cboInstituciones");
  d.click("optNuevo");
  chooseFirst(d, "cboTipoNombre");
  chooseFirst(d, "cboFormato");
  d.click("cmdBoton(0)");
}

void createOldBook(FormDriver& d, const std::string& name, const std::string& begun) {
  chooseFirst(d, "cboInstituciones");
  d.click("optAntiguo");
  d.chooseData("cboTipoNombre", NAME_AS_TYPED);
  d.type("txtNombreLibro", name);
  chooseFirst(d, "cboFormato");
  d.type("adtpAltaLibro", begun);
  d.click("cmdBoton(0)");
}

void chooseKeeper(FormDriver& d) {
  d.choose("cboEncargado", PRIEST);
  d.click("cmdBoton(0)");
}

void showEntries(FormDriver& d) {
  d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
}

void addEntry(FormDriver& d) {
  d.click(at("cmdPartidas", frmPropiedadesLibro::AGREGAR));
}

void removeLastEntry(FormDriver& d) {
  d.row("msgPartidas", d.get<forms::Grid>("msgPartidas").rowCount());
  d.click(at("cmdPartidas", frmPropiedadesLibro::ELIMINAR));
}

void moveAllRequests(FormDriver& d) {
  chooseFirst(d, "cboInstitucion");
  d.tab("mstSolicitudes", 1);
  d.click(at("cmdMover", frmSolicitudes::ELEGIR_TODAS));
  d.click(at("cmdBoton", frmSolicitudes::ACEPTAR));
}

void chooseDuplicate(FormDriver& d, const std::string& year, const std::string& order) {
  chooseFirst(d, "cboInstitucion");
  d.type("adtpAno", year);
  d.choose("cboOrden", order);
  d.click(at("cmdBoton", frmInfDuplicadas::ACEPTAR));
}

}  // namespace fidaleon::app::demo
