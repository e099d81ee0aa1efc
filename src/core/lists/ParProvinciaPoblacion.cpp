#include "core/lists/ParProvinciaPoblacion.h"

#include <string>

#include "core/dialogs/Guard.h"

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
  contexto_.entorno.support.create_cIListas()->fillProvincias(provincia_, 0, conexion);
  poblacion_.clear();
}

void ParProvinciaPoblacion::poner(std::int32_t idMunicipio) {
  provincia_.setListIndex(-1);
  poblacion_.clear();
  if (idMunicipio == 0) return;
  const store::Recordset fila = conexion_->Execute("SELECT * FROM Municipio WHERE IDMunicipio=" +
                                                   std::to_string(idMunicipio));
  if (fila.EOF_() || !provincia_.selectData(fila.integer("CodProvincia"))) return;
  poblacion_.selectData(idMunicipio);
}

// A town whose list cannot be read again stays chosen; without it the record would lose it.
void ParProvinciaPoblacion::refrescar() {
  const std::int64_t provincia = provincia_.data();
  const std::int32_t elegida = valor();
  const std::string nombre = poblacion_.text();
  abrir(*conexion_);
  if (!provincia_.selectData(provincia) || elegida == 0 || poblacion_.selectData(elegida)) return;
  poblacion_.addItem(nombre, elegida);
  poblacion_.selectData(elegida);
}

void ParProvinciaPoblacion::olvidarPoblacion() {
  const std::int64_t provincia = provincia_.data();
  abrir(*conexion_);
  provincia_.selectData(provincia);
}

void ParProvinciaPoblacion::llenarPoblaciones(std::int32_t elegida) {
  poblacion_.clear();
  if (!conexion_ || provincia_.listIndex() < 0) return;
  contexto_.entorno.support.create_cIListas()->fillMunicipios(
      poblacion_, static_cast<std::int32_t>(provincia_.data()), elegida, false, *conexion_);
}

}  // namespace fidaleon
