// rooms: search
// The search over a big parish: how long its index takes to make and to look through, how large it
// is, how long the longest of the answers as one types takes, and how many believable spellings of
// a name lead to its entry.

#include "benches/Bench.h"
#include "benches/Folder.h"
#include "search/Indexer.h"
#include "search/Searcher.h"
#include "search/Source.h"
#include "store/Engine.h"
#include "store/Open.h"
#include "store/Transaction.h"
#include "text/Utf8.h"

namespace fidaleon::bench {
namespace {

using search::Found;
using search::Searcher;

constexpr const char* GIVEN[] = {
    "María",      "José",      "Antonio",     "Juan",     "Francisco", "Manuel",    "Carmen",
    "Ana",        "Josefa",    "Isabel",      "Pedro",    "Dolores",   "Luis",      "Miguel",
    "Pilar",      "Teresa",    "Ángel",       "Rosa",     "Jesús",     "Javier",    "Rafael",
    "Mercedes",   "Enrique",   "Lucía",       "Ignacio",  "Elena",     "Vicente",   "Begoña",
    "Joaquín",    "Gregorio",  "Eusebio",     "Cecilia",  "Íñigo",     "Wenceslao", "Hilario",
    "Visitación", "Guillermo", "Encarnación", "Jerónimo", "Águeda"};
constexpr const char* SURNAMES[] = {
    "García",   "González",  "Fernández", "López",    "Martínez", "Sánchez", "Pérez",   "Gómez",
    "Martín",   "Jiménez",   "Hernández", "Ruiz",     "Díaz",     "Moreno",  "Muñoz",   "Álvarez",
    "Romero",   "Gutiérrez", "Navarro",   "Torres",   "Vázquez",  "Serrano", "Ramos",   "Castillo",
    "Ortega",   "Rubio",     "Molina",    "Delgado",  "Ortiz",    "Cabello", "Quesada", "Herrero",
    "Llorente", "Yagüe",     "Bravo",     "Zorrilla", "Ceballos", "Huete",   "Giménez", "Baquero"};
constexpr int SURNAMES_IN_ALL = 6000;

/// A name of syllables: rare ones are many.
std::string invented(int n) {
  static constexpr const char* BEGIN[] = {"Bar", "Cal", "Es", "Gor", "Man", "Or",  "Pe", "Que",
                                          "Sal", "Tor", "Ur", "Val", "Zu",  "Lla", "Hi"};
  static constexpr const char* MIDDLE[] = {"ba", "ce", "di", "go", "lla", "ma", "ne", "qui",  "ra",
                                           "so", "te", "vi", "za", "ji",  "be", "",   "rran", "ti"};
  static constexpr const char* END[] = {"nes", "do", "rri", "llo", "zar", "ga", "ño",  "res", "va",
                                        "che", "na", "lde", "cio", "que", "jo", "ndo", "rte"};
  const auto at = [&n](const auto& list) {
    const int i = n % static_cast<int>(std::size(list));
    n /= static_cast<int>(std::size(list));
    return std::string(list[i]);
  };
  std::string name = at(BEGIN);
  name += at(MIDDLE);
  name += at(END);
  return n == 0 ? name : name + "e" + std::to_string(n).substr(0, 0) + "a";
}

void fillNames(store::Engine& engine) {
  const auto table = [&engine](const char* name, const auto& common, int all) {
    engine.run(std::string("CREATE TEMP TABLE ") + name + "(i INTEGER PRIMARY KEY, t TEXT)");
    for (int i = 0; i < all; ++i) {
      const int known = static_cast<int>(std::size(common));
      engine.run(std::string("INSERT INTO ") + name + " VALUES(" + std::to_string(i) + ",'" +
                 (i < known ? std::string(common[i]) : invented(i - known)) + "')");
    }
  };
  table("apellido", SURNAMES, SURNAMES_IN_ALL);
  table("nombre", GIVEN, static_cast<int>(std::size(GIVEN)));
}

/// The few come often and the many seldom, as names do.
std::string pick(const char* table, int all, int seed) {
  const std::string r =
      "(abs((n * 2654435761 + " + std::to_string(seed) + " * 40503) % 1000003) / 1000003.0)";
  return std::string("(SELECT t FROM ") + table + " WHERE i=CAST(" + r + "*" + r + "*" + r + "*" +
         std::to_string(all) + " AS INTEGER))";
}
std::string surnameOf(int seed) {
  return pick("apellido", SURNAMES_IN_ALL, seed);
}
std::string givenOf(int seed) {
  return pick("nombre", static_cast<int>(std::size(GIVEN)), seed);
}

/// Baptisms of a thousand to a book.
void fill(store::Connection& connection, int entries) {
  store::Engine& engine = connection.engine();
  store::Transaction together(connection);
  fillNames(engine);
  for (int b = 0; b <= entries / 1000; ++b)
    connection.Execute(
        "INSERT INTO Libro_Bautismo (CodInstitucion, CodFormato, Nombre) VALUES (1, 3, \"" +
        std::to_string(b + 1) + "\")");
  const std::string rows = "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n+1 FROM c WHERE n<" +
                           std::to_string(entries) + ") INSERT INTO ";
  const std::string day =
      "CAST((1800 + n % 226) * 10000 + (1 + n % 12) * 100 + 1 + n % 28 AS TEXT)";
  engine.run(rows +
             "Bautismo_Hijo(CodBautismo, Nombre, PrimerApellido, SegundoApellido, FechaNac) "
             "SELECT n, " +
             givenOf(1) + ", " + surnameOf(2) + ", " + surnameOf(3) + ", " + day + " FROM c");
  engine.run(rows + "Bautismo_Padres(Nombre, PrimerApellido, SegundoApellido) SELECT " +
             givenOf(4) + ", " + surnameOf(2) + ", " + surnameOf(5) + " FROM c");
  engine.run(rows + "Bautismo_Madres(Nombre, PrimerApellido, SegundoApellido) SELECT " +
             givenOf(6) + ", " + surnameOf(3) + ", " + surnameOf(7) + " FROM c");
  engine.run(rows +
             "Bautismo(CodPadres, CodMadres, CodMatrimonio, FechaBautismo, Padrino, Madrina, "
             "Parroquia, CodMunicipio, CodLibro, Folio, Numero, Anulada) SELECT n, n, n, " +
             day + ", " + givenOf(8) + " || ' ' || " + surnameOf(9) + " || ' ' || " +
             surnameOf(10) + ", " + givenOf(11) + " || ' ' || " + surnameOf(12) +
             ", 'San Pedro', 1 + n % 500, "
             "1 + n / 1000, 1 + n % 1000, '1', 0 FROM c");
  together.commit();
}

/// What a person does to a name, one thing after the other.
std::vector<std::string> variants(const std::string& name, const std::string& first,
                                  const std::string& second) {
  const std::string whole = name + " " + first + " " + second;
  const auto with = [&](const char* what, const char* by) {
    return text::replaceAll(text::lower(whole), what, by);
  };
  std::string wrong = text::searchKey(first);
  if (wrong.size() > 5) std::swap(wrong[2], wrong[3]);
  std::string dropped = text::searchKey(second);
  if (dropped.size() > 6) dropped.erase(3, 1);
  return {whole,
          text::searchKey(whole),
          text::upper(first + " " + second + " " + name),
          name + " " + second + " " + first,
          with("b", "v"),
          with("v", "b"),
          with("ll", "y"),
          with("z", "s"),
          with("h", ""),
          with("que", "ke"),
          with("ge", "je"),
          with("ce", "se"),
          name + " " + wrong + " " + second,
          name + " " + first + " " + dropped,
          name + " Luisa " + first + " " + second};
}

void recall(store::Connection& connection, Searcher& searcher, int entries) {
  int asked = 0, found = 0, first = 0, shownHits = 0, ofThatName = 0, exact = 0,
      exactOfThatName = 0;
  for (int i = 1; i <= 150; ++i) {
    const std::int32_t key = 1 + static_cast<int>(i * 7919LL % entries);
    search::readKeys(
        connection, search::sourceOf(search::Register::Baptism), {key}, search::Extent::Searched,
        [&](const search::Entry& entry) {
          using search::Part;
          using search::Who;
          const auto part = [&](Part p) { return entry.text(search::of(Who::Self, p)); };
          const std::string name = entry.name(Who::Self);
          for (const std::string& typed :
               variants(part(Part::Name), part(Part::First), part(Part::Second))) {
            // As who looks for one entry says the year too.
            const Found answer =
                searcher.find(typed + " " + std::to_string(entry.day(search::Field::Day) / 10000));
            ++asked;
            found += std::any_of(answer.hits.begin(), answer.hits.end(),
                                 [&](const auto& h) { return h.key == key; });
            first += !answer.hits.empty() && answer.hits.front().name == name;
            for (const search::Hit& hit : answer.hits) {
              const bool his = hit.name == name;
              ++shownHits;
              ofThatName += his;
              exact += hit.exact;
              exactOfThatName += hit.exact && his;
            }
          }
        });
  }
  const auto share = [](const char* what, int n, int of, double aim) {
    const double percent = of == 0 ? 0 : 100.0 * n / of;
    line(what, shown(percent, " %"), "-", "-", ">= " + shown(aim, " %"), percent >= aim);
  };
  share("búsqueda: variantes que llevan a su partida", found, asked, 98);
  share("búsqueda: variantes con su nombre en el primer lugar", first, asked, 95);
  share("búsqueda: aciertos de ese nombre entre los que se enseñan", ofThatName, shownHits, 50);
  share("búsqueda: de ese nombre entre los exactos", exactOfThatName, exact, 99);
}

void asOneTypes(Searcher& searcher, const std::string& size) {
  constexpr const char* TYPED[] = {"maría garcía lópez",
                                   "jose gonzalez",
                                   "martin",
                                   "garcia garcia garcia",
                                   "wenceslao llorente 1920",
                                   "ana gimenez baquero",
                                   "juan lopez 1850-1950",
                                   "mª del carmen fdez",
                                   "pedro quesada ana bravo",
                                   "libro 12 folio 40",
                                   "1924",
                                   "hilario zorilla huete",
                                   "francisco sanches ramirez"};
  double worst = 0, sum = 0;
  int keys = 0;
  std::string slowest;
  for (const char* typed : TYPED)
    for (std::size_t n = 1; n <= std::string(typed).size(); ++n) {
      const std::string so = std::string(typed).substr(0, n);
      const double took = milliseconds(1, [&] { searcher.find(so); });
      sum += took;
      ++keys;
      if (took > worst) {
        worst = took;
        slowest = so;
      }
    }
  within("búsqueda, " + size + ": una tecla, por término medio", sum / keys, 25);
  within("búsqueda, " + size + ": la tecla más lenta («" + slowest + "»)", worst, 50);
}

void run(int entries) {
  const Folder folder;
  const auto parish = store::createDatabase(folder / "parroquia.fidaleon", store::parishSchema());
  parish->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  fill(*parish, entries);
  const std::filesystem::path file = search::IndexFile::fileIn(folder.path());
  const std::string size = std::to_string(entries) + " partidas";
  search::IndexFile index(file);
  search::Indexer indexer(*parish, index);
  const double made = milliseconds(1, [&] {
    while (indexer.takeNew()) {
    }
  });
  within("búsqueda, " + size + ": hacer el índice", made, entries * 0.06);
  const double stored = static_cast<double>(std::filesystem::file_size(file)) / 1e6;
  line("búsqueda, " + size + ": tamaño del índice", shown(stored, " MB"), "-", "-", "-", true);
  within("búsqueda, " + size + ": repasarlo todo",
         milliseconds(1,
                      [&] {
                        while (indexer.compare()) {
                        }
                      }),
         entries * 0.03);
  within("búsqueda, " + size + ": una partida guardada",
         milliseconds(5, [&] { indexer.refresh(search::Register::Baptism, {entries / 2}); }), 20);
  search::IndexFile again(file);
  Searcher searcher(*parish, again);
  within("búsqueda, " + size + ": la primera", milliseconds(1, [&] { searcher.find("x"); }), 300);
  asOneTypes(searcher, size);
  recall(*parish, searcher, entries);
}

}  // namespace
}  // namespace fidaleon::bench

int main(int argc, char** argv) {
  fidaleon::bench::run(argc > 1 ? std::atoi(argv[1]) : 100000);
}
