#pragma once

#include <array>
#include <optional>

#include "registers/entry/frmPartidaDe.h"
#include "registers/marriage/PanelExamenes.h"
#include "registers/marriage/cMatrimonio.h"

namespace fidaleon {

DatosPartida datosDe(const cMatrimonio& m);
void ponerDatos(cMatrimonio& r, const DatosPartida& d);

/// One entry of the register of marriages, or one dossier as long as it is a request.
class frmPartidaMatrimonio : public frmPartidaDe<cMatrimonio> {
 public:
  explicit frmPartidaMatrimonio(Contexto& contexto);

  // Groom and bride have the same texts, dates and lists. Those of the bride come so much later:
  // txtPartida[NOVIA + Nombre].
  static constexpr int NOVIO = 0;
  static constexpr int NOVIA = 40;
  static constexpr std::array CONTRAYENTES{NOVIO, NOVIA};

  enum Texto {
    // Of a spouse
    Nombre,
    PrimerApellido,
    SegundoApellido,
    DNI,
    Edad,
    Nacionalidad,
    Religion,
    EstadoCivil,
    NombrePadre,
    NombreMadre,
    Email,
    Telefono,
    Profesion,
    DiocesisNac,
    SujetoDerecho,
    ParroquiaBaut,
    DiocesisBaut,
    LibroBaut,
    FolioBaut,
    NumeroBaut,
    DomicilioActual,
    TResidenciaDomAct,
    DomicilioAnterior,
    MunicipioInscrito,
    Tomo,
    Pagina,
    NombreCivil,
    ParroquiaExhorto,
    PoblacionExhorto,
    DiocesisExhorto,
    // Of the witnesses of the dossier; the second one's come behind the first one's
    NombreTestigo = 2 * NOVIA,
    PrimerApellidoTestigo,
    SegundoApellidoTestigo,
    DNITestigo,
    DomicilioTestigo,
    OtroTestigo = 5,
    // Of the wedding
    Parroquia = NombreTestigo + 2 * OtroTestigo,
    Diocesis,
    Demarcacion,
    Padrino,
    Madrina,
    Testigos,
    Celebrante,
    ExpedInst,
    DomicilioMatrimonio,
    TelefonoDomicMatr,
    NihilObstat,
    TestigosParroquia,
    CPCompromiso,
    Testigo1,
    Testigo1NaturalDe,
    Testigo1Poblacion,
    Testigo2,
    Testigo2NaturalDe,
    Testigo2Poblacion,
    NotasMarginales,
    Observaciones
  };
  enum Fecha { FechaNac, FechaBaut, FechaConfirmacion, FechaMatrimonio = 2 * NOVIA };
  /// Lists; a province's town list is the next number.
  enum Lista {
    ProvinciaNac = 0,
    ProvinciaBaut = 2,
    ProvinciaConfirmacion = 4,
    ProvinciaActual = 6,
    ProvinciaAnterior = 8,
    ProvinciaTestigo = 2 * NOVIA,  // the second one's is two behind
    ProvinciaMatrimonio = ProvinciaTestigo + 4,
    ProvinciaDomicMatr = ProvinciaMatrimonio + 2,
    Institucion = ProvinciaDomicMatr + 2,
    Libro
  };
  /// Tabs of the bride come three behind those of the groom.
  enum Pestana {
    TAB_GENERAL,
    TAB_PERSONALES,
    TAB_SACRAMENTALES,
    TAB_OTROS,
    TABS_DE_NOVIA = 3,
    TAB_EXPEDIENTES = 7,
    TAB_COMPROMISO,
    TAB_NOTAS,
    TAB_EXAMENES  // in one edition
  };

  forms::TimeField txtHoraMatrimonio;
  forms::CheckBox chkLugar;
  forms::ControlArray<forms::Frame> fraMatrimonio;

 private:
  // Fields and layout
  void crearCampos();
  void crearContrayente(int cual);
  void crearTestigos();
  void crearCompromiso();
  void mostrarEdicion();
  forms::Nodes paginas();
  forms::LayoutNode paginaPersonales(int contrayente);
  forms::LayoutNode paginaSacramentales(int contrayente);
  forms::LayoutNode paginaOtros(int contrayente);
  forms::LayoutNode paginaExpedientes();
  forms::LayoutNode paginaCompromiso();
  forms::LayoutNode grupo(const char* titulo, int columnas, forms::Nodes campos);
  forms::LayoutNode en(int texto, int columnas = 1);
  forms::LayoutNode provincia(int lista);
  forms::LayoutNode poblacion(int lista);

  // The record
  std::span<const FilaLeida<cMatrimonio>> filas() const override;
  void completarEdicion(cMatrimonio& m) const override;
  std::string sqlRepetida(const cMatrimonio& m) override;
  bool mismosDatos(const cMatrimonio& a, const cMatrimonio& b) const override;
  bool ComprobarCambios(cMatrimonio& nuevo) const override;

  // The examinations
  void crearExamenes();
  void cargarExamenes();
  bool antesDeCorregir(cMatrimonio& m) override;
  const char* trasAlta(const cMatrimonio& m) override;
  bool grabarExamenes(FDAPI::cCOperacion operacion, std::int32_t id);

  // The sacrament's own
  void importar(std::size_t persona, const frmBuscaPadres& de) override;
  void preestablecer() override;
  void LimpiarDatos() override;
  void alCargar() override;
  void completarCampos() override;
  void crearSucesos();
  void chkLugar_Click();
  void CalcularEdad(int contrayente, const char* siFalta);
  void completarDNI(forms::TextBox& campo);
  void completarCP();
  void proponerExhorto();
  void nombrarPestanas();

  bool& edadTecleada(int contrayente) { return edadTecleada_[contrayente == NOVIA ? 1 : 0]; }

  std::optional<PanelExamenes> examenes_;
  std::array<bool, 2> edadTecleada_{};
  bool calculando_ = false;
};

}  // namespace fidaleon
