#include "search/Family.h"
#include "search/SearchWorld.h"

namespace fidaleon::search {
namespace {

class Search : public ::testing::Test {
 protected:
  void bring() {
    IndexFile kept(world.file());
    Indexer indexer(world.con(), kept);
    while (indexer.takeNew()) {
    }
    while (indexer.compare()) {
    }
  }
  std::vector<std::string> find(const std::string& typed) {
    return world.codes(searcher.find(typed));
  }
  std::string why(const std::string& typed) {
    const Found found = searcher.find(typed);
    return found.hits.empty() ? "" : found.hits.front().why;
  }

  SearchWorld world;
  IndexFile index{world.file()};
  Searcher searcher{world.con(), index};
};

TEST_F(Search, finds_what_a_person_would_and_nothing_else) {
  bring();
  for (const std::string& line : linesOf("variantes.txt")) {
    std::string code = line.substr(0, line.find(' '));
    const char sign = code.front();
    if (sign == '!' || sign == '=') code.erase(0, 1);
    for (const std::string& typed : parted(line.substr(line.find(' ') + 1))) {
      const auto found = find(typed);
      if (sign == '!')
        EXPECT_THAT(found, Not(Contains(code))) << typed;
      else
        EXPECT_THAT(found, Contains(code)) << typed;
      if (sign == '=' && !found.empty()) {
        EXPECT_EQ(found.front(), code) << typed;
      }
    }
  }
}

TEST_F(Search, says_why_an_entry_was_found) {
  bring();
  for (const auto& [typed, reason] : std::vector<std::pair<const char*, const char*>>{
           {"wenceslao quesada llorente 1920", "nombre y apellidos; año 1920"},
           {"hugo jimenez", "nombre y apellido; «Giménez» suena igual"},
           {"mª dolores fernandez muñoz", "nombre y apellidos; «Fdez.» es «Fernandez»"},
           {"tomas llorente", "padrino: Tomás Llorente"},
           {"pepe luis cuesta", "nombre y apellido; «José», que también se dice «Pepe»"},
           {"quintana hilario zorrila", "nombre y apellidos; «Zorrilla» se aparta en una letra"},
           {"alfonso santos rio", "nombre y apellidos; apellidos en otro orden"},
           {"ana martin gil", "nombre y apellido; no consta el segundo apellido"},
           {"eloy jose reyes mallo", "nombre y apellidos; falta «Jose»"},
           {"hugo 2026", "nombre; año 2026"},
           {"28/09/1920", "el 28/09/1920"},
           {"20/09/1920 wenceslao", "nombre; nacimiento el 20/09/1920"},
           {"colomer colaboradora", "apellido"}})
    EXPECT_EQ(why(typed), reason) << typed;
}

TEST_F(Search, looks_each_entry_up_before_it_is_shown) {
  bring();
  world.con().Execute("UPDATE Bautismo_Hijo SET Nombre=\"Ramiro\" WHERE Nombre=\"Wenceslao\"");
  world.con().Execute("DELETE * FROM Padron WHERE Nombre=\"Begoña\"");
  const Found found = searcher.find("wenceslao quesada");
  EXPECT_THAT(world.codes(found), ElementsAre("D3"));
  EXPECT_THAT(found.stale, ElementsAre(std::pair(Register::Baptism, world.key("B7"))));
  EXPECT_THAT(find("zaballa padron"), IsEmpty());
}

// Another desk, an older program and a copy that was returned to leave no other trace.
TEST_F(Search, catches_up_with_whatever_was_stored_meanwhile) {
  bring();
  world.con().Execute("UPDATE Bautismo_Hijo SET Nombre=\"Ramiro\" WHERE Nombre=\"Wenceslao\"");
  world.con().Execute("DELETE * FROM Padron WHERE Nombre=\"Begoña\"");
  world.add("B99", row("de=Casilda|Nuño|Nuño"));
  EXPECT_THAT(find("ramiro quesada"), IsEmpty());
  bring();
  EXPECT_THAT(find("ramiro quesada"), ElementsAre("B7"));
  EXPECT_THAT(find("casilda"), ElementsAre("B99"));
  EXPECT_THAT(searcher.find("zaballa padron").stale, IsEmpty());
}

TEST_F(Search, makes_a_damaged_or_missing_index_anew_and_keeps_it_to_its_account) {
  bring();
  namespace fs = std::filesystem;
  EXPECT_EQ(fs::status(world.file()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  std::ofstream(world.file()) << std::string(9000, 'x');
  EXPECT_THROW(IndexFile{world.file()}, store::Error);
  IndexFile anew(world.file());
  EXPECT_FALSE(index.isInPlace());
  Indexer(world.con(), anew).refresh(Register::Death, {world.key("D5")});
  EXPECT_THAT(world.codes(Searcher(world.con(), anew).find("quesada")), ElementsAre("D5"));
}

/// "+M1" for what is clear, "?M1" for what is doubtful, with its kinship in front.
std::vector<std::string> family(SearchWorld& world, Searcher& searcher, const char* code) {
  std::vector<std::string> all;
  const auto in = static_cast<Register>(std::string("BCMDP").find(code[0]));
  for (const FamilyPage& page : familyOf(world.con(), searcher, in, world.key(code)))
    for (const Kin& kin : page.kin)
      all.push_back(std::to_string(static_cast<int>(kin.kinship)) + (kin.sure ? "+" : "?") +
                    world.codes({{kin.hit}, false, true, {}}).front());
  return all;
}

TEST_F(Search, puts_a_person_and_the_family_together) {
  bring();
  // Herself; the wedding of her parents.
  EXPECT_THAT(family(world, searcher, "B1"), ElementsAre("0+B1", "0+C1", "0+M1", "0+D2", "1+M3"));
  // His spouse makes an own marriage sure; his sister; nobody with another mother.
  EXPECT_THAT(family(world, searcher, "B10"),
              ElementsAre("0+B10", "0+C2", "0+M2", "1+M4", "2+B11"));
  // Of a marriage both, with their children.
  EXPECT_THAT(family(world, searcher, "M5"), ElementsAre("0+M5", "3+B9", "0+M5", "3+B9"));
  // Only the name agrees.
  EXPECT_THAT(family(world, searcher, "D3"), ElementsAre("0+B7", "0+D3"));
  EXPECT_THAT(family(world, searcher, "C4"), ElementsAre("0+C4"));
  world.add("B98",
            row("de=Teófilo|Quesada|Cuesta; dia=18800101; nac=18791230; libro=I; folio=1; num=1"));
  bring();
  EXPECT_THAT(family(world, searcher, "D5"), ElementsAre("0+D5", "0?B98"));
  // Nobody is confirmed after the own death.
  const std::string who =
      "de=Máximo|Cabezas|Vivas; padre=Félix Cabezas; madre=Sixta Vivas; libro=I";
  world.add("D97", row((who + "; folio=1; num=1; dia=19050101").c_str()));
  world.add("C97", row((who + "; folio=1; num=1; dia=19110101").c_str()));
  bring();
  EXPECT_THAT(family(world, searcher, "B25"), ElementsAre("0+B25", "0?D97", "0?C97"));
}

}  // namespace
}  // namespace fidaleon::search
