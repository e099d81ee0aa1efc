#pragma once

#include <string>
#include <vector>

#include "import/TablaInpar.h"
#include "import/Traductor.h"

namespace fidaleon {

/// The books of one register: makes each, writes its entries, keeps its counters.
class Libros {
 public:
  struct Encargo {
    std::int32_t lngIDInstitucion = 0;
    bool ensayo = false;
  };

  /// All must outlive it. What comes of it is added to `resultado`.
  Libros(Avisos& avisos, FDAPI::Conexion& conexion, const RegistroInpar& registro,
         TablaInpar& tabla, const Traductor::Reglas& reglas, const Encargo& encargo,
         RegistroImportado& resultado);

  /// Throws forms::Cancelled between two books; store::Error and dbase::Error when no further entry
  /// can be written: the book at hand is not there then.
  void importar(FDAPI::cProgreso& progreso);

 private:
  void libro(const store::Value& codigo);
  void partidas(const store::Value& codigo);
  bool abrirLibro(const store::Value& codigo, std::int64_t registro);
  std::string sentenciaLibro(const store::Value& codigo, std::int64_t registro);
  std::string fechaCreacion(const store::Value& codigo, std::int64_t registro);
  std::string siguiente(const store::Value& maximo, const std::string& libro);
  void partida(std::int64_t registro);
  bool escribir(Traductor& traductor, const dbase::Row& fila);
  bool faltaAlguno(const dbase::Row& fila) const;
  std::int64_t ultimaClave(const std::string& sql) const;

  Avisos& avisos_;
  FDAPI::Conexion& conexion_;
  const RegistroInpar& registro_;
  TablaInpar& tabla_;
  const Traductor::Reglas& reglas_;
  Encargo encargo_;
  RegistroImportado& resultado_;
  Lugares lugares_;
  std::vector<Traductor> traductores_;
  std::vector<std::size_t> columnasNombre_;  // that may be "Falta"
  bool hayNombres_ = false;                  // some column of the register may be
  ClavesPartida claves_{};
  std::int64_t falta_ = 1;
};

}  // namespace fidaleon
