#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/contract/Entorno.h"
#include "support/ErrorLog.h"

namespace fidaleon::support {

/// The service class. Names of towns are remembered for as long as the object lives, so that a
/// printed book asks for each once; make a new object for each procedure.
class Fidaleon : public FDAPI::cFidaleon {
 public:
  /// `errors` keeps what it tells the user of; null keeps nothing. Not owned.
  Fidaleon(forms::UserInterface& ui, Settings& settings, const Clock& clock,
           ErrorLog* errors = nullptr);

  /// The message of the error being handled, and in small print where it happened.
  void vererror(const std::string& modulo, const std::string& objeto,
                const std::string& procedimiento) override;
  void vererror(const std::string& mensaje) override;
  void verfalta(const forms::Label& etiqueta) override;

  std::string stringdate(const std::string& fecha) override;
  int Anos(const std::string& nacimiento, const std::string& fecha) override;
  int Edad(const std::string& fecha) override;

  void ProgresoLoad(std::int64_t cuenta, const std::string& mensaje, int modo) override;
  void ProgresoRefresh(std::int64_t posicion) override;
  void ProgresoUnload() override;

  std::string PROVINCIA(FDAPI::Conexion& conexion, std::int32_t idMunicipio) override;
  std::string Poblacion(FDAPI::Conexion& conexion, std::int32_t idMunicipio) override;

  void ComprobarComilla(forms::TextBox& campo) override;
  std::string ObtenerLetraNIF(const std::string& numero) override;
  bool CIF_NIF_Valido(const std::string& texto) override;
  void Comprobar_borrarcombo(forms::KeyPress& tecla, forms::ListControl& lista) override;
  void CambioEtiquetasMoneda(forms::Form& formulario, forms::TextBox& campo,
                             const FDAPI::cConfig& config) override;

  bool ComprobarSeleccion(const forms::ListBox& lista) override;
  void ListarSeleccionados(const forms::ListBox& lista, std::vector<int>& seleccionados) override;
  std::string sqlListbox(const forms::ListBox& lista, const std::string& columna) override;

  void NuevaInstitucion(FDAPI::Conexion& conexion, const FDAPI::cConfig& config) override;
  void NuevaProvincia(bool& agregada, FDAPI::Conexion& conexion,
                      const FDAPI::cConfig& config) override;
  void NuevoMunicipio(bool& agregado, FDAPI::Conexion& conexion,
                      const FDAPI::cConfig& config) override;

 private:
  struct Place {
    std::string town;
    std::string province;
  };
  Place place(FDAPI::Conexion& connection, std::int32_t town);

  forms::UserInterface& ui_;
  Settings& settings_;
  const Clock& clock_;
  ErrorLog* errors_;
  std::map<std::pair<const FDAPI::Conexion*, std::int32_t>, Place> places_;
};

/// What vererror shows for a message and its labels.
std::string textoError(const std::string& mensaje, const std::string& modulo,
                       const std::string& objeto, const std::string& procedimiento);
/// What verfalta shows for the caption of a label.
std::string textoFalta(const std::string& rotulo);

}  // namespace fidaleon::support
