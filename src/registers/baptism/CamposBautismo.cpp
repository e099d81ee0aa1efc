// Fields of the baptism dialog and where they stand.

#include "core/lists/cIListas.h"
#include "registers/baptism/frmPartidaBautismo.h"

namespace fidaleon {

using forms::fields;
using forms::group;
using forms::item;
using forms::LayoutNode;
using forms::Nodes;
using forms::page;

namespace {

constexpr int ANCHO_TEXTO = 255;  // of the columns
constexpr int ANCHO_FOLIO = 9;

}  // namespace

frmPartidaBautismo::frmPartidaBautismo(Contexto& contexto)
    : Dialogo(contexto, "frmPartidaBautismo"),
      mstBautismo(*this, "mstBautismo",
                  {"GENERAL", "BAUTIZADO", "PADRE", "MADRE", "MATRIMONIO DE LOS PADRES", "BAUTISMO",
                   "N. MARGINALES"}),
      txtBautismo(*this, "txtBautismo"),
      txtSC(*this, "txtSC"),
      txtLibro(*this, "txtLibro"),
      adtpBautismo(*this, "adtpBautismo"),
      txtHoraNac(*this, "txtHoraNac", "HORA DE NACIMIENTO:"),
      cboBautismo(*this, "cboBautismo"),
      fraLibro(*this, "fraLibro", "LIBRO"),
      fraPadre(*this, "fraPadre", "PADRE:"),
      fraAbuelosPaternos(*this, "fraAbuelosPaternos", "ABUELOS PATERNOS:"),
      fraMadre(*this, "fraMadre", "MADRE:"),
      fraAbuelosMaternos(*this, "fraAbuelosMaternos", "ABUELOS MATERNOS:"),
      fraMatrimonio(*this, "fraMatrimonio", "MATRIMONIO DE LOS PADRES:"),
      fraDomicilio(*this, "fraDomicilio", "DOMICILIO:"),
      fraPadrinos(*this, "fraPadrinos", "PADRINOS:"),
      lblNumeroRepetido(*this, "lblNumeroRepetido"),
      lblPartidaAnulada(*this, "lblPartidaAnulada", "PARTIDA ANULADA"),
      cmdAltaInstitucion(*this, "cmdAltaInstitucion", "Agregar Institución"),
      cmdAltaLibro(*this, "cmdAltaLibro", "Agregar Libro"),
      cmdAltaProvincia(*this, "cmdAltaProvincia", "Agregar Provincia"),
      cmdAltaPoblacion(*this, "cmdAltaPoblacion", "Agregar Población"),
      cmdBautismo(*this, "cmdBautismo"),
      santiago_(contexto.edicion(FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO)),
      menorca_(contexto.constante().Aplicacion == "0050") {
  crearCampos();
  crearCamposDeEdicion();
  setLayout(disposicion());
  crearSucesos();
}

void frmPartidaBautismo::texto(Texto indice, const char* etiqueta, std::string cBautismo::*miembro,
                               bool esNombre) {
  forms::TextBox& campo = txtBautismo.add(indice, etiqueta);
  campo.setMaxLength(ANCHO_TEXTO);
  if (esNombre) campo.setQuoteRule(forms::QuoteRule::Remove);
  textos_.push_back({&campo, miembro});
}

void frmPartidaBautismo::textoSC(TextoSC indice, const char* etiqueta,
                                 std::string cBautismo::*miembro, bool visible) {
  forms::TextBox& campo = txtSC.add(indice, etiqueta);
  campo.setMaxLength(ANCHO_TEXTO);
  campo.setVisible(visible);
  textos_.push_back({&campo, miembro});
}

void frmPartidaBautismo::fecha(Fecha indice, const char* etiqueta,
                               std::string cBautismo::*miembro) {
  fechas_.push_back({&adtpBautismo.add(indice, etiqueta), miembro});
}

void frmPartidaBautismo::municipio(Lista provincia, const char* etiquetaProvincia,
                                   const char* etiquetaPoblacion, std::int32_t cBautismo::*miembro,
                                   bool visible) {
  forms::ComboBox& provincias = cboBautismo.add(provincia, etiquetaProvincia);
  forms::ComboBox& poblaciones = cboBautismo.add(provincia + 1, etiquetaPoblacion);
  provincias.setVisible(visible);
  poblaciones.setVisible(visible);
  municipios_.push_back({&pares_.emplace_back(contexto_, provincias, poblaciones), miembro});
}

void frmPartidaBautismo::crearCampos() {
  using B = cBautismo;
  cboBautismo.add(Institucion, "INSTITUCIÓN:").setWidthChars(40);
  cboBautismo.add(Libro, "LIBRO:").setWidthChars(40);
  for (auto [indice, etiqueta] : {std::pair{FOLIO, "FOLIO:"}, {NUMERO, "NÚMERO:"}})
    txtLibro.add(indice, etiqueta).setWidthChars(10);
  txtLibro[FOLIO].setDigitsOnly(true);
  txtLibro[FOLIO].setMaxLength(ANCHO_FOLIO);
  txtLibro[NUMERO].setMaxLength(ANCHO_FOLIO);
  txtLibro[NUMERO].fits = esNumeroDePartida;
  lblNumeroRepetido.setEmphasised(true);
  lblNumeroRepetido.setVisible(false);
  lblPartidaAnulada.setEmphasised(true);
  lblPartidaAnulada.setVisible(false);

  texto(NombreHijo, "NOMBRE:", &B::NombreHijo, true);
  texto(PrimerApellidoHijo, "PRIMER APELLIDO", &B::PrimerApellidoHijo, true);
  texto(SegundoApellidoHijo, "SEGUNDO APELLIDO:", &B::SegundoApellidoHijo, true);
  cboBautismo.add(Sexo, "SEXO:");
  fecha(FechaNac, "FECHA DE NACIMIENTO:", &B::FechaNacHijo);
  texto(DireccionNac, "DIRECCION DE NACIMIENTO:", &B::DireccionNacHijo);
  municipio(ProvinciaNac,
            "PROVINCIA DE NACIMIENTO:", "POBLACION DE NACIMIENTO:", &B::CodPoblacionNacHijo);

  texto(NombrePadre, "NOMBRE:", &B::NombrePadres, true);
  texto(PrimerApellidoPadre, "PRIMER APELLIDO:", &B::PrimerApellidoPadres, true);
  texto(SegundoApellidoPadre, "SEGUNDO APELLIDO:", &B::SegundoApellidoPadres, true);
  municipio(ProvinciaPadre, "PROVINCIA:", "POBLACION:", &B::CodPoblacionPadres);
  texto(TelefonoPadre, "TELÉFONO DEL PADRE:", &B::TelefonoPadre);
  texto(EmailPadre, "EMAIL DEL PADRE:", &B::EmailPadre);
  texto(AbueloPaterno, "ABUELO PATERNO:", &B::AbueloPadres, true);
  municipio(ProvinciaAbueloPaterno, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbueloPadres);
  texto(AbuelaPaterna, "ABUELA PATERNA:", &B::AbuelaPadres, true);
  municipio(ProvinciaAbuelaPaterna, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbuelaPadres);

  texto(NombreMadre, "NOMBRE:", &B::NombreMadres, true);
  texto(PrimerApellidoMadre, "PRIMER APELLIDO:", &B::PrimerApellidoMadres, true);
  texto(SegundoApellidoMadre, "SEGUNDO APELLIDO:", &B::SegundoApellidoMadres, true);
  municipio(ProvinciaMadre, "PROVINCIA:", "POBLACION:", &B::CodPoblacionMadres);
  texto(TelefonoMadre, "TELÉFONO DE LA MADRE:", &B::TelefonoMadre);
  texto(EmailMadre, "EMAIL DE LA MADRE:", &B::EmailMadre);
  texto(AbueloMaterno, "ABUELO MATERNO:", &B::AbueloMadres, true);
  municipio(ProvinciaAbueloMaterno, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbueloMadres);
  texto(AbuelaMaterna, "ABUELA MATERNA:", &B::AbuelaMadres, true);
  municipio(ProvinciaAbuelaMaterna, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbuelaMadres);

  texto(ParroquiaMatrimonio, "PARROQUIA:", &B::ParroquiaMatrimonio);
  fecha(FechaMatr, "FECHA:", &B::FechaMatrMatrimonio);
  texto(DiocesisMatrimonio, "DIOCESIS:", &B::DiocesisMatrimonio);
  municipio(ProvinciaMatrimonio, "PROVINCIA:", "POBLACION:", &B::CodPoblacionMatrMatrimonio);
  texto(DireccionPadres, "DIRECCION DEL MATRIMONIO:", &B::DireccionPadresMatrimonio);
  municipio(ProvinciaDomicilio, "PROVINCIA:", "POBLACION:", &B::CodPoblacionPadresMatrimonio);
  texto(TelefonoPadres, "TELEFONO:", &B::TelefonoPadres);

  fecha(FechaBautismo, "FECHA DE BAUTISMO:", &B::FechaBautismo);
  texto(Ministro, "MINISTRO:", &B::MinistroBautismo, true);
  texto(MinistroCargo, "CARGO:", &B::MinistroCargo);
  texto(DiocesisBautismo, "DIOCESIS:", &B::DiocesisBautismo);
  municipio(ProvinciaBautismo, "PROVINCIA:", "POBLACION:", &B::CodPoblacionBautismo);
  texto(ParroquiaBautismo, "PARROQUIA (Lugar):", &B::ParroquiaBautismo);
  texto(Padrino, "PADRINO:", &B::PadrinoBautismo, true);
  texto(Madrina, "MADRINA:", &B::MadrinaBautismo, true);
  texto(NotasMarginales, "NOTAS MARGINALES:", &B::NotasMarginalesBautismo);
  texto(Observaciones, "OBSERVACIONES:", &B::ObservacionesBautismo);
  for (const Texto largo : {NotasMarginales, Observaciones}) {
    txtBautismo[largo].setMaxLength(0);
    txtBautismo[largo].setLines(largo == NotasMarginales ? 10 : 5);
  }

  cmdBautismo.add(ACEPTAR, "&Aceptar").setDefault(true);
  cmdBautismo.add(CANCELAR, "&Cancelar").setCancel(true);
  cmdBautismo.add(ANULAR, "A&nular");
}

void frmPartidaBautismo::crearCamposDeEdicion() {
  using B = cBautismo;
  const char* parroquia = "PARROQUIA DE BAUTISMO:";
  const char* provincia = "PROVINCIA DE BAUTISMO:";
  const char* poblacion = "POBLACION DE BAUTISMO:";
  textoSC(PadreProfesion, "PROFESION:", &B::PadreProfesion, true);
  textoSC(MadreProfesion, "PROFESION:", &B::MadreProfesion, true);

  textoSC(PadreParroquia, parroquia, &B::PadreParroquiaBaut, santiago_);
  textoSC(MadreParroquia, parroquia, &B::MadreParroquiaBaut, santiago_);
  textoSC(AbueloPatParroquia, parroquia, &B::AbueloPatParroquiaBaut, santiago_);
  textoSC(AbuelaPatParroquia, parroquia, &B::AbuelaPatParroquiaBaut, santiago_);
  textoSC(AbueloMatParroquia, parroquia, &B::AbueloMatParroquiaBaut, santiago_);
  textoSC(AbuelaMatParroquia, parroquia, &B::AbuelaMatParroquiaBaut, santiago_);
  municipio(ProvinciaParroquiaPadre, provincia, poblacion, &B::PadreCodMunicipioParrBaut,
            santiago_);
  municipio(ProvinciaParroquiaMadre, provincia, poblacion, &B::MadreCodMunicipioParrBaut,
            santiago_);
  municipio(ProvinciaParroquiaAbueloPat, provincia, poblacion, &B::AbueloPatCodMunicipioParrBaut,
            santiago_);
  municipio(ProvinciaParroquiaAbuelaPat, provincia, poblacion, &B::AbuelaPatCodMunicipioParrBaut,
            santiago_);
  municipio(ProvinciaParroquiaAbueloMat, provincia, poblacion, &B::AbueloMatCodMunicipioParrBaut,
            santiago_);
  municipio(ProvinciaParroquiaAbuelaMat, provincia, poblacion, &B::AbuelaMatCodMunicipioParrBaut,
            santiago_);

  const bool padrinos = santiago_ || menorca_;
  textoSC(EdadPadrino, "EDAD:", &B::EdadPadrino, padrinos);
  textoSC(EdadMadrina, "EDAD:", &B::EdadMadrina, padrinos);
  textoSC(DomicilioPadrino, "PARROQUIA DE DOMICILIO:", &B::ParroquiaDomicilioPadrino, padrinos);
  textoSC(DomicilioMadrina, "PARROQUIA DE DOMICILIO:", &B::ParroquiaDomicilioMadrina, padrinos);
  textoSC(ProfesionPadrino, "PROFESION:", &B::ProfesionPadrino, menorca_);
  textoSC(ProfesionMadrina, "PROFESION:", &B::ProfesionMadrina, menorca_);
  textoSC(NaturalPadrino, "NATURAL DE:", &B::NaturalPadrino, menorca_);
  textoSC(NaturalMadrina, "NATURAL DE:", &B::NaturalMadrina, menorca_);
  textoSC(EstatPadrino, "ESTADO CIVIL:", &B::EstatPadrino, menorca_);
  textoSC(EstatMadrina, "ESTADO CIVIL:", &B::EstatMadrina, menorca_);
  for (const TextoSC edad : {EdadPadrino, EdadMadrina}) {
    txtSC[edad].setDigitsOnly(true);
    txtSC[edad].setMaxLength(3);
    txtSC[edad].setWidthChars(4);
  }
}

LayoutNode frmPartidaBautismo::disposicion() {
  const LayoutNode padre =
      page({group(fraPadre, {persona(NombrePadre, PadreProfesion, PadreParroquia, ProvinciaPadre,
                                     ProvinciaParroquiaPadre, TelefonoPadre)}),
            group(fraAbuelosPaternos, {abuelos(AbueloPaterno, ProvinciaAbueloPaterno,
                                               AbueloPatParroquia, ProvinciaParroquiaAbueloPat)}),
            forms::stretch()});
  const LayoutNode madre =
      page({group(fraMadre, {persona(NombreMadre, MadreProfesion, MadreParroquia, ProvinciaMadre,
                                     ProvinciaParroquiaMadre, TelefonoMadre)}),
            group(fraAbuelosMaternos, {abuelos(AbueloMaterno, ProvinciaAbueloMaterno,
                                               AbueloMatParroquia, ProvinciaParroquiaAbueloMat)}),
            forms::stretch()});
  const LayoutNode notas =
      page({fields(1, {item(txtBautismo[NotasMarginales]), item(txtBautismo[Observaciones])})});
  return forms::column(
      {forms::tabs(mstBautismo, {paginaGeneral(), paginaBautizado(), padre, madre,
                                 paginaMatrimonio(), paginaBautismo(), notas}),
       forms::row({forms::buttons({&cmdAltaProvincia, &cmdAltaPoblacion, &cmdBautismo[ANULAR],
                                   &cmdBautismo[ACEPTAR], &cmdBautismo[CANCELAR]})})});
}

LayoutNode frmPartidaBautismo::paginaGeneral() {
  return page({fields(1, {item(cboBautismo[Institucion], {&cmdAltaInstitucion}),
                          item(cboBautismo[Libro], {&cmdAltaLibro})}),
               group(fraLibro, {fields(1, {item(txtLibro[FOLIO]), item(txtLibro[NUMERO]),
                                           item(lblNumeroRepetido)})}),
               item(lblPartidaAnulada), forms::stretch()});
}

LayoutNode frmPartidaBautismo::paginaBautizado() {
  return page({fields(2, {item(txtBautismo[NombreHijo], 2), item(txtBautismo[PrimerApellidoHijo]),
                          item(txtBautismo[SegundoApellidoHijo]), item(cboBautismo[Sexo], 2),
                          item(adtpBautismo[FechaNac]), item(txtHoraNac),
                          item(txtBautismo[DireccionNac], 2), item(cboBautismo[ProvinciaNac]),
                          item(cboBautismo[ProvinciaNac + 1])}),
               forms::stretch()});
}

LayoutNode frmPartidaBautismo::persona(Texto nombre, TextoSC profesion, TextoSC parroquia,
                                       Lista provincia, Lista provinciaParroquia, Texto telefono) {
  return fields(
      3, {item(txtBautismo[nombre]), item(txtBautismo[nombre + 1]), item(txtBautismo[nombre + 2]),
          item(cboBautismo[provincia]), item(cboBautismo[provincia + 1]), item(txtSC[profesion]),
          item(txtSC[parroquia]), item(cboBautismo[provinciaParroquia]),
          item(cboBautismo[provinciaParroquia + 1]), item(txtBautismo[telefono]),
          item(txtBautismo[telefono + 1])});
}

LayoutNode frmPartidaBautismo::abuelos(Texto abuelo, Lista provincia, TextoSC parroquia,
                                       Lista provinciaParroquia) {
  Nodes filas;
  for (int abuela = 0; abuela < 2; ++abuela) {
    const int lista = provincia + 2 * abuela;
    const int listaParroquia = provinciaParroquia + 2 * abuela;
    for (LayoutNode nodo :
         {item(txtBautismo[abuelo + abuela]), item(cboBautismo[lista]),
          item(cboBautismo[lista + 1]), item(txtSC[parroquia + abuela]),
          item(cboBautismo[listaParroquia]), item(cboBautismo[listaParroquia + 1])})
      filas.push_back(std::move(nodo));
  }
  return fields(3, std::move(filas));
}

LayoutNode frmPartidaBautismo::paginaMatrimonio() {
  return page({group(fraMatrimonio, {fields(2, {item(txtBautismo[ParroquiaMatrimonio]),
                                                item(adtpBautismo[FechaMatr]),
                                                item(txtBautismo[DiocesisMatrimonio], 2),
                                                item(cboBautismo[ProvinciaMatrimonio]),
                                                item(cboBautismo[ProvinciaMatrimonio + 1])})}),
               group(fraDomicilio, {fields(2, {item(txtBautismo[DireccionPadres], 2),
                                               item(cboBautismo[ProvinciaDomicilio]),
                                               item(cboBautismo[ProvinciaDomicilio + 1]),
                                               item(txtBautismo[TelefonoPadres], 2)})}),
               forms::stretch()});
}

LayoutNode frmPartidaBautismo::paginaBautismo() {
  Nodes padrinos;
  for (int madrina = 0; madrina < 2; ++madrina)
    for (LayoutNode nodo :
         {item(txtBautismo[Padrino + madrina], 2), item(txtSC[EdadPadrino + madrina]),
          item(txtSC[DomicilioPadrino + madrina], 2), item(txtSC[ProfesionPadrino + madrina]),
          item(txtSC[NaturalPadrino + madrina], 2), item(txtSC[EstatPadrino + madrina])})
      padrinos.push_back(std::move(nodo));
  return page({fields(2, {item(adtpBautismo[FechaBautismo], 2), item(txtBautismo[Ministro]),
                          item(txtBautismo[MinistroCargo]), item(txtBautismo[ParroquiaBautismo]),
                          item(txtBautismo[DiocesisBautismo]), item(cboBautismo[ProvinciaBautismo]),
                          item(cboBautismo[ProvinciaBautismo + 1])}),
               group(fraPadrinos, {fields(3, std::move(padrinos))}), forms::stretch()});
}

}  // namespace fidaleon
