#pragma once

#include <string>
#include <vector>

#include "core/contract/Entorno.h"

namespace fidaleon {

/// One key of the settings registry: a path with backslashes under an application, its values
/// and the keys under it. The store is not owned. Except for CreateKey, OpenKey and Handle, a
/// member used while no key is open throws std::logic_error.
class RegistryKey {
 public:
  explicit RegistryKey(Settings& almacen) : almacen_(almacen) {}

  /// Opens the key, making it when it is not there.
  void CreateKey(const std::string& aplicacion, const std::string& ruta);
  /// False, and nothing opened, when there is no such key.
  bool OpenKey(const std::string& aplicacion, const std::string& ruta);
  void CloseKey();
  /// 0 when no key is open; otherwise a number of its own for each opening.
  long Handle() const { return asa_; }

  /// Empty when there is no value of that name; the empty name is the key's own value.
  std::string Value(const std::string& nombre) const;
  void Value(const std::string& nombre, const std::string& valor);
  std::vector<std::string> ValueNames() const;
  std::vector<std::string> SubKeyNames() const;

  /// Deletes the key of this name under the open one with all that lies in it.
  void DeleteKey(const std::string& nombre);
  void DeleteValue(const std::string& nombre);

 private:
  void exigirAbierta() const;
  void abrir(const std::string& aplicacion, const std::string& ruta);

  Settings& almacen_;
  std::string aplicacion_;
  std::string ruta_;
  long asa_ = 0;
  long ultima_ = 0;
};

}  // namespace fidaleon
