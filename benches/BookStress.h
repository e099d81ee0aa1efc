#pragma once
// Several workstations, each a process of its own, enter baptisms into the books of one parish
// file: from the tree and from the list of a book, into a new book and an old one. Afterwards the
// file is looked through for what must never happen.

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
#include "registers/books/LibroNuevo.h"
#include "registers/cBaseDatos.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::stress {

/// Ends with whichever comes first.
struct Amount {
  int entries;
  double seconds;
};

struct Outcome {
  int entered = 0;   // as the workstations count them
  int stored = 0;    // as the table does
  int listed = 0;    // as the lists of the books do: all five rows of each are there
  int repeated = 0;  // positions of the new book that are taken twice
  int missing = 0;   // positions of the new book that were skipped
  int faults = 0;    // workstations that did not end well, with what they told
  bool whole = false;
};

inline constexpr const char* NEW_BOOK = "Nuevo";
inline constexpr const char* OLD_BOOK = "Antiguo";

/// A user who enters children of ever new names, by keys and mouse alone.
class Secretary : public forms::ScriptedUser {
 public:
  explicit Secretary(int number) : number_(number) {}

  int entered = 0;
  int errors = 0;
  bool refused = false;  // by the locks, the last command
  const char* book = NEW_BOOK;

  void showModal(forms::Form& form) override {
    refused = false;
    form.focusFirst();
    forms::FormDriver d(form, problems_);
    if (form.name() == "frmPartidaBautismo")
      entry(d);
    else
      list(d);
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
    if (!d.locked("cboBautismo(23)")) {
      d.choose("cboBautismo(22)", "San Pedro");
      d.choose("cboBautismo(23)", book);
    }
    d.tab("mstBautismo", 1);
    d.type("txtBautismo(7)", "N" + std::to_string(++names_));
    d.type("txtBautismo(8)", "P" + std::to_string(number_) + "n" + std::to_string(names_));
    d.click("cmdBautismo(0)");
    if (!d.closed()) d.click("cmdBautismo(1)");
    if (accepted_ && !inList_) ++entered;
  }

  void list(forms::FormDriver& d) {
    if (!d.enabled("cmdBoton(0)")) {  // open elsewhere
      refused = true;
      return d.escape();
    }
    inList_ = true;
    int added = 0;
    d.tab("mstLibro", 1);
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
  int names_ = 0;
  bool accepted_ = false;
  bool inList_ = false;
  std::vector<std::string> problems_;
};

inline void createParish(const std::filesystem::path& file) {
  const auto connection = store::createDatabase(file, store::parishSchema());
  connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  for (const char* book : {NEW_BOOK, OLD_BOOK}) {
    const bool isNew = book == NEW_BOOK;
    insertarLibro(*connection, BAUTISMO, {1, isNew ? 3 : 1, 4, book, "20200101", isNew});
  }
}

/// One workstation's work; the baptisms it entered, or -1 when something went wrong.
inline int workstation(const std::filesystem::path& file, int number, Amount amount) {
  FDAPI::cConfig config{"Fidaleon", "", "puesto" + std::to_string(number), "Castellano", false};
  Secretary user(number);
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "EQUIPO" + std::to_string(number)};
  Entorno entorno{user, host, settings, clock, {}};
  cNucleo nucleo(entorno);
  const auto parish = store::openDatabase(file, store::parishSchema());
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(amount.seconds);
  for (int turn = number; user.entered < amount.entries && std::chrono::steady_clock::now() < end;
       ++turn) {
    user.refused = true;  // until a dialog opens
    user.book = turn % 2 == 0 ? NEW_BOOK : OLD_BOOK;
    switch (turn % 4) {
      case 0:
        nucleo.NuevaPartida(*parish, config, "PartidasBautismo");
        break;
      case 1:
        nucleo.AntiguaPartida(*parish, config, "PartidasBautismo");
        break;
      default:
        nucleo.PropiedadesLibro(*parish, turn % 4 - 1, config, "LibrosBautismo");
    }
    // A person reads the refusal and tries again.
    if (user.refused) std::this_thread::sleep_for(std::chrono::milliseconds(1 + number));
  }
  return user.errors == 0 ? user.entered : -1;
}

inline void lookThrough(const std::filesystem::path& file, Outcome& outcome) {
  support::MemorySettings settings;
  FDAPI::cConfig config;
  Secretary user(0);
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "EQUIPO"};
  Entorno entorno{user, host, settings, clock, {}};
  Contexto contexto(entorno);
  const auto parish = store::openDatabase(file, store::parishSchema());
  outcome.stored = static_cast<int>(parish->Execute("SELECT * FROM Bautismo").RecordCount());
  for (const std::int32_t book : {1, 2}) {
    ColeccionBautismo items;
    cBaseDatos(contexto).GrabarBasedatosColeccion(*parish, book, items);
    outcome.listed += static_cast<int>(items.size());
    if (book != 1) continue;
    std::set<std::string> positions;
    for (const cBautismo& item : items)
      if (!positions.insert(item.FolioBautismo + "/" + item.NumeroBautismo).second)
        ++outcome.repeated;
    for (std::size_t i = 1; i <= items.size(); ++i)
      outcome.missing += positions.contains(std::to_string(i) + "/" + std::to_string(i)) ? 0 : 1;
  }
  store::backupDatabase(*parish, file.string() + ".copia");  // throws when the file is broken
  outcome.whole = true;
}

/// `directory` is empty and takes the parish file.
inline Outcome run(const std::filesystem::path& directory, int processes, Amount each) {
  const std::filesystem::path file = directory / "parroquia.fid";
  createParish(file);
  int counts[2];
  if (::pipe(counts) != 0) std::abort();
  std::vector<pid_t> children;
  for (int number = 1; number <= processes; ++number) {
    const pid_t child = ::fork();
    if (child == 0) {
      int entered = -1;
      try {
        entered = workstation(file, number, each);
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
  lookThrough(file, outcome);
  return outcome;
}

}  // namespace fidaleon::stress
