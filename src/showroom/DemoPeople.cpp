#include "showroom/DemoPeople.h"

#include "census/activities/frmActividad.h"
#include "census/activities/frmActividadGrupos.h"
#include "census/activities/frmCargo.h"
#include "census/collaborators/frmColaborador.h"
#include "census/collaborators/frmColaboradorActividad.h"
#include "census/persons/frmPadron.h"
#include "census/search/frmPadronBusqueda.h"
#include "documents/frmInfActividad.h"
#include "printing/DocumentReport.h"
#include "showroom/DemoWalk.h"
#include "support/frmTarea.h"

namespace fidaleon::app {
namespace {

using forms::FormDriver;

constexpr const char* NAME = "Leonor";
constexpr const char* FIRST = "Ibáñez";
constexpr const char* SECOND = "de la Fuente";
constexpr const char* WHOLE_NAME = "Leonor Ibáñez de la Fuente";
constexpr const char* PHONE = "600000021";
constexpr const char* INSTITUTION = "San Esteban Protomártir";
constexpr const char* ACTIVITY = "Catequesis";
constexpr const char* GROUPS[] = {"Comunión", "Confirmación"};
constexpr const char* OFFICES[] = {"Responsable", "Catequista"};

std::string at(const char* name, int index) {
  return std::string(name) + "(" + std::to_string(index) + ")";
}

class People {
 public:
  explicit People(DemoWalk& walk) : w_(walk) {}

  void run() {
    w_.step("Se da de alta a una persona en el padrón", [this] { person(); });
    w_.step("Se escribe otra vez su nombre: se encuentra, se abre y se completa",
            [this] { personAgain(); });
    w_.step("Se crean dos cargos", [this] { offices(); });
    w_.step("Se da de alta a esa persona como colaboradora", [this] { makeCollaborator(); });
    w_.step("Se crea una actividad con dos grupos", [this] { activity(); });
    w_.step("Se da de alta a un colaborador en los dos grupos", [this] { collaborator(); });
    w_.step("Se apunta una tarea en la agenda", [this] { task(); });
    w_.step("Se imprime el informe de actividades", [this] { report("informe_actividades", 2); });
    w_.step("Se imprime el de colaboradores", [this] { report("informe_colaboradores", 3); });
    w_.step("Se imprime el extendido", [this] { report("informe_colaboradores_ext", 3); });
    w_.step("Se imprime la agenda del año", [this] { report("informe_agenda", 1); });
    w_.step("Se elige qué grupo se imprime", [this] { chosenGroup(); });
    w_.step("Se quita un cargo y con él sus puestos, pero a nadie", [this] { removeOffice(); });
  }

 private:
  using P = frmPadron;

  cNucleo& nucleo() { return w_.desk().nucleo(); }
  store::Connection& parish() { return w_.desk().parish(); }
  const FDAPI::cConfig& config() { return w_.desk().config(); }

  static void name(FormDriver& d) {
    d.type(at("txtPadron", P::Nombre), NAME);
    d.type(at("txtPadron", P::PrimerApellido), FIRST);
    d.type(at("txtPadron", P::SegundoApellido), SECOND);
  }

  static void fillPerson(FormDriver& d) {
    d.choose(at("cboPadron", P::Institucion), INSTITUTION);
    name(d);
    d.type(at("txtPadron", P::NIF), "87654");
    d.type(at("txtPadron", P::LetraNIF), "r");
    d.type(at("txtPadron", P::Direccion), "C/ del Castillo, 4");
    d.choose(at("cboPadron", P::Sexo), "Mujer");
    d.type(at("txtPadron", P::CorreoElectronico), "Leonor@Ejemplo.ES");
    d.tab("mstPadron", P::TAB_NACIMIENTO);
    d.type(at("adtpPadron", P::FechaNacimiento), "09/04/1961");
    d.tab("mstPadron", P::TAB_DEFUNCION);
    d.type(at("txtPadron", P::ImporteNicho), "601,5");
  }

  void person() {
    w_.user().expectForm("frmPadron", [](FormDriver& d) {
      fillPerson(d);
      d.click(at("cmdPadron", P::ACEPTAR));
    });
    nucleo().NuevoEmpadronado(parish(), config());
    w_.check(w_.single("SELECT DNI FROM Padron WHERE IDPadron=1") == "00087654-R",
             "el NIF se ha completado y su letra es buena");
    w_.check(w_.single("SELECT CorreoElectronico FROM Padron") == "leonor@ejemplo.es",
             "el correo está en minúsculas");
    w_.check(w_.single("SELECT ImporteEur FROM Padron_Defuncion") == "601,50" &&
                 w_.single("SELECT Importe FROM Padron_Defuncion") == "100.081",
             "el importe está en euros y en pesetas");
    w_.check(w_.count("Padron_TipoPersona WHERE CodTipoPersona=2") == "1", "está empadronada");
  }

  void personAgain() {
    w_.user().expectForm("frmPadron", [this](FormDriver& d) {
      w_.user().expectForm("frmPadronBusqueda", [](FormDriver& list) {
        list.row("msgBusquedaPadron", 1);
        list.click(at("cmdBotones", frmPadronBusqueda::SELECCIONAR));
      });
      w_.user().expectForm("frmPadron", [](FormDriver& found) {
        found.type(at("txtPadron", P::Telefono), PHONE);
        found.click(at("cmdPadron", P::ACEPTAR));
      });
      d.choose(at("cboPadron", P::Institucion), INSTITUTION);
      name(d);
      d.focus(at("txtPadron", P::Direccion));
    });
    nucleo().NuevoEmpadronado(parish(), config());
    w_.check(w_.count("Padron") == "1", "sigue habiendo una sola persona");
    w_.check(w_.single("SELECT Telefono FROM Padron") == PHONE, "su teléfono está guardado");
  }

  void offices() {
    for (const char* office : OFFICES) {
      w_.user().expectForm("frmCargo", [office](FormDriver& d) {
        d.type(at("txtCargo", frmCargo::NOMBRE), office);
        d.click(at("cmdCargo", frmCargo::ACEPTAR));
      });
      nucleo().NuevoCargo(parish(), config());
    }
    w_.check(w_.count("Cargo") == "2", "hay dos cargos");
  }

  void makeCollaborator() {
    w_.user().expectForm("frmColaborador", [](FormDriver& d) {
      d.tab("mstColaborador", frmColaborador::TAB_NACIMIENTO);
      d.type(at("txtColaborador", frmColaborador::Cumpleaños), "0904");
      d.type(at("txtColaborador", frmColaborador::AñoNacimiento), "1961");
      d.click(at("cmdColaborador", frmColaborador::ACEPTAR));
    });
    nucleo().EditaColaborador(parish(), 1, config());
    w_.check(w_.count("Padron_TipoPersona WHERE CodPadron=1") == "2",
             "es empadronada y colaboradora");
    w_.check(w_.single("SELECT Cumpleaños FROM Padron") == "09/04", "su cumpleaños es el 09/04");
  }

  void fillGroup(FormDriver& d, const char* group, bool withMember) {
    using G = frmActividadGrupos;
    d.type(at("txtGrupo", G::NOMBRE), group);
    d.type(at("txtGrupo", G::DIA), "Sábado");
    d.type(at("txtGrupo", G::HORA), "17:00");
    d.type(at("txtGrupo", G::SALA), "Sala 1");
    if (withMember) {
      d.tab("mstGrupo", G::TAB_COLABORADORES);
      w_.user().expectForm("frmCargo", [](FormDriver& office) {
        office.choose("cboCargo", OFFICES[0]);
        office.click(at("cmdCargo", frmCargo::ACEPTAR));
      });
      d.click(at("cmdMover", ListaDoble::ELEGIR_TODAS));
    }
    d.click(at("cmdGrupo", G::ACEPTAR));
  }

  void activity() {
    using A = frmActividad;
    w_.user().expectForm("frmActividad", [this](FormDriver& d) {
      d.type(at("txtActividad", A::NOMBRE), ACTIVITY);
      d.type(at("txtActividad", A::DESCRIPCION), "De la primera comunión a la confirmación.");
      d.choose("cboInstitucion", INSTITUTION);
      d.tab("mstActividad", A::TAB_GRUPOS);
      for (const char* group : GROUPS) {
        w_.user().expectForm("frmActividadGrupos", [this, group](FormDriver& g) {
          fillGroup(g, group, group == GROUPS[0]);
        });
        d.click(at("cmdActividad", A::AGREGAR));
      }
      d.click(at("cmdActividad", A::ACEPTAR));
    });
    nucleo().NuevaActividad(parish(), config());
    w_.check(w_.count("Grupo, Actividad WHERE CodActividad=IDActividad") == "2",
             "la actividad tiene dos grupos");
    w_.check(w_.count("Padron_Actividad") == "1", std::string(WHOLE_NAME) + " está en uno");
  }

  void addMembership(FormDriver& d, const char* group) {
    using A = frmColaboradorActividad;
    w_.user().expectForm("frmColaboradorActividad", [group](FormDriver& m) {
      m.choose(at("cboColaboraAct", A::ACTIVIDAD), ACTIVITY);
      m.choose(at("cboColaboraAct", A::GRUPO), group);
      m.choose(at("cboColaboraAct", A::CARGO), OFFICES[1]);
      m.click(at("cmdColaboraAct", A::ACEPTAR));
    });
    d.click(at("cmdActividad", frmColaborador::AGREGAR));
  }

  void collaborator() {
    using C = frmColaborador;
    w_.user().expectForm("frmColaborador", [this](FormDriver& d) {
      d.type(at("txtColaborador", C::Nombre), "Íñigo");
      d.type(at("txtColaborador", C::PrimerApellido), "Núñez");
      d.type(at("txtColaborador", C::SegundoApellido), "Rey");
      d.type(at("txtColaborador", C::Telefono), "600000022");
      d.tab("mstColaborador", C::TAB_ACTIVIDADES);
      for (const char* group : GROUPS) addMembership(d, group);
      d.click(at("cmdColaborador", C::ACEPTAR));
    });
    nucleo().NuevoColaborador(parish(), config());
    w_.check(w_.count("Padron_Actividad WHERE CodPadron=2") == "2", "está en los dos grupos");
    w_.check(w_.count("Padron_TipoPersona WHERE CodPadron=2 AND CodTipoPersona=3") == "1",
             "es colaborador");
    for (const char* satellite :
         {"Nacimiento", "Bautismo", "Comunion", "Confirmacion", "Matrimonio", "Defuncion"})
      if (w_.count("Padron_" + std::string(satellite) + " WHERE CodPadron=2") != "1")
        w_.check(false, std::string("tiene su fila de ") + satellite);
  }

  void task() {
    support::frmTarea dialog(w_.user(), w_.desk().entorno().settings, w_.clock(), parish(),
                             config());
    const std::string day = text::toShort(w_.clock().today());
    w_.user().expectForm("frmTarea", [day](FormDriver& d) {
      d.type("txtFecha", day);
      d.type("txtHoraInicio", "9:30");
      d.type("txtHoraFin", "1030");
      d.type("txtNombre", "Reunión de catequistas");
      d.click("cmdBoton(0)");
    });
    dialog.Show();
    w_.check(w_.single("SELECT HoraInicio FROM Tareas") == "0930", "la tarea empieza a las 9:30");
  }

  void report(const std::string& templateName, std::size_t rows) {
    for (const ListReport& r : listReports())
      if (r.templateName == templateName)
        w_.save(makeListReport(w_.desk(), r, Extent::Entire), rows, templateName, "filas");
  }

  void chosenGroup() {
    w_.user().expectForm("frmInfActividad", [](FormDriver& d) {
      d.choose("cboInstitucion", INSTITUTION);
      d.choose("cboActividad", ACTIVITY);
      d.choose(at("lstListas", frmInfActividad::DISPONIBLES), GROUPS[1]);
      d.click(at("cmdMover", ListaDoble::ELEGIR));
      d.click(at("cmdBoton", frmInfActividad::ACEPTAR));
    });
    for (const ListReport& r : listReports())
      if (r.templateName == "informe_colaboradores")
        w_.save(makeListReport(w_.desk(), r, Extent::Chosen), 1, "grupo-elegido", "filas");
  }

  void removeOffice() {
    w_.user().expectMessage(
        "ADVERTENCIA:\nSe propone eliminar un Cargo. Si lo hace, perderá todos los  \ndatos que "
        "este tenga relacionados.\n\n¿Está seguro de querer eliminar el Cargo junto con todos sus "
        "\ndatos relacionados?",
        forms::Answer::Yes);
    nucleo().EliminaCargo(parish(), 1, config());
    w_.check(w_.count("Cargo") == "1" && w_.count("Padron_Actividad") == "2",
             "queda un cargo y quedan sus dos puestos");
    w_.check(w_.count("Padron") == "2" && w_.count("Grupo") == "2",
             "las personas y los grupos siguen");
  }

  DemoWalk& w_;
};

}  // namespace

void walkPeople(DemoWalk& walk) {
  People(walk).run();
}

}  // namespace fidaleon::app
