#include "core/lists/ParProvinciaPoblacion.h"

#include <string>

#include "core/dialogs/Guard.h"
#include "core/lists/Memoria.h"

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
  provincia_.setPassedByEnter(true);
  poblacion_.offers = [this](const std::string& tecleado) { return proponer(tecleado); };
  poblacion_.onOffer = [this](const forms::Offer& lugar) { elegir(lugar.data); };
}

std::vector<forms::Offer> ParProvinciaPoblacion::proponer(const std::string& tecleado) const {
  std::vector<forms::Offer> lugares;
  if (!conexion_) return lugares;
  guarded(contexto_, provincia_.form().name(), "cboPoblacion_Change", [&] {
    Memoria& memoria = Memoria::de(contexto_);
    lugares =
        memoria.lugares.proponer(*conexion_, memoria.vocabulario, tecleado, provincia_.data());
  });
  return lugares;
}

void ParProvinciaPoblacion::elegir(std::int64_t idMunicipio) {
  if (!conexion_ || poblacion_.locked() || provincia_.locked()) return;
  guarded(contexto_, provincia_.form().name(), "cboPoblacion_Click", [&] {
    const store::Recordset fila = conexion_->Execute(
        "SELECT CodProvincia FROM Municipio WHERE IDMunicipio=" + std::to_string(idMunicipio));
    const std::int64_t suya = fila.EOF_() ? 0 : fila.integer("CodProvincia");
    if (suya == 0 || (provincia_.data() != suya && !provincia_.selectData(suya)) ||
        !poblacion_.selectData(idMunicipio))
      provincia_.form().ui().beep();
  });
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
