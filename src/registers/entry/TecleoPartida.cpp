// What an entry dialog does so that what repeats is not typed twice.

#include <algorithm>

#include "core/contract/Teclado.h"
#include "core/statements/Sentencia.h"
#include "registers/common/Guiones.h"
#include "registers/entry/frmPartida.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

/// For how long entries may still come into a book after the last one that is known, and dates into
/// an entry after that one.
constexpr int ANOS_DE_UN_LIBRO = 50;
constexpr int ANOS_DESDE_LA_ULTIMA = 10;

int anoDe(const std::string& guardada) {
  const auto fecha = text::parseStored(guardada);
  return fecha ? fecha->year : 0;
}

}  // namespace

void frmPartida::ofrecer(forms::TextBox& campo, Voz voz) {
  if (voz == Voz::Apellido)
    apellidos_.push_back(&campo);
  else
    DialogoConMemoria::ofrecer(campo, voz);
}

/// A surname that nobody bears, beside one that many do.
void frmPartida::mirarApellido(forms::TextBox& campo) {
  const Memoria& memoria = Memoria::de(contexto_);
  if (!memoria.completa() || campo.locked()) return;
  const std::string otro = memoria.vocabulario.parecido(Voz::Apellido, campo.text());
  if (otro.empty()) return campo.setDoubt({});
  campo.setDoubt("¿" + otro + "? Así está escrito " +
                 std::to_string(memoria.vocabulario.veces(Voz::Apellido, otro)) +
                 " veces en los libros; «" + text::trim(campo.text()) + "», ninguna.");
}

void frmPartida::mirarApellidos() {
  for (forms::TextBox* campo : apellidos_)
    campo->onLostFocus = [this, campo, antes = campo->onLostFocus](forms::Control* siguiente) {
      mirarApellido(*campo);
      if (antes) antes(siguiente);
    };
}

/// Read once for each book.
const std::vector<forms::Field>& frmPartida::ultima() const {
  const std::int64_t id = esSolicitud() ? 0 : libro().data();
  if (id == 0) return DialogoConMemoria::ultima();
  if (ultima_ && ultima_->first == id) return ultima_->second;
  ultima_.emplace(id, std::vector<forms::Field>());
  procedimiento("takeFormer", [&] {
    const store::Recordset fila = conBaseDatos->Execute(
        sentencia(sacramento(), "SELECT TOP 1 {IDPartida} FROM {Partidas} WHERE CodLibro=") +
        std::to_string(id) + " ORDER BY CodLibro DESC, Folio DESC, Val(Numero) DESC");
    if (!fila.EOF_()) ultima_->second = camposDe(static_cast<std::int32_t>(fila.integer(0)));
  });
  return ultima_->second;
}

/// The only ones that there are need not be looked at.
bool frmPartida::beginsSettled() const {
  return esAlta() && institucion().listIndex() >= 0 && institucion().listCount() == 1 &&
         (esSolicitud() || libro().listCount() == 1);
}

bool frmPartida::faltabaEnLaAnterior(const forms::Control& campo) const {
  const forms::Field* era = buscarCampo(anterior(), campo.name());
  return era && enBlanco(era->text);
}

void frmPartida::heredar(int nombre, int apellido, int delHijo, int otroProgenitor) {
  forms::TextBox& suyo = txtPartida[nombre];
  suyo.onLostFocus = [this, &suyo, apellido, delHijo, otroProgenitor](forms::Control*) {
    const bool propone = !enBlanco(suyo.text()) &&
                         (otroProgenitor < 0 || !enBlanco(txtPartida[otroProgenitor].text()));
    if (esAlta()) proponer(txtPartida[apellido], propone ? txtPartida[delHijo].text() : "");
  };
}

bool frmPartida::settled(const forms::Control& campo) const {
  if (DialogoConMemoria::settled(campo)) return true;
  if (!esAlta() || visited(campo)) return false;
  if (hechos_.contains(campo.frame())) return true;
  if (std::find(deHoy_.begin(), deHoy_.end(), &campo) != deHoy_.end())
    return faltabaEnLaAnterior(campo);
  if (&campo == &libro()) return libro().listIndex() >= 0;
  const auto propuesto = propuestos_.find(&campo);
  if (propuesto == propuestos_.end()) return false;
  const auto* texto = dynamic_cast<const forms::TextBox*>(&campo);
  const auto* lista = dynamic_cast<const forms::ListControl*>(&campo);
  const std::string ahora = texto ? texto->text() : std::to_string(lista->data());
  return !propuesto->second.empty() && propuesto->second != "0" && propuesto->second == ahora;
}

/// The year that a date of this entry hardly lies after.
text::DateSense frmPartida::dateSense(const forms::DateField& campo) const {
  text::DateSense sentido = Dialogo::dateSense(campo);
  if (esSolicitud() && &campo == fechaSacramento_) sentido.latestYear += ANOS_POR_DELANTE;
  const bool antigua =
      Operacion == cCOperacion::ANTIGUA || (Operacion == cCOperacion::EDITAR && !libroNuevo_);
  if (!antigua || !fechaSacramento_) return sentido;
  const bool delSacramento = &campo == fechaSacramento_;
  int hasta = delSacramento ? 0 : anoDe(fechaSacramento_->stored());
  if (hasta == 0)
    if (const int ultimo = anoDeLaUltima(); ultimo != 0)
      hasta = ultimo + (delSacramento ? ANOS_DE_UN_LIBRO : ANOS_DESDE_LA_ULTIMA);
  if (hasta != 0) sentido.latestYear = std::min(hasta, sentido.latestYear);
  return sentido;
}

/// Of the last entry of the book, or of the day on which the book begins; 0 when neither is known.
int frmPartida::anoDeLaUltima() const {
  if (const forms::Field* fecha = buscarCampo(ultima(), fechaSacramento_->name()))
    if (const auto dia = text::parseShort(fecha->text)) return dia->year;
  int ano = 0;
  procedimiento("dateSense", [&] {
    const store::Recordset fila = conBaseDatos->Execute(
        sentencia(sacramento(), "SELECT fechacreacion FROM {libros} WHERE {idlibro}=") +
        std::to_string(libro().data()));
    if (!fila.EOF_()) ano = anoDe(fila.text("fechacreacion"));
  });
  return ano;
}

}  // namespace fidaleon
