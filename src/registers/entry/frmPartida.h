#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/lists/DialogoConMemoria.h"
#include "core/lists/Elecciones.h"
#include "registers/allocation/PosicionPartida.h"
#include "registers/common/LimiteNotas.h"
#include "registers/common/ListasDeLibro.h"
#include "registers/common/RevisionFechas.h"
#include "registers/entry/DatosPartida.h"
#include "registers/entry/VariantePartida.h"
#include "registers/lookup/frmBuscaPadres.h"

namespace fidaleon {

/// One entry or request of a register: what the dialogs of all sacraments do alike. Set the public
/// fields, then Show(). Opened from the tree, it stores at once; opened from a book's list, it only
/// changes the caller's collection. Cancelled, it leaves both as they were. The caller holds the
/// locks.
///
/// A sacrament's dialog derives from frmPartidaDe, which knows the record. Its constructor says
/// what fields there are (texto, fecha, municipio and their like), whom the entry is about
/// (persona), which fields mean something to all (ponerNotas, fechaDelSacramento, serie), then
/// calls disponer() with its tabs.
class frmPartida : public DialogoConMemoria {
 public:
  /// The entry, for EDITAR and EDITARSOLICITUD from the tree.
  std::int32_t lngID = 0;
  FDAPI::cCOperacion Operacion{};
  FDAPI::cCOrigen Origen{};
  /// Not 0: the caller fixes them.
  std::int32_t lngInstitucion = 0;
  std::int32_t lngLibro = 0;
  /// The item of the list to edit, only from a book's list.
  std::size_t lngPosicion = 0;
  /// What the clipboard held when the command was given; put back on loading.
  std::string strPortapapeles;
  /// The institution of a new request, 0 to let the user choose.
  std::int32_t InstitucionSolicitud = 0;

  bool takesFormer() const override { return esAlta() && !isReadOnly(); }
  /// The century is that of the book.
  text::DateSense dateSense(const forms::DateField& field) const override;
  std::string ownWork() const override;
  std::string putBackOwnWork(const std::string& work) override;

  enum CampoLibro { FOLIO = 1, NUMERO = 2 };
  enum Boton { ACEPTAR = 0, CANCELAR = 1, ANULAR = 2 };
  static constexpr int TAB_GENERAL = 0;

  // Those of the sacrament bear its word: "mstBautismo", "txtBautismo(7)".
  forms::TabStrip mstPartida;
  forms::ControlArray<forms::TextBox> txtPartida;
  forms::ControlArray<forms::DateField> adtpPartida;
  forms::ControlArray<forms::ComboBox> cboPartida;  // a province's town list is the next number
  forms::ControlArray<forms::Button> cmdPartida;
  forms::ControlArray<forms::TextBox> txtLibro;
  forms::Frame fraLibro;
  forms::Label lblNumeroRepetido;
  forms::Label lblPartidaAnulada;
  forms::Button cmdAltaInstitucion;
  forms::Button cmdAltaLibro;
  forms::Button cmdAltaProvincia;
  forms::Button cmdAltaPoblacion;

 protected:
  /// The description is not owned.
  frmPartida(Contexto& contexto, const VariantePartida& variante);

  void Form_Load() override;
  void Form_Unload() override;

  // What fields there are; frmPartidaDe links them to the record.
  enum class Clase {
    Texto,
    Nombre,  // without quotes
    Cifras,
    Largo,  // several lines, of any length
  };
  forms::TextBox& crearTexto(forms::ControlArray<forms::TextBox>& grupo, int indice,
                             const char* etiqueta, Clase clase);
  forms::DateField& crearFecha(int indice, const char* etiqueta, const std::string& nombre,
                               RevisionFechas::Hoy hoy);
  void crearHora(forms::TimeField& hora) { horas_.push_back(&hora); }
  forms::ComboBox& crearLista(int indice, const char* etiqueta);
  ParProvinciaPoblacion& crearMunicipio(int provincia, const char* etiquetaProvincia,
                                        const char* etiquetaPoblacion);

  // What the fields mean.
  /// Somebody whom the entry is about: name and first surname are required, and leaving the
  /// surnames looks for them in the books.
  void persona(int nombre, int primerApellido, int segundoApellido);
  void ponerNotas(int indice);
  /// A text that may stay blank without being asked about.
  void puedeFaltar(int indice) { prescindibles_.insert(&txtPartida[indice]); }
  void fechaDelSacramento(int indice) { fechaSacramento_ = &adtpPartida[indice]; }
  /// A number too large for its column is refused.
  void limitar(int indice, std::int64_t maximo) {
    limites_.push_back({&txtPartida[indice], maximo});
  }
  /// As long as a parent's name is not known, the surname that came from that side stands for it.
  void proponerProgenitor(int apellido, int progenitor);
  void crearMarca(forms::CheckBox& marca) { marcas_.push_back(&marca); }
  /// A field of something that is kept beside the record: an annulment locks it too.
  void crearAnexo(forms::TextBox& campo) { anexos_.push_back(&campo); }
  /// Stays as it is from one entry of a series to the next.
  void serie(const forms::Control& campo) { serie_.insert(&campo); }
  /// Offers while one types what fields of this kind have held; a surname is looked at on leaving.
  void ofrecer(forms::TextBox& campo, Voz voz);
  /// Paper books do not have it, and not every parish keeps it: Enter goes past it in an old entry,
  /// and in a new one where the entry before did not have it.
  void deHoy(forms::Control& campo) { deHoy_.push_back(&campo); }
  /// Once the parent has a name, the surname of the child that comes from that side is proposed; of
  /// the second parent only when the first is known, for the child bears its surnames otherwise.
  void heredar(int nombre, int apellido, int delHijo, int otroProgenitor = -1);
  /// What a look-up has filled as a whole: Enter stops no more in it, not at what is blank either.
  void darPorHecho(const forms::Frame& grupo) { hechos_.insert(&grupo); }
  RevisionFechas& revision() { return fechasRevisadas_; }
  /// What the institution gives for a field, unless something else has been written there.
  void proponer(forms::TextBox& campo, const std::string& valor);
  void proponer(ParProvinciaPoblacion& par, std::int32_t municipio);
  /// The tabs after that of the book. Connects the events; to be called last.
  void disponer(forms::Nodes paginas);

  // For the sacrament's own events.
  const Sacramento& sacramento() const { return variante_.sacramento; }
  bool esSolicitud() const;
  bool esAlta() const;
  bool desdeLista() const { return Origen == origenLista(sacramento()); }
  /// The chosen institution's row, which may have gone.
  store::Recordset filaDeInstitucion() const;
  /// Looks for a person unless this pair of surnames has been looked for.
  void BuscarDatos(std::size_t persona);

  // The record, done by frmPartidaDe.
  virtual void vaciarRegistro() = 0;
  /// From the table or from the collection. False when rows of it are missing.
  virtual bool leerRegistro() = 0;
  virtual void mostrarRegistro() = 0;
  virtual DatosPartida datos() const = 0;
  /// The fields as they show that entry of the table; none when rows of it are missing.
  virtual std::vector<forms::Field> camposDe(std::int32_t id) const = 0;
  /// Of the items of the list that are not to be deleted, without the one being edited.
  virtual std::vector<Posicion> posicionesEnLista() const = 0;
  /// The entry as it stands in the fields is in the book already.
  virtual bool repetida() = 0;
  /// Stores what stands in the fields, or puts it into the collection. False when that failed.
  virtual bool GrabarDatosColeccion() = 0;
  /// Takes back what a failure left in the tables without all its rows.
  virtual bool retirarAMedias() = 0;

  // The sacrament's own.
  /// Takes over what the look-up of a person, by its place among those named, has brought.
  virtual void importar(std::size_t persona, const frmBuscaPadres& de) = 0;
  /// The baptism that this entry is itself, 0 in other registers: the look-up does not find it.
  virtual std::int32_t bautismoPropio() const { return 0; }
  /// Another institution was chosen for a new entry, or the next one of a series begins.
  virtual void preestablecer() {}
  /// The fields were emptied, but for those of a series.
  virtual void LimpiarDatos() {}
  /// The dialog has been filled in its mode and is about to be shown.
  virtual void alCargar() {}
  /// Acceptance begins: completes what follows from other fields.
  virtual void completarCampos() {}

  // For frmPartidaDe.
  /// What all entries have, as it stands in the fields; `leidos` as the record has it.
  DatosPartida datosTecleados(DatosPartida leidos) const;
  /// Moves the date of an old book where the entry asks for it.
  void moverFechaDelLibro() const;
  /// "codlibro=1 OR codlibro=2", the books that the repeated-entry check looks in; empty for none.
  std::string librosDondeRepetida() const;
  /// The new entry is stored, and something beside it is not: it is gone on with as a correction.
  void seguirCorrigiendo();

 private:
  struct Persona {
    forms::TextBox* nombre;
    forms::TextBox* primero;
    forms::TextBox* segundo;
    BusquedaPorApellidos busqueda;
  };

  // Layout and opening
  void crearCamposDeLibro();
  forms::LayoutNode paginaGeneral();
  void cargar();
  void vigilarElecciones();
  void prepararAlta();
  void prepararSolicitud();
  void prepararEdicion();
  void limpiarCampos(bool quedaLaSerie);
  void mostrarModo();
  void mostrarLeida();
  void mostrarAnulada();
  void bloquear(bool anulada);

  // Book and position
  forms::ComboBox& institucion() const { return cboPartida[variante_.listaInstitucion]; }
  forms::ComboBox& libro() const { return cboPartida[variante_.listaLibro]; }
  void llenarLibros();
  void abrirPosicion(bool abierta);
  /// False when there is none; the user knows why.
  bool proponerPosicion();
  void calcularPosicion();
  void avisarNumeroRepetido();
  void vaciarPosicion();
  const std::vector<Posicion>& posicionesDeColeccion();
  void refrescarTitulo();
  const char* titulo() const;
  bool faltaInstitucionOLibro();
  bool faltaPosicion();

  // What repeats
  bool settled(const forms::Control& field) const override;
  bool beginsSettled() const override;
  bool faltabaEnLaAnterior(const forms::Control& campo) const;
  void mirarApellidos();
  void mirarApellido(forms::TextBox& campo);
  /// Of the book.
  const std::vector<forms::Field>& ultima() const override;
  int anoDeLaUltima() const;

  // Events
  void crearSucesos();
  void sucesosDeBotones();
  void cboInstitucion_Click();
  bool mst_MouseDown();
  void mst_Click();
  void txtLibro_LostFocus(CampoLibro indice, const forms::Control* siguiente);
  void altaLibro();
  using AltaEnCatalogo = void (FDAPI::cFidaleon::*)(bool&, FDAPI::Conexion&, const FDAPI::cConfig&);
  void altaMunicipio(AltaEnCatalogo alta);
  std::string suceso(const forms::Control& control, const char* cual) const;

  // Acceptance
  void aceptar();
  bool pasaLimite() const;
  bool ComprobarCampos();
  bool faltaNombre();
  bool pasaDeSuLimite();
  bool preguntarPorVacios();
  bool textosVacios() const;
  bool otrosVacios() const;
  void rellenarGuiones();
  bool ComprobarDatosBaseDatos();
  std::string quienes() const;
  std::string fechaDeEsteLibro() const;
  void otraPartida();
  void irAlNombre();
  void anular();

  const VariantePartida& variante_;
  std::vector<forms::TextBox*> textos_;
  std::vector<forms::DateField*> fechas_;
  std::vector<forms::TimeField*> horas_;
  std::vector<forms::ComboBox*> elegibles_;
  std::vector<Persona> personas_;
  forms::TextBox* notas_ = nullptr;
  const forms::DateField* fechaSacramento_ = nullptr;
  std::set<const forms::Control*> serie_;
  std::map<const forms::Control*, std::string> propuestos_;  // what another proposal may replace
  std::set<const forms::Control*> prescindibles_;
  std::vector<std::pair<forms::TextBox*, std::int64_t>> limites_;
  std::vector<forms::CheckBox*> marcas_;
  std::vector<forms::TextBox*> anexos_;
  std::vector<forms::TextBox*> apellidos_;
  std::vector<forms::Control*> deHoy_;
  std::set<const forms::Frame*> hechos_;
  mutable std::optional<std::pair<std::int64_t, std::vector<forms::Field>>> ultima_;  // of a book
  std::vector<std::function<void()>> bloqueados_;  // unlocks what the annulment has locked

  std::optional<Elecciones> elecciones_;
  std::optional<ListasDeLibro> listas_;
  std::optional<PosicionPartida> posicion_;
  std::optional<std::vector<Posicion>> ocupadas_;  // in the list, until it changes
  std::optional<LimiteNotas> limiteNotas_;
  RevisionFechas fechasRevisadas_{contexto_};
  bool anulada_ = false;
  bool libroNuevo_ = true;
  bool cargando_ = false;
  bool incompleta_ = false;
  bool vaciosConsentidos_ = false;
};

}  // namespace fidaleon
