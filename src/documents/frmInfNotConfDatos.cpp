#include "documents/frmInfNotConfDatos.h"

#include <algorithm>

#include "registers/common/Guiones.h"
#include "text/Numbers.h"

namespace fidaleon {

using C = cConfirmacion;
using forms::fields;
using forms::item;

namespace {

constexpr int ANCHO_TEXTO = 255;  // of the columns

bool esFolio(const std::string& texto) {
  return std::string(GUIONES).starts_with(texto) ||
         texto.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

frmInfNotConfDatos::frmInfNotConfDatos(Contexto& contexto)
    : Dialogo(contexto, "frmInfNotConfDatos"),
      fraConfirmacion(*this, "fraConfirmacion", "CONFIRMACION"),
      fraBautismo(*this, "fraBautismo", "BAUTISMO"),
      txtNotifica(*this, "txtNotifica"),
      adtpNotifica(*this, "adtpNotifica"),
      cboNotifica(*this, "cboNotifica"),
      cmdNotifica(*this, "cmdNotifica") {
  crearCampos();
  cmdNotifica.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdNotifica.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdNotifica[ACEPTAR].onClick = [this] {
    procedimiento("cmdNotifica_Click()", [this] { aceptar(); });
  };
  cmdNotifica[CANCELAR].onClick = [this] { Unload(); };
  setLayout(disposicion());
}

void frmInfNotConfDatos::crearCampos() {
  struct Campo {
    Texto indice;
    const char* etiqueta;
    std::string C::*miembro;  // none: FolioBaut, a number
  };
  // What is typed as the age is kept in the place of the birth.
  for (const Campo& c : {Campo{Nombre, "NOMBRE:", &C::Nombre},
                         {PrimerApellido, "PRIMER APELLIDO:", &C::PrimerApellido},
                         {SegundoApellido, "SEGUNDO APELLIDO:", &C::SegundoApellido},
                         {Edad, "EDAD:", &C::FechaNac},
                         {Ministro, "MINISTRO:", &C::MinistroPrinc},
                         {Padrino, "PADRINO:", &C::Padrino},
                         {InstitucionNombre, "Nombre institución:", &C::Parroquia},
                         {InstitucionTipo, "Tipo institución:", &C::InstitucionTipo},
                         {Direccion, "Dirección:", &C::Domicilio},
                         {Diocesis, "Diócesis:", &C::DiocesisParr},
                         {ParroquiaBaut, "Parroquia (Lugar):", &C::ParroquiaBaut},
                         {DireccionBaut, "Dirección:", &C::DireccionBaut},
                         {LibroBaut, "Libro:", &C::LibroBaut},
                         {FolioBaut, "Folio:", nullptr},
                         {NumeroBaut, "Número:", &C::NumeroBaut}}) {
    forms::TextBox& campo = txtNotifica.add(c.indice, c.etiqueta);
    campo.setMaxLength(ANCHO_TEXTO);
    if (c.miembro)
      enlaces_.textos.push_back({&campo, c.miembro});
    else
      enlaces_.numeros.push_back({&campo, &C::FolioBaut});
  }
  constexpr int CIFRAS_FOLIO = 6;
  txtNotifica[FolioBaut].setMaxLength(CIFRAS_FOLIO);
  txtNotifica[FolioBaut].fits = esFolio;
  enlaces_.fechas.push_back(
      {&adtpNotifica.add(FechaConfirmacion, "FECHA CONFIRMACION:"), &C::FechaConfirmacion});
  enlaces_.fechas.push_back({&adtpNotifica.add(FechaBautismo, "Fecha Bautismo:"), &C::FechaBaut});
  for (const Lugar provincia : {Provincia, ProvinciaBaut}) {
    cboNotifica.add(provincia, "Provincia:");
    cboNotifica.add(provincia + 1, "Población:");
  }
  parroquia_ = std::make_unique<ParProvinciaPoblacion>(contexto_, cboNotifica[Provincia],
                                                       cboNotifica[Poblacion]);
  bautismo_ = std::make_unique<ParProvinciaPoblacion>(contexto_, cboNotifica[ProvinciaBaut],
                                                      cboNotifica[PoblacionBaut]);
  enlaces_.municipios.push_back({parroquia_.get(), &C::CodMunicipioParr});
  enlaces_.municipios.push_back({bautismo_.get(), &C::CodMunicipioBaut});
}

forms::LayoutNode frmInfNotConfDatos::disposicion() {
  const auto& t = txtNotifica;
  const auto& c = cboNotifica;
  return forms::column(
      {fields(3, {item(t[Nombre]), item(t[PrimerApellido]), item(t[SegundoApellido])}),
       fields(2, {item(adtpNotifica[FechaConfirmacion]), item(t[Edad]), item(t[Ministro]),
                  item(t[Padrino])}),
       forms::row(
           {forms::group(fraConfirmacion,
                         {fields(1, {item(t[InstitucionNombre]), item(t[InstitucionTipo]),
                                     item(t[Direccion]), item(c[Provincia]), item(c[Poblacion]),
                                     item(t[Diocesis])}),
                          forms::stretch()}),
            forms::group(
                fraBautismo,
                {fields(1, {item(t[ParroquiaBaut]), item(c[ProvinciaBaut]), item(c[PoblacionBaut]),
                            item(t[DireccionBaut]), item(t[LibroBaut]), item(t[FolioBaut]),
                            item(t[NumeroBaut]), item(adtpNotifica[FechaBautismo])})})}),
       forms::stretch(), forms::buttons({&cmdNotifica[ACEPTAR], &cmdNotifica[CANCELAR]})});
}

void frmInfNotConfDatos::Form_Load() {
  aceptada.reset();
  setCaption(Operacion == FDAPI::cCOperacion::EDITAR
                 ? "Propiedades de notificación de " + notificacion.Nombre
                 : "Agregar notificación sin libro");
  const bool cargado = procedimiento("Form_Load()", [this] {
    parroquia_->abrir(*conBaseDatos);
    bautismo_->abrir(*conBaseDatos);
    enlaces_.mostrar(notificacion, Operacion == FDAPI::cCOperacion::EDITAR ? GUIONES : "");
  });
  if (!cargado) Unload();
}

void frmInfNotConfDatos::aceptar() {
  if (faltaNombre() || !fechasValidas()) return;
  if (Operacion == FDAPI::cCOperacion::ANADIR && yaEsta())
    return forms::warn(ui(),
                       "¡Ya existe una partida de confirmación con el mismo nombre de confirmado y "
                       "la misma fecha de confirmación!");
  if (!rellenarVacios()) return;
  aceptada = tecleada();
  Unload();
}

bool frmInfNotConfDatos::faltaNombre() {
  for (const auto& [indice, falta] : {std::pair{Nombre, "nombre"},
                                      {PrimerApellido, "primer apellido"},
                                      {SegundoApellido, "segundo apellido"}}) {
    if (!text::trim(txtNotifica[indice].text()).empty()) continue;
    forms::warn(ui(),
                std::string("¡Debe introducir datos en el campo ") + falta + " del confirmado!");
    setFocus(txtNotifica[indice]);
    return true;
  }
  return false;
}

/// A text that is no date has been told on leaving the field.
bool frmInfNotConfDatos::fechasValidas() {
  for (const auto& [indice, fecha] : adtpNotifica.all())
    if (!fecha->valid()) {
      setFocus(*fecha);
      return false;
    }
  return true;
}

bool frmInfNotConfDatos::yaEsta() const {
  const cConfirmacion nueva = tecleada();
  const auto identidad = [](const cConfirmacion& n) {
    return std::tie(n.Nombre, n.PrimerApellido, n.SegundoApellido, n.FechaConfirmacion);
  };
  return std::any_of(colNotificaciones->begin(), colNotificaciones->end(),
                     [&](const cConfirmacion& n) { return identidad(n) == identidad(nueva); });
}

bool frmInfNotConfDatos::rellenarVacios() {
  std::vector<forms::TextBox*> vacios;
  for (const auto& [indice, campo] : txtNotifica.all())
    if (text::trim(campo->text()).empty()) vacios.push_back(campo.get());
  const bool sinFecha = std::any_of(adtpNotifica.all().begin(), adtpNotifica.all().end(),
                                    [](const auto& f) { return f.second->stored().empty(); });
  if (vacios.empty() && !sinFecha) return true;
  if (!forms::ask(ui(),
                  "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea "
                  "continuar?"))
    return false;
  for (forms::TextBox* campo : vacios) campo->setText(GUIONES);
  return true;
}

cConfirmacion frmInfNotConfDatos::tecleada() const {
  cConfirmacion n = notificacion;
  for (const auto& [campo, miembro] : enlaces_.textos) n.*miembro = text::trim(campo->text());
  for (const auto& [campo, miembro] : enlaces_.numeros)
    n.*miembro = static_cast<std::int32_t>(text::Val(campo->text()));
  for (const auto& [campo, miembro] : enlaces_.fechas) n.*miembro = oGuiones(campo->stored());
  for (const auto& [par, miembro] : enlaces_.municipios) n.*miembro = par->valor();
  return n;
}

}  // namespace fidaleon
