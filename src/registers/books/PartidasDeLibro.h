#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/contract/Contexto.h"
#include "core/statements/Apunte.h"
#include "registers/allocation/PosicionPartida.h"
#include "registers/common/Almacen.h"
#include "registers/common/Guiones.h"

namespace fidaleon {

/// An entry as the list of its book knows it, whatever its sacrament.
struct PartidaEnLista {
  std::int32_t id;
  bool guardada;  // the table holds it
  FDAPI::cCOperacion Operacion;
  bool Anulada;
};

/// How an entry is opened from the list of its book.
struct AperturaDeLista {
  FDAPI::Conexion& conBaseDatos;
  std::int32_t lngInstitucion;
  std::int32_t lngLibro;
  /// Place of the entry in the working copy; none for a new one.
  std::optional<std::size_t> posicion;
  std::optional<forms::ReadOnly> aviso;  // of one that another has, which can only be read
};

/// The entries of one book as a working copy: nothing reaches the tables before guardar(). Places
/// count from 0 and stay, since an entry to be deleted is only marked. Errors are told to the user
/// and show in the answers.
class PartidasDeLibro {
 public:
  virtual ~PartidasDeLibro() = default;

  virtual bool cargar(FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro) = 0;
  virtual std::size_t cuenta() const = 0;
  virtual PartidaEnLista partida(std::size_t posicion) const = 0;
  virtual void anular(std::size_t posicion, bool anulada) = 0;
  virtual void eliminar(std::size_t posicion) = 0;
  /// What the grid shows of it, up to the mark of annulment.
  virtual std::vector<std::string> celdas(std::size_t posicion,
                                          FDAPI::cFidaleon& fidaleon) const = 0;
  /// Reads the columns that the list has left out, once. The caller holds the entry's lock.
  virtual bool completar(FDAPI::Conexion& conBaseDatos, std::size_t posicion) = 0;
  /// Shows the entry's own dialog. False when the entry could not be read.
  virtual bool abrir(const AperturaDeLista& apertura) = 0;
  /// False when something could not be stored; a second call stores the rest.
  virtual bool guardar(FDAPI::Conexion& conBaseDatos) = 0;
  /// Takes back what a failed guardar() left in the tables without all its rows.
  virtual bool retirarAMedias(FDAPI::Conexion& conBaseDatos) = 0;

  /// What is still to be stored, as text.
  virtual std::string pendiente() const = 0;
  /// Puts into the working copy what an earlier one had to store; `tomar` takes the lock of an
  /// entry, stored or new. What cannot be put back is answered: an entry that has changed since, a
  /// place that is taken, a deletion, which nobody wants to see done by itself.
  virtual std::string reponer(FDAPI::Conexion& conBaseDatos, const std::string& texto,
                              const std::function<bool(const PartidaEnLista&)>& tomar) = 0;
};

/// The working copy of a sacrament, whose store is described.
template <class Registro, class Dialogo>
class PartidasDe final : public PartidasDeLibro {
 public:
  PartidasDe(Contexto& contexto, const DescripcionAlmacen<Registro>& d)
      : contexto_(contexto), d_(d) {}

  bool cargar(FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro) override {
    libro_ = lngLibro;
    return almacen(conBaseDatos).cargar(lngLibro, coleccion_);
  }
  std::size_t cuenta() const override { return coleccion_.size(); }
  PartidaEnLista partida(std::size_t posicion) const override {
    if (const Registro* r = coleccion_.tocada(posicion)) return enLista(*r);
    return {static_cast<std::int32_t>(coleccion_.numero(posicion, 0)), true, FDAPI::cCOperacion{},
            coleccion_.numero(posicion, d_.lista.columnas.size() - 1) != 0};
  }
  void anular(std::size_t posicion, bool anulada) override {
    coleccion_.at(posicion).*d_.anulada = anulada;
    ponerOperacion(coleccion_.at(posicion), FDAPI::cCOperacion::EDITAR);
  }
  void eliminar(std::size_t posicion) override {
    ponerOperacion(coleccion_.at(posicion), FDAPI::cCOperacion::Borrar);
  }
  std::vector<std::string> celdas(std::size_t posicion, FDAPI::cFidaleon& fidaleon) const override {
    // All that the list reads but the key before and the mark of annulment behind.
    const std::size_t columnas = d_.lista.columnas.size();
    std::vector<std::string> celdas;
    celdas.reserve(columnas);
    for (std::size_t c = 1; c + 1 < columnas; ++c) celdas.push_back(coleccion_.texto(posicion, c));
    celdas.back() = fidaleon.stringdate(celdas.back());
    return celdas;
  }
  bool completar(FDAPI::Conexion& conBaseDatos, std::size_t posicion) override {
    Registro& r = coleccion_.at(posicion);
    const bool leida = !(r.*d_.completa).empty() || leer(conBaseDatos, r);
    if (leida && operacionDe(r) == FDAPI::cCOperacion{}) leidas_[posicion] = huella(r);
    return leida;
  }
  bool abrir(const AperturaDeLista& apertura) override {
    bool otraVez = false;
    if (!apertura.aviso) return mostrar(apertura, otraVez);
    // What is read without the lock may be out of date when the entry is opened to be changed.
    Registro antes = coleccion_.at(*apertura.posicion);
    const bool leida = mostrar(apertura, otraVez);
    coleccion_.at(*apertura.posicion) = std::move(antes);
    if (!otraVez) return leida;
    AperturaDeLista entera = apertura;
    entera.aviso.reset();
    return mostrar(entera, otraVez);
  }
  bool guardar(FDAPI::Conexion& conBaseDatos) override {
    bool blnSalto = false;
    return almacen(conBaseDatos).grabar(coleccion_, blnSalto);
  }
  bool retirarAMedias(FDAPI::Conexion& conBaseDatos) override {
    return almacen(conBaseDatos).retirarAMedias(coleccion_);
  }

  std::string pendiente() const override {
    std::string texto;
    for (std::size_t i = 0; i < coleccion_.size(); ++i) {
      if (!coleccion_.tocada(i)) continue;
      const Registro& r = *coleccion_.tocada(i);
      const FDAPI::cCOperacion operacion = operacionDe(r);
      if (r.Estado && operacion == FDAPI::cCOperacion{}) continue;
      Apunte apunte;
      const bool borrar = operacion == FDAPI::cCOperacion::Borrar;
      apunte.poner("Partida", std::string(borrar ? "eliminada" : r.Estado ? "cambiada" : "nueva"));
      apuntar(r, apunte);
      apunte.poner("Operacion", static_cast<std::int64_t>(operacion));
      if (const auto leida = leidas_.find(i); leida != leidas_.end())
        apunte.poner("Leida", leida->second);
      texto += apunte.texto();
    }
    return texto;
  }
  std::string reponer(FDAPI::Conexion& conBaseDatos, const std::string& texto,
                      const std::function<bool(const PartidaEnLista&)>& tomar) override {
    std::string resto;
    for (const Apunte& apunte : Apunte::todos(texto))
      if (!reponer(conBaseDatos, apunte, tomar)) resto += apunte.texto();
    return resto;
  }

 private:
  Almacen<Registro> almacen(FDAPI::Conexion& conBaseDatos) { return {contexto_, conBaseDatos, d_}; }
  PartidaEnLista enLista(const Registro& r) const {
    return {r.*d_.id, r.Estado, operacionDe(r), r.*d_.anulada};
  }
  /// The item that an entry to be put back is, or the one whose place it would take.
  std::optional<std::size_t> lugarDe(const Registro& r) const {
    for (std::size_t i = 0; i < coleccion_.size(); ++i) {
      const bool es = r.Estado ? partida(i).id == r.*d_.id : mismoLugar(i, r);
      if (es) return i;
    }
    return std::nullopt;
  }
  /// Folio and number.
  bool mismoLugar(std::size_t posicion, const Registro& r) const {
    const auto igual = [&](std::size_t c) {
      return coleccion_.texto(posicion, c) == valorTexto(r, d_.lista.columnas[c]);
    };
    return igual(LISTADO_FOLIO) && igual(LISTADO_NUMERO);
  }

  bool leer(FDAPI::Conexion& conBaseDatos, Registro& r) {
    if (!almacen(conBaseDatos).completar(libro_, r.*d_.id, r)) return false;
    // Where the table holds an empty one, the entry would be read again over what was changed.
    if ((r.*d_.completa).empty()) r.*d_.completa = GUIONES;
    return true;
  }

  bool reponer(FDAPI::Conexion& conBaseDatos, const Apunte& apunte,
               const std::function<bool(const PartidaEnLista&)>& tomar) {
    Registro r = leido(apunte);
    if (operacionDe(r) == FDAPI::cCOperacion::Borrar || !tomar(enLista(r))) return false;
    const std::optional<std::size_t> otra = lugarDe(r);
    if (otra.has_value() != r.Estado) return false;
    if (!otra) {
      coleccion_.push_back(std::move(r));
      return true;
    }
    if (!completar(conBaseDatos, *otra) || leidas_[*otra] != apunte.valor("Leida")) return false;
    coleccion_.at(*otra) = std::move(r);
    return true;
  }

  void apuntar(const Registro& r, Apunte& apunte) const {
    d_.cadaTabla([&](const Tabla<Registro>& tabla) { apunte.poner(tabla, r); });
    apunte.poner(d_.forma.sacramento.clavePartida, r.*d_.id);
    apunte.poner("Guardada", r.Estado);
    for (const auto& [nombre, miembro] : d_.claves) apunte.poner(nombre, r.*miembro);
    for (const auto& [nombre, miembro] : d_.signos) apunte.poner(nombre, r.*miembro);
    if (d_.enEspera) apunte.poner("EnEspera", r.*d_.enEspera);
  }
  Registro leido(const Apunte& apunte) const {
    Registro r;
    d_.cadaTabla([&](const Tabla<Registro>& tabla) { apunte.leer(tabla, r); });
    r.*d_.id = static_cast<std::int32_t>(apunte.numero(d_.forma.sacramento.clavePartida));
    r.Estado = apunte.numero("Guardada") != 0;
    for (const auto& [nombre, miembro] : d_.claves)
      r.*miembro = static_cast<std::int32_t>(apunte.numero(nombre));
    for (const auto& [nombre, miembro] : d_.signos) r.*miembro = apunte.numero(nombre) != 0;
    if (d_.enEspera) r.*d_.enEspera = apunte.valor("EnEspera");
    ponerOperacion(r, static_cast<FDAPI::cCOperacion>(apunte.numero("Operacion")));
    return r;
  }
  /// Tells whether a stored entry is still as it was read.
  std::string huella(const Registro& r) const {
    Apunte apunte;
    apuntar(r, apunte);
    return std::to_string(std::hash<std::string>()(apunte.texto()));
  }

  bool mostrar(const AperturaDeLista& apertura, bool& otraVez) {
    if (apertura.posicion && !completar(apertura.conBaseDatos, *apertura.posicion)) return false;
    Dialogo dialogo(contexto_);
    dialogo.conBaseDatos = &apertura.conBaseDatos;
    dialogo.lngInstitucion = apertura.lngInstitucion;
    dialogo.lngLibro = apertura.lngLibro;
    dialogo.colPartidas = &coleccion_;
    dialogo.lngPosicion = apertura.posicion.value_or(0);
    dialogo.Operacion = apertura.posicion ? FDAPI::cCOperacion::EDITAR : FDAPI::cCOperacion::ANADIR;
    dialogo.Origen = origenLista(d_.forma.sacramento);
    otraVez = dialogo.open(apertura.aviso);
    return true;
  }

  Contexto& contexto_;
  const DescripcionAlmacen<Registro>& d_;
  std::int32_t libro_ = 0;
  PartidasListadas<Registro> coleccion_;
  std::map<std::size_t, std::string> leidas_;  // by place, of those read whole
};

}  // namespace fidaleon
