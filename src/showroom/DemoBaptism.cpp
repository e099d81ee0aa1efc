#include "registers/baptism/frmPartidaBautismo.h"
#include "showroom/DemoRegister.h"

namespace fidaleon::app {
namespace {

using P = frmPartidaBautismo;
using demo::EntryHands;

constexpr const char* GODMOTHER = "Mª Ángeles Yagüe Peñalver";

constexpr DemoRegister BAPTISMS{
    BAUTISMO,
    P::Institucion,
    P::Libro,
    "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?",
    "msgBusquedaPadres",
    "SELECT CodBautismo FROM Bautismo_Hijo WHERE Nombre=",
    "Apellidos del bautizado"};

/// A child as the short scripts enter it.
struct Child {
  const char* name;
  const char* first;
  const char* second;
  const char* sex;
  const char* birth;    // "dd/mm/yyyy"
  const char* baptism;  // the same; empty for a request whose day is not settled
};

void typeNames(EntryHands& e, const Child& child) {
  e.tab(P::TAB_BAUTIZADO);
  e.texts({{P::NombreHijo, child.name},
           {P::PrimerApellidoHijo, child.first},
           {P::SegundoApellidoHijo, child.second}});
  e.choose(P::Sexo, child.sex);  // leaving the surnames brings the family
  e.date(P::FechaNac, child.birth);
  e.place(P::ProvinciaNac);
}

void typeBaptism(EntryHands& e, const char* day) {
  e.tab(P::TAB_BAUTISMO);
  e.date(P::FechaBautismo, day);
  e.texts({{P::Ministro, "Abilio Santacana Prieto"},
           {P::MinistroCargo, "Párroco"},
           {P::DiocesisBautismo, demo::DIOCESE},
           {P::ParroquiaBautismo, demo::PARISH}});
  e.place(P::ProvinciaBautismo);
  e.texts({{P::Padrino, "Leandro Lozano Castaño"}, {P::Madrina, "Ángeles Yagüe"}});
}

void typeFather(EntryHands& e) {
  e.tab(P::TAB_PADRE);
  e.texts({{P::NombrePadre, "Julián"},
           {P::PrimerApellidoPadre, "Lozano"},
           {P::SegundoApellidoPadre, "Castaño"},
           {P::TelefonoPadre, "600 000 001"},
           {P::EmailPadre, "julian@ejemplo.es"},
           {P::AbueloPaterno, "Mariano Lozano Gil"},
           {P::AbuelaPaterna, "Petra Castaño Núñez"}});
  e.dialog().type(demo::at("txtSC", P::PadreProfesion), "Carpintero");
  for (const int where : {P::ProvinciaPadre, P::ProvinciaAbueloPaterno, P::ProvinciaAbuelaPaterna})
    e.place(where);
}

void typeMother(EntryHands& e) {
  e.tab(P::TAB_MADRE);
  e.texts({{P::NombreMadre, "Begoña"},
           {P::PrimerApellidoMadre, "Muñoz"},
           {P::SegundoApellidoMadre, "Ibáñez"},
           {P::TelefonoMadre, "600 000 002"},
           {P::EmailMadre, "begona@ejemplo.es"},
           {P::AbueloMaterno, "Ángel Muñoz de la Fuente"},
           {P::AbuelaMaterna, "Concepción Ibáñez Ortega"}});
  e.dialog().type(demo::at("txtSC", P::MadreProfesion), "Maestra");
  for (const int where : {P::ProvinciaMadre, P::ProvinciaAbueloMaterno, P::ProvinciaAbuelaMaterna})
    e.place(where);
}

void typeMarriage(EntryHands& e) {
  e.tab(P::TAB_MATRIMONIO);
  e.texts({{P::ParroquiaMatrimonio, demo::PARISH},
           {P::DiocesisMatrimonio, demo::DIOCESE},
           {P::DireccionPadres, "C/ Real, 12"},
           {P::TelefonoPadres, "910 000 003"}});
  e.date(P::FechaMatr, "15/06/2007");
  for (const int where : {P::ProvinciaMatrimonio, P::ProvinciaDomicilio}) e.place(where);
}

// Today stands there until somebody knows better.
void forgetWedding(EntryHands& e) {
  e.tab(P::TAB_MATRIMONIO);
  e.date(P::FechaMatr, "");
}

void typeAll(EntryHands& e) {
  typeNames(e, {"Íñigo", "Lozano", "Muñoz", "Hombre", "14/03/2010", ""});
  e.dialog().type("txtHoraNac", "10:30");
  e.text(P::DireccionNac, "C/ Real, 12");
  typeFather(e);
  typeMother(e);
  typeMarriage(e);
  typeBaptism(e, "30/05/2010");
  e.tab(P::TAB_NOTAS);
  e.texts({{P::NotasMarginales, "Inscrito en el Registro Civil de la villa."},
           {P::Observaciones, "Sin observaciones."}});
}

DemoPerson person(const Child& child, int found = 0) {
  return {child.name,
          [child, found](EntryHands& e) {
            typeNames(e, child);
            if (child.baptism[0] == 0) return;
            if (!found) forgetWedding(e);
            typeBaptism(e, child.baptism);
          },
          found};
}

/// A request says so little that nothing is asked about what it does not say.
DemoPerson request(const Child& child) {
  DemoPerson asked = person(child);
  asked.unasked = true;
  return asked;
}

struct Named {
  const char* name;
  const char* first;
  const char* second;
};

/// As the paper has it: the parents are known by name alone.
DemoPerson fromPaper(const Child& child, const Named& father, const Named& mother) {
  return {child.name,
          [=](EntryHands& e) {
            typeNames(e, child);
            e.tab(P::TAB_PADRE);
            e.texts({{P::NombrePadre, father.name},
                     {P::PrimerApellidoPadre, father.first},
                     {P::SegundoApellidoPadre, father.second}});
            e.tab(P::TAB_MADRE);
            e.texts({{P::NombreMadre, mother.name},
                     {P::PrimerApellidoMadre, mother.first},
                     {P::SegundoApellidoMadre, mother.second}});
            forgetWedding(e);
            typeBaptism(e, child.baptism);
          },
          0, true};
}

class Baptisms {
 public:
  explicit Baptisms(DemoWalk& walk) : w_(walk), r_(walk, BAPTISMS) {}

  void run() {
    w_.step("Se abre un libro nuevo de bautismos", [this] { r_.newBook(); });
    w_.step("Se inscribe el primer bautismo", [this] { firstEntry(); });
    w_.step("Se inscribe una hermana: la familia se encuentra sola", [this] { secondEntry(); });
    w_.step("Se corrige el nombre de la madrina", [this] { correct(); });
    w_.step("Se anula la segunda partida", [this] { r_.annul(second_); });
    w_.step("Se emite un certificado", [this] { r_.document("certificado", first_, true); });
    w_.step("Se emite un certificado literal", [this] { r_.document("literal", first_, true); });
    w_.step("Se emite un volante", [this] { r_.document("volante", first_, false); });
    w_.step("Se abre el libro, se trabaja en sus partidas y se cancela",
            [this] { r_.workInVain(listed_); });
    w_.step("Se abre el libro otra vez y se acepta", [this] { r_.workOnBook(listed_, 3); });
    w_.step("Se recogen tres solicitudes", [this] { r_.requests(requested_); });
    w_.step("Se pasan las solicitudes al libro", [this] { r_.moveRequests(requested_, 4); });
    w_.step("Se imprime el libro entero", [this] { r_.printBook("libro", 6); });
    w_.step("Se imprime su índice", [this] { r_.printBook("indice", 6); });
    w_.step("Se imprime el duplicado del año para la diócesis",
            [this] { r_.duplicate("2023", 2, second_.name); });
    w_.step("Se da de alta un libro antiguo", [this] { r_.oldBook("Libro XXI", "01/01/1931"); });
    w_.step("Se copian del papel partidas suyas, una detrás de otra",
            [this] { r_.oldEntries(old_); });
  }

 private:
  void firstEntry() {
    r_.newEntries({first_}, 1);
    w_.check(w_.single("SELECT FechaBautismo FROM Bautismo WHERE IDBautismo=1") == "20100530",
             "la fecha de bautismo está guardada");
  }

  void secondEntry() {
    r_.newEntries({second_}, 2);
    const std::string father =
        "SELECT Bautismo_Padres.Abuelo FROM Bautismo_Padres, Bautismo WHERE "
        "IDPadres=CodPadres AND IDBautismo=";
    w_.check(!w_.single(father + "2").empty() && w_.single(father + "1") == w_.single(father + "2"),
             "los padres y los abuelos son los de su hermano");
    w_.check(w_.single("SELECT NotasMarginales FROM Bautismo WHERE IDBautismo=2") == "---",
             "lo que quedó vacío lleva guiones");
  }

  void correct() {
    r_.correct({first_.name,
                [](EntryHands& e) {
                  e.tab(P::TAB_BAUTISMO);
                  e.text(P::Madrina, GODMOTHER);
                },
                0, true});
    w_.check(w_.single("SELECT Madrina FROM Bautismo WHERE IDBautismo=1") == GODMOTHER,
             std::string("la madrina corregida es ") + GODMOTHER);
  }

  const DemoPerson first_{"Íñigo", typeAll, 0, true};
  const DemoPerson second_ =
      person({"Candela", "Lozano", "Muñoz", "Mujer", "02/02/2023", "16/04/2023"}, 1);
  const std::vector<DemoPerson> listed_{
      person({"Bruno", "Vela", "Cano", "Hombre", "03/07/2023", "10/09/2023"}),
      person({"Alma", "Rey", "Pardo", "Mujer", "12/08/2023", "17/09/2023"})};
  const std::vector<DemoPerson> requested_{
      request({"Hugo", "Soto", "Mena", "Hombre", "05/01/2024", ""}),
      request({"Vera", "Gil", "Robles", "Mujer", "19/01/2024", ""}),
      request({"Teo", "Peña", "Luna", "Hombre", "02/02/2024", ""})};
  // The first is buried later on; the others marry.
  const std::vector<DemoPerson> old_{
      fromPaper({"Fermín", "Aldana", "Cobos", "Hombre", "07/07/1931", "12/07/1931"},
                {"Eusebio", "Aldana", "Marín"}, {"Rosalía", "Cobos", "Peña"}),
      fromPaper({"Alejandro", "Rubio", "Serrano", "Hombre", "12/04/1995", "07/05/1995"},
                {"Fernando", "Rubio", "Gómez"}, {"Carmen", "Serrano", "Ortiz"}),
      fromPaper({"Marta", "Benítez", "Olmo", "Mujer", "03/09/1997", "05/10/1997"},
                {"Ángel", "Benítez", "Mora"}, {"Pilar", "Olmo", "Herranz"})};
  DemoWalk& w_;
  DemoRegisterWalk r_;
};

}  // namespace

void walkBaptism(DemoWalk& walk) {
  Baptisms(walk).run();
}

}  // namespace fidaleon::app
