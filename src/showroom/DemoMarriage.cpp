#include "documents/frmInfExhorto.h"
#include "documents/frmInfFecha.h"
#include "registers/marriage/frmPartidaMatrimonio.h"
#include "showroom/DemoRegister.h"

namespace fidaleon::app {
namespace {

using P = frmPartidaMatrimonio;
using demo::EntryHands;
using forms::FormDriver;

constexpr DemoRegister MARRIAGES{
    MATRIMONIO,
    P::Institucion,
    P::Libro,
    "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?",
    "msgBusquedaBautizado",
    "SELECT IDMatrimonio FROM Matrimonio, Matrimonio_Novios WHERE IDNovios=CodNovios AND Nombre=",
    "Apellidos del Matrimonio"};

struct Spouse {
  const char* name;
  const char* first;
  const char* second;
  // Unknown until the look-up brings them.
  const char* birth = nullptr;  // "dd/mm/yyyy"
  const char* father = nullptr;
  const char* mother = nullptr;
};

struct Couple {
  Spouse groom, bride;
  const char* wedding;  // "dd/mm/yyyy"
};

void typeSpouse(EntryHands& e, int who, const Spouse& s) {
  e.tab(P::TAB_PERSONALES + (who == P::NOVIA ? P::TABS_DE_NOVIA : 0));
  e.texts({{who + P::Nombre, s.name},
           {who + P::PrimerApellido, s.first},
           {who + P::SegundoApellido, s.second}});
  e.text(who + P::Religion, "católica");  // leaving the surnames brings the baptism
  if (!s.birth) return;
  e.date(who + P::FechaNac, s.birth);
  e.texts({{who + P::NombrePadre, s.father}, {who + P::NombreMadre, s.mother}});
  e.place(who + P::ProvinciaNac);
}

void typeCouple(EntryHands& e, const Couple& c) {
  typeSpouse(e, P::NOVIO, c.groom);
  typeSpouse(e, P::NOVIA, c.bride);
  e.tab(P::TAB_COMPROMISO);
  e.date(P::FechaMatrimonio, c.wedding);
}

DemoPerson person(const Couple& c, int found = 0) {
  return {c.groom.name, [c](EntryHands& e) { typeCouple(e, c); }, found};
}

void typeHomes(EntryHands& e) {
  struct Home {
    int who;
    const char* identity;
    const char* street;
    const char* page;
  };
  for (const Home& h : {Home{P::NOVIO, "12345678-Z", "C/ Real, 21", "112"},
                        Home{P::NOVIA, "23456789-D", "Plaza del Olmo, 4", "87"}}) {
    const int later = h.who == P::NOVIA ? P::TABS_DE_NOVIA : 0;
    e.tab(P::TAB_PERSONALES + later);
    e.text(h.who + P::DNI, h.identity);
    e.tab(P::TAB_OTROS + later);
    e.texts({{h.who + P::DomicilioActual, h.street},
             {h.who + P::TResidenciaDomAct, "6"},
             {h.who + P::MunicipioInscrito, demo::TOWN},
             {h.who + P::Tomo, "41"},
             {h.who + P::Pagina, h.page}});
    e.place(h.who + P::ProvinciaActual);
  }
}

void typeWitnesses(EntryHands& e) {
  e.tab(P::TAB_EXPEDIENTES);
  e.texts({{P::NombreTestigo, "Rodrigo"},
           {P::PrimerApellidoTestigo, "Vela"},
           {P::SegundoApellidoTestigo, "Sanz"},
           {P::DomicilioTestigo, "C/ Nueva, 9"},
           {P::OtroTestigo + P::NombreTestigo, "Elena"},
           {P::OtroTestigo + P::PrimerApellidoTestigo, "Rojo"},
           {P::OtroTestigo + P::SegundoApellidoTestigo, "Calvo"},
           {P::OtroTestigo + P::DomicilioTestigo, "C/ del Arco, 3"}});
  for (const int where : {int{P::ProvinciaTestigo}, P::ProvinciaTestigo + 2}) e.place(where);
}

void typeCelebration(EntryHands& e) {
  e.tab(P::TAB_COMPROMISO);
  e.dialog().type("txtHoraMatrimonio", "12:30");
  e.texts({{P::Padrino, "Fernando Rubio Gómez"},
           {P::Madrina, "Pilar Olmo Herranz"},
           {P::Testigos, "Rodrigo Vela Sanz y Elena Rojo Calvo"},
           {P::Celebrante, demo::PRIEST},
           {P::NihilObstat, "814/2025"},
           {P::DomicilioMatrimonio, "C/ de la Fuente, 30"}});
  e.place(P::ProvinciaDomicMatr);
}

void examine(EntryHands& e) {
  struct Sworn {
    int page;
    const char* field;
    const char* answer;
  };
  e.tab(P::TAB_EXAMENES);
  for (const Sworn& s :
       {Sworn{0, "txtExamenDatosGenerales(31)", "En esta parroquia, en marzo de 2025."},
        Sworn{0, "txtExamenDatosGenerales(33)", "C/ de la Fuente, 30"},
        Sworn{1, "txtExamenNovio(0)", "Sí, lo juro."}, Sworn{1, "txtExamenNovio(2)", "No."},
        Sworn{1, "txtExamenNovio(8)",
              "Porque los dos somos creyentes y queremos que nuestra familia lo sea."},
        Sworn{2, "txtExamenNovia(0)", "Sí, lo juro."}, Sworn{2, "txtExamenNovia(2)", "No."},
        Sworn{2, "txtExamenNovia(8)", "Porque creo que es una vocación y quiero vivirla así."},
        Sworn{3, "txtExamenTestigo1(0)", "Sí, lo juro."},
        Sworn{3, "txtExamenTestigo1(1)", "Desde la escuela."},
        Sworn{4, "txtExamenTestigo2(0)", "Sí, lo juro."},
        Sworn{4, "txtExamenTestigo2(1)", "Desde hace ocho años, de la parroquia."}}) {
    e.dialog().tab("mstExamenes", s.page);
    e.dialog().type(s.field, s.answer);
  }
}

void chooseToday(FormDriver& d) {
  d.click(demo::at("cmdBoton", frmInfFecha::ACEPTAR));
}

void typeBanns(FormDriver& d) {
  using D = frmInfExhorto;
  for (const auto& [field, what] : {std::pair{D::ParroquiaNovio, demo::PARISH},
                                    {D::PoblacionNovio, demo::TOWN},
                                    {D::DiocesisNovio, demo::DIOCESE},
                                    {D::ParroquiaNovia, "San Andrés Apóstol"},
                                    {D::PoblacionNovia, "Rascafría"},
                                    {D::DiocesisNovia, demo::DIOCESE}})
    d.type(demo::at("txtDato", field), what);
  d.click(demo::at("cmdBoton", D::ACEPTAR));
}

class Marriages {
 public:
  explicit Marriages(DemoWalk& walk) : w_(walk), r_(walk, MARRIAGES) {}

  void run() {
    w_.step("Se abre un libro nuevo de matrimonios", [this] { r_.newBook(); });
    dossier();
    entry();
    w_.step("Se trabaja en el libro y se acepta", [this] { r_.workOnBook(listed_, 2); });
    w_.step("Se da de alta un libro antiguo de matrimonios",
            [this] { r_.oldBook("Libro VIII", "01/01/1955"); });
    w_.step("Se copia del papel un matrimonio suyo", [this] { r_.oldEntries({fromPaper_}); });
    w_.step("Se imprime el libro entero", [this] { r_.printBook("libro", 2); });
    w_.step("Se imprime su índice", [this] { r_.printBook("indice", 2); });
    w_.step("Se imprime el duplicado del año para la diócesis",
            [this] { r_.duplicate("2025", 2, couple_.name); });
  }

 private:
  static constexpr const char* DAY_FORM = "frmInfFecha";
  static constexpr const char* KEEP_IT = "¿Desea Guardar los datos en la Solicitud de Matrimonio?";

  void dossier() {
    w_.step("Se abre un expediente: de los dos contrayentes se trae el bautismo",
            [this] { open(); });
    w_.step("Se añaden los testigos y los datos de la boda", [this] {
      r_.correct({couple_.name,
                  [](EntryHands& e) {
                    typeHomes(e);
                    typeWitnesses(e);
                    typeCelebration(e);
                  },
                  0, true});
    });
    w_.step("Se toma juramento a los contrayentes y a los testigos", [this] {
      r_.correct({couple_.name, examine, 0, true});
      w_.check(w_.count("Matrimonio_Cursos WHERE CodMatrimonio=" +
                        std::to_string(r_.idOf(couple_))) == "4",
               "lo que han declarado los cuatro está guardado");
    });
    w_.step("Se pide a las parroquias de residencia que amonesten", [this] { banns(); });
    w_.step("Se imprime el expediente", [this] { r_.document("expediente", couple_, false); });
  }

  void open() {
    r_.requests({couple_});
    for (const char* table : {"Matrimonio_Novios_Bautismo", "Matrimonio_Novias_Bautismo"})
      w_.check(w_.single(std::string("SELECT LibroBaut FROM ") + table) == "Libro XXI",
               "consta en qué libro está el bautismo");
    w_.check(
        w_.single("SELECT NombrePadre FROM Matrimonio_Novias_RegCivil") == "Ángel Benítez Mora",
        "los padres son los del bautismo");
  }

  void banns() {
    r_.document("exhorto", couple_, false, {{"frmInfExhorto", [this](FormDriver& d) {
                                               w_.user().expectMessage(KEEP_IT, forms::Answer::Yes);
                                               w_.user().expectForm(DAY_FORM, chooseToday);
                                               typeBanns(d);
                                             }}});
    w_.check(w_.single("SELECT PoblacionExhorto FROM Matrimonio_Novias") == "Rascafría",
             "queda guardado adónde va el exhorto");
  }

  void entry() {
    w_.step("Celebrada la boda, el expediente pasa al libro",
            [this] { r_.moveRequests({couple_}, 1); });
    w_.step("Se emite un certificado", [this] { r_.document("certificado", couple_, true); });
    w_.step("Se emite un certificado literal", [this] { r_.document("literal", couple_, true); });
    w_.step("Se emite la partida", [this] { r_.document("partida", couple_, false); });
    w_.step("Se comunica a las parroquias de bautismo", [this] {
      r_.document("comunicacion", couple_, false, {{DAY_FORM, chooseToday}});
    });
    w_.step("Se notifica al Registro Civil", [this] {
      r_.document("registro-civil", couple_, false, {{DAY_FORM, chooseToday}});
    });
  }

  const DemoPerson couple_ =
      person({{"Alejandro", "Rubio", "Serrano"}, {"Marta", "Benítez", "Olmo"}, "13/09/2025"}, 2);
  const std::vector<DemoPerson> listed_{
      person({{"Gonzalo", "Torres", "Vidal", "03/03/1994", "Julio Torres Peña", "Ana Vidal Soto"},
              {"Irene", "Cano", "Ruiz", "19/08/1995", "Blas Cano Gil", "Rosa Ruiz Mena"},
              "04/10/2025"}),
      person({{"Sergio", "Yuste", "Lara", "21/06/1990", "Luis Yuste Rey", "Eva Lara Mora"},
              {"Nuria", "Ponce", "Díaz", "30/11/1992", "Juan Ponce Roca", "Inés Díaz Vela"},
              "18/10/2025"})};
  const DemoPerson fromPaper_ = person(
      {{"Cipriano", "Heras", "Molina", "02/02/1930", "Pascual Heras Gil", "Petra Molina Ruiz"},
       {"Dionisia", "Calvo", "Prieto", "15/05/1932", "Justo Calvo Sanz", "Eulalia Prieto Mora"},
       "24/09/1955"});
  DemoWalk& w_;
  DemoRegisterWalk r_;
};

}  // namespace

void walkMarriage(DemoWalk& walk) {
  Marriages(walk).run();
}

}  // namespace fidaleon::app
