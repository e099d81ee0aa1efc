// Fields of the collaborator dialog, where they stand and what they hold when it opens.

#include "census/collaborators/frmColaborador.h"

#include <stdexcept>

#include "census/collaborators/TablasColaborador.h"
#include "census/common/CamposPersona.h"
#include "core/dialogs/Guard.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using forms::fields;
using forms::item;
using forms::LayoutNode;
using forms::page;

namespace {

constexpr int ANCHO_TEXTO = 255;  // of the columns
constexpr int ANCHO_CPOSTAL = 5;
constexpr int ANCHO_AÑO = 4;
constexpr int MEMO = 0;  // no limit

struct CampoTexto {
  frmColaborador::Texto indice;
  const char* etiqueta;
  std::string Persona::*miembro;
  Voz voz = Voz::Ninguna;
  int maximo = ANCHO_TEXTO;
  int lineas = 1;
};

using C = frmColaborador;
constexpr CampoTexto CAMPOS[] = {
    {C::Nombre, "NOMBRE:", &Persona::Nombre},
    {C::PrimerApellido, "PRIMER APELLIDO:", &Persona::PrimerApellido},
    {C::SegundoApellido, "SEGUNDO APELLIDO:", &Persona::SegundoApellido},
    {C::Direccion, "DIRECCION:", &Persona::Direccion, Voz::Domicilio},
    {C::CPostal, "C.POSTAL:", &Persona::CPostal, Voz::CodigoPostal, ANCHO_CPOSTAL},
    {C::Telefono, "TELEFONO (1):", &Persona::Telefono},
    {C::Telefono2, "TELEFONO (2):", &Persona::Telefono2},
    {C::CorreoElectronico, "EMAIL:", &Persona::CorreoElectronico},
    {C::ProfesionColegio, "PROFESIÓN / COLEGIO:", &Persona::ProfesionColegio, Voz::Profesion},
    {C::Comentarios, "COMENTARIOS:", &Persona::Comentarios, Voz::Ninguna, MEMO, 4},
    {C::Cumpleaños, "CUMPLEAÑOS:", &Persona::Cumpleaños},
    {C::AñoNacimiento, "AÑO DE NACIMIENTO:", &Persona::AñoNacimiento, Voz::Ninguna, ANCHO_AÑO},
    {C::NombrePadre, "NOMBRE DEL PADRE:", &Persona::NombrePadre},
    {C::NombreMadre, "NOMBRE DE LA MADRE:", &Persona::NombreMadre},
    {C::ParroquiaBaut, "PARROQUIA:", &Persona::ParroquiaBaut, Voz::Parroquia},
    {C::DireccionParrBaut, "DIRECCION:", &Persona::DireccionParrBaut, Voz::Domicilio},
    {C::Observaciones, "OBSERVACIONES:", &Persona::Observaciones, Voz::Ninguna, MEMO, 10},
};

}  // namespace

frmColaborador::frmColaborador(Contexto& contexto)
    : DialogoConMemoria(contexto, "frmColaborador"),
      mstColaborador(*this, "mstColaborador",
                     {"DATOS", "NACIMIENTO", "BAUTISMO", "OBSERVACIONES", "ACTIVIDADES"}),
      txtColaborador(*this, "txtColaborador"),
      adtpFechaBautizo(*this, "adtpFechaBautizo", "FECHA:"),
      cboColaborador(*this, "cboColaborador"),
      cmdAgregarProvincia(*this, "cmdAgregarProvincia"),
      cmdAgregarMunicipio(*this, "cmdAgregarMunicipio"),
      msgActividades(*this, "msgActividades"),
      cmdActividad(*this, "cmdActividad"),
      cmdColaborador(*this, "cmdColaborador") {
  crearTextos();
  crearLugar(DOMICILIO, ProvinciaDomicilio, &Persona::CodMunicipio);
  crearLugar(BAUTISMO, ProvinciaBautismo, &Persona::CodMunicipioParrBaut);
  enlaces_.fechas.push_back({&adtpFechaBautizo, &Persona::FechaBautizo});
  deCadaUno(adtpFechaBautizo);
  crearBotones();
  setLayout(disposicion());
  crearSucesos();
}

void frmColaborador::crearTextos() {
  for (const CampoTexto& c : CAMPOS) {
    forms::TextBox& campo = txtColaborador.add(c.indice, c.etiqueta);
    campo.setMaxLength(c.maximo);
    campo.setLines(c.lineas);
    ofrecer(campo, c.voz);
    enlaces_.textos.push_back({&campo, c.miembro});
  }
  for (const Texto suyo :
       {Nombre, PrimerApellido, SegundoApellido, Telefono, Telefono2, CorreoElectronico,
        ProfesionColegio, Comentarios, Cumpleaños, AñoNacimiento, Observaciones})
    deCadaUno(txtColaborador[suyo]);
  for (const Texto cifras : {CPostal, Telefono, Telefono2, AñoNacimiento})
    soloDigitos(contexto_, txtColaborador[cifras]);
  txtColaborador[CPostal].setWidthChars(ANCHO_CPOSTAL + 1);
  txtColaborador[AñoNacimiento].setWidthChars(ANCHO_AÑO + 2);
  enMinusculas(txtColaborador[CorreoElectronico]);
  cumpleaños_.emplace(txtColaborador[Cumpleaños]);
  coincidencias_.emplace(contexto_, txtColaborador[Nombre], txtColaborador[PrimerApellido],
                         txtColaborador[SegundoApellido], FDAPI::cCOrigen::COLABORADOR);
}

void frmColaborador::crearLugar(Lugar lugar, Lista provincia, std::int32_t Persona::*miembro) {
  forms::ComboBox& provincias = cboColaborador.add(provincia, "PROVINCIA:");
  forms::ComboBox& poblaciones = cboColaborador.add(provincia + 1, "POBLACION:");
  enlaces_.municipios.push_back(
      {&pares_.emplace_back(contexto_, provincias, poblaciones), miembro});
  cmdAgregarProvincia.add(lugar, "Agregar Provincia").onClick = [this] {
    procedimiento("cmdAgregarProvincia_Click", [this] { agregarProvincia(); });
  };
  cmdAgregarMunicipio.add(lugar, "Agregar Municipio").onClick = [this] {
    procedimiento("cmdAgregarMunicipio_Click", [this] { agregarMunicipio(); });
  };
}

void frmColaborador::crearBotones() {
  cmdColaborador.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdColaborador.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdColaborador.add(IMPORTAR, "IMPORTAR")
      .setToolTip("Busca a la persona entre las que ya están en el padrón");
  cmdActividad.add(AGREGAR, "AGREGAR");
  cmdActividad.add(MODIFICAR, "MODIFICAR");
  cmdActividad.add(QUITAR, "QUITAR");
}

LayoutNode frmColaborador::paginaDatos() {
  const auto texto = [this](Texto indice, int ancho = 1) {
    return item(txtColaborador[indice], ancho);
  };
  return page(
      {fields(2, {texto(Nombre, 2), texto(PrimerApellido), texto(SegundoApellido), texto(Direccion),
                  texto(CPostal),
                  item(cboColaborador[ProvinciaDomicilio], {&cmdAgregarProvincia[DOMICILIO]}),
                  item(cboColaborador[ProvinciaDomicilio + 1], {&cmdAgregarMunicipio[DOMICILIO]}),
                  texto(Telefono), texto(Telefono2), texto(CorreoElectronico),
                  texto(ProfesionColegio), texto(Comentarios, 2)})});
}

LayoutNode frmColaborador::disposicion() {
  const auto texto = [this](Texto indice) { return item(txtColaborador[indice]); };
  return forms::column(
      {forms::tabs(
           mstColaborador,
           {paginaDatos(),
            page({fields(1, {texto(Cumpleaños), texto(AñoNacimiento), texto(NombrePadre),
                             texto(NombreMadre)})}),
            page({fields(
                1,
                {item(adtpFechaBautizo), texto(ParroquiaBaut), texto(DireccionParrBaut),
                 item(cboColaborador[ProvinciaBautismo], {&cmdAgregarProvincia[BAUTISMO]}),
                 item(cboColaborador[ProvinciaBautismo + 1], {&cmdAgregarMunicipio[BAUTISMO]})})}),
            page({texto(Observaciones)}),
            page({item(msgActividades),
                  forms::buttons({&cmdActividad[AGREGAR], &cmdActividad[MODIFICAR],
                                  &cmdActividad[QUITAR]})})}),
       forms::buttons(
           {&cmdColaborador[IMPORTAR], &cmdColaborador[ACEPTAR], &cmdColaborador[CANCELAR]})});
}

void frmColaborador::Form_Load() {
  // Half-loaded fields must never be accepted over what is stored.
  if (!procedimiento("Form_Load", [this] { cargar(); })) Unload();
}

void frmColaborador::Form_Unload() {
  procedimiento("Form_Unload", [this] {
    bloqueos_.reset();
    guardarAnchos();
  });
}

void frmColaborador::cargar() {
  const forms::Hourglass reloj(ui());
  ConfigGridActividadColaborador();
  for (const auto& [indice, boton] : cmdActividad.all()) boton->setVisible(!blnOcultar);
  refrescarMemoria();
  for (ParProvinciaPoblacion& lugar : pares_) lugar.abrir(*conBaseDatos);
  LimpiarDatosColaborador();
  if (Operacion == cCOperacion::EDITAR) {
    if (!cargarPersona() || !LlenaColeccionActividad() || !CargaGridActividadColaborador())
      return Unload();
  } else {
    setCaption("Agregar colaborador");
  }
  coincidencias_->olvidarCambio();
}

void frmColaborador::LimpiarDatosColaborador() {
  persona_ = {};
  actividades_.clear();
  mostrarPersona();
}

bool frmColaborador::cargarPersona() {
  if (!leerPersona(IDPadron, persona_)) {
    forms::warn(ui(), "Esta persona ya no está en el padrón.");
    return false;
  }
  mostrarPersona();
  setCaption("Propiedades del colaborador " + persona_.Nombre + " " + persona_.PrimerApellido +
             " " + persona_.SegundoApellido);
  return true;
}

bool frmColaborador::leerPersona(std::int32_t id, Persona& persona) const {
  const auto leer = [&](const Tabla<Persona>& tabla, const char* clave) {
    const store::Recordset fila =
        conBaseDatos->Execute(std::string("SELECT * FROM ") + tabla.nombre + " WHERE " + clave +
                              "=" + std::to_string(id));
    if (fila.EOF_()) return false;
    copiarFila(tabla, fila, persona, true);
    return true;
  };
  persona.IDPadron = persona.CodPadron = id;
  if (!leer(ALTA_COLABORADOR, "IDPadron")) return false;
  // A person may lack the row of a satellite; it is added when the card is accepted.
  leer(ALTA_COLABORADOR_NACIMIENTO, "CodPadron");
  leer(ALTA_COLABORADOR_BAUTISMO, "CodPadron");
  return true;
}

const std::vector<forms::Field>& frmColaborador::ultima() const {
  if (ultima_) return *ultima_;
  ultima_.emplace();
  procedimiento("takeFormer", [&] {
    const store::Recordset fila = conBaseDatos->Execute(
        "SELECT MAX(CodPadron) AS IDPadron FROM Padron_TipoPersona WHERE CodTipoPersona=3");
    Persona persona;
    if (!fila.EOF_() && leerPersona(static_cast<std::int32_t>(fila.integer("IDPadron")), persona))
      ultima_ = enlaces_.campos(persona);
  });
  return *ultima_;
}

void frmColaborador::mostrarPersona() {
  enlaces_.mostrar(persona_);
  cumpleaños_->poner(persona_.Cumpleaños);
  comprobarPoblaciones();
}

// A province without its town is a list that could not be read; the person would lose the town.
void frmColaborador::comprobarPoblaciones() const {
  for (const Lista lista : {ProvinciaDomicilio, ProvinciaBautismo})
    if (cboColaborador[lista].listIndex() >= 0 && cboColaborador[lista + 1].listIndex() < 0)
      throw std::runtime_error("No se han podido leer las poblaciones de esta persona.");
}

}  // namespace fidaleon
