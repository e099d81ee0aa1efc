#pragma once

#include <algorithm>
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

namespace fidaleon {

/// An entry as the list of its book knows it, whatever its sacrament.
struct PartidaEnLista {
  std::int32_t id;
  bool guardada;  // the table holds it
  FDAPI::cCOperacion& Operacion;
  bool& Anulada;
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
  /// Good until the working copy grows.
  virtual PartidaEnLista partida(std::size_t posicion) = 0;
  /// What the grid shows of it, up to the mark of annulment.
  virtual std::vector<std::string> celdas(std::size_t posicion, FDAPI::cFidaleon& fidaleon) = 0;
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

/// The working copy of a sacrament. What it needs to know of it is said by `Lista`:
///
///   using Registro, Coleccion, Dialogo;           record, its collection, the entry's dialog
///   static constexpr FDAPI::cCOrigen ORIGEN;      of a dialog opened from the list
///   static std::int32_t id(const Registro&);
///   static bool& anulada(Registro&);
///   static bool completa(const Registro&);        has all its columns
///   static std::vector<std::string> celdas(const Registro&, FDAPI::cFidaleon&);
///   static bool cargar(Contexto&, FDAPI::Conexion&, std::int32_t lngLibro, Coleccion&);
///   static bool completar(Contexto&, FDAPI::Conexion&, Coleccion&, std::size_t posicion);
///   static bool guardar(Contexto&, FDAPI::Conexion&, Coleccion&);
///   static bool retirarAMedias(Contexto&, FDAPI::Conexion&, Coleccion&);
///   static bool mismoLugar(const Registro&, const Registro&);   in the book
///   static void apuntar(const Registro&, Apunte&);
///   static void leer(const Apunte&, Registro&);
template <class Lista>
class PartidasDe final : public PartidasDeLibro {
 public:
  explicit PartidasDe(Contexto& contexto) : contexto_(contexto) {}

  bool cargar(FDAPI::Conexion& conBaseDatos, std::int32_t lngLibro) override {
    return Lista::cargar(contexto_, conBaseDatos, lngLibro, coleccion_);
  }
  std::size_t cuenta() const override { return coleccion_.size(); }
  PartidaEnLista partida(std::size_t posicion) override {
    typename Lista::Registro& r = coleccion_.at(posicion);
    return {Lista::id(r), r.Estado, r.Operacion, Lista::anulada(r)};
  }
  std::vector<std::string> celdas(std::size_t posicion, FDAPI::cFidaleon& fidaleon) override {
    return Lista::celdas(coleccion_.at(posicion), fidaleon);
  }
  bool completar(FDAPI::Conexion& conBaseDatos, std::size_t posicion) override {
    const bool leida = Lista::completa(coleccion_.at(posicion)) ||
                       Lista::completar(contexto_, conBaseDatos, coleccion_, posicion);
    const typename Lista::Registro& r = coleccion_.at(posicion);
    if (leida && r.Operacion == FDAPI::cCOperacion{}) leidas_[posicion] = huella(r);
    return leida;
  }
  bool abrir(const AperturaDeLista& apertura) override {
    bool otraVez = false;
    if (!apertura.aviso) return mostrar(apertura, otraVez);
    // What is read without the lock may be out of date when the entry is opened to be changed.
    typename Lista::Registro antes = coleccion_.at(*apertura.posicion);
    const bool leida = mostrar(apertura, otraVez);
    coleccion_.at(*apertura.posicion) = std::move(antes);
    if (!otraVez) return leida;
    AperturaDeLista entera = apertura;
    entera.aviso.reset();
    return mostrar(entera, otraVez);
  }
  bool guardar(FDAPI::Conexion& conBaseDatos) override {
    return Lista::guardar(contexto_, conBaseDatos, coleccion_);
  }
  bool retirarAMedias(FDAPI::Conexion& conBaseDatos) override {
    return Lista::retirarAMedias(contexto_, conBaseDatos, coleccion_);
  }

  std::string pendiente() const override {
    std::string texto;
    for (std::size_t i = 0; i < coleccion_.size(); ++i) {
      const typename Lista::Registro& r = coleccion_[i];
      if (r.Estado && r.Operacion == FDAPI::cCOperacion{}) continue;
      Apunte apunte;
      const bool borrar = r.Operacion == FDAPI::cCOperacion::Borrar;
      apunte.poner("Partida", std::string(borrar ? "eliminada" : r.Estado ? "cambiada" : "nueva"));
      Lista::apuntar(r, apunte);
      apunte.poner("Operacion", static_cast<std::int64_t>(r.Operacion));
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
  bool reponer(FDAPI::Conexion& conBaseDatos, const Apunte& apunte,
               const std::function<bool(const PartidaEnLista&)>& tomar) {
    typename Lista::Registro r;
    Lista::leer(apunte, r);
    r.Operacion = static_cast<FDAPI::cCOperacion>(apunte.numero("Operacion"));
    if (r.Operacion == FDAPI::cCOperacion::Borrar) return false;
    if (!tomar({Lista::id(r), r.Estado, r.Operacion, Lista::anulada(r)})) return false;
    const auto otra = std::find_if(coleccion_.begin(), coleccion_.end(), [&](const auto& c) {
      return r.Estado ? Lista::id(c) == Lista::id(r) : Lista::mismoLugar(c, r);
    });
    const bool esta = otra != coleccion_.end();
    if (esta != r.Estado) return false;
    if (!esta) {
      coleccion_.push_back(std::move(r));
      return true;
    }
    const auto posicion = static_cast<std::size_t>(otra - coleccion_.begin());
    if (!completar(conBaseDatos, posicion) || leidas_[posicion] != apunte.valor("Leida"))
      return false;
    coleccion_[posicion] = std::move(r);
    return true;
  }
  /// Tells whether a stored entry is still as it was read.
  static std::string huella(const typename Lista::Registro& r) {
    Apunte apunte;
    Lista::apuntar(r, apunte);
    return std::to_string(std::hash<std::string>()(apunte.texto()));
  }
  bool mostrar(const AperturaDeLista& apertura, bool& otraVez) {
    if (apertura.posicion && !completar(apertura.conBaseDatos, *apertura.posicion)) return false;
    typename Lista::Dialogo dialogo(contexto_);
    dialogo.conBaseDatos = &apertura.conBaseDatos;
    dialogo.lngInstitucion = apertura.lngInstitucion;
    dialogo.lngLibro = apertura.lngLibro;
    dialogo.colPartidas = &coleccion_;
    dialogo.lngPosicion = apertura.posicion.value_or(0);
    dialogo.Operacion = apertura.posicion ? FDAPI::cCOperacion::EDITAR : FDAPI::cCOperacion::ANADIR;
    dialogo.Origen = Lista::ORIGEN;
    otraVez = dialogo.open(apertura.aviso);
    return true;
  }

  Contexto& contexto_;
  typename Lista::Coleccion coleccion_;
  std::map<std::size_t, std::string> leidas_;  // by place, of those read whole
};

}  // namespace fidaleon
