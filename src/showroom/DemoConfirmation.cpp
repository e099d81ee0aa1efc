#include "documents/frmInfNotConf.h"
#include "documents/frmInfNotConfDatos.h"
#include "printing/DocumentReport.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "showroom/DemoRegister.h"

namespace fidaleon::app {
namespace {

using P = frmPartidaConfirmacion;
using demo::EntryHands;
using forms::FormDriver;

constexpr const char* BLANKS =
    "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?";
constexpr const char* DAY = "17/05/2025";
constexpr const char* MINISTER = "Jerónimo Valdivieso Arce";
constexpr const char* SPONSOR = "Leandro Lozano Castaño";

constexpr DemoRegister CONFIRMATIONS{CONFIRMACION,
                                     P::Institucion,
                                     P::Libro,
                                     BLANKS,
                                     "msgBusquedaBautizado",
                                     "SELECT IDConfirmacion FROM Confirmacion WHERE Nombre=",
                                     "Apellidos del Confirmado"};

struct Youth {
  const char* name;
  const char* first;
  const char* second;
  const char* baptised;  // "dd/mm/yyyy"
  const char* baptismParish;
  const char* birth;
  const char* father;
  const char* mother;
  const char* sponsor;
};

void typeYouth(EntryHands& e, const Youth& y) {
  e.tab(P::TAB_CONFIRMADO);
  e.texts({{P::Nombre, y.name}, {P::PrimerApellido, y.first}, {P::SegundoApellido, y.second}});
  e.date(P::FechaBaut, y.baptised);
  e.text(P::ParroquiaBaut, y.baptismParish);
  e.place(P::ProvinciaBaut);
  e.tab(P::TAB_PERSONALES);
  e.date(P::FechaNac, y.birth);
  e.texts({{P::NombrePadre, y.father}, {P::NombreMadre, y.mother}, {P::Padrino, y.sponsor}});
  e.place(P::ProvinciaNac);
}

void typeCelebration(EntryHands& e) {
  e.tab(P::TAB_CONFIRMACION);
  e.date(P::FechaConfirmacion, DAY);
  e.texts({{P::Parroquia, demo::PARISH},
           {P::Diocesis, demo::DIOCESE},
           {P::Ministro, MINISTER},
           {P::CargoMinistro, "Obispo auxiliar"}});
  e.place(P::ProvinciaParr);
}

DemoPerson person(const Youth& y) {
  return {y.name, [y](EntryHands& e) { typeYouth(e, y); }};
}

class Confirmations {
 public:
  explicit Confirmations(DemoWalk& walk) : w_(walk), r_(walk, CONFIRMATIONS) {}

  void run() {
    w_.step("Se abre un libro nuevo de confirmaciones", [this] { r_.newBook(); });
    w_.step("Se inscribe en serie a un grupo: de quien se bautizó aquí se trae el bautismo",
            [this] { group(); });
    w_.step("Se recoge una solicitud de confirmación", [this] { r_.requests(requested_); });
    w_.step("Se pasa la solicitud al libro", [this] { r_.moveRequests(requested_, 4); });
    w_.step("Se completa su partida con el día y el ministro", [this] { complete(); });
    w_.step("Se anula la tercera partida", [this] { r_.annul(group_[2]); });
    const DemoPerson& first = group_.front();
    w_.step("Se emite un certificado", [&] { r_.document("certificado", first, true); });
    w_.step("Se emite un certificado literal", [&] { r_.document("literal", first, true); });
    w_.step("Se emite la partida", [&] { r_.document("partida", first, false); });
    w_.step("Se notifica a la parroquia de bautismo",
            [&] { r_.document("notificacion", group_[1], false); });
    w_.step("Se notifica una confirmación que no está en ningún libro",
            [this] { noticeWithoutBook(); });
    w_.step("Se imprime el libro entero", [this] { r_.printBook("libro", 4); });
    w_.step("Se imprime su índice", [this] { r_.printBook("indice", 4); });
    w_.step("Se imprime el duplicado del año para la diócesis",
            [this] { r_.duplicate("2025", 4, requested_.front().name); });
  }

 private:
  std::string one(const std::string& column, const std::string& table, const DemoPerson& of) {
    return w_.single("SELECT " + column + " FROM " + table +
                     " WHERE CodConfirmacion=" + std::to_string(r_.idOf(of)));
  }

  void group() {
    r_.newEntries(group_, 1);
    w_.check(one("LibroBaut", "Confirmacion_Bautismo", group_[0]) ==
                     w_.single("SELECT Nombre FROM Libro_Bautismo WHERE Nuevo=true") &&
                 one("FolioBaut", "Confirmacion_Bautismo", group_[0]) == "1",
             "consta en qué libro y folio está su bautismo");
    for (const DemoPerson& p : group_)
      if (one("Ministro", "Confirmacion_Datos", p) != MINISTER ||
          one("FechaConfirmacion", "Confirmacion_Datos", p) != "20250517")
        w_.check(false, std::string("el día y el ministro son también los de ") + p.name);
    w_.check(true, "el día y el ministro se han escrito una sola vez");
  }

  void complete() {
    r_.correct({requested_.front().name, typeCelebration, 0, true});
    w_.check(one("Ministro", "Confirmacion_Datos", requested_.front()) == MINISTER,
             "el ministro está guardado");
  }

  void typeNotice(FormDriver& list) {
    using D = frmInfNotConfDatos;
    w_.user().expectForm("frmInfNotConfDatos", [this](FormDriver& d) {
      for (const auto& [field, what] : {std::pair{D::Nombre, "Jimena"},
                                        {D::PrimerApellido, "Ortega"},
                                        {D::SegundoApellido, "Salas"},
                                        {D::Edad, "16"},
                                        {D::Ministro, MINISTER},
                                        {D::Padrino, "Teresa Salas Ruiz"},
                                        {D::ParroquiaBaut, "Santa María la Mayor"},
                                        {D::DireccionBaut, "Plaza Mayor, 2"},
                                        {D::LibroBaut, "XXXII"},
                                        {D::FolioBaut, "118"},
                                        {D::NumeroBaut, "236"}})
        d.type(demo::at("txtNotifica", field), what);
      d.type(demo::at("adtpNotifica", D::FechaConfirmacion), DAY);
      d.type(demo::at("adtpNotifica", D::FechaBautismo), "28/02/2009");
      d.choose(demo::at("cboNotifica", D::ProvinciaBaut), "Madrid");
      d.choose(demo::at("cboNotifica", D::PoblacionBaut), demo::TOWN);
      w_.user().expectMessage(BLANKS, forms::Answer::Yes);
      d.click(demo::at("cmdNotifica", D::ACEPTAR));
    });
    list.click(demo::at("cmdNotificacion", frmInfNotConf::AGREGAR));
  }

  void noticeWithoutBook() {
    const std::string before = r_.count();
    w_.user().expectForm("frmInfNotConf", [this](FormDriver& d) {
      demo::chooseFirst(d, "cboInstitucion");
      d.tab("mstNotificacion", frmInfNotConf::NOTIFICACIONES);
      typeNotice(d);
      d.click(demo::at("cmdNotificacion", frmInfNotConf::IMPRIMIR));
    });
    const Documento& notice = *documento("ImprimirPartidaSinLibro");
    w_.save(makeReport(w_.desk(), notice, 0), 1, "notificacion-sin-libro", "notificaciones");
    w_.check(r_.count() == before, "en los libros no se ha apuntado nada");
  }

  const std::vector<DemoPerson> group_{
      {"Íñigo",
       [](EntryHands& e) {
         typeCelebration(e);
         e.tab(P::TAB_CONFIRMADO);
         e.texts(
             {{P::Nombre, "Íñigo"}, {P::PrimerApellido, "Lozano"}, {P::SegundoApellido, "Muñoz"}});
         e.tab(P::TAB_PERSONALES);  // leaving the surnames brings the baptism
         e.text(P::Padrino, SPONSOR);
       },
       1},
      person({"Lucía", "Herranz", "Bravo", "14/11/2009", "Santa María la Mayor", "02/10/2009",
              "Andrés Herranz Soto", "Nuria Bravo Gil", "Sofía Bravo Gil"}),
      person({"Darío", "Ponce", "Vega", "20/06/2010", "San Juan Bautista", "11/05/2010",
              "Gonzalo Ponce Mena", "Elvira Vega Cano", "Martín Vega Cano"})};
  const std::vector<DemoPerson> requested_{
      person({"Nerea", "Cuesta", "Marín", "05/09/2010", demo::PARISH, "23/07/2010",
              "Raúl Cuesta Pardo", "Olga Marín Rey", "Irene Marín Rey"})};
  DemoWalk& w_;
  DemoRegisterWalk r_;
};

}  // namespace

void walkConfirmation(DemoWalk& walk) {
  Confirmations(walk).run();
}

}  // namespace fidaleon::app
