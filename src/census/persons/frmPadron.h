#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "census/persons/FichaEmpadronado.h"
#include "census/search/BuscaCoincidencias.h"
#include "core/lists/DialogoConMemoria.h"
#include "core/lists/Enlaces.h"

namespace fidaleon {

/// One person of the parish census with family, sacraments, burial and notes. Set the public
/// fields, then Show(). Accepting stores at once; cancelled, all is left as it was. What fails is
/// told and keeps the dialog open with what was typed. The caller holds the locks.
class frmPadron : public DialogoConMemoria {
 public:
  explicit frmPadron(Contexto& contexto);

  /// ANADIR or EDITAR. A new person becomes EDITAR when their DNI turns out to be that of somebody
  /// whose data the user takes, and when storing fails behind their first row.
  FDAPI::cCOperacion Operacion{};
  /// The person, for EDITAR.
  std::int32_t IDPadron = 0;

  /// Somebody found by the search, to be opened instead of adding a new person; 0 when none was.
  std::int32_t lngSeleccionado = 0;

  bool takesFormer() const override {
    return Operacion == FDAPI::cCOperacion::ANADIR && !isReadOnly();
  }
  std::string ownWork() const override;
  std::string putBackOwnWork(const std::string& work) override;

  enum Texto {
    Nombre,
    PrimerApellido,
    SegundoApellido,
    NIF,
    LetraNIF,
    Direccion,
    CPostal,
    Telefono,
    Telefono2,
    CorreoElectronico,
    EstadoCivil,
    ProfesionColegio,
    PosicionFamiliar,
    NombrePadre,
    NombreMadre,
    ParroquiaBaut,
    DireccionParrBaut,
    AñoComunion,
    ParroquiaCom,
    ParroquiaConf,
    DireccionParrConf,
    ParroquiaMatr,
    DireccionParrMatr,
    Nicho,
    ImporteNicho,
    Comentarios,
    Observaciones
  };
  enum Fecha { FechaNacimiento, FechaBautizo, FechaConfirmacion, FechaMatrimonio, FechaDefuncion };
  /// Lists; a province's town list is the next number, and its add buttons bear its number.
  enum Lista {
    ProvinciaDireccion = 0,
    ProvinciaNac = 2,
    ProvinciaBaut = 4,
    ProvinciaConf = 6,
    ProvinciaMatr = 8,
    Sexo = 10,
    Pagado,
    Institucion
  };
  enum Boton { ACEPTAR = 0, CANCELAR = 1, BUSCAR = 2 };
  enum BotonNota { AGREGAR, MODIFICAR, QUITAR };
  enum Pestana {
    TAB_DATOS,
    TAB_NACIMIENTO,
    TAB_SACRAMENTOS,
    TAB_DEFUNCION,
    TAB_COMENTARIOS,
    TAB_NOTAS
  };

  forms::TabStrip mstPadron;
  forms::ControlArray<forms::TextBox> txtPadron;
  forms::ControlArray<forms::DateField> adtpPadron;
  forms::ControlArray<forms::ComboBox> cboPadron;
  forms::Frame fraNacimiento;
  forms::Frame fraBautismo;
  forms::Frame fraComunion;
  forms::Frame fraConfirmacion;
  forms::Frame fraMatrimonio;
  forms::Frame fraDefuncion;
  forms::Label lblMoneda;
  forms::Grid msgNotas;  // row keys: place of the note in the collection
  forms::Button cmdAltaInstitucion;
  forms::ControlArray<forms::Button> cmdAltaProvincia;
  forms::ControlArray<forms::Button> cmdAltaPoblacion;
  forms::ControlArray<forms::Button> cmdNotas;
  forms::ControlArray<forms::Button> cmdPadron;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  // Fields and layout
  void crearCampos();
  void crearSacramentos();
  void crearBotones();
  forms::TextBox& texto(Texto indice, const char* etiqueta, std::string Persona::*miembro,
                        Voz voz = Voz::Ninguna);
  void fecha(Fecha indice, std::string Persona::*miembro);
  void municipio(Lista provincia, std::int32_t Persona::*miembro);
  void parroquia(Texto indice, Lista provincia, std::string Persona::*nombre,
                 std::string Persona::*direccion, std::int32_t Persona::*municipio);
  forms::LayoutNode disposicion();
  forms::LayoutNode paginaDatos();
  forms::LayoutNode paginaNacimiento();
  forms::LayoutNode paginaSacramentos();
  forms::LayoutNode paginaDefuncion();
  forms::LayoutNode paginaNotas();
  forms::LayoutNode camposParroquia(Texto parroquia, Lista provincia, Fecha fecha);
  forms::LayoutNode campoProvincia(Lista provincia);
  forms::LayoutNode campoPoblacion(Lista provincia);

  // Loading
  void cargarListas();
  void marcarDeCadaUno();
  void BorrarDatosEmpadronado();
  bool leerEmpadronado();
  void mostrarPersona();
  void comprobarPoblaciones() const;
  void mostrarDNI();
  void mostrarDefuncion();
  void mostrarModo();
  void mostrarTitulo(const std::string& nombre, const std::string& primerApellido,
                     const std::string& segundoApellido);

  // Events
  void crearSucesos();
  void sucesosDeNombreYNIF();
  void sucesosDeBotones();
  bool mstPadron_MouseDown(int pestana);
  void nombre_LostFocus(const forms::Control* siguiente);
  void NIF_LostFocus(const forms::Control* siguiente);
  void DNI_LostFocus(const forms::Control* siguiente);
  void letraNIF_KeyPress(forms::KeyPress& tecla);
  void letraNIF_LostFocus(const forms::Control* siguiente);
  void comprobarDNI();
  void avisarDNI(std::int32_t otra);
  void importar(std::int32_t id);
  void importe_KeyPress(forms::KeyPress& tecla);
  void formatearImporte();
  void buscar();
  void cerrarCon(std::int32_t id);
  void altaInstitucion();
  void altaProvincia();
  void altaPoblacion();
  bool vaACancelar(const forms::Control* siguiente) const;
  std::vector<forms::Field> campos(const Persona& persona) const;
  const std::vector<forms::Field>& ultima() const override;
  bool settled(const forms::Control& campo) const override;

  // Personal notes
  void ConfigGridNotasPersonales();
  void CargaGridNotasPersonales();
  void guardarAnchos();
  void cmdNotas_Click(BotonNota boton);
  void editarNota(FDAPI::cCOperacion operacion, int posicion);
  void quitarNota(int posicion);

  // Acceptance
  void aceptar();
  bool ComprobarCampos();
  bool comprobarNombre();
  bool comprobarComunion();
  bool comprobarNIF();
  bool letraCorrecta() const;
  bool comprobarFechas();
  bool comprobarDNIRepetido();
  bool rechazar(const std::string& mensaje, forms::Control& campo);
  bool AgregarEmpadronado();
  bool EditarEmpadronado();
  void leerCampos();
  void leerDefuncion();
  std::string dni() const;
  /// What was stored is none that the two fields make, and they stand as they were shown.
  bool dniIntacto() const;
  bool conPesetas() const { return contexto_.config().TrabajarConPesetas; }
  const char* importeCero() const { return conPesetas() ? "0" : "0,00"; }

  Enlaces<Persona> enlaces_;
  mutable std::optional<std::vector<forms::Field>> ultima_;
  BuscaCoincidencias coincidencias_;
  FichaEmpadronado ficha_;
  bool dniCambiado_ = false;
  bool sexoMostrado_ = false;
  std::string dniGuardado_;
  std::pair<std::string, std::string> dniMostrado_;
};

}  // namespace fidaleon
