#include "store/postgres/PasswordKeeper.h"

#include <sys/stat.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <mutex>

#include "files/AccountFolders.h"
#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "store/FileFault.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

std::string escaped(const std::string& field) {
  return text::replaceAll(text::replaceAll(field, "\\", "\\\\"), ":", "\\:");
}

std::string unescaped(std::string_view field) {
  std::string plain;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 1 < field.size()) ++i;
    plain += field[i];
  }
  return plain;
}

/// All of a line but the password. The folder of a local socket is a host too.
std::string beginning(const ServerAddress& address) {
  return escaped(address.host) + ":" + std::to_string(address.port) + ":" +
         escaped(address.database) + ":" + escaped(address.user) + ":";
}

}  // namespace

fs::path PassFile::defaultFile() {
  return files::configFolder() / "claves";
}

std::optional<std::string> PassFile::find(const ServerAddress& address) {
  files::narrow(file_);
  std::ifstream in(file_);
  const std::string wanted = beginning(address);
  for (std::string line; std::getline(in, line);)
    if (line.starts_with(wanted)) return unescaped(std::string_view(line).substr(wanted.size()));
  return std::nullopt;
}

void PassFile::keep(const ServerAddress& address, const std::string& password) {
  if (password.find_first_of("\r\n") != std::string::npos)
    throw Error(ErrorKind::Constraint, "Una contraseña no puede tener saltos de línea.");
  write(address, password);
}

void PassFile::forget(const ServerAddress& address) {
  if (find(address)) write(address, std::nullopt);
}

void PassFile::write(const ServerAddress& address, const std::optional<std::string>& password) {
  const std::string wanted = beginning(address);
  try {
    files::makeFolders(file_.parent_path());
    files::Replacement made(file_);
    std::ofstream out(made.passing());
    // Before anything is in it, also in a folder that several accounts share.
    if (::chmod(made.passing().c_str(), S_IRUSR | S_IWUSR) != 0)
      throw fs::filesystem_error("chmod", file_, {errno, std::generic_category()});
    std::ifstream in(file_);
    for (std::string line; std::getline(in, line);)
      if (!line.starts_with(wanted)) out << line << "\n";
    if (password) out << wanted << escaped(*password) << "\n";
    out.close();
    if (!out) throw fs::filesystem_error("write", file_, {ENOSPC, std::generic_category()});
    made.takeName();
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede guardar la contraseña en", file_, e.code());
  }
}

namespace {

std::unique_ptr<PasswordKeeper>& keeper() {
  static std::unique_ptr<PasswordKeeper> one = std::make_unique<PassFile>();
  return one;
}

/// What has been given since the program began.
struct Given {
  std::mutex alone;
  std::map<std::string, std::string> passwords;
};

Given& given() {
  static Given all;
  return all;
}

}  // namespace

PasswordKeeper& passwords() {
  return *keeper();
}

void keepPasswordsIn(std::unique_ptr<PasswordKeeper> other) {
  keeper() = std::move(other);
}

void usePassword(const ServerAddress& address, const std::string& password, Remember remember) {
  {
    const std::lock_guard guard(given().alone);
    given().passwords[beginning(address)] = password;
  }
  if (remember == Remember::Yes)
    passwords().keep(address, password);
  else
    passwords().forget(address);
}

std::string passwordFor(const ServerAddress& address) {
  {
    const std::lock_guard guard(given().alone);
    const auto known = given().passwords.find(beginning(address));
    if (known != given().passwords.end()) return known->second;
  }
  if (std::getenv("PGPASSWORD") != nullptr) return {};
  return passwords().find(address).value_or("");
}

}  // namespace fidaleon::store
