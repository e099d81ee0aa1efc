// Fields of the confirmation dialog and where they stand.

#include "registers/confirmation/AlmacenConfirmacion.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"

namespace fidaleon {

using forms::fields;
using forms::group;
using forms::item;
using forms::LayoutNode;
using forms::page;

namespace {

using V = VariantePartida;

const V CONFIRMACIONES{
    .sacramento = CONFIRMACION,
    .pestanas = {"GENERAL", "CONFIRMACIÓN", "CONFIRMADO", "DATOS PERSONALES", "N. MARGINALES"},
    .listaInstitucion = frmPartidaConfirmacion::Institucion,
    .listaLibro = frmPartidaConfirmacion::Libro,
    .titulos = {.nueva = "Alta de partida de confirmación nueva",
                .antigua = "Alta de partida de confirmación antigua",
                .deNueva = "Propiedades de partida de confirmación nueva",
                .deAntigua = "Propiedades de partida de confirmación antigua",
                .solicitud = "Nueva solicitud de confirmación",
                .deSolicitud = "Propiedades de solicitud de confirmación"},
    .tituloNumero = ", número:",
    .institucion = "Institución",
    .vacios = {.texto = "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. "
                        "¿Desea continuar?",
               .nueva = V::Vacios::Textos,
               .antigua = V::Vacios::Textos,
               .edicion = V::Vacios::Textos,
               .solicitud = V::Vacios::Textos,
               .notas = false,
               .unaVez = false},
    .alAnular = V::AlAnular::TodoMenosNotas,
    .anularAntigua = true,
    .anularEdicion = false,
    .notasEnNueva = false,
    .avisoNotas = AVISO_NOTAS_SEGUIDO,
    .fechaDelLibro = V::FechaDelLibro::AdelantaLaPrimera,
    .dondeRepetida = V::DondeRepetida::EnSuInstitucion,
    .procBuscar = "BuscarDatos",
    .procImportar = "BuscarDatos",
    .fijaInstitucionDeSolicitud = true,
    .cargaIncompleta =
        "¡Se ha producido un error durante la carga de datos y no se han podido "
        "llenar algunos campos del formulario! Revise los datos antes de guardarlos "
        "de nuevo.",
    .avisaCargaFallida = true};

}  // namespace

frmPartidaConfirmacion::frmPartidaConfirmacion(Contexto& contexto)
    : frmPartidaDe(contexto, CONFIRMACIONES, ALMACEN_CONFIRMACION),
      fraConfirmado(*this, "fraConfirmado", "CONFIRMADO:"),
      fraBautismo(*this, "fraBautismo", "BAUTISMO:"),
      fraNacimiento(*this, "fraNacimiento", "NACIMIENTO:"),
      fraResidencia(*this, "fraResidencia", "RESIDENCIA:"),
      fraFamilia(*this, "fraFamilia", "PADRES Y PADRINO:") {
  crearCampos();
  persona(Nombre, PrimerApellido, SegundoApellido);
  ponerNotas(NotasMarginales);
  fechaDelSacramento(FechaConfirmacion);
  for (const auto& [antes, despues] : {std::pair{FechaNac, FechaBaut},
                                       {FechaBaut, FechaConfirmacion},
                                       {FechaNac, FechaConfirmacion}})
    revision().enEsteOrden(adtpPartida[antes], adtpPartida[despues]);
  // A group is confirmed on one day, in one church, by one minister.
  serie(adtpPartida[FechaConfirmacion]);
  serie(cboPartida[ProvinciaParr + 1]);
  for (const Texto comun : {Parroquia, Diocesis, Ministro, CargoMinistro}) serie(txtPartida[comun]);
  for (const Texto suyo : {Nombre, Padrino, Observaciones, NotasMarginales})
    deCadaUno(txtPartida[suyo]);
  for (const Fecha suya : {FechaNac, FechaBaut}) deCadaUno(adtpPartida[suya]);
  for (const Texto nuestro : {Email, Telefono}) deHoy(txtPartida[nuestro]);
  disponer(paginas());
}

void frmPartidaConfirmacion::crearCampos() {
  using C = cConfirmacion;
  using Hoy = RevisionFechas::Hoy;
  const CampoTexto campos[] = {
      {Nombre, "NOMBRE:", &C::Nombre},
      {PrimerApellido, "PRIMER APELLIDO:", &C::PrimerApellido, Clase::Texto, Voz::Apellido},
      {SegundoApellido, "SEGUNDO APELLIDO:", &C::SegundoApellido, Clase::Texto, Voz::Apellido},
      {Parroquia, "PARROQUIA (LUGAR):", &C::Parroquia, Clase::Texto, Voz::Parroquia},
      {Diocesis, "DIÓCESIS:", &C::DiocesisParr, Clase::Texto, Voz::Diocesis},
      {Ministro, "MINISTRO:", &C::MinistroPrinc, Clase::Texto, Voz::Ministro},
      {CargoMinistro, "CARGO DEL MINISTRO:", &C::CargoMinistro, Clase::Texto, Voz::Cargo},
      {ParroquiaBaut, "PARROQUIA DE BAUTISMO:", &C::ParroquiaBaut, Clase::Texto, Voz::Parroquia},
      {DireccionBaut, "DIRECCION DE LA PARROQUIA:", &C::DireccionBaut, Clase::Texto,
       Voz::Domicilio},
      {LibroBaut, "LIBRO:", &C::LibroBaut},
      {NumeroBaut, "NÚMERO:", &C::NumeroBaut},
      {Email, "EMAIL DEL CONFIRMADO:", &C::EmailConfirmado},
      {Telefono, "TELÉFONO CONTACTO:", &C::TelefonoConfirmado},
      {Domicilio, "DIRECCION DE RESIDENCIA:", &C::Domicilio, Clase::Texto, Voz::Domicilio},
      {FeligresDe, "FELIGRESES DE LA PARROQUIA:", &C::FeligresDe, Clase::Texto, Voz::Parroquia},
      {Padrino, "PADRINO (MADRINA):", &C::Padrino, Clase::Texto, Voz::Padrino},
      {NombrePadre, "NOMBRE DEL PADRE:", &C::NombrePadre},
      {NombreMadre, "NOMBRE DE LA MADRE:", &C::NombreMadre},
      {NotasMarginales, "NOTAS MARGINALES:", &C::NotasMarginales, Clase::Largo},
      {Observaciones, "OBSERVACIONES:", &C::Observaciones, Clase::Largo},
  };
  const CampoFecha dias[] = {
      {FechaConfirmacion, "FECHA DE LA CONFIRMACION:", &C::FechaConfirmacion,
       "fecha de la confirmación", Hoy::NORMAL},
      {FechaBaut, "FECHA DE BAUTISMO:", &C::FechaBaut, "fecha de bautismo", Hoy::NUNCA},
      {FechaNac, "FECHA DE NACIMIENTO:", &C::FechaNac, "fecha de nacimiento", Hoy::NUNCA},
  };
  const CampoMunicipio lugares[] = {
      {ProvinciaParr,
       "PROVINCIA DE LA PARROQUIA:", "POBLACION DE LA PARROQUIA:", &C::CodMunicipioParr},
      {ProvinciaBaut, "PROVINCIA DE BAUTISMO:", "POBLACIÓN DE BAUTISMO:", &C::CodMunicipioBaut},
      {ProvinciaNac, "PROVINCIA DE NACIMIENTO:", "POBLACIÓN DE NACIMIENTO:", &C::CodMunicipioNac},
      {ProvinciaDomicilio,
       "PROVINCIA DE RESIDENCIA:", "POBLACIÓN DE RESIDENCIA:", &C::CodMunicipioDomicilio},
  };
  textos(txtPartida, campos);
  numero(FolioBaut, "FOLIO:", &C::FolioBaut);
  fechas(dias);
  municipios(lugares);
}

forms::Nodes frmPartidaConfirmacion::paginas() {
  return {paginaConfirmacion(), paginaConfirmado(), paginaPersonales(),
          page({fields(1, {item(txtPartida[NotasMarginales]), item(txtPartida[Observaciones])})})};
}

LayoutNode frmPartidaConfirmacion::paginaConfirmacion() {
  return page({fields(2, {item(adtpPartida[FechaConfirmacion], 2), item(txtPartida[Parroquia], 2),
                          item(txtPartida[Diocesis], 2), item(cboPartida[ProvinciaParr]),
                          item(cboPartida[ProvinciaParr + 1]), item(txtPartida[Ministro], 2),
                          item(txtPartida[CargoMinistro], 2)}),
               forms::stretch()});
}

LayoutNode frmPartidaConfirmacion::paginaConfirmado() {
  return page({group(fraConfirmado,
                     {fields(2, {item(txtPartida[Nombre], 2), item(txtPartida[PrimerApellido]),
                                 item(txtPartida[SegundoApellido]), item(txtPartida[Email]),
                                 item(txtPartida[Telefono])})}),
               group(fraBautismo,
                     {fields(2, {item(adtpPartida[FechaBaut], 2), item(txtPartida[ParroquiaBaut]),
                                 item(txtPartida[DireccionBaut]), item(cboPartida[ProvinciaBaut]),
                                 item(cboPartida[ProvinciaBaut + 1])}),
                      fields(3, {item(txtPartida[LibroBaut]), item(txtPartida[FolioBaut]),
                                 item(txtPartida[NumeroBaut])})}),
               forms::stretch()});
}

LayoutNode frmPartidaConfirmacion::paginaPersonales() {
  return page(
      {group(fraNacimiento,
             {fields(2, {item(adtpPartida[FechaNac], 2), item(cboPartida[ProvinciaNac]),
                         item(cboPartida[ProvinciaNac + 1])})}),
       group(fraResidencia,
             {fields(2,
                     {item(txtPartida[Domicilio], 2), item(cboPartida[ProvinciaDomicilio]),
                      item(cboPartida[ProvinciaDomicilio + 1]), item(txtPartida[FeligresDe], 2)})}),
       group(fraFamilia, {fields(2, {item(txtPartida[NombrePadre]), item(txtPartida[NombreMadre]),
                                     item(txtPartida[Padrino], 2)})}),
       forms::stretch()});
}

}  // namespace fidaleon
