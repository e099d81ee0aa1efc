#include "registers/death/frmPartidaDefuncion.h"
#include "showroom/DemoRegister.h"

namespace fidaleon::app {
namespace {

using P = frmPartidaDefuncion;
using demo::EntryHands;

constexpr DemoRegister DEATHS{
    DEFUNCION,
    P::Institucion,
    P::Libro,
    "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?",
    "msgBusquedaBautizado",
    "SELECT IDDifunto FROM Defuncion WHERE Nombre=",
    "Apellidos del Difunto"};

struct Deceased {
  const char* name;
  const char* first;
  const char* second;
  const char* state;
  const char* spouse;
  const char* age;
  const char* death;   // "dd/mm/yyyy"
  const char* burial;  // the same
  // Unknown until the look-up brings them.
  const char* father = nullptr;
  const char* mother = nullptr;
};

// The parish, its priest and its town are proposed.
DemoPerson person(const Deceased& d, int found = 0) {
  return {d.name,
          [d](EntryHands& e) {
            e.tab(P::TAB_PARROQUIA);
            e.text(P::Cementerio, "Cementerio parroquial");
            e.date(P::FechaInhumacion, d.burial);
            e.tab(P::TAB_DIFUNTO);
            e.texts({{P::Nombre, d.name},
                     {P::PrimerApellido, d.first},
                     {P::SegundoApellido, d.second},
                     {P::EstadoCivil, d.state},
                     {P::Consorte, d.spouse},
                     {P::DomicilioActual, "C/ del Castillo, 7"},
                     {P::Causa, "insuficiencia cardiaca"}});
            e.date(P::FechaDefuncion, d.death);
            e.dialog().type("txtHoraDefuncion", "06:45");
            e.text(P::DomicilioDefn, "C/ del Castillo, 7");
            e.tab(P::TAB_FAMILIA);
            if (d.father) e.texts({{P::NombrePadre, d.father}, {P::NombreMadre, d.mother}});
            e.texts({{P::Edad, d.age},
                     {P::Sacramentos, "Penitencia, Unción de los enfermos y Viático"}});
          },
          found};
}

class Deaths {
 public:
  explicit Deaths(DemoWalk& walk) : w_(walk), r_(walk, DEATHS) {}

  void run() {
    w_.step("Se abre un libro nuevo de defunciones", [this] { r_.newBook(); });
    w_.step("Se inscribe un entierro: el bautismo del libro antiguo se encuentra",
            [this] { burial(); });
    w_.step("Se emite un certificado", [this] { r_.document("certificado", first_, true); });
    w_.step("Se emite un certificado literal", [this] { r_.document("literal", first_, true); });
    w_.step("Se emite la partida", [this] { r_.document("partida", first_, true); });
    w_.step("Se trabaja en el libro y se acepta", [this] { r_.workOnBook(listed_, 2); });
    w_.step("Se imprime el libro entero", [this] { r_.printBook("libro", 2); });
    w_.step("Se imprime su índice", [this] { r_.printBook("indice", 2); });
    w_.step("Se imprime el duplicado del año para la diócesis",
            [this] { r_.duplicate("2025", 2, first_.name); });
  }

 private:
  void burial() {
    r_.newEntries({first_}, 1);
    w_.check(
        w_.single("SELECT NombrePadre FROM Defuncion WHERE IDDifunto=1") == "Eusebio Aldana Marín",
        "su padre es el del bautismo");
  }

  const DemoPerson first_ = person(
      {"Fermín", "Aldana", "Cobos", "viudo", "Carmen Gil Soto", "93", "11/02/2025", "12/02/2025"},
      1);
  const std::vector<DemoPerson> listed_{
      person({"Amparo", "Yuste", "Bermejo", "casada", "Tomás Heras Ruiz", "88", "04/10/2025",
              "05/10/2025", "Justo Yuste Mora", "Pilar Bermejo Díaz"}),
      person({"Basilio", "Nieto", "Calvo", "soltero", "---", "79", "20/10/2025", "21/10/2025",
              "Blas Nieto Roca", "Inés Calvo Gil"})};
  DemoWalk& w_;
  DemoRegisterWalk r_;
};

}  // namespace

void walkDeath(DemoWalk& walk) {
  Deaths(walk).run();
}

}  // namespace fidaleon::app
