#include "showroom/DemoScripts.h"

#include <string>

#include "documents/frmInfDuplicadas.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/requests/frmSolicitudes.h"

namespace fidaleon::app::demo {
namespace {

using P = frmPartidaBautismo;
using forms::FormDriver;

const std::string TABS = "mstBautismo";

std::string indexed(const char* name, int index) {
  return std::string(name) + "(" + std::to_string(index) + ")";
}
std::string text(int index) {
  return indexed("txtBautismo", index);
}
std::string trade(int index) {
  return indexed("txtSC", index);
}
std::string list(int index) {
  return indexed("cboBautismo", index);
}
std::string date(int index) {
  return indexed("adtpBautismo", index);
}
std::string button(int index) {
  return indexed("cmdBautismo", index);
}

void place(FormDriver& d, int province) {
  d.choose(list(province), "Madrid");
  d.choose(list(province + 1), TOWN);
}

// The first line of a list that is filled; the parish of the demonstration has one of each.
void chooseFirst(FormDriver& d, const std::string& control) {
  auto& combo = d.get<forms::ComboBox>(control);
  if (combo.listIndex() < 0 && combo.listCount() > 0) d.choose(control, combo.list(0));
}

void chooseBook(FormDriver& d) {
  chooseFirst(d, list(P::Institucion));
  chooseFirst(d, list(P::Libro));
}

void fillChild(FormDriver& d) {
  d.tab(TABS, P::TAB_BAUTIZADO);
  d.type(text(P::NombreHijo), FIRST_CHILD);
  d.type(text(P::PrimerApellidoHijo), "Lozano");
  d.type(text(P::SegundoApellidoHijo), "Muñoz");
  d.choose(list(P::Sexo), "Hombre");
  d.type(date(P::FechaNac), "14/03/2021");
  d.type("txtHoraNac", "10:30");
  d.type(text(P::DireccionNac), "C/ Real, 12");
  place(d, P::ProvinciaNac);
}

void fillFather(FormDriver& d) {
  d.tab(TABS, P::TAB_PADRE);
  d.type(text(P::NombrePadre), "Julián");
  d.type(text(P::PrimerApellidoPadre), "Lozano");
  d.type(text(P::SegundoApellidoPadre), "Castaño");
  place(d, P::ProvinciaPadre);
  d.type(trade(P::PadreProfesion), "Carpintero");
  d.type(text(P::TelefonoPadre), "600 000 001");
  d.type(text(P::EmailPadre), "julian@ejemplo.es");
  d.type(text(P::AbueloPaterno), "Mariano Lozano Gil");
  place(d, P::ProvinciaAbueloPaterno);
  d.type(text(P::AbuelaPaterna), "Petra Castaño Núñez");
  place(d, P::ProvinciaAbuelaPaterna);
}

void fillMother(FormDriver& d) {
  d.tab(TABS, P::TAB_MADRE);
  d.type(text(P::NombreMadre), "Begoña");
  d.type(text(P::PrimerApellidoMadre), "Muñoz");
  d.type(text(P::SegundoApellidoMadre), "Ibáñez");
  place(d, P::ProvinciaMadre);
  d.type(trade(P::MadreProfesion), "Maestra");
  d.type(text(P::TelefonoMadre), "600 000 002");
  d.type(text(P::EmailMadre), "begona@ejemplo.es");
  d.type(text(P::AbueloMaterno), "Ángel Muñoz de la Fuente");
  place(d, P::ProvinciaAbueloMaterno);
  d.type(text(P::AbuelaMaterna), "Concepción Ibáñez Ortega");
  place(d, P::ProvinciaAbuelaMaterna);
}

void fillMarriage(FormDriver& d) {
  d.tab(TABS, P::TAB_MATRIMONIO);
  d.type(text(P::ParroquiaMatrimonio), "San Esteban Protomártir");
  d.type(date(P::FechaMatr), "15/06/2018");
  d.type(text(P::DiocesisMatrimonio), "Madrid");
  place(d, P::ProvinciaMatrimonio);
  d.type(text(P::DireccionPadres), "C/ Real, 12");
  d.type(text(P::TelefonoPadres), "910 000 003");
  place(d, P::ProvinciaDomicilio);
}

void fillBaptism(FormDriver& d, const std::string& day) {
  d.tab(TABS, P::TAB_BAUTISMO);
  d.type(date(P::FechaBautismo), day);
  d.type(text(P::Ministro), MINISTER);
  d.type(text(P::MinistroCargo), "Párroco");
  d.type(text(P::DiocesisBautismo), "Madrid");
  d.type(text(P::ParroquiaBautismo), "San Esteban Protomártir");
  place(d, P::ProvinciaBautismo);
  d.type(text(P::Padrino), "Leandro Lozano Castaño");
  d.type(text(P::Madrina), "Ángeles Yagüe");
}

void fillNames(FormDriver& d, const Child& child) {
  d.tab(TABS, P::TAB_BAUTIZADO);
  d.type(text(P::NombreHijo), child.name);
  d.type(text(P::PrimerApellidoHijo), child.first);
  d.type(text(P::SegundoApellidoHijo), child.second);
  d.choose(list(P::Sexo), child.girl ? "Mujer" : "Hombre");
  d.type(date(P::FechaNac), child.birth);
  place(d, P::ProvinciaNac);
}

}  // namespace

void fillSetup(FormDriver& d) {
  d.type("txtDatos(0)", PRIEST);
  d.type("txtDatos(1)", PRIEST);
  d.type("txtDatos(2)", "Madrid");
  d.type("txtDatos(3)", "Vicaría VIII");
  d.click("cmdBoton(0)");
}

void createBook(FormDriver& d) {
  chooseFirst(d, "cboInstituciones");
  d.click("optNuevo");
  chooseFirst(d, "cboTipoNombre");
  chooseFirst(d, "cboFormato");
  d.click("cmdBoton(0)");
}

void fillEntry(FormDriver& d) {
  chooseBook(d);
  fillChild(d);
  fillFather(d);
  fillMother(d);
  fillMarriage(d);
  fillBaptism(d, "30/05/2021");
  d.tab(TABS, P::TAB_NOTAS);
  d.type(text(P::NotasMarginales), "Inscrito en el Registro Civil de la villa.");
  d.type(text(P::Observaciones), "Sin observaciones.");
}

void enterFirstChild(FormDriver& d) {
  fillEntry(d);
  d.click(button(P::ACEPTAR));
}

void enterSecondChild(FormDriver& d) {
  chooseBook(d);
  d.tab(TABS, P::TAB_BAUTIZADO);
  d.type(text(P::NombreHijo), "Candela");
  d.type(text(P::PrimerApellidoHijo), "Lozano");
  d.type(text(P::SegundoApellidoHijo), "Muñoz");
  d.choose(list(P::Sexo), "Mujer");  // leaving the surnames brings the family
  d.type(date(P::FechaNac), "02/02/2023");
  place(d, P::ProvinciaNac);
  fillBaptism(d, "16/04/2023");
  d.click(button(P::ACEPTAR));
}

void chooseFamily(FormDriver& d) {
  d.row("msgBusquedaPadres", 1);
  d.click("cmdBoton(0)");
}

void correctGodmother(FormDriver& d) {
  d.tab(TABS, P::TAB_BAUTISMO);
  d.type(text(P::Madrina), GODMOTHER);
  d.click(button(P::ACEPTAR));
}

void chooseKeeper(FormDriver& d) {
  d.choose("cboEncargado", PRIEST);
  d.click("cmdBoton(0)");
}

void enterListed(FormDriver& d, const Child& child) {
  fillNames(d, child);
  d.tab(TABS, P::TAB_MATRIMONIO);
  d.type(date(P::FechaMatr), "");
  fillBaptism(d, child.baptism);
  d.click(button(P::ACEPTAR));
}

void enterRequest(FormDriver& d, const Child& child) {
  chooseFirst(d, list(P::Institucion));
  fillNames(d, child);
  d.click(button(P::ACEPTAR));
}

void showEntries(FormDriver& d) {
  d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
}

void addEntry(FormDriver& d) {
  d.click(indexed("cmdPartidas", frmPropiedadesLibro::AGREGAR));
}

void removeLastEntry(FormDriver& d) {
  d.row("msgPartidas", d.get<forms::Grid>("msgPartidas").rowCount());
  d.click(indexed("cmdPartidas", frmPropiedadesLibro::ELIMINAR));
}

void moveAllRequests(FormDriver& d) {
  chooseFirst(d, "cboInstitucion");
  d.tab("mstSolicitudes", 1);
  d.click(indexed("cmdMover", frmSolicitudes::ELEGIR_TODAS));
  d.click(indexed("cmdBoton", frmSolicitudes::ACEPTAR));
}

void chooseDuplicate(FormDriver& d) {
  chooseFirst(d, "cboInstitucion");
  d.type("adtpAno", DUPLICATE_YEAR);
  d.choose("cboOrden", "Apellidos del bautizado");
  d.click(indexed("cmdBoton", frmInfDuplicadas::ACEPTAR));
}

}  // namespace fidaleon::app::demo
