#pragma once
// Several workstations, each a process of its own, enter people into the books of one register of
// one parish file: from the tree and from the list of a book, into a new book and an old one.
// Afterwards the file is looked through for what must never happen.

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "core/facade/cNucleo.h"
#include "forms/ScriptedUser.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/LibroNuevo.h"
#include "registers/books/frmPropiedadesLibro.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"
#include "registers/death/frmPartidaDefuncion.h"
#include "registers/marriage/frmPartidaMatrimonio.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::stress {

/// Where the dialog of a register has what must be filled in.
struct Kind {
  const Sacramento& sacrament;
  int institution, book;  // lists
  struct Person {
    int tab, name;  // the surname follows
  };
  std::vector<Person> people;

  std::string control(const char* prefix, int index) const {
    return std::string(prefix) + sacrament.palabra + "(" + std::to_string(index) + ")";
  }
};

inline const Kind KINDS[] = {
    {BAUTISMO,
     frmPartidaBautismo::Institucion,
     frmPartidaBautismo::Libro,
     {{frmPartidaBautismo::TAB_BAUTIZADO, frmPartidaBautismo::NombreHijo}}},
    {CONFIRMACION,
     frmPartidaConfirmacion::Institucion,
     frmPartidaConfirmacion::Libro,
     {{frmPartidaConfirmacion::TAB_CONFIRMADO, frmPartidaConfirmacion::Nombre}}},
    {MATRIMONIO,
     frmPartidaMatrimonio::Institucion,
     frmPartidaMatrimonio::Libro,
     {{frmPartidaMatrimonio::TAB_PERSONALES, frmPartidaMatrimonio::Nombre},
      {frmPartidaMatrimonio::TAB_PERSONALES + frmPartidaMatrimonio::TABS_DE_NOVIA,
       frmPartidaMatrimonio::NOVIA + frmPartidaMatrimonio::Nombre}}},
    {DEFUNCION,
     frmPartidaDefuncion::Institucion,
     frmPartidaDefuncion::Libro,
     {{frmPartidaDefuncion::TAB_DIFUNTO, frmPartidaDefuncion::Nombre}}},
};

/// Ends with whichever comes first.
struct Amount {
  int entries;
  double seconds;
};

struct Outcome {
  int entered = 0;   // as the workstations count them
  int stored = 0;    // as the table does
  int listed = 0;    // as the lists of the books do: all rows of each are there
  int repeated = 0;  // positions of the new book that are taken twice
  int missing = 0;   // positions of the new book that were skipped
  int faults = 0;    // workstations that did not end well, with what they told
  bool whole = false;
};

inline constexpr const char* NEW_BOOK = "Nuevo";
inline constexpr const char* OLD_BOOK = "Antiguo";

/// A user who enters people of ever new names, by keys and mouse alone.
class Secretary : public forms::ScriptedUser {
 public:
  Secretary(int number, const Kind& kind) : number_(number), kind_(kind) {}

  int entered = 0;
  int errors = 0;
  bool refused = false;  // by the locks, the last command
  const char* book = NEW_BOOK;

  void showModal(forms::Form& form) override {
    refused = false;
    form.focusFirst();
    forms::FormDriver d(form, problems_);
    form.name().starts_with("frmPartida") ? entry(d) : list(d);
    form.Unload();
    errors += static_cast<int>(problems_.size());
    problems_.clear();
  }

  forms::Answer showMessage(const forms::Message& message) override {
    if (message.icon == forms::MsgIcon::Critical) {
      ++errors;
      std::fprintf(stderr, "%s\n", message.text.c_str());
    }
    if (message.text == "¿Desea dar de alta nuevas partidas?") {
      accepted_ = true;
      return forms::Answer::No;
    }
    return message.buttons == forms::MsgButtons::Ok ? forms::Answer::Ok : forms::Answer::Yes;
  }

 private:
  void entry(forms::FormDriver& d) {
    accepted_ = false;
    if (!d.locked(kind_.control("cbo", kind_.book))) {
      d.choose(kind_.control("cbo", kind_.institution), "San Pedro");
      d.choose(kind_.control("cbo", kind_.book), book);
    }
    for (const Kind::Person& person : kind_.people) {
      d.tab(std::string("mst") + kind_.sacrament.palabra, person.tab);
      d.type(kind_.control("txt", person.name), "N" + std::to_string(++names_));
      d.type(kind_.control("txt", person.name + 1),
             "P" + std::to_string(number_) + "n" + std::to_string(names_));
    }
    d.click(kind_.control("cmd", 0));
    if (!d.closed()) d.click(kind_.control("cmd", 1));
    if (accepted_ && !inList_) ++entered;
  }

  void list(forms::FormDriver& d) {
    if (!d.enabled("cmdBoton(0)")) {  // open elsewhere
      refused = true;
      return d.escape();
    }
    inList_ = true;
    int added = 0;
    d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
    for (int i = 0; i < 2; ++i) {
      accepted_ = false;
      d.click("cmdPartidas(0)");
      added += accepted_ ? 1 : 0;
    }
    inList_ = false;
    d.click("cmdBoton(0)");
    if (d.closed())
      entered += added;
    else
      d.escape();
    refused = added == 0;
  }

  int number_;
  const Kind& kind_;
  int names_ = 0;
  bool accepted_ = false;
  bool inList_ = false;
  std::vector<std::string> problems_;
};

/// A parish with whoever sits before it.
struct Desk {
  Desk(forms::UserInterface& u, const std::filesystem::path& file, const std::string& name)
      : user(u),
        config{"Fidaleon", "", name, "Castellano", false},
        host{user, settings, clock, config, name},
        parish(store::openDatabase(file, store::parishSchema())) {}

  forms::UserInterface& user;
  FDAPI::cConfig config;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host;
  Entorno entorno{user, host, settings, clock, {}};
  cNucleo nucleo{entorno};
  std::unique_ptr<store::Connection> parish;
};

inline void createParish(const std::filesystem::path& file, const Kind& kind) {
  const auto connection = store::createDatabase(file, store::parishSchema());
  connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  for (const char* book : {NEW_BOOK, OLD_BOOK}) {
    const bool isNew = book == NEW_BOOK;
    insertarLibro(*connection, kind.sacrament, {1, isNew ? 3 : 1, 4, book, "20200101", isNew});
  }
}

/// One workstation's work; the entries it made, or -1 when something went wrong.
inline int workstation(const std::filesystem::path& file, int number, Amount amount,
                       const Kind& kind) {
  Secretary user(number, kind);
  Desk desk(user, file, "puesto" + std::to_string(number));
  const std::string word = kind.sacrament.palabra;
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(amount.seconds);
  for (int turn = number; user.entered < amount.entries && std::chrono::steady_clock::now() < end;
       ++turn) {
    user.refused = true;  // until a dialog opens
    user.book = turn % 2 == 0 ? NEW_BOOK : OLD_BOOK;
    switch (turn % 4) {
      case 0:
        desk.nucleo.NuevaPartida(*desk.parish, desk.config, "Partidas" + word);
        break;
      case 1:
        desk.nucleo.AntiguaPartida(*desk.parish, desk.config, "Partidas" + word);
        break;
      default:
        desk.nucleo.PropiedadesLibro(*desk.parish, turn % 4 - 1, desk.config, "Libros" + word);
    }
    // A person reads the refusal and tries again.
    if (user.refused) std::this_thread::sleep_for(std::chrono::milliseconds(1 + number));
  }
  return user.errors == 0 ? user.entered : -1;
}

inline void lookThrough(const std::filesystem::path& file, const Kind& kind, Outcome& outcome) {
  Secretary user(0, kind);
  Desk desk(user, file, "puesto");
  Contexto contexto(desk.entorno);
  const auto rows =
      desk.parish->Execute(sentencia(kind.sacrament, "SELECT * FROM {Partidas}")).RecordCount();
  outcome.stored = static_cast<int>(rows);
  for (const std::int32_t book : {1, 2}) {
    const auto dialog = propiedadesDeLibro(kind.sacrament)(contexto);
    dialog->conBaseDatos = desk.parish.get();
    dialog->lngLibro = book;
    dialog->Load();
    const forms::Grid& list = dialog->msgPartidas;
    std::set<std::string> positions;
    for (int row = 1; row <= list.rowCount(); ++row)
      if (!positions.insert(list.cell(row, 0) + "/" + list.cell(row, 1)).second && book == 1)
        ++outcome.repeated;
    for (int i = 1; book == 1 && i <= list.rowCount(); ++i)
      outcome.missing += positions.contains(std::to_string(i) + "/" + std::to_string(i)) ? 0 : 1;
    outcome.listed += list.rowCount();
    dialog->Unload();
  }
  store::backupDatabase(*desk.parish, file.string() + ".copia");  // throws when it is broken
  outcome.whole = true;
}

/// `directory` is empty and takes the parish file.
inline Outcome run(const std::filesystem::path& directory, int processes, Amount each,
                   const Kind& kind) {
  const std::filesystem::path file = directory / "parroquia.fid";
  createParish(file, kind);
  int counts[2];
  if (::pipe(counts) != 0) std::abort();
  std::vector<pid_t> children;
  for (int number = 1; number <= processes; ++number) {
    const pid_t child = ::fork();
    if (child == 0) {
      int entered = -1;
      try {
        entered = workstation(file, number, each, kind);
      } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
      }
      const bool told = ::write(counts[1], &entered, sizeof entered) == sizeof entered;
      ::_exit(told ? 0 : 1);
    }
    children.push_back(child);
  }
  Outcome outcome;
  ::close(counts[1]);
  int ended = 0;
  for (int entered = 0; ::read(counts[0], &entered, sizeof entered) == sizeof entered; ++ended)
    entered < 0 ? ++outcome.faults : outcome.entered += entered;
  outcome.faults += processes - ended;
  ::close(counts[0]);
  for (const pid_t child : children) ::waitpid(child, nullptr, 0);
  lookThrough(file, kind, outcome);
  return outcome;
}

}  // namespace fidaleon::stress
