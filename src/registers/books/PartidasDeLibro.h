#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/contract/Contexto.h"

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
    return Lista::completa(coleccion_.at(posicion)) ||
           Lista::completar(contexto_, conBaseDatos, coleccion_, posicion);
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

 private:
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
};

}  // namespace fidaleon
