#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/contract/Sacramento.h"
#include "core/contract/SesionBloqueos.h"
#include "core/dialogs/Dialogo.h"
#include "core/statements/Sentencia.h"
#include "registers/books/PartidasDeLibro.h"

namespace fidaleon {

/// How the dialog of one sacrament differs from its sisters.
struct VariantePropiedadesLibro;

/// A book: its data on one tab, all its entries on another. Set the public fields, then Show().
/// The entries are a working copy: nothing of them is stored before the dialog is accepted, and a
/// cancelled dialog leaves the book as it was. The caller holds the lock of the book; those of the
/// entries are the dialog's own and are kept until it closes.
class frmPropiedadesLibro : public Dialogo {
 public:
  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  std::int32_t lngLibro = 0;

  /// For a loaded dialog: name and name type stay as they are, since another uses what they rest
  /// on.
  void sinNombre();
  std::string ownWork() const override { return partidas_->pendiente(); }
  std::string putBackOwnWork(const std::string& work) override;

  forms::TabStrip mstLibro;
  forms::TextBox txtInstitucion;
  forms::TextBox txtFormato;
  forms::ComboBox cboTipoNombre;
  forms::TextBox txtNombreLibro;
  forms::TextBox txtFolios;
  forms::DateField dtpFecha;
  forms::Grid msgPartidas;  // the key of a row is the entry's place in the working copy
  forms::ControlArray<forms::Button> cmdPartidas;
  enum Entrada { AGREGAR, PROPIEDADES, ANULAR, ELIMINAR };
  forms::ControlArray<forms::Button> cmdBoton;
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };
  enum Pestana { TAB_LIBRO, TAB_PARTIDAS };

 protected:
  frmPropiedadesLibro(Contexto& contexto, const Sacramento& sacramento,
                      std::unique_ptr<PartidasDeLibro> partidas);
  void Form_Load() override;
  void Form_Unload() override;
  bool asksOnCancel() const override { return hayCambios(); }

 private:
  // Loading
  void prepararControles();
  void cargar();
  void mostrarLibro(const store::Recordset& libro);
  void mostrarTipoNombre(std::int64_t tipo);
  void cerrarDatos();
  void configurarRejilla();
  std::int64_t ContarFolios();

  // Book
  void mstLibro_Click();
  void cboTipoNombre_Click();
  void construirNombre(std::int64_t tipo);

  // Entries
  void CargarGridPartidasDColeccion();
  void refrescarRejilla(std::size_t desde, std::size_t hasta);
  void ponerFila(std::size_t posicion, FDAPI::cFidaleon& fidaleon);
  int filaHasta(std::size_t posicion) const;
  void permitirPartidas(bool permitidas);
  void msgPartidas_RowChange();
  void msgPartidas_DblClick();
  void cmdPartidas_Click(Entrada boton);
  void agregar();
  void propiedades();
  void anular();
  void eliminar();
  /// The chosen entry, by the rule of its book: of an old one any, of an open new one the last.
  bool sePuedeEliminar() const;
  std::optional<std::size_t> elegida() const;
  void definirBloqueos(const PartidaEnLista& partida);
  /// Takes the lock of an entry; one that is not yet stored needs none.
  bool bloquear(const PartidaEnLista& partida);
  /// The same for one that may also be looked at; what the session then says.
  long bloquearParaAbrir(const PartidaEnLista& partida);
  bool bloquearAlta();
  AperturaDeLista apertura(std::optional<std::size_t> posicion) const;
  void avisarIlegible();
  void refrescarFecha();

  // Acceptance
  void cmdBoton_Click(Boton boton);
  void aceptar();
  void cancelar();
  bool hayCambios() const;
  bool ValidarDatos();
  forms::Control* campoQueFalta();
  bool faltaFecha() const;
  bool GuardarDatos();

  bool hayFilas(const std::string& sql);
  std::string sentencia(const PlantillaSql& plantilla) const;
  std::string libro() const { return std::to_string(lngLibro); }

  const Sacramento& sacramento_;
  const VariantePropiedadesLibro& variante_;
  std::unique_ptr<PartidasDeLibro> partidas_;
  std::optional<SesionBloqueos> sesion_;
  std::int32_t institucion_ = 0;
  bool nuevo_ = true;
  bool cerrado_ = false;     // a new book that was closed
  bool trasAnular_ = false;  // since the grid was filled
  bool cargado_ = false;
  std::int64_t tipoViejo_ = 0;
  std::string nombreViejo_;
  std::int64_t tipo_ = 0;     // as the list shows it
  std::string fechaLeida_;    // as the field took it
  std::string fechaEnTabla_;  // as the table has it
};

class frmPropiedadesLibroBautismo : public frmPropiedadesLibro {
 public:
  explicit frmPropiedadesLibroBautismo(Contexto& contexto);
};

class frmPropiedadesLibroConfirmacion : public frmPropiedadesLibro {
 public:
  explicit frmPropiedadesLibroConfirmacion(Contexto& contexto);
};

class frmPropiedadesLibroMatrimonio : public frmPropiedadesLibro {
 public:
  explicit frmPropiedadesLibroMatrimonio(Contexto& contexto);
};

class frmPropiedadesLibroDefuncion : public frmPropiedadesLibro {
 public:
  explicit frmPropiedadesLibroDefuncion(Contexto& contexto);
};

using CrearPropiedadesLibro = std::unique_ptr<frmPropiedadesLibro> (*)(Contexto&);

/// Makes the dialog of a book of the sacrament. Null for one that has no such dialog.
CrearPropiedadesLibro propiedadesDeLibro(const Sacramento& sacramento);

}  // namespace fidaleon
