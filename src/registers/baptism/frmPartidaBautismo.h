#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/dialogs/Dialogo.h"
#include "core/lists/Elecciones.h"
#include "core/lists/ParProvinciaPoblacion.h"
#include "registers/allocation/PosicionPartida.h"
#include "registers/baptism/cBautismo.h"
#include "registers/common/LimiteNotas.h"
#include "registers/common/ListasDeLibro.h"
#include "registers/common/RevisionFechas.h"

namespace fidaleon {

/// One entry or request of baptism. Set the public fields, then Show(). Opened from the tree, it
/// stores at once; opened from a book's list, it only changes the caller's collection. Cancelled,
/// it leaves both as they were. The caller holds the locks.
class frmPartidaBautismo : public Dialogo {
 public:
  explicit frmPartidaBautismo(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  /// The entry, for EDITAR and EDITARSOLICITUD from the tree.
  std::int32_t lngID = 0;
  FDAPI::cCOperacion Operacion{};
  FDAPI::cCOrigen Origen{};
  /// Not 0: the caller fixes them.
  std::int32_t lngInstitucion = 0;
  std::int32_t lngLibro = 0;
  /// The list of the book and the item to edit; not owned, only with LISTAPARTIDASBAUTISMO.
  ColeccionBautismo* colPartidas = nullptr;
  std::size_t lngPosicion = 0;
  /// What the clipboard held when the command was given; put back on loading.
  std::string strPortapapeles;
  /// The institution of a new request, 0 to let the user choose.
  std::int32_t InstitucionSolicitud = 0;

  std::string ownWork() const override;
  std::string putBackOwnWork(const std::string& work) override;

  enum Texto {
    NombreHijo = 7,
    PrimerApellidoHijo = 8,
    SegundoApellidoHijo = 9,
    DireccionNac = 10,
    NombrePadre = 11,
    PrimerApellidoPadre,
    SegundoApellidoPadre,
    AbueloPaterno,
    AbuelaPaterna = 15,
    NombreMadre = 16,
    PrimerApellidoMadre,
    SegundoApellidoMadre,
    AbueloMaterno,
    AbuelaMaterna = 20,
    ParroquiaMatrimonio = 21,
    DireccionPadres = 22,
    NotasMarginales,
    Observaciones,
    MinistroCargo,
    Padrino = 28,
    Madrina,
    Ministro,
    ParroquiaBautismo,
    DiocesisBautismo = 32,
    TelefonoPadre,
    EmailPadre,
    TelefonoMadre,
    EmailMadre,
    TelefonoPadres,
    DiocesisMatrimonio
  };
  /// Fields that not every edition shows, and the parents' professions.
  enum TextoSC {
    PadreProfesion,
    MadreProfesion,
    PadreParroquia,
    MadreParroquia,
    AbueloPatParroquia,
    AbuelaPatParroquia,
    AbueloMatParroquia,
    AbuelaMatParroquia,
    EdadPadrino,
    EdadMadrina,
    DomicilioPadrino,
    DomicilioMadrina,
    ProfesionPadrino,
    ProfesionMadrina,
    NaturalPadrino,
    NaturalMadrina,
    EstatPadrino,
    EstatMadrina
  };
  enum Fecha { FechaNac, FechaMatr, FechaBautismo };
  /// Lists; a province's town list is the next number.
  enum Lista {
    ProvinciaNac = 0,
    ProvinciaPadre = 2,
    ProvinciaAbueloPaterno = 4,
    ProvinciaAbuelaPaterna = 6,
    ProvinciaMadre = 8,
    ProvinciaAbueloMaterno = 10,
    ProvinciaAbuelaMaterna = 12,
    ProvinciaMatrimonio = 14,
    ProvinciaDomicilio = 16,
    ProvinciaBautismo = 18,
    Sexo = 20,
    Institucion = 22,
    Libro = 23,
    ProvinciaParroquiaPadre = 24,
    ProvinciaParroquiaMadre = 26,
    ProvinciaParroquiaAbueloPat = 28,
    ProvinciaParroquiaAbuelaPat = 30,
    ProvinciaParroquiaAbueloMat = 32,
    ProvinciaParroquiaAbuelaMat = 34
  };
  enum CampoLibro { FOLIO = 1, NUMERO = 2 };
  enum Boton { ACEPTAR = 0, CANCELAR = 1, ANULAR = 2 };
  enum Pestana {
    TAB_GENERAL,
    TAB_BAUTIZADO,
    TAB_PADRE,
    TAB_MADRE,
    TAB_MATRIMONIO,
    TAB_BAUTISMO,
    TAB_NOTAS
  };

  forms::TabStrip mstBautismo;
  forms::ControlArray<forms::TextBox> txtBautismo;
  forms::ControlArray<forms::TextBox> txtSC;
  forms::ControlArray<forms::TextBox> txtLibro;
  forms::ControlArray<forms::DateField> adtpBautismo;
  forms::TimeField txtHoraNac;
  forms::ControlArray<forms::ComboBox> cboBautismo;
  forms::Frame fraLibro;
  forms::Frame fraPadre;
  forms::Frame fraAbuelosPaternos;
  forms::Frame fraMadre;
  forms::Frame fraAbuelosMaternos;
  forms::Frame fraMatrimonio;
  forms::Frame fraDomicilio;
  forms::Frame fraPadrinos;
  forms::Label lblNumeroRepetido;
  forms::Label lblPartidaAnulada;
  forms::Button cmdAltaInstitucion;
  forms::Button cmdAltaLibro;
  forms::Button cmdAltaProvincia;
  forms::Button cmdAltaPoblacion;
  forms::ControlArray<forms::Button> cmdBautismo;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  template <class T, class Campo>
  struct Enlace {
    Campo* campo;
    T cBautismo::*miembro;
  };

  // Fields and layout
  void crearCampos();
  void crearCamposDeEdicion();
  void crearSucesos();
  void texto(Texto indice, const char* etiqueta, std::string cBautismo::*miembro,
             bool esNombre = false);
  void textoSC(TextoSC indice, const char* etiqueta, std::string cBautismo::*miembro, bool visible);
  void fecha(Fecha indice, const char* etiqueta, std::string cBautismo::*miembro);
  void municipio(Lista provincia, const char* etiquetaProvincia, const char* etiquetaPoblacion,
                 std::int32_t cBautismo::*miembro, bool visible = true);
  forms::LayoutNode disposicion();
  forms::LayoutNode paginaGeneral();
  forms::LayoutNode paginaBautizado();
  forms::LayoutNode paginaMatrimonio();
  forms::LayoutNode paginaBautismo();
  forms::LayoutNode persona(Texto nombre, TextoSC profesion, TextoSC parroquia, Lista provincia,
                            Lista provinciaParroquia, Texto telefono);
  /// Both grandparents of one side, the grandfather's controls given.
  forms::LayoutNode abuelos(Texto abuelo, Lista provincia, TextoSC parroquia,
                            Lista provinciaParroquia);

  // Loading
  void cargar();
  void vigilarElecciones();
  void prepararAlta();
  void prepararSolicitud();
  void prepararEdicion();
  void leerPartida();
  void mostrarRegistro();
  void limpiarCampos();
  void mostrarAnulada();

  // Book and position
  bool esSolicitud() const;
  bool esAlta() const;
  bool desdeLista() const { return Origen == FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO; }
  void llenarLibros();
  void abrirPosicion(bool abierta);
  /// False when there is none; the user knows why.
  bool proponerPosicion();
  void calcularPosicion();
  void avisarNumeroRepetido();
  void vaciarPosicion();
  std::vector<Posicion> posicionesDeColeccion() const;
  void refrescarTitulo();
  bool faltaInstitucionOLibro();
  bool faltaPosicion();
  bool mstBautismo_MouseDown();
  void mstBautismo_Click();
  void cboInstitucion_Click();
  void cboLibro_Click();
  void txtLibro_LostFocus(CampoLibro indice, const forms::Control* siguiente);
  void cmdAltaInstitucion_Click();
  void cmdAltaLibro_Click();
  void cmdAltaProvincia_Click();
  void cmdAltaPoblacion_Click();

  // Family from earlier entries
  void apellidos_LostFocus(const forms::Control* siguiente);
  std::pair<std::string, std::string> parDeApellidos() const;
  void BuscarPadres();
  std::string librosHastaEste();
  void CargarColeccionDatosImportar(const cBautismo& importado);

  // Acceptance
  void aceptar();
  bool ComprobarCampos();
  bool hayCamposVacios() const;
  void rellenarGuiones();
  cBautismo leerCampos() const;
  cBautismo GrabarDatosColeccion();
  void adelantarFechaDelLibro(const cBautismo& partida);
  bool guardarAlta();
  bool guardarEdicion();
  bool almacenar(ColeccionBautismo& coleccion);
  void otraPartida();
  void anular();

  // The same entry elsewhere, changes
  bool ComprobarDatosBaseDatos();
  bool repetida(const cBautismo& partida);
  bool repetidaEnColeccion(const cBautismo& partida) const;
  bool marcadaParaBorrar(std::int64_t id) const;
  std::string condicionLibros() const;
  bool ComprobarCambios(cBautismo& nuevo) const;

  bool santiago_;
  bool menorca_;
  std::vector<Enlace<std::string, forms::TextBox>> textos_;
  std::vector<Enlace<std::string, forms::DateField>> fechas_;
  std::deque<ParProvinciaPoblacion> pares_;
  std::vector<Enlace<std::int32_t, ParProvinciaPoblacion>> municipios_;
  std::optional<Elecciones> elecciones_;
  std::optional<ListasDeLibro> listas_;
  std::optional<PosicionPartida> posicion_;
  std::optional<LimiteNotas> limiteNotas_;
  RevisionFechas fechasRevisadas_{contexto_};
  /// The entry as it was read; for a new one, what the family look-up brought.
  cBautismo registro_;
  bool anulada_ = false;
  bool libroNuevo_ = true;
  bool cargando_ = false;
  /// Pair of surnames that has been looked for, or that the entry was read with.
  std::set<std::pair<std::string, std::string>> apellidosBuscados_;
  bool incompleta_ = false;
};

}  // namespace fidaleon
