#pragma once

#include <string>

#include "forms/Form.h"
#include "support/Fidaleon.h"

namespace fidaleon::support {

/// What the dialogs of the catalogues share: "ACEPTAR" checks and stores, "CANCELAR" leaves all
/// as it is, an error is told and leaves the dialog open with what was typed.
class Ficha : public forms::Form {
 public:
  Ficha(forms::UserInterface& ui, Settings& settings, const Clock& clock, FDAPI::Conexion& conexion,
        const FDAPI::cConfig& config, std::string name, std::int32_t id);

  /// True once something was stored.
  bool aceptado() const { return aceptado_; }
  /// Key of the row that was edited or added; 0 while there is none.
  std::int32_t id() const { return id_; }

  enum { Aceptar, Cancelar };
  forms::ControlArray<forms::Button> cmdBoton{*this, "cmdBoton"};

 protected:
  /// Fills the fields; runs with id() of the row to edit, or 0 for a new one.
  virtual void cargar() = 0;
  /// False when a field refused, after telling the user and taking the focus there.
  virtual bool comprobar() = 0;
  /// Stores the fields; throws when it cannot.
  virtual void guardar() = 0;

  void Form_Load() override;
  /// Runs a procedure; an error in it is told with the dialog's name and this label.
  template <class Body>
  bool informado(const std::string& procedimiento, Body&& body) {
    try {
      body();
      return true;
    } catch (const std::exception&) {
      fidaleon_.vererror(MODULO_SOPORTE, name(), procedimiento);
      return false;
    }
  }
  /// Tells what is missing or wrong and goes to the field; always false.
  bool falta(forms::Control& campo);
  bool rechazar(forms::Control& campo, const std::string& mensaje);
  forms::LayoutNode botones();

  static constexpr const char* MODULO_SOPORTE = "FidaleonSoporte";
  FDAPI::Conexion& conexion_;
  const FDAPI::cConfig& config_;
  Settings& settings_;
  const Clock& clock_;
  Fidaleon fidaleon_;
  std::int32_t id_;

 private:
  void aceptar();
  bool aceptado_ = false;
};

/// The text of a field for a statement: trimmed, without control characters, between double
/// quotes.
std::string entreComillas(const std::string& texto);
std::string sinBlancos(const forms::TextBox& campo);

}  // namespace fidaleon::support
