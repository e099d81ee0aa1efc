// What the census dialog refuses, and how it stores what it accepts.

#include "census/common/CamposPersona.h"
#include "census/money/cCurrency.h"
#include "census/persons/frmPadron.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

bool vacio(const std::string& texto) {
  return text::trim(texto).empty();
}

}  // namespace

void frmPadron::aceptar() {
  if (!ComprobarCampos()) return;
  leerCampos();
  const bool alta = Operacion == cCOperacion::ANADIR;
  if (alta ? AgregarEmpadronado() : EditarEmpadronado()) {
    if (alta) recordar(campos(ficha_.persona));
    return Unload();
  }
  if (!alta || ficha_.persona.IDPadron == 0) return;
  // Their first row is there for good: accepting again must not add them a second time.
  Operacion = cCOperacion::EDITAR;
  IDPadron = ficha_.persona.IDPadron;
  mostrarModo();
}

bool frmPadron::rechazar(const std::string& mensaje, forms::Control& campo) {
  forms::warn(ui(), mensaje);
  mstPadron.setTab(campo.page());
  setFocus(campo);
  return false;
}

bool frmPadron::ComprobarCampos() {
  if (vacio(cboPadron[Institucion].text()))
    return rechazar("¡Debe seleccionar una Institución para el empadronado!",
                    cboPadron[Institucion]);
  if (!comprobarNombre() || !comprobarComunion() || !comprobarNIF()) return false;
  if (txtPadron[ImporteNicho].text().empty()) txtPadron[ImporteNicho].setText(importeCero());
  return comprobarFechas() && comprobarDNIRepetido();
}

bool frmPadron::comprobarNombre() {
  if (vacio(txtPadron[Nombre].text()))
    return rechazar("¡Debe insertar el nombre del empadronado!", txtPadron[Nombre]);
  if (vacio(txtPadron[PrimerApellido].text()))
    return rechazar("¡Debe insertar el primer apellido del empadronado!",
                    txtPadron[PrimerApellido]);
  if (vacio(txtPadron[SegundoApellido].text()))
    return rechazar("¡Debe insertar el segundo apellido del empadronado!",
                    txtPadron[SegundoApellido]);
  return true;
}

bool frmPadron::comprobarComunion() {
  const int año = std::stoi(comoNumero(text::left(txtPadron[AñoComunion].text(), 9)));
  if (año <= contexto_.entorno.clock.today().year) return true;
  return rechazar("¡El año introducido no debe superar el actual!", txtPadron[AñoComunion]);
}

bool frmPadron::comprobarNIF() {
  const std::string& cifras = txtPadron[NIF].text();
  const std::string& letra = txtPadron[LetraNIF].text();
  if (dniIntacto() || (cifras.empty() && letra.empty())) return true;
  if (cifras.empty()) return rechazar("¡Debe introducir un número de NIF!", txtPadron[NIF]);
  if (letra.empty())
    return rechazar("¡Debe introducir una letra para el NIF!", txtPadron[LetraNIF]);
  if (letraCorrecta()) return true;
  return rechazar("¡La letra del NIF no está bien calculada!", txtPadron[LetraNIF]);
}

bool frmPadron::letraCorrecta() const {
  const std::string& cifras = txtPadron[NIF].text();
  return !cifras.empty() &&
         txtPadron[LetraNIF].text() == contexto_.fidaleon()->ObtenerLetraNIF(cifras);
}

bool frmPadron::comprobarFechas() {
  for (const auto& [indice, campo] : adtpPadron.all())
    if (!campo->valid())
      return rechazar(
          "«" + campo->text() + "» no es una fecha. Escríbala como día/mes/año: 03/05/1998.",
          *campo);
  return true;
}

bool frmPadron::comprobarDNIRepetido() {
  if (Operacion != cCOperacion::ANADIR || txtPadron[NIF].text().empty()) return true;
  if (conBaseDatos->Execute("SELECT DNI FROM Padron WHERE DNI= " + entreComillas(dni())).EOF_())
    return true;
  return rechazar("¡El DNI introducido coincide con el de un empadronado!", txtPadron[NIF]);
}

bool frmPadron::dniIntacto() const {
  const auto& [cifras, letra] = dniMostrado_;
  const bool ninguno = cifras.empty() && letra.empty();
  return dniGuardado_ != (ninguno ? std::string() : cifras + "-" + letra) &&
         txtPadron[NIF].text() == cifras && txtPadron[LetraNIF].text() == letra;
}

std::string frmPadron::dni() const {
  if (dniIntacto()) return dniGuardado_;
  const std::string completo = txtPadron[NIF].text() + "-" + txtPadron[LetraNIF].text();
  return completo == "-" ? std::string() : completo;
}

void frmPadron::leerCampos() {
  Persona& p = ficha_.persona;
  for (const auto& [campo, miembro] : enlaces_.textos)
    p.*miembro = campo->multiline() ? campo->text() : text::trim(campo->text());
  for (const auto& [campo, miembro] : enlaces_.fechas)
    p.*miembro = fechaEnLugarDe(p.*miembro, *campo);
  for (const auto& [par, miembro] : enlaces_.municipios) p.*miembro = par->valor();
  p.DNI = dni();
  // A word that the list does not have is not shown; it stays unless another is chosen.
  if (cboPadron[Sexo].listIndex() >= 0 || sexoMostrado_) p.Sexo = cboPadron[Sexo].text();
  p.CodInstitucionEmpadronado = static_cast<std::int32_t>(cboPadron[Institucion].data());
  leerDefuncion();
}

// Both currencies are always stored: the one typed, and the other computed from it.
void frmPadron::leerDefuncion() {
  Persona& p = ficha_.persona;
  const std::string& tecleado = txtPadron[ImporteNicho].text();
  Importe cantidad = Importe::deTexto(tecleado);
  (conPesetas() ? p.Importe : p.ImporteEur) = tecleado;
  if (conPesetas())
    p.ImporteEur = cCurrency().PesetasAEuros(cantidad);
  else
    p.Importe = cCurrency().EurosAPesetas(cantidad);
  p.Pagado = cboPadron[Pagado].text() != "No";
}

bool frmPadron::AgregarEmpadronado() {
  return procedimiento("AgregarEmpadronado", [this] { ficha_.agregar(*conBaseDatos); });
}

bool frmPadron::EditarEmpadronado() {
  return procedimiento("EditarEmpadronado", [this] { ficha_.editar(*conBaseDatos); });
}

}  // namespace fidaleon
