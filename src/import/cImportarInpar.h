#pragma once

#include <string>

#include "core/contract/Contexto.h"
#include "import/Avisos.h"
#include "import/Etiquetas.h"
#include "import/ResultadoImportacion.h"
#include "import/Traductor.h"

namespace fidaleon {

/// Reads the four registers of the older program into old books. One pass, nothing is locked:
/// whoever calls sees to it that nobody else has the parish open. A second run makes the books a
/// second time.
///
/// A book is stored with all its entries in one step. An entry that cannot be written is told to
/// the user, named in the result, and left as far as it came; the next one follows. When the
/// progress object throws forms::Cancelled the book at hand is finished and no other is begun.
class cImportarInpar {
 public:
  explicit cImportarInpar(Contexto& contexto) : contexto_(contexto), avisos_(contexto) {}

  std::string strAno00;             // what stands in front of the year "00"
  std::uint8_t bytOrdenNombre = 0;  // 0: the given name stands first in a full name
  std::string strCodigos;           // code page; empty: what the tables say
  bool blnEnsayo = false;           // counts everything and writes nothing

  /// What is common to the four.
  struct Marco {
    FDAPI::Conexion& conBaseDatos;
    const FDAPI::ColEtiqueta& colEtiqueta;
    std::int32_t lngIDInstitucion;
    FDAPI::cProgreso& abpProgreso;
  };
  /// `strRuta` is the folder of the table. Nothing is thrown; what went wrong has been told.
  void InparBautismo(const Marco& marco, const std::string& strRuta, const DatosRegistro& datos);
  void InparConfirmacion(const Marco& marco, const std::string& strRuta,
                         const DatosRegistro& datos);
  void InparMatrimonio(const Marco& marco, const std::string& strRuta, const DatosRegistro& datos);
  void InparDefuncion(const Marco& marco, const std::string& strRuta, const DatosRegistro& datos);

  const ResultadoImportacion& resultado() const { return resultado_; }

 private:
  void registro(const char* procedimiento, const RegistroInpar& registro, const Marco& marco,
                const std::string& strRuta, const DatosRegistro& datos);

  Contexto& contexto_;
  Avisos avisos_;
  ResultadoImportacion resultado_;
};

}  // namespace fidaleon
