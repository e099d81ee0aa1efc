#include "showroom/Demo.h"

#include "core/contract/FDAPI.h"
#include "parish/NewParish.h"
#include "showroom/DemoPeople.h"
#include "showroom/DemoRegister.h"
#include "showroom/DemoScripts.h"
#include "showroom/DemoWalk.h"

namespace fidaleon::app {
namespace {

class Demo : private DemoWalk {
 public:
  using DemoWalk::DemoWalk;

  bool run() {
    bool good = true;
    try {
      prepareDirectory();
      walk();
      say("El recorrido ha terminado bien: " + std::to_string(steps()) + " pasos.");
    } catch (const std::exception& e) {
      say(std::string("FALLO: ") + e.what());
      good = false;
    }
    say("Los ficheros están en " + directory().string());
    return good;
  }

 private:
  void walk() {
    step("Se crea una parroquia nueva y vacía", [this] { newParish(); });
    step("Se piden los datos que necesitan los documentos", [this] { setUp(); });
    walkBaptism(*this);
    walkConfirmation(*this);
    walkMarriage(*this);
    walkDeath(*this);
    walkPeople(*this);
    step("Se comprueba que no queda ningún bloqueo", [this] { noLocks(); });
  }

  void newParish() {
    NewParish parish;
    parish.name = demo::PARISH;
    parish.edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
    parish.user = USER;
    parish.town = demo::TOWN;
    parish.province = demo::PROVINCE_CODE;
    parish.directory = directory();
    createParish(parish, clock().today());
    openDesk();
    check(single("SELECT Nombre FROM Institucion") == demo::PARISH,
          "la institución está dada de alta");
    check(single("SELECT COUNT(IDProvincia) AS N FROM Provincia") == "52",
          "están las 52 provincias");
  }

  void setUp() {
    user().expectForm("frmDatosSetup", [](forms::FormDriver& d) {
      for (const int name : {0, 1}) d.type(demo::at("txtDatos", name), demo::PRIEST);
      d.type("txtDatos(2)", demo::DIOCESE);
      d.type("txtDatos(3)", "Vicaría VIII");
      d.click("cmdBoton(0)");
    });
    check(desk().setUp(), "los datos están completos");
    check(single("SELECT Parroco FROM Institucion") == demo::PRIEST, "consta el párroco");
  }

  void noLocks() {
    const auto session = desk().entorno().support.create_cProcesarBloqueos();
    session->Inicializar(directory().string());
    std::vector<std::string> tables{"Institucion", "Padron",           "Actividad",
                                    "Grupo",       "Padron_Actividad", "Cargo"};
    for (const Sacramento& s : SACRAMENTOS)
      tables.insert(tables.end(), {s.tablaPartidas, s.tablaLibros});
    for (const std::string& table : tables) {
      FDAPI::DefinicionBloqueo whole;
      whole.strTabla = table;
      session->DefinirBloqueo(whole);
    }
    check(session->lngEfectuarBloqueos() == 0, "las tablas quedan libres para otros equipos");
    session->LiberarBloqueos();
  }
};

}  // namespace

bool runDemo(const std::filesystem::path& directory, std::ostream& out) {
  return Demo(std::filesystem::absolute(directory), out).run();
}

}  // namespace fidaleon::app
