#pragma once

#include <string>

#include "core/contract/Entorno.h"

namespace fidaleon::support {

/// Fills lists from the catalogues and keeps the widths of grids. A refill chooses the line asked
/// for and fires its click; the list is emptied first.
class Listas : public FDAPI::cIListas {
 public:
  /// `application` is the title under which widths are kept.
  Listas(Settings& settings, std::string application);

  void fillInstituciones(forms::ListControl& lista, std::int32_t id,
                         FDAPI::Conexion& conexion) override;
  void fillProvincias(forms::ListControl& lista, std::int32_t id, FDAPI::Conexion& conexion,
                      bool vacia = false, int modo = 0) override;
  void fillMunicipios(forms::ListControl& lista, std::int32_t idProvincia, std::int32_t idMunicipio,
                      bool vacia, FDAPI::Conexion& conexion) override;
  void ConfigGrid(forms::Grid& rejilla, const std::string& ruta) override;
  void SaveGrid(const forms::Grid& rejilla, const std::string& ruta) override;

 private:
  Settings& settings_;
  std::string application_;
};

}  // namespace fidaleon::support
