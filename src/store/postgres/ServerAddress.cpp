#include "store/postgres/ServerAddress.h"

#include <algorithm>

#include "store/Error.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

/// What Debian keeps of those whom the world trusts.
constexpr const char* kTrusted = "/etc/ssl/certs/ca-certificates.crt";

void read(ServerAddress& address, std::string_view key, const std::string& value) {
  if (key == "servidor") address.host = value;
  if (key == "puerto") address.port = text::toInteger(value).value_or(0);
  if (key == "base") address.database = value;
  if (key == "usuario") address.user = value;
  if (key == "certificado") address.rootCertificate = value;
}

bool isLocal(std::string_view host) {
  return host.starts_with('/') || host.starts_with('@') || host == "localhost" || host == "::1" ||
         (host.starts_with("127.") && host.find_first_not_of("0123456789.") == host.npos);
}

}  // namespace

bool ServerAddress::isThisMachine() const {
  for (std::string_view rest = host; !rest.empty();) {
    const auto end = std::min(rest.find(','), rest.size());
    if (!isLocal(rest.substr(0, end))) return false;
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return true;
}

std::string ServerAddress::shown() const {
  return database + (isThisMachine() ? " en este equipo" : " en " + host);
}

std::string ServerAddress::written() const {
  return "servidor=" + host + "\npuerto=" + std::to_string(port) + "\nbase=" + database +
         "\nusuario=" + user + "\n" +
         (rootCertificate.empty() ? "" : "certificado=" + rootCertificate + "\n");
}

ServerAddress ServerAddress::parse(std::string_view text) {
  ServerAddress address;
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const auto sign = line.find('=');
    if (sign == std::string_view::npos) continue;
    read(address, text::trim(line.substr(0, sign)), text::trim(line.substr(sign + 1)));
  }
  if (address.host.empty() || address.database.empty() || address.user.empty() ||
      address.port < 1 || address.port > 65535)
    throw Error(ErrorKind::NotADatabase,
                "La dirección del servidor no está completa: hacen falta servidor, puerto, base y "
                "usuario.");
  return address;
}

ServerAddress::Parameters ServerAddress::parameters() const {
  Parameters all = {{"host", host},
                    {"port", std::to_string(port)},
                    {"dbname", database},
                    {"user", user},
                    {"client_encoding", "UTF8"},
                    {"connect_timeout", "10"},
                    {"keepalives", "1"},
                    {"keepalives_idle", "10"},
                    {"keepalives_interval", "5"},
                    {"keepalives_count", "3"},
                    {"tcp_user_timeout", "25000"},
                    {"gssencmode", "disable"}};
  // Of several servers the one that is written to: the others only follow it.
  if (host.find(',') != std::string::npos) all.emplace_back("target_session_attrs", "read-write");
  all.emplace_back("sslmode", isThisMachine() ? "prefer" : "verify-full");
  if (!isThisMachine())
    all.emplace_back("sslrootcert", rootCertificate.empty() ? kTrusted : rootCertificate);
  return all;
}

}  // namespace fidaleon::store
