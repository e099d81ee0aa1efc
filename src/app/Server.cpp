#include "app/Server.h"

#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iostream>

#include "parish/ParishFiles.h"
#include "parish/Preferences.h"
#include "parish/server/ServerLook.h"
#include "parish/server/ServerParish.h"
#include "store/postgres/Link.h"
#include "store/postgres/ServerAccess.h"
#include "support/Clocks.h"
#include "text/Numbers.h"

namespace fidaleon::app {
namespace {

volatile std::sig_atomic_t interrupted = 0;

/// Ctrl+C gives up the work instead of the program.
class Interruption {
 public:
  Interruption() {
    struct sigaction heed = {};
    heed.sa_handler = [](int) { interrupted = 1; };
    ::sigaction(SIGINT, &heed, &before_);
  }
  ~Interruption() { ::sigaction(SIGINT, &before_, nullptr); }
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

 private:
  struct sigaction before_ = {};
};

/// The terminal shows nothing of what is typed.
class NoEcho {
 public:
  NoEcho() {
    ::tcgetattr(STDIN_FILENO, &before_);
    termios silent = before_;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
  }
  ~NoEcho() {
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
    std::cerr << "\n";
  }
  NoEcho(const NoEcho&) = delete;
  NoEcho& operator=(const NoEcho&) = delete;

 private:
  termios before_ = {};
};

std::string firstLineOf(const std::filesystem::path& file) {
  std::ifstream in(file);
  std::string line;
  if (!std::getline(in, line))
    throw store::Error(store::ErrorKind::Missing,
                       "No se puede leer la contraseña de «" + file.string() + "».");
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

std::string asked(const store::ServerAddress& address) {
  std::cerr << "Contraseña de " << address.user << " para " << address.shown() << ": ";
  const Interruption heeded;
  const NoEcho silent;
  std::string password;
  std::getline(std::cin, password);
  if (interrupted != 0) throw store::Error(store::ErrorKind::Cancelled, "Se ha cancelado.");
  return password;
}

/// Enters once, so that a wrong password is found out here, and keeps one that is right.
void enter(const store::ServerAddress& address, const std::string& passwordFile) {
  std::string password = passwordFile.empty() ? "" : firstLineOf(passwordFile);
  for (int attempt = 1;; ++attempt) {
    try {
      const store::Link link(address, password.empty() ? store::passwordFor(address) : password);
      break;
    } catch (const store::Error& e) {
      const bool mayAsk = passwordFile.empty() && ::isatty(STDIN_FILENO) == 1 && attempt <= 3;
      if (e.number() != store::kWrongPassword || !mayAsk) throw;
      if (attempt > 1) std::cerr << e.what() << "\n";
    }
    password = asked(address);
  }
  if (!password.empty()) store::usePassword(address, password, store::Remember::Yes);
}

/// Throws std::invalid_argument with what is missing.
store::ServerAddress addressOf(const CommandLine& line) {
  auto address = addressFrom(line.with("--base"), line.with("--usuario"));
  if (!address)
    throw std::invalid_argument(
        "Hacen falta --base SERVIDOR[:PUERTO]/BASE y --usuario USUARIO, como en --base "
        "archivo.diocesis.es/sanblas --usuario ana.");
  const std::string certificate = line.with("--certificado");
  if (!certificate.empty())  // the desktop starts the program in another folder
    address->rootCertificate = std::filesystem::absolute(certificate).string();
  return *address;
}

std::string editionCode(const std::string& name) {
  for (const auto& [known, code] : editions())
    if (known == name) return code;
  throw std::invalid_argument("--edicion: no se conoce «" + name + "».");
}

void create(const CommandLine& line, const store::ServerAddress& address) {
  NewParish parish;
  parish.directory = line.path;
  parish.server = address;
  parish.name = line.with("--nueva");
  parish.user = accountName();
  parish.town = line.with("--poblacion");
  parish.province =
      static_cast<std::int32_t>(text::toInteger(line.with("--provincia")).value_or(0));
  parish.edition = editionCode(line.with("--edicion").empty() ? "Madrid" : line.with("--edicion"));
  const std::string missing = whatIsMissing(parish);
  if (!missing.empty()) throw std::invalid_argument(missing);
  createParish(parish, support::SystemClock().today());
}

/// On the terminal, on one line that is written over.
class Meter {
 public:
  bool operator()(int thousandths) {
    if (::isatty(STDERR_FILENO) == 1 && thousandths / 10 != shown_)
      std::cerr << "\r" << (shown_ = thousandths / 10) << " % " << std::flush;
    return interrupted == 0;
  }

 private:
  int shown_ = -1;
};

void clearLine() {
  if (::isatty(STDERR_FILENO) == 1) std::cerr << "\r      \r";
}

template <class Work>
int told(const Work& work) {
  try {
    work();
    return 0;
  } catch (const std::invalid_argument& e) {
    std::cerr << e.what() << "\nfidaleon --help muestra las opciones.\n";
    return 2;
  } catch (const std::exception& e) {
    clearLine();
    std::cerr << e.what() << "\n";
    return 1;
  }
}

void move(const CommandLine& line) {
  const std::filesystem::path to = line.with("--a");
  if (to.empty()) throw std::invalid_argument("Hace falta --a CARPETA: adónde se traslada.");
  std::optional<store::ServerAddress> address;
  if (!line.with("--base").empty()) {
    address = addressOf(line);
    enter(*address, line.with("--clave"));
  }
  const Interruption heeded;
  const support::SystemClock clock;
  auto meter = std::make_shared<Meter>();
  Moved moved;
  try {
    moved = moveParish({line.path, to, address}, accountName(),
                       text::toShort(clock.today()) + " a las " + clock.now(),
                       {[meter](int done) { return (*meter)(done); },
                        [](const std::string& sentence) {
                          clearLine();
                          std::cerr << sentence << "\n";
                        },
                        {}});
  } catch (const store::Error& e) {
    if (e.kind() != store::ErrorKind::Cancelled) throw;
    throw store::Error(e.kind(), "Se ha dejado a medias. La parroquia de «" + line.path.string() +
                                     "» no ha cambiado. Para seguir, dé otra vez la misma orden.");
  }
  clearLine();
  std::cout << "La parroquia está trasladada a «" << to.string() << "»: " << moved.spoken()
            << ", comparadas una por una.\nLa de «" << line.path.string()
            << "» sigue como estaba: guárdela, y que nadie siga anotando en ella.\n";
}

}  // namespace

int connectServer(const CommandLine& line) {
  return told([&] {
    const store::ServerAddress address = addressOf(line);
    enter(address, line.with("--clave"));
    const bool isNew = !line.with("--nueva").empty();
    const ServerLook look = lookAt(address);
    if (isNew ? !look.owns : !look.canBeJoined()) throw std::runtime_error(spoken(look, address));
    if (isNew)
      create(line, address);
    else
      connectParish(line.path, address);
    std::cout << "La carpeta «" << line.path.string() << "» es desde ahora la de la parroquia de "
              << address.shown() << ".\n";
  });
}

int printScript(const CommandLine& line) {
  return told([&] { std::cout << rolesScript(line.path.string()); });
}

int moveToServer(const CommandLine& line) {
  return told([&] { move(line); });
}

}  // namespace fidaleon::app
