#include "sample/SampleParish.h"

#include <vector>

#include "core/statements/Citas.h"
#include "parish/Insert.h"
#include "sample/SampleCensus.h"
#include "sample/SampleNames.h"
#include "sample/SamplePopulation.h"

namespace fidaleon::app {
namespace {

constexpr std::uint32_t SEED = 1924;
constexpr int NEW_BOOK_YEAR = 2014;
constexpr int REQUESTS = 5;
constexpr int ENTRIES_PER_FOLIO = 4;  // of format 1, the old book's
constexpr int OLD_FORMAT = 1;
constexpr int NEW_FORMAT = 3;
constexpr int OPEN_NAME = 4;
constexpr int YEAR_NAME = 1;

const std::string BLANK = "---";

struct Place {
  std::int32_t book = 0;
  std::int32_t folio = 0;
  std::string number = BLANK;
};

class Writer {
 public:
  Writer(store::Connection& connection, const NewParish& parish, const text::Date& today)
      : con_(connection), parish_(parish), today_(today), home_(sample::homeOf(parish.edition)) {}

  void run() {
    writeTowns();
    writeInstitutions();
    people_ = sample::makePopulation(SEED, homeTown(), parish_.name, today_);
    writeEntries();
    writeRequests();
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

  std::int32_t town(int position) const { return towns_[static_cast<std::size_t>(position)]; }

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

  std::int32_t book(const std::string& name, int nameType, int format, const std::string& created,
                    bool isNew) {
    return Insert("Libro_Bautismo")
        .number("CodInstitucion", own_)
        .number("CodFormato", format)
        .number("CodTipoNombre", nameType)
        .text("Nombre", name)
        .text("FechaCreacion", created)
        .number("Nuevo", isNew)
        .number("Cerrado", 0)
        .text("NumeroSiguiente", "1")
        .number("FolioSiguiente", 1)
        .into(con_, "IDLibroBautismo");
  }

  void writeEntries() {
    const std::int32_t old = book("Libro XIV", OPEN_NAME, OLD_FORMAT, "20131231", false);
    const std::string year = std::to_string(NEW_BOOK_YEAR);
    const std::int32_t current = book(year + "/01", YEAR_NAME, NEW_FORMAT, year + "0101", true);
    int inOld = 0;
    int inNew = 0;
    for (const sample::Baptism& b : people_.baptisms) {
      if (b.day.year < NEW_BOOK_YEAR) {
        writeEntry(b, {old, inOld / ENTRIES_PER_FOLIO + 1, std::to_string(inOld + 1)});
        ++inOld;
      } else {
        ++inNew;
        writeEntry(b, {current, inNew, std::to_string(inNew)});
      }
    }
    con_.Execute("UPDATE Libro_Bautismo SET FolioSiguiente=" +
                 std::to_string(inOld / ENTRIES_PER_FOLIO + 1) + ", NumeroSiguiente=\"" +
                 std::to_string(inOld + 1) + "\" WHERE IDLibroBautismo=" + std::to_string(old));
  }

  // Children of the youngest families whose entry is asked for and stands in no book yet.
  void writeRequests() {
    const int last = static_cast<int>(people_.couples.size()) - 1;
    for (int i = 0; i < REQUESTS; ++i) {
      sample::Baptism b;
      b.girl = i % 2 == 0;
      b.name = std::string(b.girl ? sample::GIRLS_NEW[static_cast<std::size_t>(5 + i)]
                                  : sample::BOYS_NEW[static_cast<std::size_t>(5 + i)]);
      b.couple = last - i;
      b.birth = {today_.year, 1 + i, 4 + 3 * i};
      if (b.birth > today_) b.birth.year -= 1;
      b.godfather = b.godmother = b.minister = BLANK;
      b.remarks = "Pendiente de señalar el día del bautizo.";
      writeEntry(b, {});
    }
  }

  void writeEntry(const sample::Baptism& b, const Place& place) {
    const sample::Couple& c = people_.couples[static_cast<std::size_t>(b.couple)];
    const std::int32_t fathers = writeFather(c);
    const std::int32_t mothers = writeMother(c);
    const std::int32_t marriage = writeMarriage(c);
    Insert entry("bautismo");
    entry.number("codpadres", fathers).number("codmadres", mothers);
    entry.number("codmatrimonio", marriage);
    entry.number("institucionsolicitud", place.book == 0 ? own_ : 0);
    entry.text("fechabautismo", b.day.year == 0 ? BLANK : text::toStored(b.day));
    entry.text("padrino", b.godfather).text("madrina", b.godmother).text("ministro", b.minister);
    entry.text("parroquia", parish_.name).number("codmunicipio", ownTown_);
    entry.text("diocesis", std::string(home_.diocese));
    entry.text("notasmarginales", orBlank(b.marginalNotes));
    entry.text("observaciones", orBlank(b.remarks));
    entry.number("codlibro", place.book).number("folio", place.folio);
    entry.text("numero", place.number).number("anulada", b.annulled);
    entry.text("EdadPadrino", "0").text("EdadMadrina", "0").text("MinistroCargo", "Párroco");
    for (const char* column :
         {"ParroquiaDomicilioPadrino", "ParroquiaDomicilioMadrina", "ProfesionPadrino",
          "NaturalPadrino", "EstatPadrino", "ProfesionMadrina", "NaturalMadrina", "EstatMadrina"})
      entry.text(column, BLANK);
    writeChild(b, c, entry.into(con_, "IDBautismo"));
  }

  static std::string orBlank(const std::string& text) { return text.empty() ? BLANK : text; }

  void writeChild(const sample::Baptism& b, const sample::Couple& c, std::int32_t entry) {
    Insert("bautismo_hijo")
        .number("codbautismo", entry)
        .text("nombre", b.name)
        .text("primerapellido", c.father.first)
        .text("segundoapellido", c.mother.first)
        .text("sexo", b.girl ? "Mujer" : "Hombre")
        .text("fechanac", text::toStored(b.birth))
        .text("horanac", orBlank(b.hour))
        .text("direccionnac", c.street)
        .number("codmunicipionac", ownTown_)
        .into(con_);
  }

  std::int32_t writeFather(const sample::Couple& c) {
    Insert row("bautismo_padres");
    names(row, c.father, c.fathersFather, c.fathersMother, c.fathersTown);
    row.text("PadreParroquiaBaut", BLANK).number("PadreCodMunicipioParrBaut", 0);
    row.text("PadreProfesion", c.trade);
    for (const char* who : {"AbueloPat", "AbuelaPat"}) baptisedAt(row, who);
    row.text("TelefonoPadre", BLANK).text("EmailPadre", BLANK);
    return row.into(con_, "IDPadres");
  }

  std::int32_t writeMother(const sample::Couple& c) {
    Insert row("bautismo_madres");
    names(row, c.mother, c.mothersFather, c.mothersMother, c.mothersTown);
    row.text("MadreParroquiaBaut", BLANK).number("MadreCodMunicipioParrBaut", 0);
    row.text("MadreProfesion", BLANK);
    for (const char* who : {"AbueloMat", "AbuelaMat"}) baptisedAt(row, who);
    row.text("TelefonoMadre", BLANK).text("EmailMadre", BLANK);
    return row.into(con_, "IDMadres");
  }

  void names(Insert& row, const sample::Person& p, const std::string& grandfather,
             const std::string& grandmother, int where) const {
    row.text("nombre", p.name).text("primerapellido", p.first).text("segundoapellido", p.second);
    row.number("codmunicipio", town(p.town));
    row.text("abuelo", grandfather).number("codmunicipioabuelo", town(where));
    row.text("abuela", grandmother).number("codmunicipioabuela", town(where));
  }

  static void baptisedAt(Insert& row, const std::string& who) {
    row.text(who + "ParroquiaBaut", BLANK).number(who + "CodMunicipioParrBaut", 0);
  }

  std::int32_t writeMarriage(const sample::Couple& c) {
    return Insert("bautismo_matrimonio")
        .text("parroquia", c.weddingParish)
        .text("fechamatr", text::toStored(c.wedding))
        .number("codmunicipiomatr", town(c.weddingTown))
        .text("direccionpadres", c.street)
        .number("codmunicipiopadres", ownTown_)
        .text("DiocesisMatrimonio", std::string(home_.diocese))
        .text("TelefonoPadres", BLANK)
        .into(con_, "IDMatrimonio");
  }

  store::Connection& con_;
  const NewParish& parish_;
  text::Date today_;
  const sample::Home& home_;
  std::vector<std::int32_t> towns_;
  std::int32_t ownTown_ = 0;
  std::int32_t own_ = 0;
  sample::Population people_;
};

}  // namespace

void fillSampleParish(store::Connection& connection, const NewParish& parish,
                      const text::Date& today) {
  Writer(connection, parish, today).run();
}

}  // namespace fidaleon::app
