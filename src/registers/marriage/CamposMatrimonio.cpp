// Fields of the dialog of marriages.

#include "registers/marriage/AlmacenMatrimonio.h"
#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon {

namespace {

using P = frmPartidaMatrimonio;
using V = VariantePartida;
using M = cMatrimonio;

const V MATRIMONIOS{
    .sacramento = MATRIMONIO,
    .pestanas = {"GENERAL", "NOVIO (D. Personales)", "NOVIO (D. Sacramentales)", "NOVIO (Otros)",
                 "NOVIA (D. Personales)", "NOVIA (D. Sacramentales)", "NOVIA (Otros)",
                 "EXPEDIENTES", "COMPROMISO", "N.MARGINALES", "EXAMENES (CONTRAYENTES/TESTIGOS)"},
    .listaInstitucion = P::Institucion,
    .listaLibro = P::Libro,
    .titulos = {.nueva = "Alta de partida de matrimonio nueva.",
                .antigua = "Alta de partida de matrimonio antigua",
                .deNueva = "Propiedades de partida de matrimonio nueva",
                .deAntigua = "Propiedades de partida de matrimonio antigua",
                .solicitud = "Nueva solicitud de matrimonio",
                .deSolicitud = "Propiedades de solicitud de matrimonio"},
    .tituloNumero = ", número:",
    .institucion = "institución",
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
    .notasEnSolicitud = false,
    .progenitorAlCorregir = true,
    .avisoNotas = AVISO_NOTAS_SEGUIDO,
    .fechaDelLibro = V::FechaDelLibro::AdelantaLaPrimera,
    .dondeRepetida = V::DondeRepetida::EnSuInstitucion,
    .procBuscar = "BuscarDatos",
    .procImportar = "BuscarDatos",
    .fijaInstitucionDeSolicitud = true,
    .cargaIncompleta =
        "¡Se ha producido un error durante la carga de datos y no se han podido llenar algunos "
        "campos del formulario! Revise los datos antes de guardarlos de nuevo.",
    .avisaCargaFallida = true};

constexpr int ANCHO_CP = 5;
constexpr int ANCHO_EDAD = 3;
constexpr const char* PROVINCIA = "PROVINCIA:";
constexpr const char* POBLACION = "POBLACIÓN:";

}  // namespace

frmPartidaMatrimonio::frmPartidaMatrimonio(Contexto& contexto)
    : frmPartidaDe(contexto, MATRIMONIOS, ALMACEN_MATRIMONIO),
      txtHoraMatrimonio(*this, "txtHoraMatrimonio", "HORA:"),
      chkLugar(*this, "chkLugar", "LUGAR:"),
      fraMatrimonio(*this, "fraMatrimonio") {
  crearCampos();
  for (const int c : CONTRAYENTES) {
    persona(c + Nombre, c + PrimerApellido, c + SegundoApellido);
    proponerProgenitor(c + PrimerApellido, c + NombrePadre);
    proponerProgenitor(c + SegundoApellido, c + NombreMadre);
    revision().enEsteOrden(adtpPartida[c + FechaNac], adtpPartida[c + FechaBaut]);
    for (const Fecha antes : {FechaNac, FechaBaut, FechaConfirmacion})
      revision().enEsteOrden(adtpPartida[c + antes], adtpPartida[FechaMatrimonio]);
    for (const Texto queda : {Edad, Religion, ParroquiaBaut, DiocesisBaut, MunicipioInscrito})
      serie(txtPartida[c + queda]);
    deCadaUno(txtPartida[c + Nombre]);
    for (const Fecha suya : {FechaNac, FechaBaut, FechaConfirmacion})
      deCadaUno(adtpPartida[c + suya]);
    for (const Texto nuestro : {DNI, Email, Telefono}) deHoy(txtPartida[c + nuestro]);
  }
  for (const Texto queda : {DNI, Parroquia, Diocesis, Celebrante, ExpedInst, NihilObstat,
                            Demarcacion, CPCompromiso, Testigo1, Testigo1NaturalDe,
                            Testigo1Poblacion, Testigo2, Testigo2NaturalDe, Testigo2Poblacion})
    serie(txtPartida[queda]);
  for (const Texto suyo : {Padrino, Madrina, Testigos, Observaciones, NotasMarginales})
    deCadaUno(txtPartida[suyo]);
  ponerNotas(NotasMarginales);
  fechaDelSacramento(FechaMatrimonio);
  mostrarEdicion();
  crearExamenes();
  disponer(paginas());
  crearSucesos();
}

void frmPartidaMatrimonio::crearCampos() {
  crearContrayente(NOVIO);
  crearContrayente(NOVIA);
  crearTestigos();
  crearCompromiso();
}

// The member of the groom and that of the bride.
#define AMBOS(miembro) \
  { &M::Novio##miembro, &M::Novia##miembro }
#define AMBOS_DETRAS(miembro) \
  { &M::miembro##Novio, &M::miembro##Novia }

void frmPartidaMatrimonio::crearContrayente(int cual) {
  const std::size_t persona = cual == NOVIA ? 1 : 0;
  struct {
    int indice;
    const char* etiqueta;
    std::array<std::string M::*, 2> miembros;
    Clase clase = Clase::Texto;
    Voz voz = Voz::Ninguna;
  } const campos[] = {
      {Nombre, "NOMBRE:", AMBOS(Nombre)},
      {PrimerApellido, "PRIMER APELLIDO:", AMBOS(PrimerApellido), Clase::Texto, Voz::Apellido},
      {SegundoApellido, "SEGUNDO APELLIDO:", AMBOS(SegundoApellido), Clase::Texto, Voz::Apellido},
      {DNI, "DNI:", AMBOS(DNI)},
      {Edad, "EDAD:", AMBOS(Edad), Clase::Cifras},
      {Nacionalidad, "NACIONALIDAD:", AMBOS(Nacionalidad)},
      {Religion, "RELIGIÓN:", AMBOS(Religion)},
      {EstadoCivil, "ESTADO CIVIL:", AMBOS(EstadoCivil)},
      {NombrePadre, "NOMBRE DEL PADRE:", AMBOS(NombrePadre)},
      {NombreMadre, "NOMBRE DE LA MADRE:", AMBOS(NombreMadre)},
      {Email, "EMAIL:", AMBOS_DETRAS(Email)},
      {Telefono, "TELÉFONO:", AMBOS_DETRAS(Telefono)},
      {Profesion, "PROFESIÓN:", AMBOS(Profesion), Clase::Texto, Voz::Profesion},
      {DiocesisNac, "DIÓCESIS DE NACIMIENTO:", AMBOS(DiocesisNac), Clase::Texto, Voz::Diocesis},
      {SujetoDerecho, "SUJETO AL DERECHO:", AMBOS(SujetoDerecho)},
      {ParroquiaBaut, "PARROQUIA:", AMBOS(ParroquiaBaut), Clase::Texto, Voz::Parroquia},
      {DiocesisBaut, "DIÓCESIS:", AMBOS(DiocesisBaut), Clase::Texto, Voz::Diocesis},
      {LibroBaut, "LIBRO:", AMBOS(LibroBaut)},
      {NumeroBaut, "NÚMERO:", AMBOS(NumeroBaut)},
      {DomicilioActual, "DOMICILIO:", AMBOS(DomicilioActual), Clase::Texto, Voz::Domicilio},
      {DomicilioAnterior, "DOMICILIO:", AMBOS(DomicilioAnterior), Clase::Texto, Voz::Domicilio},
      {MunicipioInscrito, "MUNICIPIO:", AMBOS(MunicipioInscrito)},
      {Tomo, "TOMO:", AMBOS(Tomo)},
      {Pagina, "PÁGINA:", AMBOS(Pagina)},
      {NombreCivil, "NOMBRE CIVIL:", AMBOS(NombreCivil)},
      {ParroquiaExhorto, "PARROQUIA:", AMBOS_DETRAS(ParroquiaExhorto), Clase::Texto,
       Voz::Parroquia},
      {PoblacionExhorto, "POBLACIÓN:", AMBOS_DETRAS(PoblacionExhorto)},
      {DiocesisExhorto, "DIÓCESIS:", AMBOS_DETRAS(DiocesisExhorto), Clase::Texto, Voz::Diocesis},
  };
  struct {
    Fecha indice;
    const char* etiqueta;
    std::array<std::string M::*, 2> miembros;
    const char* nombre;
  } const dias[] = {
      {FechaNac, "FECHA DE NACIMIENTO:", AMBOS(FechaNac), "fecha de nacimiento"},
      {FechaBaut, "FECHA:", AMBOS(FechaBaut), "fecha de bautismo"},
      {FechaConfirmacion, "FECHA:", AMBOS(FechaConfirmacion), "fecha de confirmación"},
  };
  struct {
    Lista provincia;
    const char* etiquetaProvincia;
    const char* etiquetaPoblacion;
    std::array<std::int32_t M::*, 2> miembros;
  } const lugares[] = {
      {ProvinciaNac, "PROVINCIA DE NACIMIENTO:", "POBLACIÓN DE NACIMIENTO:", AMBOS(IDMunicipioNac)},
      {ProvinciaBaut, PROVINCIA, POBLACION, AMBOS(IDMunicipioBaut)},
      {ProvinciaConfirmacion, PROVINCIA, POBLACION, AMBOS(CodMunicipioConfirmacion)},
      {ProvinciaActual, PROVINCIA, POBLACION, AMBOS(IDMunicipioActual)},
      {ProvinciaAnterior, PROVINCIA, POBLACION, AMBOS(IDMunicipioAnterior)},
  };
  for (const auto& c : campos)
    textos(txtPartida,
           {{CampoTexto{cual + c.indice, c.etiqueta, c.miembros[persona], c.clase, c.voz}}});
  for (const auto& d : dias)
    fechas({{CampoFecha{cual + d.indice, d.etiqueta, d.miembros[persona],
                        std::string(d.nombre) + (persona == 1 ? " de la novia" : " del novio"),
                        RevisionFechas::Hoy::NUNCA}}});
  for (const auto& l : lugares)
    municipios({{CampoMunicipio{cual + l.provincia, l.etiquetaProvincia, l.etiquetaPoblacion,
                                l.miembros[persona]}}});
  constexpr std::array FOLIOS AMBOS(FolioBaut);
  constexpr std::array RESIDENCIAS AMBOS(TResidenciaDomAct);
  numero(cual + FolioBaut, "FOLIO:", FOLIOS[persona]);
  byte(cual + TResidenciaDomAct, "TIEMPO DE RESIDENCIA:", RESIDENCIAS[persona]);
  for (const Texto corto : {Edad, TResidenciaDomAct}) {
    txtPartida[cual + corto].setMaxLength(ANCHO_EDAD);
    txtPartida[cual + corto].setWidthChars(ANCHO_EDAD + 1);
  }
  // Rarely known, or without use for the entry.
  for (const Texto falta :
       {Email, Telefono, EstadoCivil, ParroquiaExhorto, PoblacionExhorto, DiocesisExhorto})
    puedeFaltar(cual + falta);
}

void frmPartidaMatrimonio::crearTestigos() {
  const CampoTexto campos[] = {
      {NombreTestigo, "NOMBRE:", &M::NombreTestigo1},
      {PrimerApellidoTestigo, "PRIMER APELLIDO:", &M::PrimerApellidoTestigo1},
      {SegundoApellidoTestigo, "SEGUNDO APELLIDO:", &M::SegundoApellidoTestigo1},
      {DNITestigo, "DNI:", &M::DNITestigo1},
      {DomicilioTestigo, "DOMICILIO:", &M::DomicilioTestigo1},
      {OtroTestigo + NombreTestigo, "NOMBRE:", &M::NombreTestigo2},
      {OtroTestigo + PrimerApellidoTestigo, "PRIMER APELLIDO:", &M::PrimerApellidoTestigo2},
      {OtroTestigo + SegundoApellidoTestigo, "SEGUNDO APELLIDO:", &M::SegundoApellidoTestigo2},
      {OtroTestigo + DNITestigo, "DNI:", &M::DNITestigo2},
      {OtroTestigo + DomicilioTestigo, "DOMICILIO:", &M::DomicilioTestigo2},
  };
  const CampoMunicipio lugares[] = {
      {ProvinciaTestigo, PROVINCIA, POBLACION, &M::CodMunicipioTestigo1},
      {ProvinciaTestigo + 2, PROVINCIA, POBLACION, &M::CodMunicipioTestigo2},
  };
  textos(txtPartida, campos);
  municipios(lugares);
}

void frmPartidaMatrimonio::crearCompromiso() {
  const CampoTexto campos[] = {
      {Parroquia, "PARROQUIA (LUGAR):", &M::Parroquia, Clase::Texto, Voz::Parroquia},
      {Diocesis, "DIÓCESIS:", &M::Diocesis, Clase::Texto, Voz::Diocesis},
      {Demarcacion, "Parroquia:", &M::Demarcacion},
      {Padrino, "PADRINO:", &M::Padrino, Clase::Texto, Voz::Padrino},
      {Madrina, "MADRINA:", &M::Madrina, Clase::Texto, Voz::Padrino},
      {Testigos, "TESTIGOS:", &M::Testigos},
      {Celebrante, "CELEBRANTE:", &M::Celebrante, Clase::Texto, Voz::Ministro},
      {ExpedInst, "EXPEDIENTE INSTRUIDO EN:", &M::ExpedInst},
      {DomicilioMatrimonio, "DOMICILIO:", &M::DomicilioMatrimonio, Clase::Texto, Voz::Domicilio},
      {TelefonoDomicMatr, "TELÉFONO:", &M::TelefonoDomicMatr},
      {NihilObstat, "NIHIL OBSTAT:", &M::NihilObstat},
      {TestigosParroquia, "PARROQUIA DE LOS TESTIGOS:", &M::TestigosParroquia, Clase::Texto,
       Voz::Parroquia},
      {CPCompromiso, "CÓDIGO POSTAL:", &M::CPCompromiso, Clase::Cifras},
      {Testigo1, "PRIMER TESTIGO:", &M::Testigo1},
      {Testigo1NaturalDe, "NATURAL DE:", &M::Testigo1_Natural_De},
      {Testigo1Poblacion, "POBLACIÓN:", &M::Testigo1_Poblacion},
      {Testigo2, "SEGUNDO TESTIGO:", &M::Testigo2},
      {Testigo2NaturalDe, "NATURAL DE:", &M::Testigo2_Natural_De},
      {Testigo2Poblacion, "POBLACIÓN:", &M::Testigo2_Poblacion},
      {NotasMarginales, "NOTAS MARGINALES:", &M::NotasMarginales, Clase::Largo},
      {Observaciones, "OBSERVACIONES:", &M::Observaciones, Clase::Largo},
  };
  const CampoFecha dia[] = {{FechaMatrimonio, "FECHA DEL COMPROMISO:", &M::FechaMatrimonio,
                             "fecha de la boda", RevisionFechas::Hoy::NUNCA}};
  const CampoMunicipio lugares[] = {
      {ProvinciaMatrimonio, PROVINCIA, POBLACION, &M::IDMunicipio},
      {ProvinciaDomicMatr, PROVINCIA, POBLACION, &M::CodMunicipioDomicMatr},
  };
  textos(txtPartida, campos);
  fechas(dia);
  municipios(lugares);
  hora(txtHoraMatrimonio, &M::HoraMatrimonio);
  crearMarca(chkLugar);
  txtPartida[CPCompromiso].setMaxLength(ANCHO_CP);
  txtPartida[CPCompromiso].setWidthChars(ANCHO_CP + 1);
}

/// What only some editions show, and what one of them has in its stead.
void frmPartidaMatrimonio::mostrarEdicion() {
  using A = FDAPI::cCAplicacion;
  const auto mostrar = [this](std::initializer_list<int> campos, bool visibles) {
    for (const int campo : campos) txtPartida[campo].setVisible(visibles);
  };
  const bool santiago = contexto_.edicion(A::APP_FIDALEON_SANTIAGO);
  for (const int c : CONTRAYENTES)
    mostrar({c + Profesion, c + DiocesisNac, c + SujetoDerecho}, santiago);
  mostrar({TestigosParroquia}, santiago);
  const bool menorca = contexto_.edicion(A::APP_FIDALEON_MENORCA);
  mostrar({Padrino, Madrina, Testigos}, !menorca);
  mostrar({CPCompromiso, Testigo1, Testigo1NaturalDe, Testigo1Poblacion, Testigo2,
           Testigo2NaturalDe, Testigo2Poblacion},
          menorca);
}

}  // namespace fidaleon
