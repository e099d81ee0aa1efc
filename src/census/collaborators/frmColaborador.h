#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "census/activities/BloqueosDeLista.h"
#include "census/activities/cPadronActividad.h"
#include "census/collaborators/CampoCumpleanos.h"
#include "census/persons/Persona.h"
#include "census/search/BuscaCoincidencias.h"
#include "core/lists/DialogoConMemoria.h"
#include "core/lists/Enlaces.h"
#include "core/statements/Columnas.h"
#include "store/Transaction.h"

namespace fidaleon {

/// One collaborator: what the parish needs of the person, and the groups that they work in. Set
/// the public fields, then Show(). What is accepted is stored as a whole or not at all, and a
/// failure leaves the dialog open with all that was typed. The caller holds the person's lock;
/// those of the memberships are held here, for as long as the dialog is open.
class frmColaborador : public DialogoConMemoria {
 public:
  explicit frmColaborador(Contexto& contexto);

  /// ANADIR or EDITAR.
  FDAPI::cCOperacion Operacion{};
  /// ACTIVIDAD when the dialog was reached from the card of an activity.
  FDAPI::cCOrigen Origen = FDAPI::cCOrigen::PRINCIPAL;
  /// The person, for EDITAR.
  std::int32_t IDPadron = 0;
  /// Hides the buttons of the memberships.
  bool blnOcultar = false;

  /// IDPadron of a person found while a new one was being typed, to be opened instead; else 0.
  std::int32_t lngSeleccionado = 0;

  bool takesFormer() const override {
    return Operacion == FDAPI::cCOperacion::ANADIR && !isReadOnly();
  }
  /// The changed memberships; they cannot be put back, only read.
  std::string ownWork() const override;

  enum Texto {
    Nombre,
    PrimerApellido,
    SegundoApellido,
    Direccion,
    CPostal,
    Telefono,
    Telefono2,
    CorreoElectronico,
    ProfesionColegio,
    Comentarios,
    Cumpleaños,
    AñoNacimiento,
    NombrePadre,
    NombreMadre,
    ParroquiaBaut,
    DireccionParrBaut,
    Observaciones
  };
  /// Lists; a province's town list is the next number.
  enum Lista { ProvinciaDomicilio = 0, ProvinciaBautismo = 2 };
  /// One of each for the address and for the parish of baptism.
  enum Lugar { DOMICILIO, BAUTISMO };
  enum Boton { ACEPTAR = 0, CANCELAR = 1, IMPORTAR = 2 };
  enum BotonActividad { AGREGAR = 0, MODIFICAR = 1, QUITAR = 2 };
  enum Pestaña { TAB_DATOS, TAB_NACIMIENTO, TAB_BAUTISMO, TAB_OBSERVACIONES, TAB_ACTIVIDADES };

  forms::TabStrip mstColaborador;
  forms::ControlArray<forms::TextBox> txtColaborador;
  forms::DateField adtpFechaBautizo;
  forms::ControlArray<forms::ComboBox> cboColaborador;
  forms::ControlArray<forms::Button> cmdAgregarProvincia;
  forms::ControlArray<forms::Button> cmdAgregarMunicipio;
  forms::Grid msgActividades;
  forms::ControlArray<forms::Button> cmdActividad;
  forms::ControlArray<forms::Button> cmdColaborador;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  // Fields and layout
  void crearTextos();
  void crearLugar(Lugar lugar, Lista provincia, std::int32_t Persona::*miembro);
  void crearBotones();
  void crearSucesos();
  forms::LayoutNode disposicion();
  forms::LayoutNode paginaDatos();

  // Loading
  void cargar();
  void LimpiarDatosColaborador();
  /// False when there is no such person any more; the user is told.
  bool cargarPersona();
  bool leerPersona(std::int32_t id, Persona& persona) const;
  const std::vector<forms::Field>& ultima() const override;
  void mostrarPersona();
  void comprobarPoblaciones() const;

  // What the user does
  void nombre_LostFocus(const forms::Control* siguiente);
  void continuarCon(std::int32_t idPadron);
  void agregarProvincia();
  void agregarMunicipio();
  void refrescarLugares();
  void importar();

  // Acceptance
  void aceptar();
  bool faltaNombre();
  bool faltaNacimiento();
  void rechazar(Pestaña pestaña, Texto campo, const std::string& mensaje);
  Persona leerCampos() const;
  std::string fechaNacimiento() const;
  bool guardar(Persona persona);
  void AgregarColaborador(Persona& persona);
  void EditarColaborador(const Persona& persona);
  void guardarFila(const Tabla<Persona>& alta, const Tabla<Persona>& ficha, const Persona& persona);
  void darTipoColaborador(std::int32_t idPadron, const std::string& tipo);

  // Memberships
  void ConfigGridActividadColaborador();
  void guardarAnchos();
  bool LlenaColeccionActividad();
  bool CargaGridActividadColaborador();
  void mostrarCeldas(int fila, const std::vector<std::string>& textos);
  std::vector<std::string> celdas(const cPadronActividad& actividad);
  std::int64_t claveDeFila(std::size_t posicion) const;
  /// Place in the collection of the chosen row; none when no row is chosen.
  std::optional<std::size_t> elegida() const;
  void agregarActividad();
  void modificarActividad();
  void quitarActividad();
  bool tomar(std::size_t posicion);
  void olvidar(std::size_t posicion);
  void olvidarQuitadasFuera();
  void volverACargarActividades();
  /// False when it was cancelled.
  bool mostrarActividad(FDAPI::cCOperacion operacion, std::size_t posicion);
  BloqueosDeLista& bloqueos();
  bool hay(const std::string& sentencia);
  /// Whether one that is to be stored has lost its group or office; the user is told which.
  bool faltaGrupoOCargo();
  store::Removes quitaActividades() const;
  void guardarActividades(std::int32_t idPadron);
  void guardarActividad(const cPadronActividad& actividad, std::int32_t idPadron);
  void insertarActividad(const cPadronActividad& actividad, std::int32_t idPadron);

  Enlaces<Persona> enlaces_;
  std::optional<CampoCumpleaños> cumpleaños_;
  std::optional<BuscaCoincidencias> coincidencias_;
  mutable std::optional<std::vector<forms::Field>> ultima_;
  /// As it was read; blank for a new one.
  Persona persona_;
  /// Those that are stored come before the new ones.
  std::vector<cPadronActividad> actividades_;
  std::optional<BloqueosDeLista> bloqueos_;
};

}  // namespace fidaleon
