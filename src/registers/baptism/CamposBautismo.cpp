// Fields of the baptism dialog and where they stand.

#include "core/lists/cIListas.h"
#include "registers/baptism/AlmacenBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"

namespace fidaleon {

using forms::fields;
using forms::group;
using forms::item;
using forms::LayoutNode;
using forms::Nodes;
using forms::page;

namespace {

using V = VariantePartida;

const V BAUTISMOS{
    .sacramento = BAUTISMO,
    .pestanas = {"GENERAL", "BAUTIZADO", "PADRE", "MADRE", "MATRIMONIO DE LOS PADRES", "BAUTISMO",
                 "N. MARGINALES"},
    .listaInstitucion = frmPartidaBautismo::Institucion,
    .listaLibro = frmPartidaBautismo::Libro,
    .titulos = {.nueva = "Agregar partida de bautismo nueva",
                .antigua = "Agregar partida de bautismo antigua",
                .deNueva = "Propiedades de partida de bautismo nueva",
                .deAntigua = "Propiedades de partida de bautismo antigua",
                .solicitud = "Agregar solicitud de bautismo",
                .deSolicitud = "Propiedades de solicitud de bautismo"},
    .tituloNumero = " número:",
    .institucion = "Institución",
    .vacios = {.texto = "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. "
                        "¿Desea continuar?",
               .nueva = V::Vacios::Todo,
               .antigua = V::Vacios::Callar,
               .edicion = V::Vacios::Callar,
               .solicitud = V::Vacios::Callar,
               .notas = true,
               .unaVez = false},
    .alAnular = V::AlAnular::Posicion,
    .anularAntigua = true,
    .anularEdicion = true,
    .notasEnNueva = true,
    .fechaDelLibro = V::FechaDelLibro::Adelanta,
    .dondeRepetida = V::DondeRepetida::EnTodas,
    .procBuscar = "BuscarPadres",
    .procImportar = "CargarColeccionDatosImportar",
    .fijaInstitucionDeSolicitud = false,
    .cargaIncompleta =
        "¡A esta partida le falta alguna de sus fichas (bautizado, padre, madre o "
        "matrimonio)! Se puede consultar, pero no modificar.",
    .avisaCargaFallida = false};

}  // namespace

frmPartidaBautismo::frmPartidaBautismo(Contexto& contexto)
    : frmPartidaDe(contexto, BAUTISMOS, ALMACEN_BAUTISMO),
      txtSC(*this, "txtSC"),
      txtHoraNac(*this, "txtHoraNac", "HORA DE NACIMIENTO:"),
      fraPadre(*this, "fraPadre", "PADRE:"),
      fraAbuelosPaternos(*this, "fraAbuelosPaternos", "ABUELOS PATERNOS:"),
      fraMadre(*this, "fraMadre", "MADRE:"),
      fraAbuelosMaternos(*this, "fraAbuelosMaternos", "ABUELOS MATERNOS:"),
      fraMatrimonio(*this, "fraMatrimonio", "MATRIMONIO DE LOS PADRES:"),
      fraDomicilio(*this, "fraDomicilio", "DOMICILIO:"),
      fraPadrinos(*this, "fraPadrinos", "PADRINOS:") {
  crearCampos();
  crearCamposDeEdicion();
  persona(NombreHijo, PrimerApellidoHijo, SegundoApellidoHijo);
  ponerNotas(NotasMarginales);
  fechaDelSacramento(FechaBautismo);
  revision().enEsteOrden(adtpPartida[FechaNac], adtpPartida[FechaBautismo]);
  for (forms::TextBox* parroquia :
       {&txtSC[PadreParroquia], &txtPartida[ParroquiaMatrimonio], &txtPartida[ParroquiaBautismo]})
    parroquia->onGotFocus = [this] { BuscarDatos(0); };
  for (const Texto suyo : {NombreHijo, Padrino, Madrina, Observaciones, NotasMarginales})
    deCadaUno(txtPartida[suyo]);
  for (const Texto nuestro : {TelefonoPadre, EmailPadre, TelefonoMadre, EmailMadre, TelefonoPadres})
    deHoy(txtPartida[nuestro]);
  heredar(NombrePadre, PrimerApellidoPadre, PrimerApellidoHijo);
  heredar(NombreMadre, PrimerApellidoMadre, SegundoApellidoHijo, NombrePadre);
  deCadaUno(cboPartida[Sexo]);
  deCadaUno(adtpPartida[FechaNac]);
  deCadaUno(txtHoraNac);
  for (const TextoSC suyo : {EdadPadrino, EdadMadrina}) deCadaUno(txtSC[suyo]);
  disponer(paginas());
}

void frmPartidaBautismo::crearCampos() {
  using B = cBautismo;
  using Hoy = RevisionFechas::Hoy;
  const CampoTexto campos[] = {
      {NombreHijo, "NOMBRE:", &B::NombreHijo, Clase::Nombre},
      {PrimerApellidoHijo, "PRIMER APELLIDO", &B::PrimerApellidoHijo, Clase::Nombre, Voz::Apellido},
      {SegundoApellidoHijo, "SEGUNDO APELLIDO:", &B::SegundoApellidoHijo, Clase::Nombre,
       Voz::Apellido},
      {DireccionNac, "DIRECCION DE NACIMIENTO:", &B::DireccionNacHijo, Clase::Texto,
       Voz::Domicilio},
      {NombrePadre, "NOMBRE:", &B::NombrePadres, Clase::Nombre},
      {PrimerApellidoPadre, "PRIMER APELLIDO:", &B::PrimerApellidoPadres, Clase::Nombre,
       Voz::Apellido},
      {SegundoApellidoPadre, "SEGUNDO APELLIDO:", &B::SegundoApellidoPadres, Clase::Nombre,
       Voz::Apellido},
      {TelefonoPadre, "TELÉFONO DEL PADRE:", &B::TelefonoPadre},
      {EmailPadre, "EMAIL DEL PADRE:", &B::EmailPadre},
      {AbueloPaterno, "ABUELO PATERNO:", &B::AbueloPadres, Clase::Nombre},
      {AbuelaPaterna, "ABUELA PATERNA:", &B::AbuelaPadres, Clase::Nombre},
      {NombreMadre, "NOMBRE:", &B::NombreMadres, Clase::Nombre},
      {PrimerApellidoMadre, "PRIMER APELLIDO:", &B::PrimerApellidoMadres, Clase::Nombre,
       Voz::Apellido},
      {SegundoApellidoMadre, "SEGUNDO APELLIDO:", &B::SegundoApellidoMadres, Clase::Nombre,
       Voz::Apellido},
      {TelefonoMadre, "TELÉFONO DE LA MADRE:", &B::TelefonoMadre},
      {EmailMadre, "EMAIL DE LA MADRE:", &B::EmailMadre},
      {AbueloMaterno, "ABUELO MATERNO:", &B::AbueloMadres, Clase::Nombre},
      {AbuelaMaterna, "ABUELA MATERNA:", &B::AbuelaMadres, Clase::Nombre},
      {ParroquiaMatrimonio, "PARROQUIA:", &B::ParroquiaMatrimonio, Clase::Texto, Voz::Parroquia},
      {DiocesisMatrimonio, "DIOCESIS:", &B::DiocesisMatrimonio, Clase::Texto, Voz::Diocesis},
      {DireccionPadres, "DIRECCION DEL MATRIMONIO:", &B::DireccionPadresMatrimonio, Clase::Texto,
       Voz::Domicilio},
      {TelefonoPadres, "TELEFONO:", &B::TelefonoPadres},
      {Ministro, "MINISTRO:", &B::MinistroBautismo, Clase::Nombre, Voz::Ministro},
      {MinistroCargo, "CARGO:", &B::MinistroCargo, Clase::Texto, Voz::Cargo},
      {DiocesisBautismo, "DIOCESIS:", &B::DiocesisBautismo, Clase::Texto, Voz::Diocesis},
      {ParroquiaBautismo, "PARROQUIA (Lugar):", &B::ParroquiaBautismo, Clase::Texto,
       Voz::Parroquia},
      {Padrino, "PADRINO:", &B::PadrinoBautismo, Clase::Nombre, Voz::Padrino},
      {Madrina, "MADRINA:", &B::MadrinaBautismo, Clase::Nombre, Voz::Padrino},
      {NotasMarginales, "NOTAS MARGINALES:", &B::NotasMarginalesBautismo, Clase::Largo},
      {Observaciones, "OBSERVACIONES:", &B::ObservacionesBautismo, Clase::Largo},
  };
  const CampoFecha fechasDeCampos[] = {
      {FechaNac, "FECHA DE NACIMIENTO:", &B::FechaNacHijo, "fecha de nacimiento", Hoy::DUDOSO},
      {FechaMatr, "FECHA:", &B::FechaMatrMatrimonio, "fecha de la boda de los padres", Hoy::DUDOSO},
      {FechaBautismo, "FECHA DE BAUTISMO:", &B::FechaBautismo, "fecha de bautismo", Hoy::NORMAL},
  };
  const CampoMunicipio lugares[] = {
      {ProvinciaNac,
       "PROVINCIA DE NACIMIENTO:", "POBLACION DE NACIMIENTO:", &B::CodPoblacionNacHijo},
      {ProvinciaPadre, "PROVINCIA:", "POBLACION:", &B::CodPoblacionPadres},
      {ProvinciaAbueloPaterno, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbueloPadres},
      {ProvinciaAbuelaPaterna, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbuelaPadres},
      {ProvinciaMadre, "PROVINCIA:", "POBLACION:", &B::CodPoblacionMadres},
      {ProvinciaAbueloMaterno, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbueloMadres},
      {ProvinciaAbuelaMaterna, "PROVINCIA:", "POBLACION:", &B::CodPoblacionAbuelaMadres},
      {ProvinciaMatrimonio, "PROVINCIA:", "POBLACION:", &B::CodPoblacionMatrMatrimonio},
      {ProvinciaDomicilio, "PROVINCIA:", "POBLACION:", &B::CodPoblacionPadresMatrimonio},
      {ProvinciaBautismo, "PROVINCIA:", "POBLACION:", &B::CodPoblacionBautismo},
  };
  textos(txtPartida, campos);
  fechas(fechasDeCampos);
  municipios(lugares);
  lista(Sexo, "SEXO:", &B::SexoHijo);
  cIListas(contexto_).fillSexo(cboPartida[Sexo]);
  hora(txtHoraNac, &B::HoraNacHijo);
}

void frmPartidaBautismo::crearCamposDeEdicion() {
  using B = cBautismo;
  constexpr const char* PARROQUIA = "PARROQUIA DE BAUTISMO:";
  constexpr const char* PROVINCIA = "PROVINCIA DE BAUTISMO:";
  constexpr const char* POBLACION = "POBLACION DE BAUTISMO:";
  const CampoTexto padres[] = {
      {PadreProfesion, "PROFESION:", &B::PadreProfesion, Clase::Texto, Voz::Profesion},
      {MadreProfesion, "PROFESION:", &B::MadreProfesion, Clase::Texto, Voz::Profesion},
  };
  const CampoTexto parroquias[] = {
      {PadreParroquia, PARROQUIA, &B::PadreParroquiaBaut, Clase::Texto, Voz::Parroquia},
      {MadreParroquia, PARROQUIA, &B::MadreParroquiaBaut, Clase::Texto, Voz::Parroquia},
      {AbueloPatParroquia, PARROQUIA, &B::AbueloPatParroquiaBaut, Clase::Texto, Voz::Parroquia},
      {AbuelaPatParroquia, PARROQUIA, &B::AbuelaPatParroquiaBaut, Clase::Texto, Voz::Parroquia},
      {AbueloMatParroquia, PARROQUIA, &B::AbueloMatParroquiaBaut, Clase::Texto, Voz::Parroquia},
      {AbuelaMatParroquia, PARROQUIA, &B::AbuelaMatParroquiaBaut, Clase::Texto, Voz::Parroquia},
  };
  const CampoMunicipio lugares[] = {
      {ProvinciaParroquiaPadre, PROVINCIA, POBLACION, &B::PadreCodMunicipioParrBaut},
      {ProvinciaParroquiaMadre, PROVINCIA, POBLACION, &B::MadreCodMunicipioParrBaut},
      {ProvinciaParroquiaAbueloPat, PROVINCIA, POBLACION, &B::AbueloPatCodMunicipioParrBaut},
      {ProvinciaParroquiaAbuelaPat, PROVINCIA, POBLACION, &B::AbuelaPatCodMunicipioParrBaut},
      {ProvinciaParroquiaAbueloMat, PROVINCIA, POBLACION, &B::AbueloMatCodMunicipioParrBaut},
      {ProvinciaParroquiaAbuelaMat, PROVINCIA, POBLACION, &B::AbuelaMatCodMunicipioParrBaut},
  };
  const CampoTexto padrinos[] = {
      {EdadPadrino, "EDAD:", &B::EdadPadrino, Clase::Cifras},
      {EdadMadrina, "EDAD:", &B::EdadMadrina, Clase::Cifras},
      {DomicilioPadrino, "PARROQUIA DE DOMICILIO:", &B::ParroquiaDomicilioPadrino, Clase::Texto,
       Voz::Parroquia},
      {DomicilioMadrina, "PARROQUIA DE DOMICILIO:", &B::ParroquiaDomicilioMadrina, Clase::Texto,
       Voz::Parroquia},
  };
  const CampoTexto masPadrinos[] = {
      {ProfesionPadrino, "PROFESION:", &B::ProfesionPadrino, Clase::Texto, Voz::Profesion},
      {ProfesionMadrina, "PROFESION:", &B::ProfesionMadrina, Clase::Texto, Voz::Profesion},
      {NaturalPadrino, "NATURAL DE:", &B::NaturalPadrino},
      {NaturalMadrina, "NATURAL DE:", &B::NaturalMadrina},
      {EstatPadrino, "ESTADO CIVIL:", &B::EstatPadrino},
      {EstatMadrina, "ESTADO CIVIL:", &B::EstatMadrina},
  };
  const bool santiago = contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO);
  const bool menorca = contexto_.constante().Aplicacion == "0050";
  textos(txtSC, padres);
  textos(txtSC, parroquias, santiago);
  municipios(lugares, santiago);
  textos(txtSC, padrinos, santiago || menorca);
  textos(txtSC, masPadrinos, menorca);
  for (const TextoSC edad : {EdadPadrino, EdadMadrina}) {
    txtSC[edad].setMaxLength(3);
    txtSC[edad].setWidthChars(4);
  }
}

Nodes frmPartidaBautismo::paginas() {
  const LayoutNode padre =
      page({group(fraPadre, {progenitor(NombrePadre, PadreProfesion, PadreParroquia, ProvinciaPadre,
                                        ProvinciaParroquiaPadre, TelefonoPadre)}),
            group(fraAbuelosPaternos, {abuelos(AbueloPaterno, ProvinciaAbueloPaterno,
                                               AbueloPatParroquia, ProvinciaParroquiaAbueloPat)}),
            forms::stretch()});
  const LayoutNode madre =
      page({group(fraMadre, {progenitor(NombreMadre, MadreProfesion, MadreParroquia, ProvinciaMadre,
                                        ProvinciaParroquiaMadre, TelefonoMadre)}),
            group(fraAbuelosMaternos, {abuelos(AbueloMaterno, ProvinciaAbueloMaterno,
                                               AbueloMatParroquia, ProvinciaParroquiaAbueloMat)}),
            forms::stretch()});
  const LayoutNode notas =
      page({fields(1, {item(txtPartida[NotasMarginales]), item(txtPartida[Observaciones])})});
  return {paginaBautizado(), padre, madre, paginaMatrimonio(), paginaBautismo(), notas};
}

LayoutNode frmPartidaBautismo::paginaBautizado() {
  return page(
      {fields(2, {item(txtPartida[NombreHijo], 2), item(txtPartida[PrimerApellidoHijo]),
                  item(txtPartida[SegundoApellidoHijo]), item(cboPartida[Sexo], 2),
                  item(adtpPartida[FechaNac]), item(txtHoraNac), item(txtPartida[DireccionNac], 2),
                  item(cboPartida[ProvinciaNac]), item(cboPartida[ProvinciaNac + 1])}),
       forms::stretch()});
}

LayoutNode frmPartidaBautismo::progenitor(Texto nombre, TextoSC profesion, TextoSC parroquia,
                                          Lista provincia, Lista provinciaParroquia,
                                          Texto telefono) {
  return fields(3, {item(txtPartida[nombre]), item(txtPartida[nombre + 1]),
                    item(txtPartida[nombre + 2]), item(cboPartida[provincia]),
                    item(cboPartida[provincia + 1]), item(txtSC[profesion]), item(txtSC[parroquia]),
                    item(cboPartida[provinciaParroquia]), item(cboPartida[provinciaParroquia + 1]),
                    item(txtPartida[telefono]), item(txtPartida[telefono + 1])});
}

LayoutNode frmPartidaBautismo::abuelos(Texto abuelo, Lista provincia, TextoSC parroquia,
                                       Lista provinciaParroquia) {
  Nodes filas;
  for (int abuela = 0; abuela < 2; ++abuela) {
    const int lista = provincia + 2 * abuela;
    const int listaParroquia = provinciaParroquia + 2 * abuela;
    for (LayoutNode nodo : {item(txtPartida[abuelo + abuela]), item(cboPartida[lista]),
                            item(cboPartida[lista + 1]), item(txtSC[parroquia + abuela]),
                            item(cboPartida[listaParroquia]), item(cboPartida[listaParroquia + 1])})
      filas.push_back(std::move(nodo));
  }
  return fields(3, std::move(filas));
}

LayoutNode frmPartidaBautismo::paginaMatrimonio() {
  return page(
      {group(fraMatrimonio,
             {fields(
                 2, {item(txtPartida[ParroquiaMatrimonio]), item(adtpPartida[FechaMatr]),
                     item(txtPartida[DiocesisMatrimonio], 2), item(cboPartida[ProvinciaMatrimonio]),
                     item(cboPartida[ProvinciaMatrimonio + 1])})}),
       group(fraDomicilio,
             {fields(2, {item(txtPartida[DireccionPadres], 2), item(cboPartida[ProvinciaDomicilio]),
                         item(cboPartida[ProvinciaDomicilio + 1]),
                         item(txtPartida[TelefonoPadres], 2)})}),
       forms::stretch()});
}

LayoutNode frmPartidaBautismo::paginaBautismo() {
  Nodes padrinos;
  for (int madrina = 0; madrina < 2; ++madrina)
    for (LayoutNode nodo :
         {item(txtPartida[Padrino + madrina], 2), item(txtSC[EdadPadrino + madrina]),
          item(txtSC[DomicilioPadrino + madrina], 2), item(txtSC[ProfesionPadrino + madrina]),
          item(txtSC[NaturalPadrino + madrina], 2), item(txtSC[EstatPadrino + madrina])})
      padrinos.push_back(std::move(nodo));
  return page({fields(2, {item(adtpPartida[FechaBautismo], 2), item(txtPartida[Ministro]),
                          item(txtPartida[MinistroCargo]), item(txtPartida[ParroquiaBautismo]),
                          item(txtPartida[DiocesisBautismo]), item(cboPartida[ProvinciaBautismo]),
                          item(cboPartida[ProvinciaBautismo + 1])}),
               group(fraPadrinos, {fields(3, std::move(padrinos))}), forms::stretch()});
}

}  // namespace fidaleon
