#pragma once

#include "support/Ficha.h"

namespace fidaleon::support {

/// An institution: new, or the one of the given key. Its short name, by which all lists show it,
/// is its own. A new one comes with its row of last values.
class frmInstitucion : public Ficha {
 public:
  frmInstitucion(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                 FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id = 0);

  enum Dato {
    Nombre,
    InstitucionTipo,
    InstitucionNombre,
    Domicilio,
    CP,
    Telefono,
    InstitucionEmail,
    CIF,
    Diocesis,
    Vicaria,
    Arciprestazgo,
    Parroco,
    EncargadoArchivo,
  };
  forms::ControlArray<forms::TextBox> txtInstitucion{*this, "txtInstitucion"};
  forms::ComboBox cboProvincia{*this, "cboProvincia", "PROVINCIA:"};
  forms::ComboBox cboPoblacion{*this, "cboPoblacion", "POBLACION:"};
  forms::Button cmdAltaProvincia{*this, "cmdAltaProvincia", "Agregar Provincia"};
  forms::Button cmdAltaPoblacion{*this, "cmdAltaPoblacion", "Agregar Población"};
  forms::Frame fraNombre{*this, "fraNombre", "INSTITUCION"};
  forms::Frame fraDomicilio{*this, "fraDomicilio", "DOMICILIO"};
  forms::Frame fraPersonas{*this, "fraPersonas", "DATOS PARA LOS DOCUMENTOS"};

 protected:
  void cargar() override;
  bool comprobar() override;
  void guardar() override;

 private:
  void makeLayout();
  void selectTown(std::int32_t town);
  void cboProvincia_Click();
  void cmdAltaProvincia_Click();
  void cmdAltaPoblacion_Click();
  void insert();
  void update();
  void ensureLastValues();
  /// As the list of columns, or of values, in one order.
  std::string columns() const;
  std::string values() const;
};

}  // namespace fidaleon::support
