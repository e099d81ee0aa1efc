#include "registers/allocation/PosicionPartida.h"

#include <algorithm>
#include <array>

#include "core/statements/Sentencia.h"
#include "forms/Form.h"
#include "registers/allocation/FormatoLibro.h"
#include "registers/allocation/LimiteFolios.h"
#include "registers/allocation/PosicionLibre.h"
#include "registers/allocation/PosicionTecleada.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCRegistry;
using store::Recordset;

FDAPI::cCOrigen origenLista(const Sacramento& sacramento) {
  using enum FDAPI::cCOrigen;
  constexpr std::array listas{LISTAPARTIDASBAUTISMO, LISTAPARTIDASCONFIRMACION,
                              LISTAPARTIDASMatrimonio, LISTAPARTIDASDEFUNCION};
  return listas.at(sacramento.byte);
}

PosicionPartida::PosicionPartida(Contexto& contexto, const Sacramento& sacramento,
                                 CamposPosicion campos)
    : contexto_(contexto), sacramento_(sacramento), campos_(std::move(campos)) {}

void PosicionPartida::abrir(FDAPI::Conexion& conexion, FDAPI::cCOrigen origen) {
  conexion_ = &conexion;
  origen_ = origen;
  limiteSuperado_ = false;
}

void PosicionPartida::RellenarFolioyNumero() {
  limiteSuperado_ = false;
  const Libro libro = libroNuevoElegido();
  Recordset fila = conexion_->Execute(
      sentencia(sacramento_, "SELECT folio,numero FROM {partidas} WHERE codlibro=") +
      std::to_string(libro.id) + " ORDER BY Folio, Val(Numero)");
  if (fila.EOF_()) {
    ponerFolio(1);
    campos_.numero.setText("1");
  } else {
    fila.MoveLast();
    seguirA(libro, fila.integer("folio"), fila.text("numero"));
  }
  fijarListas();
}

void PosicionPartida::seguirA(const Libro& libro, std::int64_t folio, const std::string& numero) {
  const int p = partidasPorFolio(*conexion_, libro.codFormato);
  if (p != 1 && p != 2 && p != 4) return;
  ponerFolio(p != 1 && cuentaDelFolio(libro, folio) == 1 ? folio : folio + 1);
  comprobarLimite();
  campos_.numero.setText(std::to_string(static_cast<std::int64_t>(text::Val(numero)) + 1));
}

std::int64_t PosicionPartida::cuentaDelFolio(const Libro& libro, std::int64_t folio) {
  return conexion_
      ->Execute(sentencia(sacramento_, "SELECT {IDPartida},numero FROM {partidas} WHERE folio=") +
                std::to_string(folio) + " AND codlibro=" + std::to_string(libro.id) +
                " ORDER BY Val(Numero)")
      .RecordCount();
}

void PosicionPartida::ComprobarFolioyNumeroAntiguas() {
  limiteSuperado_ = false;
  const auto libre = primeraPosicionLibre(*conexion_, sacramento_, institucionElegida(),
                                          campos_.libro.text(), limiteDeFolios(ajusteLimite()));
  if (!libre) return;
  if (desdeLista()) CalcularColeccionFolioyNumero(libre->libro);
  if (origen_ == FDAPI::cCOrigen::PRINCIPAL) {
    ponerFolio(libre->posicion.folio);
    campos_.numero.setText(libre->posicion.numero);
  }
}

void PosicionPartida::CalcularColeccionFolioyNumero(std::int32_t libro) {
  limiteSuperado_ = false;
  const std::vector<Posicion>& ocupadas = campos_.coleccion();
  if (ocupadas.empty()) {
    proponer({});
    return;
  }
  const Recordset fila = conexion_->Execute(
      sentencia(sacramento_, "SELECT CodFormato, Nuevo FROM {Libros} WHERE {IDLibro} = ") +
      std::to_string(libro));
  const bool soloAdelante =
      fila.flag("Nuevo") && !contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_MENORCA);
  const auto siguiente =
      soloAdelante
          ? siguienteEnLista(ocupadas, 0, Numeracion::SoloAdelante)
          : siguienteEnLista(ocupadas, partidasPorFolio(*conexion_, fila.integer("CodFormato")),
                             Numeracion::Huecos);
  if (siguiente) proponer(*siguiente);
  comprobarLimite();
}

bool PosicionPartida::comprobarPosicionTecleada() {
  const auto folio = text::toInteger(campos_.folio.text());
  if (campos_.institucion.listIndex() < 0 || campos_.libro.listIndex() < 0 || !folio) return true;
  const Libro libro = libroAntiguoElegido();
  const std::int64_t partidas = partidasDelFolio(libro, *folio);
  if (const auto rechazo = rechazoFolioCompleto(libro.codFormato, campos_.folio.text(), partidas)) {
    forms::warn(contexto_.ui(), *rechazo);
    return volverAlFolio();
  }
  const int p = partidasDeFormato(libro.codFormato);
  if ((p != 4 && p != 2) || !ocupado(libro, campos_.numero.text())) return true;
  return ofrecerLetra(libro) || volverAlFolio();
}

// The list of a book knows what is still to be stored and what is to go; the table does not.
std::int64_t PosicionPartida::partidasDelFolio(const Libro& libro, std::int64_t folio) const {
  if (desdeLista())
    return std::ranges::count(campos_.coleccion(), folio,
                              [](const Posicion& p) { return std::int64_t{p.folio}; });
  return conexion_
      ->Execute(sentencia(sacramento_, "SELECT folio FROM {Partidas} WHERE folio=") +
                std::to_string(folio) + " AND codlibro=" + std::to_string(libro.id))
      .RecordCount();
}

bool PosicionPartida::ofrecerLetra(const Libro& libro) {
  Recordset fila = conexion_->Execute(
      sentencia(sacramento_, "SELECT numero FROM {Partidas} WHERE folio=") + campos_.folio.text() +
      " AND numero=" + entreComillas(campos_.numero.text()) +
      " AND codlibro=" + std::to_string(libro.id));
  const std::string nuevo =
      numeroConLetra(fila.EOF_() ? campos_.numero.text() : fila.text("numero"),
                     [&](const std::string& numero) { return ocupado(libro, numero); });
  const auto pregunta = preguntaReemplazo(sacramento_, libro.codFormato, nuevo);
  if (!forms::ask(contexto_.ui(), pregunta.texto, pregunta.titulo)) return false;
  campos_.numero.setText(nuevo);
  return true;
}

bool PosicionPartida::ocupado(const Libro& libro, const std::string& numero) const {
  if (desdeLista())
    return std::ranges::any_of(campos_.coleccion(), [&](const Posicion& p) {
      return p.folio == enCampos().folio && text::equalsNoCase(p.numero, numero);
    });
  return !conexion_
              ->Execute(sentencia(sacramento_, "SELECT {IDPartida} FROM {Partidas} WHERE folio=") +
                        campos_.folio.text() + " AND numero=" + entreComillas(numero) +
                        " AND codlibro=" + std::to_string(libro.id))
              .EOF_();
}

void PosicionPartida::avisarNumeroRepetido(std::int32_t propia) {
  const std::string numero = text::trim(campos_.numero.text());
  std::set<std::int64_t> folios;
  if (!numero.empty() && campos_.libro.listIndex() >= 0) folios = foliosCon(numero, propia);
  if (folios.empty()) return quitarAviso();
  std::string cuales;
  for (const std::int64_t folio : folios) {
    const bool ultimo = folio == *folios.rbegin();
    if (!cuales.empty()) cuales += ultimo ? " y " : ", ";
    cuales += std::to_string(folio);
  }
  campos_.aviso.setCaption("El " + numero + " ya está en " +
                           (folios.size() == 1 ? "el folio " : "los folios ") + cuales);
  campos_.aviso.setVisible(true);
}

void PosicionPartida::quitarAviso() {
  campos_.aviso.setVisible(false);
  campos_.aviso.setCaption("");
}

std::set<std::int64_t> PosicionPartida::foliosCon(const std::string& numero,
                                                  std::int32_t propia) const {
  std::set<std::int64_t> folios;
  if (desdeLista()) {
    for (const Posicion& p : campos_.coleccion())
      if (text::equalsNoCase(p.numero, numero)) folios.insert(p.folio);
    return folios;
  }
  Recordset fila = conexion_->Execute(
      sentencia(sacramento_, "SELECT Folio FROM {Partidas} WHERE CodLibro=") +
      std::to_string(campos_.libro.data()) + " AND Numero=" + entreComillas(numero) +
      sentencia(sacramento_, " AND {IDPartida}<>") + std::to_string(propia));
  for (; !fila.EOF_(); fila.MoveNext()) folios.insert(fila.integer("Folio"));
  return folios;
}

bool PosicionPartida::volverAlFolio() {
  campos_.pestanas.setTab(0);
  campos_.folio.form().setFocus(campos_.folio);
  return false;
}

Posicion PosicionPartida::enCampos() const {
  return {text::toInteger(campos_.folio.text()).value_or(0), campos_.numero.text()};
}

void PosicionPartida::avisarSalto(const Posicion& anterior) {
  const Posicion siguiente = enCampos();
  if (haySalto(sacramento_, anterior, siguiente))
    forms::warn(contexto_.ui(), mensajeSalto(sacramento_, siguiente));
}

std::int64_t PosicionPartida::institucionElegida() const {
  return conexion_
      ->Execute("SELECT idinstitucion FROM institucion WHERE nombre=" +
                entreComillas(campos_.institucion.text()))
      .integer("idinstitucion");
}

PosicionPartida::Libro PosicionPartida::libroNuevoElegido() const {
  const std::int64_t institucion = institucionElegida();
  return leerLibro(conexion_->Execute(
      sentencia(sacramento_, "SELECT {idlibro},codformato FROM {libros} WHERE codinstitucion=") +
      std::to_string(institucion) + " AND nombre=" + entreComillas(campos_.libro.text())));
}

PosicionPartida::Libro PosicionPartida::libroAntiguoElegido() const {
  const std::int64_t institucion = institucionElegida();
  return leerLibro(conexion_->Execute(
      sentencia(sacramento_,
                "SELECT foliosiguiente,numerosiguiente,{idlibro},codformato FROM "
                "{Libros} WHERE nombre=") +
      entreComillas(campos_.libro.text()) + " AND codinstitucion=" + std::to_string(institucion)));
}

PosicionPartida::Libro PosicionPartida::leerLibro(const Recordset& fila) const {
  return {fila.integer(sacramento_.claveLibro), fila.integer("codformato")};
}

void PosicionPartida::proponer(const Posicion& posicion) {
  ponerFolio(posicion.folio);
  campos_.numero.setText(posicion.numero);
}

void PosicionPartida::ponerFolio(std::int64_t folio) {
  campos_.folio.setText(std::to_string(folio));
}

std::string PosicionPartida::ajusteLimite() const {
  return contexto_.leerAjuste(cCRegistry::documentos, cCRegistry::DOCUMENTOS_MAXPAGLIBRO);
}

bool PosicionPartida::pasaLimite() const {
  return pasaLimiteDeFolios(ajusteLimite(), enCampos().folio);
}

void PosicionPartida::comprobarLimite() {
  if (!pasaLimite()) return;
  forms::warn(contexto_.ui(), MENSAJE_LIMITE_FOLIOS);
  campos_.pestanas.setTab(0);
  limiteSuperado_ = true;
}

void PosicionPartida::fijarListas() {
  const bool lista = desdeLista();
  campos_.institucion.setLocked(lista);
  campos_.libro.setLocked(lista);
}

}  // namespace fidaleon
