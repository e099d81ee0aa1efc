#include "sample/SampleParish.h"

#include <array>
#include <vector>

#include "core/contract/FDAPI.h"
#include "core/statements/Citas.h"
#include "core/statements/Sentencia.h"
#include "parish/Insert.h"
#include "registers/allocation/ActualizacionFormato.h"
#include "registers/baptism/AlmacenBautismo.h"
#include "registers/books/LibroNuevo.h"
#include "registers/confirmation/AlmacenConfirmacion.h"
#include "registers/death/AlmacenDefuncion.h"
#include "registers/marriage/AlmacenMatrimonio.h"
#include "sample/SampleCensus.h"
#include "sample/SampleEntries.h"
#include "sample/SampleExaminations.h"
#include "sample/SampleNames.h"
#include "sample/SamplePopulation.h"

namespace fidaleon::app {
namespace {

constexpr std::uint32_t SEED = 1924;
constexpr int NEW_BOOK_YEAR = 2002;  // closed when the next one was opened
constexpr int OPEN_BOOK_YEAR = 2014;
constexpr int REQUESTS = 5;
constexpr int CONFIRMATION_REQUESTS = 7;
constexpr int ENTRIES_PER_FOLIO = 4;  // of format 1, the old book's
constexpr int OLD_FORMAT = 1;
constexpr int NEW_FORMAT = 3;
constexpr int OPEN_NAME = 4;
constexpr int YEAR_NAME = 1;

using sample::Place;

/// One book while it is being filled.
struct Book {
  LibroNuevo made;
  int perFolio = 1;
  std::int32_t key = 0;
  int filled = 0;

  Place next() {
    ++filled;
    return {key, 1 + (filled - 1) / perFolio, std::to_string(filled), made.nombre};
  }
};

/// The books of one register.
struct Shelf {
  Book old, closed, open;
  Place next(int year) {
    return (year < NEW_BOOK_YEAR ? old : year < OPEN_BOOK_YEAR ? closed : open).next();
  }
};

class Writer {
 public:
  Writer(store::Connection& connection, const NewParish& parish, const text::Date& today)
      : con_(connection), parish_(parish), today_(today), home_(sample::homeOf(parish.edition)) {}

  void run() {
    writeTowns();
    writeInstitutions();
    people_ = sample::makePopulation(SEED, homeTown(), parish_.name, today_);
    around_ = {parish_.name, std::string(home_.diocese), postcode(), own_, ownTown_, towns_};
    writeBaptisms();
    writeConfirmations();
    writeBurials();
    writeMarriages();
    writeBaptismRequests();
    writeConfirmationRequests();
    fillSampleCensus(con_, {people_, towns_, own_, ownTown_, parish_.name, postcode()}, today_);
  }

 private:
  // The parish stands where its user says; the sample's own home town stands for it in the lists
  // of the people when the user gave that or none.
  int homeTown() const {
    for (std::size_t i = 0; i < sample::TOWNS.size(); ++i)
      if (sample::TOWNS[i].name == home_.town) return static_cast<int>(i);
    return 0;
  }

  void writeTowns() {
    for (const sample::Town& town : sample::TOWNS)
      towns_.push_back(townKey(con_, std::string(town.name), town.provinceCode));
    const std::size_t home = static_cast<std::size_t>(homeTown());
    if (!parish_.town.empty()) towns_[home] = townKey(con_, parish_.town, parish_.province);
    ownTown_ = towns_[home];
  }

  void writeInstitutions() {
    own_ = institution(parish_.name, ownTown_, "D. Abilio Santacana Prieto",
                       {"D. Abilio Santacana Prieto", "Dña. Remedios Alcañiz Torrubia"});
    const std::int32_t next = townKey(con_, std::string(home_.neighbour), home_.provinceCode);
    institution(std::string(home_.neighbourName), next, "D. Rogelio Villamor Escribano",
                {"D. Rogelio Villamor Escribano"});
  }

  std::int32_t institution(const std::string& name, std::int32_t where, const std::string& priest,
                           const std::vector<std::string>& keepers) {
    const std::int32_t id = addInstitution(con_, name, where);
    con_.Execute("UPDATE Institucion SET Parroco=" + entreComillas(priest) +
                 ", EncargadoArchivo=" + entreComillas(keepers.front()) +
                 ", Diocesis=" + entreComillas(std::string(home_.diocese)) +
                 ", Vicaria=" + entreComillas(std::string(home_.vicariate)) +
                 ", Arciprestazgo=" + entreComillas(std::string(home_.deanery)) +
                 ", Domicilio=\"Plaza de la Iglesia, 1\", CP=" + entreComillas(postcode()) +
                 ", Telefono=\"910 000 0" + std::to_string(10 + id) +
                 "\", ResponsableCargo=\"Párroco\" WHERE IDInstitucion=" + std::to_string(id));
    for (const std::string& keeper : keepers)
      Insert("Institucion_Encargado")
          .number("CodInstitucion", id)
          .text("Nombre", keeper)
          .into(con_);
    con_.Execute("UPDATE Ultimos SET Encargado=" + entreComillas(keepers.front()) +
                 " WHERE IDInstitucion=" + std::to_string(id));
    return id;
  }

  std::string postcode() const {
    const std::string code = std::to_string(home_.provinceCode);
    return (code.size() < 2 ? "0" + code : code) + "730";
  }

  Book oldBook(const std::string& name) const {
    return {{own_, OLD_FORMAT, OPEN_NAME, name, std::to_string(NEW_BOOK_YEAR - 1) + "1231", false},
            ENTRIES_PER_FOLIO};
  }
  Book newBook(int since) const {
    const std::string year = std::to_string(since);
    return {{own_, NEW_FORMAT, YEAR_NAME, year + "/01", year + "0101", true}};
  }
  Shelf open(const Sacramento& sacrament, const std::string& nameOfOld) {
    Shelf shelf{oldBook(nameOfOld), newBook(NEW_BOOK_YEAR), newBook(OPEN_BOOK_YEAR)};
    for (Book* b : {&shelf.old, &shelf.open, &shelf.closed}) {
      insertarLibro(con_, sacrament, b->made);
      b->key = ultimoLibro(con_, sacrament);
    }
    return shelf;
  }
  /// The counters of the old book as its last entry leaves them.
  void close(const Sacramento& sacrament, const Shelf& shelf) {
    bool jump = false;
    actualizacionFormato(con_, sacrament, shelf.old.key, jump);
    con_.Execute(sentencia(sacrament, "UPDATE {Libros} SET Cerrado=true WHERE {IDLibro}=") +
                 std::to_string(shelf.closed.key));
  }

  void writeBaptisms() {
    Shelf shelf = open(BAUTISMO, "Libro XIV");
    for (const sample::Baptism& b : people_.baptisms) {
      places_.push_back(shelf.next(b.day.year));
      write(ALMACEN_BAUTISMO, entries().baptism(b, places_.back()));
    }
    close(BAUTISMO, shelf);
  }

  void writeConfirmations() {
    Shelf shelf = open(CONFIRMACION, "Libro VI");
    for (const sample::Confirmation& c : people_.confirmations)
      write(ALMACEN_CONFIRMACION,
            entries().confirmation(c, shelf.next(c.day.year), placeOf(c.baptism)));
    close(CONFIRMACION, shelf);
  }

  void writeBurials() {
    Shelf shelf = open(DEFUNCION, "Libro IX");
    for (const sample::Burial& b : people_.burials)
      write(ALMACEN_DEFUNCION, entries().death(b, shelf.next(b.death.year)));
    close(DEFUNCION, shelf);
  }

  void writeMarriages() {
    Shelf shelf = open(MATRIMONIO, "Libro XI");
    for (const sample::Marriage& m : people_.marriages)
      write(ALMACEN_MATRIMONIO, entries().marriage(m, shelf.next(m.day.year), placesOf(m)));
    close(MATRIMONIO, shelf);
    for (const sample::Marriage& m : people_.engaged)
      write(ALMACEN_MATRIMONIO, entries().marriage(m, {}, placesOf(m)));
    if (parish_.edition == FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      fillSampleExaminations(con_, people_.engaged.back(), parish_.name);
  }

  template <class Record>
  void write(const DescripcionAlmacen<Record>& store, Record entry) {
    rellenarGuiones(store, entry);
    insertarPartida(con_, store, entry);
  }

  // Children of the youngest families whose entry is asked for and stands in no book yet.
  void writeBaptismRequests() {
    const int last = static_cast<int>(people_.couples.size()) - 1;
    for (int i = 0; i < REQUESTS; ++i) {
      sample::Baptism b;
      b.girl = i % 2 == 0;
      b.name = std::string(b.girl ? sample::GIRLS_NEW[static_cast<std::size_t>(5 + i)]
                                  : sample::BOYS_NEW[static_cast<std::size_t>(5 + i)]);
      b.couple = last - i;
      b.birth = {today_.year, 1 + i, 4 + 3 * i};
      if (b.birth > today_) b.birth.year -= 1;
      b.remarks = "Pendiente de señalar el día del bautizo.";
      write(ALMACEN_BAUTISMO, entries().baptism(b, {}));
    }
  }

  // Those of the last years who have come of age and wait for the next visit.
  void writeConfirmationRequests() {
    int left = CONFIRMATION_REQUESTS;
    for (std::size_t i = people_.baptisms.size(); i > 0 && left > 0; --i) {
      const sample::Baptism& b = people_.baptisms[i - 1];
      if (b.annulled || b.confirmed.year != 0 || b.birth.year > today_.year - 12) continue;
      const sample::Couple& parents = people_.couples[static_cast<std::size_t>(b.couple)];
      sample::Confirmation c;
      c.person = {b.name, parents.father.first, parents.mother.first, homeTown(), b.girl};
      c.baptism = static_cast<int>(i) - 1;
      c.birth = b.birth;
      c.baptised = b.day;
      c.father = parents.father.full();
      c.mother = parents.mother.full();
      c.street = parents.street;
      c.baptismParish = parish_.name;
      c.baptismTown = homeTown();
      write(ALMACEN_CONFIRMACION, entries().confirmation(c, {}, placeOf(c.baptism)));
      --left;
    }
  }

  sample::Entries entries() const { return {people_, around_}; }
  const Place* placeOf(int baptism) const {
    return baptism < 0 ? nullptr : &places_[static_cast<std::size_t>(baptism)];
  }
  std::array<const Place*, 2> placesOf(const sample::Marriage& m) const {
    return {placeOf(m.groom.baptism), placeOf(m.bride.baptism)};
  }

  store::Connection& con_;
  const NewParish& parish_;
  text::Date today_;
  const sample::Home& home_;
  std::vector<std::int32_t> towns_;
  std::int32_t ownTown_ = 0;
  std::int32_t own_ = 0;
  sample::Population people_;
  sample::Surroundings around_;
  std::vector<Place> places_;  // of the baptisms
};

}  // namespace

void fillSampleParish(store::Connection& connection, const NewParish& parish,
                      const text::Date& today) {
  Writer(connection, parish, today).run();
}

}  // namespace fidaleon::app
