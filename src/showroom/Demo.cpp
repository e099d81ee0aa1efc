#include "showroom/Demo.h"

#include "core/contract/CcNodos.h"
#include "core/contract/FDAPI.h"
#include "parish/NewParish.h"
#include "printing/DocumentReport.h"
#include "showroom/DemoPeople.h"
#include "showroom/DemoScripts.h"
#include "showroom/DemoWalk.h"

namespace fidaleon::app {
namespace {

constexpr const char* PARISH = "San Esteban Protomártir";
constexpr const char* EMPTY_FIELDS =
    "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?";
constexpr const char* FURTHER_ENTRIES = "¿Desea dar de alta nuevas partidas?";
constexpr const char* FURTHER_REQUESTS = "¿Desea dar de alta nuevas solicitudes?";
constexpr const char* LOSE_CHANGES =
    "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y perder así "
    "todos los cambios realizados?";

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
    step("Se abre un libro nuevo de bautismos", [this] { newBook(); });
    step("Se inscribe el primer bautismo", [this] { firstEntry(); });
    step("Se inscribe una hermana: la familia se encuentra sola", [this] { secondEntry(); });
    step("Se corrige el nombre de la madrina", [this] { correct(); });
    step("Se anula la segunda partida", [this] { annul(); });
    step("Se emite un certificado", [this] { document("certificado", 1, true); });
    step("Se emite un certificado literal", [this] { document("literal", 1, true); });
    step("Se emite un volante", [this] { document("volante", 1, false); });
    step("Se abre el libro, se trabaja en sus partidas y se cancela", [this] { workInVain(); });
    step("Se abre el libro otra vez y se acepta", [this] { workOnBook(); });
    step("Se recogen tres solicitudes", [this] { requests(); });
    step("Se pasan las solicitudes al libro", [this] { moveRequests(); });
    step("Se imprime el libro entero", [this] { printBook("libro"); });
    step("Se imprime su índice", [this] { printBook("indice"); });
    step("Se imprime el duplicado del año para la diócesis", [this] { duplicate(); });
    walkPeople(*this);
    step("Se comprueba que no queda ningún bloqueo", [this] { noLocks(); });
  }

  void newParish() {
    NewParish parish;
    parish.name = PARISH;
    parish.edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
    parish.user = USER;
    parish.town = demo::TOWN;
    parish.province = demo::PROVINCE_CODE;
    parish.directory = directory();
    createParish(parish, clock().today());
    openDesk();
    check(single("SELECT Nombre FROM Institucion") == PARISH, "la institución está dada de alta");
    check(single("SELECT COUNT(IDProvincia) AS N FROM Provincia") == "52",
          "están las 52 provincias");
  }

  void setUp() {
    user().expectForm("frmDatosSetup", demo::fillSetup);
    check(desk().setUp(), "los datos están completos");
    check(single("SELECT Parroco FROM Institucion") == demo::PRIEST, "consta el párroco");
  }

  void newBook() {
    user().expectForm("frmAltaLibroBautismo", demo::createBook);
    desk().nucleo().NuevoLibro(desk().parish(), desk().config(), "LibrosBautismo");
    check(single("SELECT COUNT(IDLibroBautismo) AS N FROM Libro_Bautismo WHERE Nuevo=true AND "
                 "Cerrado=false") == "1",
          "hay un libro nuevo abierto");
  }

  void newEntry() {
    desk().nucleo().NuevaPartida(desk().parish(), desk().config(), "PartidasBautismo");
  }

  void firstEntry() {
    user().expectForm("frmPartidaBautismo", demo::enterFirstChild);
    user().expectMessage(FURTHER_ENTRIES, forms::Answer::No);
    newEntry();
    check(position(1) == "1/1", "la partida está en el folio 1, número 1");
    check(single("SELECT Nombre FROM Bautismo_Hijo WHERE CodBautismo=1") == demo::FIRST_CHILD,
          "el niño inscrito es " + std::string(demo::FIRST_CHILD));
    check(single("SELECT FechaBautismo FROM Bautismo WHERE IDBautismo=1") == "20210530",
          "la fecha de bautismo está guardada");
  }

  void secondEntry() {
    user().expectForm("frmPartidaBautismo", demo::enterSecondChild);
    user().expectForm("frmBuscaPadres", demo::chooseFamily);
    user().expectMessage(EMPTY_FIELDS, forms::Answer::Yes);
    user().expectMessage(FURTHER_ENTRIES, forms::Answer::No);
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
    user().expectForm("frmPartidaBautismo", demo::correctGodmother);
    desk().nucleo().PropiedadesPartida(desk().parish(), 1, desk().config(), "PartidasBautismo");
    check(single("SELECT Madrina FROM Bautismo WHERE IDBautismo=1") == demo::GODMOTHER,
          "la madrina corregida es " + std::string(demo::GODMOTHER));
    check(position(1) == "1/1", "la partida sigue en su folio y su número");
  }

  void annul() {
    desk().nucleo().AnularPartidas(desk().parish(), 2, desk().config(), "PartidasBautismo");
    check(single("SELECT COUNT(IDBautismo) AS N FROM Bautismo WHERE Anulada=true") == "1",
          "una partida está anulada");
    check(position(2) == "2/2", "la partida anulada conserva su folio y su número");
  }

  std::string position(int id) {
    const auto rows = desk().parish().Execute(
        "SELECT Folio, Numero FROM Bautismo WHERE IDBautismo=" + std::to_string(id));
    return rows.EOF_() ? std::string() : rows.text("Folio") + "/" + rows.text("Numero");
  }

  void document(const std::string& command, std::int32_t id, bool isSigned) {
    if (isSigned) user().expectForm("frmEncargado", demo::chooseKeeper);
    const Documento* d = documento(BAUTISMO, command, desk().entorno().installation.Aplicacion);
    const std::optional<paper::Report> report = makeReport(desk(), *d, id);
    check(report && report->rowCount() == 1, "el documento tiene una fila");
    const auto row = desk().reports().Execute("SELECT * FROM Documentos_Bautismo");
    check(row.text("NombreHijo") == demo::FIRST_CHILD, "el documento es del niño inscrito");
    if (isSigned)
      check(row.text("InstitucionEncargado") == demo::PRIEST, "lo firma el encargado elegido");
    const std::filesystem::path pdf = directory() / (command + ".pdf");
    report->savePdf(pdf);
    check(std::filesystem::file_size(pdf) > 1000, "guardado como " + pdf.filename().string());
  }

  /// Opens the book, adds two entries, takes the second out again, and ends as `end` does.
  void openBook(const std::function<void(forms::FormDriver&)>& end) {
    const auto add = [this](forms::FormDriver& book, const demo::Child& child) {
      user().expectForm("frmPartidaBautismo", [this, child](forms::FormDriver& entry) {
        user().expectMessage(EMPTY_FIELDS, forms::Answer::Yes);
        user().expectMessage(FURTHER_ENTRIES, forms::Answer::No);
        demo::enterListed(entry, child);
      });
      demo::addEntry(book);
    };
    user().expectForm("frmPropiedadesLibroBautismo", [add, end](forms::FormDriver& book) {
      demo::showEntries(book);
      add(book, demo::LISTED_CHILD);
      add(book, demo::REMOVED_CHILD);
      demo::removeLastEntry(book);
      end(book);
    });
    desk().nucleo().PropiedadesLibro(desk().parish(), 1, desk().config(), "LibrosBautismo");
  }

  void workInVain() {
    const std::string before = everything();
    openBook([this](forms::FormDriver& book) {
      user().expectMessage(LOSE_CHANGES, forms::Answer::Yes);
      book.click("cmdBoton(1)");
    });
    check(everything() == before, "cancelado: nada ha cambiado en la parroquia");
  }

  void workOnBook() {
    openBook([](forms::FormDriver& book) { book.click("cmdBoton(0)"); });
    check(position(idOf(demo::LISTED_CHILD)) == "3/3", "aceptado: la partida está en el 3/3");
    check(idOf(demo::REMOVED_CHILD) == 0, "la partida eliminada no está en ninguna parte");
    check(single("SELECT COUNT(IDBautismo) AS N FROM Bautismo") == "3", "hay tres partidas");
  }

  void requests() {
    for (const demo::Child& child : demo::REQUESTED_CHILDREN) {
      user().expectForm("frmPartidaBautismo",
                        [child](forms::FormDriver& d) { demo::enterRequest(d, child); });
      user().expectMessage(FURTHER_REQUESTS, forms::Answer::No);
      desk().nucleo().NuevaSolicitud(desk().parish(), desk().config(), "SolicitudesBautismo");
      check(position(idOf(child)) == "0/---",
            std::string("la solicitud de ") + child.name + " no está en ningún libro");
    }
  }

  void moveRequests() {
    user().expectForm("frmSolicitudes", demo::moveAllRequests);
    desk().nucleo().ImportarSolicitudes(desk().parish(), desk().config(), "SolicitudesBautismo");
    int place = 3;
    for (const demo::Child& child : demo::REQUESTED_CHILDREN) {
      const std::string next = std::to_string(++place);
      check(position(idOf(child)) == next + "/" + next,
            std::string("la partida de ") + child.name + " está en el folio " + next);
    }
    check(single("SELECT COUNT(IDBautismo) AS N FROM Bautismo WHERE CodLibro=0") == "0",
          "no quedan solicitudes");
  }

  void printBook(const std::string& command) {
    const Documento* d = documento(BAUTISMO, command, desk().entorno().installation.Aplicacion);
    save(makeReport(desk(), *d, 1), 6, command, "partidas");
  }

  void duplicate() {
    user().expectForm("frmInfDuplicadas", demo::chooseDuplicate);
    const auto report = makeReport(desk(), *documento("ImprimirDuplicadasBautismo"), 0);
    const auto rows = desk().reports().Execute("SELECT * FROM Documentos_Bautismo");
    check(rows.text("NombreHijo") == "Candela", "las partidas van por apellidos");
    save(report, 2, "duplicado", "partidas");
  }

  int idOf(const demo::Child& child) {
    const std::string id = single("SELECT CodBautismo FROM Bautismo_Hijo WHERE Nombre=\"" +
                                  std::string(child.name) + "\"");
    return id.empty() ? 0 : std::stoi(id);
  }

  /// All that the registers of the parish hold.
  std::string everything() {
    std::string all;
    for (const char* table : {"Bautismo", "Bautismo_Hijo", "Bautismo_Padres", "Bautismo_Madres",
                              "Bautismo_Matrimonio", "Libro_Bautismo"})
      for (auto set = desk().parish().Execute("SELECT * FROM " + std::string(table)); !set.EOF_();
           set.MoveNext()) {
        for (int f = 0; f < static_cast<int>(set.FieldCount()); ++f)
          all += set.Fields(f).Value().text() + "|";
        all += "\n";
      }
    return all;
  }

  void noLocks() {
    const auto session = desk().entorno().support.create_cProcesarBloqueos();
    session->Inicializar(directory().string());
    for (const char* table : {"Bautismo", "Libro_Bautismo", "Institucion", "Padron", "Actividad",
                              "Grupo", "Padron_Actividad", "Cargo"}) {
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
