// Fields of the census dialog and where they stand.

#include "census/common/CamposPersona.h"
#include "census/persons/frmPadron.h"

namespace fidaleon {

using forms::fields;
using forms::group;
using forms::item;
using forms::LayoutNode;
using forms::page;

namespace {

constexpr int ANCHO_TEXTO = 255;  // of the columns
constexpr int CIFRAS_NIF = 8;
constexpr int CIFRAS_CPOSTAL = 5;
constexpr int CIFRAS_AÑO = 4;
constexpr int ANCHO_IMPORTE = 14;

}  // namespace

frmPadron::frmPadron(Contexto& contexto)
    : DialogoConMemoria(contexto, "frmPadron"),
      mstPadron(*this, "mstPadron",
                {"DATOS PERSONALES", "NACIMIENTO Y BAUTISMO", "OTROS SACRAMENTOS", "DEFUNCIÓN",
                 "COMENTARIOS", "NOTAS PERSONALES"}),
      txtPadron(*this, "txtPadron"),
      adtpPadron(*this, "adtpPadron"),
      cboPadron(*this, "cboPadron"),
      fraNacimiento(*this, "fraNacimiento", "NACIMIENTO"),
      fraBautismo(*this, "fraBautismo", "BAUTISMO"),
      fraComunion(*this, "fraComunion", "COMUNIÓN"),
      fraConfirmacion(*this, "fraConfirmacion", "COMFIRMACIÓN"),
      fraMatrimonio(*this, "fraMatrimonio", "MATRIMONIO"),
      fraDefuncion(*this, "fraDefuncion", "DEFUNCIÓN"),
      lblMoneda(*this, "lblMoneda", "Pts"),
      msgNotas(*this, "msgNotas"),
      cmdAltaInstitucion(*this, "cmdAltaInstitucion", "Agregar Instit&ución"),
      cmdAltaProvincia(*this, "cmdAltaProvincia"),
      cmdAltaPoblacion(*this, "cmdAltaPoblacion"),
      cmdNotas(*this, "cmdNotas"),
      cmdPadron(*this, "cmdPadron"),
      coincidencias_(contexto, txtPadron.add(Nombre, "NOMBRE:"),
                     txtPadron.add(PrimerApellido, "PRIMER APELLIDO:"),
                     txtPadron.add(SegundoApellido, "SEGUNDO APELLIDO:"), FDAPI::cCOrigen::PADRON) {
  crearCampos();
  crearSacramentos();
  crearBotones();
  marcarDeCadaUno();
  setLayout(disposicion());
  crearSucesos();
}

forms::TextBox& frmPadron::texto(Texto indice, const char* etiqueta, std::string Persona::*miembro,
                                 Voz voz) {
  forms::TextBox& campo =
      txtPadron.has(indice) ? txtPadron[indice] : txtPadron.add(indice, etiqueta);
  campo.setMaxLength(ANCHO_TEXTO);
  ofrecer(campo, voz);
  enlaces_.textos.push_back({&campo, miembro});
  return campo;
}

void frmPadron::fecha(Fecha indice, std::string Persona::*miembro) {
  enlaces_.fechas.push_back({&adtpPadron.add(indice, "FECHA:"), miembro});
}

void frmPadron::municipio(Lista provincia, std::int32_t Persona::*miembro) {
  forms::ComboBox& provincias = cboPadron.add(provincia, "PROVINCIA:");
  forms::ComboBox& poblaciones = cboPadron.add(provincia + 1, "POBLACIÓN:");
  enlaces_.municipios.push_back(
      {&pares_.emplace_back(contexto_, provincias, poblaciones), miembro});
  cmdAltaProvincia.add(provincia, "Agregar Provincia");
  // The first tab is short of letters; no field shall be the one that goes without.
  cmdAltaPoblacion.add(
      provincia, provincia == ProvinciaDireccion ? "Agregar P&oblación" : "Agregar Población");
}

void frmPadron::parroquia(Texto indice, Lista provincia, std::string Persona::*nombre,
                          std::string Persona::*direccion, std::int32_t Persona::*dondeEsta) {
  texto(indice, "PARROQUIA:", nombre, Voz::Parroquia);
  texto(Texto(indice + 1), "DIRECCIÓN:", direccion, Voz::Domicilio);
  municipio(provincia, dondeEsta);
}

void frmPadron::crearCampos() {
  using P = Persona;
  cboPadron.add(Institucion, "INSTITUCIÓN:").setWidthChars(40);
  texto(Nombre, "NOMBRE:", &P::Nombre);
  texto(PrimerApellido, "PRIMER APELLIDO:", &P::PrimerApellido);
  texto(SegundoApellido, "SEGUNDO APELLIDO:", &P::SegundoApellido);
  forms::TextBox& nif = txtPadron.add(NIF, "NIF:");
  nif.setMaxLength(CIFRAS_NIF);
  nif.setWidthChars(CIFRAS_NIF + 2);
  forms::TextBox& letra = txtPadron.add(LetraNIF, "-");
  letra.setMaxLength(1);
  letra.setWidthChars(3);
  texto(Direccion, "DIRECCIÓN:", &P::Direccion, Voz::Domicilio);
  municipio(ProvinciaDireccion, &P::CodMunicipio);
  texto(CPostal, "CÓDIGO POSTAL:", &P::CPostal, Voz::CodigoPostal).setMaxLength(CIFRAS_CPOSTAL);
  txtPadron[CPostal].setWidthChars(CIFRAS_CPOSTAL + 2);
  texto(Telefono, "TELÉFONO (1):", &P::Telefono);
  texto(Telefono2, "TELÉFONO  (2):", &P::Telefono2);
  enMinusculas(texto(CorreoElectronico, "EMAIL:", &P::CorreoElectronico));
  cboPadron.add(Sexo, "SEXO:").setWidthChars(12);
  texto(EstadoCivil, "ESTADO CIVIL:", &P::EstadoCivil, Voz::EstadoCivil);
  texto(ProfesionColegio, "PROFESIÓN / COLEGIO:", &P::ProfesionColegio, Voz::Profesion);
  texto(PosicionFamiliar, "POSICIÓN FAMILIAR:", &P::PosicionFamiliar, Voz::PosicionFamiliar);
  texto(Comentarios, "COMENTARIOS:", &P::Comentarios);
  texto(Observaciones, "OBSERVACIONES:", &P::Observaciones);
  for (const Texto largo : {Comentarios, Observaciones}) {
    txtPadron[largo].setMaxLength(0);
    txtPadron[largo].setLines(8);
  }
  for (const Texto cifras : {NIF, CPostal, Telefono, Telefono2})
    soloDigitos(contexto_, txtPadron[cifras]);
}

void frmPadron::crearSacramentos() {
  using P = Persona;
  fecha(FechaNacimiento, &P::FechaNacimiento);
  municipio(ProvinciaNac, &P::CodMunicipioNac);
  texto(NombrePadre, "NOMBRE DEL PADRE:", &P::NombrePadre);
  texto(NombreMadre, "NOMBRE DE LA MADRE:", &P::NombreMadre);
  parroquia(ParroquiaBaut, ProvinciaBaut, &P::ParroquiaBaut, &P::DireccionParrBaut,
            &P::CodMunicipioParrBaut);
  fecha(FechaBautizo, &P::FechaBautizo);
  texto(AñoComunion, "AÑO:", &P::AñoComunion).setMaxLength(CIFRAS_AÑO);
  txtPadron[AñoComunion].setWidthChars(CIFRAS_AÑO + 2);
  soloDigitos(contexto_, txtPadron[AñoComunion]);
  texto(ParroquiaCom, "PARROQUIA:", &P::ParroquiaCom, Voz::Parroquia);
  parroquia(ParroquiaConf, ProvinciaConf, &P::ParroquiaConf, &P::DireccionParrConf,
            &P::CodMunicipioParrConf);
  fecha(FechaConfirmacion, &P::FechaConfirmacion);
  parroquia(ParroquiaMatr, ProvinciaMatr, &P::ParroquiaMatr, &P::DireccionParrMatr,
            &P::CodMunicipioParrMatr);
  fecha(FechaMatrimonio, &P::FechaMatrimonio);
  fecha(FechaDefuncion, &P::FechaDefuncion);
  texto(Nicho, "NICHO:", &P::Nicho);
  txtPadron.add(ImporteNicho, "IMPORTE:").setMaxLength(ANCHO_IMPORTE);
  txtPadron[ImporteNicho].setWidthChars(ANCHO_IMPORTE);
  cboPadron.add(Pagado, "PAGADO:").setWidthChars(8);
  cboPadron[Pagado].addItem("Sí");
  cboPadron[Pagado].addItem("No");
}

void frmPadron::crearBotones() {
  cmdNotas.add(AGREGAR, "AGREGAR");
  cmdNotas.add(MODIFICAR, "MODIFICAR");
  cmdNotas.add(QUITAR, "QUITAR");
  cmdPadron.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdPadron.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdPadron.add(BUSCAR, "BÚS&QUEDA").setToolTip("Busca a la persona entre las que ya están");
}

/// What a family has in common goes over with its page: where they live, and where they come from.
void frmPadron::marcarDeCadaUno() {
  for (const Texto suyo :
       {Nombre, PrimerApellido, SegundoApellido, Telefono2, CorreoElectronico, EstadoCivil,
        ProfesionColegio, PosicionFamiliar, AñoComunion, Nicho, Comentarios, Observaciones})
    deCadaUno(txtPadron[suyo]);
  for (const auto& [indice, fecha] : adtpPadron.all()) deCadaUno(*fecha);
}

LayoutNode frmPadron::disposicion() {
  const LayoutNode comentarios =
      page({fields(1, {item(txtPadron[Comentarios]), item(txtPadron[Observaciones])})});
  return forms::column(
      {forms::tabs(mstPadron, {paginaDatos(), paginaNacimiento(), paginaSacramentos(),
                               paginaDefuncion(), comentarios, paginaNotas()}),
       forms::buttons({&cmdPadron[BUSCAR], &cmdPadron[ACEPTAR], &cmdPadron[CANCELAR]})});
}

LayoutNode frmPadron::campoProvincia(Lista provincia) {
  return item(cboPadron[provincia], {&cmdAltaProvincia[provincia]});
}

LayoutNode frmPadron::campoPoblacion(Lista provincia) {
  return item(cboPadron[provincia + 1], {&cmdAltaPoblacion[provincia]});
}

LayoutNode frmPadron::paginaDatos() {
  return page({fields(2, {item(cboPadron[Institucion], {&cmdAltaInstitucion}, 2),
                          item(txtPadron[Nombre], 2), item(txtPadron[PrimerApellido]),
                          item(txtPadron[SegundoApellido]),
                          item(txtPadron[NIF], {&txtPadron[LetraNIF]}), item(txtPadron[Direccion]),
                          campoProvincia(ProvinciaDireccion), campoPoblacion(ProvinciaDireccion),
                          item(txtPadron[CPostal]), item(txtPadron[Telefono]),
                          item(txtPadron[Telefono2]), item(txtPadron[CorreoElectronico]),
                          item(cboPadron[Sexo]), item(txtPadron[EstadoCivil]),
                          item(txtPadron[ProfesionColegio]), item(txtPadron[PosicionFamiliar])}),
               forms::stretch()});
}

LayoutNode frmPadron::camposParroquia(Texto parroquia, Lista provincia, Fecha dia) {
  return fields(2, {item(txtPadron[parroquia]), item(txtPadron[parroquia + 1]),
                    campoProvincia(provincia), campoPoblacion(provincia), item(adtpPadron[dia])});
}

LayoutNode frmPadron::paginaNacimiento() {
  return page({group(fraNacimiento,
                     {fields(2, {item(adtpPadron[FechaNacimiento], 2), campoProvincia(ProvinciaNac),
                                 campoPoblacion(ProvinciaNac), item(txtPadron[NombrePadre]),
                                 item(txtPadron[NombreMadre])})}),
               group(fraBautismo, {camposParroquia(ParroquiaBaut, ProvinciaBaut, FechaBautizo)}),
               forms::stretch()});
}

LayoutNode frmPadron::paginaSacramentos() {
  return page(
      {group(fraComunion,
             {fields(2, {item(txtPadron[AñoComunion]), item(txtPadron[ParroquiaCom])})}),
       group(fraConfirmacion, {camposParroquia(ParroquiaConf, ProvinciaConf, FechaConfirmacion)}),
       group(fraMatrimonio, {camposParroquia(ParroquiaMatr, ProvinciaMatr, FechaMatrimonio)}),
       forms::stretch()});
}

LayoutNode frmPadron::paginaDefuncion() {
  return page(
      {group(fraDefuncion,
             {fields(2, {item(adtpPadron[FechaDefuncion]), item(txtPadron[Nicho]),
                         item(txtPadron[ImporteNicho], {&lblMoneda}), item(cboPadron[Pagado])})}),
       forms::stretch()});
}

LayoutNode frmPadron::paginaNotas() {
  return page({item(msgNotas),
               forms::buttons({&cmdNotas[AGREGAR], &cmdNotas[MODIFICAR], &cmdNotas[QUITAR]})});
}

}  // namespace fidaleon
