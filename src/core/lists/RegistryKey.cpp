#include "core/lists/RegistryKey.h"

#include <set>
#include <stdexcept>

namespace fidaleon {

namespace {

// A key without values would leave no trace in the store.
constexpr const char* PROPIO = "";

/// The part of `ruta` below `clave`, or nothing when it lies elsewhere.
std::string debajo(const std::string& clave, const std::string& ruta) {
  const std::string raiz = clave + "\\";
  return ruta.starts_with(raiz) ? ruta.substr(raiz.size()) : std::string();
}

}  // namespace

void RegistryKey::CreateKey(const std::string& aplicacion, const std::string& ruta) {
  if (OpenKey(aplicacion, ruta)) return;
  almacen_.write(aplicacion, ruta, PROPIO, "");
  abrir(aplicacion, ruta);
}

bool RegistryKey::OpenKey(const std::string& aplicacion, const std::string& ruta) {
  CloseKey();
  for (const Settings::Name& n : almacen_.names(aplicacion)) {
    if (n.section != ruta && debajo(ruta, n.section).empty()) continue;
    abrir(aplicacion, ruta);
    return true;
  }
  return false;
}

void RegistryKey::CloseKey() {
  asa_ = 0;
}

std::string RegistryKey::Value(const std::string& nombre) const {
  exigirAbierta();
  return almacen_.read(aplicacion_, ruta_, nombre);
}

void RegistryKey::Value(const std::string& nombre, const std::string& valor) {
  exigirAbierta();
  almacen_.write(aplicacion_, ruta_, nombre, valor);
}

std::vector<std::string> RegistryKey::ValueNames() const {
  exigirAbierta();
  std::vector<std::string> nombres;
  for (const Settings::Name& n : almacen_.names(aplicacion_))
    if (n.section == ruta_ && n.key != PROPIO) nombres.push_back(n.key);
  return nombres;
}

std::vector<std::string> RegistryKey::SubKeyNames() const {
  exigirAbierta();
  std::set<std::string> nombres;
  for (const Settings::Name& n : almacen_.names(aplicacion_)) {
    const std::string resto = debajo(ruta_, n.section);
    if (!resto.empty()) nombres.insert(resto.substr(0, resto.find('\\')));
  }
  return {nombres.begin(), nombres.end()};
}

void RegistryKey::DeleteKey(const std::string& nombre) {
  exigirAbierta();
  const std::string clave = ruta_ + "\\" + nombre;
  for (const Settings::Name& n : almacen_.names(aplicacion_))
    if (n.section == clave || !debajo(clave, n.section).empty())
      almacen_.remove(aplicacion_, n.section, n.key);
}

void RegistryKey::DeleteValue(const std::string& nombre) {
  exigirAbierta();
  almacen_.remove(aplicacion_, ruta_, nombre);
}

void RegistryKey::exigirAbierta() const {
  if (asa_ == 0) throw std::logic_error("No hay ninguna clave abierta.");
}

void RegistryKey::abrir(const std::string& aplicacion, const std::string& ruta) {
  aplicacion_ = aplicacion;
  ruta_ = ruta;
  asa_ = ++ultima_;
}

}  // namespace fidaleon
