#include <sys/stat.h>

#include <QAction>
#include <fstream>

#include "drafts/FormWatch.h"
#include "files/Machine.h"
#include "parish/Parish.h"
#include "window/LastWords.h"
#include "window/MainWindow.h"

namespace fidaleon::app::DraftsTest {

constexpr const char* NEW_ENTRY = "frmPartidaBautismo";
constexpr const char* BOOK = "frmPropiedadesLibroBautismo";

constexpr const char* BLANKS =
    "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?";

/// A program at work on the parish; another may take its place when it has ended.
struct Program {
  Program(const ParishFiles& files, const std::filesystem::path& drafts,
          support::MemorySettings& settings, support::FixedClock& clock)
      : folder(drafts),
        watch(user, folder, clock),
        desk(files, "Secretaría", watch, settings, clock),
        window(desk, &watch) {
    watch.workOn(files.parish());
  }
  void give(const std::string& command) { window.action(command)->trigger(); }

  forms::ScriptedUser user;
  DraftFolder folder;
  FormWatch watch;
  Desk desk;
  MainWindow window;
};

class Drafts : public ParishTest {
 protected:
  void SetUp() override { createParish(described(), clock.today(), fillSampleParish); }
  std::filesystem::path folder() const { return directory() / "borradores"; }
  std::unique_ptr<Program> program() {
    return std::make_unique<Program>(files(), folder(), settings, clock);
  }
  int left() const {
    int count = 0;
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(folder(), none))
      count += entry.path().extension() == ".borrador";
    return count;
  }
  /// Lets a program type, and kills it there: `typing` must call the driver's form and then die().
  void killWhile(const std::function<void(Program&)>& typing) {
    OtherProcess other([&](auto&) { typing(*program()); });
    ASSERT_TRUE(WIFSIGNALED(other.end())) << "was not killed";
  }
  static void die(Program& p) {
    p.watch.keep();
    ::raise(SIGKILL);
  }
  static void typeEntry(FormDriver& d) {
    d.choose("cboBautismo(22)", "San Blas");
    d.choose("cboBautismo(23)", "2014/01");
    d.tab("mstBautismo", 1);
    d.type("txtBautismo(7)", "Íñigo");
    d.type("txtBautismo(8)", "Zubiría");
    d.choose("cboBautismo(20)", "Hombre");
    d.type("adtpBautismo(0)", "01/02/2026");
  }
  static void accept(FormDriver& d) {
    d.tab("mstBautismo", 4);
    d.type("adtpBautismo(1)", "");  // the wedding is not of today
    d.click("cmdBautismo(0)");
  }
  static void expectAccepted(Program& p, Answer further) {
    p.user.expectMessage(BLANKS, Answer::Yes);
    p.user.expectMessage("¿Desea dar de alta nuevas partidas?", further);
  }
  /// The question is about the title that the form had when it opened.
  static std::string question(const std::string& caption) {
    return "Se ha recuperado lo que se estaba escribiendo el 20/05/2026 a las 10:30 en «" +
           caption +
           "».\n\n¿Desea seguir con ello? Si contesta que no, se descarta; si cancela, se guarda "
           "para más tarde.";
  }
};

class DraftsOfAnEntry : public Drafts, public testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(FirstAndFurther, DraftsOfAnEntry, testing::Bool());

TEST_P(DraftsOfAnEntry, Killed_TheEntryIsOfferedAndStandsThereAgain) {
  killWhile([further = GetParam()](Program& p) {
    p.user.expectForm(NEW_ENTRY, [&](FormDriver& d) {
      typeEntry(d);
      if (further) {
        d.type("txtBautismo(8)", "Otxoa");
        accept(d);
        typeEntry(d);
      }
      die(p);
    });
    if (further) expectAccepted(p, Answer::Yes);
    p.give("nueva-partida");
  });
  ASSERT_EQ(left(), 1);
  const auto next = program();
  next->user.expectMessage(question("Agregar partida de bautismo nueva"), Answer::Yes);
  next->user.expectForm(NEW_ENTRY, [&](FormDriver& d) {
    EXPECT_EQ(d.text("txtBautismo(7)"), "Íñigo");
    EXPECT_EQ(d.text("txtBautismo(8)"), "Zubiría");
    EXPECT_EQ(d.text("cboBautismo(20)"), "Hombre");
    EXPECT_EQ(d.text("cboBautismo(23)"), "2014/01");
    EXPECT_EQ(d.text("adtpBautismo(0)"), "01/02/2026");
    EXPECT_NE(d.text("txtLibro(1)"), "");  // proposed anew
    accept(d);
  });
  expectAccepted(*next, Answer::No);
  next->window.offerDrafts();
  EXPECT_THAT(next->user.problems(), IsEmpty());
  EXPECT_EQ(left(), 0);
}

TEST_F(Drafts, OfARecord_GoesBackOnlyOverWhatWasThere) {
  const auto id = static_cast<std::int32_t>([&] {
    const auto reader = program();
    return reader->window.choice().id;
  }());
  const auto typing = [&](Program& p) {
    p.user.expectForm(NEW_ENTRY, [&](FormDriver& d) {
      d.tab("mstBautismo", 1);
      d.type("txtBautismo(10)", "Calle Nueva, 3");
      die(p);
    });
    p.give("propiedades-partida");
  };
  const std::string asked =
      question("Propiedades de partida de bautismo antigua. Folio:1 número:1");
  killWhile(typing);
  {
    const auto next = program();
    next->user.expectMessage(asked, Answer::Cancel);
    next->window.offerDrafts();
    next->user.expectMessage(asked, Answer::Yes);
    next->user.expectForm(NEW_ENTRY, [](FormDriver& d) {
      EXPECT_EQ(d.text("txtBautismo(10)"), "Calle Nueva, 3");
      d.click("cmdBautismo(1)");
    });
    next->give("propiedades-partida");
    EXPECT_THAT(next->user.problems(), IsEmpty());
    EXPECT_EQ(left(), 0);
  }
  killWhile(typing);
  const auto next = program();
  next->desk.parish().Execute("UPDATE bautismo_hijo SET direccionnac=\"Otra\" WHERE codbautismo=" +
                              std::to_string(id));
  next->user.expectMessage(asked, Answer::Yes);
  next->user.expectForm("frmBorrador", [&](FormDriver& d) {
    EXPECT_THAT(d.text("lblMotivo"), HasSubstr("ha cambiado desde entonces"));
    EXPECT_THAT(d.text("txtBorrador"), HasSubstr("DIRECCION DE NACIMIENTO: Calle Nueva, 3"));
    d.click("cmdConservar");
  });
  next->user.expectForm(NEW_ENTRY, [](FormDriver& d) {
    EXPECT_EQ(d.text("txtBautismo(10)"), "Otra");
    d.click("cmdBautismo(1)");
  });
  next->window.offerDrafts();
  EXPECT_EQ(left(), 1);
  next->desk.parish().Execute("DELETE * FROM bautismo WHERE idbautismo=" + std::to_string(id));
  next->give("actualizar");
  next->user.expectMessage(asked, Answer::Yes);
  next->user.expectForm("frmBorrador", [&](FormDriver& d) {
    EXPECT_THAT(d.text("lblMotivo"), HasSubstr("ya no existe"));
    d.click("cmdCopiar");
    d.click("cmdDescartar");
  });
  next->window.offerDrafts();
  EXPECT_THAT(next->user.clipboardText(), HasSubstr("Calle Nueva, 3"));
  EXPECT_THAT(next->user.problems(), IsEmpty());
  EXPECT_EQ(left(), 0);
}

TEST_F(Drafts, Refused_GoesWithAllThatItsProgramHasLeft_AndStaysForItsOwnParish) {
  killWhile([](Program& p) {
    p.user.expectForm(NEW_ENTRY, [&](FormDriver& d) {
      typeEntry(d);
      die(p);
    });
    p.give("nueva-partida");
  });
  const std::vector<DraftFolder::Left> killed = DraftFolder(folder()).left();
  ASSERT_EQ(killed.size(), 1u);
  std::ofstream(std::filesystem::path(killed[0].file).replace_extension(".nuevo")) << "a medias";
  const auto next = program();
  next->watch.workOn(directory() / "otra");
  next->window.offerDrafts();
  EXPECT_EQ(left(), 1) << "it is of another parish";
  next->watch.workOn(files().parish());
  next->user.expectMessage(question("Agregar partida de bautismo nueva"), Answer::No);
  next->window.offerDrafts();
  next->window.offerDrafts();
  EXPECT_THAT(next->user.problems(), IsEmpty());
  EXPECT_TRUE(std::filesystem::is_empty(folder()));
}

TEST_F(Drafts, OfABook_BringsBackItsListAndTheEntryOverIt) {
  const auto choose = [](Program& p) {
    p.window.showNode("LibrosBautismo");
    p.window.chooseRow(1);
  };
  killWhile([&](Program& p) {
    choose(p);
    p.user.expectForm(BOOK, [&](FormDriver& d) {
      d.tab("mstLibro", 1);
      p.user.expectForm(NEW_ENTRY, [](FormDriver& e) {
        e.tab("mstBautismo", 1);
        e.type("txtBautismo(7)", "Garbiñe");
        e.type("txtBautismo(8)", "Otxoa");
        e.click("cmdBautismo(0)");
      });
      p.user.answerAnything(Answer::No);
      d.click("cmdPartidas(0)");
      d.row("msgPartidas", 3);
      d.click("cmdPartidas(2)");
      p.user.expectForm(NEW_ENTRY, [&](FormDriver& e) {
        e.tab("mstBautismo", 1);
        e.type("txtBautismo(7)", "Edurne");
        die(p);
      });
      d.click("cmdPartidas(0)");
    });
    p.give("propiedades-libro");
  });
  const auto next = program();
  const std::string over = "Agregar partida de bautismo antigua. Folio:21 número:84";
  next->user.expectMessage(question(over), Answer::Yes);
  next->user.expectMessage("También se estaba escribiendo en «" + over +
                               "». Vuelva a abrirla desde esta ventana y se pondrá lo que falta.",
                           Answer::Ok);
  next->user.expectForm(BOOK, [&](FormDriver& d) {
    d.tab("mstLibro", 1);
    const auto& list = d.get<forms::Grid>("msgPartidas");
    EXPECT_EQ(list.cell(list.rowCount(), 2), "Garbiñe");
    EXPECT_EQ(list.cell(3, 6), "SI");
    next->user.expectForm(NEW_ENTRY, [&](FormDriver& e) {
      EXPECT_EQ(e.text("txtBautismo(7)"), "Edurne");
      e.click("cmdBautismo(1)");
    });
    d.click("cmdPartidas(0)");
    d.click("cmdBoton(0)");
  });
  next->window.offerDrafts();
  EXPECT_THAT(next->user.problems(), IsEmpty());
  EXPECT_EQ(next->desk.parish()
                .Execute("SELECT codbautismo FROM bautismo_hijo WHERE nombre=\"Garbiñe\"")
                .RecordCount(),
            1);
  EXPECT_EQ(left(), 0);
}

TEST_F(Drafts, OfARunningProgram_AreNobodyElses_AndGoWhenTheFormIsGivenUp) {
  const auto one = program();
  const auto other = program();
  one->user.expectForm(NEW_ENTRY, [&](FormDriver& d) {
    typeEntry(d);
    EXPECT_TRUE(one->watch.keep());
    EXPECT_EQ(left(), 1);
    other->window.offerDrafts();
    EXPECT_THAT(other->user.problems(), IsEmpty());
    const LastWords words(one->watch);
    EXPECT_THAT(LastWords::prepare(), HasSubstr("se le ofrecerá"));
    d.click("cmdBautismo(1)");
  });
  one->give("nueva-partida");
  EXPECT_FALSE(one->watch.keep());
  EXPECT_EQ(left(), 0);
  EXPECT_THAT(one->user.problems(), IsEmpty());
}

TEST_F(Drafts, Files_AreTheOwnersAlone_AndLinksAreNotFollowed) {
  namespace fs = std::filesystem;
  const fs::path precious = directory() / "precioso.txt", mine = folder() / "mio.borrador";
  std::ofstream(precious) << "no tocar";
  {
    const mode_t lax = ::umask(0);
    DraftFolder drafts(folder());
    drafts.keep("uno");
    ::umask(lax);
    EXPECT_EQ(fs::status(folder()).permissions(), fs::perms::owner_all);
    for (const auto& entry : fs::directory_iterator(folder())) {
      if (entry.path().extension() != ".borrador") continue;
      EXPECT_EQ(entry.status().permissions(), fs::perms::owner_read | fs::perms::owner_write);
      fs::rename(entry.path(), mine);
      fs::create_symlink(precious, entry.path());
      break;
    }
    drafts.keep("dos");
    fs::create_symlink(precious, folder() / "ajeno.borrador");
  }
  EXPECT_EQ(fs::file_size(precious), 8u);
  std::string left;
  for (const DraftFolder::Left& l : DraftFolder(folder()).left()) left += l.content + ".";
  EXPECT_THAT(left, AllOf(HasSubstr("uno."), HasSubstr("dos."), Not(HasSubstr("no tocar"))));
}

}  // namespace fidaleon::app::DraftsTest
