#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "core/lists/ListaDoble.h"
#include "core/statements/Sentencia.h"
#include "registers/requests/OrigenSolicitudes.h"

namespace fidaleon {

/// Moves requests of an institution into its open new book, one after the other; each keeps its
/// key. Set the public fields, then Show(). A failure in the middle leaves those moved so far in
/// the book and the others as they were. The caller holds the institutions; the book and the
/// entries are locked here while requests are being moved.
class frmSolicitudes : public Dialogo {
 public:
  explicit frmSolicitudes(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// LISTAPARTIDASBAUTISMO and its like: names the sacrament.
  FDAPI::cCOrigen Origen{};
  /// The request that stands chosen from the beginning, with its institution; 0 for none.
  std::int32_t elegida = 0;

  /// Whose request has been moved, and where it stands in the book.
  struct Pasada {
    std::string quien;
    std::int64_t folio;
    std::string numero;
  };
  /// In the order in which they were moved.
  std::vector<Pasada> pasadas;

  forms::TabStrip mstSolicitudes;
  forms::ComboBox cboInstitucion;
  forms::ControlArray<forms::ListBox> lstSolicitudes;  // item data: key of the request
  enum Lista { DISPONIBLES, SELECCIONADOS };
  forms::ControlArray<forms::Button> cmdMover;
  using enum ListaDoble::Movimiento;
  forms::Button cmdDetalles;
  forms::ControlArray<forms::Button> cmdBoton;
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

 protected:
  void Form_Load() override;

 private:
  struct Libro {
    std::int32_t id;
    std::string codFormato;
  };
  void prepararControles();
  void elegirSolicitud();
  void cboInstitucion_Click();
  void listarSolicitudes();
  void rechazarInstitucion(const char* mensaje);
  bool mstSolicitudes_MouseDown(int pestana);
  void cmdDetalles_Click();
  void cmdBoton_Click(Boton boton);
  void aceptar();
  void moverAlLibro(const Libro& libro);
  bool pasar(std::int64_t solicitud, const Libro& libro);
  bool CalcularFolioyNumero(const Libro& libro, std::int64_t ultimoFolio);
  bool pasaLimiteDeFolios();
  std::string institucion() const { return std::to_string(cboInstitucion.data()); }
  std::string sentencia(const PlantillaSql& plantilla) const;

  ListaDoble listas_;
  const OrigenSolicitudes* origen_ = nullptr;
  // The position under calculation.
  std::int64_t lngFolio_ = 0;
  std::string strNumero_;
};

}  // namespace fidaleon
