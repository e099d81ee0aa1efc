#include "showroom/DemoRegister.h"

#include "core/statements/Citas.h"
#include "core/statements/Sentencia.h"
#include "printing/DocumentReport.h"
#include "registers/common/FormaPartida.h"
#include "registers/requests/OrigenSolicitudes.h"
#include "text/Utf8.h"

namespace fidaleon::app {

using demo::EntryHands;
using forms::Answer;
using forms::FormDriver;

namespace {

constexpr const char* FURTHER_ENTRIES = "¿Desea dar de alta nuevas partidas?";
constexpr const char* FURTHER_REQUESTS = "¿Desea dar de alta nuevas solicitudes?";
constexpr const char* NOWHERE = "0/---";  // the position of a request
constexpr const char* LOSE_CHANGES =
    "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y perder así "
    "todos los cambios realizados?";

}  // namespace

void DemoRegisterWalk::newBook() {
  w_.user().expectForm(node("frmAltaLibro"), demo::createBook);
  nucleo().NuevoLibro(parish(), config(), node("Libros"));
  w_.check(w_.count(sentencia(r_.sacrament, "{Libros} WHERE Nuevo=true AND Cerrado=false")) == "1",
           "hay un libro nuevo abierto");
}

void DemoRegisterWalk::oldBook(const std::string& name, const std::string& begun) {
  w_.user().expectForm(node("frmAltaLibro"),
                       [&](FormDriver& d) { demo::createOldBook(d, name, begun); });
  nucleo().NuevoLibro(parish(), config(), node("Libros"));
  w_.check(
      w_.single(sentencia(r_.sacrament, "SELECT Nombre FROM {Libros} WHERE Nuevo=false")) == name,
      "está el libro antiguo «" + name + "»");
}

void DemoRegisterWalk::accept(FormDriver& d, const DemoPerson& person, const char* further,
                              Answer answer) {
  for (int i = 0; i < person.found; ++i)
    w_.user().expectForm("frmBuscaPadres", [this](FormDriver& list) {
      list.row(r_.found, 1);
      list.click("cmdBoton(0)");
    });
  if (!person.unasked) w_.user().expectMessage(r_.blanks, Answer::Yes);
  w_.user().expectMessage(further, answer);
  EntryHands entry(d, r_.sacrament);
  person.type(entry);
  entry.accept();
}

void DemoRegisterWalk::typeOne(const DemoPerson& person, const char* further) {
  w_.user().expectForm(form(), [this, &person, further](FormDriver& d) {
    EntryHands entry(d, r_.sacrament);
    entry.chooseFirst(r_.institution);
    if (further == FURTHER_ENTRIES) entry.chooseFirst(r_.book);
    accept(d, person, further, Answer::No);
  });
}

void DemoRegisterWalk::typeSeries(const std::vector<DemoPerson>& people) {
  w_.user().expectForm(form(), [this, &people](FormDriver& d) {
    EntryHands entry(d, r_.sacrament);
    entry.chooseFirst(r_.institution);
    entry.chooseFirst(r_.book);
    for (const DemoPerson& p : people)
      accept(d, p, FURTHER_ENTRIES, &p == &people.back() ? Answer::No : Answer::Yes);
  });
}

void DemoRegisterWalk::newEntries(const std::vector<DemoPerson>& people, int place) {
  typeSeries(people);
  nucleo().NuevaPartida(parish(), config(), node("Partidas"));
  checkPlaces(people, place);
}

void DemoRegisterWalk::oldEntries(const std::vector<DemoPerson>& people) {
  typeSeries(people);
  nucleo().AntiguaPartida(parish(), config(), node("Partidas"));
  checkPlaces(people, 1, static_cast<int>(people.size()));
}

void DemoRegisterWalk::checkPlaces(const std::vector<DemoPerson>& people, int place, int perFolio) {
  for (const DemoPerson& p : people) {
    const std::string folio = std::to_string(1 + (place - 1) / perFolio);
    const std::string number = std::to_string(place++);
    w_.check(position(idOf(p)) == folio + "/" + number, std::string("la partida de ") + p.name +
                                                            " está en el folio " + folio +
                                                            ", con el número " + number);
  }
}

void DemoRegisterWalk::correct(const DemoPerson& person) {
  const std::int32_t id = idOf(person);
  const std::string before = position(id);
  w_.user().expectForm(form(), [this, &person](FormDriver& d) {
    if (!person.unasked) w_.user().expectMessage(r_.blanks, Answer::Yes);
    EntryHands entry(d, r_.sacrament);
    person.type(entry);
    entry.accept();
  });
  if (before == NOWHERE)
    nucleo().PropiedadesSolicitudes(parish(), id, config(), node("Solicitudes"));
  else
    nucleo().PropiedadesPartida(parish(), id, config(), node("Partidas"));
  w_.check(position(id) == before, before == NOWHERE ? "sigue fuera de los libros"
                                                     : "la partida sigue en su folio y su número");
}

void DemoRegisterWalk::annul(const DemoPerson& person) {
  const std::int32_t id = idOf(person);
  const std::string before = position(id);
  nucleo().AnularPartidas(parish(), id, config(), node("Partidas"));
  w_.check(count("Anulada=true") == "1", "una partida está anulada");
  w_.check(position(id) == before, "la partida anulada conserva su folio y su número");
}

void DemoRegisterWalk::openBook(const std::vector<DemoPerson>& people, const Hands& end) {
  w_.user().expectForm(node("frmPropiedadesLibro"), [this, &people, &end](FormDriver& book) {
    demo::showEntries(book);
    for (const DemoPerson& p : people) {
      w_.user().expectForm(
          form(), [this, &p](FormDriver& d) { accept(d, p, FURTHER_ENTRIES, Answer::No); });
      demo::addEntry(book);
    }
    demo::removeLastEntry(book);
    end(book);
  });
  nucleo().PropiedadesLibro(parish(), 1, config(), node("Libros"));
}

void DemoRegisterWalk::workInVain(const std::vector<DemoPerson>& people) {
  const std::string before = everything();
  openBook(people, [this](FormDriver& book) {
    w_.user().expectMessage(LOSE_CHANGES, Answer::Yes);
    book.click("cmdBoton(1)");
  });
  w_.check(everything() == before, "cancelado: nada ha cambiado en la parroquia");
}

void DemoRegisterWalk::workOnBook(const std::vector<DemoPerson>& people, int place) {
  openBook(people, [](FormDriver& book) { book.click("cmdBoton(0)"); });
  checkPlaces({people.begin(), people.end() - 1}, place);
  w_.check(idOf(people.back()) == 0, "la partida eliminada no está en ninguna parte");
}

void DemoRegisterWalk::requests(const std::vector<DemoPerson>& people) {
  for (const DemoPerson& p : people) {
    typeOne(p, FURTHER_REQUESTS);
    nucleo().NuevaSolicitud(parish(), config(), node("Solicitudes"));
    w_.check(position(idOf(p)) == NOWHERE,
             std::string("la solicitud de ") + p.name + " no está en ningún libro");
  }
}

void DemoRegisterWalk::moveRequests(const std::vector<DemoPerson>& people, int place) {
  w_.user().expectForm("frmSolicitudes", demo::moveAllRequests);
  std::string told = people.size() == 1 ? "Ya está en el libro:\n" : "Ya están en el libro:\n";
  const auto* between = origenSolicitudes(&r_.sacrament)->entrePersonas;
  for (int at = place; const DemoPerson& p : people) {
    const std::string number = std::to_string(at++);
    told += "\n" + nombrePartida(parish(), r_.sacrament, idOf(p), between) + ": folio " + number +
            ", número " + number;
  }
  w_.user().expectMessage(told);
  nucleo().ImportarSolicitudes(parish(), config(), node("Solicitudes"));
  checkPlaces(people, place);
  w_.check(count("CodLibro=0") == "0", "no quedan solicitudes");
}

const Documento& DemoRegisterWalk::documentOf(const std::string& command) {
  return *documento(r_.sacrament, command, w_.desk().entorno().installation.Aplicacion);
}

std::string DemoRegisterWalk::fileOf(const std::string& command) const {
  return command + "-" + text::lower(r_.sacrament.palabra);
}

void DemoRegisterWalk::document(const std::string& command, const DemoPerson& person, bool keeper,
                                const std::vector<std::pair<const char*, Hands>>& further) {
  if (keeper) w_.user().expectForm("frmEncargado", demo::chooseKeeper);
  for (const auto& [asked, hands] : further) w_.user().expectForm(asked, hands);
  const Documento& d = documentOf(command);
  const auto report = makeReport(w_.desk(), d, idOf(person));
  const PersonaDocumento& printed = filasDocumento(r_.sacrament)->persona;
  const auto row = w_.desk().reports().Execute(std::string("SELECT * FROM ") + printed.tabla);
  w_.check(row.text(printed.nombre) == person.name,
           std::string("el documento es de ") + person.name);
  if (d.firmado())
    w_.check(row.text("InstitucionEncargado") == demo::PRIEST, "lo firma el encargado elegido");
  w_.save(report, 1, fileOf(command), "partidas");
}

void DemoRegisterWalk::printBook(const std::string& command, std::size_t rows) {
  w_.save(makeReport(w_.desk(), documentOf(command), 1), rows, fileOf(command), "partidas");
}

void DemoRegisterWalk::duplicate(const std::string& year, std::size_t rows,
                                 const std::string& first) {
  w_.user().expectForm("frmInfDuplicadas",
                       [&](FormDriver& d) { demo::chooseDuplicate(d, year, r_.bySurnames); });
  const auto report = makeReport(w_.desk(), documentOf("duplicadas"), 0);
  const PersonaDocumento& printed = filasDocumento(r_.sacrament)->persona;
  const auto leading = w_.desk().reports().Execute(std::string("SELECT * FROM ") + printed.tabla);
  w_.check(leading.text(printed.nombre) == first, "las partidas van por apellidos");
  w_.save(report, rows, fileOf("duplicado"), "partidas");
}

std::int32_t DemoRegisterWalk::idOf(const DemoPerson& person) {
  const std::string id = w_.single(r_.byName + entreComillas(person.name));
  return id.empty() ? 0 : std::stoi(id);
}

std::string DemoRegisterWalk::position(std::int32_t id) {
  const auto rows = parish().Execute(
      sentencia(r_.sacrament, "SELECT Folio, Numero FROM {Partidas} WHERE {IDPartida}=") +
      std::to_string(id));
  return rows.EOF_() ? std::string() : rows.text("Folio") + "/" + rows.text("Numero");
}

std::string DemoRegisterWalk::count(const std::string& condition) {
  return w_.count(sentencia(r_.sacrament, "{Partidas} WHERE ") + condition);
}

/// All that this register holds.
std::string DemoRegisterWalk::everything() {
  std::vector<std::string> tables{r_.sacrament.tablaLibros};
  for (const FilaDePartida& row : formaPartida(r_.sacrament)->filas) tables.push_back(row.tabla);
  std::string all;
  for (const std::string& table : tables)
    for (auto set = parish().Execute("SELECT * FROM " + table); !set.EOF_(); set.MoveNext()) {
      for (int f = 0; f < static_cast<int>(set.FieldCount()); ++f)
        all += set.Fields(f).Value().text() + "|";
      all += "\n";
    }
  return all;
}

}  // namespace fidaleon::app
