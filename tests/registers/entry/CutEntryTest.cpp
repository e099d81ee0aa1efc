// A new entry whose server goes while it is accepted, and comes back.

#include "registers/entry/EntryWorld.h"
#include "support/Relay.h"

namespace fidaleon::tests {

class CutEntry : public EntryWorld {
 protected:
  CutEntry() {
    w.parish = std::make_unique<store::Connection>(
        std::make_unique<store::PostgresEngine>(relay.address()), store::parishSchema(),
        (w.directory.path() / "parroquia.servidor").string());
    town = w.municipio("Alcalá de Henares", "Madrid");
    parish = w.institucion("San Pedro", town);
    book("Libro 1");
    w.user.answerAnything(Answer::Yes);
  }
  ~CutEntry() override { w.parish.reset(); }

  PostgresDatabase database{modelOf(store::parishSchema())};
  TempDirectory folder;
  Relay relay{database.address(), folder.path()};
};
INSTANTIATE_TEST_SUITE_P(Registers, CutEntry, EVERY_ENTRY, wordOf);

TEST_P(CutEntry, IsKeptInTheDialogAndStoredOnce) {
  const char* const lost = "vuelva a aceptar";
  const std::string last = "INSERT INTO \"" + store::parishSchema().find(k.lastRow)->name();
  const struct {
    const char* person;
    std::string where;
    Relay::Cut cut;
    bool comesBack;            // at once
    const char *first, *then;  // what the one acceptance ends with, and the next
  } cases[] = {
      {"Ana", last, Relay::Cut::Before, true, lost, FURTHER_ENTRY},
      {"Eva", "", Relay::Cut::Before, false, lost, FURTHER_ENTRY},
      {"Luz", Relay::COMMIT, Relay::Cut::Before, true, lost, FURTHER_ENTRY},
      {"Sol", Relay::COMMIT, Relay::Cut::Behind, true, FURTHER_ENTRY, nullptr},
      {"Paz", Relay::COMMIT, Relay::Cut::Behind, false, "no puede saberse", "sí quedó guardado"},
  };
  int stored = 0;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.person);
    openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
      chooseBook(d, "Libro 1");
      typePerson(d, c.person, std::string("De ") + c.person, "Otro");
      relay.stayOpen(c.comesBack);
      relay.cutAt(c.where, c.cut);
      accept(d);
      EXPECT_THAT(w.user.messages().back().text, HasSubstr(c.first));
      relay.open();
      if (c.then == nullptr) return;
      EXPECT_EQ(d.text(name()), c.person);
      accept(d);
      EXPECT_THAT(w.user.messages().back().text, HasSubstr(c.then));
    });
    EXPECT_EQ(entries(), ++stored);
    EXPECT_EQ(w.count(k.lastRow), stored);
    EXPECT_EQ(w.count(std::string(k.person) + " WHERE Nombre=\"" + c.person + "\""), 1);
  }
}

}  // namespace fidaleon::tests
