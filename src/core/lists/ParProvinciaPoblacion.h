#pragma once

#include <cstdint>

#include "core/contract/Contexto.h"
#include "forms/Controls.h"

namespace fidaleon {

/// A municipality on a dialog: a list of provinces and, of the chosen one, its towns. In the list
/// of towns, those of all provinces are found by typing. The lists are the dialog's.
class ParProvinciaPoblacion {
 public:
  ParProvinciaPoblacion(Contexto& contexto, forms::ComboBox& provincia, forms::ComboBox& poblacion);
  ParProvinciaPoblacion(const ParProvinciaPoblacion&) = delete;
  ParProvinciaPoblacion& operator=(const ParProvinciaPoblacion&) = delete;

  /// Fills the provinces, with none chosen. The connection is not owned.
  void abrir(FDAPI::Conexion& conexion);
  /// Shows a municipality; 0 and a key that does not exist show none.
  void poner(std::int32_t idMunicipio);
  /// Key of the chosen town, 0 when none is.
  std::int32_t valor() const { return static_cast<std::int32_t>(poblacion_.data()); }
  bool visible() const { return provincia_.visible(); }
  forms::ComboBox& poblacion() const { return poblacion_; }
  bool tiene(const forms::Control& lista) const {
    return &lista == &provincia_ || &lista == &poblacion_;
  }
  /// Chooses a municipality the way the user does: first the province, then the town. Locked lists
  /// stay as they are.
  void elegir(std::int64_t idMunicipio);
  /// Reads both lists anew and keeps what was chosen.
  void refrescar();
  /// The same without a town, which has been deleted.
  void olvidarPoblacion();

 private:
  std::vector<forms::Offer> proponer(const std::string& tecleado) const;
  void llenarPoblaciones(std::int32_t elegida);

  Contexto& contexto_;
  forms::ComboBox& provincia_;
  forms::ComboBox& poblacion_;
  FDAPI::Conexion* conexion_ = nullptr;
};

}  // namespace fidaleon
