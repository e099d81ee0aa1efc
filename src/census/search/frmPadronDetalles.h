#pragma once

#include <cstdint>
#include <string>

#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// The card of a person, to be read only. Set the public fields, then Show(). A person who is no
/// longer there is told, and nothing opens.
class frmPadronDetalles : public Dialogo {
 public:
  explicit frmPadronDetalles(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  std::int32_t IDPadron = 0;

  enum Linea {
    NOMBRE,
    DNI,
    ESTADO_CIVIL,
    DIRECCION,
    TELEFONO,
    PROFESION,
    INSTITUCION,
    POSICION_FAMILIAR,
    FECHA_NACIMIENTO,
    PADRE,
    MADRE,
    LUGAR_NACIMIENTO,
  };

  forms::ControlArray<forms::TextBox> txtDetalle;
  forms::Button cmdAceptar;

 protected:
  void Form_Load() override;

 private:
  void CargaDetallesEmpadronado();
  void cargarNacimiento();
  void poner(Linea linea, const std::string& texto);
  /// "town (province)", "---" for none.
  std::string lugar(std::int64_t idMunicipio);
  std::string institucion(std::int64_t idInstitucion);
};

}  // namespace fidaleon
