#include "core/lists/ParProvinciaPoblacion.h"

#include <string>

#include "core/contract/Guard.h"

namespace fidaleon {

ParProvinciaPoblacion::ParProvinciaPoblacion(Contexto& contexto, forms::ComboBox& provincia,
                                             forms::ComboBox& poblacion)
    : contexto_(contexto), provincia_(provincia), poblacion_(poblacion) {
  provincia_.onClick = [this] {
    guarded(contexto_, provincia_.form().name(), "cboProvincia_Click",
            [this] { llenarPoblaciones(0); });
  };
  provincia_.onKeyPress = [this](forms::KeyPress& tecla) {
    contexto_.fidaleon()->Comprobar_borrarcombo(tecla, provincia_);
    if (provincia_.listIndex() < 0) poblacion_.clear();
  };
  poblacion_.onKeyPress = [this](forms::KeyPress& tecla) {
    contexto_.fidaleon()->Comprobar_borrarcombo(tecla, poblacion_);
  };
}

void ParProvinciaPoblacion::abrir(FDAPI::Conexion& conexion) {
  conexion_ = &conexion;
  poblacion_.clear();
  provincia_.clear();
  contexto_.entorno.support.create_cIListas()->fillProvincias(provincia_, 0, conexion);
}

void ParProvinciaPoblacion::poner(std::int32_t idMunicipio) {
  provincia_.setListIndex(-1);
  poblacion_.clear();
  if (idMunicipio == 0) return;
  const store::Recordset fila = conexion_->Execute(
      "SELECT CodProvincia FROM Municipio WHERE IDMunicipio=" + std::to_string(idMunicipio));
  if (fila.EOF_() || !provincia_.selectData(fila.integer("CodProvincia"))) return;
  poblacion_.selectData(idMunicipio);
}

void ParProvinciaPoblacion::refrescar() {
  const std::int64_t provincia = provincia_.data();
  const std::int32_t poblacion = valor();
  abrir(*conexion_);
  if (provincia_.selectData(provincia)) poblacion_.selectData(poblacion);
}

void ParProvinciaPoblacion::llenarPoblaciones(std::int32_t elegida) {
  poblacion_.clear();
  if (!conexion_ || provincia_.listIndex() < 0) return;
  contexto_.entorno.support.create_cIListas()->fillMunicipios(
      poblacion_, static_cast<std::int32_t>(provincia_.data()), elegida, false, *conexion_);
}

}  // namespace fidaleon
