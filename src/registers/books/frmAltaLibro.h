#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/contract/Sacramento.h"
#include "core/lists/DialogoConMemoria.h"
#include "core/lists/Elecciones.h"
#include "core/statements/Sentencia.h"

namespace fidaleon {

/// How the dialog of one sacrament differs from its sisters.
struct VarianteAltaLibro;

/// Creation of a book. Set the public fields, then Show(). What was created is found in the store;
/// a cancelled dialog leaves nothing behind.
class frmAltaLibro : public DialogoConMemoria {
 public:
  /// When not 0, the book can only be of this institution.
  std::int32_t lngInstitucion = 0;
  /// Name of the book that was created; empty when none was.
  std::string strAgregado;

  forms::ComboBox cboInstituciones;
  forms::Button cmdAgregarInstitucion;
  forms::OptionButton optNuevo;
  forms::OptionButton optAntiguo;
  forms::ComboBox cboTipoNombre;
  forms::TextBox txtNombreLibro;
  forms::ComboBox cboFormato;
  forms::DateField adtpAltaLibro;
  forms::ControlArray<forms::Button> cmdBoton;
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

 protected:
  frmAltaLibro(Contexto& contexto, const Sacramento& sacramento);
  void Form_Load() override;

 private:
  void cboInstituciones_Click();
  void cmdAgregarInstitucion_Click();
  void optNuevo_Click();
  void optAntiguo_Click();
  void cboTipoNombre_Click();
  void cmdBoton_Click(Boton boton);
  bool ValidarDatos();
  bool GuardarDatos();

  void prepararControles();
  void cargarInstituciones();
  void vaciarInstituciones();
  void construirNombre();
  void aceptar();
  void avisarFalta();
  void rechazar(const std::string& mensaje);
  bool hayFilas(const std::string& sql);
  std::string institucion() const;
  std::string sentencia(const PlantillaSql& plantilla) const;

  const Sacramento& sacramento_;
  const VarianteAltaLibro& variante_;
  std::optional<Elecciones> elecciones_;
};

class frmAltaLibroBautismo : public frmAltaLibro {
 public:
  explicit frmAltaLibroBautismo(Contexto& contexto) : frmAltaLibro(contexto, BAUTISMO) {}
};

class frmAltaLibroConfirmacion : public frmAltaLibro {
 public:
  explicit frmAltaLibroConfirmacion(Contexto& contexto) : frmAltaLibro(contexto, CONFIRMACION) {}
};

class frmAltaLibroMatrimonio : public frmAltaLibro {
 public:
  explicit frmAltaLibroMatrimonio(Contexto& contexto) : frmAltaLibro(contexto, MATRIMONIO) {}
};

class frmAltaLibroDefuncion : public frmAltaLibro {
 public:
  explicit frmAltaLibroDefuncion(Contexto& contexto) : frmAltaLibro(contexto, DEFUNCION) {}
};

std::unique_ptr<frmAltaLibro> crearAltaLibro(Contexto& contexto, const Sacramento& sacramento);

}  // namespace fidaleon
