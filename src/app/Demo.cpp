#include "app/Demo.h"

#include <fstream>
#include <functional>
#include <ostream>
#include <sstream>

#include "app/DemoScripts.h"
#include "app/Desk.h"
#include "app/Documents.h"
#include "app/NewParish.h"
#include "core/contract/FDAPI.h"
#include "forms/ScriptedUser.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr const char* USER = "Secretaría";
constexpr const char* LOG = "demo.log";
constexpr const char* PARISH = "San Esteban Protomártir";

/// A step did not do what it should.
struct Failed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Demo {
 public:
  Demo(const std::filesystem::path& directory, std::ostream& out)
      : directory_(directory), out_(out) {}

  bool run() {
    bool good = true;
    try {
      prepareDirectory();
      walk();
      say("El recorrido ha terminado bien: " + std::to_string(steps_) + " pasos.");
    } catch (const std::exception& e) {
      say(std::string("FALLO: ") + e.what());
      good = false;
    }
    say("Los ficheros están en " + directory_.string());
    return good;
  }

 private:
  void say(const std::string& line) {
    out_ << line << std::endl;
    if (log_.is_open()) log_ << line << std::endl;
  }

  // What an earlier walk left behind goes; anything else is not ours to remove.
  void prepareDirectory() {
    std::filesystem::create_directories(directory_);
    const ParishFiles files(directory_);
    if (files.exists() && !std::filesystem::exists(directory_ / LOG))
      throw Failed("En «" + directory_.string() + "» ya hay una parroquia; elija otra carpeta.");
    for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
      const std::string ending = entry.path().extension().string();
      if (ending == ".fidaleon" || ending == ".pdf" || ending == ".log")
        std::filesystem::remove(entry.path());
    }
    log_.open(directory_ / LOG);
    if (!log_) throw Failed("No se puede escribir en «" + directory_.string() + "».");
  }

  void walk() {
    step("Se crea una parroquia nueva y vacía", [this] { newParish(); });
    step("Se piden los datos que necesitan los documentos", [this] { setUp(); });
    step("Se abre un libro nuevo de bautismos", [this] { newBook(); });
    step("Se inscribe el primer bautismo", [this] { firstEntry(); });
    step("Se inscribe una hermana: la familia se encuentra sola", [this] { secondEntry(); });
    step("Se corrige el nombre de la madrina", [this] { correct(); });
    step("Se anula la segunda partida", [this] { annul(); });
    step("Se emite un certificado", [this] { document("certificado", 1, true); });
    step("Se emite un certificado literal", [this] { document("literal", 1, true); });
    step("Se emite un volante", [this] { document("volante", 1, false); });
    step("Se comprueba que no queda ningún bloqueo", [this] { noLocks(); });
  }

  void step(const std::string& title, const std::function<void()>& body) {
    say(std::to_string(++steps_) + ". " + title);
    body();
    const std::vector<std::string> problems = user_.problems();
    if (!problems.empty()) throw Failed(problems.front());
  }

  void check(bool condition, const std::string& what) {
    if (!condition) throw Failed(what);
    say("   comprobado: " + what);
  }

  std::string single(const std::string& sql) {
    const auto rows = desk_->parish().Execute(sql);
    return rows.EOF_() || rows.FieldCount() == 0 ? std::string() : rows.Fields(0).Value().text();
  }

  void newParish() {
    NewParish parish;
    parish.name = PARISH;
    parish.edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
    parish.user = USER;
    parish.town = demo::TOWN;
    parish.province = demo::PROVINCE_CODE;
    parish.directory = directory_;
    createParish(parish, clock_.today());
    desk_ = std::make_unique<Desk>(ParishFiles(directory_), USER, user_, settings_, clock_);
    user_.onForm = [this](forms::Form& form) {
      say("   diálogo: " + (form.caption().empty() ? form.name() : form.caption()));
    };
    check(single("SELECT Nombre FROM Institucion") == PARISH, "la institución está dada de alta");
    check(single("SELECT COUNT(IDProvincia) AS N FROM Provincia") == "52",
          "están las 52 provincias");
  }

  void setUp() {
    user_.expectForm("frmDatosSetup", demo::fillSetup);
    check(desk_->setUp(), "los datos están completos");
    check(single("SELECT Parroco FROM Institucion") == demo::PRIEST, "consta el párroco");
  }

  void newBook() {
    user_.expectForm("frmAltaLibroBautismo", demo::createBook);
    desk_->nucleo().NuevoLibro(desk_->parish(), desk_->config(), "LibrosBautismo");
    check(single("SELECT COUNT(IDLibroBautismo) AS N FROM Libro_Bautismo WHERE Nuevo=true AND "
                 "Cerrado=false") == "1",
          "hay un libro nuevo abierto");
  }

  void newEntry() {
    desk_->nucleo().NuevaPartida(desk_->parish(), desk_->config(), "PartidasBautismo");
  }

  void firstEntry() {
    user_.expectForm("frmPartidaBautismo", demo::enterFirstChild);
    user_.expectMessage("¿Desea dar de alta nuevas partidas?", forms::Answer::No);
    newEntry();
    check(position(1) == "1/1", "la partida está en el folio 1, número 1");
    check(single("SELECT Nombre FROM Bautismo_Hijo WHERE CodBautismo=1") == demo::FIRST_CHILD,
          "el niño inscrito es " + std::string(demo::FIRST_CHILD));
    check(single("SELECT FechaBautismo FROM Bautismo WHERE IDBautismo=1") == "20210530",
          "la fecha de bautismo está guardada");
  }

  void secondEntry() {
    user_.expectForm("frmPartidaBautismo", demo::enterSecondChild);
    user_.expectForm("frmBuscaPadres", demo::chooseFamily);
    user_.expectMessage(
        "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?",
        forms::Answer::Yes);
    user_.expectMessage("¿Desea dar de alta nuevas partidas?", forms::Answer::No);
    newEntry();
    check(position(2) == "2/2", "la partida está en el folio 2, número 2");
    const std::string father =
        "SELECT Bautismo_Padres.Abuelo FROM Bautismo_Padres, Bautismo WHERE "
        "IDPadres=CodPadres AND IDBautismo=";
    check(!single(father + "2").empty() && single(father + "1") == single(father + "2"),
          "los padres y los abuelos son los de su hermano");
    check(single("SELECT NotasMarginales FROM Bautismo WHERE IDBautismo=2") == "---",
          "lo que quedó vacío lleva guiones");
  }

  void correct() {
    user_.expectForm("frmPartidaBautismo", demo::correctGodmother);
    desk_->nucleo().PropiedadesPartida(desk_->parish(), 1, desk_->config(), "PartidasBautismo");
    check(single("SELECT Madrina FROM Bautismo WHERE IDBautismo=1") == demo::GODMOTHER,
          "la madrina corregida es " + std::string(demo::GODMOTHER));
    check(position(1) == "1/1", "la partida sigue en su folio y su número");
  }

  void annul() {
    desk_->nucleo().AnularPartidas(desk_->parish(), 2, desk_->config(), "PartidasBautismo");
    check(single("SELECT COUNT(IDBautismo) AS N FROM Bautismo WHERE Anulada=true") == "1",
          "una partida está anulada");
    check(position(2) == "2/2", "la partida anulada conserva su folio y su número");
  }

  std::string position(int id) {
    const auto rows = desk_->parish().Execute(
        "SELECT Folio, Numero FROM Bautismo WHERE IDBautismo=" + std::to_string(id));
    return rows.EOF_() ? std::string() : rows.text("Folio") + "/" + rows.text("Numero");
  }

  void document(const std::string& command, std::int32_t id, bool isSigned) {
    if (isSigned) user_.expectForm("frmEncargado", demo::chooseKeeper);
    const Document* d = findDocument(command, desk_->entorno().installation.Aplicacion);
    const std::optional<paper::Report> report = makeReport(*desk_, *d, id);
    check(report && report->rowCount() == 1, "el documento tiene una fila");
    const auto row = desk_->reports().Execute("SELECT * FROM Documentos_Bautismo");
    check(row.text("NombreHijo") == demo::FIRST_CHILD, "el documento es del niño inscrito");
    if (isSigned)
      check(row.text("InstitucionEncargado") == demo::PRIEST, "lo firma el encargado elegido");
    const std::filesystem::path pdf = directory_ / (command + ".pdf");
    report->savePdf(pdf);
    check(std::filesystem::file_size(pdf) > 1000, "guardado como " + pdf.filename().string());
  }

  void noLocks() {
    const auto session = desk_->entorno().support.create_cProcesarBloqueos();
    session->Inicializar(directory_.string());
    for (const char* table : {"Bautismo", "Libro_Bautismo", "Institucion"}) {
      FDAPI::DefinicionBloqueo whole;
      whole.strTabla = table;
      session->DefinirBloqueo(whole);
    }
    check(session->lngEfectuarBloqueos() == 0, "las tablas quedan libres para otros equipos");
    session->LiberarBloqueos();
  }

  std::filesystem::path directory_;
  std::ostream& out_;
  std::ofstream log_;
  int steps_ = 0;
  forms::ScriptedUser user_;
  support::MemorySettings settings_;
  support::SystemClock clock_;
  std::unique_ptr<Desk> desk_;
};

}  // namespace

bool runDemo(const std::filesystem::path& directory, std::ostream& out) {
  return Demo(std::filesystem::absolute(directory), out).run();
}

}  // namespace fidaleon::app
