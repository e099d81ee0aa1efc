#include <gmock/gmock.h>

#include <map>
#include <set>

#include "registers/allocation/Posicion.h"
#include "registers/allocation/PosicionEnLista.h"
#include "registers/allocation/PosicionTecleada.h"

namespace fidaleon {

void PrintTo(const Posicion& p, std::ostream* out) {
  *out << p.folio << "/" << p.numero;
}

namespace {

using Lista = std::vector<Posicion>;

/// "1/1 1/2 2/3" as positions.
Lista posiciones(const std::string& texto) {
  Lista lista;
  std::istringstream in(texto);
  for (std::string una; in >> una;)
    lista.push_back({std::stoi(una), una.substr(una.find('/') + 1)});
  return lista;
}

struct Caso {
  int p;                             // entries to a folio
  const char *ocupadas, *siguiente;  // "-": the position stands
  const char* que;
};

const Caso CASOS[] = {
    {1, "", "1/1", "empty list"},
    {1, "1/1 2/2", "3/3", "behind the last"},
    {1, "2/2 3/3", "1/1", "folio 1 is missing"},
    {1, "1/1 2/2 4/4 6/6", "3/3", "hole in the middle"},
    {1, "4/4 1/1 2/2", "3/3", "in any order"},
    {1, "1/7 2/7a 4/9", "3/8", "number before the hole has a letter"},
    {1, "1/7 2/7a", "3/8", "last number has a letter"},
    {1, "1/7 2/7bis", "3/8", "last number has a word"},
    {1, "3/1 4/2", "1/1", "starts at folio 3"},
    {2, "1/1 1/2 2/3", "2/4", "room on the last folio"},
    {2, "1/1 1/2 2/3 2/4", "3/5", "last folio full"},
    {2, "1/1", "1/2", "one entry"},
    {2, "1/2", "1/1", "one entry that is not number 1"},
    {2, "1/2 2/3 2/4", "1/1", "room on folio 1"},
    {2, "1/1 2/3 2/4", "1/2", "room on folio 1, number 1 taken"},
    {2, "1/1 1/2 3/5 3/6", "2/3", "folio 2 is empty"},
    {2, "1/1 1/2 2/4 3/5 3/6", "2/3", "room on folio 2, its first number is missing"},
    {2, "1/1 1/2 2/3 3/5", "2/4", "room on folio 2"},
    {4, "1/1 1/2 1/3 1/4 2/5 2/6 2/8", "2/7", "one break on the last folio"},
    {4, "1/1 1/2 1/3 1/4 2/5 2/7 2/9", "2/8", "the highest break wins"},
    {4, "1/1 1/2 1/3 1/4 2/6 2/7", "2/8", "the break before the last folio does not count"},
    {4, "1/1 1/2 1/3 1/4", "2/5", "last folio full"},
    {4, "1/1 1/2 1/4", "1/3", "fewer than a folio, with a break"},
    {4, "1/2 1/4", "1/1", "fewer than a folio, without number 1"},
    {4, "1/1 1/2 1/3 1/4 3/9 3/10 3/11 3/12", "2/5", "folios 1 and 3 filled"},
    {4, "1/1 1/3 1/4 2/5 2/6 2/7 2/8", "1/2", "folio 1 has room: smallest missing number"},
    {4, "1/1 1/2 1/3 1/4 2/5 2/6 2/8 3/9", "2/7", "folio 2 has room"},
    {4, "1/1 1/2 1/3 1/4 2/5 2/6 3/9", "2/7", "folio 2 has room behind its numbers"},
    {4, "1/12 1/12a 1/12b 1/13 2/14", "2/15", "letters count as their digits"},
    {4, "1/10 1/9 1/8 1/7", "2/11", "numbers sort by value, not by text"},
    {0, "1/1", "-", "no capacity"},
    {3, "1/1", "-", "three per folio"},
    {3, "", "1/1", "empty list all the same"},
};

TEST(Huecos, nextPosition) {
  for (const Caso& c : CASOS) {
    const auto siguiente = siguienteEnLista(posiciones(c.ocupadas), c.p, Numeracion::Huecos);
    if (std::string(c.siguiente) == "-")
      EXPECT_EQ(siguiente, std::nullopt) << c.que;
    else
      EXPECT_EQ(siguiente, posiciones(c.siguiente).at(0)) << c.p << ": " << c.que;
  }
}

TEST(Huecos, bookFilledByItsProposals_neverGivesAPositionTwiceNorLeavesOneOut) {
  for (const int p : {1, 2, 4}) {
    Lista libro;
    for (int n = 1; n <= 30; ++n) {
      const auto siguiente = siguienteEnLista(libro, p, Numeracion::Huecos);
      ASSERT_EQ(siguiente, (Posicion{(n + p - 1) / p, std::to_string(n)})) << p;
      libro.push_back(*siguiente);
    }
    // Whatever entry is taken out, its place is the next to be proposed.
    for (std::size_t i = 0; i < libro.size(); ++i) {
      Lista conHueco = libro;
      conHueco.erase(conHueco.begin() + static_cast<long>(i));
      const auto hueco = siguienteEnLista(conHueco, p, Numeracion::Huecos);
      EXPECT_EQ(hueco->folio, libro[i].folio) << p << " " << libro[i].numero;
    }
  }
}

TEST(ValNumero, isTheLeadingDigits_whateverOldDataHaveBehindThem) {
  const std::map<std::string, std::int64_t> valores{
      {"12", 12},        {"12a", 12},  {"100000", 100000}, {"7ñ", 7},  {"12 bis", 12},
      {"40000a", 40000}, {"12ab", 12}, {"a", 0},           {"---", 0}, {"", 0}};
  for (const auto& [numero, valor] : valores) EXPECT_EQ(valNumero(numero), valor) << numero;
}

TEST(NumeroDePartida, isDigitsAndOneLetterBehindThem) {
  for (const char* bueno : {"", "7", "12a", "12Z"}) EXPECT_TRUE(esNumeroDePartida(bueno)) << bueno;
  for (const char* malo : {"a", "12 ", "12ab", "1a2", "7ñ", "---"})
    EXPECT_FALSE(esNumeroDePartida(malo)) << malo;
}

TEST(NumeroConLetra, takesTheNextFreeLetter) {
  const auto nuevo = [](const std::string& tecleado, std::set<std::string> ocupados) {
    return numeroConLetra(tecleado, [&](const std::string& n) { return ocupados.contains(n); });
  };
  EXPECT_EQ(nuevo("12", {"12"}), "12a");
  EXPECT_EQ(nuevo("12", {"12", "12a"}), "12b");
  EXPECT_EQ(nuevo("12a", {"12", "12a"}), "12b");
  EXPECT_EQ(nuevo("12a", {"12a", "12b"}), "12c");
  EXPECT_EQ(nuevo("12z", {"12z"}), "12a");
}

TEST(Salto, isAForwardMoveOfMoreThanOne) {
  const auto salta = [](const Sacramento& s, Posicion a, Posicion b) { return haySalto(s, a, b); };
  EXPECT_FALSE(salta(BAUTISMO, {3, "12"}, {4, "13"}));
  EXPECT_TRUE(salta(BAUTISMO, {3, "12"}, {5, "13"}));
  EXPECT_TRUE(salta(BAUTISMO, {3, "12a"}, {3, "14"}));
  EXPECT_FALSE(salta(BAUTISMO, {9, "40"}, {2, "5"})) << "going back into a hole is no jump";
  EXPECT_TRUE(salta(MATRIMONIO, {9, "40"}, {2, "5"}));
  EXPECT_EQ(mensajeSalto(BAUTISMO, {5, "14"}),
            "¡Se ha producido un salto, la siguiente partida a introducir es \n"
            "la correspondiente al folio 5, número 14!");
  EXPECT_EQ(mensajeSalto(MATRIMONIO, {5, "14"}),
            "¡Se ha producido un salto, la siguiente partida a introducir es la correspondiente "
            "al folio 5, número 14!");
}

}  // namespace
}  // namespace fidaleon
