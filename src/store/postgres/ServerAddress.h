#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fidaleon::store {

/// Where on a PostgreSQL server the databases of a parish lie, and as whom it is entered. Never
/// holds a password.
struct ServerAddress {
  std::string host;  // name or number, several with commas between, or the folder of a local socket
  int port = 5432;
  std::string database;
  std::string user;
  std::string rootCertificate;  // a file; empty: those that this machine trusts

  /// The server, and each that may take its place, is on this machine, so that nobody can stand in
  /// between.
  bool isThisMachine() const;
  /// For a user to read: "parroquia en archivo.diocesis.es".
  std::string shown() const;
  /// Lines "clave=valor" with the keys servidor, puerto, base, usuario and certificado.
  std::string written() const;
  /// Reads them back; others are passed over. Throws NotADatabase where server, database or user
  /// is missing or the port is none.
  static ServerAddress parse(std::string_view text);

  using Parameters = std::vector<std::pair<std::string, std::string>>;
  /// As the library wants them, so that a dead server or a cut cable is noticed within half a
  /// minute, and a server on another machine is believed only with a certificate of its name.
  Parameters parameters() const;

  friend bool operator==(const ServerAddress&, const ServerAddress&) = default;
};

}  // namespace fidaleon::store
