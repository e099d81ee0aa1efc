// What a marriage proposes, completes and works out by itself.

#include <algorithm>

#include "core/contract/NombreYApellidos.h"
#include "registers/common/Guiones.h"
#include "registers/lookup/Importacion.h"
#include "registers/marriage/frmPartidaMatrimonio.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using forms::TextBox;

namespace {

constexpr std::size_t CIFRAS_DNI = 10;
constexpr std::size_t CIFRAS_CP = 5;

constexpr const char* DNI_DUDOSO =
    "¡Si ha introducido un DNI, separe la letra de los números con un -. Si está ya separada, el "
    "DNI introducido no es correcto. Si no ha introducido un DNI continue!";

bool enBlanco(const TextBox& campo) {
  return fidaleon::enBlanco(text::trim(campo.text()));
}

void conCeros(TextBox& campo, std::size_t cifras) {
  const std::string escrito = text::trim(campo.text());
  const std::size_t longitud = text::length(escrito);
  if (longitud < cifras) campo.setText(std::string(cifras - longitud, '0') + escrito);
}

}  // namespace

void frmPartidaMatrimonio::crearSucesos() {
  for (const int c : CONTRAYENTES) {
    forms::DateField& nacimiento = adtpPartida[c + FechaNac];
    nacimiento.onChange = [this, c, antes = nacimiento.onChange] {
      antes();
      CalcularEdad(c, "");
    };
    txtPartida[c + Edad].onChange = [this, c] { edadTecleada(c) = !calculando_; };
  }
  for (const int persona :
       {NOVIO + Nombre, NOVIA + Nombre, int{NombreTestigo}, NombreTestigo + OtroTestigo})
    for (const int campo : {persona, persona + 1, persona + 2})
      txtPartida[campo].onChange = [this] { nombrarPestanas(); };
  for (const int dni : {NOVIO + DNI, NOVIA + DNI, int{DNITestigo}, DNITestigo + OtroTestigo})
    txtPartida[dni].onLostFocus = [this, dni](forms::Control* siguiente) {
      if (siguiente != &cmdPartida[CANCELAR]) completarDNI(txtPartida[dni]);
    };
  txtPartida[CPCompromiso].onLostFocus = [this](forms::Control*) { completarCP(); };
  chkLugar.onClick = [this] { chkLugar_Click(); };
  for (const auto& [indice, lista] : cboPartida.all())
    lista->onLostFocus = [this](forms::Control*) { proponerExhorto(); };
}

void frmPartidaMatrimonio::importar(std::size_t persona, const frmBuscaPadres& de) {
  importarBautizado(importadoDeMatrimonio(), de.bautizado, persona);
}

void frmPartidaMatrimonio::preestablecer() {
  const store::Recordset fila = filaDeInstitucion();
  if (fila.EOF_()) return;
  for (const int campo : {int{Parroquia}, NOVIO + ParroquiaBaut, NOVIA + ParroquiaBaut})
    proponer(txtPartida[campo], fila.text("InstitucionNombre"));
  for (const int campo : {int{Diocesis}, NOVIO + DiocesisBaut, NOVIA + DiocesisBaut})
    proponer(txtPartida[campo], fila.text("Diocesis"));
  const bool dudosa = Operacion != cCOperacion::ANADIR;  // the wedding was, or will be, another day
  revision().proponerHoy(adtpPartida[FechaMatrimonio],
                         dudosa ? RevisionFechas::Hoy::DUDOSO : RevisionFechas::Hoy::NORMAL);
  const std::array sinProponer{&cboPartida[NOVIO + ProvinciaActual + 1],
                               &cboPartida[NOVIO + ProvinciaAnterior + 1],
                               &cboPartida[NOVIA + ProvinciaActual + 1]};
  for (const auto& [par, miembro] : enlaces_.municipios)
    if (std::ranges::find(sinProponer, &par->poblacion()) == sinProponer.end())
      proponer(*par, static_cast<std::int32_t>(fila.integer("CodMunicipio")));
}

void frmPartidaMatrimonio::LimpiarDatos() {
  txtPartida[ExpedInst].setText("esta parroquia");
  for (const int c : CONTRAYENTES) {
    txtPartida[c + Religion].setText("católica");
    txtPartida[c + EstadoCivil].setText(c == NOVIA ? "soltera" : "soltero");
    txtPartida[c + Nacionalidad].setText("española");
    edadTecleada(c) = false;
    CalcularEdad(c, "");  // what is shown of the couple before would not be stored
  }
  if (examenes_) examenes_->mostrar(respuestasEnBlanco());
}

void frmPartidaMatrimonio::alCargar() {
  if (examenes_) cargarExamenes();
  chkLugar.setValue(!enBlanco(txtPartida[Demarcacion]));
  chkLugar_Click();
}

void frmPartidaMatrimonio::chkLugar_Click() {
  TextBox& demarcacion = txtPartida[Demarcacion];
  demarcacion.label()->setCaption(chkLugar.value() ? "Demarcación parroquial:" : "Parroquia:");
  demarcacion.setEnabled(chkLugar.value());
  if (!chkLugar.value()) demarcacion.setText(GUIONES);
}

void frmPartidaMatrimonio::completarCampos() {
  for (const int c : CONTRAYENTES) CalcularEdad(c, "0");
  completarCP();
  if (examenes_ && esAlta() && desdeLista())
    registro_.ExamenesEnEspera = textoDeExamenes(examenes_->respuestas());
}

/// Who it is about stands on the tabs of each person.
void frmPartidaMatrimonio::nombrarPestanas() {
  const auto quien = [this](int nombre) {
    return nombreYApellidos(
        {txtPartida[nombre].text(), txtPartida[nombre + 1].text(), txtPartida[nombre + 2].text()});
  };
  for (const int c : CONTRAYENTES)
    for (const Pestana pestana : {TAB_PERSONALES, TAB_SACRAMENTALES, TAB_OTROS})
      mstPartida.setNote(pestana + (c == NOVIA ? TABS_DE_NOVIA : 0), quien(c + Nombre));
  if (!examenes_) return;
  for (const auto& [pestana, nombre] : {std::pair{EXAMEN_NOVIO, NOVIO + Nombre},
                                        {EXAMEN_NOVIA, NOVIA + Nombre},
                                        {EXAMEN_TESTIGO1, int{NombreTestigo}},
                                        {EXAMEN_TESTIGO2, NombreTestigo + OtroTestigo}})
    examenes_->mstExamenes.setNote(pestana, quien(nombre));
}

/// An age that was typed, or that an old entry gives without the day of birth, stays.
void frmPartidaMatrimonio::CalcularEdad(int contrayente, const char* siFalta) {
  const std::string nacimiento = adtpPartida[contrayente + FechaNac].stored();
  const std::string boda = adtpPartida[FechaMatrimonio].stored();
  TextBox& edad = txtPartida[contrayente + Edad];
  if (edad.locked()) return;
  const bool seSabe = !nacimiento.empty() && !boda.empty();
  if (!seSabe && edadTecleada(contrayente) && !enBlanco(edad)) return;
  const int cumplidos = contexto_.fidaleon()->Anos(nacimiento, boda);
  calculando_ = true;
  edad.setText(cumplidos == 0 ? siFalta : std::to_string(cumplidos));
  calculando_ = false;
  edadTecleada(contrayente) = false;
}

void frmPartidaMatrimonio::completarDNI(TextBox& campo) {
  if (campo.locked() || enBlanco(campo)) return;
  conCeros(campo, CIFRAS_DNI);
  if (!contexto_.fidaleon()->CIF_NIF_Valido(text::trim(campo.text())))
    forms::warn(ui(), DNI_DUDOSO);
}

void frmPartidaMatrimonio::completarCP() {
  if (!enBlanco(txtPartida[CPCompromiso])) conCeros(txtPartida[CPCompromiso], CIFRAS_CP);
}

/// The exhorto goes to where a spouse lives.
void frmPartidaMatrimonio::proponerExhorto() {
  for (const int c : CONTRAYENTES) {
    TextBox& donde = txtPartida[c + PoblacionExhorto];
    if (!donde.locked() && text::trim(donde.text()).empty())
      donde.setText(cboPartida[c + ProvinciaActual + 1].text());
  }
}

}  // namespace fidaleon
