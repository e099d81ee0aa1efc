// Fields of the dialog of deaths and where they stand.

#include "registers/death/AlmacenDefuncion.h"
#include "registers/death/frmPartidaDefuncion.h"

namespace fidaleon {

using forms::fields;
using forms::group;
using forms::item;
using forms::page;
using V = VariantePartida;

namespace {

const VariantePartida DEFUNCIONES{
    .sacramento = DEFUNCION,
    .pestanas = {"GENERAL", "PARROQUIA", "DIFUNTO", "FAMILIA", "N. MARGINALES"},
    .listaInstitucion = frmPartidaDefuncion::Institucion,
    .listaLibro = frmPartidaDefuncion::Libro,
    .titulos = {.nueva = "Alta de partida de defunción nueva",
                .antigua = "Alta de partida de defunción antigua",
                .deNueva = "Propiedades de partida de defunción nueva",
                .deAntigua = "Propiedades de partida de defunción antigua",
                .solicitud = "Nueva solicitud de defunción",
                .deSolicitud = "Propiedades de solicitud de defunción",
                .siempreConPosicion = true},
    .tituloNumero = ", número:",
    .institucion = "Institución",
    .vacios = {.texto = "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. "
                        "¿Desea continuar?",
               .nueva = V::Vacios::Todo,
               .antigua = V::Vacios::Todo,
               .edicion = V::Vacios::Textos,
               .solicitud = V::Vacios::Todo,
               .notas = false,
               .unaVez = true},
    .alAnular = V::AlAnular::Todo,
    .anularAntigua = false,
    .anularEdicion = true,
    .notasEnNueva = false,
    .limiteAlTeclear = true,
    .fechaDelLibro = V::FechaDelLibro::AtrasaLaPrimera,
    .dondeRepetida = V::DondeRepetida::EnSuInstitucion,
    .procBuscar = "BuscarDatos",
    .procImportar = "BuscarDatos",
    .fijaInstitucionDeSolicitud = true,
    .cargaIncompleta =
        "¡A esta partida le faltan los datos de la defunción! Se puede consultar, pero no "
        "modificar.",
    .avisaCargaFallida = false};

}  // namespace

frmPartidaDefuncion::frmPartidaDefuncion(Contexto& contexto)
    : frmPartidaDe(contexto, DEFUNCIONES, ALMACEN_DEFUNCION),
      txtHoraDefuncion(*this, "txtHoraDefuncion", "HORA DE DEFUNCIÓN:"),
      fraContacto(*this, "fraContacto", "DATOS PERSONA DE CONTACTO") {
  crearCampos();
  persona(Nombre, PrimerApellido, SegundoApellido);
  ponerNotas(NotasMarginales);
  fechaDelSacramento(FechaDefuncion);
  revision().enEsteOrden(adtpPartida[FechaDefuncion], adtpPartida[FechaInhumacion]);
  proponerProgenitor(PrimerApellido, NombrePadre);
  proponerProgenitor(SegundoApellido, NombreMadre);
  for (const Texto suyo :
       {Nombre, Consorte, Causa, Edad, NumeroHijos, NombresHijos, Observaciones, NotasMarginales})
    deCadaUno(txtPartida[suyo]);
  for (const Fecha suya : {FechaDefuncion, FechaInhumacion}) deCadaUno(adtpPartida[suya]);
  deCadaUno(txtHoraDefuncion);
  cmdPartida[ACEPTAR].setCaption("&ACEPTAR");
  cmdPartida[CANCELAR].setCaption("&CANCELAR");
  disponer(paginas());
}

void frmPartidaDefuncion::crearCampos() {
  using D = cDefuncion;
  using Hoy = RevisionFechas::Hoy;
  const CampoTexto campos[] = {
      {Parroquia, "PARROQUIA (LUGAR):", &D::Parroquia, Clase::Texto, Voz::Parroquia},
      {DiocesisParr, "DIÓCESIS DE LA PARROQUIA:", &D::DiocesisParr, Clase::Texto, Voz::Diocesis},
      {Parroco, "PÁRROCO:", &D::Parroco, Clase::Texto, Voz::Ministro},
      {Cementerio, "CEMENTERIO:", &D::Cementerio, Clase::Texto, Voz::Cementerio},
      {Nombre, "NOMBRE:", &D::Nombre},
      {PrimerApellido, "PRIMER APELLIDO:", &D::PrimerApellido, Clase::Texto, Voz::Apellido},
      {SegundoApellido, "SEGUNDO APELLIDO:", &D::SegundoApellido, Clase::Texto, Voz::Apellido},
      {Consorte, "CONSORTE:", &D::Consorte},
      {DomicilioActual, "DOMICILIO DE RESIDENCIA:", &D::DomicilioActual, Clase::Texto,
       Voz::Domicilio},
      {EstadoCivil, "ESTADO CIVIL:", &D::EstadoCivil},
      {Causa, "CAUSA:", &D::Causa, Clase::Texto, Voz::Causa},
      {DomicilioDefn, "Domicilio de defunción:", &D::DomicilioDefn, Clase::Texto, Voz::Domicilio},
      {Edad, "EDAD:", &D::Edad, Clase::Cifras},
      {NombrePadre, "NOMBRE DEL PADRE:", &D::NombrePadre},
      {NombreMadre, "NOMBRE DE LA MADRE:", &D::NombreMadre},
      {NumeroHijos, "Nº hijos:", &D::NumeroHijos, Clase::Cifras},
      {NombresHijos, "NOMBRES DE LOS HIJOS:", &D::NombreHijos, Clase::Largo},
      {Sacramentos, "RECIBIÓ LOS SANTOS SACRAMENTOS DE:", &D::Sacramentos, Clase::Texto,
       Voz::Sacramentos},
      {Sacerdote, "ADMINISTRADOS POR EL SACERDOTE:", &D::Sacerdote, Clase::Texto, Voz::Ministro},
      {Observaciones, "OBSERVACIONES:", &D::Observaciones, Clase::Largo},
      {NotasMarginales, "NOTAS MARGINALES:", &D::NotasMarginales, Clase::Largo},
  };
  const CampoTexto contacto[] = {
      {NombreContacto, "NOMBRE:", &D::NombreContacto},
      {PrimerApellidoContacto, "PRIMER APELLIDO:", &D::ApellidoContacto},
      {SegundoApellidoContacto, "SEGUNDO APELLIDO:", &D::Apellido2Contacto},
      {TelefonoContacto, "TELEFONO:", &D::TelefonoContacto},
      {EmailContacto, "EMAIL DE CONTACTO:", &D::EmailContacto},
      {RelacionDifunto, "RELACION CON EL DIFUNTO:", &D::RelacionDifunto},
  };
  // Nobody is buried on the day of the death.
  const CampoFecha fechasDeCampos[] = {
      {FechaInhumacion, "FECHA DE INHUMACIÓN:", &D::FechaInhumacion, "fecha de inhumación",
       Hoy::FUTURO},
      {FechaDefuncion, "FECHA DE DEFUNCIÓN:", &D::FechaDefuncion, "fecha de defunción",
       Hoy::DUDOSO},
  };
  const CampoMunicipio lugares[] = {
      {ProvinciaParr,
       "PROVINCIA DE LA PARROQUIA:", "POBLACIÓN DE LA PARROQUIA:", &D::CodMunicipioParr},
      {ProvinciaActual,
       "PROVINCIA DE RESIDENCIA:", "POBLACIÓN DE RESIDENCIA:", &D::CodMunicipioActual},
      {ProvinciaDefn, "Provincia de defunción:", "Poblacion de defunción:", &D::CodMunicipioDefn},
      {ProvinciaNaturalDe,
       "PROVINCIA DE NACIMIENTO:", "POBLACIÓN DE NACIMIENTO:", &D::CodMunicipioNaturalDe},
  };
  textos(txtPartida, campos);
  textos(txtPartida, contacto);
  for (const CampoTexto& c : contacto) {
    puedeFaltar(c.indice);
    deHoy(txtPartida[c.indice]);
  }
  fechas(fechasDeCampos);
  municipios(lugares);
  hora(txtHoraDefuncion, &D::HoraDefuncion);
  for (const Texto cifras : {Edad, NumeroHijos}) {
    txtPartida[cifras].setMaxLength(3);
    txtPartida[cifras].setWidthChars(4);
  }
}

forms::Nodes frmPartidaDefuncion::paginas() {
  const auto texto = [this](Texto indice, int columnas = 1) {
    return item(txtPartida[indice], columnas);
  };
  const auto provincia = [this](Lista lista) { return item(cboPartida[lista]); };
  const auto poblacion = [this](Lista lista) { return item(cboPartida[lista + 1]); };
  const auto parroquia =
      page({fields(2, {texto(Parroquia, 2), texto(DiocesisParr, 2), provincia(ProvinciaParr),
                       poblacion(ProvinciaParr), texto(Parroco, 2), texto(Cementerio),
                       item(adtpPartida[FechaInhumacion])}),
            forms::stretch()});
  const auto difunto = page(
      {fields(2, {texto(Nombre, 2), texto(PrimerApellido), texto(SegundoApellido),
                  texto(EstadoCivil), texto(Consorte), texto(DomicilioActual, 2),
                  provincia(ProvinciaActual), poblacion(ProvinciaActual), texto(Causa, 2),
                  item(adtpPartida[FechaDefuncion]), item(txtHoraDefuncion),
                  texto(DomicilioDefn, 2), provincia(ProvinciaDefn), poblacion(ProvinciaDefn)}),
       forms::stretch()});
  const auto familia =
      page({fields(2, {provincia(ProvinciaNaturalDe), poblacion(ProvinciaNaturalDe), texto(Edad),
                       texto(NumeroHijos), texto(NombrePadre), texto(NombreMadre),
                       texto(NombresHijos, 2), texto(Sacramentos, 2), texto(Sacerdote, 2)}),
            group(fraContacto, {fields(3, {texto(NombreContacto), texto(PrimerApellidoContacto),
                                           texto(SegundoApellidoContacto), texto(TelefonoContacto),
                                           texto(EmailContacto), texto(RelacionDifunto)})}),
            forms::stretch()});
  const auto notas = page({fields(1, {texto(Observaciones), texto(NotasMarginales)})});
  return {parroquia, difunto, familia, notas};
}

}  // namespace fidaleon
